#include "controls/GridSort.h"

#include <algorithm>
#include <numeric>
#include <QStringList>

#include "basic/Conversions.h"
#include "data/Recordset.h"

namespace tavrelin {

namespace {

bool IsText(FieldType type) {
  return type == FieldType::Text || type == FieldType::Memo;
}

// A text that is no number or date sorts before all that are, as null does.
Value SortValue(const Value& value, SortKind kind) {
  if (kind == SortKind::Numeric && !value.Trimmed().isEmpty()) return Val(value.ToText());
  if (kind == SortKind::Date) {
    const auto date = ReadDate(value.ToText());
    return date ? Value(*date) : Value();
  }
  return kind == SortKind::Text ? value : Value();
}

struct SortedField {
  std::vector<Value> values;  // by position, the first unused
  int sign = 1;
};

SortedField Fetch(const Recordset& recordset, const ColumnOrder& key) {
  SortedField sorted{{}, key.order == SortOrder::Ascending ? 1 : -1};
  const int field = recordset.FieldIndex(key.column.field);
  const bool text = IsText(recordset.Fields()[field].type);
  const SortKind kind = text ? key.column.sort : SortKind::Text;
  sorted.values.resize(static_cast<size_t>(recordset.RecordCount()) + 1);
  for (size_t i = 1; i < sorted.values.size(); ++i) {
    sorted.values[i] = SortValue(recordset.CellAt(static_cast<int>(i), field), kind);
  }
  return sorted;
}

std::vector<int> OrderOf(const Recordset& recordset, const QList<ColumnOrder>& keys) {
  std::vector<SortedField> fields;
  for (const ColumnOrder& key : keys) fields.push_back(Fetch(recordset, key));
  std::vector<int> order(static_cast<size_t>(recordset.RecordCount()));
  std::iota(order.begin(), order.end(), 1);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    for (const SortedField& field : fields) {
      const int result = Value::Compare(field.values[static_cast<size_t>(a)],
                                        field.values[static_cast<size_t>(b)]);
      if (result != 0) return result * field.sign < 0;
    }
    return false;
  });
  return order;
}

}  // namespace

std::vector<int> SortRecordset(Recordset& recordset, const QList<ColumnOrder>& keys) {
  QList<ColumnOrder> present;
  QStringList sort;
  bool asRecordset = true;
  for (const ColumnOrder& key : keys) {
    const int field = recordset.FieldIndex(key.column.field);
    if (field < 0) continue;
    present.append(key);
    const bool text = IsText(recordset.Fields()[field].type);
    if (text && key.column.sort != SortKind::Text) asRecordset = false;
    sort.append(key.column.field + (key.order == SortOrder::Ascending ? QStringLiteral(" ASC")
                                                                      : QStringLiteral(" DESC")));
  }
  if (present.isEmpty()) return {};
  const QString text = sort.join(QStringLiteral(", "));
  if (recordset.Sort() != text) recordset.SetSort(text);
  return asRecordset ? std::vector<int>() : OrderOf(recordset, present);
}

}  // namespace tavrelin
