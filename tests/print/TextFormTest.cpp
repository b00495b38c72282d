#include "print/TextForm.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(TextForm, TextsAreLeftJustifiedAndFiguresRightJustified) {
  const QList<TextForm> columns = {LeftText("Name", 8), RightText("Shoes", 6)};
  EXPECT_EQ(TextHeadings(columns), "Name       Shoes  \n----       -----  \n");
  EXPECT_EQ(TextRow(columns, {NameCell("Ann"), NumberCell(46, "###0")}), "Ann           46  \n");
}

TEST(TextForm, ATextLongerThanItsColumnPushesTheLineAlongAndStaysApart) {
  const QList<TextForm> columns = {LeftText("Name", 4), RightText("Sh", 2)};
  EXPECT_EQ(TextRow(columns, {NameCell("Featherstonehaugh"), NumberCell(46, "#0")}),
            "Featherstonehaugh  46  \n");
}

TEST(TextForm, HeadingsOfSeveralLinesEndOnTheSameLine) {
  const QList<TextForm> columns = {
      {"Name   ", "----   "}, {"Begin \nAvg   \nPts   ", "---   "}, {" Hi\nRgr%", "----"}};
  EXPECT_EQ(TextHeadings(columns),
            "       Begin     \n"
            "       Avg    Hi \n"
            "Name   Pts   Rgr%\n"
            "----   ---   ----\n");
}

TEST(TextForm, ATabStopHoldsItsColumn) {
  const QList<TextForm> columns = {{"City", "----"}, {"St", "--", Padded, 0, 11}};
  EXPECT_EQ(TextHeadings(columns), "City      St\n----      --\n");
  EXPECT_EQ(TextRow(columns, {TextCell("Rome"), TextCell("NY")}), "Rome      NY\n");
  // Nine characters end before the stop, ten and more push the line along.
  EXPECT_EQ(TextRow(columns, {TextCell("Northport"), TextCell("NY")}), "Northport NY\n");
  EXPECT_EQ(TextRow(columns, {TextCell("Southampton"), TextCell("NY")}), "Southampton NY\n");
}

TEST(TextForm, AColumnWithoutAHeadingIsForPaperAlone) {
  const QList<TextForm> columns = {{"A ", "- "}, {}, {"B", "-"}};
  EXPECT_EQ(TextHeadings(columns), "A B\n- -\n");
  EXPECT_EQ(TextRow(columns, {TextCell("1 "), TextCell("unseen"), TextCell("2")}), "1 2\n");
}

}  // namespace
}  // namespace tavrelin
