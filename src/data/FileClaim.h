#pragma once

#include <memory>
#include <QString>

namespace tavrelin {

/// This process's claim on a club's file: while one lives, another copy of the program is refused.
///
/// The claim stands on a neighbor of the file ("Club.mdb.lock"), which is removed with the last of
/// the process's claims. A claim that a crash left behind does not block. Copies share the claim.
/// In a place where nothing can be written there is nothing to guard, and the claim is empty.
class FileClaim {
 public:
  FileClaim() = default;
  /// Throws Error(FileInUse) when another process holds the file.
  explicit FileClaim(const QString& path);

 private:
  class Lock;
  std::shared_ptr<Lock> lock_;
};

}  // namespace tavrelin
