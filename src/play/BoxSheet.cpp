#include "play/BoxSheet.h"

#include <algorithm>

#include "play/BoxColumns.h"
#include "print/Fonts.h"
#include "print/OutputTarget.h"
#include "print/PageFlow.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int LineStep = 225;
constexpr int PaperEnd = 15000;  // a line of a block too long for any page ends above it
constexpr int BlankLines = 4;    // what a block takes beside its games
constexpr double Size = 10;      // points

// A preview's page is full as soon as something reaches its limit.
PageRoom RoomOn(const OutputTarget& target, const BoxLayout& layout, int offset) {
  const int line = LineHeight({.size = Size});
  PageRoom room;
  room.top = target.CurrentY() + line - 200 + LineStep;
  room.laterTop = line + offset + LineStep;
  room.limit = target.IsPrinter() ? layout.printerLimit : layout.previewLimit - 1;
  return room;
}

TableForm Figures() {
  TableForm form;
  form.figureStep = 100;
  form.size = Size;
  return form;
}

// Head, headings, games, and totals if there are games.
qsizetype LinesOf(const BoxScore& block) {
  return block.lines.isEmpty() ? 2 : block.lines.size() + 3;
}

/// Writes the blocks row by row: first lines of all blocks of the row, then their second lines, so
/// that blocks longer than a page can go on side by side.
class BoxPrinter {
 public:
  BoxPrinter(OutputTarget& target, const BoxLayout& layout, const BoxStart& start)
      : target_(target),
        layout_(layout),
        form_(Figures()),
        places_(PlacesOf(layout)),
        flow_(RoomOn(target, layout, start.offset)) {
    if (start.underStandings) flow_.Take(0);
  }

  void PrintRow(const QList<BoxScore>& blocks) {
    const auto needed = BlankLines + static_cast<int>(blocks.first().lines.size());
    if (!flow_.HasRoom(needed * LineStep)) StartPage();
    qsizetype lines = 0;
    for (const BoxScore& block : blocks) lines = std::max(lines, LinesOf(block));
    for (qsizetype line = 0; line < lines; ++line) {
      if (flow_.Y() + LineStep > PaperEnd) GoOn(blocks, line);
      PrintLine(blocks, line, line);
    }
    flow_.Skip(LineStep);
  }

 private:
  void StartPage() {
    flow_.Next();
    target_.NewPage();
  }

  /// On the next page, under the heads of the blocks that have a line `reached`.
  void GoOn(const QList<BoxScore>& blocks, qsizetype reached) {
    StartPage();
    PrintLine(blocks, 0, reached);
    PrintLine(blocks, 1, reached);
  }

  /// Line `line` of those blocks of the row that have a line `reached`.
  void PrintLine(const QList<BoxScore>& blocks, qsizetype line, qsizetype reached) {
    const int y = flow_.Take(LineStep);
    for (qsizetype i = 0; i < blocks.size(); ++i) {
      if (reached >= LinesOf(blocks[i])) continue;
      PrintBlockLine(blocks[i], line, static_cast<int>(i) * layout_.blockOffset, y);
    }
  }

  void PrintBlockLine(const BoxScore& block, qsizetype line, int left, int y) {
    if (line == 0) return PrintTitle(block, left, y);
    if (line == 1) return PrintHeadings(target_, places_, form_, left, y);
    if (line - 2 == block.lines.size()) return PrintTotals(block, left, y);
    PrintCells(target_, places_, form_, GameCells(layout_, block.lines[line - 2]), left, y);
  }

  void PrintTitle(const BoxScore& block, int left, int y) {
    PrintLines(target_, {{left + layout_.placeX, y, u"%1."_s.arg(block.place), Size},
                         {left + layout_.nameX, y, BoxTitle(block), Size, true, layout_.nameRoom}});
  }

  void PrintTotals(const BoxScore& block, int left, int y) {
    target_.Line(left + layout_.ruleFrom, y, left + layout_.ruleTo, y);
    target_.SetCurrentY(y);
    const QList<Cell> cells = TotalCells(layout_, block);
    for (qsizetype i = 0; i < cells.size(); ++i) {
      PrintCell(target_, left + layout_.columns[i].totalX, cells[i], form_.figureStep);
    }
  }

  OutputTarget& target_;
  const BoxLayout& layout_;
  TableForm form_;
  QList<ColumnPlace> places_;
  PageFlow flow_;
};

}  // namespace

void PrintBoxScores(OutputTarget& target, const BoxLayout& layout, const QList<BoxScore>& blocks,
                    const BoxStart& start) {
  BoxPrinter printer(target, layout, start);
  for (qsizetype i = 0; i < blocks.size(); i += layout.across) {
    printer.PrintRow(blocks.mid(i, layout.across));
  }
}

}  // namespace tavrelin
