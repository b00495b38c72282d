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

Value ShownText(const ValueList& values, const Value& code) {
  const int item = values.IndexOf(code);
  return item >= 0 ? Value(values.Items()[item].text) : code;
}

struct SortedField {
  std::vector<Value> values;  // by position, the first unused
  int sign = 1;
};

SortedField Fetch(const Recordset& recordset, const ColumnOrder& key) {
  SortedField sorted{{}, key.order == SortOrder::Ascending ? 1 : -1};
  const int field = recordset.FieldIndex(key.column.field);
  const bool text = IsText(recordset.Fields()[field].type);
  const bool shown = key.column.sort == SortKind::Shown;
  const SortKind kind = text && !shown ? key.column.sort : SortKind::Text;
  sorted.values.resize(static_cast<size_t>(recordset.RecordCount()) + 1);
  for (size_t i = 1; i < sorted.values.size(); ++i) {
    const Value cell = recordset.CellAt(static_cast<int>(i), field);
    sorted.values[i] = shown ? ShownText(key.column.values, cell) : SortValue(cell, kind);
  }
  return sorted;
}

QList<ColumnOrder> Present(const Recordset& recordset, QList<ColumnOrder> keys) {
  keys.removeIf([&](const ColumnOrder& key) { return recordset.FieldIndex(key.column.field) < 0; });
  return keys;
}

}  // namespace

QString SortText(const Recordset& recordset, const QList<ColumnOrder>& keys) {
  QStringList sort;
  for (const ColumnOrder& key : Present(recordset, keys)) {
    const bool up = key.order == SortOrder::Ascending;
    sort.append(key.column.field + (up ? QStringLiteral(" ASC") : QStringLiteral(" DESC")));
  }
  return sort.join(QStringLiteral(", "));
}

std::vector<int> OrderBeyondFields(const Recordset& recordset, const QList<ColumnOrder>& keys) {
  const QList<ColumnOrder> present = Present(recordset, keys);
  const bool needed = std::any_of(present.begin(), present.end(), [&](const ColumnOrder& key) {
    const Field& field = recordset.Fields()[recordset.FieldIndex(key.column.field)];
    const bool shown = key.column.sort == SortKind::Shown;
    return shown || (key.column.sort != SortKind::Text && IsText(field.type));
  });
  if (!needed) return {};
  std::vector<SortedField> fields;
  for (const ColumnOrder& key : present) fields.push_back(Fetch(recordset, key));
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

}  // namespace tavrelin
