#include "tournament/TournamentChecks.h"

#include <gtest/gtest.h>

#include "data/Recordset.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

Recordset Keys(const QString& field, const QStringList& keys) {
  Recordset rows;
  rows.Append(field, FieldType::Text, 7);
  rows.OpenInMemory();
  for (const QString& key : keys) {
    rows.AddNew();
    rows.Set(field, key);
    rows.Update();
  }
  return rows;
}

RowValues Tournament(const QString& sanction, const Value& date = "6/14/2025") {
  return {{"SanctionID", sanction}, {"Name", "Spring Open"}, {"Date", date}};
}

RowCheck CheckNewTournament(const RowValues& row, const QStringList& stored = {}) {
  Recordset others = Keys("SanctionID", stored);
  return CheckTournament(row, true, others);
}

RowValues Class(const QString& field = {}, const Value& value = {}) {
  RowValues row = {{"ClassID", "A"},     {"Name", "Men"},
                   {"HandicapPct", 0},   {"Shoes", 40},
                   {"RankMethod", "P"},  {"PlayFormat", "S"},
                   {"PlacesPaidOut", 3}, {"DateTime", "6/14/2025 8:00 AM"}};
  if (!field.isEmpty()) row[field] = value;
  return row;
}

RowCheck CheckNewClass(const RowValues& row, const QStringList& stored = {}) {
  Recordset others = Keys("ClassID", stored);
  return CheckTournamentClass(row, true, others);
}

TEST(TournamentChecks, SixOrEightCharactersAreNoSanctionNumberAndBlanksBehindSevenDoNotCount) {
  EXPECT_EQ(CheckNewTournament(Tournament("MN25A0")).message, "Invalid sanction number");
  EXPECT_EQ(CheckNewTournament(Tournament("MN25A012")).message, "Invalid sanction number");
  const RowCheck padded = CheckNewTournament(Tournament("MN25A01  "));
  EXPECT_EQ(padded.verdict, Verdict::Save);
  ASSERT_EQ(padded.fixes.size(), 1);
  EXPECT_EQ(padded.fixes[0].second, Value("MN25A01"));
}

TEST(TournamentChecks, ANewTournamentMayNotTakeAStoredNumberButAStoredOneKeepsItsOwn) {
  Recordset others = Keys("SanctionID", {"MN25A01", "WI25B02"});
  EXPECT_EQ(CheckTournament(Tournament("wi25b02"), true, others).message,
            "Duplicate sanction number");
  EXPECT_EQ(CheckTournament(Tournament("WI25B02"), false, others).verdict, Verdict::Save);
}

TEST(TournamentChecks, ARowWithoutItsKeyIsDroppedWithoutAWordAtBothLevels) {
  for (const char* blank : {"", "   "}) {
    const RowCheck tournament = CheckNewTournament(Tournament(blank, Value()));
    EXPECT_EQ(tournament.verdict, Verdict::Discard);
    EXPECT_EQ(tournament.message, "");
    const RowCheck tournamentClass = CheckNewClass(Class("ClassID", blank));
    EXPECT_EQ(tournamentClass.verdict, Verdict::Discard);
    EXPECT_EQ(tournamentClass.message, "");
  }
}

TEST(TournamentChecks, ATournamentNeedsADate) {
  for (const Value& bad : {Value(), Value(""), Value("soon"), Value("2/30/2025")})
    EXPECT_EQ(CheckNewTournament(Tournament("MN25A01", bad)).message, "Invalid tournament date");
}

TEST(TournamentChecks, ClassRowsAreRefusedInOrder) {
  struct Case {
    const char* field;
    Value value;
    const char* message;
  };
  const Case cases[] = {
      {"DateTime", Value(), "Invalid date or time"},
      {"DateTime", "noon-ish", "Invalid date or time"},
      {"HandicapPct", "eighty", "Invalid Handicap"},
      {"Shoes", "", "Invalid Shoes per game"},
      {"Shoes", "x", "Invalid Shoes per game"},
      {"RankMethod", " ", "Invalid rank method"},
      {"PlayFormat", Value(), "Invalid play format"},
      {"PlacesPaidOut", "",
       "Invalid NoPA.  NoPA is the number of players that will be awarded in the class"},
  };
  for (const Case& c : cases) {
    const RowCheck check = CheckNewClass(Class(c.field, c.value));
    EXPECT_EQ(check.verdict, Verdict::Cancel) << c.field;
    EXPECT_EQ(check.message, c.message);
  }
  RowValues all = Class("DateTime", Value());
  all["Shoes"] = "x";
  EXPECT_EQ(CheckNewClass(all).message, "Invalid date or time");
}

TEST(TournamentChecks, ABlankDateOfAClassPassesANullOneDoesNot) {
  EXPECT_EQ(CheckNewClass(Class("DateTime", " ")).verdict, Verdict::Save);
  EXPECT_EQ(CheckNewClass(Class("DateTime", Value())).verdict, Verdict::Cancel);
}

TEST(TournamentChecks, RingerPercentBreaksNoTiesInAHandicapClass) {
  RowValues row = Class("RankMethod", "R");
  row["HandicapPct"] = 80;
  EXPECT_EQ(CheckNewClass(row).message,
            "QLTA does not allow Ringer Percent Tie-breaker for Handicap Class");
  row["HandicapPct"] = 0;
  EXPECT_EQ(CheckNewClass(row).verdict, Verdict::Save);
}

TEST(TournamentChecks, AnEmptyHandicapIsStoredAsZero) {
  for (const Value& empty : {Value(), Value("")}) {
    RowValues row = Class("RankMethod", "R");
    row["HandicapPct"] = empty;
    const RowCheck check = CheckNewClass(row);
    EXPECT_EQ(check.verdict, Verdict::Save);
    ASSERT_EQ(check.fixes.size(), 1);
    EXPECT_EQ(check.fixes[0].first, "HandicapPct");
    EXPECT_EQ(check.fixes[0].second, Value(0));
  }
}

TEST(TournamentChecks, AClassIsUniqueWithinItsTournamentOnTheNewRowOnly) {
  EXPECT_EQ(CheckNewClass(Class(), {"B", "a"}).message, "Duplicate Class ID");
  EXPECT_EQ(CheckNewClass(Class(), {"B"}).verdict, Verdict::Save);
  Recordset others = Keys("ClassID", {"A"});
  EXPECT_EQ(CheckTournamentClass(Class(), false, others).verdict, Verdict::Save);
}

TEST(TournamentChecks, AClassStartsAtEightUnlessToldOtherwise) {
  EXPECT_EQ(DefaultClassStart(QDate(2025, 6, 14).startOfDay()).toString("yyyy-MM-dd hh:mm"),
            "2025-06-14 08:00");
}

}  // namespace
}  // namespace tavrelin
