#include "data/Recordset.h"

#include <algorithm>

#include "basic/Error.h"
#include "data/FieldNames.h"
#include "data/RecordsetParts.h"
#include "data/RowSource.h"

namespace tavrelin {

namespace {

/// The stored row at a position, counted from 1.
int RowIn(const std::vector<int>& order, int position) {
  if (position < 1 || static_cast<size_t>(position) > order.size()) {
    throw Error(errors::RecordState, QStringLiteral("There is no record %1.").arg(position));
  }
  return order[static_cast<size_t>(position) - 1];
}

}  // namespace

Recordset::Recordset() : rows_(std::make_shared<Rows>()), cursor_(std::make_unique<Cursor>()) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

// Opening

void Recordset::Append(const QString& name, FieldType type, int size) {
  if (rows_->open) {
    throw Error(errors::RecordState, QStringLiteral("The table is open; it takes no more fields."));
  }
  if (IndexOfField(rows_->fields, name) >= 0) {
    throw Error(errors::RecordState, QStringLiteral("There are two fields \"%1\".").arg(name));
  }
  rows_->fields.append(Field{name, type, type == FieldType::Text ? size : 0, true});
  ColumnType column;
  column.type = type;
  column.size = type == FieldType::Text ? size : 0;
  rows_->types.push_back(column);
}

void Recordset::OpenInMemory() {
  rows_->store = RowStore(static_cast<int>(rows_->fields.size()));
  rows_->open = true;
  cursor_->Rebuild(*rows_);
}

void Recordset::Close() {
  rows_ = std::make_shared<Rows>();
  cursor_ = std::make_unique<Cursor>();
}

bool Recordset::IsOpen() const {
  return rows_->open;
}

Recordset Recordset::Clone() const {
  Recordset clone;
  clone.rows_ = rows_;
  clone.cursor_->Rebuild(*rows_);
  return clone;
}

// Fields

const QList<Field>& Recordset::Fields() const {
  return rows_->fields;
}

int Recordset::FieldIndex(const QString& name) const {
  return IndexOfField(rows_->fields, name);
}

void Recordset::Optimize(const QString& field) {
  const int index = FieldIndex(field);
  if (index < 0) RefuseField(field);
  rows_->indexes.try_emplace(index, ValueIndex(index));
}

int Recordset::IndexOrThrow(const QString& field) const {
  const int index = FieldIndex(field);
  if (index < 0) RefuseField(field);
  return index;
}

// The cursor

Recordset::Cursor& Recordset::Here() const {
  cursor_->Follow(*rows_);
  return *cursor_;
}

bool Recordset::AtEnd() const {
  const Cursor& here = Here();
  return !here.adding && (here.position > here.Count() || here.order.empty());
}

bool Recordset::AtBeginning() const {
  const Cursor& here = Here();
  return !here.adding && (here.position < 1 || here.order.empty());
}

void Recordset::MoveTo(int position) {
  if (cursor_->editing) Update();
  Cursor& here = Here();
  here.position = std::clamp(position, 0, here.Count() + 1);
}

void Recordset::MoveFirst() {
  MoveTo(1);
}

void Recordset::MoveLast() {
  if (cursor_->editing) Update();
  MoveTo(std::max(1, Here().Count()));
}

void Recordset::MoveNext() {
  if (AtEnd())
    throw Error(errors::RecordState, QStringLiteral("There is no record after the last."));
  if (cursor_->editing) Update();
  MoveTo(Here().position + 1);
}

void Recordset::MovePrevious() {
  if (AtBeginning()) {
    throw Error(errors::RecordState, QStringLiteral("There is no record before the first."));
  }
  if (cursor_->editing) Update();
  MoveTo(Here().position - 1);
}

int Recordset::RecordCount() const {
  return Here().Count();
}

int Recordset::AbsolutePosition() const {
  const Cursor& here = Here();
  return here.HasRow() && !here.adding ? here.position : 0;
}

void Recordset::SetAbsolutePosition(int position) {
  if (cursor_->editing) Update();
  if (position < 1 || position > RecordCount()) {
    throw Error(errors::RecordState, QStringLiteral("There is no record %1.").arg(position));
  }
  MoveTo(position);
}

Recordset::Bookmark Recordset::CurrentBookmark() const {
  const Cursor& here = Here();
  return here.HasRow() && !here.adding ? rows_->BookmarkOf(here.Row()) : 0;
}

bool Recordset::GoTo(Bookmark bookmark) {
  if (cursor_->editing) Update();
  const int position = PositionOf(bookmark);
  if (position == 0) return false;
  MoveTo(position);
  return true;
}

// Reading

Value Recordset::operator[](const QString& field) const {
  return At(IndexOrThrow(field));
}

void Recordset::CheckField(int field) const {
  if (field < 0 || field >= rows_->fields.size()) RefuseField(QString::number(field));
}

Value Recordset::At(int field) const {
  CheckField(field);
  const Cursor& here = Here();
  if (here.editing) {
    const auto& pending = here.pending[static_cast<size_t>(field)];
    if (pending) return *pending;
    if (here.adding) return {};
  }
  if (!here.HasRow())
    throw Error(errors::RecordState, QStringLiteral("There is no current record."));
  return rows_->store.At(here.Row(), field, rows_->fields[field].type);
}

// The rules walk their rows by this: the cursor is brought up to date once a cell.
Value Recordset::CellAt(int position, int field) const {
  CheckField(field);
  const Cursor& here = Here();
  if (here.editing && !here.adding && position == here.position) return At(field);
  const int row = RowIn(here.order, position);
  return rows_->store.At(row, field, rows_->fields[field].type);
}

int Recordset::RowAt(int position) const {
  return RowIn(Here().order, position);
}

Recordset::Bookmark Recordset::BookmarkAt(int position) const {
  return rows_->BookmarkOf(RowAt(position));
}

int Recordset::PositionOf(Bookmark bookmark) const {
  return Here().PositionOfRow(rows_->RowOf(bookmark));
}

// Order and choice

void Recordset::Find(const QString& criterion, int skip) {
  const Criterion wanted(criterion, rows_->fields);
  if (wanted.IsEmpty())
    throw Error(errors::Syntax, QStringLiteral("There is nothing to look for."));
  if (cursor_->editing) Update();
  Cursor& here = Here();
  const int start = std::max(1, here.position) + skip;
  const auto index = rows_->indexes.find(wanted.EqualityField());
  if (index != rows_->indexes.end()) {
    here.position = FindByIndex(wanted, index->second, start);
    return;
  }
  here.position = std::clamp(start, 1, here.Count() + 1);
  while (here.HasRow() && !wanted.Meets(rows_->store, here.Row())) ++here.position;
}

int Recordset::FindByIndex(const Criterion& wanted, ValueIndex& index, int start) {
  index.CatchUp(rows_->store);
  const Cursor& here = *cursor_;
  int nearest = here.Count() + 1;
  for (const int row : index.Candidates(wanted.EqualityValue())) {
    const int position = here.PositionOfRow(row);
    if (position >= start && position < nearest && wanted.Meets(rows_->store, row)) {
      nearest = position;
    }
  }
  return nearest;
}

void Recordset::SetFilter(const QString& criteria) {
  Criterion filter(criteria, rows_->fields);
  if (cursor_->editing) Update();
  cursor_->filter = std::move(filter);
  cursor_->filterText = criteria;
  cursor_->Rebuild(*rows_);
}

QString Recordset::Filter() const {
  return cursor_->filterText;
}

void Recordset::SetSort(const QString& keys) {
  std::vector<SortTerm> sort = ParseSortKeys(keys, rows_->fields);
  if (cursor_->editing) Update();
  cursor_->sort = std::move(sort);
  cursor_->sortText = keys;
  cursor_->Rebuild(*rows_);
}

QString Recordset::Sort() const {
  return cursor_->sortText;
}

}  // namespace tavrelin
