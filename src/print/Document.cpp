#include "print/Document.h"

#include <optional>
#include <QFontMetricsF>
#include <QPainter>

#include "print/Fonts.h"

namespace tavrelin {

namespace {

// Draws marks one after the other. Most follow each other in one font, which is set up once then.
class MarkPainter {
 public:
  explicit MarkPainter(QPainter& painter) : painter_(painter) {}

  void operator()(const TextMark& mark) {
    UseFont(mark.font);
    painter_.setPen(Qt::black);
    if (mark.angle == 0) {
      painter_.drawText(QPointF(mark.x, mark.y + ascent_), mark.text);
      return;
    }
    painter_.save();
    painter_.translate(mark.x, mark.y);
    painter_.rotate(-mark.angle);
    painter_.drawText(QPointF(0, ascent_), mark.text);
    painter_.restore();
  }

  void operator()(const LineMark& mark) {
    painter_.setPen(QPen(Qt::black, mark.width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    if (mark.box) {
      painter_.drawRect(QRectF(QPointF(mark.x1, mark.y1), QPointF(mark.x2, mark.y2)).normalized());
    } else {
      painter_.drawLine(mark.x1, mark.y1, mark.x2, mark.y2);
    }
  }

 private:
  void UseFont(const PageFont& font) {
    if (font_ == font) return;
    font_ = font;
    const QFont drawn = TwipFont(font);
    ascent_ = QFontMetricsF(drawn).ascent();
    painter_.setFont(drawn);
  }

  QPainter& painter_;
  std::optional<PageFont> font_;
  qreal ascent_ = 0;
};

}  // namespace

QPageLayout LetterPage(Orientation orientation) {
  return QPageLayout(
      QPageSize(QPageSize::Letter),
      orientation == Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
      QMarginsF());
}

void PaintPage(QPainter& painter, const Page& page) {
  painter.save();
  MarkPainter draw(painter);
  for (const Mark& mark : page.marks) std::visit(draw, mark);
  painter.restore();
}

}  // namespace tavrelin
