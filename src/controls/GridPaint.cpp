#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridView.h"

namespace tavrelin {

namespace {

constexpr int Margin = 8;  // beside the text of a cell, in pixels at 96 dpi

QColor Blend(const QColor& base, const QColor& ink, int percent) {
  const auto mix = [percent](int a, int b) { return (a * (100 - percent) + b * percent) / 100; };
  return QColor(mix(base.red(), ink.red()), mix(base.green(), ink.green()),
                mix(base.blue(), ink.blue()));
}

CellLook LookOf(const GridCore& core, const QStyleOptionViewItem& option,
                const QModelIndex& index) {
  CellLook look{};
  const QPalette& palette = option.palette;
  const QColor base = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
  const QColor accent = palette.color(QPalette::Highlight);
  look.focus = core.HasFocus();
  look.currentRow = index.row() == core.Line();
  look.wholeRow = look.currentRow && core.Column() == 0;
  look.currentCell = look.currentRow && !look.wholeRow && index.column() == core.Column();
  look.ink = text;
  const bool table = qobject_cast<const GridView*>(option.widget);
  look.paper = index.row() % 2 == 0 || !table ? base : Blend(base, text, 4);
  if (!table && index.column() > 0 && !look.currentCell) return look;
  if (look.currentCell) {
    look.paper = base;
  } else if (look.wholeRow && look.focus) {
    look.paper = accent;
    look.ink = palette.color(QPalette::HighlightedText);
  } else if (look.currentRow) {
    look.paper = Blend(base, accent, look.focus ? 25 : 15);
  }
  return look;
}

void PaintTriangle(QPainter& painter, const QRectF& box) {
  painter.drawPolygon(QPolygonF(
      {{box.left(), box.top()}, {box.right(), box.center().y()}, {box.left(), box.bottom()}}));
}

void PaintPencil(QPainter& painter, const QRectF& box) {
  const double x = box.left(), y = box.top(), unit = box.width() / 10;
  painter.drawPolygon(QPolygonF({{x + 7 * unit, y},
                                 {x + 10 * unit, y + 3 * unit},
                                 {x + 4 * unit, y + 9 * unit},
                                 {x + 1 * unit, y + 6 * unit}}));
  painter.drawPolygon(QPolygonF(
      {{x + 0.6 * unit, y + 6.8 * unit}, {x + 3.2 * unit, y + 9.4 * unit}, {x, y + 10 * unit}}));
}

void PaintPlus(QPainter& painter, const QRectF& box) {
  const double third = box.width() / 3;
  painter.drawRect(QRectF(box.left(), box.top() + third, box.width(), third));
  painter.drawRect(QRectF(box.left() + third, box.top(), third, box.height()));
}

// The row selector tells by its shape what the row is: here, being changed, new.
void PaintSelector(QPainter& painter, const QRect& cell, const GridCore& core, const CellLook& look,
                   int line) {
  const double side = qMin(cell.width(), cell.height()) * 0.42;
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(cell).center());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.ink);
  if (look.currentRow && (core.model.Pending().typed || core.IsOpen())) {
    PaintPencil(painter, box);
  } else if (core.model.Rows().IsNewRow(line)) {
    PaintPlus(painter, box);
  } else if (look.currentRow) {
    PaintTriangle(painter, box);
  }
}

// Drawn in the color of the text: the platform's own box is lost on a dark grid.
void PaintCheckBox(QPainter& painter, const QRect& cell, bool checked, bool enabled,
                   const CellLook& look) {
  const double side = qMin(cell.height() - 12, 20);
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(cell).center());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Blend(look.paper, look.ink, enabled ? 70 : 40), 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(box, 3, 3);
  if (!checked) return;
  const double x = box.left(), y = box.top(), unit = side / 10;
  painter.setPen(QPen(look.ink, unit * 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({{x + 2.2 * unit, y + 5.2 * unit},
                                  {x + 4.2 * unit, y + 7.4 * unit},
                                  {x + 7.8 * unit, y + 2.8 * unit}}));
}

void PaintCross(QPainter& painter, const QRect& cell, const QColor& ink) {
  QRectF box(0, 0, cell.height() * 0.32, cell.height() * 0.32);
  box.moveCenter(QRectF(cell).center());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, 2));
  painter.drawLine(box.topLeft(), box.bottomRight());
  painter.drawLine(box.topRight(), box.bottomLeft());
}

// The rules under and beside a cell; a text that runs across a line is not cut by them.
void PaintRules(QPainter& painter, const QRect& cell, const QColor& color, bool beside) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(color);
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  if (beside) painter.drawLine(cell.topRight(), cell.bottomRight());
}

// A text that runs over all cells of a line: each cell shows its own piece of it.
void PaintAcross(QPainter& painter, const QStyleOptionViewItem& option, const QString& text,
                 bool bold) {
  const auto* table = qobject_cast<const GridView*>(option.widget);
  if (!table) return;
  const int left = table->columnViewportPosition(0) + table->columnWidth(0) + Margin;
  QFont font = option.font;
  font.setBold(bold);
  font.setItalic(!bold);
  painter.setFont(font);
  painter.drawText(QRect(left, option.rect.top(), 4000, option.rect.height()),
                   Qt::AlignLeft | Qt::AlignVCenter, text);
}

bool DropsDown(CellEditor editor) {
  return editor == CellEditor::List || editor == CellEditor::Combo || editor == CellEditor::Date ||
         editor == CellEditor::DateTime;
}

}  // namespace

QColor GridDelegate::HintColor(const QPalette& palette) {
  return Blend(palette.color(QPalette::Active, QPalette::Base),
               palette.color(QPalette::Active, QPalette::Text), 70);
}

int GridDelegate::RowHeight(const QWidget& widget) {
  return qMax(32 * widget.logicalDpiY() / 96, widget.fontMetrics().height() + 14);
}

int GridDelegate::RoomFor(const QWidget& widget, const QString& text) {
  return widget.fontMetrics().horizontalAdvance(text) + 2 * Margin +
         1;  // and the line at its right
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const int line = index.row(), number = index.column();
  const GridModel& model = core_.model;
  CellLook look = LookOf(core_, option, index);
  const bool heading = model.Rows().RowAt(line) == 0;
  if (heading) look.paper = Blend(look.paper, look.ink, 14);
  painter->save();
  painter->setClipRect(option.rect);
  painter->fillRect(option.rect, look.paper);
  painter->setPen(look.ink);
  const bool hint = model.Rows().IsNewRow(line) && !look.currentRow;
  if (heading) {
    PaintAcross(*painter, option, model.Rows().HeadingAt(line), true);
  } else if (number == 0) {
    PaintSelector(*painter, option.rect, core_, look, line);
  } else if (hint) {
    painter->setPen(Blend(look.paper, look.ink, 65));
    PaintAcross(*painter, option, tr("New record: press Insert, or click here"), false);
  } else {
    PaintContent(*painter, option, index, look);
  }
  if (qobject_cast<const GridView*>(option.widget)) {
    const bool across = heading || (hint && number > 0);
    PaintRules(*painter, option.rect, Blend(option.palette.color(QPalette::Base), look.ink, 18),
               !across);
  }
  if (look.currentCell) {
    const int width = look.focus ? 3 : 2;
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    QPen pen(option.palette.color(QPalette::Highlight), width);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->drawRect(
        option.rect.adjusted(width / 2, width / 2, -(width + 1) / 2, -(width + 1) / 2));
  }
  painter->restore();
}

void GridDelegate::PaintCardHead(QPainter* painter, const QStyleOptionViewItem& option,
                                 int line) const {
  const CellLook look = LookOf(core_, option, core_.model.index(line, 0));
  const QColor paper = look.wholeRow && look.focus ? look.paper : Blend(look.paper, look.ink, 10);
  painter->save();
  painter->fillRect(option.rect, paper);
  QRect mark = option.rect;
  mark.setWidth(mark.height());
  PaintSelector(*painter, mark, core_, look, line);
  QFont bold = option.font;
  bold.setBold(true);
  painter->setFont(bold);
  painter->setPen(look.ink);
  painter->drawText(option.rect.adjusted(mark.width(), 0, -Margin, 0),
                    Qt::AlignLeft | Qt::AlignVCenter,
                    core_.model.headerData(line, Qt::Vertical, Qt::DisplayRole).toString());
  painter->restore();
}

bool GridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid() || index.column() == 0) return false;
  const QString text = index.data(Qt::AccessibleTextRole).toString();
  const bool icon = core_.model.Column(index.column()).icon;
  const int room = option.rect.width() - 2 * Margin;
  const bool cut = option.fontMetrics.horizontalAdvance(text.simplified()) > room;
  QToolTip::showText(event->globalPos(), icon || cut ? text : QString(), view);
  return true;
}

void GridDelegate::PaintContent(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index, const CellLook& look) const {
  const int line = index.row(), number = index.column();
  const GridColumn& column = core_.model.Column(number);
  if (column.icon) {
    const int icon = core_.model.CellIcon(line, number);
    if (icon == 0) return;
    QRect box(0, 0, option.rect.height() - 10, option.rect.height() - 10);
    box.moveCenter(option.rect.center());
    core_.model.Icons()[icon - 1].icon.paint(&painter, box);
  } else if (column.editor == CellEditor::CheckBox) {
    PaintCheckBox(painter, option.rect, core_.model.IsChecked(line, number),
                  core_.MayEdit(line, number), look);
  } else if (column.editor == CellEditor::Delete) {
    if (core_.allowDelete && !core_.model.Rows().IsNewRow(line)) {
      PaintCross(painter, option.rect, look.ink);
    }
  } else {
    PaintText(painter, option, index);
  }
}

void GridDelegate::PaintText(QPainter& painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const int line = index.row(), number = index.column();
  const GridColumn& column = core_.model.Column(number);
  const bool current = line == core_.Line() && number == core_.Column();
  QRect box = option.rect.adjusted(Margin, 0, -Margin, 0);
  if (current && DropsDown(column.editor) && core_.MayEdit(line, number)) {
    const int side = option.rect.height() / 3;
    QStyleOption arrow;
    arrow.rect =
        QRect(option.rect.right() - side - 4, option.rect.center().y() - side / 2, side, side);
    arrow.palette = option.palette;
    arrow.state = QStyle::State_Enabled;
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter);
    box.setRight(arrow.rect.left() - 2);
  }
  painter.setFont(option.font);
  const QString text = core_.model.CellText(line, number).simplified();
  painter.drawText(box, static_cast<int>(column.alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   option.fontMetrics.elidedText(text, Qt::ElideRight, box.width()));
}

}  // namespace tavrelin
