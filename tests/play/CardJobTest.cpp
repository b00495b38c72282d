#include "play/CardJob.h"

#include <gtest/gtest.h>

#include "play/ClassBench.h"
#include "play/Pairing.h"

namespace tavrelin {
namespace {

constexpr CardStyle Styles[] = {CardStyle::Card, CardStyle::Folded, CardStyle::TwoUp};

CardSettings Style(CardStyle style) {
  CardSettings settings;
  settings.style = style;
  return settings;
}

TEST(CardProcedures, TheStyleDecidesAndTheWorksheetGoesBeforeIt) {
  CardChoice sheet;
  sheet.worksheet = true;
  const CardProcedure singles[] = {CardProcedure::OldMethod, CardProcedure::NewMethod,
                                   CardProcedure::World};
  const CardProcedure doubles[] = {CardProcedure::OldMethod, CardProcedure::NewMethod,
                                   CardProcedure::OldMethod};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(ProcedureFor(Style(Styles[i]), {}, SinglesFormat()), singles[i]);
    EXPECT_EQ(ProcedureFor(Style(Styles[i]), {}, DoublesFormat()), doubles[i]);
    EXPECT_EQ(ProcedureFor(Style(Styles[i]), sheet, SinglesFormat()), CardProcedure::Worksheet);
    EXPECT_EQ(ProcedureFor(Style(Styles[i]), sheet, DoublesFormat()), doubles[i]);
  }
}

TEST(CardFaces, TheSelectionFollowsTheRun) {
  EXPECT_EQ(FaceAfter(CardFace::Front, false), CardFace::Back);
  EXPECT_EQ(FaceAfter(CardFace::Front, true), CardFace::Back);
  EXPECT_EQ(FaceAfter(CardFace::None, false), CardFace::None);
}

TEST(CardFaces, AfterABackRunTheBackStaysOnlyWithBackOnlySet) {
  EXPECT_EQ(FaceAfter(CardFace::Back, true), CardFace::Back);
  EXPECT_EQ(FaceAfter(CardFace::Back, false), CardFace::Front);
}

class CardJobTest : public ClassBench {
 protected:
  void Pair(OddEntrant odd = OddEntrant::NotChosen, int rounds = 1) {
    const ClassRules rules = Rules();
    const QStringList courts = LoadClass(connection_, rules).courts;
    ASSERT_EQ(CreatePairing(connection_, rules, {courts, rounds, odd}).sentence, "");
  }

  CardJob Make(const CardSettings& settings = {}, const CardChoice& choice = {}) {
    return MakeCardJob(connection_, LoadClass(connection_, Rules()), settings, choice);
  }

  static CardChoice Games(const QString& from, const QString& to) {
    CardChoice choice;
    choice.from = from;
    choice.to = to;
    return choice;
  }

  static QList<int> GamesOf(const Card& card) {
    QList<int> games;
    for (const CardLine& line : card.lines) games << line.game;
    return games;
  }
};

TEST_F(CardJobTest, TellsTheClassTheTournamentAndWhereTheCardGoes) {
  MakeSingles(4);
  Pair();
  CardSettings settings = Style(CardStyle::Folded);
  settings.down = 10;
  settings.right = -5;
  const CardJob job = Make(settings);
  EXPECT_EQ(job.name, "Round Robin Cards");
  EXPECT_EQ(job.tournament, "Spring Open");
  EXPECT_EQ(job.date.date(), QDate(2026, 5, 9));
  EXPECT_EQ(job.className, "Class A");
  EXPECT_EQ(job.shoes, 40);
  EXPECT_FALSE(job.doubles);
  EXPECT_EQ(job.down, 3210);
  EXPECT_EQ(job.right, 95);
  EXPECT_EQ(job.cards.size(), 4);
  EXPECT_TRUE(job.Prints());
}

TEST_F(CardJobTest, TwelveEntrantsAndBlankFieldsPrintGames1To11) {
  MakeSingles(12);
  Pair();
  const CardJob job = Make();
  ASSERT_EQ(job.refusal.sentence, "");
  EXPECT_EQ(GamesOf(job.cards[0]), (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(CardJobTest, ThirteenEntrantsAndBlankFieldsFailTheElevenGameTest) {
  MakeSingles(13);
  Pair(OddEntrant::Bye);
  for (const CardFace face : {CardFace::Front, CardFace::Back}) {
    CardChoice choice;
    choice.face = face;
    const CardJob job = Make({}, choice);
    EXPECT_EQ(job.refusal.sentence, "Cannot print more than 11 games on card");
    EXPECT_EQ(job.refusal.about, "To");
    EXPECT_FALSE(job.Prints());
    EXPECT_EQ(job.nextFace, face);
  }
  EXPECT_FALSE(Make(Style(CardStyle::Folded)).Prints());
  EXPECT_TRUE(Make(Style(CardStyle::TwoUp)).Prints());
}

TEST_F(CardJobTest, GamesThreeToThirteenPassAndThreeToFourteenFail) {
  MakeSingles(4);
  Pair(OddEntrant::NotChosen, 4);
  EXPECT_EQ(Make({}, Games("3", "13")).refusal.sentence, "");
  EXPECT_EQ(Make({}, Games("3", "14")).refusal.sentence, "Cannot print more than 11 games on card");
}

TEST_F(CardJobTest, FourRoundsOfTwentyCanBePrintedElevenGamesAtATime) {
  MakeSingles(20);
  Pair(OddEntrant::NotChosen, 4);
  const CardJob job = Make({}, Games("66", "76"));
  ASSERT_EQ(job.cards.size(), 20);
  for (const Card& card : job.cards) {
    EXPECT_EQ(GamesOf(card), (QList<int>{66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76}));
    for (const CardLine& line : card.lines) EXPECT_FALSE(line.bye);
  }
}

TEST_F(CardJobTest, WhoSitsOutGameFiveHasAByeThere) {
  MakeSingles(7);
  Pair(OddEntrant::Bye);
  int byes = 0;
  for (const Card& card : Make().cards) {
    ASSERT_EQ(GamesOf(card), (QList<int>{1, 2, 3, 4, 5, 6, 7}));
    byes += card.lines[4].bye;
  }
  EXPECT_EQ(byes, 1);
}

TEST_F(CardJobTest, WhoseLastGameIsNineHasByesForTenAndEleven) {
  MakeSingles(10);
  Pair();
  const Card card = Make({}, Games("", "11")).cards[0];
  ASSERT_EQ(card.lines.size(), 11);
  EXPECT_FALSE(card.lines[8].bye);
  EXPECT_TRUE(card.lines[9].bye);
  EXPECT_TRUE(card.lines[10].bye);
}

TEST_F(CardJobTest, OneEntrantPrintsExactlyThatCard) {
  MakeSingles(6);
  Pair();
  CardChoice choice;
  choice.entrant = 4;
  for (const CardStyle style : Styles) {
    const CardJob job = Make(Style(style), choice);
    ASSERT_EQ(job.cards.size(), 1);
    EXPECT_EQ(job.cards[0].number, 4);
  }
}

TEST_F(CardJobTest, NoFaceSelectedPrintsNothing) {
  MakeSingles(4);
  Pair();
  CardChoice choice;
  choice.face = CardFace::None;
  const CardJob job = Make({}, choice);
  EXPECT_EQ(job.refusal.sentence, "");
  EXPECT_FALSE(job.Prints());
  EXPECT_TRUE(Make(Style(CardStyle::Folded), choice).Prints());
}

TEST_F(CardJobTest, OnlyStandardCardsMoveTheSelection) {
  MakeSingles(4);
  Pair();
  CardChoice choice;
  choice.face = CardFace::Front;
  EXPECT_EQ(Make({}, choice).nextFace, CardFace::Back);
  EXPECT_EQ(Make(Style(CardStyle::Folded), choice).nextFace, CardFace::Front);
  EXPECT_EQ(Make(Style(CardStyle::TwoUp), choice).nextFace, CardFace::Front);
  EXPECT_EQ(Make(Style(CardStyle::Folded), choice).face, CardFace::Back);
}

TEST_F(CardJobTest, TwoUpCardsAreConfirmedWhenTheClubWantsWarnings) {
  MakeSingles(4);
  Pair();
  CardSettings settings = Style(CardStyle::TwoUp);
  EXPECT_EQ(Make(settings).question, "");
  settings.confirms = true;
  const CardJob job = Make(settings, Games("2", ""));
  EXPECT_EQ(job.title, "Confirm Round Robin Print");
  EXPECT_EQ(job.question, "Printing Round Robin Cards for Games 2 to 3  Is this correct?");
  settings.style = CardStyle::Folded;
  EXPECT_EQ(Make(settings).question, "");
}

TEST_F(CardJobTest, TheSinglesPacerHasNoHandicapLineInAnyStyle) {
  MakeSingles(3, "P", 80);
  Pair(OddEntrant::Pacer);
  for (const CardStyle style : Styles) {
    const CardJob job = Make(Style(style));
    ASSERT_EQ(job.cards.size(), 4);
    EXPECT_TRUE(job.cards[3].isPacer);
    EXPECT_EQ(job.cards[3].front[0], "PACER");
    EXPECT_FALSE(job.cards[3].handicap.has_value());
    EXPECT_TRUE(job.cards[0].handicap.has_value());
  }
}

TEST_F(CardJobTest, TheDoublesPacerHasAHandicapAndFrontsThatNameThePacers) {
  MakeDoubles(3, "P", 80);
  Pair(OddEntrant::Pacer);
  const CardJob job = Make();
  ASSERT_EQ(job.cards.size(), 4);
  EXPECT_TRUE(job.doubles);
  EXPECT_TRUE(job.cards[3].handicap.has_value());
  EXPECT_EQ(job.cards[3].front, (QStringList{"PACER 1", "PACER 2"}));
  EXPECT_EQ(job.cards[0].front, (QStringList{"Of1", "Of1"}));
}

TEST_F(CardJobTest, AClassWithoutAFixedNumberOfShoesHasNoHandicap) {
  AddClass("P", 80, "S", "A", 0);
  AddPlayers(2);
  Enter(1, 60);
  Enter(2, 30);
  Pair();
  for (const Card& card : Make().cards) EXPECT_FALSE(card.handicap.has_value());
}

TEST_F(CardJobTest, OnlyTwoUpCardsNameThePacerAsOpponent) {
  MakeSingles(3);
  Pair(OddEntrant::Pacer);
  const auto opponents = [](const Card& card) {
    QStringList names;
    for (const CardLine& line : card.lines) names << line.opponent;
    return names;
  };
  EXPECT_TRUE(opponents(Make(Style(CardStyle::TwoUp)).cards[0]).contains("PACER"));
  EXPECT_TRUE(opponents(Make(Style(CardStyle::Folded)).cards[0]).contains(""));
}

TEST_F(CardJobTest, TheWorksheetHasAllGamesOrARefusal) {
  MakeSingles(4);
  CardChoice choice;
  choice.worksheet = true;
  EXPECT_EQ(Make({}, choice).refusal.sentence, "No players to report");
  EXPECT_FALSE(Make({}, choice).Prints());
  Pair(OddEntrant::NotChosen, 4);
  const CardJob job = Make({}, choice);
  EXPECT_EQ(job.name, "Round Robin Worksheet");
  EXPECT_EQ(job.refusal.sentence, "");
  EXPECT_EQ(job.lines.size(), 24);
  EXPECT_TRUE(job.cards.isEmpty());
}

}  // namespace
}  // namespace tavrelin
