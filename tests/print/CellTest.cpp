#include "print/Cell.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(Cell, AFigureMovesRightByAStepForEachCharacterItLacks) {
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
      {HalfWinCell(7, "##0"), 5100, 125, 5100 + 250},
      {HalfWinCell(6.5, "##0"), 5100, 125, 5100 + 250},  // "6.5" is three of five characters
      {OverAverageCell(1.25), 9150, 125, 9150},
      {OverAverageCell(-1.25), 9150, 125, 9150 - 125},
      {TextCell("NY"), 5600, 125, 5600},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(CellX(one.base, one.cell, one.step), one.x) << one.cell.text.toStdString();
  }
}

TEST(Cell, TextFilesPadAFigureToTheSameWidth) {
  EXPECT_EQ(Padded(NumberCell(7, "###0")), "   7");
  EXPECT_EQ(Padded(HalfWinCell(3)), " 3");
  EXPECT_EQ(Padded(TextCell("NY")), "NY");
}

}  // namespace
}  // namespace tavrelin
