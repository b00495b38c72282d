#include "play/PlayOutputBench.h"

#include <QComboBox>

namespace tavrelin {
namespace {

class uctPlayTimeCardsTest : public PlayOutputBench<uctPlayTime> {};

TEST_F(uctPlayTimeCardsTest, ALoadedClassOffersItsPlayersAndItsHighestGame) {
  MakePaired(5);
  ShowResults();
  const auto& players = bench.Find<QComboBox>("cboPlayers");
  QStringList items;
  for (int i = 0; i < players.count(); ++i) items << players.itemText(i);
  EXPECT_EQ(items, (QStringList{"All players", "1. P1 Stone", "2. P2 Stone", "3. P3 Stone",
                                "4. P4 Stone", "5. P5 Stone", "6. PACER"}));
  EXPECT_EQ(Text("txtTo"), "5");
  EXPECT_EQ(Text("txtFrom"), "");
}

TEST_F(uctPlayTimeCardsTest, FrontsAreFollowedByBacksAndBacksByFronts) {
  MakePaired(4);
  ShowResults();
  EXPECT_TRUE(IsChecked("optFront"));
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 4);
  EXPECT_FALSE(PrintedTexts().contains("Totals"));
  EXPECT_TRUE(IsChecked("optBack"));
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
  EXPECT_FALSE(bench.Refused());
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeCardsTest, AClubThatPrintsBacksAloneStaysOnTheBack) {
  MakePaired(4);
  Set(4, "yes");
  ShowResults();
  EXPECT_TRUE(IsChecked("optBack"));
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_TRUE(IsChecked("optBack"));
}

TEST_F(uctPlayTimeCardsTest, TwelvePlayersAndBlankBoxesPrintGamesOneToEleven) {
  MakePaired(12);
  ShowResults();
  bench.Click("optBack");
  bench.Fill("txtTo", "");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 12);
  EXPECT_EQ(Times("11"), 12);
  EXPECT_EQ(Times("12"), 0);
}

TEST_F(uctPlayTimeCardsTest, ThirteenPlayersAndBlankBoxesAreTooManyGamesForACard) {
  MakePaired(13);
  ShowResults();
  bench.Fill("txtTo", "");
  bench.Focus("cmdPrintPair");
  bench.Click("cmdPrintPair");
  ExpectRefusal("Cannot print more than 11 games on card");
  EXPECT_EQ(bench.FocusName(), "txtTo");
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeCardsTest, ElevenGamesAreACardAndTwelveAreNot) {
  MakePaired(14);
  ShowResults();
  bench.Fill("txtFrom", "3");
  bench.Fill("txtTo", "14");
  bench.Click("cmdPrintPair");
  ExpectRefusal("Cannot print more than 11 games on card");
  bench.Fill("txtTo", "13");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 14);
}

TEST_F(uctPlayTimeCardsTest, BoxesWithoutANumberStandForTheWholeRoundRobin) {
  MakePaired(4);
  ShowResults();
  bench.Click("optBack");
  bench.Fill("txtFrom", "x");
  bench.Fill("txtTo", "y");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_EQ(Times("3"), 4);
}

TEST_F(uctPlayTimeCardsTest, OnePlayerGetsExactlyHisCard) {
  MakePaired(4);
  ShowResults();
  bench.Click("optBack");
  bench.Pick("cboPlayers", "3. P3 Stone");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 1);
  EXPECT_TRUE(PrintedTexts().contains("3.P3 Stone"));
}

TEST_F(uctPlayTimeCardsTest, TwoUpCardsAskForTheirGamesWhenWarningsAreOn) {
  MakePaired(4);
  Set(3, "3");
  Set(7, "Y");
  ShowResults();
  bench.Fill("txtFrom", "2");
  bench.person.WillAnswer(false);
  bench.Click("cmdPrintPair");
  ASSERT_EQ(bench.person.questions.size(), 1);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Round Robin Print");
  EXPECT_EQ(bench.person.questions[0].text,
            "Printing Round Robin Cards for Games 2 to 3  Is this correct?");
  EXPECT_TRUE(bench.printer.printed.isEmpty());
  EXPECT_EQ(bench.Message(), "");
  bench.person.WillAnswer(true);
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 2);
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeCardsTest, TwoUpCardsAreNotAskedAboutWithoutWarnings) {
  MakePaired(4);
  Set(3, "3");
  ShowResults();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 2);
}

TEST_F(uctPlayTimeCardsTest, FoldedCardsNeedNoFaceAndLeaveTheSelectionAlone) {
  MakePaired(4);
  Set(3, "yes");
  ShowResults();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 4);
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeCardsTest, SettingsAreReadAgainWhenTheScreenIsShownAgain) {
  MakePaired(4);
  ShowResults();
  bench.Leave();
  Set(3, "2");
  bench.LeaveAndReturn();
  bench.Click("cmdLoad");
  OpenResults();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
}

TEST_F(uctPlayTimeCardsTest, TheWorksheetListsAllGamesAndLeavesTheFaceAlone) {
  MakePaired(4);
  ShowResults();
  Check("chkRRWorksheet");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.printer.printed.last().title, "Round Robin Worksheet");
  EXPECT_EQ(Times("P1 Stone"), 3);
  EXPECT_TRUE(IsChecked("optFront"));
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
}

TEST_F(uctPlayTimeCardsTest, AWorksheetWithoutGamesIsRefused) {
  MakePaired(2);
  Show();
  bench.Click("cmdLoad");
  bench.person.WillAnswer(true);
  ASSERT_TRUE(Scores().DeleteRow());
  OpenResults();
  Check("chkRRWorksheet");
  bench.person.beeps = 0;
  bench.Click("cmdPrintPair");
  ExpectRefusal("No players to report");
}

TEST_F(uctPlayTimeCardsTest, APrinterThatFailsTakesNoCardsAndMovesNoFace) {
  MakePaired(4);
  ShowResults();
  bench.printer.failure = "The printer Office does not answer";
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.errors.Take().description, "The printer Office does not answer");
  EXPECT_TRUE(IsChecked("optFront"));
  EXPECT_EQ(bench.Message(), "");
  bench.printer.failure.clear();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 4);
}

TEST_F(uctPlayTimeCardsTest, CardsThatWentIntoAFileAreNotReportedAsSentToAPrinter) {
  MakePaired(4);
  ShowResults();
  bench.printer.installed = false;
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_TRUE(IsChecked("optBack"));
}

TEST_F(uctPlayTimeCardsTest, CardsThatTheOperatorWouldNotSaveAreNotReportedAsPrinted) {
  MakePaired(4);
  ShowResults();
  bench.printer.accepted = false;
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.Message(), "");
  EXPECT_TRUE(IsChecked("optFront"));
}

}  // namespace
}  // namespace tavrelin
