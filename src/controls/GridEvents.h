#pragma once

#include <functional>
#include <QChar>
#include <QString>
#include <Qt>

#include "basic/Value.h"

namespace tavrelin {

struct RowCheck;

/// Rows are numbered from 1 in the present order; -1 is the new-record row, 0 none. Columns are
/// numbered from 1 in the column table; -1 is the row selector, 0 none.

struct GridKeyDown {
  int key;  ///< Qt::Key; digits and capital letters are their own characters
  Qt::KeyboardModifiers modifiers;
  bool swallow = false;  ///< true: the grid does nothing further with the key
};

struct GridKeyPress {
  QString column;  ///< key of the column that is typed into
  /// What was typed, '\b' for Backspace. Another character replaces it, a null character swallows
  /// it.
  QChar character;
};

struct GridColEdit {
  QString column;       ///< key
  bool cancel = false;  ///< BeforeColEdit: the cell is not edited
};

/// A row that is about to be saved. `cancel` keeps the operator on the row with all he typed;
/// `dataChanged` = false throws the row's changes away (a new row vanishes). Both together: the
/// changes are thrown away and the operator stays.
struct GridUpdate {
  bool newRow;
  bool cancel = false;
  bool dataChanged = true;

  /// Takes over the verdict of a rule. Its fixes go into the row with GridEX::Apply; its message
  /// and its question are the screen's.
  void Obey(const RowCheck& check);
};

struct GridDelete {
  bool cancel = false;
};

/// A cell that is about to be painted, of any row. Read other cells of it with GridEX::ValueAt.
struct GridFetchIcon {
  int row;
  int position;    ///< of the row in the recordset, where the order may be another; 0: not stored
  QString column;  ///< key
  int icon = 1;    ///< number in the grid's icons, from 1; 0 shows none
};

struct GridFetchData {
  int row;
  QString column;
  Value value;
  QString text;  ///< what is shown; comes filled with the value's own text
};

/// The events of a grid. A screen puts its procedures in; empty ones are not called. All run inside
/// the grid's guard under the name "<objectName>_<event>", so that a failure reaches the error
/// dialog and the program goes on. A procedure may move the cursor, rebind the grid or bind another
/// recordset.
struct GridEvents {
  /// A key while the cursor stands on a cell or the row selector. Inside a cell keys go to the
  /// cell; Enter, Tab and the keys that leave the cell arrive here once the cell is taken over. Esc
  /// arrives only when it has nothing left to undo.
  std::function<void(GridKeyDown&)> KeyDown;
  /// A character typed into a cell.
  std::function<void(GridKeyPress&)> KeyPress;
  /// The cursor has moved, with the row and column left behind; also after SetRecordset (from row
  /// 0), and when a new row was saved and another new row stands in its place (from row -1 to row
  /// -1).
  std::function<void(int lastRow, int lastCol)> RowColChange;
  std::function<void(GridColEdit&)> BeforeColEdit;
  /// The cell's new value is in the row; SetValue may still change it. Not after Esc.
  std::function<void(GridColEdit&)> AfterColEdit;
  /// Before a changed row is saved: when it is left, when the focus leaves the grid, on CommitRow.
  std::function<void(GridUpdate&)> BeforeUpdate;
  /// The row is in the file. Row() is still -1 when it was a new one.
  std::function<void()> AfterUpdate;
  std::function<void(GridDelete&)> BeforeDelete;
  /// Without this hook a double click edits the cell. Not raised on a heading or beside the rows.
  std::function<void()> DblClick;
  /// By column key. Without this hook a click sorts by the column, and the other way round when it
  /// is sorted so already.
  std::function<void(const QString& column)> ColumnHeaderClick;
  std::function<void(GridFetchIcon&)> FetchIcon;
  std::function<void(GridFetchData&)> FetchData;
  /// The focus has come into the grid, or has left it for another control of the window, the row
  /// being saved by then. A row that is refused keeps the focus in the grid.
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
};

/// Runs a procedure under a name and lets no exception out; true when it came to its end
/// (Screen::Event, CSError::Run).
using GridGuard = std::function<bool(const char* procedure, const std::function<void()>& body)>;

}  // namespace tavrelin
