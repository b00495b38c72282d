#pragma once

#include <QString>
#include <vector>

namespace tavrelin {

/// The lines of a grid: the new-record row on top, then the rows of the recordset in the order
/// shown, with group headings between them. Lines count from 0, rows and positions from 1.
///
/// Plain rows in the recordset's own order take no memory, however many there are.
class RowMap {
 public:
  /// `order` lists recordset positions; empty for the recordset's own order.
  void Reset(bool newRow, int records, std::vector<int> order = {});
  /// Puts a heading before a row; rows in ascending order, at most one after the other.
  void AddHeading(int beforeRow, const QString& text);

  int Lines() const;
  int Records() const { return records_; }
  bool HasNewRow() const { return newRow_; }

  bool IsNewRow(int line) const { return newRow_ && line == 0; }
  /// -1 the new-record row, 0 a heading or no line, else the row.
  int RowAt(int line) const;
  int LineOfRow(int row) const;           ///< -1 when there is none
  int PositionOfRow(int row) const;       ///< position in the recordset
  int RowOfPosition(int position) const;  ///< 0 when there is none
  /// The text of a heading; empty for other lines.
  QString HeadingAt(int line) const;

 private:
  int First() const { return newRow_ ? 1 : 0; }
  bool HasHeadings() const { return !headings_.empty(); }
  size_t HeadingsUpTo(int line) const;

  struct Heading {
    int line;
    QString text;
  };

  bool newRow_ = false;
  int records_ = 0;
  std::vector<int> order_;  // row - 1 -> position
  std::vector<int> rank_;   // position - 1 -> row
  std::vector<Heading> headings_;
};

}  // namespace tavrelin
