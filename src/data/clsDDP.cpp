#include "data/clsDDP.h"

#include <sqlite3.h>

#include "data/Backup.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "data/Sql.h"
#include "data/UpgradeSteps.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"

namespace tavrelin {
namespace {

using Kind = LayoutChange::Kind;

void ApplySetting(Connection& connection, const LayoutChange& change) {
  SettingDefinition setting = ClubSettings().at(change.id);
  if (change.table != nullptr) setting.prompt = change.table;
  if (change.column != nullptr) setting.value = change.column;
  InsertClubSetting(connection.Handle(), setting);
}

/// In capitals; empty when the table has no such column.
QString TypeOf(sqlite3* db, const LayoutChange& change) {
  const auto types = AskSql(
      db,
      QStringLiteral("SELECT upper(type) FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE"),
      {QLatin1String(change.table), QLatin1String(change.column)});
  return types.isEmpty() ? QString() : types[0][0];
}

/// A file whose settings were lost asks for columns that it still has.
void AddMissing(sqlite3* db, const LayoutChange& change) {
  if (TypeOf(db, change).isEmpty()) AddClubColumn(db, change.table, change.column);
}

/// Only what is empty: a column that was there already may hold figures.
void FillZeros(Connection& connection, const LayoutChange& change) {
  connection.Execute(QStringLiteral("UPDATE %1 SET %2 = 0 WHERE %2 IS NULL")
                         .arg(QLatin1String(change.table), QLatin1String(change.column)));
}

void Widen(Connection& connection, const LayoutChange& change) {
  if (TypeOf(connection.Handle(), change) == QLatin1String(change.type)) return;
  connection.Execute(QStringLiteral("ALTER TABLE %1 ALTER COLUMN %2 %3")
                         .arg(QLatin1String(change.table), QLatin1String(change.column),
                              QLatin1String(change.type)));
}

void Apply(Connection& connection, const LayoutChange& change) {
  sqlite3* db = connection.Handle();
  switch (change.kind) {
    case Kind::CreateTable:
      return CreateClubTable(db, change.table);
    case Kind::AddColumn:
      return AddMissing(db, change);
    case Kind::AddZero:
      AddMissing(db, change);
      return FillZeros(connection, change);
    case Kind::Widen:
      return Widen(connection, change);
    case Kind::Setting:
      return ApplySetting(connection, change);
    case Kind::Run:
      connection.Execute(QString::fromLatin1(change.table));
  }
}

void ApplyChange(Connection& connection, const LayoutChange& change, bool mayFail) {
  try {
    Apply(connection, change);
  } catch (const Error&) {
    if (!mayFail) throw;
  }
}

void ApplyChanges(Connection& connection, const QList<LayoutChange>& changes, bool mayFail) {
  for (const LayoutChange& change : changes) ApplyChange(connection, change, mayFail);
}

bool IsNeeded(Connection& connection, const UpgradeStep& step) {
  Recordset probe;
  const QString question = QString::fromLatin1(step.probe);
  if (step.needed == UpgradeStep::Needed::NoRows) {
    probe.Open(question, connection);
    return probe.RecordCount() == 0;
  }
  try {
    probe.Open(question, connection);
    return false;
  } catch (const Error&) {
    return true;
  }
}

void RunStep(Connection& connection, const UpgradeStep& step) {
  const bool mayFail = step.needed == UpgradeStep::Needed::Missing;
  if (!IsNeeded(connection, step)) return ApplyChanges(connection, step.otherwise, mayFail);
  ApplyChanges(connection, step.changes, mayFail);
  if (step.stamp == nullptr) return;
  const QByteArray stamp = QByteArray("UPDATE SystemSettings SET SettingValue = '") + step.stamp +
                           "' WHERE SettingID = 0";
  ApplyChange(connection, {Kind::Run, stamp.constData()}, mayFail);
}

/// Nulls come in with imports and from older programs, so they are cleaned up at every start. A
/// file too old to have a column is none the worse for it.
void RepairNulls(Connection& connection) {
  for (const char* repair : {"UPDATE Players SET City = '' WHERE City IS NULL",
                             "UPDATE Players SET State = 'US' WHERE State IS NULL",
                             "UPDATE Players SET ZipCode = '00000' WHERE ZipCode IS NULL",
                             "UPDATE Players SET Telephone = '' WHERE Telephone IS NULL",
                             "UPDATE Players SET CellPhone = '' WHERE CellPhone IS NULL",
                             "UPDATE Players SET Email = '' WHERE Email IS NULL"}) {
    try {
      connection.Execute(QString::fromLatin1(repair));
    } catch (const Error&) {
    }
  }
}

/// Empty when the row is missing, double or cannot be read.
QString VersionOf(Connection& connection) {
  try {
    Recordset row;
    row.Open(QStringLiteral("SELECT * FROM SystemSettings WHERE SettingID = 0"), connection);
    return row.RecordCount() == 1 ? row[QStringLiteral("SettingValue")].Trimmed() : QString();
  } catch (const Error&) {
    return {};
  }
}

void RunAllSteps(Connection& connection) {
  RunUpgradeSteps(connection);
  EnsureIndexes(connection.Handle());
  EnsureKeyRules(connection.Handle());
}

/// Walks the steps and gives the work up again: true when they would write something.
bool WouldChange(Connection& connection) {
  sqlite3* db = connection.Handle();
  Batch trial(connection);
  const sqlite3_int64 rows = sqlite3_total_changes64(db);
  const QString layoutCounter = QStringLiteral("PRAGMA schema_version");
  const auto layout = AskSql(db, layoutCounter);
  try {
    RunAllSteps(connection);
  } catch (const Error&) {
    // The walk that counts meets the same failure and tells of it.
  }
  const bool changes = sqlite3_total_changes64(db) != rows || AskSql(db, layoutCounter) != layout;
  trial.Rollback();
  return changes;
}

constexpr StoredValue MovedSettings[] = {
    stored::CurrentDatabase,
    stored::BriefReport,
    stored::CountTeamWins,
    stored::ExportMembershipPath,
    stored::ExportMembershipSanction,
    stored::ExportMembershipState,
    stored::ExportNatStatsPath,
    stored::ExportProfilePath,
    stored::ExportStatsPath,
    stored::Forfeit,
    stored::GameBasis,
    stored::HandicapBasis,
    stored::LeaguesPath,
    stored::NatStatEmail,
    stored::RecentLeague,
    stored::RecentTournament,
    stored::ReturnAddress,
    stored::ScoreCheck,
    stored::StandingsSort,
    stored::TournamentPath,
};

}  // namespace

void RunUpgradeSteps(Connection& connection) {
  for (const UpgradeStep& step : UpgradeSteps()) RunStep(connection, step);
}

clsDDP::clsDDP(CSError::Display display, QDate today)
    : errors_(std::move(display)), today_(today) {}

void clsDDP::UpdateDB() {
  Connection connection;
  connection.Open(ConnectString);
  errors_.Run("UpdateDB", [&] {
    RepairNulls(connection);
    if (VersionOf(connection) != QLatin1String(ClubVersion)) Upgrade(connection);
  });
}

void clsDDP::Upgrade(Connection& connection) {
  if (WouldChange(connection)) {
    CopyBeforeUpgrade(connection.Handle(), connection.FilePath(), today_);
  }
  Batch upgrade(connection);
  RunAllSteps(connection);
  upgrade.Commit();
}

// Only what was stored moves, no default; but the path of the club's file is there from then on.
void clsDDP::UpdateRegistry(Store& store) {
  for (const StoredValue& moved : MovedSettings) {
    const QString name = QLatin1String(moved.name);
    const bool isDatabase = name == QLatin1String(stored::CurrentDatabase.name);
    const QString value = store.GetMachineRegistryString(
        {}, name, isDatabase ? QString(QLatin1String(DefaultDatabase)) : QString());
    if (!value.isEmpty()) store.Save(moved, value);
  }
}

}  // namespace tavrelin
