#include "data/QuerySource.h"

#include <sqlite3.h>

#include <algorithm>

#include "basic/Error.h"
#include "data/ConnectionParts.h"
#include "data/DialectWriter.h"

namespace tavrelin {
namespace {

// A CHAR that another program padded reads as it would have been written here: without the blanks.
void AppendCell(RowStore& rows, sqlite3_stmt* statement, int column, bool padded) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
      return rows.AppendWhole(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
      return rows.AppendFloating(sqlite3_column_double(statement, column));
    case SQLITE_NULL:
      return rows.AppendNull();
    default: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
      int bytes = sqlite3_column_bytes(statement, column);
      while (padded && bytes > 0 && text[bytes - 1] == ' ') --bytes;
      return rows.AppendText(text, bytes);
    }
  }
}

// An expression whose words do not tell its type is what its cells are.
FieldType TypeByCells(const RowStore& rows, int column) {
  bool whole = false;
  for (int row = 0; row < rows.Rows(); ++row) {
    const RowStore::Tag tag = rows.TagAt(row, column);
    if (tag == RowStore::Tag::Text) return FieldType::Text;
    if (tag == RowStore::Tag::Floating) return FieldType::Double;
    whole = whole || tag == RowStore::Tag::Whole;
  }
  return whole ? FieldType::Long : FieldType::Text;
}

const TableColumn* Origin(Catalogue& catalogue, sqlite3_stmt* statement, int column) {
  const char* table = sqlite3_column_table_name(statement, column);
  const char* name = sqlite3_column_origin_name(statement, column);
  if (!table || !name) return nullptr;
  const QList<TableColumn>& columns = catalogue.Columns(QString::fromUtf8(table));
  const QString wanted = QString::fromUtf8(name);
  const auto found = std::find_if(columns.begin(), columns.end(), [&wanted](const TableColumn& c) {
    return c.name.size() == wanted.size() && c.name.compare(wanted, Qt::CaseInsensitive) == 0;
  });
  return found == columns.end() ? nullptr : &*found;
}

std::vector<bool> PaddedColumns(Catalogue& catalogue, sqlite3_stmt* statement, int columns) {
  std::vector<bool> padded;
  for (int column = 0; column < columns; ++column) {
    const TableColumn* origin = Origin(catalogue, statement, column);
    padded.push_back(origin && origin->type.fixed);
  }
  return padded;
}

[[noreturn]] void RefuseGone() {
  throw Error(errors::RecordState,
              QStringLiteral("The record was deleted in the meantime. Show the list again."));
}

}  // namespace

QuerySource::QuerySource(const QString& sql, Connection& connection, const QList<Value>& parameters,
                         bool editable)
    : sql_(sql), connection_(connection), parameters_(parameters), editable_(editable) {}

Connection::Private& QuerySource::Link() const {
  if (!connection_.IsOpen()) throw Error(errors::RecordState, QStringLiteral("No file is open."));
  return *connection_.d();
}

RowSourceResult QuerySource::Fetch() {
  RowSourceResult result;
  Link().Run(sql_, editable_, parameters_,
             [&](const Translation& translation, Statement* statement) {
               if (translation.kind != Translation::Kind::Query) {
                 throw Error(errors::Syntax, QStringLiteral("The statement returns no records."));
               }
               table_ = editable_ ? translation.table : QString();
               rowSql_ = translation.rowSql;
               sqlite3_stmt* handle = statement->Handle();
               const int columns = sqlite3_column_count(handle) - (table_.isEmpty() ? 0 : 1);
               result.rows = RowStore(columns);
               const std::vector<bool> padded = PaddedColumns(*Link().catalogue, handle, columns);
               while (statement->Step()) {
                 result.rows.BeginRow();
                 for (int column = 0; column < columns; ++column) {
                   AppendCell(result.rows, handle, column, padded[static_cast<size_t>(column)]);
                 }
                 if (!table_.isEmpty()) result.ids.push_back(sqlite3_column_int64(handle, columns));
               }
               Describe(translation, handle, columns, result);
             });
  return result;
}

void QuerySource::Describe(const Translation& translation, sqlite3_stmt* statement, int columns,
                           RowSourceResult& result) {
  columns_.clear();
  for (int column = 0; column < columns; ++column) {
    Field field;
    ColumnType type;
    field.name = QString::fromUtf8(sqlite3_column_name(statement, column));
    const TableColumn* origin = Origin(*Link().catalogue, statement, column);
    if (origin) {
      type = origin->type;
    } else {
      const QueryColumn told = translation.columns.value(column);
      type.type = told.known ? told.type : TypeByCells(result.rows, column);
      type.size = told.known ? told.size : 0;
    }
    const bool numbered = type.type == FieldType::AutoNumber;
    field.type = type.type;
    field.size = type.size;
    field.updatable = origin && !table_.isEmpty() && !numbered;
    columns_.append(origin ? origin->name : QString());
    result.fields.append(field);
    result.types.push_back(type);
  }
  fields_ = result.fields;
  types_ = result.types;
}

bool QuerySource::IsWritten(size_t field, const PendingRow& values) const {
  return values[field] && fields_[static_cast<qsizetype>(field)].updatable;
}

std::vector<Value> QuerySource::ReadBack(qint64 id) const {
  Statement statement(connection_.Handle(), rowSql_);
  statement.Bind(1, Value(id));
  if (!statement.Step()) RefuseGone();
  RowStore cells(static_cast<int>(fields_.size()));
  cells.BeginRow();
  for (int column = 0; column < fields_.size(); ++column) {
    AppendCell(cells, statement.Handle(), column, types_[static_cast<size_t>(column)].fixed);
  }
  std::vector<Value> values;
  for (int column = 0; column < fields_.size(); ++column) {
    values.push_back(cells.At(0, column, fields_[column].type));
  }
  return values;
}

qint64 QuerySource::Insert(const PendingRow& values, std::vector<Value>& stored) {
  Link().CheckBatch();
  QStringList names;
  QStringList marks;
  QList<Value> given;
  for (size_t field = 0; field < values.size(); ++field) {
    if (!IsWritten(field, values)) continue;
    names.append(QuotedName(columns_[static_cast<qsizetype>(field)]));
    marks.append(QStringLiteral("?"));
    given.append(*values[field]);
  }
  const QString sql = names.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES")
                                      : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)");
  Statement insert(connection_.Handle(),
                   names.isEmpty()
                       ? sql.arg(QuotedName(table_))
                       : sql.arg(QuotedName(table_), names.join(u','), marks.join(u',')));
  insert.BindAll(given);
  insert.Step();
  const qint64 id = sqlite3_last_insert_rowid(connection_.Handle());
  stored = ReadBack(id);
  return id;
}

void QuerySource::Update(qint64 id, PendingRow& values) {
  Link().CheckBatch();
  QStringList settings;
  QList<Value> given;
  for (size_t field = 0; field < values.size(); ++field) {
    if (!IsWritten(field, values)) continue;
    settings.append(QuotedName(columns_[static_cast<qsizetype>(field)]) + QStringLiteral(" = ?"));
    given.append(*values[field]);
  }
  if (!settings.isEmpty()) {
    const Value row(id);
    given.append(row);
    Statement update(connection_.Handle(), QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?")
                                               .arg(QuotedName(table_), settings.join(u',')));
    update.BindAll(given);
    update.Step();
    if (sqlite3_changes64(connection_.Handle()) == 0) RefuseGone();
  }
  if (!columns_.contains(QString())) return;
  const std::vector<Value> present = ReadBack(id);
  for (size_t field = 0; field < values.size(); ++field) {
    if (columns_[static_cast<qsizetype>(field)].isEmpty() && !values[field]) {
      values[field] = present[field];
    }
  }
}

void QuerySource::Delete(qint64 id) {
  Link().CheckBatch();
  Statement remove(connection_.Handle(),
                   QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(QuotedName(table_)));
  remove.Bind(1, Value(id));
  remove.Step();
  if (sqlite3_changes64(connection_.Handle()) == 0) RefuseGone();
}

}  // namespace tavrelin
