#include "controls/RowMap.h"

#include <algorithm>

namespace tavrelin {

void RowMap::Reset(bool newRow, int records, std::vector<int> order) {
  newRow_ = newRow;
  records_ = records;
  order_ = std::move(order);
  headings_.clear();
  rank_.assign(order_.size(), 0);
  for (size_t i = 0; i < order_.size(); ++i) {
    rank_[static_cast<size_t>(order_[i] - 1)] = static_cast<int>(i) + 1;
  }
}

void RowMap::AddHeading(int beforeRow, const QString& text) {
  headings_.push_back({First() + beforeRow - 1 + static_cast<int>(headings_.size()), text});
}

int RowMap::Lines() const {
  return First() + records_ + static_cast<int>(headings_.size());
}

// Headings on lines up to and including this one.
size_t RowMap::HeadingsUpTo(int line) const {
  const auto end = std::upper_bound(headings_.begin(), headings_.end(), line,
                                    [](int at, const Heading& h) { return at < h.line; });
  return static_cast<size_t>(end - headings_.begin());
}

int RowMap::RowAt(int line) const {
  if (line < 0 || line >= Lines()) return 0;
  if (IsNewRow(line)) return -1;
  const size_t above = HeadingsUpTo(line);
  if (above > 0 && headings_[above - 1].line == line) return 0;
  return line - First() - static_cast<int>(above) + 1;
}

int RowMap::LineOfRow(int row) const {
  if (row == -1) return newRow_ ? 0 : -1;
  if (row < 1 || row > records_) return -1;
  // Each heading that lies at or before the row's line pushes it one further down.
  const int plain = First() + row - 1;
  size_t low = 0, high = headings_.size();
  while (low < high) {
    const size_t middle = (low + high) / 2;
    if (headings_[middle].line - static_cast<int>(middle) <= plain) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return plain + static_cast<int>(low);
}

int RowMap::PositionOfRow(int row) const {
  if (row < 1 || row > records_) return 0;
  return order_.empty() ? row : order_[static_cast<size_t>(row - 1)];
}

int RowMap::RowOfPosition(int position) const {
  if (position < 1 || position > records_) return 0;
  return rank_.empty() ? position : rank_[static_cast<size_t>(position - 1)];
}

QString RowMap::HeadingAt(int line) const {
  const size_t above = HeadingsUpTo(line);
  if (above == 0 || headings_[above - 1].line != line) return {};
  return headings_[above - 1].text;
}

}  // namespace tavrelin
