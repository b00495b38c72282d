#include "controls/GridMouse.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QTimer>

#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridEX.h"

namespace tavrelin {

void GridMouse::Press(QAbstractItemView* view, QMouseEvent* event) {
  ++clicks_;
  pressed_ = view->indexAt(event->position().toPoint());
  if (!pressed_.isValid() || core_.model.Rows().RowAt(pressed_.row()) == 0) return;
  wasCurrent_ = QModelIndex(pressed_) == core_.cursor.currentIndex() && core_.HasFocus();
  const int number = pressed_.column();
  const bool stop = number > 0 && !core_.rowMode && core_.model.Column(number).selectable;
  core_.MoveTo(pressed_.row(), stop ? number : 0);
}

void GridMouse::Release(QAbstractItemView* view, QMouseEvent* event) {
  const QModelIndex index = view->indexAt(event->position().toPoint());
  const bool here = index.isValid() && index == QModelIndex(pressed_) &&
                    index.row() == core_.Line() && index.column() > 0 &&
                    event->button() == Qt::LeftButton;
  pressed_ = QModelIndex();
  if (!here) return;
  const CellEditor editor = core_.model.Column(index.column()).editor;
  if (editor == CellEditor::Delete) {
    core_.DeleteRow();
  } else if (index.column() != core_.Column()) {
    return;
  } else if (editor == CellEditor::CheckBox) {
    core_.ToggleCell();
  } else if (wasCurrent_ && core_.face.on.DblClick) {
    const QPersistentModelIndex cell(index);
    QTimer::singleShot(QApplication::doubleClickInterval(), &core_, [this, cell, clicks = clicks_] {
      if (clicks == clicks_ && cell.isValid() && QModelIndex(cell) == core_.cursor.currentIndex())
        Open();
    });
  } else if (wasCurrent_) {
    Open();
  }
}

void GridMouse::Open() {
  if (!core_.OpenCell()) return;
  const CellEditor editor = core_.model.Column(core_.Column()).editor;
  if (editor == CellEditor::List) core_.delegate->DropDown();
}

void GridMouse::DoubleClick(QAbstractItemView* view, QMouseEvent* event) {
  ++clicks_;
  const QModelIndex index = view->indexAt(event->position().toPoint());
  if (!index.isValid() || index.row() != core_.Line() || event->button() != Qt::LeftButton) return;
  const CellEditor editor =
      index.column() > 0 ? core_.model.Column(index.column()).editor : CellEditor::Text;
  if (editor == CellEditor::CheckBox || editor == CellEditor::Delete) {
    pressed_ = index;
  } else if (core_.face.on.DblClick) {
    core_.Raise("DblClick", core_.face.on.DblClick);
  } else {
    Open();
  }
}

}  // namespace tavrelin
