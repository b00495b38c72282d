#include "print/ReportTable.h"

#include <algorithm>
#include <limits>

#include "print/OutputTarget.h"

namespace tavrelin {

namespace {

constexpr int Gap = 40;  // between a text and the column to its right

int StartOf(const OutputTarget& target, const ColumnPlace& place, const Cell& cell, int step) {
  if (place.align == Align::RightEdge) return place.cellX - target.TextWidth(cell.text);
  return CellX(place.cellX, cell, step);
}

/// Where a column begins whatever its figures are.
int EdgeOf(const OutputTarget& target, const ColumnPlace& place, const Cell& cell) {
  return place.align == Align::Count ? place.cellX : StartOf(target, place, cell, 0);
}

int RoomAfter(const OutputTarget& target, const QList<ColumnPlace>& places,
              const QList<Cell>& cells, qsizetype index) {
  for (qsizetype i = index + 1; i < std::min(places.size(), cells.size()); ++i) {
    if (cells[i].text.isEmpty()) continue;
    return EdgeOf(target, places[i], cells[i]) - places[index].cellX - Gap;
  }
  return std::numeric_limits<int>::max();
}

void PrintHeading(OutputTarget& target, const ColumnPlace& place, int step, int left, int y) {
  const QStringList lines = place.heading.split(u'\n');
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const int x = place.align == Align::RightEdge ? place.headingX - target.TextWidth(lines[i])
                                                  : place.headingX;
    target.MoveTo(left + x, y - static_cast<int>(lines.size() - 1 - i) * step);
    target.PrintOn(lines[i]);
  }
}

}  // namespace

void PrintHeadings(OutputTarget& target, const QList<ColumnPlace>& places, const TableForm& form,
                   int left, int y) {
  target.Font().size = form.size;
  target.Font().underline = form.underlined;
  target.Font().SetBold(form.bold);
  for (const ColumnPlace& place : places) {
    PrintHeading(target, place, form.headingStep, left, y);
  }
  target.Font().underline = false;
  target.Font().SetBold(false);
}

void PrintCells(OutputTarget& target, const QList<ColumnPlace>& places, const TableForm& form,
                const QList<Cell>& cells, int left, int y) {
  target.Font().size = form.size;
  const qsizetype count = std::min(places.size(), cells.size());
  for (qsizetype i = 0; i < count; ++i) {
    const Cell& cell = cells[i];
    target.MoveTo(left + StartOf(target, places[i], cell, form.figureStep), y);
    if (!cell.shrinks) {
      target.PrintOn(cell.text);
      continue;
    }
    target.PrintWithin(
        form.ruling ? form.ruling->RoomFrom(places[i].cellX) : RoomAfter(target, places, cells, i),
        cell.text);
  }
}

void TablePrinter::Open(ReportPages& pages, const GroupHead& head) const {
  const int above = head.height + form_.headHeight;
  pages.MakeRoom(std::max(head.needed, pages.Flow().RoomForRow(form_.rowHeight, above)));
  PrintLines(pages.Target(), head.lines, pages.Flow().Left(), pages.Flow().Y());
  pages.Skip(head.height);
  PrintHead(pages);
}

void TablePrinter::PrintHead(ReportPages& pages) const {
  const int left = pages.Flow().Left();
  const int y = pages.Skip(form_.headHeight);
  if (form_.ruling) DrawBand(pages.Target(), *form_.ruling, left, y);
  PrintHeadings(pages.Target(), places_, form_, left, y + form_.headingsDrop);
}

void TablePrinter::Add(ReportPages& pages, const QList<Cell>& cells) const {
  if (pages.MakeRoom(pages.Flow().RoomForRow(form_.rowHeight))) PrintHead(pages);
  const int left = pages.Flow().Left();
  const int y = pages.Take(form_.rowHeight);
  if (form_.ruling) DrawRows(pages.Target(), *form_.ruling, left, y, form_.rowHeight);
  PrintCells(pages.Target(), places_, form_, cells, left, y + form_.textDrop);
}

}  // namespace tavrelin
