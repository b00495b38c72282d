#include "play/RankingBench.h"

namespace tavrelin {
namespace {

class RankOrderTest : public RankingBench {};

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
    {"O", 0, "D", "Won DESC, Loss ASC, OverAverage DESC, RingerPercent DESC, Points DESC",
     "(Rank: W/L - OvrAvg - Rgr% - Pts)"},
    {"P", 0, "D", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, RingerPercent DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
    {"H", 80, "D", "Won DESC, Loss ASC, HeadToHead DESC, OverAverage DESC, Points DESC",
     "(Rank: W/L - H2H - OvrAvg - Pts)"},
    {"P", 80, "D", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
};

TEST_F(RankOrderTest, FewerLossesStandFirstAmongEqualWins) {
  MakeSingles(4);
  Play({{1, 3, {40, 10}}, {1, 4, {39, 40}}, {2, 3, {30, 10}}});
  EXPECT_EQ(Order(Rank()), "4 2 1 3");
}

TEST_F(RankOrderTest, TheMethodAndTheHandicapChooseTheOrderAndItsName) {
  for (const OrderCase& c : Orders) {
    const ClassRules rules{"2601007", "A", "", c.handicap, 40, c.method, c.format, false};
    const RankOrder order = OrderOf(rules, StandingOrder::Directed);
    EXPECT_EQ(order.sort.toStdString(), c.sort) << c.method << c.handicap << c.format;
    EXPECT_EQ(order.basis.toStdString(), c.basis) << c.method << c.handicap << c.format;
  }
}

TEST_F(RankOrderTest, OnlySinglesKnowAnOverrideAndOnlyPaperHonorsIt) {
  ClassRules rules{"2601007", "A", "", 0, 40, "P", "S", true};
  EXPECT_EQ(OrderOf(rules, StandingOrder::Directed).sort, "Override ASC");
  EXPECT_EQ(OrderOf(rules, StandingOrder::Directed).basis, "(Rank - Override)");
  EXPECT_EQ(OrderOf(rules, StandingOrder::Computed).basis, "(Rank: W/L - Pts - H2H - OvrAvg)");
  rules.playFormat = "D";
  EXPECT_EQ(OrderOf(rules, StandingOrder::Directed).basis, "(Rank: W/L - Pts - H2H - OvrAvg)");
}

// Four players with one win and one loss each; no two methods put them in one order.
//   1: 60 points, 30 ringers, average 70;  2: 50 points, 40 ringers, average 60
//   3: 55 points, 35 ringers, average 30;  4: 45 points, 20 ringers, average 20
// Over average of 80 shoes: 1 -32.5, 2 -10, 3 13.75, 4 5.
TEST_F(RankOrderTest, EachMethodOrdersTheSameClassInItsOwnWay) {
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

TEST_F(RankOrderTest, MethodRBreaksATieLastOnTheFigureOverAverage) {
  MakeSingles(4, "R");
  SetAverage(2, 90);
  Play({{1, 3, {30, 5}, {{10}, {0}}}, {2, 4, {31, 5}, {{10}, {0}}}});
  EXPECT_EQ(Order(Rank()), "1 2 3 4");
}

// Who is level on all that the rank method looks at is parted by seed and entry average.
TEST_F(RankOrderTest, TheReportsGoOnBySeedAndEntryAverage) {
  const QString tail = ", Seed ASC, EntryAvg DESC";
  for (const OrderCase& c : Orders) {
    const ClassRules rules{"2601007", "A", "", c.handicap, 40, c.method, c.format, false};
    const RankOrder order = OrderOf(rules, StandingOrder::AfterPlay);
    const bool pointsOfTeams = *c.format == 'D' && *c.method == 'R' && c.handicap == 0;
    const char* sort = pointsOfTeams ? Orders[0].sort : c.sort;
    EXPECT_EQ(order.sort, sort + tail) << c.method << c.handicap << c.format;
    const bool unnamed = c.handicap == 0 && (*c.method == 'P' || *c.method == 0);
    const char* basis = pointsOfTeams ? Orders[0].basis : c.basis;
    EXPECT_EQ(order.basis, unnamed ? "" : basis) << c.method << c.handicap << c.format;
  }
}

TEST_F(RankOrderTest, PostingDisregardsHandicapAndPlacesSetByHandAndHasOrdersOfItsOwn) {
  const struct {
    const char* method;
    const char* format;
    const char* sort;
  } cases[] = {
      {"R", "S", "RingerPercent DESC, HeadToHead DESC, Points DESC"},
      {"H", "S", "HeadToHead DESC, RingerPercent DESC, Points DESC"},
      {"O", "S", "OverAverage DESC, RingerPercent DESC, Points DESC"},
      {"P", "S", "Points DESC, HeadToHead DESC, RingerPercent DESC"},
      {"R", "D", "RingerPercent DESC, Points DESC"},
      {"H", "D", "Points DESC, RingerPercent DESC"},
      {"O", "D", "Points DESC, RingerPercent DESC"},
      {"P", "D", "Points DESC, RingerPercent DESC"},
  };
  for (const auto& c : cases) {
    for (const double handicap : {0, 80}) {
      const ClassRules rules{"2601007", "A", "", handicap, 40, c.method, c.format, true};
      const RankOrder order = OrderOf(rules, StandingOrder::Posting);
      EXPECT_EQ(order.sort.toStdString(),
                std::string("Won DESC, Loss ASC, ") + c.sort + ", Seed ASC, EntryAvg DESC");
      EXPECT_EQ(order.basis, "");
    }
  }
}

TEST_F(RankOrderTest, ReportsHonorPlacesSetByHandAndTheListOfEntriesDoesNot) {
  const ClassRules rules{"2601007", "A", "", 0, 40, "P", "S", true};
  EXPECT_EQ(OrderOf(rules, StandingOrder::AfterPlay).sort, "Override ASC");
  EXPECT_EQ(OrderOf(rules, StandingOrder::AfterPlay).basis, "(Rank - Override)");
  EXPECT_EQ(OrderOf(rules, StandingOrder::Entries).sort, "Seed ASC, EntryAvg DESC");
  EXPECT_EQ(OrderOf(rules, StandingOrder::Entries).basis, "");
}

}  // namespace
}  // namespace tavrelin
