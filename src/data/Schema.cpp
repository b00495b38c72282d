#include "data/Schema.h"

#include <sqlite3.h>

#include "basic/Error.h"
#include "data/DialectWriter.h"
#include "data/Statement.h"

namespace tavrelin {
namespace {

/// "Wins SINGLE", "Name TEXT(40) COLLATE NOCASE", "Paid DOUBLE DEFAULT 0"...
QString Declaration(const ColumnDefinition& column) {
  QString text = QLatin1String(column.name) + u' ' + FileDeclaration(QLatin1String(column.type));
  if (column.defaultValue != nullptr) {
    text += QLatin1String(" DEFAULT ") + QLatin1String(column.defaultValue);
  }
  return text;
}

const ColumnDefinition& ColumnOf(const TableDefinition& table, const char* column) {
  for (const ColumnDefinition& candidate : table.columns) {
    if (qstricmp(candidate.name, column) == 0) return candidate;
  }
  throw Error(errors::NoSuchField, QStringLiteral("There is no column %1 in %2.")
                                       .arg(QLatin1String(column), QLatin1String(table.name)));
}

QString CreateStatement(const TableDefinition& table) {
  QStringList parts;
  for (const ColumnDefinition& column : table.columns) parts += Declaration(column);
  if (table.constraint != nullptr) parts += QLatin1String(table.constraint);
  return QStringLiteral("CREATE TABLE %1 (%2);")
      .arg(QLatin1String(table.name), parts.join(QLatin1String(", ")));
}

bool HasTable(sqlite3* db, const char* table) {
  return sqlite3_table_column_metadata(db, "main", table, nullptr, nullptr, nullptr, nullptr,
                                       nullptr, nullptr) == SQLITE_OK;
}

QString IndexStatement(const char* table, const char* column) {
  return QStringLiteral("CREATE INDEX IF NOT EXISTS %1_%2 ON %1 (%2);")
      .arg(QLatin1String(table), QLatin1String(column));
}

struct DeleteRule {
  const char* parent;
  const char* child;
  const char* action;  ///< up to the condition
  const char* same;    ///< the condition under which a row belongs to the deleted one
};

constexpr const char* SameTournament = "SanctionID = OLD.SanctionID";
constexpr const char* SameClass = "SanctionID = OLD.SanctionID AND ClassID = OLD.ClassID";

// One trigger a pair of tables, so that a file from before a table came has no rule that fails.
constexpr DeleteRule DeleteRules[] = {
    {"Tournaments", "TournamentClasses", "DELETE FROM TournamentClasses", SameTournament},
    {"Tournaments", "TournamentEntrants", "DELETE FROM TournamentEntrants", SameTournament},
    {"Tournaments", "TournamentTeamEntrants", "DELETE FROM TournamentTeamEntrants", SameTournament},
    {"Tournaments", "TournamentSinglesRR", "DELETE FROM TournamentSinglesRR", SameTournament},
    {"Tournaments", "TournamentDoublesRR", "DELETE FROM TournamentDoublesRR", SameTournament},
    {"Tournaments", "ReportGroup", "DELETE FROM ReportGroup", SameTournament},
    {"Tournaments", "ReportGroupClass", "DELETE FROM ReportGroupClass", SameTournament},
    {"Tournaments", "PlayerScores", "DELETE FROM PlayerScores", SameTournament},
    {"TournamentClasses", "TournamentSinglesRR", "DELETE FROM TournamentSinglesRR", SameClass},
    {"TournamentClasses", "TournamentDoublesRR", "DELETE FROM TournamentDoublesRR", SameClass},
    {"TournamentClasses", "ReportGroupClass", "DELETE FROM ReportGroupClass", SameClass},
    {"TournamentClasses", "TournamentEntrants", "UPDATE TournamentEntrants SET ClassID = ''",
     SameClass},
    {"TournamentClasses", "TournamentTeamEntrants",
     "UPDATE TournamentTeamEntrants SET ClassID = ''", SameClass},
};

/// A second row under the same key keeps what hangs on it: deleting a duplicate loses nothing.
QString TriggerOf(const DeleteRule& rule) {
  const QLatin1String parent(rule.parent);
  return QStringLiteral(
             "CREATE TRIGGER IF NOT EXISTS %1_Delete_%2 AFTER DELETE ON %1 WHEN NOT EXISTS "
             "(SELECT 1 FROM %1 WHERE %3) BEGIN %4 WHERE %3; END")
      .arg(parent, QLatin1String(rule.child), QLatin1String(rule.same), QLatin1String(rule.action));
}

/// What is kept under the sanction number of a tournament or league.
struct RenumberRule {
  const char* parent;
  const char* child;
};

// Leagues are deleted alone, and what is kept under their numbers stays: they have no delete rules.
constexpr RenumberRule RenumberRules[] = {
    {"Tournaments", "TournamentClasses"},
    {"Tournaments", "TournamentEntrants"},
    {"Tournaments", "TournamentTeamEntrants"},
    {"Tournaments", "TournamentSinglesRR"},
    {"Tournaments", "TournamentDoublesRR"},
    {"Tournaments", "ReportGroup"},
    {"Tournaments", "ReportGroupClass"},
    {"Tournaments", "PlayerScores"},
    {"Leagues", "LeagueMembers"},
    {"Leagues", "LeagueTeams"},
    {"Leagues", "LeagueScores"},
    {"Leagues", "LeagueTeamScores"},
};

/// A sanction number that is mended takes along what is kept under it. A second row under the old
/// number keeps it.
QString RenumberTriggerOf(const RenumberRule& rule) {
  return QStringLiteral(
             "CREATE TRIGGER IF NOT EXISTS %1_Renumber_%2 AFTER UPDATE OF SanctionID ON %1 WHEN "
             "NEW.SanctionID <> OLD.SanctionID AND NOT EXISTS (SELECT 1 FROM %1 WHERE "
             "SanctionID = OLD.SanctionID) BEGIN UPDATE %2 SET SanctionID = NEW.SanctionID WHERE "
             "SanctionID = OLD.SanctionID; END")
      .arg(QLatin1String(rule.parent), QLatin1String(rule.child));
}

}  // namespace

void CreateClubTable(sqlite3* db, const char* table) {
  const TableDefinition& definition = ClubTable(table);
  QString statements = CreateStatement(definition);
  for (const char* column : definition.indexed) statements += IndexStatement(table, column);
  RunSql(db, statements);
}

void AddClubColumn(sqlite3* db, const char* table, const char* column) {
  const ColumnDefinition& definition = ColumnOf(ClubTable(table), column);
  RunSql(db, QStringLiteral("ALTER TABLE %1 ADD COLUMN %2")
                 .arg(QLatin1String(table), Declaration(definition)));
}

void EnsureIndexes(sqlite3* db) {
  for (const TableDefinition& table : ClubTables()) {
    if (!HasTable(db, table.name)) continue;
    for (const char* column : table.indexed) RunSql(db, IndexStatement(table.name, column));
  }
}

void EnsureKeyRules(sqlite3* db) {
  const auto hasTables = [db](const auto& rule) {
    return HasTable(db, rule.parent) && HasTable(db, rule.child);
  };
  for (const DeleteRule& rule : DeleteRules) {
    if (hasTables(rule)) RunSql(db, TriggerOf(rule));
  }
  for (const RenumberRule& rule : RenumberRules) {
    if (hasTables(rule)) RunSql(db, RenumberTriggerOf(rule));
  }
}

}  // namespace tavrelin
