#include "tournament/uctEntrants.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QWheelEvent>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "screens/GridClicks.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct uctEntrantsTest : testing::Test {
  ScreenBench bench;
  Connection file;

  void SetUp() override {
    file.Open(ConnectString);
    file.Execute(
        "INSERT INTO Tournaments (SanctionID, Name, Date) VALUES ('MN25A01', 'Spring Open', "
        "#6/20/2025#)");
    file.Execute(
        "INSERT INTO TournamentClasses (SanctionID, ClassID, Name, PlayFormat) VALUES ('MN25A01', "
        "'A', 'Men', 'S')");
    file.Execute(
        "INSERT INTO TournamentClasses (SanctionID, ClassID, Name, PlayFormat) VALUES ('MN25A01', "
        "'D', 'Pairs', 'D')");
    AddPlayer("ADAANN", "Ann", "Adams", 61.5);
    AddPlayer("BEEBOB", "Bob", "Beech", 40);
    AddPlayer("OBRAL0", "Al", "O'Brien", 0);
    file.Execute("INSERT INTO Teams (TeamID, Team) VALUES (1, 'Iron Pair')");
    file.Execute("INSERT INTO Teams (TeamID, Team) VALUES (2, 'Lonely One')");
    for (const char* row : {"1, 'BEEBOB'", "1, 'ADAANN'", "2, 'OBRAL0'"})
      file.Execute(QString("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (%1)").arg(row));
    bench.store().SaveRegistryString({}, "RecentTournament", "MN-25-A01   Spring Open");
  }

  void AddPlayer(const QString& id, const QString& first, const QString& last, double average) {
    file.Execute(
        "INSERT INTO Players (PlayerID, FirstName, LastName, Category, State, Average) VALUES (?, "
        "?, ?, 'AM', 'MN', ?)",
        {id, first, last, average});
  }
  Value Ask(const QString& sql) {
    Recordset rows;
    rows.Open(sql, file);
    return rows.AtEnd() ? Value() : rows.At(0);
  }
  GridEX& Players() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Entered() { return bench.Find<GridEX>("GridEX2"); }
  GridEX& Teams() { return bench.Find<GridEX>("GridEX3"); }
  GridEX& TeamsEntered() { return bench.Find<GridEX>("GridEX4"); }
  void OpenDoubles() { bench.Find<QTabWidget>("SSTab1").setCurrentIndex(1); }
  void Enter(GridEX& list, int row) {
    list.setFocus();
    list.SetRow(row);
    bench.Press(Qt::Key_Return);
  }
};

TEST_F(uctEntrantsTest, ReopensOnTheTournamentItWasLeftOn) {
  bench.Show<uctEntrants>();
  EXPECT_TRUE(Entered().isEnabled());
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
  bench.Leave();
  EXPECT_EQ(bench.store().GetRegistryString({}, "RecentTournament"), "MN-25-A01   Spring Open");
}

TEST_F(uctEntrantsTest, WithoutATournamentNobodyCanBeEntered) {
  bench.store().SaveRegistryString({}, "RecentTournament", "");
  bench.Show<uctEntrants>();
  EXPECT_FALSE(Entered().isEnabled());
  Enter(Players(), 1);
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TournamentEntrants").ToWhole(), 0);
}

TEST_F(uctEntrantsTest, EnterEntersThePlayerAndStandsOnHisPayment) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  ASSERT_EQ(Entered().RowCount(), 1);
  EXPECT_EQ(Entered().TextAt(1, "PlayerID"), "Adams, Ann");
  EXPECT_EQ(Entered().TextAt(1, "Category"), "Men");
  EXPECT_EQ(Entered().TextAt(1, "RingerPercent"), "61.50");
  EXPECT_EQ(Entered().ColumnKey(Entered().Col()), "Paid");
  bench.Type("12.5");
  bench.Press(Qt::Key_Tab);
  ASSERT_TRUE(Entered().CommitRow()) << bench.Message().toStdString();
  EXPECT_EQ(Ask("SELECT Paid FROM TournamentEntrants").ToNumber(), 12.5);
}

TEST_F(uctEntrantsTest, ASecondEntryIsRefusedWithoutAClassAndAskedAboutWithOne) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  Enter(Players(), 1);
  EXPECT_EQ(bench.Message(),
            "Player already entered in tournament. Cannot be entered again until first entry is "
            "placed in a class. ");
  file.Execute("UPDATE TournamentEntrants SET ClassID = 'A'");
  bench.LeaveAndReturn();
  bench.person.WillAnswer(false);
  Enter(Players(), 1);
  EXPECT_EQ(bench.person.questions[0].title, "Duplicate Entry");
  EXPECT_EQ(Entered().RowCount(), 1);
  bench.person.WillAnswer(true);
  Enter(Players(), 1);
  EXPECT_EQ(Entered().RowCount(), 2);
}

TEST_F(uctEntrantsTest, MoreRingersThanShoesAreRefusedAndAsManyAreTaken) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  Entered().SetValue("Shoes", 100);
  Entered().SetValue("Ringers", 101);
  EXPECT_FALSE(Entered().CommitRow());
  EXPECT_EQ(bench.Message(), "Ringers cannot be greater than Shoes");
  Entered().SetValue("Ringers", 100);
  EXPECT_TRUE(Entered().CommitRow());
}

TEST_F(uctEntrantsTest, OnlyClassesOfTheTabAreOffered) {
  bench.Show<uctEntrants>();
  const auto offered = [](const GridEX& grid) {
    QStringList texts;
    for (const ValueItem& item : grid.Columns().at(grid.ColumnNumber("ClassID") - 1).values.Items())
      texts << item.text;
    return texts;
  };
  EXPECT_EQ(offered(Entered()), QStringList{"A   Men"});
  EXPECT_EQ(offered(TeamsEntered()), QStringList{"D   Pairs"});
}

TEST_F(uctEntrantsTest, ATeamOfTwoIsEnteredOnceWithTheStrongerFirstAndOneOfOneIsNot) {
  bench.Show<uctEntrants>();
  OpenDoubles();
  EXPECT_EQ(bench.FocusName(), "GridEX3_Table");
  Enter(Teams(), 1);
  ASSERT_EQ(TeamsEntered().RowCount(), 1);
  EXPECT_EQ(TeamsEntered().TextAt(1, "TeamID"), "Iron Pair");
  EXPECT_EQ(TeamsEntered().TextAt(1, "RingerPercent"), "50.75");
  EXPECT_EQ(Ask("SELECT PlayerOneID FROM TournamentTeamEntrants"), Value("ADAANN"));
  Enter(Teams(), 1);
  EXPECT_EQ(bench.Message(), "Team already entered in Tournament");
  Enter(Teams(), 2);
  EXPECT_EQ(bench.Message(), "Team must have two players");
}

TEST_F(uctEntrantsTest, UpdateFromProfileAsksOnceForAPastTournamentAndNotForAFutureOne) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  file.Execute("UPDATE TournamentEntrants SET RingerPercent = 1");
  bench.Click("cmdSetAverage");
  EXPECT_TRUE(bench.person.questions.isEmpty());
  EXPECT_EQ(Entered().TextAt(1, "RingerPercent"), "61.50");
  EXPECT_EQ(Entered().TextAt(1, "Shoes"), "");

  bench.clock.now = QDateTime(QDate(2025, 6, 21), QTime(9, 0));
  bench.person.WillAnswer(true);
  bench.Click("cmdSetAverage");
  ASSERT_EQ(bench.person.questions.size(), 1);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm update");
  EXPECT_EQ(bench.person.questions[0].text, "Tournament occurs in the past.  Continue?");
}

TEST_F(uctEntrantsTest, OneAnswerBringsBothTabsOfAPastTournamentUpToDate) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  OpenDoubles();
  Enter(Teams(), 1);
  file.Execute("UPDATE TournamentEntrants SET RingerPercent = 1");
  file.Execute("UPDATE TournamentTeamEntrants SET RingerPercent = 1");
  bench.clock.now = QDateTime(QDate(2025, 6, 21), QTime(9, 0));
  bench.person.WillAnswer(false);
  bench.Click("cmdSetAverage");
  EXPECT_EQ(Ask("SELECT RingerPercent FROM TournamentEntrants").ToNumber(), 1);
  EXPECT_EQ(bench.person.beeps, 1);
  bench.person.WillAnswer(true);
  bench.Click("cmdSetAverage");
  EXPECT_EQ(bench.person.questions.size(), 2);
  EXPECT_EQ(Ask("SELECT RingerPercent FROM TournamentEntrants").ToNumber(), 61.5);
  EXPECT_EQ(Ask("SELECT RingerPercent FROM TournamentTeamEntrants").ToNumber(), 50.75);
  EXPECT_EQ(TeamsEntered().TextAt(1, "RingerPercent"), "50.75");
}

TEST_F(uctEntrantsTest, ATeamThatLostAPlayerStopsTheUpdateWithItsMessage) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  OpenDoubles();
  Enter(Teams(), 1);
  file.Execute("DELETE FROM TeamPlayers WHERE PlayerID = 'BEEBOB'");
  bench.Click("cmdSetAverage");
  EXPECT_EQ(bench.Message(), "Team must have two players");
  EXPECT_TRUE(bench.Refused());
}

TEST_F(uctEntrantsTest, ShoesStandEmptyAfterAnUpdateUntilTheTournamentIsPickedAgain) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  file.Execute("UPDATE TournamentEntrants SET TotalShoes = 40, TotalRingers = 20");
  bench.Click("cmdSetAverage");
  EXPECT_EQ(bench.Message(), "Choose the tournament again to see and type shoes and ringers.");
  EXPECT_FALSE(bench.Refused());
  Entered().setFocus();
  Entered().SetRow(1);
  Entered().SetCol("Shoes");
  EXPECT_FALSE(Entered().EditCell());
  bench.Pick("cboTournaments", "MN-25-A01   Spring Open");
  EXPECT_EQ(Entered().TextAt(1, "Shoes"), "40");
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
  Entered().SetRow(1);
  Entered().SetCol("Shoes");
  EXPECT_TRUE(Entered().EditCell());
}

TEST_F(uctEntrantsTest, AnEntryThatIsRefusedIsNotLostByEnteringAnother) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  bench.Type("12x");
  DoubleClickCell(Players(), 2, "PlayerName");
  EXPECT_EQ(bench.Message(), "Invalid payment");
  EXPECT_EQ(Entered().RowCount(), 1);
  EXPECT_EQ(Entered().Value("Paid"), Value("12x"));
  EXPECT_EQ(bench.FocusName(), "GridEX2_Table");
}

TEST_F(uctEntrantsTest, AnEntryThatIsRefusedIsNotLostByChoosingAnotherTournament) {
  file.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES ('WI25B02', #7/1/2025#)");
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  bench.Type("12x");
  bench.Pick("cboTournaments", "WI-25-B02");
  EXPECT_EQ(bench.Message(), "Invalid payment");
  EXPECT_EQ(bench.Find<QComboBox>("cboTournaments").currentText(), "MN-25-A01   Spring Open");
  EXPECT_EQ(Entered().Value("Paid"), Value("12x"));
  bench.Press(Qt::Key_Escape);
  bench.Pick("cboTournaments", "WI-25-B02");
  EXPECT_EQ(Entered().RowCount(), 0);
}

TEST_F(uctEntrantsTest, NobodyIsEnteredIntoATournamentThatWasDeleted) {
  file.Execute("DELETE FROM Tournaments");
  bench.Show<uctEntrants>();
  const char* gone = "Tournament MN-25-A01 is not on file. Add it under Tournaments / Setup.";
  Enter(Players(), 1);
  EXPECT_EQ(bench.Message(), gone);
  OpenDoubles();
  Enter(Teams(), 1);
  EXPECT_EQ(bench.Message(), gone);
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TournamentEntrants").ToWhole(), 0);
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TournamentTeamEntrants").ToWhole(), 0);
}

TEST_F(uctEntrantsTest, TheWheelOverTheBoxChoosesNoOtherTournament) {
  file.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES ('WI25B02', #6/1/2025#)");
  bench.Show<uctEntrants>();
  auto& box = bench.Find<QComboBox>("cboTournaments");
  for (const int notch : {-120, 120}) {
    QWheelEvent turn(QPointF(9, 9), box.mapToGlobal(QPointF(9, 9)), {}, {0, notch}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &turn);
    EXPECT_EQ(box.currentText(), "MN-25-A01   Spring Open");
  }
}

TEST_F(uctEntrantsTest, ATypedNumberInSmallLettersChoosesItsTournament) {
  bench.store().SaveRegistryString({}, "RecentTournament", "");
  bench.Show<uctEntrants>();
  bench.Fill("cboTournaments", "mn25a01");
  bench.Press(Qt::Key_Return);
  Enter(Players(), 1);
  EXPECT_EQ(Ask("SELECT SanctionID FROM TournamentEntrants"), Value("MN25A01"));
}

TEST_F(uctEntrantsTest, APlayerIsNotPutIntoTheSameClassTwice) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  file.Execute("UPDATE TournamentEntrants SET ClassID = 'A'");
  bench.LeaveAndReturn();
  bench.person.WillAnswer(true);
  Enter(Players(), 1);
  EXPECT_EQ(Entered().TextAt(Entered().Row(), "ClassID"), "");
  Entered().SetValue("ClassID", "A");
  EXPECT_FALSE(Entered().CommitRow());
  EXPECT_EQ(bench.Message(), "Player already entered in this class");
}

TEST_F(uctEntrantsTest, ADoubleClickEntersAsEnterDoes) {
  bench.Show<uctEntrants>();
  DoubleClickCell(Players(), 2, "PlayerName");
  ASSERT_EQ(Entered().RowCount(), 1);
  EXPECT_EQ(Entered().TextAt(1, "PlayerID"), "Beech, Bob");
  EXPECT_EQ(Entered().ColumnKey(Entered().Col()), "Paid");
}

TEST_F(uctEntrantsTest, EntriesStandByClassTheStrongestFirst) {
  bench.Show<uctEntrants>();
  for (int row : {2, 3, 1}) Enter(Players(), row);
  file.Execute("UPDATE TournamentEntrants SET ClassID = 'A' WHERE PlayerID <> 'OBRAL0'");
  bench.LeaveAndReturn();
  EXPECT_EQ(TextsOf(Entered(), "PlayerID"),
            (QStringList{"O'Brien, Al", "Adams, Ann", "Beech, Bob"}));
}

TEST_F(uctEntrantsTest, AnEntryNeedsNumbersForPercentPaymentAndSeedInThisOrder) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  const QList<QPair<QString, QString>> rules = {{"RingerPercent", "Invalid ringer percent"},
                                                {"Paid", "Invalid payment"},
                                                {"Seed", "Invalid seed"},
                                                {"Shoes", "Invalid Shoes"},
                                                {"Ringers", "Invalid Ringers"}};
  for (const auto& rule : rules) Entered().SetValue(rule.first, "");
  for (const auto& [column, message] : rules) {
    EXPECT_FALSE(Entered().CommitRow());
    EXPECT_EQ(bench.Message(), message);
    Entered().SetValue(column, 0);
  }
  EXPECT_TRUE(Entered().CommitRow());
}

TEST_F(uctEntrantsTest, ATeamEntryNeedsNumbersForPercentPaymentAndSeed) {
  bench.Show<uctEntrants>();
  OpenDoubles();
  Enter(Teams(), 1);
  TeamsEntered().SetCol("Seed");
  bench.Type("x");
  EXPECT_FALSE(TeamsEntered().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid seed");
}

TEST_F(uctEntrantsTest, ARefusedEntryInTheOtherTabComesToTheFrontWhenTheScreenIsLeft) {
  auto& screen = bench.Show<uctEntrants>();
  Enter(Players(), 1);
  Entered().SetValue("Seed", "x");
  OpenDoubles();
  EXPECT_FALSE(screen.MayLeave(Leaving::Screen));
  EXPECT_EQ(bench.Find<QTabWidget>("SSTab1").currentIndex(), 0);
  EXPECT_EQ(bench.FocusName(), "GridEX2_Table");
  EXPECT_EQ(bench.Message(), "Invalid seed");
  bench.person.WillAnswer(true);
  EXPECT_TRUE(screen.MayLeave(Leaving::Window));
  EXPECT_EQ(bench.person.questions[0].text,
            "Adams, Ann is not saved: Invalid seed. Leave without it?");
}

TEST_F(uctEntrantsTest, EveryControlIsReachedByTabAndTheHiddenTabsGridsAreNot) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  bench.Focus("cboTournaments");
  QStringList stops;
  for (int i = 0; i < 12 && !stops.contains("GridEX2_Table"); ++i) {
    stops << bench.FocusName();
    QWidget* focus = bench.Find("uctEntrants").window()->focusWidget();
    QTest::keyClick(
        focus, Qt::Key_Tab,
        focus->objectName().startsWith("GridEX") ? Qt::ControlModifier : Qt::NoModifier);
    bench.ProcessEvents();
    if (bench.FocusName() == "GridEX2_Table") stops << bench.FocusName();
  }
  EXPECT_EQ(stops, (QStringList{"cboTournaments", "cmdSetAverage", "qt_tabwidget_tabbar",
                                "GridEX1_Table", "GridEX2_Table"}));
}

TEST_F(uctEntrantsTest, TypingJumpsToTheFirstLastNameThatBeginsSoOrComesNext) {
  bench.Show<uctEntrants>();
  Players().setFocus();
  bench.Press(Qt::Key_O);
  EXPECT_EQ(Players().Value("PlayerID"), Value("OBRAL0"));
  bench.LeaveAndReturn();
  bench.Press(Qt::Key_B);
  bench.Press(Qt::Key_F);
  EXPECT_EQ(Players().Value("PlayerID"), Value("OBRAL0"));
}

TEST_F(uctEntrantsTest, DeletingAnEntryIsAsked) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  bench.person.WillAnswer(true);
  EXPECT_TRUE(Entered().DeleteRow());
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected entry?");
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TournamentEntrants").ToWhole(), 0);
}

TEST_F(uctEntrantsTest, EscapeAndShiftTabLeadBackToTheList) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  bench.Press(Qt::Key_Escape);
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
  Enter(Players(), 2);
  bench.Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
}

TEST_F(uctEntrantsTest, AHeaderClickSortsWithThePercentBehind) {
  bench.Show<uctEntrants>();
  for (int row : {1, 2, 3}) Enter(Players(), row);
  Entered().on.ColumnHeaderClick("Paid");
  ASSERT_EQ(Entered().SortKeys().size(), 2);
  EXPECT_EQ(Entered().SortKeys()[1].column, "RingerPercent");
  EXPECT_EQ(Entered().TextAt(1, "RingerPercent"), "61.50");
  Entered().on.ColumnHeaderClick("Paid");
  EXPECT_EQ(Entered().SortKeys()[0].order, SortOrder::Descending);
}

TEST_F(uctEntrantsTest, NamesAndDivisionsSortAsTheyReadEqualOnesByStrength) {
  file.Execute("UPDATE Players SET LastName = 'Zorn', Category = 'EM' WHERE PlayerID = 'ADAANN'");
  bench.Show<uctEntrants>();
  for (int row : {1, 2, 3}) Enter(Players(), row);
  ClickHeading(Entered(), "PlayerID");
  EXPECT_EQ(TextsOf(Entered(), "PlayerID"),
            (QStringList{"Beech, Bob", "O'Brien, Al", "Zorn, Ann"}));
  ClickHeading(Entered(), "PlayerID");
  EXPECT_EQ(TextsOf(Entered(), "PlayerID"),
            (QStringList{"Zorn, Ann", "O'Brien, Al", "Beech, Bob"}));
  ClickHeading(Entered(), "Category");
  EXPECT_EQ(TextsOf(Entered(), "Category"), (QStringList{"Elder", "Men", "Men"}));
  EXPECT_EQ(TextsOf(Entered(), "RingerPercent"), (QStringList{"61.50", "40.00", "0.00"}));
}

TEST_F(uctEntrantsTest, TeamsSortByTheirNames) {
  file.Execute("INSERT INTO Teams (TeamID, Team) VALUES (3, 'Aces')");
  for (const char* id : {"ADAANN", "OBRAL0"})
    file.Execute("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (3, ?)", {id});
  bench.Show<uctEntrants>();
  OpenDoubles();
  for (int row : {1, 2}) Enter(Teams(), row);
  ClickHeading(TeamsEntered(), "TeamID");
  EXPECT_EQ(TextsOf(TeamsEntered(), "TeamID"), (QStringList{"Aces", "Iron Pair"}));
}

TEST_F(uctEntrantsTest, AnEntryOfAPlayerDeletedFromTheRosterSaysSo) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  file.Execute("DELETE FROM Players WHERE PlayerID = 'ADAANN'");
  bench.LeaveAndReturn();
  EXPECT_EQ(Entered().TextAt(1, "PlayerID"), "ADAANN (not on file)");
  EXPECT_EQ(Entered().TextAt(1, "Category"), "Unknown");
  Entered().SetRow(1);
  Entered().SetValue("Paid", 10);
  EXPECT_TRUE(Entered().CommitRow());
  bench.Click("cmdSetAverage");
  EXPECT_EQ(Entered().TextAt(1, "RingerPercent"), "61.50");
}

TEST_F(uctEntrantsTest, AnEntryOfATeamThatWasDeletedSaysSoAndCanBeTakenOut) {
  bench.Show<uctEntrants>();
  OpenDoubles();
  Enter(Teams(), 1);
  file.Execute("DELETE FROM Teams WHERE TeamID = 1");
  bench.LeaveAndReturn();
  EXPECT_EQ(TeamsEntered().TextAt(1, "TeamID"), "1 (not on file)");
  TeamsEntered().SetRow(1);
  bench.person.WillAnswer(true);
  EXPECT_TRUE(TeamsEntered().DeleteRow());
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TournamentTeamEntrants").ToWhole(), 0);
}

TEST_F(uctEntrantsTest, AnEntryOfAClassThatWasDeletedStandsUnplaced) {
  bench.Show<uctEntrants>();
  Enter(Players(), 1);
  file.Execute("UPDATE TournamentEntrants SET ClassID = 'A'");
  file.Execute("DELETE FROM TournamentClasses WHERE ClassID = 'A'");
  bench.LeaveAndReturn();
  EXPECT_EQ(Entered().TextAt(1, "ClassID"), "");
}

TEST_F(uctEntrantsTest, Pictures) {
  AddPlayer("QUICLE", "Clémence", "Quillfeather", 71.25);
  file.Execute(
      "UPDATE Players SET CardNumber = '345678', CardYear = '2026', Category = 'CG' "
      "WHERE PlayerID = 'QUICLE'");
  // So many that both grids need their bar at the side: the worst case for the width of the names.
  for (int i = 0; i < 30; ++i)
    AddPlayer(QStringLiteral("Z%1").arg(i, 5, 10, QLatin1Char('0')), "Walt",
              "Zimmer" + QString::number(i), 30);
  const auto pictures = [this](const QString& look) {
    bench.Show<uctEntrants>();
    for (int row : {1, 2, 4}) Enter(Players(), row);
    Entered().SetValue("ClassID", "A");
    Entered().CommitRow();
    file.Execute(
        "INSERT INTO TournamentEntrants (SanctionID, PlayerID, ClassID) SELECT 'MN25A01', "
        "PlayerID, 'A' FROM Players WHERE PlayerID LIKE 'Z%'");
    bench.LeaveAndReturn();
    bench.Shot("uctEntrants-singles" + look);
    EXPECT_EQ(CutTexts(*bench.Find("GridEX1").window()), QStringList());
    EXPECT_FALSE(TableOf(Players()).horizontalScrollBar()->isVisible());
    EXPECT_FALSE(TableOf(Entered()).horizontalScrollBar()->isVisible());
    Enter(Players(), 2);
    bench.Shot("uctEntrants-refusal" + look);
    OpenDoubles();
    Enter(Teams(), 1);
    bench.Shot("uctEntrants-doubles" + look);
    file.Execute("DELETE FROM TournamentEntrants");
    file.Execute("DELETE FROM TournamentTeamEntrants");
  };
  UseLightPalette();
  pictures("");
  UseDarkPalette();
  pictures("-dark");
  UseLightPalette();
}

}  // namespace
}  // namespace tavrelin
