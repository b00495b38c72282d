#pragma once

#include "data/Connection.h"

namespace tavrelin {

/// Runs work that must be in the file whole or not at all: where it throws, nothing of it is kept,
/// and the error goes on to the caller.
template <class Work>
void InWholeBatch(Connection& connection, const Work& work) {
  Batch batch(connection);
  try {
    work();
  } catch (...) {
    batch.Rollback();
    throw;
  }
  batch.Commit();
}

}  // namespace tavrelin
