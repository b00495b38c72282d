#include "data/SortOrder.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "basic/Error.h"
#include "data/FieldNames.h"

namespace tavrelin {
namespace {

/// One key's values, taken out of the rows once, in the shape that compares fastest.
class KeyColumn {
 public:
  KeyColumn(const std::vector<int>& order, const RowStore& rows, const Field& field, SortTerm key)
      : descending_(key.descending) {
    switch (Shape(order, rows, key.field)) {
      case RowStore::Tag::Floating:
        TakeNumbers(order, rows, key.field);
        break;
      case RowStore::Tag::Text:
        TakeTexts(order, rows, key.field);
        break;
      default:
        TakeValues(order, rows, field, key.field);
    }
  }

  int Compare(size_t a, size_t b) const {
    const int ascending = CompareAscending(a, b);
    return descending_ ? -ascending : ascending;
  }

 private:
  // Floating when all cells are numbers, Text when all are texts, Null when they are mixed.
  static RowStore::Tag Shape(const std::vector<int>& order, const RowStore& rows, int field) {
    bool numbers = false;
    bool texts = false;
    for (const int row : order) {
      const RowStore::Tag tag = rows.TagAt(row, field);
      if (tag == RowStore::Tag::Text) texts = true;
      if (tag == RowStore::Tag::Whole || tag == RowStore::Tag::Floating) numbers = true;
    }
    if (numbers && texts) return RowStore::Tag::Null;
    return texts ? RowStore::Tag::Text : RowStore::Tag::Floating;
  }

  void TakeNumbers(const std::vector<int>& order, const RowStore& rows, int field) {
    numbers_.reserve(order.size());
    for (const int row : order) {
      numbers_.push_back(rows.TagAt(row, field) == RowStore::Tag::Null
                             ? -std::numeric_limits<double>::infinity()
                             : rows.NumberAt(row, field));
    }
  }

  // Dates go here too: in the form in which the file keeps them, the order of texts is that of
  // time.
  void TakeTexts(const std::vector<int>& order, const RowStore& rows, int field) {
    texts_.reserve(order.size());
    for (const int row : order) {
      if (rows.TagAt(row, field) == RowStore::Tag::Null) {
        texts_.emplace_back();
        continue;
      }
      const QByteArray key = SortKey(QString::fromUtf8(rows.TextAt(row, field)));
      texts_.push_back(key.isEmpty() ? QByteArrayLiteral("") : key);
    }
  }

  void TakeValues(const std::vector<int>& order, const RowStore& rows, const Field& field,
                  int column) {
    values_.reserve(order.size());
    for (const int row : order) values_.push_back(rows.At(row, column, field.type));
  }

  int CompareAscending(size_t a, size_t b) const {
    if (!numbers_.empty()) {
      return numbers_[a] < numbers_[b] ? -1 : (numbers_[a] > numbers_[b] ? 1 : 0);
    }
    if (!texts_.empty()) {
      if (texts_[a].isNull() || texts_[b].isNull()) {
        return static_cast<int>(texts_[b].isNull()) - static_cast<int>(texts_[a].isNull());
      }
      return texts_[a].compare(texts_[b]);
    }
    return Value::Compare(values_[a], values_[b]);
  }

  bool descending_;
  std::vector<double> numbers_;
  std::vector<QByteArray> texts_;  ///< sort keys; a null one for null
  std::vector<Value> values_;
};

SortTerm ParseSortKey(const QString& text, const QList<Field>& fields) {
  QString name = text.trimmed();
  SortTerm key;
  if (name.endsWith(u" DESC", Qt::CaseInsensitive)) {
    key.descending = true;
    name.chop(5);
  } else if (name.endsWith(u" ASC", Qt::CaseInsensitive)) {
    name.chop(4);
  }
  name = name.trimmed();
  if (name.startsWith(u'[') && name.endsWith(u']')) name = name.mid(1, name.size() - 2);
  if (name.isEmpty()) {
    throw Error(errors::Syntax, QStringLiteral("The sort cannot be read: %1").arg(text));
  }
  key.field = IndexOfField(fields, name);
  if (key.field < 0) RefuseField(name);
  return key;
}

}  // namespace

std::vector<SortTerm> ParseSortKeys(const QString& text, const QList<Field>& fields) {
  std::vector<SortTerm> keys;
  if (text.trimmed().isEmpty()) return keys;
  for (const QString& part : text.split(u',')) keys.push_back(ParseSortKey(part, fields));
  return keys;
}

void SortRows(std::vector<int>& order, const RowStore& rows, const QList<Field>& fields,
              const std::vector<SortTerm>& keys) {
  if (keys.empty() || order.size() < 2) return;
  std::vector<KeyColumn> columns;
  columns.reserve(keys.size());
  for (const SortTerm& key : keys) columns.emplace_back(order, rows, fields[key.field], key);
  const auto before = [&columns](size_t a, size_t b) {
    for (const KeyColumn& column : columns) {
      if (const int comparison = column.Compare(a, b)) return comparison < 0;
    }
    return false;
  };
  std::vector<size_t> places(order.size());
  std::iota(places.begin(), places.end(), size_t{0});
  if (std::is_sorted(places.begin(), places.end(), before)) return;
  std::stable_sort(places.begin(), places.end(), before);
  std::vector<int> sorted(order.size());
  std::transform(places.begin(), places.end(), sorted.begin(),
                 [&order](size_t place) { return order[place]; });
  order = std::move(sorted);
}

}  // namespace tavrelin
