#include "players/uctTeam.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <QTimer>

#include "screens/ClubScreenTest.h"
#include "screens/GridClicks.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

struct uctTeamTest : ClubScreenTest {
  void SetUp() override {
    AddPlayer("OLSKAR", "Olson", "Karen");
    AddPlayer("SMIJOH", "Smith", "John");
    AddPlayer("OBRAL0", "O'Brien", "Al");
  }
  void AddPlayer(const QString& id, const QString& last, const QString& first) {
    file.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, City, State) "
        "VALUES (?, ?, ?, 'Duluth', 'MN')",
        {id, last, first});
  }
  void AddTeam(const QString& name) { file.Execute("INSERT INTO Teams (Team) VALUES (?)", {name}); }
  void AddMember(int team, const QString& player) {
    file.Execute("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (?, ?)", {team, player});
  }
  void Show() { bench.Show<uctTeam>(); }
  GridEX& Teams() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Pool() { return bench.Find<GridEX>("GridEX2"); }
  GridEX& Members() { return bench.Find<GridEX>("GridEX3"); }
  QString Heading() { return bench.Find<QLabel>("Label3").text(); }
  void Choose(GridEX& grid, int row) {
    grid.setFocus();
    grid.SetRow(row);
    grid.ClearCol();
    bench.Press(Qt::Key_Return);
  }
  void TypeTeam(const QString& name) {
    Teams().setFocus();
    bench.Press(Qt::Key_Insert);
    Teams().SetCol("Team");
    bench.Type(name);
    bench.Press(Qt::Key_Return);
  }
  void OnRow(GridEX& grid, int row) {
    grid.setFocus();
    grid.SetRow(row);
    grid.ClearCol();
  }
};

TEST_F(uctTeamTest, ShowsTeamsAndPlayersByNameAndNoTeamChosen) {
  AddTeam("Ringers");
  AddTeam("aces");
  Show();
  EXPECT_EQ(TextsOf(Teams(), "Team"), QStringList({"aces", "Ringers"}));
  EXPECT_EQ(TextsOf(Pool(), "PlayerName"),
            QStringList({"O'Brien, Al", "Olson, Karen", "Smith, John"}));
  EXPECT_EQ(Pool().TextAt(1, "City") + Pool().TextAt(1, "State"), "DuluthMN");
  EXPECT_EQ(Members().BoundRecordset(), nullptr);
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
  EXPECT_FALSE(bench.person.busy);
}

TEST_F(uctTeamTest, TitleLabelAndColumnsStandToTheLetter) {
  auto& screen = bench.Show<uctTeam>();
  EXPECT_EQ(screen.Title(), " Setup Teams");
  EXPECT_EQ(bench.Find<QLabel>("Label1").text(), "Player List");
  struct {
    const char* grid;
    const char* columns;
  } const cases[] = {{"GridEX1", "TeamID/0 Team/50"},
                     {"GridEX2", "PlayerID/0 Name/0 City/0 St/0"},
                     {"GridEX3", "TeamID/0 Team Player/0"}};
  for (const auto& c : cases) {
    QStringList columns;
    for (const GridColumn& column : bench.Find<GridEX>(c.grid).Columns()) {
      columns.append(column.caption + '/' + QString::number(column.maxLength));
    }
    EXPECT_EQ(columns.join(' '), c.columns);
  }
  EXPECT_EQ(Teams().Columns()[0].width, 0);
  EXPECT_EQ(Members().Columns()[0].width, 0);
  EXPECT_EQ(Members().Columns()[1].width, 2700);
  EXPECT_FALSE(Pool().Columns()[0].visible);
}

TEST_F(uctTeamTest, ATypedTeamGetsItsNumberFromTheFileAndItsSortedPlace) {
  AddTeam("Ringers");
  Show();
  TypeTeam("O'Hara's 100%");
  EXPECT_EQ(Teams().TextAt(1, "Team"), "O'Hara's 100%");
  EXPECT_EQ(Teams().ValueAt(1, "TeamID").ToWhole(), 2);
  EXPECT_TRUE(Teams().IsNewRow()) << "the next one can be typed at once";
  EXPECT_EQ(CountOf("Teams"), 2);
}

TEST_F(uctTeamTest, ATeamTypedAMomentAgoCanBeFilledAtOnce) {
  Show();
  TypeTeam("Aces");
  Choose(Teams(), 1);
  EXPECT_EQ(bench.FocusName(), "GridEX2_Table") << "Enter goes on to the players";
  bench.Type("ols");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList("Olson, Karen"));
  Recordset row;
  row.Open("SELECT TeamID, PlayerID FROM TeamPlayers", file);
  EXPECT_EQ(row.At(0), Value(1));
  EXPECT_EQ(row.At(1), Value("OLSKAR"));
}

TEST_F(uctTeamTest, ANameOfSixtyCharactersEndsAtItsLimitWhileItIsTyped) {
  Show();
  TypeTeam(QString(60, 'a'));
  EXPECT_EQ(Teams().TextAt(1, "Team"), QString(50, 'a'));
}

TEST_F(uctTeamTest, ATeamNameOfBlanksIsDroppedWithNoMessage) {
  AddTeam("Aces");
  Show();
  TypeTeam("   ");
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(bench.person.beeps, 0);
  EXPECT_EQ(CountOf("Teams"), 1);
  Teams().SetRow(1);
  Teams().SetCol("Team");
  bench.Type(" ");
  EXPECT_TRUE(Teams().CommitRow());
  EXPECT_EQ(Teams().TextAt(1, "Team"), "Aces") << "an emptied name comes back";
}

TEST_F(uctTeamTest, ADoubleClickOnATeamShowsItsPlayersInTheOrderOfTheirNumbers) {
  AddTeam("Aces");
  AddTeam("Ringers");
  AddMember(2, "SMIJOH");
  AddMember(2, "OBRAL0");
  AddMember(1, "OLSKAR");
  Show();
  DoubleClickCell(Teams(), 2, "Team");
  EXPECT_FALSE(Teams().IsEditing());
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList({"O'Brien, Al", "Smith, John"}));
  EXPECT_EQ(Heading(), "Team Players: Ringers");
  DoubleClickCell(Teams(), 1, "Team");
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList("Olson, Karen"));
}

TEST_F(uctTeamTest, ADoubleClickOnAPlayerPutsHimOnTheTeam) {
  AddTeam("Ringers");
  Show();
  DoubleClickCell(Teams(), 1, "Team");
  DoubleClickCell(Pool(), 3, "PlayerName");
  DoubleClickCell(Pool(), 2, "PlayerName");
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList({"Olson, Karen", "Smith, John"}));
  EXPECT_EQ(Members().Row(), 1) << "the one just added";
}

TEST_F(uctTeamTest, AddingTheSamePlayerTwiceGivesAMessageAndOneRow) {
  AddTeam("Ringers");
  Show();
  Choose(Teams(), 1);
  Choose(Pool(), 2);
  EXPECT_EQ(bench.Message(), "");
  Choose(Pool(), 2);
  EXPECT_EQ(bench.Message(), "Player already in list");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(CountOf("TeamPlayers"), 1);
  Choose(Pool(), 3);
  EXPECT_EQ(bench.Message(), "");
}

TEST_F(uctTeamTest, APlayerIsNotAddedBeforeATeamIsChosen) {
  AddTeam("Ringers");
  Show();
  Choose(Pool(), 1);
  EXPECT_EQ(bench.Message(), "Choose a team first: press Enter on it.");
  EXPECT_EQ(CountOf("TeamPlayers"), 0);
}

TEST_F(uctTeamTest, AMemberRowIsRemovedByTheGridsOwnDeleteWithNoQuestion) {
  AddTeam("Ringers");
  AddMember(1, "OLSKAR");
  AddMember(1, "SMIJOH");
  Show();
  Choose(Teams(), 1);
  OnRow(Members(), 1);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList("Smith, John"));
  EXPECT_EQ(CountOf("TeamPlayers"), 1);
  EXPECT_TRUE(bench.person.questions.isEmpty());
  Choose(Pool(), 2);
  EXPECT_EQ(bench.Message(), "") << "who was taken off can be put on again";
  EXPECT_EQ(CountOf("TeamPlayers"), 2);
}

TEST_F(uctTeamTest, MembersAndPoolAreNotTypedInto) {
  AddTeam("Ringers");
  AddMember(1, "OLSKAR");
  Show();
  Choose(Teams(), 1);
  for (GridEX* grid : {&Members(), &Pool()}) {
    OnRow(*grid, 1);
    bench.Press(Qt::Key_F2);
    EXPECT_FALSE(grid->IsEditing());
  }
}

TEST_F(uctTeamTest, DeletingATeamIsConfirmedAndItsMembersRemain) {
  AddTeam("Ringers");
  AddMember(1, "OLSKAR");
  Show();
  Choose(Teams(), 1);
  OnRow(Teams(), 1);
  bench.person.WillAnswer(false);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(CountOf("Teams"), 1);
  EXPECT_EQ(Members().RowCount(), 1);
  bench.person.WillAnswer(true);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(CountOf("Teams"), 0);
  EXPECT_EQ(CountOf("TeamPlayers"), 1);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions[0].text,
            "Deleting teams is not recommended.  It may result in invalid \r\n"
            "league scores and tournament results.  Continue? ");
  EXPECT_EQ(Heading(), "Team Players") << "nobody is put on a team that is gone";
  Choose(Pool(), 2);
  EXPECT_EQ(CountOf("TeamPlayers"), 1);
}

TEST_F(uctTeamTest, AMemberWhoLeftTheRosterIsToldByHisNumberAndCanBeRemoved) {
  AddTeam("Ringers");
  AddMember(1, "GONE00");
  AddMember(1, "OLSKAR");
  Show();
  Choose(Teams(), 1);
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList({"GONE00 (not on file)", "Olson, Karen"}));
  OnRow(Members(), 1);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(TextsOf(Members(), "PlayerID"), QStringList("Olson, Karen"));
}

TEST_F(uctTeamTest, ARenamedTeamTakesItsPlaceAndItsPlayersStay) {
  AddTeam("Aces");
  AddTeam("Ringers");
  AddMember(1, "OLSKAR");
  Show();
  Choose(Teams(), 1);
  Teams().setFocus();
  Teams().SetCol("Team");
  bench.Type("Zingers");
  ASSERT_TRUE(Teams().CommitRow());
  EXPECT_EQ(TextsOf(Teams(), "Team"), QStringList({"Ringers", "Zingers"}));
  EXPECT_EQ(Teams().Value("Team"), Value("Zingers")) << "the cursor stays on it";
  EXPECT_EQ(Heading(), "Team Players: Zingers");
  EXPECT_EQ(Members().RowCount(), 1);
}

TEST_F(uctTeamTest, EnterOnARowBeingRenamedSavesItAndShowsItsPlayers) {
  AddTeam("Aces");
  Show();
  Teams().SetRow(1);
  Teams().SetCol("Team");
  bench.Type("Kings");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Teams().TextAt(1, "Team"), "Kings");
  EXPECT_EQ(Heading(), "Team Players: Kings");
}

TEST_F(uctTeamTest, TypingJumpsInEachGridByItsOwnField) {
  AddTeam("Aces");
  AddTeam("Ringers");
  for (const char* player : {"OBRAL0", "OLSKAR", "SMIJOH"}) AddMember(1, player);
  Show();
  Choose(Teams(), 1);
  OnRow(Pool(), 1);
  bench.Type("sm");
  EXPECT_EQ(Pool().Value("PlayerID"), Value("SMIJOH"));
  OnRow(Members(), 1);
  bench.Type("ol");
  EXPECT_EQ(Members().Value("PlayerID"), Value("OLSKAR")) << "by their numbers";
  OnRow(Teams(), 1);
  bench.Type("r");
  EXPECT_EQ(Teams().Value("Team"), Value("Ringers"));
}

TEST_F(uctTeamTest, WhatNobodyIsCalledGoesToTheNextAndBehindTheLastNothingMoves) {
  AddTeam("Aces");
  AddTeam("Ringers");
  for (const char* player : {"OBRAL0", "SMIJOH"}) AddMember(1, player);
  Show();
  Choose(Teams(), 1);
  const auto nextAfterP = [this](GridEX& grid) {
    OnRow(grid, 1);
    bench.Type("p");
    const int row = grid.Row();
    QTest::qWait(1200);
    bench.Type("z");
    EXPECT_EQ(grid.Row(), row) << grid.objectName().toStdString();
    return row;
  };
  EXPECT_EQ(nextAfterP(Teams()), 2);
  EXPECT_EQ(nextAfterP(Pool()), 3);
  EXPECT_EQ(nextAfterP(Members()), 2);
}

TEST_F(uctTeamTest, ABufferLivesForASecondAfterTheLastKey) {
  Show();
  for (const char* grid : {"GridEX1", "GridEX2", "GridEX3"}) {
    const auto* timer = bench.Find(grid).findChild<QTimer*>("Timer1");
    ASSERT_NE(timer, nullptr) << grid;
    EXPECT_EQ(timer->interval(), 1000) << grid;
  }
}

TEST_F(uctTeamTest, InsideACellAKeyGoesToTheCell) {
  AddTeam("Aces");
  AddTeam("Ringers");
  Show();
  Teams().SetRow(1);
  Teams().SetCol("Team");
  bench.Type("r");
  EXPECT_EQ(Teams().Row(), 1);
  EXPECT_TRUE(Teams().IsEditing());
  bench.Press(Qt::Key_Escape);
}

TEST_F(uctTeamTest, AHeadingSortsUpAndTheNextClickDown) {
  AddTeam("Aces");
  AddTeam("Ringers");
  Show();
  ClickHeading(Teams(), "Team");
  ClickHeading(Teams(), "Team");
  EXPECT_EQ(TextsOf(Teams(), "Team"), QStringList({"Ringers", "Aces"}));
  TypeTeam("Kings");
  EXPECT_EQ(TextsOf(Teams(), "Team"), QStringList({"Ringers", "Kings", "Aces"}));
  ClickHeading(Pool(), "PlayerName");
  ClickHeading(Pool(), "PlayerName");
  EXPECT_EQ(Pool().TextAt(1, "PlayerName"), "Smith, John");
}

TEST_F(uctTeamTest, EscGoesBackToTheTeams) {
  AddTeam("Aces");
  AddMember(1, "OLSKAR");
  Show();
  Choose(Teams(), 1);
  for (const char* grid : {"GridEX2", "GridEX3"}) {
    bench.Focus(grid);
    bench.Press(Qt::Key_Escape);
    EXPECT_EQ(bench.FocusName(), "GridEX1_Table") << grid;
  }
}

TEST_F(uctTeamTest, LeavingSavesAnOpenNameAndReturningShowsWhatOthersWrote) {
  AddTeam("Ringers");
  Show();
  Choose(Teams(), 1);
  Teams().setFocus();
  bench.Press(Qt::Key_Insert);
  Teams().SetCol("Team");
  bench.Type("Aces");
  bench.Leave();
  EXPECT_EQ(CountOf("Teams"), 2);
  AddPlayer("BERPIA", "Berg", "Pia");
  bench.LeaveAndReturn();
  EXPECT_EQ(Pool().RowCount(), 4);
  EXPECT_EQ(Members().BoundRecordset(), nullptr);
  EXPECT_EQ(Heading(), "Team Players");
}

TEST_F(uctTeamTest, WithoutTeamsOrPlayersNothingBreaks) {
  file.Execute("DELETE FROM Players");
  Show();
  for (const char* grid : {"GridEX1", "GridEX2", "GridEX3"}) {
    bench.Focus(grid);
    bench.Press(Qt::Key_Return);
    bench.Press(Qt::Key_Delete);
    bench.Type("s");
  }
  EXPECT_EQ(bench.errors.Count(), 0);
  EXPECT_EQ(CountOf("Teams"), 0);
}

TEST_F(uctTeamTest, LooksRightInLightAndDark) {
  for (const char* team : {"Duluth Ringers", "Aces", "Iron Range Stake Shakers of Upper Minnesota",
                           "O'Hara's 100%", "Double Trouble"}) {
    AddTeam(team);
  }
  for (const char* player : {"OLSKAR", "SMIJOH", "GONE00"}) AddMember(3, player);
  const char* const names[][2] = {{"Aasgaard", "Al"},   {"Berg", "Pia"},  {"Carlson", "Ruth"},
                                  {"Dahl", "Kristin"},  {"Eide", "Thor"}, {"Svensson", "Inga"},
                                  {"Lindstrom", "Ole"}, {"Moe", "Kay"},   {"Zimmer", "Walt"}};
  for (const auto& [last, first] : names) {
    AddPlayer(QString(last).left(3).toUpper() + QString(first).left(3).toUpper(), last, first);
  }
  const auto shots = [this](const QString& palette) {
    Show();
    bench.Shot("team-nobody-" + palette);
    Choose(Teams(), 4);
    bench.Shot("team-members-" + palette);
    Choose(Pool(), 9);
    bench.Shot("team-refusal-" + palette);
  };
  UseLightPalette();
  shots("light");
  UseDarkPalette();
  shots("dark");
  UseLightPalette();
}

TEST_F(uctTeamTest, NoTextIsCut) {
  AddTeam("Aces");
  Show();
  Choose(Teams(), 1);
  EXPECT_EQ(CutTexts(bench.Find("uctTeam")), QStringList());
}

}  // namespace
}  // namespace tavrelin
