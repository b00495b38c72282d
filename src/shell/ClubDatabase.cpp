#include "shell/ClubDatabase.h"

#include "data/clsDDP.h"
#include "data/Connection.h"
#include "data/DataSource.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"

namespace tavrelin {

namespace {

QString FileOrNone(const QString& connectString) {
  try {
    return FileOfConnectString(connectString);
  } catch (const Error&) {
    return {};
  }
}

}  // namespace

void UseDatabase(const QString& path) {
  DatabasePath = path;
  ConnectString = ConnectStringFor(path);
}

void StoreDatabasePath(Store& store, const QString& path) {
  if (store.Save(stored::CurrentDatabase, path)) return;
  throw Error(errors::File,
              QStringLiteral("Your settings cannot be kept in %1. The program works, but forgets "
                             "them when it ends. See that you may write to that folder.")
                  .arg(store.File()));
}

QString DatabaseInUse() {
  return FileOrNone(ConnectString);
}

QString DatabaseAt(const QString& path) {
  return FileOrNone(ConnectStringFor(path));
}

// The data source's own words do not help an operator who has chosen no database.
void UpdateDatabaseInUse(const CSError::Display& showError, const QDate& today) {
  try {
    clsDDP(showError, today).UpdateDB();
  } catch (const Error& error) {
    if (ConnectString != ConnectStringFor({})) throw;
    throw Error(
        error.number(),
        QStringLiteral("No club file is in use. Choose the club's file under Setup, Database; "
                       "its name ends in .mdb or .accdb.~") +
            error.description());
  }
}

}  // namespace tavrelin
