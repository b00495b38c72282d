#include "data/Sql.h"

#include <sqlite3.h>

namespace tavrelin {

QList<QStringList> AskSql(sqlite3* db, const QString& query, const QStringList& parameters) {
  Statement statement(db, query);
  for (int i = 0; i < parameters.size(); ++i) statement.Bind(i + 1, parameters[i]);
  QList<QStringList> rows;
  while (statement.Step()) {
    QStringList row;
    for (int i = 0; i < sqlite3_column_count(statement.Handle()); ++i) row += statement.Text(i);
    rows += row;
  }
  return rows;
}

}  // namespace tavrelin
