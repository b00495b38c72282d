#pragma once

#include <QDate>

#include "shell/CSError.h"

namespace tavrelin {

class Connection;
class Store;

/// Brings a club's file and the operator's settings up to what this program works with.
class clsDDP {
 public:
  /// `display` shows what goes wrong inside an upgrade; `today` dates the copy of the file.
  explicit clsDDP(CSError::Display display, QDate today = QDate::currentDate());

  /// Cleans up nulls in the roster and, unless the file says it is at the present version, walks
  /// all steps of the upgrade; each one finds out by itself whether it is needed. Works on the file
  /// of ConnectString. The file as it was before the first change is kept beside it; without that
  /// copy nothing is changed. All steps are one commit: an upgrade that is killed leaves the file
  /// as it was.
  ///
  /// Throws Error when the file cannot be opened. Any other failure is shown, and the file stays
  /// at the newest layout that was reached.
  void UpdateDB();

  /// Moves the settings that once lived in the machine's store to the operator's own. The path of
  /// the club's file is written in any case, with its default when there is none. Never throws.
  void UpdateRegistry(Store& store);

 private:
  void Upgrade(Connection& connection);

  CSError errors_;
  QDate today_;
};

}  // namespace tavrelin
