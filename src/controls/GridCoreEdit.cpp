#include <QAbstractItemView>
#include <QScopeGuard>

#include "basic/Error.h"
#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridEX.h"

namespace tavrelin {

namespace {

// What a cell holds for a field: an emptied cell is null to all but texts.
Value ForField(const Field& field, const Value& value) {
  const bool text = field.type == FieldType::Text || field.type == FieldType::Memo;
  const bool empty = value.kind() == Value::Kind::Text && value.Trimmed().isEmpty();
  return empty && !text ? Value() : value;
}

}  // namespace

// The open cell ---------------------------------------------------------------------------------

bool GridCore::MayEdit(int line, int number) const {
  if (number < 1 || model.Rows().RowAt(line) == 0) return false;
  const GridColumn& column = model.Column(number);
  const bool newRow = model.Rows().IsNewRow(line);
  if (!newRow && (!allowEdit || column.newRowOnly)) return false;
  return column.editable && column.selectable && column.visible &&
         column.editor != CellEditor::Delete && !rowMode;
}

bool GridCore::IsOpen() const {
  return delegate && delegate->Editor();
}

bool GridCore::OpenCell() {
  if (IsOpen()) return true;
  const int line = Line(), number = Column();
  if (!MayEdit(line, number) || model.Column(number).editor == CellEditor::CheckBox) return false;
  beforeCell_ = model.Pending();
  GridColEdit event{model.Column(number).Key()};
  if (!Raise("BeforeColEdit", face.on.BeforeColEdit, event) || event.cancel) return false;
  if (Line() != line || Column() != number) return false;
  view->scrollTo(cursor.currentIndex());
  view->edit(cursor.currentIndex());
  return IsOpen();
}

void GridCore::CloseCell(bool takeOver) {
  if (!IsOpen() || closing_) return;
  closing_ = true;
  const auto done = qScopeGuard([this] { closing_ = false; });
  QWidget* editor = delegate->Editor();
  if (takeOver) {
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor);
  } else {
    Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    model.Pending() = beforeCell_;
    model.Touch(Line());
  }
  Q_EMIT CurrentChanged();
}

void GridCore::TakeOver(int number, const Value& value, bool changed) {
  const GridColumn column = model.Column(number);
  if (changed) {
    SetField(column.field, value);
    model.Pending().typed = model.Pending().changed;
  }
  GridColEdit event{column.Key()};
  Raise("AfterColEdit", face.on.AfterColEdit, event);
}

bool GridCore::ChangeCell(const Value& value) {
  const int number = Column();
  if (!MayEdit(Line(), number)) return false;
  GridColEdit event{model.Column(number).Key()};
  if (!Raise("BeforeColEdit", face.on.BeforeColEdit, event) || event.cancel) return false;
  TakeOver(number, value, true);
  return true;
}

void GridCore::ToggleCell() {
  if (Column() < 1 || model.Column(Column()).editor != CellEditor::CheckBox) return;
  ChangeCell(!model.IsChecked(Line(), Column()));
}

// The row ---------------------------------------------------------------------------------------

QString GridCore::FirstText() const {
  for (const int number : Row() == 0 ? QList<int>() : model.VisibleColumns()) {
    const GridColumn& column = model.Column(number);
    const bool isText = !column.icon && column.editor != CellEditor::CheckBox;
    const QString text = isText ? model.CellText(Line(), number).simplified() : QString();
    if (!text.isEmpty()) return text;
  }
  return {};
}

void GridCore::SetField(const QString& field, const Value& value) {
  if (Row() == 0) return;
  PendingRow& pending = model.Pending();
  const int number = model.ColumnNumber(field);
  const bool asColumn = number > 0 && model.Column(number).field == field;
  const Value present =
      asColumn ? model.CellValue(Line(), number) : model.FieldValue(Line(), field);
  if (present == value) return;
  ForceChanged();
  pending.values.insert(field.toLower(), value);
  model.Touch(Line());
  Q_EMIT CurrentChanged();
}

void GridCore::ForceChanged() {
  if (Row() == 0) return;
  PendingRow& pending = model.Pending();
  pending.isNew = OnNewRow();
  pending.bookmark = here_;
  pending.changed = true;
}

void GridCore::Discard() {
  CloseCell(false);
  model.Pending() = {};
  model.Touch(Line());
  Q_EMIT CurrentChanged();
}

// One new row gave way to another: what a screen puts into new rows is asked for again.
void GridCore::FreshNewRow() {
  if (OnNewRow()) Raise("RowColChange", face.on.RowColChange, -1, Col());
}

bool GridCore::Undo() {
  if (IsOpen()) {
    CloseCell(false);
    return true;
  }
  if (!model.Pending().typed) return false;
  Discard();
  FreshNewRow();
  return true;
}

bool GridCore::Commit(bool leaving) {
  if (committing_) return false;
  CloseCell(true);
  if (!Changed()) return true;
  committing_ = true;
  auto done = qScopeGuard([this] { committing_ = false; });
  GridUpdate update{OnNewRow()};
  const int moves = moves_;
  if (!Raise("BeforeUpdate", face.on.BeforeUpdate, update)) return false;
  const bool discarded = !update.dataChanged || !Changed();
  if (!discarded && (update.cancel || !Guarded("Update", [this] { Write(); }))) return false;
  if (discarded) Discard();
  committing_ = false;
  done.dismiss();
  if (!discarded) Raise("AfterUpdate", face.on.AfterUpdate);
  const bool stays = !leaving || update.cancel;
  if (update.newRow && stays && moves == moves_) FreshNewRow();
  return !update.cancel;
}

// The input stays in the grid until the file has taken it, so the recordset is left without a
// pending edit whatever happens.
void GridCore::Write() {
  Recordset& recordset = *model.Bound();
  const PendingRow& pending = model.Pending();
  QHash<QString, Value> values = pending.values;
  if (pending.isNew) {
    for (const GridColumn& column : model.Columns()) {
      const QString field = column.field.toLower();
      const bool given = !column.defaultValue.IsNull() && !values.contains(field);
      if (given) values.insert(field, column.defaultValue);
    }
    recordset.AddNew();
  } else if (!recordset.GoTo(pending.bookmark)) {
    throw Error(errors::RecordState, tr("This row is not there any more. Press Esc to leave it."));
  }
  try {
    for (auto cell = values.constBegin(); cell != values.constEnd(); ++cell) {
      const int index = recordset.FieldIndex(cell.key());
      if (index < 0 || !recordset.Fields()[index].updatable) continue;
      recordset.Set(index, ForField(recordset.Fields()[index], *cell));
    }
    recordset.Update();
  } catch (...) {
    recordset.CancelUpdate();
    throw;
  }
  Written(recordset.CurrentBookmark());
}

void GridCore::Written(Recordset::Bookmark bookmark) {
  const PendingRow written = model.Pending();
  const Recordset& recordset = *model.Bound();
  for (auto cell = written.values.constBegin(); cell != written.values.constEnd(); ++cell) {
    const int index = recordset.FieldIndex(cell.key());
    const bool stored = index >= 0 && recordset.Fields()[index].updatable;
    if (!stored) model.Overlay(bookmark, cell.key(), *cell);
  }
  model.Pending() = {};
  if (written.isNew) {
    LayOut();
  } else {
    model.Touch(Line());
    Q_EMIT CurrentChanged();
  }
}

bool GridCore::DeleteRow() {
  if (!allowDelete || Row() < 1 || committing_) return false;
  GridDelete event;
  if (!Raise("BeforeDelete", face.on.BeforeDelete, event) || event.cancel) return false;
  CloseCell(false);
  const int row = Row(), col = Col();
  const bool deleted = Guarded("Delete", [&] {
    if (!model.Bound()->GoTo(here_)) return;
    model.Bound()->Delete();
  });
  if (!deleted) return false;
  model.Pending() = {};
  ++moves_;
  LayOut();
  if (here_ != 0) Guarded("Delete", [&] { model.Bound()->GoTo(here_); });
  Raise("RowColChange", face.on.RowColChange, row, col);
  return true;
}

}  // namespace tavrelin
