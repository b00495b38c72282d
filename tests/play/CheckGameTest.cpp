#include <gtest/gtest.h>

#include "play/CheckGame.h"
#include "play/ClassBench.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

using Typed = RowValues;

Typed With(Typed row, const Typed& changes) {
  row.insert(changes);
  return row;
}

QString FixOf(const RowCheck& check, const QString& field) {
  for (const auto& [name, value] : check.fixes) {
    if (name == field) return value.ToText();
  }
  return QStringLiteral("none");
}

/// The games stored so far, as far as the checks read them.
Recordset StoredGames(const QList<QPair<int, QString>>& games) {
  Recordset rows;
  rows.Append("Game", FieldType::Long);
  rows.Append("Court", FieldType::Text, 3);
  rows.OpenInMemory();
  for (const auto& [game, court] : games) {
    rows.AddNew();
    rows.Set("Game", game);
    rows.Set("Court", court);
    rows.Update();
  }
  return rows;
}

Recordset TeamList() {
  Recordset rows;
  for (const Field& field : DoublesFormat().listFields)
    rows.Append(field.name, field.type, field.size);
  rows.OpenInMemory();
  rows.AddNew();
  rows.Set("TeamID", 7);
  rows.Set("PlayerOneID", "000071");
  rows.Set("PlayerTwoID", "000072");
  rows.Update();
  return rows;
}

class CheckGameTest : public testing::Test {
 protected:
  RowCheck Check(const Typed& row) {
    return CheckGame(row, {rules_, games_, list_, newRow_, checker_, manyShoes_});
  }
  std::string Message(const Typed& changes) {
    return Check(With(row_, changes)).message.toStdString();
  }

  ClassRules rules_{"2601007", "A", "Class A", 0, 40, "P", "S", false};
  Recordset games_ = StoredGames({{1, "  1"}, {1, " 12"}});
  Recordset list_ = TeamList();
  bool newRow_ = false;
  bool checker_ = false;
  std::optional<bool> manyShoes_;
  // 40 shoes: 20 ringers and 10 singles against 8 and 20; the margin is 3 * 12 - 10 = 26.
  Typed row_ = {{"Game", 2},
                {"Court", "  1"},
                {"Shoes", 40},
                {"PlayerOneID", "000001"},
                {"PlayerTwoID", "000002"},
                {"PlayerOnePoints", 40},
                {"PlayerOneRingers", 20},
                {"PlayerOneSinglePoints", 10},
                {"PlayerTwoPoints", 14},
                {"PlayerTwoRingers", 8},
                {"PlayerTwoSinglePoints", 20}};
};

TEST_F(CheckGameTest, AGoodGameIsSavedUnderItsClass) {
  checker_ = true;
  const RowCheck check = Check(row_);
  EXPECT_EQ(check.verdict, RowCheck::Verdict::Save);
  EXPECT_EQ(FixOf(check, "SanctionID"), "2601007");
  EXPECT_EQ(FixOf(check, "ClassID"), "A");
  EXPECT_EQ(check.fixes.size(), 2);
}

TEST_F(CheckGameTest, TwoHundredShoesAskAndOneFewerDoesNotWithOrWithoutTheChecker) {
  for (const bool checker : {false, true}) {
    checker_ = checker;
    const RowCheck asked = Check(With(row_, {{"Shoes", 200}}));
    EXPECT_EQ(asked.verdict, RowCheck::Verdict::Ask);
    EXPECT_EQ(asked.title, "Confirm shoe count");
    EXPECT_EQ(asked.question, "Shoe count is abnormally high. Continue?");
    EXPECT_EQ(Check(With(row_, {{"Shoes", 199}})).verdict, RowCheck::Verdict::Save);
  }
}

TEST_F(CheckGameTest, YesToManyShoesGoesOnAndNoCancelsSilently) {
  manyShoes_ = true;
  EXPECT_EQ(Check(With(row_, {{"Shoes", 200}})).verdict, RowCheck::Verdict::Save);
  EXPECT_EQ(Message({{"Shoes", 200}, {"Court", ""}}), "Invalid court");
  manyShoes_ = false;
  const RowCheck check = Check(With(row_, {{"Shoes", 200}}));
  EXPECT_EQ(check.verdict, RowCheck::Verdict::Cancel);
  EXPECT_EQ(check.message, "");
}

struct Score {
  const char* name;
  int p1, r1, s1, p2, r2, s2, shoes;
  const char* plain;     ///< what the checker says in a class without handicap
  const char* handicap;  ///< and in a handicap class
};

const char* const Invalid = "Score Checker On.  Invalid Score.";
const char* const TooManyShoes = "Score Checker On.  Invalid Score.  Check number of shoes.";
const char* const OneTooHigh = "Invalid Score for player one.  Point total too high";
const char* const TwoTooHigh = "Invalid Score for player two.  Point total too high";

const Score Scores[] = {
    {"fifteen from four ringers and three singles", 15, 4, 3, 0, 0, 0, 20, "", ""},
    {"one point more than four ringers and three singles", 16, 4, 3, 0, 0, 0, 20, OneTooHigh,
     OneTooHigh},
    {"player two one point too high", 0, 0, 0, 16, 4, 3, 20, TwoTooHigh, TwoTooHigh},
    {"the margin of 18 holds no 5 singles", 30, 10, 5, 12, 4, 0, 40, Invalid, Invalid},
    {"the margin of 18 holds equal singles", 30, 10, 0, 12, 4, 0, 40, "", ""},
    {"a tie counts from the second side", 12, 4, 3, 12, 5, 0, 40, "", ""},
    {"a tie that does not add up", 12, 4, 3, 12, 5, 1, 40, Invalid, Invalid},
    {"the same tie from the other side", 12, 5, 1, 12, 4, 3, 40, Invalid, Invalid},
    {"as many as the shoes", 20, 5, 5, 0, 0, 0, 10, "", ""},
    {"more than the shoes of player one", 21, 5, 6, 0, 0, 0, 10, TooManyShoes, ""},
    {"more than the shoes of player two", 0, 0, 0, 21, 5, 6, 10, TooManyShoes, ""},
};

TEST_F(CheckGameTest, TheScoreCheckerHoldsTheRulesOfTheCount) {
  checker_ = true;
  for (const Score& score : Scores) {
    const Typed typed = {{"PlayerOnePoints", score.p1},
                         {"PlayerOneRingers", score.r1},
                         {"PlayerOneSinglePoints", score.s1},
                         {"PlayerTwoPoints", score.p2},
                         {"PlayerTwoRingers", score.r2},
                         {"PlayerTwoSinglePoints", score.s2},
                         {"Shoes", score.shoes}};
    rules_.handicapPct = 0;
    EXPECT_EQ(Message(typed), score.plain) << score.name;
    rules_.handicapPct = 80;
    EXPECT_EQ(Message(typed), score.handicap) << score.name;
  }
}

TEST_F(CheckGameTest, TheScoreCheckerNeedsSinglePoints) {
  checker_ = true;
  EXPECT_EQ(Message({{"PlayerOneSinglePoints", ""}}), Invalid);
  EXPECT_EQ(Message({{"PlayerTwoSinglePoints", "x"}}), Invalid);
  checker_ = false;
  EXPECT_EQ(Message({{"PlayerTwoSinglePoints", Value()}}), "");
  EXPECT_EQ(FixOf(Check(With(row_, {{"PlayerTwoSinglePoints", " "}})), "PlayerTwoSinglePoints"),
            "0");
  EXPECT_EQ(Message({{"PlayerTwoSinglePoints", "x"}}), "Invalid player two single points");
}

TEST_F(CheckGameTest, ChecksRunInTheirOrder) {
  // Everything is wrong at first; each step mends what was found.
  Typed row = {{"Shoes", "x"}, {"PlayerOneSinglePoints", "x"}};
  const struct {
    Typed mend;
    const char* next;
  } steps[] = {
      {{}, Invalid},
      {{{"PlayerOneSinglePoints", 0}, {"PlayerTwoSinglePoints", 0}}, "Invalid Player One."},
      {{{"PlayerOneID", "000001"}, {"PlayerTwoID", "  "}}, "Invalid Player Two."},
      {{{"PlayerTwoID", "000002"}, {"Game", ""}}, "Invalid game number"},
      {{{"Game", 3}, {"Court", "   "}}, "Invalid court"},
      {{{"Court", "4"}}, "Invalid shoes"},
      {{{"Shoes", 40}, {"PlayerOnePoints", ""}}, "Invalid player one points"},
      {{{"PlayerOnePoints", 0}, {"PlayerOneRingers", "x"}}, "Invalid player one ringers"},
      {{{"PlayerOneRingers", 0}, {"PlayerTwoPoints", "x"}}, "Invalid player two points"},
      {{{"PlayerTwoPoints", 0}}, "Invalid player two ringers"},
      {{{"PlayerTwoRingers", 0}}, ""}};
  checker_ = true;
  for (const auto& step : steps) {
    row.insert(step.mend);
    EXPECT_EQ(Check(row).message.toStdString(), step.next);
  }
}

TEST_F(CheckGameTest, WhateverIsWrongTheOperatorKeepsTheRow) {
  for (const char* field : {"PlayerOneID", "PlayerTwoID", "Game", "Court", "Shoes"}) {
    for (const bool newRow : {false, true}) {
      newRow_ = newRow;
      const RowCheck check = Check(With(row_, {{field, " "}}));
      const bool zero = newRow && field == std::string("Shoes");
      EXPECT_EQ(check.verdict, zero ? RowCheck::Verdict::Save : RowCheck::Verdict::Cancel) << field;
    }
  }
}

TEST_F(CheckGameTest, AFigureBeyondAnyScoreIsRefusedInWords) {
  const QPair<const char*, const char*> cases[] = {
      {"Game", "Invalid game number"},
      {"Shoes", "Invalid shoes"},
      {"PlayerOnePoints", "Invalid player one points"},
      {"PlayerOneRingers", "Invalid player one ringers"},
      {"PlayerTwoPoints", "Invalid player two points"},
      {"PlayerTwoRingers", "Invalid player two ringers"},
      {"PlayerOneSinglePoints", "Invalid player one single points"},
      {"PlayerTwoSinglePoints", "Invalid player two single points"}};
  for (const bool newRow : {false, true}) {
    newRow_ = newRow;
    for (const char* figure : {"1e9", "-1e9", "1e999", "32768"}) {
      for (const auto& [field, message] : cases) {
        EXPECT_EQ(Message({{field, figure}}), message) << field << ' ' << figure;
      }
    }
  }
  checker_ = true;
  EXPECT_EQ(Message({{"PlayerTwoSinglePoints", "1e999"}}), Invalid);
}

TEST_F(CheckGameTest, ShoesAreCountedAsAWholeNumberHoweverTheyAreWritten) {
  const QPair<const char*, bool> cases[] = {{"199.5", true}, {"199.4", false}, {"2e2", true},
                                            {"$250", true},  {"-250", false},  {"", false}};
  for (const auto& [shoes, asks] : cases) {
    EXPECT_EQ(Check(With(row_, {{"Shoes", shoes}})).verdict == RowCheck::Verdict::Ask, asks)
        << shoes;
  }
}

TEST_F(CheckGameTest, FifteenPointsFromFourRingersAndThreeSinglePointsAreNotTooHigh) {
  checker_ = true;
  const Typed loser = {
      {"PlayerTwoPoints", 0}, {"PlayerTwoRingers", 0}, {"PlayerTwoSinglePoints", 0}};
  const Typed typed =
      With(loser, {{"PlayerOnePoints", 15}, {"PlayerOneRingers", 4}, {"PlayerOneSinglePoints", 3}});
  EXPECT_EQ(Message(typed), "");
  EXPECT_EQ(Message(With(typed, {{"PlayerOnePoints", 16}})), OneTooHigh);
}

TEST_F(CheckGameTest, AMarginThatRingersAndSinglesDoNotGiveFailsTheCancellationTest) {
  checker_ = true;
  EXPECT_EQ(Message({{"PlayerOnePoints", 30},
                     {"PlayerOneRingers", 10},
                     {"PlayerOneSinglePoints", 5},
                     {"PlayerTwoPoints", 12},
                     {"PlayerTwoRingers", 4},
                     {"PlayerTwoSinglePoints", 0}}),
            Invalid);
}

TEST_F(CheckGameTest, ATieIsTestedFromTheSecondPlayersSideWithTheSameResult) {
  checker_ = true;
  for (const int singles : {0, 1}) {  // with 0 it adds up, with 1 it does not
    const Typed one = {{"PlayerOnePoints", 12},      {"PlayerOneRingers", 4},
                       {"PlayerOneSinglePoints", 3}, {"PlayerTwoPoints", 12},
                       {"PlayerTwoRingers", 5},      {"PlayerTwoSinglePoints", singles}};
    const Typed two = {
        {"PlayerOnePoints", 12}, {"PlayerOneRingers", 5}, {"PlayerOneSinglePoints", singles},
        {"PlayerTwoPoints", 12}, {"PlayerTwoRingers", 4}, {"PlayerTwoSinglePoints", 3}};
    EXPECT_EQ(Message(one), singles == 0 ? "" : Invalid);
    EXPECT_EQ(Message(two), Message(one));
  }
}

TEST_F(CheckGameTest, AHandicapClassIsSparedTheShoesButNotTheOtherTests) {
  checker_ = true;
  rules_.handicapPct = 80;
  EXPECT_EQ(Message({{"Shoes", 10}}), "");
  EXPECT_EQ(Message({{"PlayerOnePoints", 71}}), OneTooHigh);
  EXPECT_EQ(Message({{"PlayerOnePoints", 41}}), Invalid);
  rules_.handicapPct = 0;
  EXPECT_EQ(Message({{"Shoes", 10}}), TooManyShoes);
}

TEST_F(CheckGameTest, ANewGameOnAUsedCourtIsRefused) {
  newRow_ = true;
  const std::string taken = "Court already in use for this game";
  EXPECT_EQ(Message({{"Game", 1}}), taken);
  EXPECT_EQ(Message({{"Game", "1"}, {"Court", "12"}}), taken);
  EXPECT_EQ(Message({{"Game", 1}, {"Court", "2"}}), "");
  EXPECT_EQ(Message({{"Game", 2}}), "");
  games_ = StoredGames({});
  EXPECT_EQ(Message({{"Game", 1}}), "");
}

TEST_F(CheckGameTest, EditingAGameMayKeepItsCourt) {
  EXPECT_EQ(Message({{"Game", 1}}), "");
}

TEST_F(CheckGameTest, ANewRowTakesZeroForWhatIsEmptyOrNoNumber) {
  newRow_ = true;
  Typed row = row_;
  for (const char* field : {"Shoes", "PlayerOnePoints", "PlayerOneRingers", "PlayerTwoPoints"}) {
    row[field] = "";
  }
  row["PlayerTwoRingers"] = "x";
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, RowCheck::Verdict::Save);
  for (const char* field :
       {"Shoes", "PlayerOnePoints", "PlayerOneRingers", "PlayerTwoPoints", "PlayerTwoRingers"}) {
    EXPECT_EQ(FixOf(check, field), "0") << field;
  }
}

class StoredGameTest : public ClassBench {};

TEST_F(StoredGameTest, ACourtIsUsedOnlyWhereTheSameClassPlaysTheSameGameOnIt) {
  MakeSingles(4);
  AddClass("P", 0, "S", "B");
  const RowValues row = {{"Game", 1},
                         {"Court", "  1"},
                         {"PlayerOneID", Player(1)},
                         {"Shoes", 40},
                         {"PlayerTwoID", Player(2)}};
  const auto message = [&] {
    const LoadedClass loaded = LoadClass(connection_, Rules());
    return CheckGame(row, {loaded.rules, loaded.games, loaded.list, true}).message;
  };
  Store({.one = 3, .two = 4, .game = 1}, "B");
  Store({.one = 3, .two = 4, .game = 2}, "A");
  EXPECT_EQ(message(), "");
  Store({.one = 3, .two = 4, .game = 1}, "A");
  EXPECT_EQ(message(), "Court already in use for this game");
}

class CheckTeamGameTest : public CheckGameTest {
 protected:
  CheckTeamGameTest() {
    rules_.playFormat = "D";
    row_ = {{"Game", 2},
            {"Court", "3"},
            {"Shoes", 250},
            {"TeamOneID", 7},
            {"TeamTwoID", 0},
            {"TeamOnePoints", 30},
            {"TeamOnePlayerOneRingers", 10},
            {"TeamOnePlayerTwoRingers", 11},
            {"TeamTwoPoints", 0},
            {"TeamTwoPlayerOneRingers", 0},
            {"TeamTwoPlayerTwoRingers", 0}};
  }
};

TEST_F(CheckTeamGameTest, ChoosingATeamFillsInItsPlayers) {
  checker_ = true;  // doubles has neither the checker nor the question about shoes
  const RowCheck check = Check(row_);
  EXPECT_EQ(check.verdict, RowCheck::Verdict::Save);
  EXPECT_EQ(FixOf(check, "TeamOnePlayerOneID"), "000071");
  EXPECT_EQ(FixOf(check, "TeamOnePlayerTwoID"), "000072");
  EXPECT_EQ(FixOf(check, "TeamTwoPlayerOneID"), "PPPPP1");
  EXPECT_EQ(FixOf(check, "TeamTwoPlayerTwoID"), "PPPPP2");
}

TEST_F(CheckTeamGameTest, ATeamThatIsNotEnteredCannotBeChosen) {
  newRow_ = true;
  EXPECT_EQ(Message({{"TeamOneID", 8}}), "Team not found in entries ");
  EXPECT_EQ(Message({{"TeamTwoID", 8}}), "Team not found in entries ");
  EXPECT_EQ(Message({{"TeamTwoID", 8}, {"TeamOneID", ""}}), "Invalid Team One.");
}

TEST_F(CheckTeamGameTest, APacerTeamsEmptyFiguresNeedNotBeTyped) {
  for (const char* field : {"TeamTwoPoints", "TeamTwoPlayerOneRingers", "TeamTwoPlayerTwoRingers"})
    EXPECT_EQ(FixOf(Check(With(row_, {{field, {}}})), field), "0");
}

TEST_F(CheckTeamGameTest, EachFigureHasItsMessage) {
  row_["TeamTwoID"] = 7;  // a pacer's figures may stay empty
  const QPair<const char*, const char*> cases[] = {
      {"TeamTwoID", "Invalid Team Two."},
      {"Game", "Invalid game number"},
      {"Court", "Invalid court"},
      {"Shoes", "Invalid shoes"},
      {"TeamOnePoints", "Invalid team one points"},
      {"TeamOnePlayerOneRingers", "Invalid ringers"},
      {"TeamOnePlayerTwoRingers", "Invalid ringers"},
      {"TeamTwoPoints", "Invalid team two points"},
      {"TeamTwoPlayerOneRingers", "Invalid ringers"},
      {"TeamTwoPlayerTwoRingers", "Invalid ringers"},
  };
  for (const auto& [field, message] : cases) EXPECT_EQ(Message({{field, ""}}), message) << field;
}

TEST_F(CheckTeamGameTest, ANewRowTakesZeroForWhatIsEmptyButNotForASlip) {
  newRow_ = true;
  EXPECT_EQ(FixOf(Check(With(row_, {{"TeamOnePoints", ""}})), "TeamOnePoints"), "0");
  EXPECT_EQ(Message({{"TeamOnePoints", "x"}}), "Invalid team one points");
  EXPECT_EQ(FixOf(Check(With(row_, {{"Shoes", "x"}})), "Shoes"), "0");
}

TEST_F(CheckGameTest, ThePacersEmptyFiguresNeedNotBeTyped) {
  const Typed pacer = {
      {"PlayerOneID", "000001"},    {"PlayerOnePoints", 30},       {"PlayerOneRingers", 10},
      {"PlayerOneSinglePoints", 0}, {"PlayerTwoID", "PPPPPP"},     {"PlayerTwoPoints", {}},
      {"PlayerTwoRingers", {}},     {"PlayerTwoSinglePoints", {}}, {"Shoes", 40}};
  for (const bool checker : {false, true}) {
    checker_ = checker;
    const RowCheck check = Check(With(row_, pacer));
    EXPECT_EQ(check.verdict, RowCheck::Verdict::Save) << check.message.toStdString();
    EXPECT_EQ(FixOf(check, "PlayerTwoPoints"), "0");
    EXPECT_EQ(FixOf(check, "PlayerTwoRingers"), "0");
  }
  EXPECT_EQ(Message(With(pacer, {{"PlayerOnePoints", {}}})), "Score Checker On.  Invalid Score.");
  checker_ = false;
  EXPECT_EQ(Message(With(pacer, {{"PlayerOnePoints", {}}})), "Invalid player one points");
}

}  // namespace
}  // namespace tavrelin
