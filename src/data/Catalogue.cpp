#include "data/Catalogue.h"

#include <sqlite3.h>

#include "data/Statement.h"

namespace tavrelin {

Catalogue::Catalogue(sqlite3* handle) : handle_(handle) {}

Catalogue::~Catalogue() {
  sqlite3_finalize(version_);
}

int Catalogue::Version() {
  if (!version_ && sqlite3_prepare_v3(handle_, "PRAGMA schema_version", -1,
                                      SQLITE_PREPARE_PERSISTENT, &version_, nullptr) != SQLITE_OK) {
    ThrowDatabaseError(handle_);
  }
  const int rc = sqlite3_step(version_);
  const int version = rc == SQLITE_ROW ? sqlite3_column_int(version_, 0) : -1;
  sqlite3_reset(version_);
  if (rc != SQLITE_ROW) ThrowDatabaseError(handle_);
  return version;
}

const QList<TableColumn>& Catalogue::Columns(const QString& table) {
  const int version = Version();
  if (version != known_) {
    tables_.clear();
    known_ = version;
  }
  const QString key = table.toLower();
  auto found = tables_.find(key);
  if (found == tables_.end()) found = tables_.insert(key, Read(table));
  return *found;
}

QList<TableColumn> Catalogue::Read(const QString& table) const {
  QList<TableColumn> columns;
  Statement rows(handle_, QStringLiteral("SELECT name, type, pk FROM pragma_table_info(?)"));
  rows.Bind(1, Value(table));
  while (rows.Step()) {
    TableColumn column{rows.Text(0), rows.Text(1), {}};
    column.type = ParseColumnType(column.declared);
    int autoIncrement = 0;
    sqlite3_table_column_metadata(handle_, nullptr, table.toUtf8().constData(),
                                  column.name.toUtf8().constData(), nullptr, nullptr, nullptr,
                                  nullptr, &autoIncrement);
    if (autoIncrement) column.type.type = FieldType::AutoNumber;
    columns.append(column);
  }
  return columns;
}

}  // namespace tavrelin
