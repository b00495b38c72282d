#include "players/uctTeam.h"

#include <gtest/gtest.h>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct uctTeamTest : testing::Test {
  ScreenBench bench;
  Connection file;

  void SetUp() override {
    file.Open(ConnectString);
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
  void Show() { bench.Show<uctTeam>(); }
  GridEX& Teams() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Pool() { return bench.Find<GridEX>("GridEX2"); }
  GridEX& Members() { return bench.Find<GridEX>("GridEX3"); }
  qint64 Count(const QString& table) {
    Recordset rows;
    rows.Open("SELECT COUNT(*) FROM " + table, file);
    return rows.At(0).ToWhole();
  }
  void Choose(GridEX& grid, int row) {
    grid.setFocus();
    grid.SetRow(row);
    grid.ClearCol();
    bench.Press(Qt::Key_Return);
  }
};

TEST_F(uctTeamTest, ShowsTeamsAndPlayersByName) {
  AddTeam("Ringers");
  AddTeam("Aces");
  Show();
  EXPECT_EQ(Teams().TextAt(1, "Team"), "Aces");
  EXPECT_EQ(Teams().TextAt(2, "Team"), "Ringers");
  EXPECT_EQ(Pool().TextAt(1, "PlayerName"), "O'Brien, Al");
  EXPECT_EQ(Pool().TextAt(3, "PlayerName"), "Smith, John");
  EXPECT_EQ(Members().RowCount(), 0);
  bench.Shot("team");
  EXPECT_EQ(CutTexts(bench.Find("uctTeam")), QStringList());
}

TEST_F(uctTeamTest, ATypedTeamGetsItsNumberFromTheFileAndItsSortedPlace) {
  AddTeam("Ringers");
  Show();
  Teams().MoveToNewRow();
  Teams().SetCol("Team");
  bench.Type("O'Hara's 100%");
  ASSERT_TRUE(Teams().CommitRow());
  EXPECT_EQ(Teams().TextAt(1, "Team"), "O'Hara's 100%");
  EXPECT_EQ(Teams().ValueAt(1, "TeamID").ToWhole(), 2);
  EXPECT_EQ(Count("Teams"), 2);
}

TEST_F(uctTeamTest, ATeamNameOfBlanksIsDroppedWithNoMessage) {
  Show();
  Teams().MoveToNewRow();
  Teams().SetCol("Team");
  bench.Type("   ");
  EXPECT_TRUE(Teams().CommitRow());
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(bench.person.beeps, 0);
  EXPECT_EQ(Count("Teams"), 0);
}

TEST_F(uctTeamTest, AddingTheSamePlayerTwiceGivesAMessageAndOneRow) {
  AddTeam("Ringers");
  Show();
  Choose(Teams(), 1);
  Choose(Pool(), 2);
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Members().TextAt(1, "PlayerID"), "Olson, Karen");
  Choose(Pool(), 2);
  EXPECT_EQ(bench.Message(), "Player already in list");
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(Count("TeamPlayers"), 1);
}

TEST_F(uctTeamTest, APlayerIsNotAddedBeforeATeamIsChosen) {
  AddTeam("Ringers");
  Show();
  Choose(Pool(), 1);
  EXPECT_EQ(Count("TeamPlayers"), 0);
}

TEST_F(uctTeamTest, AMemberIsRemovedByTheGridsOwnDeleteWithNoQuestion) {
  AddTeam("Ringers");
  file.Execute("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (1, 'OLSKAR')");
  Show();
  Choose(Teams(), 1);
  ASSERT_EQ(Members().RowCount(), 1);
  Members().setFocus();
  Members().SetRow(1);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count("TeamPlayers"), 0);
  EXPECT_TRUE(bench.person.questions.isEmpty());
}

TEST_F(uctTeamTest, DeletingATeamIsConfirmedAndItsMembersRemain) {
  AddTeam("Ringers");
  file.Execute("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (1, 'OLSKAR')");
  Show();
  Teams().setFocus();
  Teams().SetRow(1);
  Teams().ClearCol();
  bench.person.WillAnswer(false);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count("Teams"), 1);
  bench.person.WillAnswer(true);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count("Teams"), 0);
  EXPECT_EQ(Count("TeamPlayers"), 1);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions[0].text,
            "Deleting teams is not recommended.  It may result in invalid \r\n"
            "league scores and tournament results.  Continue? ");
}

TEST_F(uctTeamTest, TypingJumpsToANameInThePoolAndToATeam) {
  AddTeam("Aces");
  AddTeam("Ringers");
  Show();
  Pool().setFocus();
  Pool().SetRow(1);
  bench.Type("sm");
  EXPECT_EQ(Pool().Value("PlayerID"), Value("SMIJOH"));
  Teams().setFocus();
  Teams().SetRow(1);
  Teams().ClearCol();
  bench.Type("k");
  EXPECT_EQ(Teams().Value("Team"), Value("Ringers")) << "the next name after what was typed";
}

}  // namespace
}  // namespace tavrelin
