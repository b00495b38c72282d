#include "controls/ListEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QWheelEvent>

namespace tavrelin {

namespace {

constexpr int MostSuggestions = 100, MostShown = 8;

// What people type of "MN-25-A01" may be "mn25a".
QString LettersAndDigits(const QString& text) {
  QString plain;
  for (const QChar character : text) {
    if (character.isLetterOrNumber()) plain.append(character.toLower());
  }
  return plain;
}

QListWidget* NewSuggestions(QWidget* window) {
  auto* list = new QListWidget(window);
  list->setObjectName(QStringLiteral("Suggestions"));
  list->setFocusPolicy(Qt::NoFocus);
  list->viewport()->setFocusPolicy(Qt::NoFocus);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setUniformItemSizes(true);
  list->setStyleSheet(QStringLiteral("QListWidget::item { padding: 5px 3px; }"));
  list->hide();
  return list;
}

}  // namespace

ListEdit::ListEdit(bool editable, QWidget* parent) : QComboBox(parent) {
  connect(this, &QComboBox::activated, this, [this] {
    if (!byKey_) Q_EMIT Chosen();
  });
  if (!editable) return;
  setEditable(true);
  // A completer's list is a window of its own: it would take the keys past the grid, Tab included.
  setCompleter(nullptr);
  suggestions_ = NewSuggestions(parent->window());
  suggestions_->setFont(font());
  connect(lineEdit(), &QLineEdit::textEdited, this, &ListEdit::Suggest);
  connect(suggestions_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
    setEditText(item->text());
    Q_EMIT Chosen();
  });
}

ListEdit::~ListEdit() {
  delete suggestions_;
}

void ListEdit::keyPressEvent(QKeyEvent* event) {
  if (Walk(event->key()) || Search(event->text())) return;
  byKey_ = true;
  QComboBox::keyPressEvent(event);
  byKey_ = false;
}

// True when the text was a part of a word.
bool ListEdit::Search(const QString& typed) {
  if (isEditable() || typed.isEmpty() || !typed[0].isPrint()) return false;
  const bool begins = !pause_.isValid() || pause_.elapsed() > QApplication::keyboardInputInterval();
  if (begins && typed == QLatin1String(" ")) return false;
  searched_ = begins ? typed : searched_ + typed;
  pause_.start();
  int found = findText(searched_, Qt::MatchStartsWith);
  if (found < 0 && searched_.count(typed, Qt::CaseInsensitive) == searched_.size()) {
    found = NextAfter(typed);
  }
  if (found >= 0) setCurrentIndex(found);
  return true;
}

int ListEdit::NextAfter(const QString& start) const {
  for (int step = 1; step <= count(); ++step) {
    const int index = (currentIndex() + step) % count();
    if (itemText(index).startsWith(start, Qt::CaseInsensitive)) return index;
  }
  return -1;
}

void ListEdit::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

void ListEdit::hideEvent(QHideEvent* event) {
  if (suggestions_) suggestions_->hide();
  QComboBox::hideEvent(event);
}

QStringList ListEdit::Matches(const QString& typed) const {
  const QString start = LettersAndDigits(typed);
  QStringList matches;
  for (int i = 0; i < count() && !start.isEmpty() && matches.size() < MostSuggestions; ++i) {
    if (LettersAndDigits(itemText(i)).startsWith(start)) matches.append(itemText(i));
  }
  return matches;
}

void ListEdit::Suggest(const QString& typed) {
  const QStringList matches = Matches(typed);
  suggestions_->clear();
  suggestions_->addItems(matches);
  suggestions_->setVisible(!matches.isEmpty());
  if (!matches.isEmpty()) PlaceSuggestions();
}

// Under the cell, or over it where the window ends.
void ListEdit::PlaceSuggestions() {
  const int rows = qMin(suggestions_->count(), MostShown);
  const int frame = 2 * suggestions_->frameWidth();
  suggestions_->resize(width(), rows * suggestions_->sizeHintForRow(0) + frame);
  QPoint corner = mapTo(suggestions_->parentWidget(), QPoint(0, height()));
  const bool over = corner.y() + suggestions_->height() > suggestions_->parentWidget()->height();
  if (over) corner.ry() -= height() + suggestions_->height();
  suggestions_->move(corner);
  suggestions_->raise();
}

// True when the key went to the suggestions.
bool ListEdit::Walk(int key) {
  if (!suggestions_ || !suggestions_->isVisible()) return false;
  if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
  const int last = suggestions_->count() - 1;
  const int next = suggestions_->currentRow() + (key == Qt::Key_Down ? 1 : -1);
  suggestions_->setCurrentRow(qBound(0, next, last));
  setEditText(suggestions_->currentItem()->text());
  return true;
}

}  // namespace tavrelin
