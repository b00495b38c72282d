#pragma once

#include <memory>
#include <QWidget>

#include "basic/Value.h"
#include "controls/GridColumn.h"
#include "controls/GridEvents.h"
#include "controls/GridSort.h"
#include "data/Recordset.h"

class QAbstractItemView;

namespace tavrelin {

class GridCore;
struct RowCheck;

/// The grid of the program: rows of a Recordset, edited in place.
///
/// **Addressing.** Row() is -1 on the new-record row, 0 when there is none, else 1 to RowCount() in
/// the present order. Col() is the number of a column from 1 in the column table, whatever its
/// place on the screen; -1 is the row selector at the left, which is also what "no current column"
/// means once there is a row; 0 is returned only when there is no row.
///
/// **Editing.** The row is the unit. What is typed is kept in the grid; leaving the row saves it:
/// BeforeUpdate, then Recordset::Update, then AfterUpdate. When the file refuses the row (disk
/// full, a text too long), the guard shows the error, the operator stays on the row with all he
/// typed, and the next try saves it. Esc undoes the cell, then the row. An emptied cell of a field
/// that is not text is stored as null. Fields that cannot be written (expressions, numbers the
/// engine gives) are shown as set until the next SetRecordset, and not stored.
///
/// **Keys.** Arrows, Home/End, Page Up/Down, Ctrl+Home/End; Tab and Shift+Tab through the cells and
/// out of the grid behind the last, Ctrl+Tab out at once; typing, F2 or Backspace edit; Enter takes
/// the row over and goes down, or to a fresh new row; Insert goes to the new-record row; Delete on
/// the row selector deletes the row, on a cell empties it; F4 and Alt+Down open a list or calendar;
/// Space toggles a check box; the menu key sorts, groups, adds and deletes.
///
/// **Ownership.** The recordset belongs to the screen and must outlive its binding: call
/// SetRecordset(nullptr) before it is closed or dropped. Its cursor follows the grid's row; the
/// grid does not follow the cursor.
///
/// Operations that move or save answer false when a changed row was refused; then nothing moved.
/// None of them throws: failures go through the guard.
class GridEX : public QWidget {
  Q_OBJECT

 public:
  enum class View { Table = 1, Card = 3 };

  /// `name` is the objectName, `spokenName` what a person would call it.
  GridEX(const QString& name, const QString& spokenName, GridGuard guard,
         QWidget* parent = nullptr);
  ~GridEX() override;

  /// The screen's procedures.
  GridEvents on;

  // Columns

  void SetColumns(const QList<GridColumn>& columns);
  const QList<GridColumn>& Columns() const;
  /// A column's number by its key, from 1; 0 when there is none. Case is disregarded.
  int ColumnNumber(const QString& key) const;
  /// The key of a column number; empty for the row selector.
  QString ColumnKey(int col) const;

  // What follows takes the column's key, and does nothing for one that is not there.
  void SetCaption(const QString& key, const QString& caption);
  void SetColumnVisible(const QString& key, bool visible);
  void SetSelectable(const QString& key, bool selectable);
  void SetEditable(const QString& key, bool editable);
  void SetWidth(const QString& key, int twips);
  void SetCompact(const QString& key, bool compact);
  void SetValueList(const QString& key, const ValueList& values);
  void ClearValueList(const QString& key) { SetValueList(key, {}); }
  /// The value of a new row; shows at once on an untouched new-record row.
  void SetDefault(const QString& key, const tavrelin::Value& value);
  tavrelin::Value Default(const QString& key) const;
  /// The icons that FetchIcon numbers from 1.
  void SetIcons(const QList<GridIcon>& icons);

  // What the operator may do; all false but editing at the start

  void SetAllowAddNew(bool allow);
  void SetAllowEdit(bool allow);
  void SetAllowDelete(bool allow);
  bool AllowAddNew() const;
  bool AllowEdit() const;
  bool AllowDelete() const;
  /// A list to choose rows from: the cursor stays on the row selector, the whole row is marked,
  /// Left and Right scroll.
  void SetRowMode(bool rowMode);

  // Rows

  /// Binds the rows of a recordset, or none; changes not saved are dropped with the old binding.
  /// The cursor goes to the first row, or the new-record row when there is no other, and to the row
  /// selector; sort keys and groups are cleared, the recordset's own order stays.
  void SetRecordset(Recordset* recordset);
  Recordset* BoundRecordset() const;
  /// Shows the recordset as it stands now, after Requery, Sort, Filter or edits of its own. The
  /// cursor stays on its row if that is still there, pending changes too.
  void Rebind();
  /// Paints a row anew, its icons and fetched texts included.
  void Refetch(int row);
  /// Rows of the recordset, without the new-record row.
  int RowCount() const;

  int Row() const;
  int Col() const;
  bool IsNewRow() const { return Row() == -1; }
  /// 0 on the new-record row.
  Recordset::Bookmark CurrentBookmark() const;
  bool SetRow(int row);
  /// Goes to a column of the present row, or to the next selectable one at its right; -1 and 0 go
  /// to the row selector.
  bool SetCol(int col);
  bool SetCol(const QString& key) { return SetCol(ColumnNumber(key)); }
  bool ClearCol() { return SetCol(-1); }
  bool MoveToNewRow() { return SetRow(-1); }
  /// False, and no move, also when the row is not there.
  bool MoveToBookmark(Recordset::Bookmark bookmark);
  /// Scrolls until a row can be seen.
  void EnsureVisible(int row);

  // The current row

  /// A cell of the current row with its pending change; null without a row or column.
  tavrelin::Value Value(const QString& key) const;
  tavrelin::Value Value(int col) const { return Value(ColumnKey(col)); }
  /// A cell of any row.
  tavrelin::Value ValueAt(int row, const QString& key) const;
  /// The text a cell shows.
  QString TextAt(int row, const QString& key) const;
  /// Changes a cell of the current row, to be saved with the row. Also for hidden columns and those
  /// that cannot be edited. An equal value changes nothing.
  void SetValue(const QString& key, const tavrelin::Value& value);
  void SetValue(int col, const tavrelin::Value& value) { SetValue(ColumnKey(col), value); }
  /// Writes the fixes of a rule into the current row, in their order; by column key or field.
  void Apply(const RowCheck& check);
  /// True when the current row has changes that are not saved.
  bool DataChanged() const;
  /// False throws the current row's changes away, the open cell's too. True has the row saved when
  /// it is left, changed or not.
  void SetDataChanged(bool changed);
  bool IsEditing() const;  ///< a cell is open for typing
  /// Opens the current cell, if it can be edited.
  bool EditCell();
  /// What a person calls a row: keys of columns in braces among other words, "{FirstName}
  /// {LastName}". Without a pattern a row is called by the first text it shows.
  void SetRowName(const QString& pattern);
  /// The name of the current row with its pending changes; may be empty.
  QString RowName() const;
  /// Takes the open cell over into the row.
  void EndEdit();
  /// EndEdit, then saves the row. True when nothing is pending any more.
  bool CommitRow();
  /// Deletes the current row as the Delete key does: BeforeDelete first.
  bool DeleteRow();

  // Order

  /// Keys are added in the order of their weight. A key sorts the recordset by its field (and by
  /// the number or date in it, where the column says so); the cursor stays on its row.
  /// Forgets the keys; the rows stay as they lie.
  void ClearSortKeys();
  void SetSortKeys(const QList<GridSortKey>& keys);
  void AddSortKey(const QString& key, SortOrder order = SortOrder::Ascending);
  const QList<GridSortKey>& SortKeys() const;
  /// The order a header click asks for: descending when the column is the ascending first key, else
  /// ascending.
  SortOrder NextOrder(const QString& key) const;

  // Views

  void SetView(View view);
  View CurrentView() const;
  void SetGroupByBoxVisible(bool visible);
  bool GroupByBoxVisible() const;
  /// Groups rows under headings by a column; the first call is the outer group.
  void AddGroup(const QString& key);
  void ClearGroups();
  QStringList Groups() const;  ///< keys of columns
  void SetRecordCounter(bool visible);
  /// "records" in "Record 5 of 120 records".
  void SetRecordCaption(const QString& caption);
  /// What an empty grid says: what to do next.
  void SetEmptyText(const QString& text);

 Q_SIGNALS:
  /// The current row or what is in it changed; for the footers of the grid itself.
  void CurrentChanged();
  /// Other rows, or the rows anew: after SetRecordset and Rebind.
  void Rebound();

 private:
  struct Widgets;
  void UseView(QAbstractItemView* view);
  void Change(const QString& key, const std::function<void(GridColumn&)>& change);

  std::unique_ptr<GridCore> core_;
  std::unique_ptr<Widgets> widgets_;
};

}  // namespace tavrelin
