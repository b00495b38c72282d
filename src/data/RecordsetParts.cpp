#include "data/RecordsetParts.h"

#include <algorithm>

#include "data/RowSource.h"

namespace tavrelin {

Recordset::Rows::Rows() = default;
Recordset::Rows::~Rows() = default;

bool Recordset::Rows::IsDeleted(int row) const {
  const auto at = static_cast<size_t>(row);
  return at < deleted.size() && deleted[at];
}

void Recordset::Rows::MarkDeleted(int row) {
  if (deleted.size() <= static_cast<size_t>(row)) deleted.resize(static_cast<size_t>(row) + 1);
  deleted[static_cast<size_t>(row)] = true;
  ++changes;
}

Recordset::Bookmark Recordset::Rows::BookmarkOf(int row) const {
  return bookmarks_.empty() ? row + 1 : bookmarks_[static_cast<size_t>(row)];
}

int Recordset::Rows::RowOf(Bookmark bookmark) const {
  if (bookmark <= 0) return -1;
  if (bookmarks_.empty()) return bookmark <= store.Rows() ? static_cast<int>(bookmark) - 1 : -1;
  const auto found = rowOfBookmark_.find(bookmark);
  return found == rowOfBookmark_.end() ? -1 : found->second;
}

void Recordset::Rows::KeepBookmarks(const std::vector<qint64>& newIds) {
  std::unordered_map<qint64, Bookmark> known;
  for (size_t row = 0; row < ids.size(); ++row) {
    const Bookmark bookmark = BookmarkOf(static_cast<int>(row));
    lastBookmark_ = std::max(lastBookmark_, bookmark);
    if (!IsDeleted(static_cast<int>(row))) known.emplace(ids[row], bookmark);
  }
  bookmarks_.clear();
  rowOfBookmark_.clear();
  for (size_t row = 0; row < newIds.size(); ++row) {
    const auto found = known.find(newIds[row]);
    bookmarks_.push_back(found == known.end() ? ++lastBookmark_ : found->second);
    rowOfBookmark_.emplace(bookmarks_.back(), static_cast<int>(row));
  }
}

void Recordset::Rows::WriteCell(int row, int field, const Value& value) {
  store.Set(row, field, value);
  const auto index = indexes.find(field);
  if (index != indexes.end()) index->second.Add(store, row);
}

int Recordset::Rows::AppendRow(const std::vector<std::optional<Value>>& values) {
  const int row = store.Rows();
  store.AppendEmptyRow();
  for (int field = 0; field < fields.size(); ++field) {
    const auto& value = values[static_cast<size_t>(field)];
    if (value) store.Set(row, field, *value);
  }
  if (!bookmarks_.empty()) {
    bookmarks_.push_back(++lastBookmark_);
    rowOfBookmark_.emplace(lastBookmark_, row);
  }
  ++changes;
  return row;
}

int Recordset::Cursor::PositionOfRow(int row) const {
  if (places_.empty() && !order.empty()) {
    places_.resize(static_cast<size_t>(*std::max_element(order.begin(), order.end())) + 1);
    for (size_t at = 0; at < order.size(); ++at) {
      places_[static_cast<size_t>(order[at])] = static_cast<int>(at) + 1;
    }
  }
  const auto at = static_cast<size_t>(row);
  return row >= 0 && at < places_.size() ? places_[at] : 0;
}

void Recordset::Cursor::Rebuild(const Rows& rows) {
  order.clear();
  order.reserve(static_cast<size_t>(rows.store.Rows()));
  for (int row = 0; row < rows.store.Rows(); ++row) {
    if (!rows.IsDeleted(row) && filter.Meets(rows.store, row)) order.push_back(row);
  }
  SortRows(order, rows.store, rows.fields, sort);
  Forget();
  position = 1;
  seenChanges = rows.changes;
  seenRequeries = rows.requeries;
  seenRows = rows.store.Rows();
}

void Recordset::Cursor::Follow(const Rows& rows) {
  if (seenRequeries != rows.requeries) return Rebuild(rows);
  if (seenChanges == rows.changes) return;
  const bool behindAll = position > Count();
  const auto gone = [&rows](int row) { return rows.IsDeleted(row); };
  const auto here = order.begin() + std::clamp(position - 1, 0, Count());
  position -= static_cast<int>(std::count_if(order.begin(), here, gone));
  order.erase(std::remove_if(order.begin(), order.end(), gone), order.end());
  for (int row = seenRows; row < rows.store.Rows(); ++row) {
    if (!rows.IsDeleted(row) && filter.Meets(rows.store, row)) order.push_back(row);
  }
  if (behindAll) position = Count() + 1;
  Forget();
  seenChanges = rows.changes;
  seenRows = rows.store.Rows();
}

void Recordset::Cursor::DropPending() {
  adding = editing = false;
  edited = 0;
  pending.clear();
}

}  // namespace tavrelin
