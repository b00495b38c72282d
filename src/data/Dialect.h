#pragma once

#include <QList>
#include <QString>

#include "data/ColumnType.h"

namespace tavrelin {

class Catalogue;

/// What the dialect alone can tell of one column of a query: the type of an expression, and the
/// width that a literal reserves.
struct QueryColumn {
  bool known = false;  ///< false: a plain column, or an expression that shows its type by its rows
  FieldType type = FieldType::Text;
  int size = 0;
};

/// A statement of the Access dialect in SQLite's words.
struct Translation {
  enum class Kind {
    Query,    ///< returns rows
    Change,   ///< INSERT, UPDATE, DELETE
    Layout,   ///< CREATE, ALTER, DROP that SQLite can do by itself
    Rebuild,  ///< ALTER TABLE that SQLite cannot: see `rebuild`
  };
  struct Rebuild {
    enum class Step { AddNumbering, ChangeType };
    Step step = Step::ChangeType;
    QString table;
    QString column;
    QString declared;  ///< the new declaration of the column
  };

  Kind kind = Kind::Query;
  QString sql;
  /// Of a query over one table, without grouping: that table. Its rows can be edited; the row's
  /// number in the file stands as a last column behind the query's own.
  QString table;
  /// The same columns of one row of that table, by its number, which is the only parameter.
  QString rowSql;
  QList<QueryColumn> columns;  ///< of a query, when no `*` is among them; else empty
  Rebuild rebuild;
};

/// Translates one statement, word by word; never by replacing text. `withRowNumber` asks for the
/// row's number behind the columns of an editable query. Throws Error: Syntax, NoSuchField.
Translation Translate(const QString& sql, Catalogue& catalogue, bool withRowNumber = false);

}  // namespace tavrelin
