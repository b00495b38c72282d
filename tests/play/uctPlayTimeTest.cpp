#include "play/uctPlayTime.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "controls/GridEX.h"
#include "play/ClassBench.h"
#include "play/Pairing.h"
#include "play/uctPlayTimeTeams.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

class uctPlayTimeTest : public ClassBench {
 protected:
  ScreenBench bench;

  template <class ScreenClass = uctPlayTime>
  void Show() {
    ConnectString = ConnectStringFor(path_);
    bench.store().SaveRegistryString({}, "RecentTournament",
                                     Cell("SELECT SanctionID FROM Tournaments").ToText());
    bench.Show<ScreenClass>();
  }
  template <class ScreenClass = uctPlayTime>
  void ShowAndLoad() {
    Show<ScreenClass>();
    bench.Click("cmdLoad");
  }
  void Pair(int entrants) {
    const auto odd = entrants % 2 ? OddEntrant::Pacer : OddEntrant::NotChosen;
    const QStringList courts = LoadClass(connection_, Rules()).courts;
    ASSERT_FALSE(CreatePairing(connection_, Rules(), {courts, 1, odd}));
  }
  void ShowPaired(int entrants, const QString& method = "P", double handicap = 0) {
    MakeSingles(entrants, method, handicap);
    Pair(entrants);
    ShowAndLoad();
  }

  GridEX& Scores() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Standing() { return bench.Find<GridEX>("GridEX2"); }
  QTabWidget& Tabs() { return bench.Find<QTabWidget>("SSTab1"); }
  bool IsEnabled(const QString& name) { return bench.Find(name).isEnabled(); }
  qint64 Games() { return Cell("SELECT COUNT(*) FROM TournamentSinglesRR").ToWhole(); }

  void Score(int row, int shoes, const QList<int>& one, const QList<int>& two,
             bool approved = true) {
    Scores().SetRow(row);
    Scores().SetValue("Shoes", shoes);
    const QStringList fields = {"Points", "Ringers", "SinglePoints"};
    for (qsizetype i = 0; i < one.size(); ++i) {
      Scores().SetValue(i == 2 ? "POneSinglePts" : "PlayerOne" + fields[i], one[i]);
      Scores().SetValue(i == 2 ? "PTwoSinglePts" : "PlayerTwo" + fields[i], two[i]);
    }
    Scores().SetValue("Approved", approved);
  }
};

TEST_F(uctPlayTimeTest, AnUnpairedEvenClassOffersCourtsAndRoundsButNeitherByeNorPacer) {
  MakeSingles(4);
  ShowAndLoad();
  EXPECT_EQ(bench.Find<QLineEdit>("txtCourts").text(), "1");
  EXPECT_EQ(bench.Find<QComboBox>("cboRounds").currentText(), "1");
  EXPECT_TRUE(IsEnabled("cmdCreatePair"));
  for (const char* name : {"optBye", "optPacer", "cmdDeletePair", "GridEX1"})
    EXPECT_FALSE(IsEnabled(name)) << name;
}

// Such a number fits no club file of ours, but other programs write to the same tables.
TEST_F(uctPlayTimeTest, AClassIsLoadedByItsWholeNumberHoweverLong) {
  MakeSingles(4);
  for (const char* table : {"TournamentClasses", "TournamentEntrants"}) {
    const QByteArray sql = QByteArray("UPDATE ") + table + " SET ClassID = 'OPEN'";
    ASSERT_EQ(sqlite3_exec(connection_.Handle(), sql, nullptr, nullptr, nullptr), SQLITE_OK);
  }
  ShowAndLoad();
  EXPECT_EQ(bench.Find<QComboBox>("cboClasses").currentText(), "OPEN  Class A");
  EXPECT_TRUE(IsEnabled("cmdCreatePair"));
}

TEST_F(uctPlayTimeTest, ARoundsListHoldsABlankAndOneToFour) {
  MakeSingles(4);
  Show();
  const auto& rounds = bench.Find<QComboBox>("cboRounds");
  QStringList items;
  for (int i = 0; i < rounds.count(); ++i) items << rounds.itemText(i).trimmed();
  EXPECT_EQ(items, (QStringList{"", "1", "2", "3", "4"}));
}

TEST_F(uctPlayTimeTest, AnOddClassAsksForByeOrPacerBeforeItIsPaired) {
  MakeSingles(5);
  ShowAndLoad();
  EXPECT_FALSE(bench.Find<QRadioButton>("optBye").isChecked());
  EXPECT_FALSE(bench.Find<QRadioButton>("optPacer").isChecked());
  bench.Click("cmdCreatePair");
  EXPECT_EQ(bench.Message(), "Select Bye or Pacer");
  EXPECT_EQ(bench.FocusName(), "optBye");
  EXPECT_EQ(Games(), 0);
  bench.Click("optPacer");
  bench.Click("cmdCreatePair");
  EXPECT_EQ(Games(), 15);
  EXPECT_EQ(Scores().RowCount(), 15);
  EXPECT_EQ(Scores().Row(), 1);
  EXPECT_TRUE(IsEnabled("cmdDeletePair"));
  EXPECT_FALSE(IsEnabled("cmdCreatePair"));
}

TEST_F(uctPlayTimeTest, APacerClassIsRecognizedAfterARestart) {
  MakeSingles(3);
  Pair(3);
  ShowAndLoad();
  EXPECT_EQ(Scores().RowCount(), 6);
  QStringList names;
  for (int row = 1; row <= 6; ++row)
    names << Scores().TextAt(row, "PlayerOneID") << Scores().TextAt(row, "PlayerTwoID");
  EXPECT_EQ(names.count("PACER"), 3);
}

TEST_F(uctPlayTimeTest, CourtsAreNamedOneAtATimeByButtonsAndArrowKeys) {
  MakeSingles(6);
  ShowAndLoad();
  bench.Fill("txtCourts", "12");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Find<QLineEdit>("txtCourts").text(), "2");
  bench.Fill("txtCourts", "ABCD");
  bench.Click("UpDown1_Down");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Find<QLineEdit>("txtCourts").text(), "3");
  bench.Focus("txtCourts");
  bench.Press(Qt::Key_Up);
  EXPECT_EQ(bench.Find<QLineEdit>("txtCourts").text(), "ABC");
  bench.Click("cmdCreatePair");
  EXPECT_EQ(Rows("SELECT DISTINCT Court FROM TournamentSinglesRR ORDER BY Court"),
            (QStringList{"  3", " 12", "ABC"}));
}

TEST_F(uctPlayTimeTest, ABlankCourtIsRefusedWithAByeAndTheLastOneIsAdvisedBlank) {
  MakeSingles(11);
  ShowAndLoad();
  bench.Click("optBye");
  EXPECT_EQ(bench.Message(), "Blank out last court to optimize court use");
  EXPECT_TRUE(bench.Find<QRadioButton>("optBye").isChecked());
  bench.Fill("txtCourts", " ");
  bench.Click("optBye");
  EXPECT_EQ(bench.Message(), "Invalid court");
  EXPECT_EQ(bench.FocusName(), "txtCourts");
}

TEST_F(uctPlayTimeTest, TwoRoundsOfAClassOfFourAreTwelveGamesNumberedOneToSix) {
  MakeSingles(4);
  ShowAndLoad();
  bench.Pick("cboRounds", "2");
  bench.Click("cmdCreatePair");
  EXPECT_EQ(Games(), 12);
  EXPECT_EQ(Cell("SELECT MAX(Game) FROM TournamentSinglesRR"), Value(6));
}

TEST_F(uctPlayTimeTest, DeletingThePairingIsAskedAndLeadsBackToAnUnpairedClass) {
  ShowPaired(4);
  bench.person.WillAnswer(false);
  bench.Click("cmdDeletePair");
  EXPECT_EQ(Games(), 6);
  bench.person.WillAnswer(true);
  bench.Click("cmdDeletePair");
  EXPECT_EQ(bench.person.questions.last().title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions.last().text, "Delete entire class pairing?");
  EXPECT_EQ(Games(), 0);
  EXPECT_FALSE(IsEnabled("GridEX1"));
  EXPECT_FALSE(IsEnabled("cmdDeletePair"));
  bench.Click("cmdLoad");
  EXPECT_TRUE(IsEnabled("cmdCreatePair"));
}

TEST_F(uctPlayTimeTest, AClassWithoutPlayersSaysSo) {
  AddClass();
  ShowAndLoad();
  EXPECT_EQ(bench.Message(), "No players entered in class");
}

TEST_F(uctPlayTimeTest, AGameWithoutShoesStartsInTheShoesColumn) {
  MakeSingles(4);
  Pair(4);
  connection_.Execute("UPDATE TournamentSinglesRR SET Shoes = 0 WHERE Game = 2");
  ShowAndLoad();
  Scores().SetRow(3);
  EXPECT_EQ(Scores().ColumnKey(Scores().Col()), "Shoes");
}

TEST_F(uctPlayTimeTest, TwoHundredShoesAreAskedAboutWithOrWithoutTheCheckerAndOneNinetyNineAreNot) {
  ShowPaired(4);
  for (const bool checker : {false, true}) {
    bench.Find<QCheckBox>("chkChecker").setChecked(checker);
    bench.person.questions.clear();
    Score(1, 199, {30, 10, 0}, {30, 10, 0});
    EXPECT_TRUE(Scores().CommitRow());
    EXPECT_TRUE(bench.person.questions.isEmpty());
    Score(1, 200, {30, 10, 0}, {30, 10, 0});
    bench.person.WillAnswer(false);
    EXPECT_FALSE(Scores().CommitRow());
    ASSERT_EQ(bench.person.questions.size(), 1);
    EXPECT_EQ(bench.person.questions[0].title, "Confirm shoe count");
    EXPECT_EQ(bench.person.questions[0].text, "Shoe count is abnormally high. Continue?");
    Scores().SetDataChanged(false);
  }
}

TEST_F(uctPlayTimeTest, TheCheckerHoldsAGameAndKeepsWhatWasTyped) {
  ShowPaired(4);
  bench.Click("chkChecker");
  Score(1, 40, {30, 10, 5}, {12, 4, 0});
  EXPECT_FALSE(Scores().CommitRow());
  EXPECT_EQ(bench.Message(), "Score Checker On.  Invalid Score.");
  EXPECT_EQ(Scores().Value("PlayerOnePoints").ToNumber(), 30);
  EXPECT_EQ(Cell("SELECT MAX(PlayerOnePoints) FROM TournamentSinglesRR").ToNumber(), 0);
  Scores().SetValue("POneSinglePts", 0);
  EXPECT_TRUE(Scores().CommitRow());
  EXPECT_EQ(Cell("SELECT MAX(PlayerOnePoints) FROM TournamentSinglesRR").ToNumber(), 30);
}

TEST_F(uctPlayTimeTest, SinglePointsAndForfeitsShowWhenTheirBoxesAreTickedAndAreRemembered) {
  ShowPaired(4);
  const auto visible = [this](const QString& key) {
    return Scores().Columns().at(Scores().ColumnNumber(key) - 1).visible;
  };
  EXPECT_FALSE(visible("POneSinglePts"));
  EXPECT_FALSE(visible("PlayerTwoForfeit"));
  bench.Click("chkChecker");
  bench.Click("chkForfeit");
  for (const char* key : {"POneSinglePts", "PTwoSinglePts", "PlayerOneForfeit", "PlayerTwoForfeit"})
    EXPECT_TRUE(visible(key)) << key;
  bench.LeaveAndReturn();
  EXPECT_EQ(bench.store().GetRegistryString({}, "ScoreCheck"), "1");
  EXPECT_EQ(bench.store().GetRegistryString({}, "Forfeit"), "1");
  EXPECT_TRUE(bench.Find<QCheckBox>("chkChecker").isChecked());
  EXPECT_TRUE(visible("PTwoSinglePts"));
}

TEST_F(uctPlayTimeTest, ACourtTypedIsRightJustified) {
  ShowPaired(4);
  Scores().SetRow(1);
  Scores().SetCol("Court");
  bench.Type("7");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(Scores().Value("Court"), Value("  7"));
}

TEST_F(uctPlayTimeTest, AHandTypedGameOnACourtInUseIsRefused) {
  ShowPaired(4);
  Scores().MoveToNewRow();
  for (const auto& [field, value] : QList<QPair<QString, Value>>{
           {"Game", 1}, {"Court", "  1"}, {"PlayerOneID", Player(1)}, {"PlayerTwoID", Player(2)}})
    Scores().SetValue(field, value);
  EXPECT_FALSE(Scores().CommitRow());
  EXPECT_EQ(bench.Message(), "Court already in use for this game");
  Scores().SetValue("Court", "  9");
  EXPECT_TRUE(Scores().CommitRow()) << bench.Message().toStdString();
  EXPECT_EQ(Games(), 7);
}

TEST_F(uctPlayTimeTest, DeletingOneGameIsAsked) {
  ShowPaired(4);
  Scores().SetRow(1);
  bench.person.WillAnswer(true);
  EXPECT_TRUE(Scores().DeleteRow());
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected pair?");
  EXPECT_EQ(Games(), 5);
}

TEST_F(uctPlayTimeTest, TheResultsTabRanksTheApprovedGames) {
  ShowPaired(2);
  Score(1, 40, {20, 10}, {31, 12});
  Tabs().setCurrentIndex(1);
  ASSERT_EQ(Standing().RowCount(), 2);
  EXPECT_EQ(Standing().ValueAt(1, "PlayerID"), Value(Player(2)));
  EXPECT_EQ(Standing().TextAt(1, "Won"), "1");
  EXPECT_EQ(Standing().TextAt(1, "RingerPercent"), "30.00");
  EXPECT_EQ(Standing().TextAt(2, "Rank"), "2");
  EXPECT_EQ(bench.Find<QLabel>("lblOverride").text(),
            "No Rank Override has been applied to this Class");
}

TEST_F(uctPlayTimeTest, ATiedGameShowsHalvesInTheStanding) {
  ShowPaired(2);
  Score(1, 40, {20, 10}, {20, 10});
  Tabs().setCurrentIndex(1);
  EXPECT_EQ(Standing().TextAt(1, "Won"), "0.5");
  EXPECT_EQ(Standing().TextAt(2, "Loss"), "0.5");
}

TEST_F(uctPlayTimeTest, ARowThatIsRefusedKeepsTheScoresTabOpen) {
  ShowPaired(2);
  Score(1, 40, {20, 10}, {20, 10});
  Scores().SetValue("Court", "");
  Tabs().setCurrentIndex(1);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(bench.Message(), "Invalid court");
  Scores().SetDataChanged(false);
}

TEST_F(uctPlayTimeTest, AnOverrideIsAppliedShownAndTakenBackWhileTheScreenKeepsItsOrder) {
  ShowPaired(2);
  Score(1, 40, {31, 12}, {20, 10});
  Tabs().setCurrentIndex(1);
  Standing().SetRow(1);
  Standing().SetValue("Override", 2);
  ASSERT_TRUE(Standing().CommitRow());
  Standing().SetRow(2);
  Standing().SetValue("Override", 1);
  bench.Click("cmdOverride");
  EXPECT_EQ(bench.Find<QLabel>("lblOverride").text(), "Rank Override is in affect for this Class");
  EXPECT_EQ(bench.Find<QPushButton>("cmdOverride").text(), "Remove Override");
  EXPECT_EQ(Cell("SELECT RankOverride FROM TournamentEntrants WHERE PlayerID = '" + Player(1) + "'")
                .ToNumber(),
            2);

  Tabs().setCurrentIndex(0);
  Tabs().setCurrentIndex(1);
  EXPECT_EQ(Standing().ValueAt(1, "PlayerID"), Value(Player(1)));
  EXPECT_EQ(Standing().ValueAt(1, "Override").ToNumber(), 2);

  bench.Click("cmdOverride");
  EXPECT_EQ(bench.Find<QPushButton>("cmdOverride").text(), "Apply Override");
  EXPECT_EQ(Cell("SELECT MAX(RankOverride) FROM TournamentEntrants").ToNumber(), 0);
}

TEST_F(uctPlayTimeTest, TwoPlayersAtOnePlaceAreRefusedWithTheirNumber) {
  ShowPaired(4);
  Tabs().setCurrentIndex(1);
  for (int row = 1; row <= 4; ++row) {
    Standing().SetRow(row);
    Standing().SetValue("Override", row < 3 ? row : 3);
    Standing().CommitRow();
  }
  bench.Click("cmdOverride");
  EXPECT_EQ(bench.Message(), "Duplicate Ranking: #3 is not allowed");
  EXPECT_EQ(bench.Find<QPushButton>("cmdOverride").text(), "Apply Override");
}

TEST_F(uctPlayTimeTest, APlayerDeletedFromTheRosterStillStandsInHisGamesUnderHisNumber) {
  MakeSingles(4);
  Pair(4);
  connection_.Execute("DELETE FROM Players WHERE PlayerID = '" + Player(1) + "'");
  ShowAndLoad();
  QStringList names;
  for (int row = 1; row <= Scores().RowCount(); ++row) names << Scores().TextAt(row, "PlayerOneID");
  EXPECT_TRUE(names.contains(Player(1) + " (not on file)"));
}

TEST_F(uctPlayTimeTest, TheViewButtonTurnsNarrowAndWideAndLeavesTheSecondRingersAsTheyWere) {
  ShowPaired(4);
  const auto column = [this](const QString& key) {
    return Scores().Columns().at(Scores().ColumnNumber(key) - 1);
  };
  bench.Click("cmdView");
  EXPECT_EQ(Scores().CurrentView(), GridEX::View::Card);
  EXPECT_EQ(column("Game").caption, "Gm");
  EXPECT_EQ(column("Approved").caption, "X");
  EXPECT_TRUE(column("PlayerOneRingers").compact);
  EXPECT_FALSE(column("PlayerTwoRingers").compact);
  bench.Click("cmdView");
  EXPECT_EQ(Scores().CurrentView(), GridEX::View::Table);
  EXPECT_EQ(column("Game").caption, "Game");
  EXPECT_EQ(column("PlayerTwoRingers").caption, "Ringers");
  EXPECT_EQ(column("PlayerOneWL").caption, "W/L");
  EXPECT_FALSE(column("PlayerOneRingers").compact);
}

TEST_F(uctPlayTimeTest, Pictures) {
  MakeSingles(7);
  Show();
  bench.Shot("uctPlayTime-start");
  bench.Click("cmdLoad");
  bench.Shot("uctPlayTime-unpaired");
  bench.Click("optPacer");
  bench.Click("cmdCreatePair");
  bench.Click("chkChecker");
  bench.Click("chkForfeit");
  Score(1, 40, {30, 10, 0}, {12, 4, 0});
  Scores().CommitRow();
  Score(2, 40, {20, 10, 0}, {20, 10, 0});
  Scores().CommitRow();
  bench.Shot("uctPlayTime-scores");
  EXPECT_EQ(CutTexts(*bench.Find("GridEX1").window()), QStringList());
  Tabs().setCurrentIndex(1);
  bench.Shot("uctPlayTime-results");
  EXPECT_EQ(CutTexts(*bench.Find("GridEX1").window()), QStringList());
}

class uctPlayTimeTeamsTest : public uctPlayTimeTest {};

TEST_F(uctPlayTimeTeamsTest, ATeamChosenForAGameBringsItsPlayersAndOneNotEnteredIsRefused) {
  MakeDoubles(4);
  ShowAndLoad<uctPlayTimeTeams>();
  bench.Click("cmdCreatePair");
  EXPECT_EQ(Scores().RowCount(), 6);
  Scores().SetRow(1);
  Scores().SetValue("TeamOneID", 3);
  EXPECT_TRUE(Scores().CommitRow()) << bench.Message().toStdString();
  EXPECT_EQ(Scores().ValueAt(1, "TeamOnePlayerOneID"), Value(Partner(3, 0)));
  Scores().SetValue("TeamOneID", 99);
  EXPECT_FALSE(Scores().CommitRow());
  EXPECT_EQ(bench.Message(), "Team not found in entries ");
  Scores().SetDataChanged(false);
}

TEST_F(uctPlayTimeTeamsTest, DoublesHaveNoCheckerNoForfeitsAndNoOverride) {
  MakeDoubles(4);
  ShowAndLoad<uctPlayTimeTeams>();
  for (const char* name : {"chkChecker", "chkForfeit", "Frame5"})
    EXPECT_FALSE(bench.Find(name).isVisible()) << name;
  EXPECT_EQ(Standing().ColumnNumber("Override"), 0);
}

TEST_F(uctPlayTimeTeamsTest, APacerTeamShowsAsPacerWithItsTwoPlayers) {
  MakeDoubles(3);
  ShowAndLoad<uctPlayTimeTeams>();
  bench.Click("optPacer");
  bench.Click("cmdCreatePair");
  QStringList shown;
  for (int row = 1; row <= Scores().RowCount(); ++row)
    for (const char* key : {"TeamOneID", "TeamTwoID", "TeamOnePlayerOneID", "TeamTwoPlayerOneID",
                            "TeamTwoPlayerTwoID"})
      shown << Scores().TextAt(row, key);
  EXPECT_EQ(shown.count("PACER"), 3);
  EXPECT_TRUE(shown.contains("PACER 1"));
  EXPECT_TRUE(shown.contains("PACER 2"));
  bench.Shot("uctPlayTimeTeams-scores");
  Tabs().setCurrentIndex(1);
  bench.Shot("uctPlayTimeTeams-results");
}

}  // namespace
}  // namespace tavrelin
