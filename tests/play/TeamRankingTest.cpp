#include "play/BoxScores.h"
#include "play/RankingBench.h"

namespace tavrelin {
namespace {

class TeamRankingTest : public RankingBench {
 protected:
  void PlayTeams(const QList<Played>& games) {
    Batch batch(connection_);
    for (const Played& game : games) StoreTeams(game);
  }
  double Team(int n, const QString& column) {
    return Cell(QStringLiteral("SELECT %1 FROM TournamentTeamEntrants WHERE TeamID = %2")
                    .arg(column)
                    .arg(n))
        .ToNumber();
  }
};

TEST_F(TeamRankingTest, ATeamAddsBothPlayersRingersAndTwiceTheShoes) {
  MakeDoubles(2);
  PlayTeams({{1, 2, {30, 20}, {{10, 20}, {5, 8}}, 40}, {2, 1, {25, 31}, {{11, 12}, {30, 2}}, 50}});
  const Standings standings = Rank();
  EXPECT_EQ(Order(standings), "1 2");
  EXPECT_EQ(Figure(standings, 1, "Shoes"), 180);
  EXPECT_EQ(Figure(standings, 1, "Ringers"), 62);
  EXPECT_EQ(Figure(standings, 1, "Points"), 61);
  EXPECT_DOUBLE_EQ(Figure(standings, 1, "RingerPercent"), 6200 / 180.0);
  EXPECT_EQ(Figure(standings, 1, "PlayerOneRingers"), 40);
  EXPECT_EQ(Team(1, "PlayerTwoRingers"), 22);
  EXPECT_EQ(Team(1, "PlayerOneShoes"), 90);
  EXPECT_EQ(Team(1, "PlayerTwoShoes"), 90);
  EXPECT_EQ(Team(1, "PlayerOneHiGame"), 60);
  EXPECT_EQ(Team(1, "PlayerTwoHiGame"), 50);
  EXPECT_EQ(Team(2, "PlayerTwoHiGame"), 24);
  EXPECT_EQ(standings.rows["PlayerOneName"].ToText(), "Ann Of1");
  EXPECT_EQ(standings.rows["PlayerTwoName"].ToText(), "Bob Of1");
}

TEST_F(TeamRankingTest, AGameAgainstTeamZeroIsAWinWithItsFigures) {
  MakeDoubles(1);
  PlayTeams({{1, 0, {5, 30}, {{10, 20}, {0, 0}}, 40}});
  const Standings standings = Rank();
  EXPECT_EQ(standings.rows.RecordCount(), 1);
  EXPECT_EQ(Figure(standings, 1, "Won"), 1);
  EXPECT_EQ(Figure(standings, 1, "Shoes"), 80);
  EXPECT_EQ(Figure(standings, 1, "Points"), 5);
  EXPECT_EQ(Figure(standings, 1, "Ringers"), 30);
}

TEST_F(TeamRankingTest, ATieGivesHalfAWinToEachTeam) {
  MakeDoubles(2);
  PlayTeams({{1, 2, {20, 20}}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "Won"), 0.5);
  EXPECT_EQ(Figure(standings, 2, "Loss"), 0.5);
}

TEST_F(TeamRankingTest, MethodRBreaksATieLastOnPoints) {
  MakeDoubles(4, "R");
  connection_.Execute("UPDATE TournamentTeamEntrants SET RingerPercent = 90 WHERE TeamID = 2");
  // 1 and 2 beat 3 and 4: same percentage, no game between them; 2 has more points and is far under
  // his average.
  PlayTeams({{1, 3, {30, 5}, {{10, 10}, {0, 0}}}, {2, 4, {31, 5}, {{10, 10}, {0, 0}}}});
  EXPECT_EQ(Order(Rank()), "2 1 3 4");
}

TEST_F(TeamRankingTest, ATeamTakenOffTheFileLeavesTheListAndAPartnerIsToldByHisNumber) {
  MakeDoubles(3);
  PlayTeams({{1, 2, {30, 10}}, {2, 3, {30, 10}}, {3, 1, {30, 10}}});
  connection_.Execute("DELETE FROM Teams WHERE TeamID = 2");
  connection_.Execute("DELETE FROM Players WHERE PlayerID = ?", {Partner(1, 0)});
  Standings standings = Rank();
  EXPECT_EQ(standings.rows.RecordCount(), 2);
  EXPECT_EQ(Figure(standings, 1, "Won"), 1);
  EXPECT_EQ(LoadClass(connection_, Rules()).entrants, 2);
  const QList<BoxScore> blocks = BoxScores(connection_, standings);
  ASSERT_EQ(blocks.size(), 2);
  EXPECT_EQ(blocks[1].name, "Team 1");
  EXPECT_EQ(blocks[1].pitchers, (QStringList{"10001 (not on file)", "Bob Of1"}));
}

TEST_F(TeamRankingTest, HeadToHeadIsKeptByTeam) {
  MakeDoubles(4, "H");
  PlayTeams({{1, 2, {10, 30}}, {1, 3, {30, 10}}});
  Rank();
  EXPECT_EQ(Team(2, "HeadToHead"), 1);
  EXPECT_EQ(Team(1, "HeadToHead"), 0);
}

// 1 and 2 beat 3 and 4: same percentage, no game between them; 2 has more points, 1 the better
// seed.
TEST_F(TeamRankingTest, TheReportsPartTeamsLevelOnThePercentageBySeedAndNotByPoints) {
  MakeDoubles(4, "R");
  connection_.Execute("UPDATE TournamentTeamEntrants SET Seed = 1 WHERE TeamID = 1");
  PlayTeams({{1, 3, {30, 5}, {{10, 10}, {0, 0}}}, {2, 4, {31, 5}, {{10, 10}, {0, 0}}}});
  EXPECT_EQ(Order(Rank()), "2 1 3 4");
  EXPECT_EQ(Order(RankTheClass(connection_, Rules(), StandingOrder::AfterPlay)), "1 2 3 4");
}

}  // namespace
}  // namespace tavrelin
