#include "controls/CardView.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridKeys.h"
#include "controls/GridMenu.h"

namespace tavrelin {

namespace {

constexpr int Gap = 12;    // between cards
constexpr int Inside = 8;  // between a card's edge and its fields
constexpr int CellChars = 26;
constexpr int CompactChars = 9;

}  // namespace

CardView::CardView(GridCore& core, GridKeys& keys, QWidget* parent)
    : QTableView(parent),
      core_(core),
      keys_(keys),
      mouse_(core),
      delegate_(new GridDelegate(core, this)) {
  setModel(&core.model);
  setSelectionModel(&core.cursor);
  setItemDelegate(delegate_);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerPixel);
  horizontalHeader()->hide();
  verticalHeader()->hide();
  // The button in the corner of a table's headers stays behind when these are hidden.
  for (auto* corner : findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
    corner->hide();
  }
  LayOutFields();
}

void CardView::SetEmptyText(const QString& text) {
  emptyText_ = text;
  viewport()->update();
}

// Captions stand in a column as wide as the longest. Compact columns are put side by side as long
// as they follow each other.
void CardView::LayOutFields() {
  const int height = GridDelegate::RowHeight(*this), unit = fontMetrics().averageCharWidth();
  const QList<int> shown = core_.model.VisibleColumns();
  int caption = 6 * unit;
  for (int number : shown) {
    caption = qMax(caption, fontMetrics().horizontalAdvance(core_.model.Column(number).caption));
  }
  caption += unit;
  const int compact = CompactChars * unit;
  const int cell = qMax(CellChars * unit, 2 * compact + caption + unit);
  fields_.clear();
  int top = Inside + height;
  bool second = false;
  for (int number : shown) {
    const bool small = core_.model.Column(number).compact;
    if (!small && second) top += height;
    second = small && second;
    const int left = Inside + (second ? caption + compact + unit : 0);
    fields_.push_back({number, QRect(left, top, caption, height),
                       QRect(left + caption, top, small ? compact : cell, height)});
    if (small && !second) {
      second = true;
    } else {
      second = false;
      top += height;
    }
  }
  if (second) top += height;
  card_ = QSize(2 * Inside + caption + cell, top + Inside);
  updateGeometries();
  viewport()->update();
}

int CardView::CardsPerRow() const {
  return qMax(1, (viewport()->width() - Gap) / CardStep().width());
}

QSize CardView::CardStep() const {
  return card_ + QSize(Gap, Gap);
}

QRect CardView::CardRect(int line) const {
  const int row = line / CardsPerRow(), column = line % CardsPerRow();
  return QRect(QPoint(Gap + column * CardStep().width() - horizontalOffset(),
                      Gap + row * CardStep().height() - verticalOffset()),
               card_);
}

const CardView::FieldPlace* CardView::PlaceOf(int number) const {
  for (const FieldPlace& place : fields_) {
    if (place.number == number) return &place;
  }
  return nullptr;
}

QRect CardView::visualRect(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const QRect card = CardRect(index.row());
  const int height = GridDelegate::RowHeight(*this);
  if (index.column() == 0) return QRect(card.left(), card.top(), card.width(), height);
  const FieldPlace* place = PlaceOf(index.column());
  return place ? place->cell.translated(card.topLeft()) : QRect();
}

QModelIndex CardView::indexAt(const QPoint& point) const {
  const int x = point.x() + horizontalOffset() - Gap, y = point.y() + verticalOffset() - Gap;
  if (x < 0 || y < 0) return {};
  const int column = x / CardStep().width(), row = y / CardStep().height();
  const int line = row * CardsPerRow() + column;
  if (column >= CardsPerRow() || line >= core_.model.rowCount()) return {};
  const QRect card = CardRect(line);
  if (!card.contains(point)) return {};
  for (const FieldPlace& place : fields_) {
    const QRect whole = place.cell.united(place.caption).translated(card.topLeft());
    if (whole.contains(point)) return core_.model.index(line, place.number);
  }
  return core_.model.index(line, 0);
}

void CardView::scrollTo(const QModelIndex& index, ScrollHint) {
  if (!index.isValid()) return;
  const QRect card = CardRect(index.row()), cell = visualRect(index);
  const QRect wanted =
      card.height() <= viewport()->height() ? card.adjusted(0, -Gap, 0, Gap) : cell;
  QScrollBar* bar = verticalScrollBar();
  if (wanted.top() < 0) {
    bar->setValue(bar->value() + wanted.top());
  } else if (wanted.bottom() > viewport()->height()) {
    bar->setValue(bar->value() + wanted.bottom() - viewport()->height());
  }
}

QModelIndex CardView::moveCursor(CursorAction, Qt::KeyboardModifiers) {
  return core_.cursor.currentIndex();
}

int CardView::horizontalOffset() const {
  return horizontalScrollBar()->value();
}

int CardView::verticalOffset() const {
  return verticalScrollBar()->value();
}

bool CardView::isIndexHidden(const QModelIndex& index) const {
  return index.column() > 0 && !PlaceOf(index.column());
}

void CardView::updateGeometries() {
  QAbstractItemView::updateGeometries();
  const int rows = (core_.model.rowCount() + CardsPerRow() - 1) / CardsPerRow();
  const int height = rows * CardStep().height() + Gap;
  verticalScrollBar()->setRange(0, qMax(0, height - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(GridDelegate::RowHeight(*this));
  horizontalScrollBar()->setRange(0, qMax(0, CardStep().width() + Gap - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
}

void CardView::scrollContentsBy(int dx, int dy) {
  QAbstractItemView::scrollContentsBy(dx, dy);
  viewport()->update();
}

void CardView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), palette().color(QPalette::Window));
  const int lines = core_.model.rowCount(), perRow = CardsPerRow();
  const int first = qMax(0, (event->rect().top() + verticalOffset() - Gap) / CardStep().height());
  const int last = (event->rect().bottom() + verticalOffset()) / CardStep().height();
  for (int line = first * perRow; line < qMin(lines, (last + 1) * perRow); ++line) {
    PaintCard(painter, line);
  }
  if (core_.model.Rows().Records() > 0 || emptyText_.isEmpty()) return;
  painter.setPen(GridDelegate::HintColor(palette()));
  const int top = lines > 0 ? CardStep().height() + Gap : Gap;
  painter.drawText(viewport()->rect().adjusted(16, top, -16, -16),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
}

void CardView::PaintCard(QPainter& painter, int line) const {
  const QRect card = CardRect(line);
  const bool current = line == core_.Line();
  painter.fillRect(card, palette().color(QPalette::Base));
  QStyleOptionViewItem head;
  initViewItemOption(&head);
  head.widget = this;
  head.rect = visualRect(core_.model.index(line, 0));
  delegate_->PaintCardHead(&painter, head, line);
  for (const FieldPlace& place : fields_) {
    if (core_.model.Rows().RowAt(line) != 0) PaintField(painter, line, place);
  }
  painter.setBrush(Qt::NoBrush);
  const QPalette::ColorRole edge = current ? QPalette::Highlight : QPalette::Mid;
  painter.setPen(QPen(palette().color(edge), current && core_.HasFocus() ? 3 : 1));
  painter.drawRect(card);
}

void CardView::PaintField(QPainter& painter, int line, const FieldPlace& place) const {
  const QRect card = CardRect(line);
  painter.setPen(palette().color(QPalette::Text));
  painter.setFont(font());
  painter.drawText(place.caption.translated(card.topLeft()), Qt::AlignLeft | Qt::AlignVCenter,
                   core_.model.Column(place.number).caption);
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.widget = this;
  option.rect = place.cell.translated(card.topLeft());
  delegate_->paint(&painter, option, core_.model.index(line, place.number));
}

void CardView::keyPressEvent(QKeyEvent* event) {
  keys_.cards = true;
  keys_.linesPerPage = CardsPerRow() * qMax(1, viewport()->height() / CardStep().height());
  const bool control = event->modifiers() & Qt::ControlModifier;
  if (control && (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)) {
    QAbstractItemView::focusNextPrevChild(event->key() == Qt::Key_Tab);
  } else if (!keys_.Press(event)) {
    event->ignore();
  }
}

bool CardView::focusNextPrevChild(bool next) {
  return keys_.Tab(next) || QAbstractItemView::focusNextPrevChild(next);
}

void CardView::mousePressEvent(QMouseEvent* event) {
  mouse_.Press(this, event);
}

void CardView::mouseReleaseEvent(QMouseEvent* event) {
  mouse_.Release(this, event);
}

void CardView::mouseDoubleClickEvent(QMouseEvent* event) {
  mouse_.DoubleClick(this, event);
}

void CardView::contextMenuEvent(QContextMenuEvent* event) {
  ShowGridMenu(core_, event);
}

void CardView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOutFields();
}

}  // namespace tavrelin
