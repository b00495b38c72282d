#include "controls/DateEdit.h"

#include <QAction>
#include <QCalendarWidget>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "basic/Conversions.h"
#include "basic/Picture.h"

namespace tavrelin {

namespace {

// A sheet of a calendar in the color of the text, so that it shows in light and dark.
QIcon CalendarIcon(const QColor& ink, int side) {
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  const double unit = side / 16.0;
  painter.setPen(QPen(ink, unit * 1.4));
  painter.drawRect(QRectF(2 * unit, 3 * unit, 12 * unit, 11 * unit));
  painter.fillRect(QRectF(2 * unit, 3 * unit, 12 * unit, 3 * unit), ink);
  for (const double y : {8.0, 11.0}) {
    for (const double x : {4.0, 7.0, 10.0})
      painter.fillRect(QRectF(x * unit, y * unit, 2 * unit, 2 * unit), ink);
  }
  return picture;
}

}  // namespace

DateEdit::DateEdit(bool keepsTime, const QString& picture, QWidget* parent)
    : QLineEdit(parent), keepsTime_(keepsTime), picture_(picture) {
  QAction* drop = addAction(CalendarIcon(palette().color(QPalette::Text), 32), TrailingPosition);
  drop->setText(tr("Calendar"));
  drop->setToolTip(tr("Calendar (F4)"));
  connect(drop, &QAction::triggered, this, &DateEdit::DropDown);
}

void DateEdit::DropDown() {
  auto* popup = new QFrame(this, Qt::Popup);
  popup->setAttribute(Qt::WA_DeleteOnClose);
  popup->setFrameShape(QFrame::StyledPanel);
  auto* calendar = new QCalendarWidget(popup);
  calendar->setObjectName(QStringLiteral("Calendar"));
  calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setGridVisible(false);
  const auto typed = ReadDate(text());
  if (typed) calendar->setSelectedDate(typed->date());
  auto* layout = new QVBoxLayout(popup);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(calendar);
  connect(calendar, &QCalendarWidget::activated, this, [this, popup](const QDate& day) {
    Pick(day);
    popup->close();
  });
  popup->adjustSize();
  QPoint corner = mapToGlobal(QPoint(0, height()));
  const QRect desk = screen()->availableGeometry();
  if (corner.y() + popup->height() > desk.bottom()) {
    corner.setY(mapToGlobal(QPoint(0, 0)).y() - popup->height());
  }
  corner.setX(qBound(desk.left(), corner.x(), qMax(desk.left(), desk.right() - popup->width())));
  popup->move(corner);
  popup->show();
  calendar->setFocus();
}

void DateEdit::Pick(const QDate& day) {
  const auto before = ReadDate(text());
  const QTime time = keepsTime_ && before ? before->time() : QTime(0, 0);
  setText(Format(QDateTime(day, time), picture_));
}

}  // namespace tavrelin
