#include "print/Layout.h"

#include <cmath>
#include <limits>

#include "basic/Picture.h"
#include "basic/ScoreTexts.h"
#include "print/OutputTarget.h"

namespace tavrelin {

namespace {

constexpr int Gap = 40;  // between a name and the column to its right

int RoomAfter(const QList<Column>& columns, qsizetype index) {
  if (index + 1 >= columns.size()) return std::numeric_limits<int>::max();
  return columns[index + 1].cellX - columns[index].cellX - Gap;
}

}  // namespace

Cell TextCell(const QString& text) {
  return {text};
}

Cell NameCell(const QString& name) {
  return {name, 0, true};
}

Cell NumberCell(const Value& number, const QString& picture) {
  return {Format(number, picture), static_cast<int>(picture.size())};
}

Cell HalfWinCell(double games) {
  const QString text = HalfWinText(games);
  return {text, text.contains(QLatin1Char('.')) ? 4 : 2};
}

Cell OverAverageCell(double figure) {
  return {OverAverageText(figure), static_cast<int>(OverAverageText(std::abs(figure)).size())};
}

int CellX(int base, const Cell& cell, int step) {
  if (cell.width == 0) return base;
  return base + (cell.width - static_cast<int>(cell.text.size())) * step;
}

QString Padded(const Cell& cell) {
  return cell.text.rightJustified(cell.width);
}

void PrintCell(OutputTarget& target, int base, const Cell& cell, int step) {
  target.PrintAt(CellX(base, cell, step), cell.text);
}

void PrintHeadings(OutputTarget& target, const QList<Column>& columns, int offset) {
  target.Font().underline = true;
  for (const Column& column : columns) target.PrintAt(column.headingX + offset, column.heading);
  target.Font().underline = false;
}

void PrintRow(OutputTarget& target, const QList<Column>& columns, const QList<Cell>& cells,
              int step, int offset) {
  const qsizetype count = std::min(columns.size(), cells.size());
  for (qsizetype i = 0; i < count; ++i) {
    target.SetCurrentX(CellX(columns[i].cellX + offset, cells[i], step));
    if (cells[i].shrinks) {
      target.PrintWithin(RoomAfter(columns, i), cells[i].text);
    } else {
      target.PrintOn(cells[i].text);
    }
  }
}

void PrintHead(OutputTarget& target, const QList<HeadLine>& lines) {
  const PageFont before = target.Font();
  for (const HeadLine& line : lines) {
    target.Font().size = line.size;
    target.Font().SetBold(line.bold);
    target.MoveTo(line.x, line.y);
    target.Print(line.text);
  }
  target.Font() = before;
}

bool PageBreak::Exceeded(const OutputTarget& target, int bottom) const {
  return target.IsPrinter() ? bottom > printerLimit : bottom >= previewLimit;
}

}  // namespace tavrelin
