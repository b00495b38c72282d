#include "controls/GridKeys.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>

#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridEX.h"

namespace tavrelin {

bool GridKeys::Raise(int key, Qt::KeyboardModifiers modifiers) {
  GridKeyDown event{key, modifiers & ~Qt::KeypadModifier};
  if (!core_.Raise("KeyDown", core_.face.on.KeyDown, event)) return true;
  return event.swallow;
}

bool GridKeys::Press(QKeyEvent* event) {
  const int key = event->key() == Qt::Key_Enter ? Qt::Key_Return : event->key();
  if (key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta) {
    return false;
  }
  if (key == Qt::Key_Escape && core_.Undo()) return true;
  if (Raise(key, event->modifiers())) return true;
  return Move(event) || Edit(event);
}

bool GridKeys::Move(QKeyEvent* event) {
  const bool control = event->modifiers() & Qt::ControlModifier;
  if (event->modifiers() & Qt::AltModifier) return false;
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
      const int step = event->key() == Qt::Key_Down ? 1 : -1;
      cards && !control && !core_.rowMode ? NextField(step) : Vertical(step);
      return true;
    }
    case Qt::Key_PageUp:
      Vertical(-linesPerPage);
      return true;
    case Qt::Key_PageDown:
      Vertical(linesPerPage);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right: {
      const int step = event->key() == Qt::Key_Right ? 1 : -1;
      cards ? Vertical(step) : Horizontal(step);
      return true;
    }
    case Qt::Key_Home:
    case Qt::Key_End:
      Ends(event->key() == Qt::Key_Home, control || core_.Column() < 1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Enter();
      return true;
    case Qt::Key_Insert:
      core_.MoveToNewRow();
      return true;
    default:
      return false;
  }
}

int GridKeys::Beside(int line, int step) const {
  const int last = core_.model.rowCount() - 1;
  int next = qBound(0, line + step, last);
  const int direction = step > 0 ? 1 : -1;
  while (next >= 0 && next <= last && core_.model.Rows().RowAt(next) == 0) next += direction;
  return next < 0 || next > last ? line : next;
}

void GridKeys::Vertical(int steps) {
  const int line = core_.Line();
  if (line >= 0) core_.MoveTo(Beside(line, steps), core_.Column());
}

void GridKeys::Horizontal(int step) {
  if (core_.rowMode) {
    QScrollBar* bar = core_.view->horizontalScrollBar();
    bar->setValue(bar->value() + step * bar->singleStep() * 20);
    return;
  }
  const QList<int> stops = core_.Stops();
  const qsizetype next = stops.indexOf(core_.Column()) + step;
  if (next >= stops.size() || core_.Line() < 0) return;
  core_.MoveTo(core_.Line(), next < 0 ? 0 : stops[next]);
}

void GridKeys::NextField(int step) {
  const QList<int> stops = core_.Stops();
  const qsizetype next = stops.indexOf(core_.Column()) + step;
  if (next >= 0 && next < stops.size()) {
    core_.MoveTo(core_.Line(), stops[next]);
    return;
  }
  const int line = Beside(core_.Line(), step);
  if (line == core_.Line() || stops.isEmpty()) return;
  core_.MoveTo(line, step > 0 ? stops.first() : stops.last());
}

void GridKeys::Ends(bool first, bool wholeGrid) {
  const int records = core_.model.Rows().Records();
  if (wholeGrid) {
    const int line = core_.model.Rows().LineOfRow(first ? 1 : records);
    if (line >= 0) core_.MoveTo(line, core_.Column());
    return;
  }
  const QList<int> stops = core_.Stops();
  if (!stops.isEmpty()) core_.MoveTo(core_.Line(), first ? stops.first() : stops.last());
}

// The row is done: it is saved, and the cursor goes to the row below, or stays on a fresh new row.
void GridKeys::Enter() {
  if (core_.rowMode || InPlace(Qt::Key_Return)) return;
  const bool newRow = core_.OnNewRow();
  if (newRow || !core_.allowEdit) {
    core_.Commit();
  } else {
    const int below = Beside(core_.Line(), 1);
    below == core_.Line() ? core_.Commit() : core_.MoveTo(below, core_.Column());
  }
}

bool GridKeys::Tab(bool forward) {
  if (Raise(Qt::Key_Tab, forward ? Qt::NoModifier : Qt::ShiftModifier)) return true;
  const QList<int> stops = core_.Stops();
  const bool typing = core_.allowEdit || core_.allowAddNew;
  if (stops.isEmpty() || !typing || core_.Line() < 0) return false;
  const int step = forward ? 1 : -1;
  qsizetype next = stops.indexOf(core_.Column()) + step;
  if (core_.Column() == 0 && !forward) next = -1;
  if (next >= 0 && next < stops.size()) {
    core_.MoveTo(core_.Line(), stops[next]);
    return true;
  }
  const int edge = forward ? stops.first() : stops.last();
  if (forward && core_.OnNewRow() && core_.model.Pending().typed) {
    if (core_.Commit() && core_.OnNewRow()) core_.MoveTo(core_.Line(), edge);
    return true;
  }
  const int line = Beside(core_.Line(), step);
  if (line == core_.Line()) return false;
  core_.MoveTo(line, edge);
  return true;
}

bool GridKeys::Edit(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers();
  switch (event->key()) {
    case Qt::Key_F2:
      core_.OpenCell();
      return true;
    case Qt::Key_F4:
      if (core_.OpenCell()) core_.delegate->DropDown();
      return true;
    case Qt::Key_Down:
      if (!(modifiers & Qt::AltModifier)) return false;
      if (core_.OpenCell()) core_.delegate->DropDown();
      return true;
    case Qt::Key_Delete:
      core_.Column() > 0 ? Erase() : void(core_.DeleteRow());
      return true;
    case Qt::Key_Space:
      if (InPlace(Qt::Key_Space)) return true;
      break;
    default:
      break;
  }
  return Type(event);
}

// The check box is toggled by Space, the button of a delete column pressed by Space or Enter.
bool GridKeys::InPlace(int key) {
  if (core_.Column() < 1) return false;
  const CellEditor editor = core_.model.Column(core_.Column()).editor;
  if (editor == CellEditor::Delete) {
    core_.DeleteRow();
    return true;
  }
  if (editor != CellEditor::CheckBox || key != Qt::Key_Space) return false;
  core_.ToggleCell();
  return true;
}

void GridKeys::Erase() {
  const CellEditor editor = core_.model.Column(core_.Column()).editor;
  if (editor == CellEditor::CheckBox || editor == CellEditor::Delete) return;
  core_.ChangeCell(QString());
}

bool GridKeys::Type(QKeyEvent* event) {
  const bool backspace = event->key() == Qt::Key_Backspace;
  const QString text = event->text();
  const bool command =
      (event->modifiers() & Qt::ControlModifier) && !(event->modifiers() & Qt::AltModifier);
  if (command || core_.Column() < 1) return false;
  if (!backspace && (text.isEmpty() || !text[0].isPrint())) return false;
  if (core_.OpenCell()) core_.delegate->Type(event);
  return true;
}

}  // namespace tavrelin
