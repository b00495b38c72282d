#include "controls/GridDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "basic/Conversions.h"
#include "controls/DateEdit.h"
#include "controls/GridCore.h"
#include "controls/GridEX.h"
#include "controls/ListEdit.h"

namespace tavrelin {

namespace {

QLineEdit* LineOf(QWidget* editor) {
  if (auto* combo = qobject_cast<QComboBox*>(editor)) return combo->lineEdit();
  return qobject_cast<QLineEdit*>(editor);
}

// What the cell opened with, to tell a cell that was only looked at.
constexpr char Initial[] = "initialText";

Value TypedValue(const GridColumn& column, QString text) {
  if (column.upperCase) text = text.toUpper();
  if (column.editor == CellEditor::Date || column.editor == CellEditor::DateTime) {
    if (const auto date = ReadDate(text)) return *date;
  }
  const int item = column.editor == CellEditor::Combo ? column.values.IndexOfText(text) : -1;
  return item >= 0 ? column.values.Items()[item].code : Value(text);
}

}  // namespace

GridDelegate::GridDelegate(GridCore& core, QObject* parent)
    : QStyledItemDelegate(parent), core_(core) {
  connect(this, &QAbstractItemDelegate::closeEditor, this, [this] { editor_ = nullptr; });
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
  const GridColumn& column = core_.model.Column(index.column());
  const bool list = column.editor == CellEditor::List || column.editor == CellEditor::Combo;
  const bool date = column.editor == CellEditor::Date || column.editor == CellEditor::DateTime;
  if (list) {
    editor_ = CreateList(parent, index);
  } else if (date) {
    editor_ = new DateEdit(column.editor == CellEditor::DateTime, column.picture, parent);
  } else {
    editor_ = new QLineEdit(parent);
  }
  if (QLineEdit* line = LineOf(editor_)) {
    line->setMaxLength(column.maxLength > 0 ? column.maxLength : 32767);
    line->setAlignment(column.editor == CellEditor::Number ? Qt::AlignRight : column.alignment);
  }
  editor_->setObjectName(QStringLiteral("CellEditor"));
  const QVariant caption =
      core_.model.headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole);
  editor_->setAccessibleName(caption.toString());
  editor_->setAutoFillBackground(true);
  if (qobject_cast<QLineEdit*>(editor_)) {
    // Named, so that the calendar that a date cell drops keeps the look of a calendar.
    editor_->setStyleSheet(
        QStringLiteral("#CellEditor { border: 3px solid palette(highlight);"
                       "background: palette(base); padding-left: 5px; }"));
  }
  return editor_;
}

QWidget* GridDelegate::CreateList(QWidget* parent, const QModelIndex& index) const {
  const GridColumn& column = core_.model.Column(index.column());
  auto* combo = new ListEdit(column.editor == CellEditor::Combo, parent);
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setMaxVisibleItems(14);
  for (const ValueItem& item : column.values.Items()) combo->addItem(item.text);
  // A choice from the open list ends the edit: that is what it was opened for.
  connect(combo, &ListEdit::Chosen, this, [this, combo] {
    if (editor_ == combo) core_.CloseCell(true);
  });
  return combo;
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* combo = qobject_cast<QComboBox*>(editor);
  if (combo && !combo->isEditable()) {
    const GridColumn& column = core_.model.Column(index.column());
    combo->setCurrentIndex(
        column.values.IndexOf(core_.model.CellValue(index.row(), index.column())));
    combo->setProperty(Initial, combo->currentIndex());
  } else if (QLineEdit* line = LineOf(editor)) {
    line->setText(core_.model.EditText(index.row(), index.column()));
    editor->setProperty(Initial, line->text());
    line->selectAll();
  }
}

void GridDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                const QModelIndex& index) const {
  const GridColumn& column = core_.model.Column(index.column());
  auto* combo = qobject_cast<QComboBox*>(editor);
  if (combo && !combo->isEditable()) {
    const int item = combo->currentIndex();
    const bool changed = item >= 0 && item != combo->property(Initial).toInt();
    const tavrelin::Value code = changed ? column.values.Items()[item].code : tavrelin::Value();
    core_.TakeOver(index.column(), code, changed);
  } else if (QLineEdit* line = LineOf(editor)) {
    const bool changed = line->text() != editor->property(Initial).toString();
    core_.TakeOver(index.column(), TypedValue(column, line->text()), changed);
  }
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
  // An open cell stands out over its neighbors, further where it would be too narrow to type in.
  const int least = editor->fontMetrics().averageCharWidth() * 10;
  QRect box = option.rect.adjusted(-4, -4, 4, 4);
  if (box.width() < least) box.setWidth(least);
  if (qobject_cast<DateEdit*>(editor)) box.setWidth(qMax(box.width(), least * 2));
  box.moveTopLeft(QPoint(qMax(0, box.left()), qMax(0, box.top())));
  const int right = editor->parentWidget()->width();
  if (box.right() >= right) box.moveRight(qMax(right - 1, box.width() - 1));
  editor->setGeometry(box);
}

void GridDelegate::DropDown() {
  if (auto* combo = qobject_cast<QComboBox*>(Editor())) {
    combo->showPopup();
  } else if (auto* date = qobject_cast<DateEdit*>(Editor())) {
    date->DropDown();
  }
}

void GridDelegate::Type(QKeyEvent* event) {
  QLineEdit* line = LineOf(Editor());
  if (!line) {
    QCoreApplication::sendEvent(Editor(), event);
  } else if (event->key() == Qt::Key_Backspace) {
    if (!Filter(line, event)) line->clear();
  } else if (!Filter(line, event)) {
    line->insert(event->text());
  }
}

// True when the character was swallowed or replaced.
bool GridDelegate::Filter(QLineEdit* line, QKeyEvent* event) {
  const QString text = event->text();
  const bool backspace = event->key() == Qt::Key_Backspace;
  if (!backspace && (text.size() != 1 || !text[0].isPrint())) return false;
  const GridColumn& column = core_.model.Column(core_.Column());
  const QChar typed = backspace ? QLatin1Char('\b') : text[0];
  GridKeyPress press{column.Key(), column.upperCase ? typed.toUpper() : typed};
  if (!core_.Raise("KeyPress", core_.face.on.KeyPress, press)) return true;
  if (press.character == typed) return false;
  if (!press.character.isNull()) line->insert(press.character);
  return true;
}

bool GridDelegate::eventFilter(QObject* object, QEvent* event) {
  if (!Editor()) return false;
  if (event->type() == QEvent::KeyPress) {
    return KeyInEditor(static_cast<QKeyEvent*>(event));
  }
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) return false;
    const QWidget* now = QApplication::focusWidget();
    while (now && now != Editor()) now = now->parentWidget();
    if (!now) core_.CloseCell(true);
    return false;
  }
  return event->type() == QEvent::ShortcutOverride &&
         static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
         QStyledItemDelegate::eventFilter(object, event);
}

bool GridDelegate::KeyInEditor(QKeyEvent* event) {
  auto* combo = qobject_cast<QComboBox*>(Editor());
  const bool list = combo != nullptr;
  switch (event->key()) {
    case Qt::Key_Escape:
      core_.Undo();
      return true;
    case Qt::Key_F4:
      DropDown();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return Leave(event);
    case Qt::Key_Down:
      if (event->modifiers() & Qt::AltModifier) {
        DropDown();
        return true;
      }
      [[fallthrough]];
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return !list && Leave(event);
    default:
      break;
  }
  QLineEdit* line = LineOf(Editor());
  return line && Filter(line, event);
}

// Takes the cell over; the key then works as it does on the cell.
bool GridDelegate::Leave(QKeyEvent* event) {
  core_.CloseCell(true);
  QCoreApplication::sendEvent(core_.view, event);
  return true;
}

}  // namespace tavrelin
