#pragma once

#include <QString>

#include "data/FileClaim.h"
#include "shell/CSError.h"

namespace tavrelin {

class Store;

/// What happens between the start of the program and the operator's first press of a button:
/// settings moved to the operator, the database chosen (ConnectString, DatabasePath) and brought up
/// to date. Needs no window. The store must outlive it.
class StartUp {
 public:
  StartUp(Store& store, const CSError::Display& showError);
  ~StartUp();

  /// On the first run of an operator: the machine's settings become the operator's own, and the
  /// path of the club's file is stored.
  void SeedStore();
  /// The data source "Tavrelin" if there is one; the stored path goes before it, and a path on the
  /// command line before both, for this run only.
  void ChooseDatabase(const QString& commandLine);
  /// Delivers the club's first file where the default path has none, and brings the file up to
  /// date. What goes wrong is shown; the program goes on, and its screens say the same when they
  /// are shown.
  void UpdateDatabase();

  /// All three, in this order.
  void Run(const QString& commandLine);

  /// Holds the club's file of ConnectString against a second copy of the program until it is held
  /// anew or this object ends. To be called again when ConnectString may have changed. A file that
  /// cannot be held is not: the screens say why when they open it.
  void HoldFile();

 private:
  bool DataSourceWorks() const;
  QString StoredPath();
  void DeliverFirstFile() const;

  Store& store_;
  CSError::Display showError_;
  CSError errors_;
  FileClaim claim_;
  QString held_;  ///< the path that claim_ is for
};

}  // namespace tavrelin
