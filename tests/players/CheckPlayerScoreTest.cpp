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
      {"PlayerID", Value()}, {"SanctionID", " "}, {"Shoes", Value()}, {"Shoes", "many"},
      {"Shoes", 0},          {"Ringers", ""},     {"Ringers", "x"}};
  for (const auto& [field, value] : cases) {
    RowValues row = GoodRow();
    row[field] = value;
    const RowCheck check = Check(row);
    EXPECT_EQ(check.verdict, Verdict::Discard) << field;
    EXPECT_EQ(check.message, "") << field;
  }
}

TEST(CheckPlayerScore, FiguresThatAreNoneAreRefusedInOrder) {
  struct {
    const char* field;
    Value value;
    const char* message;
  } const cases[] = {{"Wins", "x", "Invalid Wins."},       {"Wins", 5.3, "Invalid Wins."},
                     {"Wins", Value(), "Invalid Wins."},   {"Losses", "1.7", "Invalid Losses."},
                     {"Losses", "", "Invalid Losses."},    {"Place", "first", "Invalid Place."},
                     {"HiGame", "?", "Invalid High Game."}};
  for (const auto& c : cases) {
    RowValues row = GoodRow();
    row[c.field] = c.value;
    const RowCheck check = Check(row);
    EXPECT_EQ(check.verdict, Verdict::Cancel) << c.field;
    EXPECT_EQ(check.message, c.message);
  }
}

TEST(CheckPlayerScore, APlayerHasOneRowATournament) {
  RowValues row = GoodRow();
  row["SanctionID"] = "MN24X99";
  EXPECT_EQ(Check(row).message, "Duplicate sanction number for given player");
  EXPECT_EQ(Check(row, false).verdict, Verdict::Save) << "a stored row is no duplicate of itself";
}

}  // namespace
}  // namespace tavrelin
