#include "data/ValueIndex.h"

namespace tavrelin {
namespace {

QByteArray KeyOf(const Value& value) {
  if (value.IsNumber()) return QByteArray::number(value.ToNumber(), 'g', 17);
  return '\'' + SortKey(value.ToText());
}

}  // namespace

void ValueIndex::CatchUp(const RowStore& rows) {
  while (known_ < rows.Rows()) Add(rows, known_++);
}

void ValueIndex::Add(const RowStore& rows, int row) {
  if (rows.TagAt(row, field_) == RowStore::Tag::Null) return;
  const bool text = rows.TagAt(row, field_) == RowStore::Tag::Text;
  rows_[KeyOf(rows.At(row, field_, text ? FieldType::Text : FieldType::Double))].push_back(row);
}

std::vector<int> ValueIndex::Candidates(const Value& wanted) const {
  return rows_.value(KeyOf(wanted));
}

}  // namespace tavrelin
