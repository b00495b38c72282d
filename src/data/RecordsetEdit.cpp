#include <algorithm>

#include "basic/Error.h"
#include "data/Recordset.h"
#include "data/RecordsetParts.h"
#include "data/RowSource.h"

namespace tavrelin {

bool Recordset::IsAdding() const {
  return cursor_->adding;
}

bool Recordset::IsEditing() const {
  return cursor_->editing;
}

void Recordset::CheckWritable() const {
  if (!rows_->open) throw Error(errors::RecordState, QStringLiteral("The recordset is closed."));
  if (rows_->source && rows_->source->Table().isEmpty()) {
    throw Error(errors::RecordState, QStringLiteral("These records can only be read."));
  }
}

void Recordset::AddNew() {
  CheckWritable();
  if (cursor_->editing) Update();
  Cursor& here = Here();
  here.pending.assign(rows_->types.size(), std::nullopt);
  here.editing = here.adding = true;
  for (size_t field = 0; field < rows_->types.size(); ++field) {
    if (rows_->types[field].type == FieldType::YesNo) here.pending[field].emplace(false);
  }
}

void Recordset::Set(const QString& field, const Value& value) {
  Set(IndexOrThrow(field), value);
}

void Recordset::Set(int field, const Value& value) {
  CheckField(field);
  CheckWritable();
  const Field& target = rows_->fields[field];
  if (!target.updatable && target.type == FieldType::AutoNumber) {
    throw Error(errors::RecordState, QStringLiteral("%1 cannot be changed.").arg(target.name));
  }
  const Value converted =
      ConvertToColumn(rows_->types[static_cast<size_t>(field)], target.name, value);
  Cursor& here = Here();
  if (!here.adding && !here.HasRow()) {
    throw Error(errors::RecordState, QStringLiteral("There is no current record."));
  }
  if (!here.editing) {
    here.pending.assign(rows_->types.size(), std::nullopt);
    here.editing = true;
    here.edited = rows_->BookmarkOf(here.Row());
  }
  here.pending[static_cast<size_t>(field)] = converted;
}

void Recordset::Update() {
  if (!cursor_->editing) return;
  if (cursor_->adding) {
    WriteNewRow();
  } else {
    WriteChanges();
  }
  cursor_->DropPending();
}

void Recordset::WriteNewRow() {
  Cursor& here = Here();
  if (rows_->source) {
    std::vector<Value> stored;
    const qint64 id = rows_->source->Insert(here.pending, stored);
    std::copy(stored.begin(), stored.end(), here.pending.begin());
    rows_->ids.push_back(id);
  }
  const int row = rows_->AppendRow(here.pending);
  here.order.push_back(row);
  here.position = here.Count();
  here.seenChanges = rows_->changes;
  here.seenRows = rows_->store.Rows();
  here.Forget();
}

void Recordset::WriteChanges() {
  Cursor& here = Here();
  const int row = rows_->RowOf(here.edited);
  if (row < 0 || rows_->IsDeleted(row)) {
    throw Error(errors::RecordState, QStringLiteral("The record was deleted in the meantime."));
  }
  if (rows_->source) rows_->source->Update(rows_->ids[static_cast<size_t>(row)], here.pending);
  for (size_t field = 0; field < here.pending.size(); ++field) {
    if (here.pending[field]) {
      rows_->WriteCell(row, static_cast<int>(field), *here.pending[field]);
    }
  }
}

void Recordset::CancelUpdate() {
  cursor_->DropPending();
}

void Recordset::Delete() {
  CheckWritable();
  Cursor& here = Here();
  if (here.adding || !here.HasRow()) {
    throw Error(errors::RecordState, QStringLiteral("There is no current record."));
  }
  if (rows_->source) rows_->source->Delete(rows_->ids[static_cast<size_t>(here.Row())]);
  here.DropPending();
  rows_->MarkDeleted(here.Row());
  here.order.erase(here.order.begin() + here.position - 1);
  here.seenChanges = rows_->changes;
  here.Forget();
}

}  // namespace tavrelin
