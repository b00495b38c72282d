#include <algorithm>

#include "basic/Error.h"
#include "data/DialectWriter.h"

namespace tavrelin {
namespace {

QString NamesOf(const QList<TableColumn>& columns) {
  QStringList names;
  for (const TableColumn& column : columns) names.append(QuotedName(column.name));
  return names.join(QStringLiteral(", "));
}

void CheckCount(qsizetype given, qsizetype wanted) {
  if (given == wanted) return;
  throw Error(
      errors::Syntax,
      QStringLiteral("The statement gives %1 values for %2 fields.").arg(given).arg(wanted));
}

}  // namespace

const QList<TableColumn>& DialectWriter::ColumnsOf(const QString& table) {
  const QList<TableColumn>& columns = catalogue_.Columns(table);
  if (columns.isEmpty()) {
    throw Error(errors::Database + 1, QStringLiteral("The file has no table \"%1\".").arg(table));
  }
  return columns;
}

TableColumn DialectWriter::ColumnOf(const QString& table, const QString& name) {
  const QList<TableColumn>& columns = ColumnsOf(table);
  const auto found = std::find_if(columns.begin(), columns.end(), [&name](const TableColumn& c) {
    return c.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  if (found == columns.end()) {
    throw Error(errors::NoSuchField,
                QStringLiteral("The table \"%1\" has no field \"%2\".").arg(table, name));
  }
  return *found;
}

// The value, held to what the column can keep.
QString DialectWriter::Held(const QString& sql, const TableColumn& column) {
  if (!column.type.known) return sql;
  return QStringLiteral("column_value(%1, %2, %3)")
      .arg(sql, QuotedText(column.declared), QuotedText(column.name));
}

QList<TableColumn> DialectWriter::InsertTargets(const QString& table) {
  if (!TakeIf("(")) return ColumnsOf(table);
  QList<TableColumn> targets;
  do {
    targets.append(ColumnOf(table, TakeName("a column")));
  } while (TakeIf(","));
  Expect(")");
  return targets;
}

Translation DialectWriter::Insert() {
  Expect("INTO");
  const QString table = TakeName("a table");
  const QList<TableColumn> targets = InsertTargets(table);
  Translation translation;
  translation.kind = Translation::Kind::Change;
  if (PeekIs("SELECT")) {
    translation.sql = InsertQuery(table, targets);
  } else {
    translation.sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                          .arg(QuotedName(table), NamesOf(targets), InsertValues(targets));
  }
  return translation;
}

QString DialectWriter::InsertValues(const QList<TableColumn>& targets) {
  Expect("VALUES");
  Expect("(");
  QStringList values;
  do {
    values.append(Expression().sql);
  } while (TakeIf(","));
  Expect(")");
  CheckCount(values.size(), targets.size());
  for (qsizetype i = 0; i < values.size(); ++i) values[i] = Held(values[i], targets[i]);
  return values.join(QStringLiteral(", "));
}

QString DialectWriter::InsertQuery(const QString& table, const QList<TableColumn>& targets) {
  Query query;
  const QString select = SelectText(query);
  if (!query.star) CheckCount(query.columns.size(), targets.size());
  QStringList names;
  QStringList values;
  for (qsizetype i = 0; i < targets.size(); ++i) {
    names.append(QStringLiteral("c%1").arg(i + 1));
    values.append(Held(names.last(), targets[i]));
  }
  return QStringLiteral("WITH given (%1) AS (%2) INSERT INTO %3 (%4) SELECT %5 FROM given")
      .arg(names.join(u','), select, QuotedName(table), NamesOf(targets),
           values.join(QStringLiteral(", ")));
}

Translation DialectWriter::Update() {
  const QString table = TakeName("a table");
  sources_ = {Source{table, table}};
  Expect("SET");
  QStringList settings;
  do {
    QString name = TakeName("a column");
    if (TakeIf(".")) name = TakeName("a column");
    const TableColumn column = ColumnOf(table, name);
    Expect("=");
    settings.append(QuotedName(column.name) + QStringLiteral(" = ") +
                    Held(Concatenation().sql, column));
  } while (TakeIf(","));
  Translation translation;
  translation.kind = Translation::Kind::Change;
  translation.sql = QStringLiteral("UPDATE %1 SET %2")
                        .arg(QuotedName(table), settings.join(QStringLiteral(", ")));
  if (TakeIf("WHERE")) translation.sql += QStringLiteral(" WHERE ") + Expression().sql;
  return translation;
}

Translation DialectWriter::Delete() {
  TakeIf("*");
  Expect("FROM");
  const QString table = TakeName("a table");
  sources_ = {Source{table, table}};
  ColumnsOf(table);
  Translation translation;
  translation.kind = Translation::Kind::Change;
  translation.sql = QStringLiteral("DELETE FROM ") + QuotedName(table);
  if (TakeIf("WHERE")) translation.sql += QStringLiteral(" WHERE ") + Expression().sql;
  return translation;
}

}  // namespace tavrelin
