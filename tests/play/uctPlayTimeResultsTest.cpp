#include "play/PlayOutputBench.h"

#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QSet>

namespace tavrelin {
namespace {

class uctPlayTimeResultsTest : public PlayOutputBench<uctPlayTime> {
 protected:
  const QStringList outputs = {
      "optFront",          "optBack",        "txtFrom",      "txtTo",
      "cboPlayers",        "chkRRWorksheet", "cmdPrintPair", "chkStandings",
      "chkBoxScores",      "chkBrief",       "txtCopies",    "cmdPrintResults",
      "cmdPreviewResults", "txtPath",        "txtFile",      "cmdExport"};
};

TEST_F(uctPlayTimeResultsTest, CardsAndResultsWaitForAClassWithGames) {
  MakeSingles(4);
  Show();
  for (const QString& name : outputs) EXPECT_FALSE(IsEnabled(name)) << name.toStdString();
  bench.Click("cmdLoad");
  for (const QString& name : outputs) EXPECT_FALSE(IsEnabled(name)) << name.toStdString();
  bench.Click("cmdCreatePair");
  for (const QString& name : outputs) EXPECT_TRUE(IsEnabled(name)) << name.toStdString();
}

TEST_F(uctPlayTimeResultsTest, DeletingThePairingEmptiesAndDisablesThem) {
  MakePaired(4);
  ShowResults();
  bench.Fill("txtFrom", "2");
  bench.person.WillAnswer(true);
  bench.Click("cmdDeletePair");
  for (const QString& name : outputs) EXPECT_FALSE(IsEnabled(name)) << name.toStdString();
  EXPECT_EQ(Text("txtFrom"), "");
  EXPECT_EQ(Text("txtTo"), "");
  EXPECT_EQ(bench.Find<QComboBox>("cboPlayers").count(), 0);
}

TEST_F(uctPlayTimeResultsTest, BriefAndTheFolderAreRememberedWhenTheScreenIsLeft) {
  MakePaired(4);
  ShowResults();
  Check("chkBrief");
  bench.Fill("txtPath", "D:\\Results");
  bench.Leave();
  EXPECT_EQ(bench.store().GetRegistryString({}, "BriefReport"), "1");
  EXPECT_EQ(bench.store().GetRegistryString({}, "TournamentPath"), "D:\\Results");
  bench.LeaveAndReturn();
  EXPECT_TRUE(IsChecked("chkBrief"));
  EXPECT_EQ(Text("txtPath"), "D:\\Results");
}

TEST_F(uctPlayTimeResultsTest, OneOfTheSectionsMustBeChosen) {
  MakePaired(4);
  ShowResults();
  int beeps = 0;
  for (const char* button : {"cmdPrintResults", "cmdPreviewResults", "cmdExport"}) {
    bench.Focus(button);
    bench.Click(button);
    EXPECT_EQ(bench.Message(), "Check either Standings or Box Scores or both") << button;
    EXPECT_TRUE(bench.Refused());
    EXPECT_EQ(bench.person.beeps, ++beeps);
    EXPECT_EQ(bench.FocusName(), "chkStandings") << button;
  }
  EXPECT_TRUE(bench.printer.printed.isEmpty());
  EXPECT_TRUE(bench.printer.previewed.isEmpty());
  EXPECT_FALSE(QFile::exists(folder_.filePath("SpringOpen-AClassA.txt")));
}

TEST_F(uctPlayTimeResultsTest, AClassWhoseGamesWereAllDeletedHasNothingToTell) {
  MakePaired(2);
  Show();
  bench.Click("cmdLoad");
  bench.person.WillAnswer(true);
  ASSERT_TRUE(Scores().DeleteRow());
  OpenResults();
  Check("chkStandings");
  for (const char* button : {"cmdPrintResults", "cmdPreviewResults", "cmdExport"}) {
    bench.person.beeps = 0;
    bench.Click(button);
    ExpectRefusal("Round robin has not been created");
  }
}

TEST_F(uctPlayTimeResultsTest, TheSheetHoldsTheSectionsThatAreChecked) {
  MakePaired(4);
  Play();
  ShowResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_TRUE(PrintedTexts().contains("Entry %"));
  EXPECT_FALSE(PrintedTexts().contains("Opponent"));
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
  EXPECT_FALSE(bench.Refused());
  Check("chkBoxScores");
  Check("chkBrief");
  bench.Click("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(Times("Opponent"), 4);
  EXPECT_FALSE(PrintedTexts().contains("Entry Avg"));
  bench.Click("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_TRUE(PrintedTexts().contains("Entry Avg"));
}

TEST_F(uctPlayTimeResultsTest, CopiesArePrintedOnceAndGoBackToOne) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  bench.Fill("txtCopies", "3");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.printer.printed.last().copies, 3);
  EXPECT_EQ(Text("txtCopies"), "1");
  for (const char* text : {"x", "", "0", "-2"}) {
    bench.Fill("txtCopies", text);
    bench.Click("cmdPrintResults");
    EXPECT_EQ(bench.printer.printed.last().copies, 1) << text;
  }
  EXPECT_FALSE(bench.Refused());
}

TEST_F(uctPlayTimeResultsTest, ThePreviewShowsTheSameSheetWhateverTheCopies) {
  MakePaired(4);
  Play();
  ShowResults();
  Check("chkStandings");
  Check("chkBoxScores");
  bench.Fill("txtCopies", "3");
  bench.Click("cmdPreviewResults");
  ASSERT_EQ(bench.printer.previewed.size(), 1);
  EXPECT_EQ(bench.printer.previewed[0].title, "Spring Open - Class A");
  EXPECT_TRUE(TextsOf(bench.printer.previewed[0].document).contains("Entry %"));
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Text("txtCopies"), "3");
}

TEST_F(uctPlayTimeResultsTest, ResultsSkippedBeforeApprovedOnesAreAskedAbout) {
  MakePaired(4);
  Play("Game <> 2");
  Set(7, "yes");
  ShowResults();
  Check("chkStandings");
  for (const char* button : {"cmdPrintResults", "cmdPreviewResults"}) {
    bench.person.questions.clear();
    bench.person.WillAnswer(false);
    bench.Click(button);
    ASSERT_EQ(bench.person.questions.size(), 1);
    EXPECT_EQ(bench.person.questions[0].title, "Confirm Results Print");
    EXPECT_EQ(bench.person.questions[0].text,
              "Results appear to be missing.  Do you wish to continue?");
  }
  EXPECT_TRUE(bench.printer.printed.isEmpty());
  EXPECT_TRUE(bench.printer.previewed.isEmpty());
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Cell("SELECT SUM(TotalWins) FROM TournamentEntrants").ToNumber(), 4);
  bench.person.WillAnswer(true);
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.printer.printed.size(), 1);
}

TEST_F(uctPlayTimeResultsTest, GamesStillToComeAreNotMissing) {
  MakePaired(4);
  Play("Game = 1");
  Set(7, "yes");
  ShowResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.printer.printed.size(), 1);
  EXPECT_TRUE(bench.person.questions.isEmpty());
}

TEST_F(uctPlayTimeResultsTest, MissingResultsAreNotAskedAboutInATextFileNorWithoutWarnings) {
  MakePaired(4);
  Play("Game <> 2");
  ShowResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.printer.printed.size(), 1);
  bench.Leave();
  Set(7, "yes");
  bench.LeaveAndReturn();
  bench.Click("cmdLoad");
  OpenResults();
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_TRUE(bench.person.questions.isEmpty());
}

TEST_F(uctPlayTimeResultsTest, TheClubsOffsetMovesTheWholeSheet) {
  MakePaired(4);
  Set(9, "300");
  ShowResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  const auto* heading = std::get_if<TextMark>(&Printed().pages[0].marks[0]);
  ASSERT_NE(heading, nullptr);
  EXPECT_EQ(heading->y, 650);
}

TEST_F(uctPlayTimeResultsTest, PaperHonoursThePlacesThatTheDirectorSet) {
  MakePaired(4);
  Play();
  connection_.Execute("UPDATE TournamentClasses SET RankOverride = True");
  for (int n = 1; n <= 4; ++n)
    connection_.Execute("UPDATE TournamentEntrants SET RankOverride = ? WHERE PlayerID = ?",
                        {5 - n, Player(n)});
  ShowResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  QStringList names = PrintedTexts().filter("Stone");
  EXPECT_EQ(names, (QStringList{"P4 Stone", "P3 Stone", "P2 Stone", "P1 Stone"}));
}

TEST_F(uctPlayTimeResultsTest, AGameAgainstThePacerStandsInTheBoxScore) {
  MakePaired(3);
  Play();
  ShowResults();
  Check("chkBoxScores");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(Times("PACER"), 3);
}

TEST_F(uctPlayTimeResultsTest, APrinterThatFailsIsToldAndTheCopiesStay) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  bench.Fill("txtCopies", "2");
  bench.printer.failure = "The printer Office is out of paper";
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.errors.Take().description, "The printer Office is out of paper");
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Text("txtCopies"), "2");
  bench.printer.failure.clear();
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.printer.printed.last().copies, 2);
}

TEST_F(uctPlayTimeResultsTest, ASheetThatTheOperatorWouldNotSaveIsNotReportedAsPrinted) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  bench.printer.accepted = false;
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.Message(), "");
}

TEST_F(uctPlayTimeResultsTest, FromTheResultsTabTheDirectorKeepsHisGame) {
  MakePaired(4);
  Show();
  bench.Click("cmdLoad");
  Scores().SetRow(3);
  OpenResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.FocusName(), "cmdPrintResults");
  Tabs().setCurrentIndex(0);
  EXPECT_EQ(Scores().Row(), 3);
}

TEST_F(uctPlayTimeResultsTest, WhereTheGamesCanBeSeenTheFirstOneGetsTheFocusAfterwards) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_NE(bench.FocusName(), "GridEX1");
  Tabs().setCurrentIndex(0);
  for (const char* button : {"cmdPrintPair", "cmdPrintResults", "cmdPreviewResults", "cmdExport"}) {
    Scores().SetRow(3);
    bench.Focus("cmdView");
    bench.Find<QPushButton>(button).click();
    EXPECT_EQ(Scores().Row(), 1) << button;
    EXPECT_TRUE(Scores().isAncestorOf(bench.Find("uctPlayTime").window()->focusWidget()) ||
                bench.FocusName() == "GridEX1")
        << button;
  }
}

TEST_F(uctPlayTimeResultsTest, AScoreBeingTypedIsTakenAlongAndARefusedOneBarsTheSheet) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  Tabs().setCurrentIndex(0);
  Scores().SetRow(1);
  Scores().SetValue("PlayerOnePoints", 17);
  bench.Find<QPushButton>("cmdPrintResults").click();
  EXPECT_EQ(Cell("SELECT SUM(PlayerOnePoints) FROM TournamentSinglesRR").ToNumber(), 17);
  EXPECT_EQ(bench.printer.printed.size(), 1);
  Scores().SetValue("Shoes", "many");
  bench.Find<QPushButton>("cmdPrintResults").click();
  EXPECT_EQ(bench.Message(), "Invalid shoes");
  EXPECT_EQ(bench.printer.printed.size(), 1);
  Scores().SetDataChanged(false);
}

TEST_F(uctPlayTimeResultsTest, TabReachesEveryControlOfTheResultsTab) {
  MakePaired(5);
  ShowResults();
  bench.Focus("txtFrom");
  QSet<QString> reached;
  for (int i = 0; i < 150; ++i) {
    reached << bench.FocusName();
    bench.Press(Qt::Key_Tab);
  }
  for (const QString& name : outputs) {
    if (name == "optFront" || name == "optBack") continue;
    EXPECT_TRUE(reached.contains(name)) << name.toStdString();
  }
  EXPECT_TRUE(reached.contains("optFront") || reached.contains("optBack"));
}

TEST_F(uctPlayTimeResultsTest, NothingIsCutAndTheStandingKeepsItsRoom) {
  MakePaired(12);
  Play("Game < 8");
  for (const bool dark : {false, true}) {
    dark ? UseDarkPalette() : UseLightPalette();
    ShowResults();
    Check("chkStandings");
    bench.Shot(dark ? "uctPlayTime-frames-dark" : "uctPlayTime-frames");
    EXPECT_EQ(CutTexts(*bench.Find("uctPlayTime").window()), QStringList());
    EXPECT_GE(bench.Find("GridEX2").height(), 200);
  }
  UseLightPalette();
}

}  // namespace
}  // namespace tavrelin
