#include "play/PlayOutputBench.h"

#include <QComboBox>
#include <QSet>

#include "basic/TextFile.h"

namespace tavrelin {
namespace {

class uctPlayTimeTeamsResultsTest : public PlayOutputBench<uctPlayTimeTeams> {};

TEST_F(uctPlayTimeTeamsResultsTest, HasNeitherWorksheetNorBriefNorCopies) {
  Show();
  for (const char* name : {"chkRRWorksheet", "chkBrief", "txtCopies", "lblCopies", "cboPlayers"})
    EXPECT_FALSE(bench.Has(name)) << name;
  EXPECT_EQ(bench.Find<QAbstractButton>("cmdExport").text(), "Export Results");
}

TEST_F(uctPlayTimeTeamsResultsTest, TheExportOptionChangesCardsForTheTextFile) {
  MakePaired(4);
  ShowResults();
  EXPECT_TRUE(IsVisible("Frame2"));
  EXPECT_FALSE(IsVisible("Frame4"));
  bench.Click("chkExport");
  EXPECT_FALSE(IsVisible("Frame2"));
  EXPECT_TRUE(IsVisible("Frame4"));
  bench.Click("chkExport");
  EXPECT_TRUE(IsVisible("Frame2"));
  EXPECT_FALSE(IsVisible("Frame4"));
}

TEST_F(uctPlayTimeTeamsResultsTest, OffersItsTeamsAndThePacerTeam) {
  MakePaired(3);
  ShowResults();
  const auto& teams = bench.Find<QComboBox>("cboTeams");
  QStringList items;
  for (int i = 0; i < teams.count(); ++i) items << teams.itemText(i);
  EXPECT_EQ(items, (QStringList{"All teams", "1. Team 1", "2. Team 2", "3. Team 3", "4. PACER"}));
  EXPECT_EQ(Text("txtTo"), "3");
}

TEST_F(uctPlayTimeTeamsResultsTest, FrontsArePrintedTwiceATeamAndThenTheBacks) {
  MakePaired(4);
  ShowResults();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Printed().pages.size(), 8);
  EXPECT_TRUE(IsChecked("optBack"));
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeTeamsResultsTest, OneTeamGetsExactlyItsCard) {
  MakePaired(4);
  ShowResults();
  bench.Click("optBack");
  bench.Pick("cboTeams", "2. Team 2");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Printed().pages.size(), 1);
  EXPECT_FALSE(TextsOf(Printed()).filter("Ann Of2").isEmpty());
}

TEST_F(uctPlayTimeTeamsResultsTest, OnlyYesGivesFoldedCards) {
  MakePaired(4);
  for (const auto& [style, totals] :
       QList<QPair<QString, int>>{{"2", 0}, {"3", 0}, {"N", 0}, {"", 0}, {"y", 4}, {"yes", 4}}) {
    Set(3, style);
    ShowResults();
    bench.Click("optFront");
    bench.Click("cmdPrintPair");
    EXPECT_EQ(Times("Totals"), totals) << style.toStdString();
    EXPECT_EQ(IsChecked("optBack"), totals == 0) << style.toStdString();
  }
}

TEST_F(uctPlayTimeTeamsResultsTest, MoreThanElevenGamesAreTooManyForACard) {
  MakePaired(4);
  ShowResults();
  bench.Fill("txtTo", "12");
  bench.Focus("cmdPrintPair");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.Message(), "Cannot print more than 11 games on card");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(bench.FocusName(), "txtTo");
  EXPECT_TRUE(bench.printer.printed.isEmpty());
}

TEST_F(uctPlayTimeTeamsResultsTest, PrintsOnceWithoutAskingAboutMissingResults) {
  MakePaired(4);
  Play("Game <> 2");
  Set(7, "yes");
  ShowResults();
  bench.Click("chkStandings");
  bench.Click("chkBoxScores");
  bench.Click("cmdPrintResults");
  ASSERT_EQ(bench.printer.printed.size(), 1);
  EXPECT_EQ(bench.printer.printed[0].copies, 1);
  EXPECT_EQ(bench.printer.printed[0].title, "Spring Open - Class A");
  EXPECT_EQ(Times("A-Rgr"), 4);
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
  EXPECT_EQ(bench.person.beeps, 1);
  bench.Click("cmdPreviewResults");
  EXPECT_EQ(bench.printer.previewed.size(), 1);
}

TEST_F(uctPlayTimeTeamsResultsTest, OneOfTheSectionsMustBeChosen) {
  MakePaired(4);
  ShowResults();
  bench.Click("chkExport");
  for (const char* button : {"cmdPrintResults", "cmdPreviewResults", "cmdExport"}) {
    bench.Focus(button);
    bench.Click(button);
    EXPECT_EQ(bench.Message(), "Check either Standings or Box Scores or both") << button;
    EXPECT_EQ(bench.FocusName(), "chkStandings") << button;
  }
}

TEST_F(uctPlayTimeTeamsResultsTest, AClassWhoseGamesWereAllDeletedStillPrintsItsTeams) {
  MakePaired(2);
  Show();
  bench.Click("cmdLoad");
  bench.person.WillAnswer(true);
  ASSERT_TRUE(bench.Find<GridEX>("GridEX1").DeleteRow());
  OpenResults();
  bench.Click("chkStandings");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(Times("Team 1"), 1);
}

TEST_F(uctPlayTimeTeamsResultsTest, TheOffsetOfTheSinglesSheetIsIgnored) {
  MakePaired(2);
  Set(9, "300");
  ShowResults();
  bench.Click("chkStandings");
  bench.Click("cmdPrintResults");
  const auto* heading = std::get_if<TextMark>(&Printed().pages[0].marks[0]);
  ASSERT_NE(heading, nullptr);
  EXPECT_EQ(heading->y, 800);
}

TEST_F(uctPlayTimeTeamsResultsTest, AFolderWithoutABackslashStandsAsTyped) {
  MakePaired(4);
  Play();
  ShowResults();
  bench.Click("chkStandings");
  bench.Click("chkExport");
  bench.Fill("txtPath", folder_.path() + "/Doubles");
  bench.Fill("txtFile", "Final.txt");
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(Text("txtPath"), folder_.path() + "/Doubles");
  EXPECT_TRUE(ReadTextFile(folder_.filePath("DoublesFinal.txt")).contains("Team 1"));
  bench.Leave();
  EXPECT_EQ(bench.store().GetRegistryString({}, "TournamentPath"), folder_.path() + "/Doubles");
}

TEST_F(uctPlayTimeTeamsResultsTest, AFileThatCannotBeOpenedIsRefused) {
  MakePaired(2);
  ShowResults();
  bench.Click("chkStandings");
  bench.Click("chkExport");
  bench.Fill("txtPath", folder_.path() + "/nowhere/");
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "Unable to open file. No such file or directory");
  EXPECT_TRUE(bench.Refused());
}

TEST_F(uctPlayTimeTeamsResultsTest, APrinterThatFailsIsTold) {
  MakePaired(2);
  ShowResults();
  bench.Click("chkStandings");
  bench.printer.failure = "The printer Office is out of paper";
  bench.Click("cmdPrintResults");
  EXPECT_EQ(bench.errors.Take().description, "The printer Office is out of paper");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.errors.Take().description, "The printer Office is out of paper");
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeTeamsResultsTest, TabReachesCardsAndTextFile) {
  MakePaired(2);
  ShowResults();
  for (const bool exporting : {false, true}) {
    if (exporting) bench.Click("chkExport");
    QSet<QString> reached;
    bench.Focus("chkStandings");
    for (int i = 0; i < 100; ++i) {
      reached << bench.FocusName();
      bench.Press(Qt::Key_Tab);
    }
    for (const char* name :
         {"chkStandings", "chkBoxScores", "cmdPrintResults", "cmdPreviewResults", "chkExport"})
      EXPECT_TRUE(reached.contains(name)) << name;
    for (const char* name : {"txtFrom", "txtTo", "cboTeams", "cmdPrintPair"})
      EXPECT_EQ(reached.contains(name), !exporting) << name;
    for (const char* name : {"txtPath", "txtFile", "cmdExport"})
      EXPECT_EQ(reached.contains(name), exporting) << name;
  }
}

TEST_F(uctPlayTimeTeamsResultsTest, NothingIsCutAndTheStandingKeepsItsRoom) {
  MakePaired(8);
  Play("Game < 6");
  for (const bool dark : {false, true}) {
    dark ? UseDarkPalette() : UseLightPalette();
    ShowResults();
    const QString look = dark ? "-dark" : "";
    bench.Shot("uctPlayTimeTeams-frames" + look);
    EXPECT_EQ(CutTexts(*bench.Find("uctPlayTimeTeams").window()), QStringList());
    bench.Click("chkExport");
    bench.Shot("uctPlayTimeTeams-export" + look);
    EXPECT_EQ(CutTexts(*bench.Find("uctPlayTimeTeams").window()), QStringList());
    EXPECT_GE(bench.Find("GridEX2").height(), 200);
  }
  UseLightPalette();
}

}  // namespace
}  // namespace tavrelin
