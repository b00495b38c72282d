#include <sqlite3.h>
#include <memory>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "basic/Error.h"
#include "basic/PlatformPath.h"
#include "data/Backup.h"
#include "data/NewFile.h"
#include "data/Schema.h"
#include "data/Sql.h"

namespace tavrelin {
namespace {

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

[[noreturn]] void RefuseFile(const QString& path, const QString& why) {
  throw Error(errors::File, QStringLiteral("%1: %2.").arg(QDir::toNativeSeparators(path), why));
}

Database OpenFile(const QString& path, int flags) {
  sqlite3* raw = nullptr;
  const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, flags, nullptr);
  Database db(raw, &sqlite3_close);
  if (result != SQLITE_OK) RefuseFile(path, QString::fromUtf8(sqlite3_errstr(result)));
  return db;
}

void FillClubFile(sqlite3* db) {
  RunSql(db, QStringLiteral("PRAGMA synchronous = EXTRA; BEGIN; PRAGMA application_id = %1; PRAGMA "
                            "user_version = %2")
                 .arg(ClubApplicationId)
                 .arg(ClubFileFormat));
  for (const TableDefinition& table : ClubTables()) CreateClubTable(db, table.name);
  for (const SettingDefinition& setting : ClubSettings()) InsertClubSetting(db, setting);
  EnsureDeleteRules(db);
  RunSql(db, QStringLiteral("COMMIT"));
}

void CopyPages(sqlite3* from, sqlite3* to, const QString& path) {
  sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
  if (backup != nullptr) sqlite3_backup_step(backup, -1);
  if (sqlite3_backup_finish(backup) != SQLITE_OK || backup == nullptr) {
    RefuseFile(path, QStringLiteral("the copy cannot be written, %1")
                         .arg(QString::fromUtf8(sqlite3_errmsg(to))));
  }
}

void VerifyCopy(sqlite3* from, const QString& copy) {
  const Database db = OpenFile(copy, SQLITE_OPEN_READONLY);
  for (const char* same :
       {"PRAGMA page_count", "SELECT group_concat(sql, ';') FROM sqlite_master"}) {
    const QString question = QLatin1String(same);
    if (AskSql(db.get(), question) != AskSql(from, question)) {
      RefuseFile(copy, QStringLiteral("the copy is not the same as the file"));
    }
  }
  const QList<QStringList> sound{{QStringLiteral("ok")}};
  if (AskSql(db.get(), QStringLiteral("PRAGMA integrity_check")) != sound) {
    RefuseFile(copy, QStringLiteral("the copy is damaged"));
  }
}

}  // namespace

void InsertClubSetting(sqlite3* db, const SettingDefinition& setting) {
  Statement insert(db, QStringLiteral("INSERT INTO SystemSettings VALUES(?, ?, ?)"));
  insert.BindAll({setting.id, setting.prompt, setting.value});
  insert.Step();
}

void DeliverClubFile(const QString& path) {
  NewFile file(QFileInfo(PlatformPath(path)).absoluteFilePath());
  {
    const Database db = OpenFile(file.WorkPath(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    FillClubFile(db.get());
  }
  file.TakePlace();
}

void CopyClubFile(sqlite3* from, const QString& path) {
  NewFile file(path);
  {
    const Database to = OpenFile(file.WorkPath(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    RunSql(to.get(), QStringLiteral("PRAGMA synchronous = EXTRA"));
    CopyPages(from, to.get(), path);
  }
  VerifyCopy(from, file.WorkPath());
  file.TakePlace();
}

QString CopyBeforeUpgrade(sqlite3* from, const QString& file, const QDate& today) {
  const QFileInfo info(file);
  const QString stem = info.absolutePath() + QLatin1Char('/') + info.completeBaseName() +
                       QStringLiteral(".before-upgrade-") + today.toString(Qt::ISODate);
  const QString ending = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
  QString copy = stem + ending;
  for (int n = 2; QFileInfo::exists(copy); ++n)
    copy = QStringLiteral("%1-%2%3").arg(stem).arg(n).arg(ending);
  CopyClubFile(from, copy);
  return copy;
}

}  // namespace tavrelin
