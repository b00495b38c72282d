#include "print/Layout.h"

#include <gtest/gtest.h>

#include "print/OutputTarget.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Kind = OutputTarget::Kind;

TEST(Layout, AFigureMovesRightByAStepForEachCharacterItLacks) {
  struct Case {
    Cell cell;
    int base, step, x;
  };
  const QList<Case> cases = {
      {NumberCell(28.125, "#0.00"), 10600, 125, 10600},     // "28.13", five of five
      {NumberCell(5, "#0.00"), 3450, 125, 3450 + 125},      // "5.00"
      {NumberCell(100, "#0.00"), 10600, 125, 10600 - 125},  // "100.00" hangs out to the left
      {NumberCell(7, "###0"), 7250, 125, 7250 + 3 * 125},
      {NumberCell(46, "##0"), 4400, 100, 4400 + 100},
      {HalfWinCell(3), 6150, 125, 6150 + 125},
      {HalfWinCell(12), 6150, 125, 6150},
      {HalfWinCell(3.5), 6150, 125, 6150 + 125},
      {HalfWinCell(10.5), 6150, 125, 6150},
      {OverAverageCell(1.25), 9150, 125, 9150},
      {OverAverageCell(-1.25), 9150, 125, 9150 - 125},
      {TextCell("NY"), 5600, 125, 5600},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(CellX(one.base, one.cell, one.step), one.x) << one.cell.text.toStdString();
  }
}

TEST(Layout, TextFilesPadAFigureToTheSameWidth) {
  EXPECT_EQ(Padded(NumberCell(7, "###0")), "   7");
  EXPECT_EQ(Padded(HalfWinCell(3)), " 3");
  EXPECT_EQ(Padded(TextCell("NY")), "NY");
}

TEST(Layout, ThePrintersPageIsFullBeyondItsLimitAndThePreviewsAtIt) {
  const OutputTarget printer(Kind::Printer), preview(Kind::Preview);
  const PageBreak limits = {15200, 14800};
  EXPECT_FALSE(limits.Exceeded(printer, 15200));
  EXPECT_TRUE(limits.Exceeded(printer, 15201));
  EXPECT_FALSE(limits.Exceeded(preview, 14799));
  EXPECT_TRUE(limits.Exceeded(preview, 14800));
}

TEST(Layout, AHeadLeavesTheFontAsItWas) {
  OutputTarget target(Kind::Printer);
  target.Font().size = 11;
  PrintHead(target, {{200, 400, "Horseshoe Tournament Results"}, {200, 800, "Date", 11, false}});
  EXPECT_EQ(target.Font(), (PageFont{.size = 11}));
  const QList<Mark>& marks = target.Written().pages[0].marks;
  EXPECT_TRUE(std::get<TextMark>(marks[0]).font.Bold());
  EXPECT_EQ(std::get<TextMark>(marks[1]).y, 800);
}

TEST(Layout, HeadingsStandUnderlinedAtTheirOwnXAndCellsAtTheirs) {
  OutputTarget target(Kind::Printer);
  const QList<Column> columns = {{"Opponent", 700, 600}, {"R", 4000, 3850}};
  PrintHeadings(target, columns, 5700);
  target.Print();
  PrintRow(target, columns, {NameCell("Ann Baker"), NumberCell(7, "##0")}, 100, 5700);
  const QList<Mark>& marks = target.Written().pages[0].marks;
  EXPECT_EQ(std::get<TextMark>(marks[0]).x, 6400);
  EXPECT_TRUE(std::get<TextMark>(marks[1]).font.underline);
  EXPECT_EQ(std::get<TextMark>(marks[2]).x, 6300);
  EXPECT_EQ(std::get<TextMark>(marks[3]).x, 9550 + 200);
  EXPECT_FALSE(target.Font().underline);
}

}  // namespace
}  // namespace tavrelin
