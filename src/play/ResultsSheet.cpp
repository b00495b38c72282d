#include "play/ResultsSheet.h"

#include <algorithm>

#include "basic/Picture.h"
#include "play/BoxColumns.h"
#include "play/ClassResults.h"
#include "play/StandingColumns.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

constexpr int SanctionX = 8600;
constexpr int LineStep = 225;    // of the box scores
constexpr int PaperEnd = 15000;  // a line of a block too long for any page ends above it
constexpr int Gap = 60;
constexpr int BasisRise = 330;  // from the rank basis down to the headings of the columns
const QString FourBlanks = QStringLiteral("    ");

/// All in which the sheets of singles and doubles differ.
struct Sheet {
  int headingX;
  int headingY;
  int columnsY;
  int rowsY;
  bool movesDown;  ///< honors the vertical offset
  const QList<StandingColumn>& columns;
  const BoxLayout& box;
};

Sheet SheetOf(const ClassResults& results, const ResultsChoice& choice) {
  if (results.doubles) return {700, 800, 1400, 1700, false, DoublesColumns(), DoublesBox()};
  return {200,         350, 1000, 1300, true, choice.brief ? BriefColumns() : SinglesColumns(),
          SinglesBox()};
}

void PrintHeading(OutputTarget& target, const ClassResults& results, const Sheet& sheet,
                  int offset) {
  target.Font().size = 12;
  target.Font().SetBold(true);
  target.MoveTo(sheet.headingX, sheet.headingY + offset);
  target.PrintWithin(SanctionX - Gap - sheet.headingX,
                     results.tournament + FourBlanks + results.className + FourBlanks);
  target.SetCurrentX(SanctionX);
  target.Print(results.sanctionID + FourBlanks + Format(results.date, QStringLiteral("mm/dd/yy")));
  target.Font().SetBold(false);
  target.Font().size = 11;
}

/// Writes the blocks row by row: first lines of all blocks of the row, then their second lines, so
/// that blocks longer than a page can go on side by side.
class BoxPrinter {
 public:
  BoxPrinter(OutputTarget& target, const BoxLayout& layout, int offset)
      : target_(target), layout_(layout), offset_(offset) {}

  void Print(const QList<BoxScore>& blocks) {
    target_.Font().size = 10;
    target_.Print();
    bottom_ = target_.CurrentY() - 200;
    for (qsizetype i = 0; i < blocks.size(); i += layout_.across) {
      PrintRowOfBlocks(blocks.mid(i, layout_.across));
    }
  }

 private:
  // Head, headings, games, and totals if there are games.
  static qsizetype LinesOf(const BoxScore& block) {
    return block.lines.isEmpty() ? 2 : block.lines.size() + 3;
  }

  void PrintRowOfBlocks(const QList<BoxScore>& blocks) {
    bottom_ += LineStep;
    int y = bottom_;
    const auto needed = static_cast<int>(4 + blocks.first().lines.size());
    if (layout_.page.Exceeded(target_, bottom_ + needed * LineStep)) y = StartPage();
    qsizetype lines = 0;
    for (const BoxScore& block : blocks) lines = std::max(lines, LinesOf(block));
    for (qsizetype line = 0; line < lines; ++line, y += LineStep) {
      if (y + LineStep > PaperEnd) {
        y = StartPage();
        PrintLine(blocks, 0, line, y);
        PrintLine(blocks, 1, line, y + LineStep);
        y += 2 * LineStep;
      }
      PrintLine(blocks, line, line, y);
    }
    bottom_ = std::max(bottom_, y);
  }

  int StartPage() {
    target_.NewPage();
    target_.Print();
    bottom_ = target_.CurrentY() + offset_;
    return bottom_ + LineStep;
  }

  /// Line `line` of those blocks of the row that have a line `reached`.
  void PrintLine(const QList<BoxScore>& blocks, qsizetype line, qsizetype reached, int y) {
    for (qsizetype i = 0; i < blocks.size(); ++i) {
      if (reached >= LinesOf(blocks[i])) continue;
      target_.SetCurrentY(y);
      PrintBlockLine(blocks[i], line, static_cast<int>(i) * layout_.blockOffset);
    }
  }

  void PrintBlockLine(const BoxScore& block, qsizetype line, int left) {
    if (line == 0) return PrintTitle(block, left);
    if (line == 1) return PrintBoxHeadings(left);
    if (line - 2 < block.lines.size()) return PrintGame(block.lines[line - 2], left);
    PrintTotals(block, left);
  }

  void PrintTitle(const BoxScore& block, int left) {
    target_.Font().SetBold(true);
    target_.PrintAt(left + layout_.placeX, QStringLiteral("%1.").arg(block.place));
    target_.SetCurrentX(left + layout_.nameX);
    target_.PrintWithin(layout_.nameRoom, BoxTitle(block));
    target_.Font().SetBold(false);
  }

  void PrintBoxHeadings(int left) {
    QList<Column> headings;
    for (const BoxColumn& column : layout_.columns) headings << column.place;
    PrintHeadings(target_, headings, left);
  }

  void PrintGame(const BoxLine& game, int left) {
    QList<Column> places;
    QList<Cell> cells;
    for (const BoxColumn& column : layout_.columns) {
      const Cell cell = BoxCell(game, column);
      if (cell.text.isEmpty()) continue;  // an opponent has the room of a mark that is not there
      places << column.place;
      cells << cell;
    }
    PrintRow(target_, places, cells, BoxStep, left);
  }

  void PrintTotals(const BoxScore& block, int left) {
    const int y = target_.CurrentY();
    target_.Line(left + layout_.ruleFrom, y, left + layout_.ruleTo, y);
    for (const BoxColumn& column : layout_.columns) {
      PrintCell(target_, left + column.totalX, BoxTotalCell(block, column), BoxStep);
    }
  }

  OutputTarget& target_;
  const BoxLayout& layout_;
  int offset_;
  int bottom_ = 0;  ///< the running bottom of what stands on the page
};

}  // namespace

void PrintTheClass(OutputTarget& target, const ClassResults& results, const ResultsChoice& choice,
                   int verticalOffset) {
  const Sheet sheet = SheetOf(results, choice);
  const int offset = sheet.movesDown ? verticalOffset : 0;
  target.SetOrientation(Orientation::Portrait);
  PrintHeading(target, results, sheet, offset);
  if (choice.standings) {
    target.MoveTo(sheet.headingX, sheet.columnsY - BasisRise + offset);
    target.Print(results.rankBasis);
    PrintStandingHeadings(target, sheet.columns, sheet.columnsY + offset);
    target.SetCurrentY(sheet.rowsY + offset);
    PrintStandings(target, sheet.columns, results.standings);
  }
  if (choice.boxScores) BoxPrinter(target, sheet.box, offset).Print(results.boxScores);
}

}  // namespace tavrelin
