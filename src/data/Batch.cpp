#include <sqlite3.h>

#include <exception>

#include <QScopeGuard>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/ConnectionParts.h"

namespace tavrelin {

// The outermost batch is the transaction; one within it is a savepoint, so that Rollback gives up
// its own rows only.
Batch::Batch(Connection& connection)
    : connection_(connection), outermost_(false), exceptions_(std::uncaught_exceptions()) {
  if (!connection.IsOpen()) throw Error(errors::RecordState, QStringLiteral("No file is open."));
  outermost_ = connection.d()->batches == 0;
  RunSql(connection.Handle(),
         outermost_ ? QStringLiteral("BEGIN IMMEDIATE") : QStringLiteral("SAVEPOINT batch"));
  ++connection.d()->batches;
}

Batch::~Batch() noexcept(false) {
  if (!open_) return;
  if (std::uncaught_exceptions() == exceptions_) {
    Commit();
    return;
  }
  try {
    Commit();
  } catch (const Error&) {
    // The error on its way is the one to tell: this one came of it.
  }
}

void Batch::Commit() {
  if (!open_) return;
  open_ = false;
  sqlite3* handle = connection_.Handle();
  const auto leave = qScopeGuard([this] { --connection_.d()->batches; });
  connection_.d()->CheckBatch();
  if (!outermost_) return RunSql(handle, QStringLiteral("RELEASE batch"));
  try {
    RunSql(handle, QStringLiteral("COMMIT"));
  } catch (const Error&) {
    sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
    throw;
  }
}

void Batch::Rollback() {
  if (!open_) return;
  open_ = false;
  --connection_.d()->batches;
  sqlite3* handle = connection_.Handle();
  if (sqlite3_get_autocommit(handle) != 0) return;
  RunSql(handle, outermost_ ? QStringLiteral("ROLLBACK")
                            : QStringLiteral("ROLLBACK TO batch; RELEASE batch"));
}

}  // namespace tavrelin
