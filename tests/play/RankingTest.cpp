#include "play/Ranking.h"

#include <gtest/gtest.h>

#include "play/BoxScores.h"
#include "play/ClassBench.h"
#include "play/PlayFormat.h"
#include "play/RankOverride.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

class RankingTest : public ClassBench {
 protected:
  void Play(const QList<Played>& games) {
    Batch batch(connection_);
    for (const Played& game : games) Store(game);
  }

  Standings Rank(bool honourOverride = false) {
    return RankTheClass(connection_, Rules(), {.honourOverride = honourOverride});
  }

  /// The entrants' numbers in place order.
  static std::string Order(const Standings& standings) {
    QStringList order;
    const int id = standings.rows.FieldIndex(standings.rules.Format().entrantID);
    for (int place = 1; place <= standings.rows.RecordCount(); ++place) {
      order << QString::number(standings.rows.CellAt(place, id).ToWhole());
    }
    return order.join(u' ').toStdString();
  }

  /// A field of entrant n's line.
  static double Figure(const Standings& standings, int n, const QString& field) {
    const int id = standings.rows.FieldIndex(standings.rules.Format().entrantID);
    for (int place = 1; place <= standings.rows.RecordCount(); ++place) {
      if (standings.rows.CellAt(place, id).ToWhole() != n) continue;
      return standings.rows.CellAt(place, standings.rows.FieldIndex(field)).ToNumber();
    }
    ADD_FAILURE() << "no line for " << n;
    return -1;
  }

  double Stored(int n, const QString& column, const QString& classID = QStringLiteral("A")) {
    return Cell(QStringLiteral("SELECT %1 FROM TournamentEntrants WHERE PlayerID = '%2' AND "
                               "ClassID = '%3'")
                    .arg(column, Player(n), classID))
        .ToNumber();
  }

  void SetAverage(int n, double average) {
    connection_.Execute("UPDATE TournamentEntrants SET RingerPercent = ? WHERE PlayerID = ?",
                        {average, Player(n)});
  }
};

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
  EXPECT_EQ(Rank().refusal, "Nothing to report");
  EXPECT_EQ(RankTheClass(connection_, Rules(), {.forReport = true}).refusal, "");
}

TEST_F(RankingTest, FewerLossesStandFirstAmongEqualWins) {
  MakeSingles(4);
  Play({{1, 3, {40, 10}}, {1, 4, {39, 40}}, {2, 3, {30, 10}}});
  EXPECT_EQ(Order(Rank()), "4 2 1 3");
}

TEST_F(RankingTest, PlacesCountTheListAndStartTheOverride) {
  MakeSingles(3);
  Play({{2, 1, {30, 10}}, {3, 1, {20, 10}}});
  const Standings standings = Rank();
  EXPECT_EQ(Order(standings), "2 3 1");
  EXPECT_EQ(Column(standings.rows, "Rank"), "1 2 3");
  EXPECT_EQ(Column(standings.rows, "Override"), "1 2 3");
  EXPECT_EQ(Stored(1, "RankOverride"), 0);
}

TEST_F(RankingTest, WithAnOverrideTheScreenKeepsTheComputedOrderAndPaperFollowsIt) {
  MakeSingles(3);
  Play({{2, 1, {30, 10}}, {3, 1, {20, 10}}});
  ClassRules rules = Rules();
  Standings standings = Rank();
  const int places[] = {3, 1, 2};  // for 2, 3 and 1
  for (const int place : places) {
    standings.rows.Set("Override", place);
    standings.rows.Update();
    standings.rows.MoveNext();
  }
  EXPECT_EQ(ApplyOverride(connection_, rules, standings.rows), "");
  EXPECT_TRUE(rules.rankOverride);
  EXPECT_TRUE(Rules().rankOverride);
  standings = Rank();
  EXPECT_EQ(Order(standings), "2 3 1");
  EXPECT_EQ(Column(standings.rows, "Override"), "3 1 2");
  EXPECT_EQ(standings.rankBasis, "(Rank: W/L - Pts - H2H - OvrAvg)");
  Standings paper = Rank(true);
  EXPECT_EQ(Order(paper), "3 1 2");
  EXPECT_EQ(Column(paper.rows, "Rank"), "1 2 3");
  EXPECT_EQ(paper.rankBasis, "(Rank - Override)");
  RemoveOverride(connection_, rules, standings.rows);
  EXPECT_FALSE(Rules().rankOverride);
  EXPECT_EQ(Column(standings.rows, "Override"), "1 2 3");
  EXPECT_EQ(Stored(2, "RankOverride"), 0);
  EXPECT_EQ(Order(Rank(true)), "2 3 1");
}

TEST_F(RankingTest, ADuplicatePlaceIsRefusedAndTheRowsBeforeItStayStored) {
  MakeSingles(4);
  Play({{1, 2, {40, 10}}, {1, 3, {40, 10}}, {2, 3, {40, 10}}, {2, 4, {40, 10}}, {3, 4, {40, 10}}});
  Standings standings = Rank();
  ASSERT_EQ(Order(standings), "1 2 3 4");
  const int places[] = {1, 3, 3, 4};
  for (const int place : places) {
    standings.rows.Set("Override", place);
    standings.rows.Update();
    standings.rows.MoveNext();
  }
  ClassRules rules = Rules();
  EXPECT_EQ(ApplyOverride(connection_, rules, standings.rows),
            "Duplicate Ranking: #3 is not allowed");
  EXPECT_FALSE(Rules().rankOverride);
  EXPECT_EQ(Stored(1, "RankOverride"), 1);
  EXPECT_EQ(Stored(2, "RankOverride"), 3);
  EXPECT_EQ(Stored(3, "RankOverride"), 0);
  EXPECT_EQ(Stored(4, "RankOverride"), 0);
}

TEST_F(RankingTest, AListThatHoldsAZeroIsRefusedOnItsFirstRow) {
  MakeSingles(2);
  Standings standings = Rank();
  standings.rows.Set("Override", 0);
  standings.rows.Update();
  ClassRules rules = Rules();
  EXPECT_EQ(ApplyOverride(connection_, rules, standings.rows),
            "Duplicate Ranking: #0 is not allowed");
  EXPECT_EQ(Stored(2, "RankOverride"), 0);
}

TEST_F(RankingTest, TheReportListHasNoPlacesAndIsNotSorted) {
  MakeSingles(2);
  Play({{2, 1, {30, 10}}});
  const Standings standings = RankTheClass(connection_, Rules(), {.forReport = true});
  EXPECT_EQ(standings.rows.FieldIndex("Rank"), -1);
  EXPECT_EQ(standings.rows.FieldIndex("Override"), -1);
  EXPECT_EQ(Order(standings), "1 2");
  EXPECT_EQ(standings.rankBasis, "");
  EXPECT_EQ(Figure(standings, 2, "Won"), 1);
}

struct OrderCase {
  const char* method;
  double handicap;
  const char* format;
  const char* sort;
  const char* basis;
};

const OrderCase Orders[] = {
    {"R", 0, "S", "Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Rgr% - H2H - OvrAvg)"},
    {"H", 0, "S", "Won DESC, Loss ASC, HeadToHead DESC, RingerPercent DESC, Points DESC",
     "(Rank: W/L - H2H - Rgr% - Pts)"},
    {"O", 0, "S", "Won DESC, Loss ASC, OverAverage DESC, RingerPercent DESC, Points DESC",
     "(Rank: W/L - OvrAvg - Rgr% - Pts)"},
    {"P", 0, "S", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, RingerPercent DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
    {"", 0, "S", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, RingerPercent DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
    {"R", 80, "S", "Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Rgr% - H2H - OvrAvg)"},
    {"H", 80, "S", "Won DESC, Loss ASC, HeadToHead DESC, OverAverage DESC, Points DESC",
     "(Rank: W/L - H2H - OvrAvg - Pts)"},
    {"O", 80, "S", "Won DESC, Loss ASC, OverAverage DESC, HeadToHead DESC, Points DESC",
     "(Rank: W/L - OvrAvg - H2H - Pts)"},
    {"P", 80, "S", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
    {"R", 0, "D", "Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, Points DESC",
     "(Rank: W/L - Rgr% - H2H - Pts)"},
    {"R", 80, "D", "Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Rgr% - H2H - OvrAvg)"},
    {"H", 0, "D", "Won DESC, Loss ASC, HeadToHead DESC, RingerPercent DESC, Points DESC",
     "(Rank: W/L - H2H - Rgr% - Pts)"},
    {"O", 80, "D", "Won DESC, Loss ASC, OverAverage DESC, HeadToHead DESC, Points DESC",
     "(Rank: W/L - OvrAvg - H2H - Pts)"},
};

TEST(RankOrderTest, TheMethodAndTheHandicapChooseTheOrderAndItsName) {
  for (const OrderCase& c : Orders) {
    const ClassRules rules{"2601007", "A", "", c.handicap, 40, c.method, c.format, false};
    const RankOrder order = OrderOf(rules, true);
    EXPECT_EQ(order.sort.toStdString(), c.sort) << c.method << c.handicap << c.format;
    EXPECT_EQ(order.basis.toStdString(), c.basis) << c.method << c.handicap << c.format;
  }
}

TEST(RankOrderTest, OnlySinglesKnowAnOverrideAndOnlyPaperHonorsIt) {
  ClassRules rules{"2601007", "A", "", 0, 40, "P", "S", true};
  EXPECT_EQ(OrderOf(rules, true).sort, "Override ASC");
  EXPECT_EQ(OrderOf(rules, true).basis, "(Rank - Override)");
  EXPECT_EQ(OrderOf(rules, false).basis, "(Rank: W/L - Pts - H2H - OvrAvg)");
  rules.playFormat = "D";
  EXPECT_EQ(OrderOf(rules, true).basis, "(Rank: W/L - Pts - H2H - OvrAvg)");
}

// Four players with one win and one loss each; no two methods put them in one order.
//   1: 60 points, 30 ringers, average 70;  2: 50 points, 40 ringers, average 60
//   3: 55 points, 35 ringers, average 30;  4: 45 points, 20 ringers, average 20
// Over average of 80 shoes: 1 -32.5, 2 -10, 3 13.75, 4 5.
TEST_F(RankingTest, EachMethodOrdersTheSameClassInItsOwnWay) {
  MakeSingles(4);
  const double averages[] = {70, 60, 30, 20};
  for (int n = 1; n <= 4; ++n) SetAverage(n, averages[n - 1]);
  Play({{1, 2, {30, 20}, {{15}, {20}}},
        {3, 4, {30, 20}, {{15}, {10}}},
        {2, 3, {30, 25}, {{20}, {20}}},
        {4, 1, {25, 30}, {{10}, {15}}, 40, true, {false, true}}});
  // 1 forfeited against 4 and so has 30 points, 15 ringers of 40 shoes: 37.5, over average -32.5.
  const struct {
    const char* method;
    double handicap;
    const char* order;
  } cases[] = {
      {"P", 0, "3 2 4 1"},   // 55, 50, 45, 30
      {"R", 0, "2 3 1 4"},   // 50, 43.75, 37.5, 25 percent
      {"O", 0, "3 4 2 1"},   // 13.75, 5, -10, -32.5
      {"H", 0, "1 2 3 4"},   // 1 beat 2 and, on points, 4; then one each: by percentage
      {"H", 80, "1 3 2 4"},  // then one each for 2 and 3, by over average; 4 none
      {"P", 80, "3 2 4 1"}, {"O", 80, "3 4 2 1"},
  };
  for (const auto& c : cases) {
    connection_.Execute("UPDATE TournamentClasses SET RankMethod = ?, HandicapPct = ?",
                        {c.method, c.handicap});
    EXPECT_EQ(Order(Rank()), c.order) << c.method << ' ' << c.handicap;
  }
}

class TeamRankingTest : public RankingTest {
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

TEST_F(RankingTest, MethodRBreaksATieLastOnTheFigureOverAverage) {
  MakeSingles(4, "R");
  SetAverage(2, 90);
  Play({{1, 3, {30, 5}, {{10}, {0}}}, {2, 4, {31, 5}, {{10}, {0}}}});
  EXPECT_EQ(Order(Rank()), "1 2 3 4");
}

TEST_F(TeamRankingTest, ATeamOrAPartnerTakenOffTheFileDoesNoHarm) {
  MakeDoubles(3);
  PlayTeams({{1, 2, {30, 10}}, {2, 3, {30, 10}}, {3, 1, {30, 10}}});
  connection_.Execute("DELETE FROM Teams WHERE TeamID = 2");
  connection_.Execute("DELETE FROM Players WHERE PlayerID = ?", {Partner(1, 0)});
  Standings standings = Rank();
  EXPECT_EQ(standings.rows.RecordCount(), 2);
  EXPECT_EQ(Figure(standings, 1, "Won"), 1);
  EXPECT_EQ(LoadClass(connection_, Rules()).entrants, 2);
  EXPECT_EQ(BoxScores(connection_, standings).size(), 2);
}

TEST_F(TeamRankingTest, HeadToHeadIsKeptByTeam) {
  MakeDoubles(4, "H");
  PlayTeams({{1, 2, {10, 30}}, {1, 3, {30, 10}}});
  Rank();
  EXPECT_EQ(Team(2, "HeadToHead"), 1);
  EXPECT_EQ(Team(1, "HeadToHead"), 0);
}

TEST_F(TeamRankingTest, TheReportListKeepsTheOrderOfEntry) {
  MakeDoubles(2);
  PlayTeams({{2, 1, {30, 10}}});
  const Standings standings = RankTheClass(connection_, Rules(), {.forReport = true});
  EXPECT_EQ(Order(standings), "1 2");
  EXPECT_EQ(Figure(standings, 2, "Won"), 1);
  EXPECT_EQ(standings.rows["PlayerTwoName"].ToText(), "Bob Of1");
}

}  // namespace
}  // namespace tavrelin
