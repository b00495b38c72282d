#include "data/RowStore.h"

#include <bit>

#include "basic/Conversions.h"

namespace tavrelin {
namespace {

// A text's place: 34 bits of offset, 30 bits of length, which is the longest text SQLite has.
constexpr int LengthBits = 30;
constexpr quint64 LengthMask = (quint64{1} << LengthBits) - 1;

Value NumberAs(FieldType type, bool whole, qint64 number, double floating) {
  switch (type) {
    case FieldType::YesNo:
      return whole ? number != 0 : floating != 0;
    case FieldType::Single:
    case FieldType::Double:
      return whole ? static_cast<double>(number) : floating;
    default:
      return whole ? Value(number) : Value(floating);
  }
}

Value TextAs(FieldType type, QByteArrayView utf8) {
  QString text = QString::fromUtf8(utf8);
  if (type == FieldType::Date) {
    if (const auto date = ReadDate(text)) return *date;
  }
  return text;
}

}  // namespace

quint64 RowStore::Keep(const char* utf8, qsizetype bytes) {
  const quint64 offset = arena_.size();
  arena_.insert(arena_.end(), utf8, utf8 + bytes);
  return (offset << LengthBits) | static_cast<quint64>(bytes);
}

void RowStore::AppendFloating(double number) {
  Append(Tag::Floating, std::bit_cast<quint64>(number));
}

void RowStore::AppendEmptyRow() {
  BeginRow();
  for (size_t column = 0; column < columns_; ++column) AppendNull();
}

void RowStore::Set(int row, int column, const Value& value) {
  const size_t index = Index(row, column);
  switch (value.kind()) {
    case Value::Kind::Null:
      tags_[index] = Tag::Null;
      break;
    case Value::Kind::YesNo:
    case Value::Kind::Whole:
      tags_[index] = Tag::Whole;
      bits_[index] = static_cast<quint64>(value.ToWhole());
      break;
    case Value::Kind::Floating:
      tags_[index] = Tag::Floating;
      bits_[index] = std::bit_cast<quint64>(value.ToNumber());
      break;
    case Value::Kind::Text:
    case Value::Kind::Date: {
      const bool date = value.kind() == Value::Kind::Date;
      const QByteArray utf8 = (date ? StoredDate(value.ToDate()) : value.ToText()).toUtf8();
      tags_[index] = Tag::Text;
      bits_[index] = Keep(utf8.constData(), utf8.size());
      break;
    }
  }
}

qint64 RowStore::WholeAt(int row, int column) const {
  return static_cast<qint64>(bits_[Index(row, column)]);
}

double RowStore::NumberAt(int row, int column) const {
  const size_t index = Index(row, column);
  if (tags_[index] == Tag::Floating) return std::bit_cast<double>(bits_[index]);
  return static_cast<double>(static_cast<qint64>(bits_[index]));
}

QByteArrayView RowStore::TextAt(int row, int column) const {
  const quint64 bits = bits_[Index(row, column)];
  return {arena_.data() + (bits >> LengthBits), static_cast<qsizetype>(bits & LengthMask)};
}

Value RowStore::At(int row, int column, FieldType type) const {
  switch (TagAt(row, column)) {
    case Tag::Null:
      return {};
    case Tag::Whole:
      return NumberAs(type, true, WholeAt(row, column), 0);
    case Tag::Floating:
      return NumberAs(type, false, 0, NumberAt(row, column));
    case Tag::Text:
      return TextAs(type, TextAt(row, column));
  }
  return {};
}

}  // namespace tavrelin
