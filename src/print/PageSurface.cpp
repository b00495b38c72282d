#include "print/PageSurface.h"

#include <QPainter>
#include <QPaintEvent>

#include "basic/Twips.h"

namespace tavrelin {

QSize PreviewPage(Orientation orientation) {
  return orientation == Orientation::Landscape ? QSize(1000, 800) : QSize(800, 1000);
}

PageSurface::PageSurface(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PageSurface::SetDocument(const Document& document) {
  document_ = document;
  update();
}

void PageSurface::SetPageSize(QSize size) {
  size_ = size;
  Fit();
}

void PageSurface::SetZoom(double zoom) {
  zoom_ = zoom;
  Fit();
}

void PageSurface::Fit() {
  resize(qRound(size_.width() * zoom_), qRound(size_.height() * zoom_));
  update();
}

int PageSurface::TopOfPage(int page) const {
  int top = 0;
  for (int i = 0; i < page - 1 && i < PageCount(); ++i) {
    top += PreviewPage(document_.pages[i].orientation).height();
  }
  return qRound(top * zoom_);
}

int PageSurface::PageAt(int y) const {
  int page = 1;
  while (page < PageCount() && TopOfPage(page + 1) <= y) ++page;
  return page;
}

// Paper stays white in a dark desktop. A page may write a little beyond its lower edge, so each is
// drawn over the white of all before it.
void PageSurface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::white);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const int first = PageAt(event->rect().top());
  const int last = PageAt(event->rect().bottom());
  for (int page = first; page <= last && page <= PageCount(); ++page) {
    painter.save();
    painter.translate(0, TopOfPage(page));
    if (page > 1) painter.fillRect(0, 0, width(), 1, QColor(0x9a, 0x9a, 0x9a));
    painter.scale(zoom_ / TwipsPerPixel, zoom_ / TwipsPerPixel);
    PaintPage(painter, document_.pages[page - 1]);
    painter.restore();
    ++pagesDrawn_;
  }
}

}  // namespace tavrelin
