#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

struct sqlite3;

namespace tavrelin {

/// The layout that this program writes and expects, as row 0 of SystemSettings holds it.
inline constexpr const char* ClubVersion = "11.17";

/// Marks of a club's file in its first page: "TVRL", and the form in which its tables are kept. A
/// program refuses a file of a higher form than its own.
inline constexpr int ClubApplicationId = 0x5456524C;
inline constexpr int ClubFileFormat = 1;

/// One column as the file declares it. Types are Access names; "AUTOINCREMENT" is a number that the
/// engine gives. Texts compare without regard to case; yes/no starts as no; any other column starts
/// null unless it has a default.
struct ColumnDefinition {
  const char* name;
  const char* type;
  const char* defaultValue = nullptr;  ///< an SQL literal
};

/// One table in its physical column order: the columns it began with, then those that upgrades
/// added. Statements that insert without a column list depend on it.
struct TableDefinition {
  const char* name;
  QList<ColumnDefinition> columns;
  /// Columns with an index of their own: sanction numbers and numeric keys only, whose order is the
  /// same for every SQLite tool. Names and player numbers may hold letters outside ASCII, which
  /// other tools sort differently, so an index on them could mislead one or the other.
  QList<const char*> indexed;
  const char* constraint = nullptr;
};

/// A row of SystemSettings.
struct SettingDefinition {
  int id;
  const char* prompt;
  const char* value;
};

/// All tables of a club's file.
const QList<TableDefinition>& ClubTables();
/// One of them by name, to the letter; a name that is not there is a mistake of the program and
/// throws Error.
const TableDefinition& ClubTable(const char* name);
/// The eleven settings of a new file, by number.
const QList<SettingDefinition>& ClubSettings();

// Changes of the layout beyond what a statement can say. All throw Error and join a transaction
// that is open.

/// Creates the table with its indexes; refused when it exists.
void CreateClubTable(sqlite3* db, const char* table);
/// Adds a column behind the others, with its default, which a statement cannot name; refused when
/// it exists. Not for automatic numbers.
void AddClubColumn(sqlite3* db, const char* table, const char* column);
/// Gives every table that is there the indexes of ClubTables. Safe to repeat.
void EnsureIndexes(sqlite3* db);
/// Puts the rules of keys in force, as far as the tables they speak of exist: a deleted
/// tournament takes its classes, entries, games, report groups and posted scores along, a deleted
/// class its games and report rows, while its entries stay and are unplaced; a tournament or league
/// given another sanction number takes along all that is kept under it. Safe to repeat.
void EnsureKeyRules(sqlite3* db);

/// Makes a new club file with all tables and settings at the present version; its folder is made
/// when it is missing. The file appears whole or not at all. Refused when a file of that name
/// exists.
void DeliverClubFile(const QString& path);

/// Adds a row to SystemSettings. One of the prompts is a character longer than its column has ever
/// been declared, so this does not go through the check of lengths.
void InsertClubSetting(sqlite3* db, const SettingDefinition& setting);

}  // namespace tavrelin
