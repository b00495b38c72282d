#include "controls/GridHeader.h"

#include <QDrag>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QStyleHints>
#include <QToolTip>

#include "controls/GridCore.h"
#include "controls/GridEX.h"

namespace tavrelin {

namespace {

// Captions stand over their texts: with the same margin at the side.
class HeaderStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    return metric == PM_HeaderMargin ? 7 : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

}  // namespace

GridHeader::GridHeader(GridCore& core, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), core_(core), style_(new HeaderStyle) {
  setStyle(style_.get());
  setSectionsClickable(true);
  setHighlightSections(false);
  setTextElideMode(Qt::ElideRight);
  setSortIndicatorShown(true);
  setMinimumSectionSize(20);
  setStretchLastSection(false);
  connect(this, &QHeaderView::sectionClicked, this, [this](int number) {
    core_.HeaderClicked(number);
    ShowSortKey();
  });
}

GridHeader::~GridHeader() {
  setStyle(nullptr);
}

QString GridHeader::DragKind() {
  return QStringLiteral("application/x-tavrelin-column");
}

int GridHeader::CaptionWidth(int number) const {
  const QString caption = core_.model.Column(number).caption;
  return fontMetrics().horizontalAdvance(caption) + 14 + (caption.isEmpty() ? 0 : 14);
}

void GridHeader::ShowSortKey() {
  if (core_.sortKeys.isEmpty()) {
    setSortIndicator(-1, Qt::AscendingOrder);
    return;
  }
  const GridSortKey& key = core_.sortKeys.first();
  setSortIndicator(core_.model.ColumnNumber(key.column),
                   key.order == SortOrder::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

QSize GridHeader::sizeHint() const {
  QSize size = QHeaderView::sizeHint();
  size.setHeight(qMax(size.height(), fontMetrics().height() + 14));
  return size;
}

void GridHeader::mousePressEvent(QMouseEvent* event) {
  pressedAt_ = event->position().toPoint();
  pressed_ = cursor().shape() == Qt::SplitHCursor ? -1 : logicalIndexAt(pressedAt_);
  QHeaderView::mousePressEvent(event);
}

void GridHeader::mouseMoveEvent(QMouseEvent* event) {
  const int distance = (event->position().toPoint() - pressedAt_).manhattanLength();
  const bool drags = (event->buttons() & Qt::LeftButton) && pressed_ > 0 &&
                     core_.face.GroupByBoxVisible() &&
                     distance >= QGuiApplication::styleHints()->startDragDistance();
  if (!drags) {
    QHeaderView::mouseMoveEvent(event);
    return;
  }
  auto* column = new QMimeData;
  column->setData(DragKind(), core_.model.Column(pressed_).Key().toUtf8());
  auto* drag = new QDrag(this);
  drag->setMimeData(column);
  drag->setPixmap(
      grab(QRect(sectionViewportPosition(pressed_), 0, sectionSize(pressed_), height())));
  pressed_ = -1;
  drag->exec(Qt::MoveAction);
}

bool GridHeader::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QHeaderView::viewportEvent(event);
  auto* help = static_cast<QHelpEvent*>(event);
  const int number = logicalIndexAt(help->pos());
  const bool cut = number > 0 && sectionSize(number) < CaptionWidth(number);
  QToolTip::showText(help->globalPos(), cut ? core_.model.Column(number).caption : QString(), this);
  return true;
}

}  // namespace tavrelin
