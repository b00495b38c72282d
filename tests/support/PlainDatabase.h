#pragma once

#include <sqlite3.h>
#include <QList>
#include <QString>
#include <QStringList>
#include <stdexcept>

/// A file seen through SQLite alone, as any other program sees it: nothing of ours in between.
class PlainDatabase {
 public:
  explicit PlainDatabase(const QString& path) {
    if (sqlite3_open(path.toUtf8().constData(), &db_) != SQLITE_OK) Fail();
    Run("PRAGMA synchronous = OFF");  // a test's own files need not survive a loss of power
  }
  ~PlainDatabase() { sqlite3_close(db_); }
  PlainDatabase(const PlainDatabase&) = delete;
  PlainDatabase& operator=(const PlainDatabase&) = delete;

  void Run(const QString& statements) {
    if (sqlite3_exec(db_, statements.toUtf8().constData(), nullptr, nullptr, nullptr) !=
        SQLITE_OK) {
      Fail();
    }
  }

  /// Rows as texts; null is "(null)".
  QList<QStringList> Rows(const QString& query) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db_, query.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK) {
      Fail();
    }
    QList<QStringList> rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      QStringList row;
      for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
        row += text == nullptr ? QStringLiteral("(null)") : QString::fromUtf8(text);
      }
      rows += row;
    }
    sqlite3_finalize(statement);
    return rows;
  }

  /// The first cell; "(none)" without a row.
  QString Cell(const QString& query) {
    const QList<QStringList> rows = Rows(query);
    return rows.isEmpty() ? QStringLiteral("(none)") : rows[0][0];
  }
  int Count(const QString& tableAndCondition) {
    return Cell(QStringLiteral("SELECT count(*) FROM ") + tableAndCondition).toInt();
  }

  /// Every column of every table with its declaration, then indexes and triggers.
  QStringList Layout() {
    QStringList lines;
    for (const QStringList& table :
         Rows("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' "
              "ORDER BY name")) {
      for (const QStringList& column :
           Rows(QStringLiteral("SELECT cid, name, type, \"notnull\", dflt_value, pk FROM "
                               "pragma_table_info('%1')")
                    .arg(table[0]))) {
        lines += table[0] + u' ' + column.join(u' ') + u' ' + Collation(table[0], column[1]);
      }
    }
    for (const QStringList& other : Rows("SELECT type, name, tbl_name FROM sqlite_master WHERE "
                                         "type <> 'table' ORDER BY 1, 2")) {
      lines += other.join(u' ');
    }
    return lines;
  }

  /// All rows of all tables.
  QStringList Content() {
    QStringList lines;
    for (const QStringList& table :
         Rows("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")) {
      for (const QStringList& row : Rows(QStringLiteral("SELECT * FROM ") + table[0])) {
        lines += table[0] + u'|' + row.join(u'|');
      }
    }
    return lines;
  }

 private:
  QString Collation(const QString& table, const QString& column) {
    const char* collation = "";
    int automatic = 0;
    sqlite3_table_column_metadata(db_, "main", table.toUtf8().constData(),
                                  column.toUtf8().constData(), nullptr, &collation, nullptr,
                                  nullptr, &automatic);
    return QLatin1String(collation) + (automatic != 0 ? " AUTOINCREMENT" : "");
  }

  [[noreturn]] void Fail() { throw std::runtime_error(sqlite3_errmsg(db_)); }

  sqlite3* db_ = nullptr;
};
