#include "play/uctPlayTime.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "basic/TextFile.h"
#include "controls/GridEX.h"
#include "play/ClassBench.h"
#include "play/Pairing.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

/// A class of players of equal average; every game that is played goes 30 to 20 for player one.
class uctPlayTimeResultsTest : public ClassBench {
 protected:
  ScreenBench bench;

  void Show() {
    ConnectString = ConnectStringFor(path_);
    bench.store().SaveRegistryString({}, "RecentTournament", "26-01-007   Spring Open");
    bench.store().SaveRegistryString({}, "TournamentPath", folder_.path() + "/");
    bench.Show<uctPlayTime>();
  }
  void ShowResults() {
    Show();
    bench.Click("cmdLoad");
    OpenResults();
  }
  void OpenResults() {
    bench.Find<QTabWidget>("SSTab1").setCurrentIndex(1);
    bench.ProcessEvents();
  }
  void MakePaired(int entrants, OddEntrant odd = OddEntrant::Pacer) {
    MakeSingles(entrants);
    Pair(odd);
  }
  void Pair(OddEntrant odd = OddEntrant::Pacer) {
    const QStringList courts = LoadClass(connection_, Rules()).courts;
    const bool even = LoadClass(connection_, Rules()).entrants % 2 == 0;
    ASSERT_EQ(CreatePairing(connection_, Rules(), {courts, 1, even ? OddEntrant::NotChosen : odd}),
              QString());
  }
  void Play(const QString& where = "1 = 1") {
    connection_.Execute(
        "UPDATE TournamentSinglesRR SET Approved = True, PlayerOnePoints = 30, "
        "PlayerTwoPoints = 20, PlayerOneRingers = 16, PlayerTwoRingers = 12, "
        "Shoes = 40 WHERE " +
        where);
  }
  void Set(int setting, const QString& value) {
    connection_.Execute("UPDATE SystemSettings SET SettingValue = ? WHERE SettingID = ?",
                        {value, setting});
  }

  void Check(const QString& name) {
    if (!bench.Find<QCheckBox>(name).isChecked()) bench.Click(name);
  }
  bool IsChecked(const QString& name) { return bench.Find<QAbstractButton>(name).isChecked(); }
  bool IsEnabled(const QString& name) { return bench.Find(name).isEnabled(); }
  QString Text(const QString& name) { return bench.Find<QLineEdit>(name).text(); }
  QTabWidget& Tabs() { return bench.Find<QTabWidget>("SSTab1"); }
  GridEX& Scores() { return bench.Find<GridEX>("GridEX1"); }
  const Document& Printed() { return bench.printer.printed.last().document; }
  qsizetype Pages() { return Printed().pages.size(); }
  QStringList PrintedTexts() { return TextsOf(Printed()); }
  qsizetype Times(const QString& text) { return PrintedTexts().count(text); }
  void ExpectRefusal(const QString& message) {
    EXPECT_EQ(bench.Message(), message);
    EXPECT_TRUE(bench.Refused());
    EXPECT_EQ(bench.person.beeps, 1);
    EXPECT_TRUE(bench.printer.printed.isEmpty());
    EXPECT_TRUE(bench.printer.previewed.isEmpty());
  }

  const QStringList outputs = {
      "optFront",          "optBack",        "txtFrom",      "txtTo",
      "cboPlayers",        "chkRRWorksheet", "cmdPrintPair", "chkStandings",
      "chkBoxScores",      "chkBrief",       "txtCopies",    "cmdPrintResults",
      "cmdPreviewResults", "txtPath",        "txtFile",      "cmdExport"};
};

// State

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

TEST_F(uctPlayTimeResultsTest, ALoadedClassOffersItsPlayersAndItsHighestGame) {
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

TEST_F(uctPlayTimeResultsTest, AFolderOfTheProgramGivesWayToTheDataFolder) {
  MakePaired(4);
  Show();
  bench.Leave();
  bench.store().SaveRegistryString({}, "TournamentPath", "C:\\Program Files\\Club\\");
  bench.LeaveAndReturn();
  EXPECT_EQ(Text("txtPath"), "C:\\TavrelinData\\");
}

TEST_F(uctPlayTimeResultsTest, TheFileIsNamedAfterTheTournamentAndThenAfterTheClass) {
  MakePaired(4);
  Show();
  EXPECT_EQ(Text("txtFile"), "26-01-007SpringOpen.txt");
  bench.Click("cmdLoad");
  EXPECT_EQ(Text("txtFile"), "SpringOpen-AClassA.txt");
}

// Cards

TEST_F(uctPlayTimeResultsTest, FrontsAreFollowedByBacksAndBacksByFronts) {
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

TEST_F(uctPlayTimeResultsTest, AClubThatPrintsBacksAloneStaysOnTheBack) {
  MakePaired(4);
  Set(4, "yes");
  ShowResults();
  EXPECT_TRUE(IsChecked("optBack"));
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_TRUE(IsChecked("optBack"));
}

TEST_F(uctPlayTimeResultsTest, TwelvePlayersAndBlankBoxesPrintGamesOneToEleven) {
  MakePaired(12);
  ShowResults();
  bench.Click("optBack");
  bench.Fill("txtTo", "");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 12);
  EXPECT_EQ(Times("11"), 12);
  EXPECT_EQ(Times("12"), 0);
}

TEST_F(uctPlayTimeResultsTest, ThirteenPlayersAndBlankBoxesAreTooManyGamesForACard) {
  MakePaired(13);
  ShowResults();
  bench.Fill("txtTo", "");
  bench.Focus("cmdPrintPair");
  bench.Click("cmdPrintPair");
  ExpectRefusal("Cannot print more than 11 games on card");
  EXPECT_EQ(bench.FocusName(), "txtTo");
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeResultsTest, ElevenGamesAreACardAndTwelveAreNot) {
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

TEST_F(uctPlayTimeResultsTest, BoxesWithoutANumberStandForTheWholeRoundRobin) {
  MakePaired(4);
  ShowResults();
  bench.Click("optBack");
  bench.Fill("txtFrom", "x");
  bench.Fill("txtTo", "y");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_EQ(Times("3"), 4);
}

TEST_F(uctPlayTimeResultsTest, OnePlayerGetsExactlyHisCard) {
  MakePaired(4);
  ShowResults();
  bench.Click("optBack");
  bench.Pick("cboPlayers", "3. P3 Stone");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 1);
  EXPECT_TRUE(PrintedTexts().contains("3.P3 Stone"));
}

TEST_F(uctPlayTimeResultsTest, TwoUpCardsAskForTheirGamesWhenWarningsAreOn) {
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

TEST_F(uctPlayTimeResultsTest, TwoUpCardsAreNotAskedAboutWithoutWarnings) {
  MakePaired(4);
  Set(3, "3");
  ShowResults();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 2);
}

TEST_F(uctPlayTimeResultsTest, FoldedCardsNeedNoFaceAndLeaveTheSelectionAlone) {
  MakePaired(4);
  Set(3, "yes");
  ShowResults();
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Pages(), 4);
  EXPECT_EQ(Times("Totals"), 4);
  EXPECT_TRUE(IsChecked("optFront"));
}

TEST_F(uctPlayTimeResultsTest, SettingsAreReadAgainWhenTheScreenIsShownAgain) {
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

TEST_F(uctPlayTimeResultsTest, TheWorksheetListsAllGamesAndLeavesTheFaceAlone) {
  MakePaired(4);
  ShowResults();
  Check("chkRRWorksheet");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.printer.printed.last().title, "Round Robin Worksheet");
  EXPECT_EQ(Times("P1 Stone"), 3);
  EXPECT_TRUE(IsChecked("optFront"));
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
}

TEST_F(uctPlayTimeResultsTest, AWorksheetWithoutGamesIsRefused) {
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

TEST_F(uctPlayTimeResultsTest, APrinterThatFailsTakesNoCardsAndMovesNoFace) {
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

TEST_F(uctPlayTimeResultsTest, CardsThatWentIntoAFileAreNotReportedAsSentToAPrinter) {
  MakePaired(4);
  ShowResults();
  bench.printer.installed = false;
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_TRUE(IsChecked("optBack"));
}

TEST_F(uctPlayTimeResultsTest, CardsThatTheOperatorWouldNotSaveAreNotReportedAsPrinted) {
  MakePaired(4);
  ShowResults();
  bench.printer.accepted = false;
  bench.Click("cmdPrintPair");
  EXPECT_EQ(bench.Message(), "");
  EXPECT_TRUE(IsChecked("optFront"));
}

// Results

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

// Text file

TEST_F(uctPlayTimeResultsTest, TheTextFileHoldsTheSectionsAndTheFolderGetsItsBackslash) {
  MakePaired(4);
  Play();
  ShowResults();
  Check("chkStandings");
  bench.Fill("txtPath", " " + folder_.path());
  bench.Fill("txtFile", "Final.txt ");
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(Text("txtPath"), folder_.path() + "\\");
  const QString text = ReadTextFile(folder_.filePath("Final.txt"));
  EXPECT_TRUE(text.startsWith("Spring Open    Class A    \n\nPos"));
  EXPECT_FALSE(text.contains("Opponent"));
}

TEST_F(uctPlayTimeResultsTest, AFolderThatIsNotThereIsRefusedAndNothingIsWritten) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  bench.Fill("txtPath", folder_.path() + "/nowhere/");
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "Unable to open file. No such file or directory");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_FALSE(QFile::exists(folder_.path() + "/nowhere"));
}

TEST_F(uctPlayTimeResultsTest, TwentyFivePlayersFitOnPaperAndNotInTheTextFile) {
  MakeSingles(25);
  Store({1, 2, {30, 20}, {{16}, {12}}});
  ShowResults();
  Check("chkBoxScores");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(Times("Opponent"), 25);
  bench.Click("cmdExport");
  EXPECT_EQ(bench.errors.Take().number, errors::Subscript);
  EXPECT_NE(bench.Message(), "File has been created");
  EXPECT_FALSE(QFile::exists(folder_.filePath("SpringOpen-AClassA.txt")));
}

// Look

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
