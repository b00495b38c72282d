#include "play/BoxScores.h"
#include "play/RankingBench.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

class RankingTest : public RankingBench {};

TEST_F(RankingTest, ATiedGameIsHalfAWinAndHalfALossForBoth) {
  MakeSingles(2);
  Play({{1, 2, {20, 20}}});
  const Standings standings = Rank();
  for (const int n : {1, 2}) {
    EXPECT_EQ(Figure(standings, n, "Won"), 0.5);
    EXPECT_EQ(Figure(standings, n, "Loss"), 0.5);
    EXPECT_EQ(Stored(n, "TotalWins"), 0.5);
  }
}

TEST_F(RankingTest, TotalsAndPercentageCountApprovedGames) {
  MakeSingles(3);
  SetAverage(1, 45.5);
  Play({{1, 2, {30, 12}, {{20}, {10}}, 40},
        {3, 1, {25, 31}, {{11}, {22}}, 50},
        {2, 3, {40, 1}, {{40}, {0}}, 40, false}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "Won"), 2);
  EXPECT_EQ(Figure(standings, 1, "Loss"), 0);
  EXPECT_EQ(Figure(standings, 1, "Points"), 61);
  EXPECT_EQ(Figure(standings, 1, "Ringers"), 42);
  EXPECT_EQ(Figure(standings, 1, "Shoes"), 90);
  EXPECT_DOUBLE_EQ(Figure(standings, 1, "RingerPercent"), 42 * 100 / 90.0);
  EXPECT_DOUBLE_EQ(Figure(standings, 1, "OverAverage"), 42 * 100 / 90.0 - 45.5);
  EXPECT_EQ(Figure(standings, 2, "Shoes"), 40);
  EXPECT_EQ(Figure(standings, 2, "Won"), 0);
  EXPECT_EQ(Stored(1, "TotalRingers"), 42);
  EXPECT_EQ(Stored(3, "TotalPoints"), 25);
}

TEST_F(RankingTest, TakingAnApprovalBackIsReflectedByTheNextRun) {
  MakeSingles(2);
  Play({{1, 2, {30, 12}, {{20}, {10}}}});
  Rank();
  connection_.Execute("UPDATE TournamentSinglesRR SET Approved = False");
  Rank();
  EXPECT_EQ(Stored(1, "TotalWins"), 0);
  EXPECT_EQ(Stored(1, "TotalShoes"), 0);
}

TEST_F(RankingTest, WhoForfeitsLosesWithAnEmptyLineAndFewerShoes) {
  MakeSingles(2);
  Play(
      {{1, 2, {30, 12}, {{20}, {10}}, 40, true, {true, false}}, {1, 2, {30, 12}, {{10}, {8}}, 40}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "Won"), 1);
  EXPECT_EQ(Figure(standings, 1, "Loss"), 1);
  EXPECT_EQ(Figure(standings, 1, "Shoes"), 40);
  EXPECT_EQ(Figure(standings, 1, "Points"), 30);
  EXPECT_EQ(Figure(standings, 1, "RingerPercent"), 25);  // over the games he played
  // The winner keeps what was typed.
  EXPECT_EQ(Figure(standings, 2, "Shoes"), 80);
  EXPECT_EQ(Figure(standings, 2, "Ringers"), 18);
  EXPECT_EQ(Figure(standings, 2, "Won"), 1);
}

TEST_F(RankingTest, BothForfeitsGiveTwoEmptyLosses) {
  MakeSingles(2);
  Play({{1, 2, {30, 12}, {{20}, {10}}, 40, true, {true, true}}});
  const Standings standings = Rank();
  for (const int n : {1, 2}) {
    EXPECT_EQ(Figure(standings, n, "Won"), 0);
    EXPECT_EQ(Figure(standings, n, "Loss"), 1);
    EXPECT_EQ(Figure(standings, n, "Shoes"), 0);
    EXPECT_EQ(Figure(standings, n, "RingerPercent"), 0);
    EXPECT_EQ(Figure(standings, n, "OverAverage"), 0);
  }
}

TEST_F(RankingTest, AClassOfFiveWithAPacerHasNoPacerLineAndEachWinsOnceAgainstHim) {
  MakeSingles(5);
  for (int n = 1; n <= 5; ++n) Store({n, 0, {n, 30}, {{n}, {30}}, 40});
  const Standings standings = Rank();
  EXPECT_EQ(standings.rows.RecordCount(), 5);
  for (int n = 1; n <= 5; ++n) {
    EXPECT_EQ(Figure(standings, n, "Won"), 1);
    EXPECT_EQ(Figure(standings, n, "Shoes"), 40);
    EXPECT_EQ(Figure(standings, n, "Ringers"), n);
  }
  EXPECT_EQ(Order(standings), "5 4 3 2 1");
}

TEST_F(RankingTest, ACycleOfThreeGivesOneEachAndThePercentageDecides) {
  MakeSingles(4, "H");
  // 1, 2 and 3 beat each other round and all beat 4.
  Play({{1, 2, {30, 10}, {{20}, {9}}},
        {2, 3, {30, 10}, {{22}, {9}}},
        {3, 1, {30, 10}, {{21}, {9}}},
        {1, 4, {30, 5}, {{20}, {0}}},
        {2, 4, {30, 5}, {{20}, {0}}},
        {3, 4, {30, 5}, {{20}, {0}}}});
  const Standings standings = Rank();
  for (const int n : {1, 2, 3}) EXPECT_EQ(Figure(standings, n, "HeadToHead"), 1);
  EXPECT_EQ(Figure(standings, 4, "HeadToHead"), 0);
  EXPECT_EQ(Order(standings), "2 3 1 4");
}

TEST_F(RankingTest, ThreePlayersWithThreeWinsGetTheirWinsOverTheTwoOthers) {
  MakeSingles(6, "H");
  // 1 beat 2 and 3, 2 beat 3; the rest of their three wins each came from 4, 5 and 6.
  Play({{1, 2, {30, 10}},
        {1, 3, {30, 10}},
        {1, 4, {30, 10}},
        {2, 3, {30, 10}},
        {2, 4, {30, 10}},
        {2, 5, {30, 10}},
        {3, 4, {30, 10}},
        {3, 5, {30, 10}},
        {3, 6, {30, 10}}});
  const Standings standings = Rank();
  const double counts[] = {2, 1, 0};
  for (int n = 1; n <= 3; ++n) {
    EXPECT_EQ(Figure(standings, n, "Won"), 3);
    EXPECT_EQ(Figure(standings, n, "HeadToHead"), counts[n - 1]);
  }
}

TEST_F(RankingTest, HeadToHeadCountsGamesWonAndRepeatedRoundsAgain) {
  MakeSingles(4, "H");
  // Three wins each for 1 and 2; 1 beat 2 twice, 2 beat 1 once.
  Play({{1, 2, {30, 10}},
        {1, 2, {30, 10}, {{0}, {0}}, 40, true, {}, 4},
        {2, 1, {30, 10}},
        {1, 3, {30, 10}},
        {2, 3, {30, 10}},
        {2, 4, {30, 10}}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 2);
  EXPECT_EQ(Figure(standings, 2, "HeadToHead"), 1);
  EXPECT_EQ(Stored(1, "HeadToHead"), 2);
}

TEST_F(RankingTest, MethodPWithDifferentPointsIsNoTie) {
  MakeSingles(4, "P");
  Play({{1, 2, {30, 10}}, {2, 3, {40, 5}}, {1, 4, {5, 20}}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 0);
  EXPECT_EQ(Figure(standings, 2, "HeadToHead"), 0);
}

TEST_F(RankingTest, MethodPWithEqualPointsIsATie) {
  MakeSingles(4, "P");
  Play({{1, 2, {30, 10}}, {2, 3, {25, 5}}, {1, 4, {5, 20}}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 1);
  EXPECT_EQ(Figure(standings, 2, "HeadToHead"), 0);
}

TEST_F(RankingTest, MethodRTiesOnRingersAndNotOnThePercentage) {
  MakeSingles(4, "R");
  // 1 and 2 have 50 percent each and one win each, but 20 and 40 ringers.
  Play({{1, 2, {30, 10}, {{20}, {20}}, 40}, {2, 3, {30, 10}, {{20}, {0}}, 40}});
  Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "RingerPercent"), Figure(standings, 2, "RingerPercent"));
  EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 0);
  // With equal ringers they are tied, whatever their percentages.
  connection_.Execute(
      "UPDATE TournamentSinglesRR SET PlayerOneRingers = 0, Shoes = 50 "
      "WHERE PlayerTwoID = ?",
      {Player(3)});
  standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 1);
}

TEST_F(RankingTest, MethodOTiesOnTheSingleFigureOverAverage) {
  MakeSingles(4, "O");
  SetAverage(1, 40);
  SetAverage(2, 40.00000001);  // not seen in single precision
  Play({{1, 2, {30, 10}, {{20}, {20}}, 40}, {2, 3, {30, 10}, {{20}, {0}}, 40}});
  EXPECT_EQ(Figure(Rank(), 1, "HeadToHead"), 1);
  SetAverage(2, 40.001);
  EXPECT_EQ(Figure(Rank(), 1, "HeadToHead"), 0);
}

TEST_F(RankingTest, AGameNotApprovedCountsInHeadToHeadAndNowhereElse) {
  MakeSingles(4, "H");
  Play({{1, 3, {30, 10}}, {2, 4, {30, 10}}, {1, 2, {10, 30}, {{5}, {20}}, 40, false}});
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 2, "HeadToHead"), 1);
  EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 0);
  EXPECT_EQ(Figure(standings, 2, "Won"), 1);
  EXPECT_EQ(Figure(standings, 2, "Ringers"), 0);
  EXPECT_EQ(Order(standings), "2 1 3 4");
}

TEST_F(RankingTest, HeadToHeadDisregardsForfeits) {
  MakeSingles(4, "H");
  // 1 forfeits a game in which he has the points; each has one win.
  Play({{1, 2, {30, 10}, {{0}, {0}}, 40, true, {true, false}}, {1, 3, {30, 10}}});
  EXPECT_EQ(Figure(Rank(), 1, "HeadToHead"), 1);
}

TEST_F(RankingTest, WinlessPlayersHaveNoHeadToHeadInEveryCase) {
  MakeSingles(2);
  // 1 has the points over 2, but the game is not approved and the other one he forfeits.
  Play({{1, 2, {30, 10}, {{0}, {0}}, 40, false},
        {1, 2, {30, 10}, {{0}, {0}}, 40, true, {true, true}}});
  for (const char* method : {"P", "R", "H", "O"}) {
    connection_.Execute("UPDATE TournamentClasses SET RankMethod = ?", {method});
    const Standings standings = Rank();
    EXPECT_EQ(Figure(standings, 1, "HeadToHead"), 0) << method;
    EXPECT_EQ(Order(standings), "1 2") << method;
  }
}

TEST_F(RankingTest, HeadToHeadIsStoredInBothClassesOfAPlayer) {
  MakeSingles(4, "H");
  AddClass("H", 0, "S", "B");
  Enter(1, 0, 0, "B");
  Enter(2, 0, 0, "B");
  Play({{1, 2, {30, 10}}, {2, 3, {30, 10}}});
  Rank();
  EXPECT_EQ(Stored(1, "HeadToHead", "A"), 1);
  EXPECT_EQ(Stored(1, "HeadToHead", "B"), 1);
  RankTheClass(connection_, Rules("B"));
  EXPECT_EQ(Stored(1, "HeadToHead", "A"), 0);
  EXPECT_EQ(Stored(1, "TotalWins", "A"), 1);  // the totals stay apart
}

TEST_F(RankingTest, TheHighGameOnlyRises) {
  MakeSingles(2);
  Play({{1, 2, {30, 10}, {{30}, {10}}, 40}, {2, 1, {30, 10}, {{28}, {10}}, 40}});
  Rank();
  EXPECT_EQ(Stored(1, "HiGame"), 75);
  EXPECT_EQ(Stored(2, "HiGame"), 70);
  connection_.Execute("UPDATE TournamentSinglesRR SET Approved = False WHERE PlayerOneID = ?",
                      {Player(1)});
  Rank();
  EXPECT_EQ(Stored(1, "HiGame"), 75);
  EXPECT_EQ(Stored(1, "TotalRingers"), 10);
}

TEST_F(RankingTest, TheHighGameNeedsShoesAndAnApprovedGame) {
  MakeSingles(2);
  connection_.Execute("UPDATE TournamentEntrants SET HiGame = Null");
  Play({{1, 2, {30, 10}, {{30}, {10}}, 0}, {1, 2, {30, 10}, {{30}, {10}}, 40, false}});
  Rank();
  EXPECT_TRUE(Cell("SELECT HiGame FROM TournamentEntrants").IsNull());
  Play({{1, 2, {30, 10}, {{20}, {0}}, 30}});
  Rank();
  EXPECT_EQ(Stored(1, "HiGame"), double{static_cast<float>(200 / 3.0)});
  EXPECT_TRUE(Cell("SELECT HiGame FROM TournamentEntrants WHERE PlayerID = '000002'").IsNull());
}

TEST_F(RankingTest, UnapprovingAPlayersBestGameLeavesHisHighGame) {
  MakeSingles(2);
  Play({{1, 2, {30, 10}, {{30}, {10}}, 40}});
  Rank();
  connection_.Execute("UPDATE TournamentSinglesRR SET Approved = False");
  Rank();
  EXPECT_EQ(Stored(1, "HiGame"), 75);
}

TEST_F(RankingTest, LetterCaseDoesNotPartAPlayerFromHisEntryOrHisGames) {
  MakeSingles(3, "H");
  Play({{1, 2, {30, 10}, {{30}, {10}}}, {2, 3, {30, 10}}});
  connection_.Execute("UPDATE Players SET PlayerID = 'ABC001' WHERE PlayerID = '000001'");
  connection_.Execute(
      "UPDATE TournamentEntrants SET PlayerID = 'abc001' WHERE PlayerID = '000001'");
  connection_.Execute(
      "UPDATE TournamentSinglesRR SET PlayerOneID = 'Abc001' WHERE PlayerOneID = '000001'");
  Standings standings = Rank();
  EXPECT_EQ(standings.rows["PlayerName"].ToText(), "P1 Stone");
  EXPECT_EQ(standings.rows["Won"].ToNumber(), 1);
  EXPECT_EQ(standings.rows["HeadToHead"].ToNumber(), 1);
  EXPECT_EQ(Rows("SELECT TotalRingers, HiGame, HeadToHead FROM TournamentEntrants WHERE PlayerID = "
                 "'ABC001'"),
            QStringList{"30 75 1"});
  const QList<BoxScore> blocks = BoxScores(connection_, standings);
  ASSERT_EQ(blocks[0].lines.size(), 1);
  EXPECT_EQ(blocks[1].lines[0].opponent, "P1 Stone");
}

TEST_F(RankingTest, WhoIsTakenOffTheRosterLeavesTheListAndHisGamesStay) {
  MakeSingles(3, "H");
  Play({{1, 2, {30, 10}}, {2, 3, {30, 10}}, {3, 1, {30, 10}}});
  connection_.Execute("DELETE FROM Players WHERE PlayerID = '000002'");
  Standings standings = Rank();
  EXPECT_EQ(Order(standings), "3 1");
  EXPECT_EQ(Figure(standings, 1, "Won"), 1);  // over him
  EXPECT_EQ(Stored(2, "TotalWins"), 1);       // his entry still counts
  const LoadedClass loaded = LoadClass(connection_, Rules());
  EXPECT_EQ(Column(loaded.list, "PlayerID"), "000001 000003");
  EXPECT_EQ(Column(loaded.games, "PlayerOneNumber"), "1 2 3");
  EXPECT_EQ(BoxScores(connection_, standings).size(), 2);
}

TEST_F(RankingTest, WhoseEntryIsDeletedLeavesTheListAndHisGamesStay) {
  MakeSingles(3, "H");
  Play({{1, 2, {30, 10}}, {2, 3, {30, 10}}, {3, 1, {30, 10}}});
  connection_.Execute("DELETE FROM TournamentEntrants WHERE PlayerID = '000002'");
  const Standings standings = Rank();
  EXPECT_EQ(Order(standings), "3 1");
  EXPECT_EQ(Figure(standings, 1, "Won"), 1);
  EXPECT_EQ(Cell("SELECT COUNT(*) FROM TournamentSinglesRR").ToWhole(), 3);
}

TEST_F(RankingTest, UnseededEntrantsShowAs99) {
  MakeSingles(2);
  connection_.Execute("UPDATE TournamentEntrants SET Seed = 3 WHERE PlayerID = '000002'");
  const Standings standings = Rank();
  EXPECT_EQ(Figure(standings, 1, "Seed"), 99);
  EXPECT_EQ(Figure(standings, 2, "Seed"), 3);
  EXPECT_EQ(Stored(1, "Seed"), 0);
}

TEST_F(RankingTest, WithoutGamesEachEntrantStandsWithZeros) {
  MakeSingles(3);
  const Standings standings = Rank();
  EXPECT_EQ(Order(standings), "1 2 3");
  EXPECT_EQ(Figure(standings, 3, "RingerPercent"), 0);
  EXPECT_EQ(standings.rows.AbsolutePosition(), 1);
}

TEST_F(RankingTest, WithoutEntrantsThereIsNothingToReport) {
  AddClass();
  EXPECT_EQ(Rank().refusal.sentence, "Nothing to report");
}

}  // namespace
}  // namespace tavrelin
