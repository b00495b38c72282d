#include <QFileInfo>

#include "basic/PlatformPath.h"
#include "data/NewFile.h"
#include "data/Schema.h"
#include "data/SqlFile.h"
#include "data/Statement.h"

namespace tavrelin {
namespace {

void FillClubFile(sqlite3* db) {
  RunSql(db, QStringLiteral("PRAGMA synchronous = EXTRA; BEGIN; PRAGMA application_id = %1; PRAGMA "
                            "user_version = %2")
                 .arg(ClubApplicationId)
                 .arg(ClubFileFormat));
  for (const TableDefinition& table : ClubTables()) CreateClubTable(db, table.name);
  for (const SettingDefinition& setting : ClubSettings()) InsertClubSetting(db, setting);
  EnsureKeyRules(db);
  RunSql(db, QStringLiteral("COMMIT"));
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
    const SqlFile db = OpenSqlFile(file.WorkPath(), SqlAccess::Make);
    FillClubFile(db.get());
  }
  file.TakePlace();
}

}  // namespace tavrelin
