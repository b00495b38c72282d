#pragma once

#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "data/ColumnType.h"
#include "data/Criterion.h"
#include "data/Recordset.h"
#include "data/RowStore.h"
#include "data/SortOrder.h"
#include "data/ValueIndex.h"

namespace tavrelin {

class RowSource;

/// The rows themselves, shared by a recordset and its clones.
struct Recordset::Rows {
  Rows();
  ~Rows();

  bool open = false;
  QList<Field> fields;
  std::vector<ColumnType> types;  ///< one a field
  RowStore store;
  std::vector<bool> deleted;  ///< shorter than the store while nothing behind it was deleted
  std::map<int, ValueIndex> indexes;
  /// Where the rows came from and are written to; null for a table in memory and after Disconnect.
  std::unique_ptr<RowSource> source;
  std::vector<qint64> ids;  ///< each row's number in the file, when rows can be written
  int changes = 0;          ///< grows with every row that comes or goes
  int requeries = 0;        ///< grows with every Requery

  bool IsDeleted(int row) const;
  void MarkDeleted(int row);
  Bookmark BookmarkOf(int row) const;
  /// The row of a bookmark; -1 when it names none.
  int RowOf(Bookmark bookmark) const;
  /// Before a Requery: which bookmark each of the file's rows has now.
  void KeepBookmarks(const std::vector<qint64>& newIds);
  void WriteCell(int row, int field, const Value& value);
  int AppendRow(const std::vector<std::optional<Value>>& values);

 private:
  std::vector<Bookmark> bookmarks_;  ///< empty while a row's bookmark is its number plus one
  mutable std::unordered_map<Bookmark, int> rowOfBookmark_;
  Bookmark lastBookmark_ = 0;
};

/// What each recordset over the same rows has of its own.
struct Recordset::Cursor {
  std::vector<int> order;  ///< the rows shown, in their order
  int position = 0;        ///< 0 before the first, order.size() + 1 behind the last
  QString filterText;
  QString sortText;
  Criterion filter;
  std::vector<SortTerm> sort;
  bool adding = false;
  bool editing = false;
  Bookmark edited = 0;                        ///< the row that `pending` belongs to
  std::vector<std::optional<Value>> pending;  ///< one a field
  int seenChanges = 0;
  int seenRequeries = 0;
  int seenRows = 0;

  int Count() const { return static_cast<int>(order.size()); }
  bool HasRow() const { return position >= 1 && position <= Count(); }
  int Row() const { return HasRow() ? order[static_cast<size_t>(position) - 1] : -1; }
  int PositionOfRow(int row) const;  ///< 0 when it is not shown
  /// Works the order out anew from filter and sort, and goes to the first row.
  void Rebuild(const Rows& rows);
  /// Takes in what other cursors over the same rows have done.
  void Follow(const Rows& rows);
  void DropPending();
  void Forget() { places_.clear(); }

 private:
  mutable std::vector<int> places_;  ///< by row; empty when it must be worked out anew
};

}  // namespace tavrelin
