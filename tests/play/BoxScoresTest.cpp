#include "play/BoxScores.h"

#include <gtest/gtest.h>

#include "play/ClassBench.h"
#include "play/Ranking.h"

namespace tavrelin {
namespace {

class BoxScoresTest : public ClassBench {
 protected:
  QList<BoxScore> Blocks() {
    Standings standings = RankTheClass(connection_, Rules());
    QList<BoxScore> blocks = BoxScores(connection_, standings);
    EXPECT_LE(standings.rows.AbsolutePosition(), 1);
    return blocks;
  }

  static std::string Text(const BoxLine& line) {
    return QStringLiteral("%1|%2|%3/%4|%5|%6|%7")
        .arg(line.opponent, line.forfeitMark)
        .arg(line.own.points)
        .arg(line.opposingPoints)
        .arg(line.own.ringers[0])
        .arg(line.own.shoes)
        .arg(line.own.percents[0])
        .toStdString();
  }
};

TEST_F(BoxScoresTest, ListTheApprovedGamesFromTheEntrantsSideInPlaceOrder) {
  MakeSingles(2);
  Store({1, 2, {12, 30}, {{10}, {20}}, 40});
  Store({2, 1, {20, 20}, {{15}, {16}}, 50, true, {}, 2});
  Store({1, 2, {40, 0}, {{40}, {0}}, 40, false, {}, 3});
  const QList<BoxScore> blocks = Blocks();
  ASSERT_EQ(blocks.size(), 2);
  EXPECT_EQ(blocks[0].place, 1);
  EXPECT_EQ(blocks[0].name, "P2 Stone");
  EXPECT_EQ(blocks[0].won, 1.5);
  EXPECT_EQ(blocks[0].loss, 0.5);
  ASSERT_EQ(blocks[0].lines.size(), 2);
  EXPECT_EQ(Text(blocks[0].lines[0]), "P1 Stone||30/12|20|40|50");
  EXPECT_EQ(Text(blocks[0].lines[1]), "P1 Stone||20/20|15|50|30");
  EXPECT_EQ(blocks[0].totals.points, 50);
  EXPECT_EQ(blocks[0].totals.ringers[0], 35);
  EXPECT_EQ(blocks[0].totals.shoes, 90);
  EXPECT_DOUBLE_EQ(blocks[0].totals.percents[0], 3500 / 90.0);
}

TEST_F(BoxScoresTest, AGameAgainstThePacerShowsHimAndCounts) {
  MakeSingles(1);
  Store({1, 0, {12, 30}, {{10}, {20}}, 40});
  const QList<BoxScore> blocks = Blocks();
  ASSERT_EQ(blocks[0].lines.size(), 1);
  EXPECT_EQ(Text(blocks[0].lines[0]), "PACER||12/30|10|40|25");
}

TEST_F(BoxScoresTest, ForfeitsAreMarkedAndCountInTheSumOfTheLinesAlone) {
  MakeSingles(2);
  Store({1, 2, {12, 30}, {{10}, {20}}, 40, true, {false, true}});
  const QList<BoxScore> blocks = Blocks();
  EXPECT_EQ(blocks[0].lines[0].forfeitMark, "F+");
  EXPECT_EQ(blocks[1].lines[0].forfeitMark, "F-");
  EXPECT_EQ(blocks[1].totals.shoes, 0);
  EXPECT_EQ(blocks[1].totals.percents[0], 0);
  EXPECT_EQ(blocks[1].played.shoes, 40);
  EXPECT_EQ(blocks[1].played.points, 30);
  EXPECT_EQ(blocks[1].played.percents[0], 50);
}

TEST_F(BoxScoresTest, WhoForfeitsAgainstAForfeitIsMarkedAsLoser) {
  MakeSingles(2);
  Store({1, 2, {12, 30}, {{10}, {20}}, 40, true, {true, true}});
  for (const BoxScore& block : Blocks()) EXPECT_EQ(block.lines[0].forfeitMark, "F-");
}

TEST_F(BoxScoresTest, ATeamBlockHasBothPartnersOverOnePlayersShoes) {
  MakeDoubles(2);
  StoreTeams({1, 2, {30, 20}, {{10, 20}, {5, 8}}, 40});
  StoreTeams({1, 0, {30, 20}, {{20, 30}, {0, 0}}, 40, true, {}, 2});
  const BoxScore block = Blocks()[0];
  EXPECT_EQ(block.name, "Team 1");
  EXPECT_EQ(block.pitchers, (QStringList{"Ann Of1", "Bob Of1"}));
  EXPECT_EQ(block.lines[0].opponent, "Team 2");
  EXPECT_EQ(block.lines[1].opponent, "PACER");
  EXPECT_EQ(block.lines[0].own.percents, (QList<double>{25, 50}));
  EXPECT_EQ(block.totals.shoes, 80);
  EXPECT_EQ(block.totals.ringers, (QList<int>{30, 50}));
  EXPECT_EQ(block.totals.percents, (QList<double>{37.5, 62.5}));
}

TEST_F(BoxScoresTest, AClassWithoutEntrantsHasNoBlocks) {
  AddClass();
  EXPECT_TRUE(Blocks().isEmpty());
}

}  // namespace
}  // namespace tavrelin
