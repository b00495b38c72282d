#include "controls/GridView.h"

#include <cmath>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridHeader.h"
#include "controls/GridKeys.h"
#include "controls/GridMenu.h"

namespace tavrelin {

GridView::GridView(GridCore& core, GridKeys& keys, QWidget* parent)
    : QTableView(parent),
      core_(core),
      keys_(keys),
      mouse_(core),
      header_(new GridHeader(core, this)) {
  setHorizontalHeader(header_);
  setModel(&core.model);
  setSelectionModel(&core.cursor);
  setItemDelegate(new GridDelegate(core, this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);  // a click on a caption must not move the cursor
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->hide();
  LayOutColumns();
}

void GridView::SetEmptyText(const QString& text) {
  emptyText_ = text;
  viewport()->update();
}

// Widths were drawn for a font whose digits are six pixels wide; they keep their characters in
// whatever font the platform has.
int GridView::Pixels(int twips) const {
  const double digit = fontMetrics().horizontalAdvance(QStringLiteral("0000000000")) / 10.0;
  return static_cast<int>(std::ceil(twips / 15.0 * digit / 6.0));
}

// Neither its caption nor what its picture writes is ever cut.
int GridView::WidthOf(int number) const {
  const GridColumn& column = core_.model.Column(number);
  const QString widest = WidestText(column);
  const int picture = widest.isEmpty() ? 0 : GridDelegate::RoomFor(*this, widest);
  return qMax(picture, qMax(Pixels(column.width), header_->CaptionWidth(number)));
}

void GridView::LayOutColumns() {
  verticalHeader()->setDefaultSectionSize(GridDelegate::RowHeight(*this));
  verticalHeader()->setMinimumSectionSize(GridDelegate::RowHeight(*this));
  if (header_->count() == 0) return;
  const QList<int> shown = core_.model.VisibleColumns();
  header_->resizeSection(0, GridDelegate::RowHeight(*this) * 3 / 4);
  header_->setSectionResizeMode(0, QHeaderView::Fixed);
  for (int number = 1; number < header_->count(); ++number) {
    header_->setSectionHidden(number, !shown.contains(number));
  }
  for (int i = 0; i < shown.size(); ++i) {
    header_->moveSection(header_->visualIndex(shown[i]), i + 1);
    header_->resizeSection(shown[i], WidthOf(shown[i]));
  }
  header_->ShowSortKey();
  FillWidth();
}

void GridView::FillWidth() {
  QList<int> fillers;
  for (int number : core_.model.VisibleColumns()) {
    if (core_.model.Column(number).fill) fillers.append(number);
  }
  if (fillers.isEmpty()) return;
  int taken = 0;
  for (int i = 0; i < header_->count(); ++i) {
    if (!header_->isSectionHidden(i) && !fillers.contains(i)) taken += header_->sectionSize(i);
  }
  const int share = (viewport()->width() - taken) / static_cast<int>(fillers.size());
  for (int number : fillers) {
    header_->resizeSection(number, qMax(share, WidthOf(number)));
  }
}

void GridView::keyPressEvent(QKeyEvent* event) {
  keys_.cards = false;
  keys_.linesPerPage = qMax(1, viewport()->height() / verticalHeader()->defaultSectionSize() - 1);
  const bool control = event->modifiers() & Qt::ControlModifier;
  if (control && (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)) {
    QTableView::focusNextPrevChild(event->key() == Qt::Key_Tab);
  } else if (!keys_.Press(event)) {
    event->ignore();
  }
}

bool GridView::focusNextPrevChild(bool next) {
  return keys_.Tab(next) || QTableView::focusNextPrevChild(next);
}

void GridView::mousePressEvent(QMouseEvent* event) {
  mouse_.Press(this, event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  mouse_.Release(this, event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  mouse_.DoubleClick(this, event);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  ShowGridMenu(core_, event);
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (core_.model.Rows().Records() > 0 || emptyText_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(GridDelegate::HintColor(palette()));
  const int top = core_.model.rowCount() * verticalHeader()->defaultSectionSize();
  painter.drawText(viewport()->rect().adjusted(16, top + 16, -16, -16),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FillWidth();
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOutColumns();
}

}  // namespace tavrelin
