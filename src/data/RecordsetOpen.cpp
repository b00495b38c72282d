#include "basic/Error.h"
#include "data/Connection.h"
#include "data/QuerySource.h"
#include "data/Recordset.h"
#include "data/RecordsetParts.h"

namespace tavrelin {

void Recordset::Open(const QString& sql, Connection& connection, Lock lock,
                     const QList<Value>& parameters) {
  auto source =
      std::make_unique<QuerySource>(sql, connection, parameters, lock == Lock::Optimistic);
  RowSourceResult result = source->Fetch();
  Close();
  rows_->source = std::move(source);
  TakeResult(std::move(result));
  rows_->open = true;
  cursor_->Rebuild(*rows_);
}

void Recordset::TakeResult(RowSourceResult&& result) {
  rows_->fields = std::move(result.fields);
  rows_->types = std::move(result.types);
  rows_->store = std::move(result.rows);
  rows_->ids = std::move(result.ids);
  rows_->deleted.clear();
}

void Recordset::Requery() {
  if (cursor_->editing) Update();
  if (!rows_->source) {
    throw Error(errors::RecordState, QStringLiteral("There is no query behind these records."));
  }
  RowSourceResult result = rows_->source->Fetch();
  if (!result.ids.empty()) rows_->KeepBookmarks(result.ids);
  TakeResult(std::move(result));
  for (auto& [field, index] : rows_->indexes) index = ValueIndex(field);
  ++rows_->requeries;
  cursor_->Rebuild(*rows_);
}

void Recordset::Disconnect() {
  if (cursor_->editing) Update();
  rows_->source.reset();
  for (Field& field : rows_->fields) field.updatable = true;
}

QString Recordset::TableName() const {
  return rows_->source ? rows_->source->Table() : QString();
}

}  // namespace tavrelin
