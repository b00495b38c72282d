#include "players/PlayerList.h"

#include <gtest/gtest.h>

#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

TEST(CheckTeam, ATeamNameOfBlanksIsDroppedWithNoMessage) {
  for (const Value& blank : {Value(), Value(""), Value("   ")}) {
    const RowCheck check = CheckTeam({{"TeamID", Value()}, {"Team", blank}});
    EXPECT_EQ(check.verdict, Verdict::Discard);
    EXPECT_EQ(check.message, "");
  }
}

TEST(CheckTeam, AnyNameIsATeam) {
  for (const char* name : {"Aces", "O'Hara's 100%", "\"Quoted\"", " x"}) {
    EXPECT_EQ(CheckTeam({{"Team", name}}).verdict, Verdict::Save) << name;
  }
}

struct PlayerListTest : ClubFixture {
  PlayerListTest() {
    Run("CREATE TABLE TeamPlayers (TeamID INTEGER, PlayerID TEXT(6))");
    Run("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (1, 'OLSKAR')");
    Run("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (2, 'SMIJOH')");
    members.Open("SELECT TeamID, PlayerID FROM TeamPlayers WHERE TeamID = 1 ORDER BY PlayerID",
                 connection, Recordset::Lock::Optimistic);
  }
  QString Add(const Value& playerID) {
    return AddToPlayerList(members, "TeamID", 1, playerID).sentence;
  }

  Recordset members;
};

TEST_F(PlayerListTest, AnAddedPlayerStandsInHisPlaceWithTheCursorOnHim) {
  EXPECT_EQ(Add("BERPIA"), "");
  EXPECT_EQ(List("SELECT PlayerID FROM TeamPlayers WHERE TeamID = 1 ORDER BY PlayerID"),
            "BERPIA OLSKAR");
  EXPECT_EQ(members.CellAt(1, 1), Value("BERPIA"));
  EXPECT_EQ(members.AbsolutePosition(), 1);
}

TEST_F(PlayerListTest, AddingTheSamePlayerTwiceGivesAMessageAndOneRow) {
  for (const char* same : {"OLSKAR", "olskar", "OLSKAR "}) {
    EXPECT_EQ(Add(same), "Player already in list") << same;
  }
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TeamPlayers").ToWhole(), 2);
}

TEST_F(PlayerListTest, APlayerOfAnotherTeamIsNoneOfThisOne) {
  EXPECT_EQ(Add("SMIJOH"), "");
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM TeamPlayers WHERE TeamID = 1").ToWhole(), 2);
}

TEST_F(PlayerListTest, ATeamHasNoLimitOnItsPlayers) {
  for (int number = 1; number <= 40; ++number) {
    EXPECT_EQ(Add(QString("P%1").arg(number, 5, 10, QLatin1Char('0'))), "");
  }
  EXPECT_EQ(members.RecordCount(), 41);
}

TEST_F(PlayerListTest, ARefusedRowLeavesNothingPendingAndTheNextTryWorks) {
  EXPECT_THROW(Add("SEVENCH"), Error);
  EXPECT_FALSE(members.IsEditing());
  EXPECT_EQ(members.RecordCount(), 1);
  EXPECT_EQ(Add("SEVENC"), "");
}

}  // namespace
}  // namespace tavrelin
