#include "controls/Backdrop.h"

#include <QPainter>
#include <QSvgRenderer>

namespace tavrelin {

Backdrop::Backdrop(const QString& file, QWidget* parent)
    : QWidget(parent), drawing_(std::make_unique<QSvgRenderer>(file)) {}

Backdrop::~Backdrop() = default;

QSize Backdrop::sizeHint() const {
  return drawing_->defaultSize();
}

void Backdrop::paintEvent(QPaintEvent*) {
  if (!drawing_->isValid()) return;
  QSizeF whole = drawing_->defaultSize();
  whole.scale(size(), Qt::KeepAspectRatioByExpanding);
  QRectF place(QPointF(), whole);
  place.moveCenter(QRectF(rect()).center());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing_->render(&painter, place);
}

}  // namespace tavrelin
