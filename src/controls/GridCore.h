#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include "controls/GridCursor.h"
#include "controls/GridEvents.h"
#include "controls/GridModel.h"
#include "controls/GridSort.h"

class QAbstractItemView;

namespace tavrelin {

class GridDelegate;
class GridEX;

/// The machinery behind GridEX, shared by its views: the rows on show, the cursor, the open cell,
/// and the saving of rows. Places are lines and columns of the model (line 0 may be the new-record
/// row, column 0 is the row selector). No procedure of it throws.
class GridCore : public QObject {
  Q_OBJECT

 public:
  GridCore(GridEX& face, GridGuard guard);
  ~GridCore() override;

  GridEX& face;
  GridModel model;
  GridCursor cursor;
  bool allowAddNew = false, allowEdit = true, allowDelete = false, rowMode = false;

  /// Runs an event procedure or a step of the grid itself as "<grid>_<name>" within the guard.
  bool Guarded(const char* name, const std::function<void()>& body) const;
  /// Raises an event; true also when no procedure stands behind it.
  template <typename Hook, typename... Arguments>
  bool Raise(const char* name, const Hook& hook, Arguments&&... arguments) const {
    return !hook || Guarded(name, [&] { hook(std::forward<Arguments>(arguments)...); });
  }

  // The rows on show

  void Bind(Recordset* recordset);
  void Rebind();
  /// Sorts by groups and keys and lays the lines out anew; the cursor stays on its row.
  void Sort();
  void LayOut();
  QList<GridSortKey> sortKeys;
  QStringList groups;
  void SetSortKeys(const QList<GridSortKey>& keys);
  void SetGroups(const QStringList& keys);
  void RemoveGroup(const QString& key);
  void HeaderClicked(int number);

  // The cursor

  int Line() const { return cursor.currentIndex().row(); }
  int Column() const { return cursor.currentIndex().column(); }
  int Row() const;
  int Col() const;
  /// The row under the cursor; known also while the recordset lies in another order than shown.
  Recordset::Bookmark Here() const { return here_; }
  bool OnNewRow() const { return Row() == -1; }
  /// Goes to a line and column; a row that is left is saved first. False when it was refused.
  bool MoveTo(int line, int column);
  /// The columns in which the cursor can stand, from left to right, without the row selector.
  QList<int> Stops() const;
  /// The column itself when the cursor can stand there, else the next stop to its right, else the
  /// row selector.
  int StopAt(int column) const;
  /// Goes to a fresh new row, saving the one that is being typed.
  bool MoveToNewRow();

  // The open cell

  bool MayEdit(int line, int number) const;
  bool IsOpen() const;
  /// Opens the current cell; false when it can't be edited.
  bool OpenCell();
  void CloseCell(bool takeOver);
  /// Puts what was typed into the row: the delegate's last step of an edit.
  void TakeOver(int number, const tavrelin::Value& value, bool changed);
  /// BeforeColEdit, the change, AfterColEdit: a cell that is changed in place.
  bool ChangeCell(const tavrelin::Value& value);
  void ToggleCell();

  // The row

  QString rowName;  ///< as in GridEX::SetRowName

  /// The first text that the row shows, from the left; empty without one.
  QString FirstText() const;
  void SetField(const QString& field, const tavrelin::Value& value);
  bool Changed() const { return model.Pending().changed; }
  void ForceChanged();
  /// Throws the row's changes away.
  void Discard();
  /// Saves the row, if it was changed. `leaving` when the cursor goes elsewhere afterwards.
  bool Commit(bool leaving = false);
  bool DeleteRow();
  /// Undoes the open cell, else the row; false when there was nothing to undo.
  bool Undo();

  // The views

  QAbstractItemView* view = nullptr;
  GridDelegate* delegate = nullptr;
  bool HasFocus() const { return hasFocus_; }
  void Repaint();

 Q_SIGNALS:
  void CurrentChanged();
  void OrderChanged();  ///< sort keys or groups

 private:
  void Place(int line, int column, bool bound = false);
  void Restore(bool newRow, int row, int column);
  QList<ColumnOrder> Keys() const;
  QList<int> GroupColumns() const;
  void Write();
  void Written(Recordset::Bookmark bookmark);
  void FreshNewRow();
  void FocusMoved(QWidget* now);
  bool IsInside(const QWidget* widget) const;
  QString FetchText(int row, const QString& key, const tavrelin::Value& value, const QString& text);
  int FetchIcon(int row, const QString& key);
  void FetchFailed(const char* event);

  GridGuard guard_;
  Recordset::Bookmark here_ = 0;
  PendingRow beforeCell_;
  int moves_ = 0;  // counts the moves to rows, to tell when a procedure made one of its own
  bool committing_ = false;
  bool closing_ = false;
  bool hasFocus_ = false;
  bool fetchFailed_ = false;
};

}  // namespace tavrelin
