#include "play/ResultsSheet.h"

#include <algorithm>
#include <limits>

#include "basic/Picture.h"
#include "play/BoxColumns.h"
#include "play/BoxSheet.h"
#include "play/ClassResults.h"
#include "play/StandingColumns.h"
#include "print/OutputTarget.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int SanctionX = 8600;
constexpr int Gap = 60;
constexpr int BasisRise = 330;   // from the rank basis down to the headings of the columns
constexpr int HeadingSize = 12;  // points
constexpr int BasisSize = 11;

/// Where the sheets of singles and doubles differ.
struct Sheet {
  int headingX;
  int headingY;
  int columnsY;
  bool movesDown;  ///< honors the vertical offset
  const BoxLayout& box;
};

Sheet SheetOf(const ClassResults& results) {
  if (results.doubles) return {700, 800, 1400, false, DoublesBox()};
  return {200, 350, 1000, true, SinglesBox()};
}

/// The head stands on the first page, and the standings run on as far as they go.
PageForm FormOf(const ClassResults& results, const ResultsChoice& choice, const Sheet& sheet,
                int offset) {
  const QString blanks = u"    "_s;
  PageForm form;
  form.repeatsHead = false;
  form.room.top = sheet.columnsY + offset;
  form.room.limit = std::numeric_limits<int>::max();
  const int y = sheet.headingY + offset;
  const QString date = Format(results.date, u"mm/dd/yy"_s);
  form.head
      << HeadLine{sheet.headingX, y,    results.tournament + blanks + results.className + blanks,
                  HeadingSize,    true, SanctionX - Gap - sheet.headingX}
      << HeadLine{SanctionX, y, results.sanctionID + blanks + date, HeadingSize};
  if (choice.standings) {
    form.head << HeadLine{sheet.headingX, form.room.top - BasisRise, results.rankBasis, BasisSize,
                          false};
  }
  return form;
}

}  // namespace

void PrintTheClass(OutputTarget& target, const ClassResults& results, const ResultsChoice& choice,
                   int verticalOffset) {
  const Sheet sheet = SheetOf(results);
  const int offset = sheet.movesDown ? verticalOffset : 0;
  ReportPages pages(target, FormOf(results, choice, sheet, offset));
  if (choice.standings) {
    StandingsTable(results, choice).Print(pages, results.standings);
    target.SetCurrentY(pages.Flow().Y());
  }
  if (choice.boxScores) {
    PrintBoxScores(target, sheet.box, results.boxScores, {choice.standings, offset});
  }
}

}  // namespace tavrelin
