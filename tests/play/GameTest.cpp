#include "play/Game.h"

#include <gtest/gtest.h>

#include "play/Pairing.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

using enum Outcome;

Game GameOf(const QString& one, int onePoints, const QString& two, int twoPoints,
            bool oneForfeit = false, bool twoForfeit = false) {
  return {1,
          "  1",
          40,
          true,
          {GameSide{one, 1, onePoints, oneForfeit, {one}, {0}},
           GameSide{two, 2, twoPoints, twoForfeit, {two}, {0}}}};
}

struct IconCase {
  const char* name;
  Game game;
  Outcome one;
  Outcome two;
};

const IconCase SinglesIcons[] = {
    {"more points", GameOf("000001", 30, "000002", 12), Win, Loss},
    {"fewer points", GameOf("000001", 12, "000002", 30), Loss, Win},
    {"equal points", GameOf("000001", 20, "000002", 20), Tie, Tie},
    {"the pacer loses with more points", GameOf("000001", 3, "PPPPPP", 30), Win, Loss},
    {"the pacer as player one", GameOf("PPPPPP", 30, "000002", 3), Loss, Win},
    {"a forfeit loses with more points", GameOf("000001", 30, "000002", 3, true), Loss, Win},
    {"a forfeit of player two", GameOf("000001", 3, "000002", 30, false, true), Win, Loss},
    {"both forfeit", GameOf("000001", 30, "000002", 3, true, true), Loss, Loss},
    {"a forfeit against the pacer", GameOf("000001", 30, "PPPPPP", 3, true), Loss, Loss},
};

TEST(GameIcon, ShowsWinLossOrTieOfAnApprovedGame) {
  for (const IconCase& c : SinglesIcons) {
    EXPECT_EQ(GameIcon(c.game, 0, SinglesFormat()), c.one) << c.name;
    EXPECT_EQ(GameIcon(c.game, 1, SinglesFormat()), c.two) << c.name;
  }
}

TEST(GameIcon, ShowsNothingUntilTheGameIsApproved) {
  for (IconCase c : SinglesIcons) {
    c.game.approved = false;
    EXPECT_EQ(GameIcon(c.game, 0, SinglesFormat()), None) << c.name;
    EXPECT_EQ(GameIcon(c.game, 1, SinglesFormat()), None) << c.name;
  }
}

TEST(GameIcon, AnApprovedGameAgainstThePacerShowsWinAgainstLossEvenWithThePacersPointsHigher) {
  const Game game = GameOf("000001", 3, "PPPPPP", 30);
  EXPECT_EQ(GameIcon(game, 0, SinglesFormat()), Win);
  EXPECT_EQ(GameIcon(game, 1, SinglesFormat()), Loss);
}

TEST(GameIcon, BothForfeitsOnOneGameShowTwoLosses) {
  const Game game = GameOf("000001", 30, "000002", 3, true, true);
  EXPECT_EQ(GameIcon(game, 0, SinglesFormat()), Loss);
  EXPECT_EQ(GameIcon(game, 1, SinglesFormat()), Loss);
}

TEST(GameIcon, TeamZeroLosesToAnyTeam) {
  const Game game = GameOf("0", 30, "4", 3);
  EXPECT_EQ(GameIcon(game, 0, DoublesFormat()), Loss);
  EXPECT_EQ(GameIcon(game, 1, DoublesFormat()), Win);
  EXPECT_EQ(GameIcon(GameOf("3", 9, "4", 9), 1, DoublesFormat()), Tie);
}

TEST(Court, IsTrimmedAndStandsRightInThreeCharacters) {
  const QPair<const char*, const char*> cases[] = {
      {"1", "  1"},     {" 12 ", " 12"}, {"12  ", " 12"},  {"N10", "N10"},
      {"North", "Nor"}, {"", "   "},     {"A 1 2", "A 1"}, {"1  2", "  1"}};
  for (const auto& [typed, stored] : cases) {
    EXPECT_EQ(RightJustifyCourt(typed).toStdString(), stored) << typed;
  }
}

TEST(Court, ANameOfMoreThanThreeCharactersKeepsItsFirstThree) {
  EXPECT_EQ(RightJustifyCourt("1234"), "123");
  EXPECT_EQ(RightJustifyCourt("Left"), "Lef");
}

TEST(ByeCourts, EveryCourtButTheLastMustHaveAName) {
  const Refusal refusal = CheckByeCourts({"1", " ", "3"});
  EXPECT_EQ(refusal.sentence, "Invalid court");
  EXPECT_EQ(refusal.about, "Courts");
  EXPECT_FALSE(CheckByeCourts({"1", "2", ""}));
}

TEST(ByeCourts, TheLastCourtIsBetterBlankExceptForThreeToFiveCourts) {
  for (int courts = 2; courts <= 10; ++courts) {
    const QStringList named(courts, "7");
    const bool advised = courts < 3 || courts > 5;
    EXPECT_EQ(ByeCourtAdvice(named), advised ? "Blank out last court to optimize court use" : "")
        << courts;
    EXPECT_FALSE(CheckByeCourts(named)) << courts;
  }
  EXPECT_EQ(ByeCourtAdvice({"1", ""}), "");
}

TEST(Rounds, ATextThatAsksForNoneMeansOne) {
  const QPair<const char*, int> cases[] = {{"", 1},    {"0", 1}, {"x", 1},
                                           {"1e9", 1}, {"1", 1}, {"4", 4}};
  for (const auto& [text, rounds] : cases) EXPECT_EQ(RoundsOf(text), rounds) << text;
}

QList<Game> Approvals(const QString& marks) {
  QList<Game> games;
  for (const QChar mark : marks) {
    games << Game{};
    games.last().approved = mark == u'x';
  }
  return games;
}

TEST(MissingResults, AnOpenGameBeforeAnApprovedOneIsAGap) {
  const QPair<const char*, bool> cases[] = {{"xox", true},   {"ox", true},   {"xo", false},
                                            {"xxoo", false}, {"ooo", false}, {"", false}};
  for (const auto& [marks, missing] : cases)
    EXPECT_EQ(ResultsMissing(Approvals(marks)), missing) << marks;
}

}  // namespace
}  // namespace tavrelin
