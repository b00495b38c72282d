#include "data/TableRebuild.h"

#include <sqlite3.h>

#include "basic/Error.h"
#include "data/Catalogue.h"
#include "data/DialectWriter.h"
#include "data/Statement.h"
#include "data/Tokenizer.h"

namespace tavrelin {
namespace {

const QString NewTable = QStringLiteral("table_being_rebuilt");

/// The definitions between a CREATE TABLE's brackets, as they stand in the file.
class Definitions {
 public:
  explicit Definitions(const QString& sql) {
    const QList<Token> tokens = Tokenize(sql);
    int depth = 0;
    qsizetype start = -1;
    for (const Token& token : tokens) {
      if (token.IsSymbol(QLatin1String("(")) && ++depth == 1 && start < 0) start = token.at + 1;
      const bool ends = token.IsSymbol(QLatin1String(")")) && --depth == 0;
      if (!ends && !(depth == 1 && token.IsSymbol(QLatin1String(",")))) continue;
      parts_.append(sql.mid(start, token.at - start).trimmed());
      start = token.at + 1;
      if (ends) {
        behind_ = sql.mid(start);
        return;
      }
    }
  }

  void Replace(const QString& column, const QString& definition) {
    for (QString& part : parts_) {
      if (NameOf(part).compare(column, Qt::CaseInsensitive) == 0) part = definition;
    }
  }

  /// Behind the last column, in front of the table's constraints.
  void AppendColumn(const QString& definition) {
    qsizetype at = parts_.size();
    while (at > 0 && IsConstraint(parts_[at - 1])) --at;
    parts_.insert(at, definition);
  }

  QString CreateTable(const QString& name) const {
    return QStringLiteral("CREATE TABLE %1 (%2)%3")
        .arg(QuotedName(name), parts_.join(QStringLiteral(", ")), behind_);
  }

 private:
  static QString NameOf(const QString& part) { return Tokenize(part).first().text; }
  static bool IsConstraint(const QString& part) {
    const Token first = Tokenize(part).first();
    for (const char* word : {"CONSTRAINT", "PRIMARY", "UNIQUE", "CHECK", "FOREIGN"}) {
      if (first.Is(QLatin1String(word))) return true;
    }
    return false;
  }

  QStringList parts_;
  QString behind_;
};

QStringList Ask(sqlite3* handle, const QString& sql, const QString& parameter) {
  QStringList answers;
  Statement statement(handle, sql);
  statement.Bind(1, Value(parameter));
  while (statement.Step()) answers.append(statement.Text(0));
  return answers;
}

/// While it lives, foreign keys and the checks of renaming are off: the table's absence between its
/// old and its new form must not be taken for a deletion.
class Unwatched {
 public:
  explicit Unwatched(sqlite3* handle) : handle_(handle) {
    RunSql(handle, QStringLiteral("PRAGMA foreign_keys=OFF; PRAGMA legacy_alter_table=ON"));
  }
  ~Unwatched() {
    sqlite3_exec(handle_, "PRAGMA legacy_alter_table=OFF; PRAGMA foreign_keys=ON", nullptr, nullptr,
                 nullptr);
  }
  Unwatched(const Unwatched&) = delete;
  Unwatched& operator=(const Unwatched&) = delete;

 private:
  sqlite3* handle_;
};

QString NewLayout(sqlite3* handle, const Translation::Rebuild& change) {
  const QStringList sql =
      Ask(handle,
          QStringLiteral("SELECT sql FROM sqlite_schema WHERE type = 'table' AND name = ? "
                         "COLLATE NOCASE"),
          change.table);
  Definitions definitions(sql.value(0));
  const QString definition = QuotedName(change.column) + u' ' + FileDeclaration(change.declared);
  if (change.step == Translation::Rebuild::Step::AddNumbering) {
    definitions.AppendColumn(definition);
  } else {
    definitions.Replace(change.column, definition);
  }
  return definitions.CreateTable(NewTable);
}

void CopyRows(sqlite3* handle, const Translation::Rebuild& change) {
  Catalogue catalogue(handle);
  QStringList names;
  QStringList values;
  bool numbered = change.step == Translation::Rebuild::Step::AddNumbering;
  for (const TableColumn& column : catalogue.Columns(change.table)) {
    numbered = numbered || column.type.type == FieldType::AutoNumber;
    QString value = QuotedName(column.name);
    names.append(value);
    if (column.name.compare(change.column, Qt::CaseInsensitive) == 0) {
      value = QStringLiteral("column_value(%1, %2, %3)")
                  .arg(value, QuotedText(change.declared), QuotedText(column.name));
    }
    values.append(value);
  }
  if (!numbered) {
    names.prepend(QStringLiteral("rowid"));
    values.prepend(QStringLiteral("rowid"));
  }
  RunSql(handle, QStringLiteral("INSERT INTO %1 (%2) SELECT %3 FROM %4 ORDER BY rowid")
                     .arg(NewTable, names.join(u','), values.join(u','), QuotedName(change.table)));
}

void Rebuild(sqlite3* handle, const Translation::Rebuild& change) {
  const QStringList companions =
      Ask(handle,
          QStringLiteral(
              "SELECT sql FROM sqlite_schema WHERE type IN ('index', 'trigger') AND tbl_name "
              "= ? COLLATE NOCASE AND sql IS NOT NULL"),
          change.table);
  RunSql(handle, NewLayout(handle, change));
  CopyRows(handle, change);
  RunSql(handle, QStringLiteral("DROP TABLE ") + QuotedName(change.table));
  RunSql(handle,
         QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(NewTable, QuotedName(change.table)));
  for (const QString& companion : companions) RunSql(handle, companion);
}

// Within a transaction the watch over foreign keys cannot be lifted, and dropping the old table
// would take along the rows that point to it.
void CheckPointers(sqlite3* handle, const QString& table) {
  if (sqlite3_get_autocommit(handle) != 0) return;
  const QStringList children = Ask(
      handle,
      QStringLiteral("SELECT s.name FROM sqlite_schema s, pragma_foreign_key_list(s.name) f WHERE "
                     "s.type = 'table' AND f.\"table\" = ? COLLATE NOCASE"),
      table);
  if (children.isEmpty()) return;
  throw Error(
      errors::Database,
      QStringLiteral("The table \"%1\" cannot be changed together with other changes, because "
                     "\"%2\" points to it.")
          .arg(table, children.first()));
}

}  // namespace

void RebuildTable(sqlite3* handle, const Translation::Rebuild& change) {
  CheckPointers(handle, change.table);
  const Unwatched unwatched(handle);
  RunSql(handle, QStringLiteral("SAVEPOINT rebuild"));
  try {
    Rebuild(handle, change);
    RunSql(handle, QStringLiteral("RELEASE rebuild"));
  } catch (const Error&) {
    sqlite3_exec(handle, "ROLLBACK TO rebuild; RELEASE rebuild", nullptr, nullptr, nullptr);
    throw;
  }
}

}  // namespace tavrelin
