#include "controls/BarButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace tavrelin {

namespace {

// Logical pixels, on the 8-pixel rhythm of the program.
constexpr int IconSide = 24;
constexpr int Margin = 12;
constexpr int Gap = 12;
constexpr int ArrowRoom = 24;
constexpr int LeastHeight = 40;
constexpr int MarkWidth = 4;

}  // namespace

BarButton::BarButton(const QString& group, const QString& item, const QIcon& icon, QWidget* parent)
    : QAbstractButton(parent), group_(group), item_(item) {
  setText(IsHeader() ? group : item);
  setIcon(icon);
  setCheckable(true);
  setObjectName(IsHeader() ? group : group + QLatin1Char('/') + item);
  setAccessibleName(IsHeader() ? group + QLatin1String(", group")
                               : item + QLatin1String(", ") + group);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::ClickFocus);
}

QFont BarButton::TextFont() const {
  QFont textFont = font();
  textFont.setBold(IsHeader() || isChecked());
  return textFont;
}

QSize BarButton::sizeHint() const {
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const int width = Margin + IconSide + Gap + metrics.horizontalAdvance(text()) + Gap + ArrowRoom;
  return {width, qMax(LeastHeight, metrics.height() + 16)};
}

// The marked item is told by a bar at its edge and bold text as well as by its ground, so that no
// meaning rests on color alone.
void BarButton::PaintGround(QPainter& painter) const {
  const QColor accent = palette().color(QPalette::Highlight);
  if (IsHeader()) {
    painter.fillRect(rect(), palette().color(QPalette::Button));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(rect().bottomLeft(), rect().bottomRight());
  }
  QColor tint = accent;
  tint.setAlphaF(isDown() ? 0.45F : isChecked() && !IsHeader() ? 0.25F : 0.12F);
  const bool tinted = isDown() || underMouse() || (isChecked() && !IsHeader());
  if (tinted) painter.fillRect(rect(), tint);
  if (isChecked() && !IsHeader()) painter.fillRect(QRect(0, 0, MarkWidth, height()), accent);
}

void BarButton::PaintArrow(QPainter& painter) const {
  painter.setPen(QPen(palette().color(QPalette::WindowText), 2, Qt::SolidLine, Qt::RoundCap));
  const QPointF middle(width() - ArrowRoom / 2 - 2, height() / 2.0);
  QPainterPath arrow;
  arrow.moveTo(isChecked() ? middle + QPointF(-5, -2.5) : middle + QPointF(-2.5, -5));
  arrow.lineTo(middle + QPointF(2.5, isChecked() ? 2.5 : 0) - QPointF(isChecked() ? 2.5 : 0, 0));
  arrow.lineTo(isChecked() ? middle + QPointF(5, -2.5) : middle + QPointF(-2.5, 5));
  painter.drawPath(arrow);
}

void BarButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintGround(painter);
  icon().paint(&painter, QRect(Margin, (height() - IconSide) / 2, IconSide, IconSide));
  painter.setFont(TextFont());
  painter.setPen(palette().color(QPalette::WindowText));
  const int left = Margin + IconSide + Gap;
  painter.drawText(QRect(left, 0, width() - left, height()),
                   Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text());
  if (IsHeader()) PaintArrow(painter);
  if (!hasFocus()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 3, 3);
}

void BarButton::keyPressEvent(QKeyEvent* event) {
  const bool press = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (press) {
    click();
  } else if (event->key() == Qt::Key_Space) {
    QAbstractButton::keyPressEvent(event);
  } else {
    event->ignore();  // walking is the bar's work
  }
}

// The press brought the focus here, unless a row that would not be left has taken it back: then its
// screen stays, too.
void BarButton::mouseReleaseEvent(QMouseEvent* event) {
  if (window()->focusWidget() == this) {
    QAbstractButton::mouseReleaseEvent(event);
  } else {
    setDown(false);
  }
}

void BarButton::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void BarButton::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

}  // namespace tavrelin
