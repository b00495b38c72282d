#include "players/CheckPlayerScore.h"

#include <gtest/gtest.h>

#include "data/Recordset.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

RowValues GoodRow() {
  return {{"PlayerID", "OLSKAR"}, {"SanctionID", "MN25A01"}, {"Shoes", 200}, {"Ringers", 91},
          {"Wins", 5.5},          {"Losses", 1.5},           {"Place", 2},   {"HiGame", 60.0}};
}

RowValues RowWith(const char* field, const Value& value) {
  RowValues row = GoodRow();
  row[field] = value;
  return row;
}

/// The history of Karen Olson: one tournament.
RowCheck Check(const RowValues& row, bool newRow = true) {
  Recordset scores;
  scores.Append("PlayerID", FieldType::Text, 6);
  scores.Append("SanctionID", FieldType::Text, 7);
  scores.OpenInMemory();
  scores.AddNew();
  scores.Set("PlayerID", "OLSKAR");
  scores.Set("SanctionID", "MN24X99");
  scores.Update();
  return CheckPlayerScore(row, newRow, scores);
}

TEST(CheckPlayerScore, AGoodRowShowsItsPercent) {
  const RowCheck check = Check(GoodRow());
  EXPECT_EQ(check.verdict, Verdict::Save);
  ASSERT_EQ(check.fixes.size(), 1);
  EXPECT_EQ(check.fixes[0].first, "Pct");
  EXPECT_DOUBLE_EQ(check.fixes[0].second.ToNumber(), 45.5);
}

TEST(CheckPlayerScore, RowsThatLackAnEssentialAreDroppedSilently) {
  const QPair<const char*, Value> cases[] = {
      {"PlayerID", Value()}, {"PlayerID", "  "}, {"SanctionID", Value()}, {"SanctionID", " "},
      {"Shoes", Value()},    {"Shoes", ""},      {"Shoes", "many"},       {"Shoes", 0},
      {"Shoes", "0.0"},      {"Shoes", 0.4},     {"Ringers", Value()},    {"Ringers", ""},
      {"Ringers", "x"}};
  for (const auto& [field, value] : cases) {
    for (const bool newRow : {true, false}) {
      const RowCheck check = Check(RowWith(field, value), newRow);
      EXPECT_EQ(check.verdict, Verdict::Discard) << field;
      EXPECT_EQ(check.message, "") << field;
      EXPECT_TRUE(check.fixes.isEmpty()) << field;
    }
  }
}

TEST(CheckPlayerScore, FiguresThatAreNoneAreRefused) {
  struct {
    const char* field;
    Value value;
    const char* message;
  } const cases[] = {{"Wins", "x", "Invalid Wins."},
                     {"Wins", 5.3, "Invalid Wins."},
                     {"Wins", Value(), "Invalid Wins."},
                     {"Wins", "4.9", "Invalid Wins."},
                     {"Losses", 1.7, "Invalid Losses."},
                     {"Losses", "", "Invalid Losses."},
                     {"Losses", ".1", "Invalid Losses."},
                     {"Place", "first", "Invalid Place."},
                     {"Place", Value(), "Invalid Place."},
                     {"HiGame", "?", "Invalid High Game."},
                     {"HiGame", "", "Invalid High Game."},
                     {"Wins", "1e999", "Invalid Wins."},
                     {"Place", "99999999999", "Invalid Place."}};
  for (const auto& c : cases) {
    const RowCheck check = Check(RowWith(c.field, c.value));
    EXPECT_EQ(check.verdict, Verdict::Cancel) << c.field;
    EXPECT_EQ(check.message, c.message);
    EXPECT_TRUE(check.fixes.isEmpty()) << c.field;
  }
}

TEST(CheckPlayerScore, WinsAndLossesCountInHalves) {
  for (const char* field : {"Wins", "Losses"}) {
    for (const Value& value : {Value(0), Value(7), Value(0.5), Value("10.5"), Value("12.0"),
                               Value("4000.5")}) {  // its tenfold is beyond a small integer
      EXPECT_EQ(Check(RowWith(field, value)).verdict, Verdict::Save) << field;
    }
  }
}

TEST(CheckPlayerScore, TheFirstFailureInOrderIsTold) {
  RowValues row = GoodRow();
  row["Wins"] = row["Losses"] = row["Place"] = row["HiGame"] = "x";
  row["SanctionID"] = "MN24X99";
  EXPECT_EQ(Check(row).message, "Invalid Wins.");
  row["Wins"] = 1;
  EXPECT_EQ(Check(row).message, "Invalid Losses.");
  row["Losses"] = 1;
  EXPECT_EQ(Check(row).message, "Invalid Place.");
  row["Place"] = 1;
  EXPECT_EQ(Check(row).message, "Invalid High Game.");
  row["HiGame"] = 50;
  EXPECT_EQ(Check(row).message, "Duplicate sanction number for given player");
  row["Shoes"] = 0;
  row["Wins"] = "x";
  EXPECT_EQ(Check(row).verdict, Verdict::Discard);
}

TEST(CheckPlayerScore, APlayerHasOneRowATournament) {
  const RowValues row = RowWith("SanctionID", "mn24x99");
  EXPECT_EQ(Check(row).verdict, Verdict::Cancel);
  EXPECT_EQ(Check(row).message, "Duplicate sanction number for given player");
  EXPECT_EQ(Check(row, false).verdict, Verdict::Save) << "a stored row is no duplicate of itself";
}

TEST(CheckPlayerScore, AnotherPlayersRowIsNoDuplicate) {
  RowValues row = RowWith("SanctionID", "MN24X99");
  row["PlayerID"] = "O'BRAL";
  EXPECT_EQ(Check(row).verdict, Verdict::Save);
}

TEST(CheckPlayerScore, AFirstTournamentHasNothingToBeADuplicateOf) {
  Recordset none;
  none.Append("PlayerID", FieldType::Text, 6);
  none.Append("SanctionID", FieldType::Text, 7);
  none.OpenInMemory();
  EXPECT_EQ(CheckPlayerScore(GoodRow(), true, none).verdict, Verdict::Save);
}

TEST(RingerPercent, IsRingersOverShoesAndNothingWithoutShoes) {
  EXPECT_DOUBLE_EQ(RingerPercent(91, 200).ToNumber(), 45.5);
  EXPECT_DOUBLE_EQ(RingerPercent("30", "40").ToNumber(), 75);
  EXPECT_EQ(RingerPercent(0, 50), Value(0.0));
  for (const Value& none : {Value(), Value(0), Value("x"), Value("")}) {
    EXPECT_EQ(RingerPercent(10, none), Value());
  }
  EXPECT_EQ(RingerPercent("", 50), Value());
}

}  // namespace
}  // namespace tavrelin
