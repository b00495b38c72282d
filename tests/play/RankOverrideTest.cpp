#include "play/RankOverride.h"

#include "play/RankingBench.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

class RankOverrideTest : public RankingBench {};

TEST_F(RankOverrideTest, PlacesCountTheListAndStartTheOverride) {
  MakeSingles(3);
  Play({{2, 1, {30, 10}}, {3, 1, {20, 10}}});
  const Standings standings = Rank();
  EXPECT_EQ(Order(standings), "2 3 1");
  EXPECT_EQ(Column(standings.rows, "Rank"), "1 2 3");
  EXPECT_EQ(Column(standings.rows, "Override"), "1 2 3");
  EXPECT_EQ(Stored(1, "RankOverride"), 0);
}

TEST_F(RankOverrideTest, WithAnOverrideTheScreenKeepsTheComputedOrderAndPaperFollowsIt) {
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
  EXPECT_EQ(ApplyOverride(connection_, rules, standings.rows).sentence, "");
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

TEST_F(RankOverrideTest, ADuplicatePlaceIsRefusedAndTheRowsBeforeItStayStored) {
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
  EXPECT_EQ(ApplyOverride(connection_, rules, standings.rows).sentence,
            "Duplicate Ranking: #3 is not allowed");
  EXPECT_FALSE(Rules().rankOverride);
  EXPECT_EQ(Stored(1, "RankOverride"), 1);
  EXPECT_EQ(Stored(2, "RankOverride"), 3);
  EXPECT_EQ(Stored(3, "RankOverride"), 0);
  EXPECT_EQ(Stored(4, "RankOverride"), 0);
}

TEST_F(RankOverrideTest, AListThatHoldsAZeroIsRefusedOnItsFirstRow) {
  MakeSingles(2);
  Standings standings = Rank();
  standings.rows.Set("Override", 0);
  standings.rows.Update();
  ClassRules rules = Rules();
  EXPECT_EQ(ApplyOverride(connection_, rules, standings.rows).sentence,
            "Duplicate Ranking: #0 is not allowed");
  EXPECT_EQ(Stored(2, "RankOverride"), 0);
}

}  // namespace
}  // namespace tavrelin
