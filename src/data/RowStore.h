#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <vector>

#include "basic/Value.h"
#include "data/Recordset.h"

namespace tavrelin {

/// The cells of a recordset, row after row, as the file gave them: a tag and eight bytes each,
/// texts in one UTF-8 arena. A cell becomes a Value only when it is asked for, so a large roster
/// costs no more to fetch than to step over. Rows are only ever appended; a row's number stays its
/// own.
class RowStore {
 public:
  enum class Tag : quint8 { Null, Whole, Floating, Text };

  explicit RowStore(int columns = 0) : columns_(static_cast<size_t>(columns)) {}

  int Columns() const { return static_cast<int>(columns_); }
  int Rows() const { return rows_; }

  /// Begins a row; its cells follow by the four below, one for each column.
  void BeginRow() { ++rows_; }
  void AppendNull() { Append(Tag::Null, 0); }
  void AppendWhole(qint64 number) { Append(Tag::Whole, static_cast<quint64>(number)); }
  void AppendFloating(double number);
  void AppendText(const char* utf8, qsizetype bytes) { Append(Tag::Text, Keep(utf8, bytes)); }

  /// A whole row of nulls.
  void AppendEmptyRow();
  void Set(int row, int column, const Value& value);

  Tag TagAt(int row, int column) const { return tags_[Index(row, column)]; }
  qint64 WholeAt(int row, int column) const;
  double NumberAt(int row, int column) const;
  /// The text's bytes, good until the next append or Set.
  QByteArrayView TextAt(int row, int column) const;
  /// The cell as a field of this type shows it. What the file holds against the type (a word in a
  /// date column) comes as it is.
  Value At(int row, int column, FieldType type) const;

 private:
  size_t Index(int row, int column) const {
    return static_cast<size_t>(row) * columns_ + static_cast<size_t>(column);
  }
  void Append(Tag tag, quint64 bits) {
    tags_.push_back(tag);
    bits_.push_back(bits);
  }
  quint64 Keep(const char* utf8, qsizetype bytes);

  size_t columns_;
  int rows_ = 0;
  std::vector<Tag> tags_;
  std::vector<quint64> bits_;
  std::vector<char> arena_;
};

}  // namespace tavrelin
