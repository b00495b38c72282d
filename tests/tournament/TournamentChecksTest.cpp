#include "tournament/TournamentChecks.h"

#include <gtest/gtest.h>

#include <ctime>

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

TEST(TournamentChecks, AStoredNumberIsMendedButNotIntoAnotherTournaments) {
  Recordset others = Keys("SanctionID", {"MN25A01", "WI25B02"});
  const auto message = [&](const char* number) {
    return CheckTournament(Tournament(number), false, others, "MN25A01").message;
  };
  EXPECT_EQ(message("WI25B02"), "Duplicate sanction number");
  EXPECT_EQ(message("MN25A02"), "");
  EXPECT_EQ(message("mn25a01"), "");
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

TEST(TournamentChecks, ATournamentWithoutADateIsToldAndUndone) {
  const RowCheck check = CheckNewTournament(Tournament("MN25A01", Value()));
  EXPECT_EQ(check.message, "Invalid tournament date");
  EXPECT_EQ(check.verdict, Verdict::Undo);
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

TEST(TournamentChecks, ABlankBesideTheLetterOfANewClassIsNotStored) {
  const RowCheck check = CheckNewClass(Class("ClassID", " A"));
  ASSERT_EQ(check.fixes.size(), 1);
  EXPECT_EQ(check.fixes[0].first, "ClassID");
  EXPECT_EQ(check.fixes[0].second, Value("A"));
  Recordset others = Keys("ClassID", {});
  EXPECT_TRUE(CheckTournamentClass(Class("ClassID", " A"), false, others).fixes.isEmpty());
}

TEST(TournamentChecks, AnyNumericTextWillDoForShoesPlacesAndHandicap) {
  for (const char* field : {"Shoes", "PlacesPaidOut", "HandicapPct"})
    for (const char* number : {"-3", "40.5", "1e3", " 7 "})
      EXPECT_EQ(CheckNewClass(Class(field, number)).verdict, Verdict::Save) << field << number;
}

TEST(TournamentChecks, NameChampionshipAndReportAreNotChecked) {
  for (const char* field : {"Name", "ChampionshipClass", "Report"})
    EXPECT_EQ(CheckNewClass(Class(field, Value())).verdict, Verdict::Save) << field;
}

/// The local time of a place that puts its clocks forward on the second Sunday of March, back on
/// the first of November.
struct ChicagoTime {
  ChicagoTime() { Use("CST6CDT,M3.2.0,M11.1.0"); }
  ~ChicagoTime() { Use("UTC"); }
  static void Use(const char* zone) {
    qputenv("TZ", zone);
    tzset();
  }
};

TEST(TournamentChecks, AClassStartsAtEightByTheWallOnTheDaysTheClockIsChanged) {
  const ChicagoTime chicago;
  for (const QDate day : {QDate(2025, 3, 9), QDate(2025, 11, 2)})
    EXPECT_EQ(DefaultClassStart(QDateTime(day, QTime(0, 0))).toString("yyyy-MM-dd hh:mm"),
              day.toString("yyyy-MM-dd") + " 08:00");
}

TEST(TournamentChecks, AClassOfAnEveningStartsEightHoursAfterIt) {
  EXPECT_EQ(DefaultClassStart({QDate(2025, 6, 14), QTime(18, 30)}).toString("yyyy-MM-dd hh:mm"),
            "2025-06-15 02:30");
}

TEST(TournamentChecks, AClassStartsAtEightUnlessToldOtherwise) {
  EXPECT_EQ(DefaultClassStart(QDate(2025, 6, 14).startOfDay()).toString("yyyy-MM-dd hh:mm"),
            "2025-06-14 08:00");
}

}  // namespace
}  // namespace tavrelin
