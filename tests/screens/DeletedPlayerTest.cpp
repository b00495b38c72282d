// A player who is deleted from the roster stays in teams, entries and results: each screen says
// whom it misses, and goes on.

#include <gtest/gtest.h>

#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "players/uctTeam.h"
#include "screens/ClubScreenTest.h"
#include "screens/GridClicks.h"
#include "support/RecordsetPrinters.h"
#include "tournament/uctEntrants.h"

namespace tavrelin {
namespace {

/// Karen Olson is on a team, entered alone and with the team, and has a history; then she is
/// deleted from the roster as a person does it.
struct DeletedPlayerTest : ClubScreenTest {
  void SetUp() override {
    for (const char* statement :
         {"INSERT INTO Players (PlayerID, LastName, FirstName, Category, State, Average) "
          "VALUES ('OLSKAR', 'Olson', 'Karen', 'AW', 'MN', 45.5)",
          "INSERT INTO Players (PlayerID, LastName, FirstName, Category, State, Average) "
          "VALUES ('SMIJOH', 'Smith', 'John', 'AM', 'MN', 30)",
          "INSERT INTO Tournaments (SanctionID, Date) VALUES ('MN25C03', #6/20/2099#)",
          "INSERT INTO Teams (Team) VALUES ('Ringers')",
          "INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (1, 'OLSKAR')",
          "INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (1, 'SMIJOH')",
          "INSERT INTO TournamentEntrants (SanctionID, PlayerID, RingerPercent) "
          "VALUES ('MN25C03', 'OLSKAR', 45.5)",
          "INSERT INTO TournamentTeamEntrants (SanctionID, TeamID, RingerPercent, PlayerOneID, "
          "PlayerTwoID) VALUES ('MN25C03', 1, 37.75, 'OLSKAR', 'SMIJOH')",
          "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers) "
          "VALUES ('MN25C03', 'OLSKAR', 100, 45)"}) {
      file.Execute(statement);
    }
    bench.store().SaveRegistryString({}, "RecentTournament", "MN-25-C03");
    DeleteFromTheRoster();
  }
  void DeleteFromTheRoster() {
    bench.Show<uctProfile>();
    GridEX& roster = Grid("grdProfile");
    roster.SetRow(1);
    ASSERT_EQ(roster.Value("PlayerID"), Value("OLSKAR"));
    bench.person.WillAnswer(true);
    bench.Press(Qt::Key_Delete);
    ASSERT_EQ(roster.RowCount(), 1);
  }
  void TearDown() override { EXPECT_EQ(bench.errors.Count(), 0); }

  GridEX& Grid(const char* name) { return bench.Find<GridEX>(name); }
  void Enter(const char* grid, int row) {
    bench.Focus(grid);
    Grid(grid).SetRow(row);
    bench.Press(Qt::Key_Return);
  }
};

TEST_F(DeletedPlayerTest, TheTeamNamesThePlayerByNumberAndCanLetHerGo) {
  bench.Show<uctTeam>();
  Enter("GridEX1", 1);
  EXPECT_EQ(TextsOf(Grid("GridEX3"), "PlayerID"),
            QStringList({"OLSKAR (not on file)", "Smith, John"}));
  EXPECT_EQ(TextsOf(Grid("GridEX2"), "PlayerName"), QStringList("Smith, John"));
  bench.Focus("GridEX3");
  bench.Type("o");
  EXPECT_EQ(Grid("GridEX3").Row(), 1) << "she is found by her number";
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(TextsOf(Grid("GridEX3"), "PlayerID"), QStringList("Smith, John"));
}

TEST_F(DeletedPlayerTest, TheEntrySaysWhomItMissesAndIsStillKept) {
  bench.Show<uctEntrants>();
  GridEX& entries = Grid("GridEX2");
  ASSERT_EQ(entries.RowCount(), 1);
  EXPECT_EQ(entries.TextAt(1, "PlayerID"), "OLSKAR (not on file)");
  bench.Focus("GridEX2");
  entries.SetRow(1);
  entries.SetCol("Paid");
  bench.Type("12.5");
  ASSERT_TRUE(entries.CommitRow());
  EXPECT_EQ(Cell("SELECT Paid FROM TournamentEntrants"), Value(12.5));
  entries.SetRow(1);
  entries.ClearCol();
  bench.person.WillAnswer(true);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(entries.RowCount(), 0);
}

TEST_F(DeletedPlayerTest, AveragesFromTheProfileLeaveHersAsItIsAndTellOfTheTeam) {
  bench.Show<uctEntrants>();
  bench.Click("cmdSetAverage");
  EXPECT_EQ(Cell("SELECT RingerPercent FROM TournamentEntrants"), Value(45.5));
  EXPECT_EQ(bench.Message(), "Team must have two players");
  EXPECT_EQ(Cell("SELECT RingerPercent FROM TournamentTeamEntrants"), Value(37.75));
}

TEST_F(DeletedPlayerTest, HerHistoryStaysAndTheListGoesOnWithoutHer) {
  bench.Show<uctScores>();
  EXPECT_EQ(TextsOf(Grid("GridEX1"), "LastName"), QStringList("Smith"));
  Enter("GridEX1", 1);
  EXPECT_EQ(Grid("GridEX2").RowCount(), 0);
  EXPECT_EQ(Cell("SELECT Ringers FROM PlayerScores"), Value(45));
}

TEST_F(DeletedPlayerTest, APlayerDeletedWhileAnEntryScreenWasHiddenIsMissedAtItsNextShow) {
  bench.Show<uctEntrants>();
  file.Execute("DELETE FROM Players");
  bench.LeaveAndReturn();
  EXPECT_EQ(Grid("GridEX1").RowCount(), 0);
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Grid("GridEX2").RowCount(), 1);
}

}  // namespace
}  // namespace tavrelin
