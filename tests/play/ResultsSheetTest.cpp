#include "play/ResultsSheet.h"

#include <gtest/gtest.h>

#include "play/SampleResults.h"
#include "print/OutputTarget.h"
#include "support/FakePrinter.h"
#include "support/PdfPages.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Kind = OutputTarget::Kind;
constexpr double Near = 2;        // twips
constexpr int ElevenPoint = 246;  // line of 11 point Arial: 220 * 2288 / 2048
constexpr int TenPoint = 223;     // of 10 point: 200 * 2288 / 2048
constexpr int TwelvePoint = 268;

Document Sheet(const ClassResults& results, const ResultsChoice& choice, int offset = 0,
               Kind kind = Kind::Printer) {
  return Record(kind, "Results",
                [&](OutputTarget& target) { PrintTheClass(target, results, choice, offset); });
}

constexpr ResultsChoice Both = {true, true, false};

struct Spot {
  const char* text;
  double x;
};

void ExpectSpots(const PdfPages& pdf, double y, const QList<Spot>& spots) {
  for (const Spot& spot : spots) {
    bool found = false;
    for (const PdfWord& word : pdf.Words()) {
      found = found || (word.text == QLatin1String(spot.text) &&
                        std::abs(word.x - spot.x) <= Near && std::abs(word.y - y) <= Near);
    }
    EXPECT_TRUE(found) << spot.text << " at " << spot.x << ", " << y << "\n"
                       << pdf.Text().toStdString();
  }
}

/// Two lines whose figures have every width that a cell can have.
ClassResults TwoLines() {
  ClassResults results = SampleSingles(0, 0);
  const StandingLine one = SampleLine();
  StandingLine two = one;
  two.place = 2;
  two.name = "Walt Carr";
  two.entryAverage = 5;
  two.handicap = 12;
  two.card = "88";
  two.state = "OH";
  two.won = 12;
  two.loss = 0.5;
  two.points = 1234;
  two.ringers = 9;
  two.headToHead = 0;
  two.overAverage = 11.5;
  two.shoes = 8;
  two.percent = 100;
  results.standings = {one, two};
  return results;
}

TEST(ResultsSheet, HeadingOfTheSinglesSheet) {
  const PdfPages pdf(Sheet(TwoLines(), StandingsAlone));
  ExpectSpots(pdf, 350, {{"Spring", 200}, {"2601007", 8600}});
  EXPECT_TRUE(pdf.Has("05/09/26"));
  EXPECT_TRUE(pdf.Has("(Rank:"));
  EXPECT_NEAR(pdf.Find("Spring").bottom - pdf.Find("Spring").y, TwelvePoint, Near);
}

TEST(ResultsSheet, EveryColumnOfTheFullSinglesStandings) {
  const PdfPages pdf(Sheet(TwoLines(), StandingsAlone));
  ExpectSpots(pdf, 1000,
              {{"Pos", 200},
               {"Name", 800},
               {"Entry", 3250},
               {"Hcp", 4150},
               {"Card#", 4750},
               {"St", 5600},
               {"Won", 6150},
               {"Lost", 6700},
               {"Pts", 7350},
               {"Rgrs", 8000},
               {"HtH", 8650},
               {"Ovr%", 9200},
               {"Sh", 10000},
               {"R%", 10700}});
  // Each figure stands at base + (width of the picture - characters) * 125.
  ExpectSpots(pdf, 1300,
              {{"1.", 200},
               {"Ann", 500},
               {"65.43", 3450},
               {"7", 4150 + 125},
               {"NY1234", 4650},
               {"NY", 5600},
               {"3", 6150 + 125},
               {"3.5", 6700 + 125},
               {"123", 7250 + 125},
               {"45", 8000 + 250},
               {"2", 8700},
               {"1.25-", 9150 - 125},
               {"160", 9800 + 125},
               {"28.13", 10600}});
  ExpectSpots(pdf, 1300 + ElevenPoint,
              {{"2.", 200},
               {"Walt", 500},
               {"5.00", 3450 + 125},
               {"12", 4150},
               {"88", 4650},
               {"OH", 5600},
               {"12", 6150},
               {"0.5", 6700 + 125},
               {"1234", 7250},
               {"9", 8000 + 375},
               {"0", 8700},
               {"11.50", 9150},
               {"8", 9800 + 375},
               {"100.00", 10600 - 125}});
}

TEST(ResultsSheet, EveryColumnOfTheBriefSinglesStandings) {
  const PdfPages pdf(Sheet(TwoLines(), BriefStandings));
  ExpectSpots(pdf, 1000,
              {{"Pos", 200},
               {"Name", 800},
               {"Entry", 3100},
               {"Div", 4300},
               {"St", 4900},
               {"Won", 5700},
               {"Lost", 6600},
               {"Pts", 7600},
               {"Rgrs", 8500},
               {"Sh", 9400},
               {"R%", 10300}});
  ExpectSpots(pdf, 1300,
              {{"1.", 200},
               {"Ann", 500},
               {"65.43", 3400},
               {"MW", 4400},
               {"NY", 4900},
               {"3", 5700 + 125},
               {"3.5", 6600 + 125},
               {"123", 7500 + 125},
               {"45", 8400 + 250},
               {"160", 9300 + 125},
               {"28.13", 10200}});
  EXPECT_FALSE(pdf.Has("Hcp"));
}

TEST(ResultsSheet, EveryColumnOfTheDoublesStandings) {
  ClassResults results = TwoLines();
  results.doubles = true;
  const PdfPages pdf(Sheet(results, BriefStandings));
  ExpectSpots(pdf, 800, {{"Spring", 700}, {"2601007", 8600}});
  ExpectSpots(pdf, 1400,
              {{"Pos", 700},
               {"Team", 1300},
               {"Entry", 4600},
               {"Hcp", 5500},
               {"Won", 6150},
               {"Lost", 6700},
               {"Pts", 7350},
               {"Rgrs", 8000},
               {"HtH", 8650},
               {"Ovr%", 9200},
               {"Sh", 10000},
               {"R%", 10700}});
  ExpectSpots(pdf, 1700,
              {{"1.", 700},
               {"Ann", 1200},
               {"65.43", 4800},
               {"7", 5600 + 125},
               {"3", 6200 + 125},
               {"3.5", 6700 + 125},
               {"123", 7200 + 125},
               {"45", 7950 + 250},
               {"2", 8700},
               {"1.25-", 9150 - 125},
               {"160", 9800 + 125},
               {"28.13", 10600}});
  ExpectSpots(pdf, 1700 + ElevenPoint,
              {{"2.", 700},
               {"Walt", 1200},
               {"5.00", 4800 + 125},
               {"12", 5600},
               {"12", 6200},
               {"0.5", 6700 + 125},
               {"1234", 7200},
               {"9", 7950 + 375},
               {"0", 8700},
               {"11.50", 9150},
               {"8", 9800 + 375},
               {"100.00", 10600 - 125}});
  EXPECT_FALSE(pdf.Has("Card#"));
}

TEST(ResultsSheet, HeadingsOfColumnsAreUnderlined) {
  const PdfPages pdf(Sheet(TwoLines(), StandingsAlone));
  const QImage page = pdf.Picture(1);
  const PdfWord heading = pdf.Find("Name");
  int longest = 0;
  for (int y = int(heading.y / 10); y <= int(heading.bottom / 10) + 2; ++y) {
    int run = 0;
    for (int x = int(heading.x / 10); x < int(heading.right / 10); ++x) {
      run += qGray(page.pixel(x, y)) < 160;
    }
    longest = std::max(longest, run);
  }
  EXPECT_GE(longest, int((heading.right - heading.x) / 10) - 2);
}

TEST(ResultsSheet, WonOfThreeAndAHalfPrintsSoAndTheCellShiftsByTheTwoCharacterDifference) {
  ClassResults results = TwoLines();
  results.standings[0].won = 3.5;
  results.standings[1].won = 3;
  const PdfPages pdf(Sheet(results, StandingsAlone));
  // "3.5" is three of four characters, "3" one of two.
  ExpectSpots(pdf, 1300, {{"3.5", 6150 + (4 - 3) * 125}});
  ExpectSpots(pdf, 1300 + ElevenPoint, {{"3", 6150 + (2 - 1) * 125}});
}

TEST(ResultsSheet, OverAverageBelowZeroPrintsItsMinusBehind) {
  EXPECT_TRUE(PdfPages(Sheet(TwoLines(), StandingsAlone)).Has("1.25-"));
}

TEST(ResultsSheet, WithoutShoesEveryPercentageIsZero) {
  ClassResults results = SampleSingles(1, 1);
  results.standings[0].percent = 0;
  results.standings[0].handicap = 0;
  results.boxScores[0] = Block(1, "Ann Baker", {GameLine("Walt Carr", 21, 3, {5}, 0)});
  const PdfPages pdf(Sheet(results, Both));
  ExpectSpots(pdf, 1300, {{"0", 4150 + 125}, {"0.00", 10600 + 125}});
  const int game = 1300 + ElevenPoint + TenPoint - 200 + 3 * 225;
  ExpectSpots(pdf, game, {{"0.00", 4900 + 100}});
  ExpectSpots(pdf, game + 225, {{"0.00", 4900 + 100}});
}

/// Y of the first block of box scores behind so many lines of standings.
int FirstBlock(int lines) {
  return 1300 + lines * ElevenPoint + TenPoint - 200 + 225;
}

TEST(ResultsSheet, EveryFigureOfASinglesBlockInBothColumns) {
  ClassResults results = SampleSingles(2, 0);
  results.boxScores = {
      Block(1, "Ann Baker",
            {GameLine("Walt Carr", 40, 12, {30}, 46), GameLine("Lee Dow", 9, 40, {5}, 46, "F-")}),
      Block(2, "Walt Carr", {GameLine("PACER", 140, 100, {104}, 120, "F+")})};
  results.boxScores[0].won = 1.5;
  const PdfPages pdf(Sheet(results, Both));
  const int top = FirstBlock(2);
  for (const int left : {0, 5700}) {
    const char* place = left == 0 ? "1." : "2.";
    ExpectSpots(pdf, top, {{place, left + 200.0}, {left == 0 ? "Ann" : "Walt", left + 450.0}});
    ExpectSpots(pdf, top + 225,
                {{"Opponent", left + 700.0},
                 {"Score", left + 3100.0},
                 {"R", left + 4000.0},
                 {"Sh", left + 4500.0},
                 {"%", left + 5100.0}});
  }
  EXPECT_TRUE(pdf.Has("1.5-1"));
  ExpectSpots(
      pdf, top + 450,
      {{"Walt", 600}, {"40/12", 3100}, {"30", 3850 + 100}, {"46", 4400 + 100}, {"65.22", 4900}});
  ExpectSpots(pdf, top + 675,
              {{"Lee", 600},
               {"F-", 2700},
               {"9/40", 3100},
               {"5", 3850 + 200},
               {"46", 4400 + 100},
               {"10.87", 4900}});
  ExpectSpots(pdf, top + 900,
              {{"49", 3100 + 200}, {"35", 3750 + 200}, {"92", 4300 + 200}, {"38.04", 4900}});
  ExpectSpots(pdf, top + 450,
              {{"PACER", 6300},
               {"F+", 8400},
               {"140/100", 8800},
               {"104", 9550},
               {"120", 10100},
               {"86.67", 10600}});
  ExpectSpots(pdf, top + 675,
              {{"140", 8800 + 100}, {"104", 9450 + 100}, {"120", 10000 + 100}, {"86.67", 10600}});
}

TEST(ResultsSheet, AGameAgainstThePacerShowsPacerAndCountsInTheBlock) {
  ClassResults results = SampleSingles(1, 0);
  results.boxScores = {Block(1, "Ann Baker", {GameLine("PACER", 33, 0, {10}, 40)})};
  const PdfPages pdf(Sheet(results, Both));
  EXPECT_NEAR(pdf.Find("PACER").x, 600, Near);
  ExpectSpots(pdf, FirstBlock(1) + 675, {{"33", 3100 + 200}});
}

TEST(ResultsSheet, ARuleStandsOverTheTotalsOfABlock) {
  const Document document = Sheet(SampleSingles(2, 3), Both);
  QList<LineMark> rules;
  for (const Mark& mark : document.pages[0].marks) {
    if (const auto* line = std::get_if<LineMark>(&mark)) rules << *line;
  }
  const int y = FirstBlock(2) + (2 + 3) * 225;
  ASSERT_EQ(rules.size(), 2);
  EXPECT_EQ(rules[0], (LineMark{2900, y, 5400, y, 15, false}));
  EXPECT_EQ(rules[1], (LineMark{8600, y, 11100, y, 15, false}));
  const QImage page = PdfPages(document).Picture(1);
  for (int x = 2910; x < 5400; x += 30) EXPECT_LT(qGray(page.pixel(x / 10, y / 10)), 128) << x;
}

TEST(ResultsSheet, AnEntrantWithoutGamesHasNeitherRuleNorTotals) {
  const Document document = Sheet(SampleSingles(2, 0), BoxScoresAlone);
  for (const Mark& mark : document.pages[0].marks) {
    EXPECT_FALSE(std::holds_alternative<LineMark>(mark));
  }
  EXPECT_EQ(TextsOf(document).count("Opponent"), 2);
}

TEST(ResultsSheet, BoxScoresAloneBeginBelowTheHeading) {
  const PdfPages pdf(Sheet(SampleSingles(2, 1), BoxScoresAlone));
  const int top = 350 + TwelvePoint + TenPoint - 200 + 225;
  ExpectSpots(pdf, top, {{"First1", 450}, {"First2", 6150}});
  EXPECT_FALSE(pdf.Has("Pos"));
  EXPECT_FALSE(pdf.Has("(Rank:"));
}

TEST(ResultsSheet, AnOddNumberOfEntrantsLeavesTheLastRightBlockEmpty) {
  const PdfPages pdf(Sheet(SampleSingles(3, 2), BoxScoresAlone));
  EXPECT_NEAR(pdf.Find("First3").x, 450, Near);
  for (const PdfWord& word : pdf.Words()) {
    if (word.y < pdf.Find("First3").y - Near) continue;
    EXPECT_LT(word.x, 5700) << word.text.toStdString();
  }
}

TEST(ResultsSheet, TheNextRowStandsBelowTheLongerOfTwoBlocks) {
  ClassResults results = SampleSingles(4, 5);
  results.boxScores[0].lines.resize(2);
  const PdfPages pdf(Sheet(results, BoxScoresAlone));
  // Head, headings, five games and totals, and one line between the rows of blocks.
  EXPECT_NEAR(pdf.Find("First3").y - pdf.Find("First2").y, 9 * 225, Near);
  EXPECT_NEAR(pdf.Find("First4").y - pdf.Find("First3").y, 0, Near);
}

/// Standings of n lines put the first block at FirstBlock(n); from a page's start on it stands at
/// one 10 point line and 225 twips.
constexpr int TopOfNextPage = TenPoint + 225;

TEST(ResultsSheet, ALeftBlockThatWouldPassTheLimitStartsAPage) {
  // The block at Y fits while Y + (4 + games) * 225 is at most 14800.
  for (const int lines : {1, 6, 12, 20}) {
    const int fitting = (14800 - FirstBlock(lines)) / 225 - 4;
    for (const int games : {fitting, fitting + 1}) {
      ClassResults results = SampleSingles(lines, 0);
      results.boxScores = SampleSingles(2, games).boxScores;
      const PdfPages pdf(Sheet(results, Both));
      const PdfWord heading = pdf.Find("Opponent");
      EXPECT_EQ(pdf.PageCount(), games == fitting ? 1 : 2) << lines << " lines";
      EXPECT_NEAR(heading.y, (games == fitting ? FirstBlock(lines) : TopOfNextPage) + 225, Near);
    }
  }
}

TEST(ResultsSheet, ABlockLongerThanAPageBeginsUnderTheHeadingNotOnAPageAfterIt) {
  const PdfPages pdf(Sheet(SampleSingles(2, 76), BoxScoresAlone));
  EXPECT_EQ(pdf.PageCount(), 2);
  EXPECT_EQ(pdf.Find("First1").page, 1);
}

TEST(ResultsSheet, PreviewProducesPagesAtTheSameLimitAsThePrinter) {
  for (const int games : {3, 7, 11, 19, 30}) {
    const ClassResults results = SampleSingles(20, games);
    const Document paper = Sheet(results, Both, 0, Kind::Printer);
    const Document glass = Sheet(results, Both, 0, Kind::Preview);
    EXPECT_EQ(paper, glass) << games;
    EXPECT_GT(paper.pages.size(), 1);
  }
}

TEST(ResultsSheet, TheVerticalOffsetMovesTheSinglesSheetOnEveryPage) {
  const ClassResults results = SampleSingles(16, 15);
  const PdfPages moved(Sheet(results, Both, 300));
  ASSERT_GT(moved.PageCount(), 2);
  ExpectSpots(moved, 650, {{"Spring", 200}});
  ExpectSpots(moved, 1300, {{"Pos", 200}});
  ExpectSpots(moved, 1600, {{"1.", 200}});
  QList<double> tops;
  for (const PdfWord& word : moved.Words()) {
    if (word.page > tops.size()) tops.append(word.y);
  }
  ASSERT_EQ(tops.size(), moved.PageCount());
  for (qsizetype page = 1; page < tops.size(); ++page) {
    EXPECT_NEAR(tops[page], TopOfNextPage + 300, Near) << "page " << page + 1;
  }
}

TEST(ResultsSheet, DoublesIgnoreTheVerticalOffset) {
  const ClassResults results = SampleDoubles(4, 3);
  EXPECT_EQ(Sheet(results, Both, 300), Sheet(results, Both, 0));
}

TEST(ResultsSheet, EveryFigureOfADoublesBlock) {
  ClassResults results = SampleDoubles(1, 0);
  results.boxScores = {
      Block(1, "Stakes",
            {GameLine("Irons", 50, 30, {29, 7}, 40), GameLine("PACER", 120, 0, {104, 20}, 120)},
            {"Ann Baker", "Walt Carr"})};
  const PdfPages pdf(Sheet(results, BoxScoresAlone));
  const int top = 800 + TwelvePoint + TenPoint - 200 + 225;
  ExpectSpots(pdf, top, {{"1.", 700}, {"Stakes", 950}});
  EXPECT_TRUE(pdf.Text().contains("Stakes 2-0 (A. - Ann Baker; B. - Walt Carr)") ||
              pdf.Text().contains("Stakes   2-0   (A. - Ann Baker;  B. - Walt Carr)"));
  ExpectSpots(pdf, top + 225,
              {{"Opponent", 1200},
               {"Score", 4600},
               {"Sh", 5700},
               {"A-Rgr", 6600},
               {"A-%", 7700},
               {"B-Rgr", 8600},
               {"B-%", 9700}});
  ExpectSpots(pdf, top + 450,
              {{"Irons", 1100},
               {"50/30", 4600},
               {"40", 5600 + 100},
               {"29", 6600 + 100},
               {"72.50", 7600},
               {"7", 8600 + 200},
               {"17.50", 9600}});
  ExpectSpots(pdf, top + 675, {{"PACER", 1100}, {"120/0", 4600}, {"120", 5600}, {"104", 6600}});
  ExpectSpots(pdf, top + 900,
              {{"170", 4600 + 100},
               {"160", 5600},
               {"133", 6600},
               {"83.13", 7600},
               {"27", 8600 + 100},
               {"16.88", 9600}});
}

TEST(ResultsSheet, DoublesBreakTheirPagesAt15200OnThePrinterAndAt14800InThePreview) {
  const int first = 1700 + ElevenPoint + TenPoint - 200 + 225;
  const int games = (15200 - first) / 225 - 4;  // ends between the two limits
  ASSERT_GE(first + (4 + games) * 225, 14800);
  ClassResults results = SampleDoubles(1, games);
  EXPECT_EQ(Sheet(results, Both, 0, Kind::Printer).pages.size(), 1);
  EXPECT_EQ(Sheet(results, Both, 0, Kind::Preview).pages.size(), 2);
}

TEST(ResultsSheet, TwentyPlayersInFourRoundsLoseNoGameAtThePagesEnd) {
  const ClassResults results = SampleSingles(20, 76);
  const PdfPages pdf(Sheet(results, Both));
  int games = 0;
  for (const PdfWord& word : pdf.Words()) {
    EXPECT_LT(word.bottom, 15000 + Near) << word.text.toStdString();
    games += word.text.startsWith("Player");
  }
  EXPECT_EQ(games, 20 * 76);
  // The standings, and each row of two blocks on two pages.
  EXPECT_EQ(pdf.PageCount(), 1 + 10 * 2);
  EXPECT_EQ(pdf.Text().count("First20 Last20"), 1 + 2);
}

TEST(ResultsSheet, ANameOf45CharactersStaysWholeAndClearOfTheNextColumn) {
  const QString name = "Bartholomew-Christopher Featherstonehaugh-Sme";
  ASSERT_EQ(name.size(), 45);
  ClassResults results = SampleSingles(2, 1);
  for (StandingLine& line : results.standings) line.name = name;
  for (BoxScore& block : results.boxScores) {
    block.name = name;
    block.lines[0].opponent = name;
    block.lines[0].forfeitMark = "F-";
  }
  const PdfPages pdf(Sheet(results, Both));
  const int row = 1300;
  for (const PdfWord& word : pdf.Words()) {
    if (word.text != "Featherstonehaugh-Sme") continue;
    if (word.y < row + 2 * ElevenPoint) {
      EXPECT_LT(word.right, 3450);
    } else if (word.x < 5700) {
      EXPECT_LT(word.right, 5700);
    }
  }
  EXPECT_EQ(pdf.Text().count("Featherstonehaugh-Sme"), 6);
}

TEST(ResultsSheet, AClassWithNoEntrantsIsAHeadingAlone) {
  const Document document = Sheet(SampleSingles(0, 0), Both);
  EXPECT_EQ(document.pages.size(), 1);
  EXPECT_TRUE(TextsOf(document).contains("Pos"));
}

}  // namespace
}  // namespace tavrelin
