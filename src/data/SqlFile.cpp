#include "data/SqlFile.h"

#include <sqlite3.h>
#include <QDir>
#include <QFile>

#include "basic/Error.h"
#include "data/SqlErrors.h"

namespace tavrelin {
namespace {

constexpr int WaitMilliseconds = 3000;

int FlagsOf(SqlAccess access) {
  switch (access) {
    case SqlAccess::Read:
      return SQLITE_OPEN_READONLY;
    case SqlAccess::Change:
      return SQLITE_OPEN_READWRITE;
    case SqlAccess::Make:
      return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  }
  return SQLITE_OPEN_READONLY;
}

}  // namespace

void CloseSqlFile::operator()(sqlite3* handle) const {
  sqlite3_close(handle);
}

SqlFile OpenSqlFile(const QString& path, SqlAccess access) {
  sqlite3* raw = nullptr;
  const int result =
      sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, FlagsOf(access), nullptr);
  SqlFile file(raw);
  if (result == SQLITE_OK) {
    sqlite3_extended_result_codes(raw, 1);
    sqlite3_busy_timeout(raw, WaitMilliseconds);
    return file;
  }
  throw Error(errors::File,
              QStringLiteral("%1: %2.").arg(QDir::toNativeSeparators(path),
                                            QString::fromUtf8(sqlite3_errstr(result))));
}

// The wait for a writer is the connection's own (its busy timeout).
void CopyAllPages(sqlite3* from, sqlite3* to) {
  sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
  if (!backup) ThrowDatabaseError(to);
  const int rc = sqlite3_backup_step(backup, -1);
  if (sqlite3_backup_finish(backup) != SQLITE_OK) ThrowDatabaseError(to);
  if (rc != SQLITE_DONE) {
    throw Error(errors::FileUnusable,
                QStringLiteral("The file is being written by another program. Try again."));
  }
}

}  // namespace tavrelin
