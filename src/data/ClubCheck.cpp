#include "data/ClubCheck.h"

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Schema.h"
#include "data/Sql.h"

namespace tavrelin {
namespace {

using Kind = ClubFinding::Kind;

void CheckIntegrity(sqlite3* db, QList<ClubFinding>& findings) {
  for (const QStringList& row : AskSql(db, QStringLiteral("PRAGMA integrity_check"))) {
    const Kind kind = row[0] == u"ok" ? Kind::Fine : Kind::Wrong;
    findings += {kind, QStringLiteral("integrity"), {}, row[0]};
  }
}

/// In capitals; empty when there is no such table.
QStringList ColumnsOf(sqlite3* db, const char* table) {
  QStringList columns;
  for (const QStringList& row :
       AskSql(db, QStringLiteral("SELECT upper(name) FROM pragma_table_info(?)"),
              {QLatin1String(table)})) {
    columns += row[0];
  }
  return columns;
}

void CheckVersion(sqlite3* db, QList<ClubFinding>& findings) {
  ClubFinding finding{Kind::Wrong, QStringLiteral("version"), QStringLiteral("SystemSettings"),
                      QStringLiteral("none")};
  if (!ColumnsOf(db, "SystemSettings").isEmpty()) {
    const auto rows = AskSql(
        db, QStringLiteral("SELECT trim(SettingValue) FROM SystemSettings WHERE SettingID = 0"));
    if (rows.size() == 1) finding.finding = rows[0][0];
    if (rows.size() > 1) finding.finding = QStringLiteral("%1 rows").arg(rows.size());
  }
  if (finding.finding == QLatin1String(ClubVersion)) finding.kind = Kind::Fine;
  findings += finding;
}

QStringList MissingColumns(const TableDefinition& table, const QStringList& present) {
  QStringList missing;
  for (const ColumnDefinition& column : table.columns) {
    const QString name = QLatin1String(column.name);
    if (!present.contains(name.toUpper())) missing += name;
  }
  return missing;
}

void CheckLayout(sqlite3* db, QList<ClubFinding>& findings) {
  const QString check = QStringLiteral("layout");
  for (const TableDefinition& table : ClubTables()) {
    const QStringList present = ColumnsOf(db, table.name);
    const QStringList missing = MissingColumns(table, present);
    const QString name = QLatin1String(table.name);
    if (present.isEmpty()) {
      findings += {Kind::Wrong, check, name, QStringLiteral("no such table")};
    } else if (!missing.isEmpty()) {
      findings +=
          {Kind::Wrong, check, name, QStringLiteral("lacks ") + missing.join(QLatin1String(", "))};
    }
  }
}

/// Rows of `child` must name a row of `parent` by their `columns`, unless one of them is blank.
struct Reference {
  const char* child;
  const char* columns;
  const char* parent;
  const char* parentColumns;
  Kind kind;
  const char* except = nullptr;  ///< a further condition, for values that name nobody
};

constexpr const char* Class = "SanctionID, ClassID";
constexpr const char* NoPacer = "PlayerOneID <> 'PPPPPP'";
constexpr const char* NoPacerTwo = "PlayerTwoID <> 'PPPPPP'";

// What goes along with a deleted tournament or class may not be left over. Players, teams and
// leagues are deleted alone, and what spoke of them stays.
constexpr Reference References[] = {
    {"TournamentClasses", "SanctionID", "Tournaments", "SanctionID", Kind::Wrong},
    {"TournamentEntrants", "SanctionID", "Tournaments", "SanctionID", Kind::Wrong},
    {"TournamentEntrants", Class, "TournamentClasses", Class, Kind::Wrong, "ClassID <> ''"},
    {"TournamentEntrants", "PlayerID", "Players", "PlayerID", Kind::Note},
    {"TournamentTeamEntrants", "SanctionID", "Tournaments", "SanctionID", Kind::Wrong},
    {"TournamentTeamEntrants", Class, "TournamentClasses", Class, Kind::Wrong, "ClassID <> ''"},
    {"TournamentTeamEntrants", "TeamID", "Teams", "TeamID", Kind::Note},
    {"TournamentSinglesRR", Class, "TournamentClasses", Class, Kind::Wrong},
    {"TournamentSinglesRR", "PlayerOneID", "Players", "PlayerID", Kind::Note, NoPacer},
    {"TournamentSinglesRR", "PlayerTwoID", "Players", "PlayerID", Kind::Note, NoPacerTwo},
    {"TournamentDoublesRR", Class, "TournamentClasses", Class, Kind::Wrong},
    {"ReportGroup", "SanctionID", "Tournaments", "SanctionID", Kind::Wrong},
    {"ReportGroupClass", "GroupID", "ReportGroup", "GroupID", Kind::Wrong},
    {"ReportGroupClass", Class, "TournamentClasses", Class, Kind::Wrong},
    {"PlayerScores", "SanctionID", "Tournaments", "SanctionID", Kind::Wrong},
    {"PlayerScores", "PlayerID", "Players", "PlayerID", Kind::Note},
    {"TeamPlayers", "TeamID", "Teams", "TeamID", Kind::Note},
    {"TeamPlayers", "PlayerID", "Players", "PlayerID", Kind::Note},
    {"LeagueMembers", "SanctionID", "Leagues", "SanctionID", Kind::Note},
    {"LeagueMembers", "PlayerID", "Players", "PlayerID", Kind::Note},
    {"LeagueTeams", "SanctionID", "Leagues", "SanctionID", Kind::Note},
    {"LeagueScores", "SanctionID", "Leagues", "SanctionID", Kind::Note},
    {"LeagueScores", "PlayerID", "Players", "PlayerID", Kind::Note},
    {"LeagueTeamScores", "SanctionID", "Leagues", "SanctionID", Kind::Note},
    {"LabelListPlayers", "LabelListID", "LabelLists", "LabelListID", Kind::Note},
    {"LabelListPlayers", "PlayerID", "Players", "PlayerID", Kind::Note},
};

QString OrphanQuery(const Reference& reference) {
  QString query = QStringLiteral("SELECT count(*) FROM %1 WHERE (%2) NOT IN (SELECT %3 FROM %4")
                      .arg(QLatin1String(reference.child), QLatin1String(reference.columns),
                           QLatin1String(reference.parentColumns), QLatin1String(reference.parent));
  QLatin1String joint(" WHERE ");
  for (const QString& column : QString::fromLatin1(reference.parentColumns).split(u',')) {
    query += joint + column + QLatin1String(" IS NOT NULL");
    joint = QLatin1String(" AND ");
  }
  query += u')';
  if (reference.except != nullptr)
    query += QLatin1String(" AND ") + QLatin1String(reference.except);
  return query;
}

void CheckReferences(sqlite3* db, QList<ClubFinding>& findings) {
  for (const Reference& reference : References) {
    if (ColumnsOf(db, reference.child).isEmpty() || ColumnsOf(db, reference.parent).isEmpty()) {
      continue;
    }
    const QString orphans = AskSql(db, OrphanQuery(reference))[0][0];
    if (orphans == u"0") continue;
    findings +=
        {reference.kind, QStringLiteral("orphans"), QLatin1String(reference.child),
         QStringLiteral("%1 rows whose %2 is not in %3")
             .arg(orphans, QLatin1String(reference.columns), QLatin1String(reference.parent))};
  }
}

}  // namespace

QList<ClubFinding> CheckClub(Connection& connection) {
  sqlite3* db = connection.Handle();
  QList<ClubFinding> findings;
  CheckIntegrity(db, findings);
  CheckVersion(db, findings);
  CheckLayout(db, findings);
  CheckReferences(db, findings);
  return findings;
}

}  // namespace tavrelin
