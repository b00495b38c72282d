#include "play/Cards.h"

#include <gtest/gtest.h>

#include "play/ClassBench.h"
#include "play/Pairing.h"

namespace tavrelin {
namespace {

TEST(CardGames, TheRangeFollowsTheBoxesAndTheClass) {
  const std::string full = "Cannot print more than 11 games on card";
  const struct {
    const char *from, *to;
    int entrants, first, last;
    std::string refusal;
  } cases[] = {
      {"", "", 12, 1, 11, ""},      {"", "", 13, 1, 13, full},        {"3", "13", 20, 3, 13, ""},
      {"3", "14", 20, 3, 14, full}, {"x", "x", 5, 1, 5, ""},          {"0", "0", 6, 1, 5, ""},
      {"2", "", 4, 2, 3, ""},       {"", "1e300", 4, 1, 32767, full}, {"-4", "3", 4, 1, 3, ""},
  };
  for (const auto& c : cases) {
    const GameRange range = CardGames(c.from, c.to, c.entrants, CardLimit::ElevenGames);
    EXPECT_EQ(range.from, c.first) << c.from << " thru " << c.to;
    EXPECT_EQ(range.to, c.last) << c.from << " thru " << c.to;
    EXPECT_EQ(range.refusal.sentence.toStdString(), c.refusal) << c.from << " thru " << c.to;
  }
}

TEST(CardGames, TwoCardsOnASheetHaveNoLimit) {
  EXPECT_EQ(CardGames("", "", 20, CardLimit::None).refusal.sentence, "");
  EXPECT_EQ(CardGames("", "", 20, CardLimit::None).to, 19);
}

class CardsTest : public ClassBench {
 protected:
  void Pair(OddEntrant odd) {
    const ClassRules rules = Rules();
    const QStringList courts = LoadClass(connection_, rules).courts;
    ASSERT_EQ(CreatePairing(connection_, rules, {courts, 1, odd}).sentence, "");
  }

  QList<Card> Make(int from, int to, CardSide side = CardSide::ByEntrant) {
    return Cards(connection_, LoadClass(connection_, Rules()), {from, to, {}}, side);
  }

  static std::string Lines(const Card& card) {
    QStringList lines;
    for (const CardLine& line : card.lines) {
      lines << (line.bye ? QStringLiteral("%1 bye").arg(line.game)
                         : QStringLiteral("%1 %2.%3 c%4")
                               .arg(line.game)
                               .arg(line.opponentNumber)
                               .arg(line.opponent, line.court.trimmed()));
    }
    return lines.join(u", ").toStdString();
  }
};

TEST_F(CardsTest, EachEntrantGetsHisGamesWithOpponentAndCourt) {
  MakeSingles(4);
  Pair(OddEntrant::NotChosen);
  const QList<Card> cards = Make(1, 3);
  ASSERT_EQ(cards.size(), 4);
  EXPECT_EQ(Lines(cards[0]), "1 4.P4 Stone c1, 2 3.P3 Stone c2, 3 2.P2 Stone c1");
  EXPECT_EQ(cards[0].pitchers[0].first, "P1");
  EXPECT_EQ(cards[0].pitchers[0].last, "Stone");
  EXPECT_EQ(cards[0].state, "IA");
  EXPECT_EQ(cards[0].wins, "0");
}

TEST_F(CardsTest, WhoSitsOutAGameGetsAByeInItsPlace) {
  MakeSingles(5);
  Pair(OddEntrant::Bye);
  // In the table for five, number 5 sits out game 4 and number 1 game 1.
  const QList<Card> cards = Make(1, 5);
  EXPECT_EQ(Lines(cards[4]),
            "1 2.P2 Stone c1, 2 1.P1 Stone c2, 3 4.P4 Stone c2, 4 bye, 5 3.P3 Stone c1");
  EXPECT_EQ(Lines(cards[0]).substr(0, 5), "1 bye");
}

TEST_F(CardsTest, ByesFillTheRangeBehindTheLastGame) {
  MakeSingles(4);
  Pair(OddEntrant::NotChosen);
  EXPECT_EQ(Lines(Make(3, 5)[0]), "3 2.P2 Stone c1, 4 bye, 5 bye");
  EXPECT_EQ(Lines(Make(2, 2)[0]), "2 3.P3 Stone c2");
}

TEST_F(CardsTest, ThePacerHasNoNameByEntrantAndIsPacerByNumber) {
  MakeSingles(3, "P", 80);
  connection_.Execute("UPDATE TournamentEntrants SET RingerPercent = 50 WHERE PlayerID = '000001'");
  Pair(OddEntrant::Pacer);
  EXPECT_EQ(Lines(Make(1, 1)[0]), "1 4. c1");
  EXPECT_EQ(Lines(Make(1, 1, CardSide::ByNumber)[0]), "1 4.PACER c1");
  const QList<Card> cards = Make(1, 3);
  ASSERT_EQ(cards.size(), 4);
  EXPECT_TRUE(cards[3].isPacer);
  EXPECT_FALSE(cards[3].handicap.has_value());
  EXPECT_EQ(cards[0].handicap, 0);
  EXPECT_EQ(cards[1].handicap, 48);  // 50 percent of 40 shoes: 20 ringers, 60 points, 80 percent
}

TEST_F(CardsTest, AClassWithoutHandicapShowsNone) {
  MakeSingles(2);
  Pair(OddEntrant::NotChosen);
  EXPECT_FALSE(Make(1, 1)[0].handicap.has_value());
}

TEST_F(CardsTest, ATeamCardNamesBothPartnersAndThePacerHasAHandicap) {
  MakeDoubles(3, "P", 100);
  connection_.Execute("UPDATE TournamentTeamEntrants SET RingerPercent = 50 WHERE TeamID = 1");
  Pair(OddEntrant::Pacer);
  const QList<Card> cards = Make(1, 3);
  ASSERT_EQ(cards.size(), 4);
  EXPECT_EQ(Lines(cards[0]), "1 4.PACER c1, 2 3.Team 3 c2, 3 2.Team 2 c1");
  EXPECT_EQ(cards[0].pitchers[1].Full(), "Bob Of1");
  EXPECT_EQ(cards[3].handicap, 60);  // not doubled on cards
}

TEST_F(CardsTest, AnOpponentTakenOffTheRosterKeepsHisNumberAndHasNoName) {
  MakeSingles(4);
  Pair(OddEntrant::NotChosen);
  connection_.Execute("DELETE FROM Players WHERE PlayerID = '000004'");
  const QList<Card> cards = Make(1, 3);
  ASSERT_EQ(cards.size(), 3);
  EXPECT_EQ(Lines(cards[0]), "1 4. c1, 2 3.P3 Stone c2, 3 2.P2 Stone c1");
}

TEST_F(CardsTest, ATeamTakenOffTheFileIsToldByItsIDOnTheCardsOfTheOthers) {
  MakeDoubles(4);
  Pair(OddEntrant::NotChosen);
  connection_.Execute("DELETE FROM Teams WHERE TeamID = 4");
  const QList<Card> cards = Make(1, 3);
  ASSERT_EQ(cards.size(), 3);
  EXPECT_EQ(Lines(cards[0]), "1 0.4 (not on file) c1, 2 3.Team 3 c2, 3 2.Team 2 c1");
}

TEST_F(CardsTest, APartnerTakenOffTheRosterIsToldByHisNumberOnBothFaces) {
  MakeDoubles(2);
  Pair(OddEntrant::NotChosen);
  connection_.Execute("DELETE FROM Players WHERE PlayerID = '20001'");
  const Card card = Make(1, 1)[0];
  EXPECT_EQ(card.pitchers[1].Full(), "20001 (not on file)");
  EXPECT_EQ(card.front, (QStringList{"Of1", "20001 (not on file)"}));
}

TEST_F(CardsTest, TheWorksheetListsAllGamesAndLeavesThePacerBlank) {
  MakeSingles(3);
  EXPECT_TRUE(Worksheet(connection_, LoadClass(connection_, Rules())).isEmpty());
  Pair(OddEntrant::Pacer);
  const QList<WorksheetLine> lines = Worksheet(connection_, LoadClass(connection_, Rules()));
  ASSERT_EQ(lines.size(), 6);
  EXPECT_EQ(lines[0].game, 1);
  EXPECT_EQ(lines[0].one, "P1 Stone");
  EXPECT_EQ(lines[0].two, "");
  EXPECT_EQ(lines[1].court, "  2");
  EXPECT_EQ(lines[1].two, "P3 Stone");
}

}  // namespace
}  // namespace tavrelin
