#include "leagues/LeagueChecks.h"

#include "leagues/LeagueBench.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

Value FixOf(const RowCheck& check, const QString& field) {
  for (const auto& [fixed, value] : check.fixes) {
    if (fixed == field) return value;
  }
  return "not fixed";
}

class LeagueChecksTest : public LeagueBench {
 protected:
  static RowValues Row(const QString& field = {}, const Value& value = {}) {
    RowValues row{
        {"SanctionID", "2605002"}, {"Name", "Seniors"}, {"City", "Erie"}, {"State", "PA"},
        {"Director", "Ann"},       {"HandicapPct", 80}, {"Shoes", 40},    {"Cancellation", false},
        {"PlayFormat", "S"}};
    if (!field.isEmpty()) row[field] = value;
    return row;
  }
  RowCheck Check(const RowValues& row, const QString& storedNumber = {}) {
    return CheckLeague(connection_, row, storedNumber);
  }
};

TEST_F(LeagueChecksTest, AnOrdinaryLeagueIsSaved) {
  EXPECT_EQ(Check(Row()).verdict, Verdict::Save);
}

TEST_F(LeagueChecksTest, ColumnsAreRefusedInTheirOrder) {
  struct Case {
    const char* field;
    Value value;
    const char* message;
  };
  const Case cases[] = {
      {"Name", " ", "League Name required"},
      {"State", Value(), "State required"},
      {"HandicapPct", "", "Invalid Handicap"},
      {"HandicapPct", "eighty", "Invalid Handicap"},
      {"HandicapPct", -1, "Invalid Handicap"},
      {"HandicapPct", 100.5, "Invalid Handicap"},
      {"Shoes", "", "Invalid Shoes per game"},
      {"Shoes", -2, "Invalid Shoes per game"},
      {"Shoes", 40000, "Invalid Shoes per game"},
      {"PlayFormat", Value(), "Select either Singles or Teams for play format."},
      {"PlayFormat", "X", "Select either Singles or Teams for play format."},
  };
  RowValues all = Row();
  for (const Case& c : cases) {
    const RowCheck check = Check(Row(c.field, c.value));
    EXPECT_EQ(check.verdict, Verdict::Cancel) << c.field;
    EXPECT_EQ(check.message, c.message);
    all[c.field] = c.value;
  }
  EXPECT_EQ(Check(all).message, "League Name required");
  all["SanctionID"] = Sanction;
  EXPECT_EQ(Check(all).message, "Duplicate sanction number");
}

TEST_F(LeagueChecksTest, TheEndsOfTheRangesAreInThem) {
  const QPair<const char*, Value> cases[] = {
      {"HandicapPct", 0}, {"HandicapPct", "100"}, {"HandicapPct", 87.5}, {"Shoes", 0}};
  for (const auto& [field, value] : cases) {
    EXPECT_EQ(Check(Row(field, value)).verdict, Verdict::Save) << field;
  }
}

TEST_F(LeagueChecksTest, ANumberLosesItsHyphensAndTakesCapitals) {
  EXPECT_EQ(FixOf(Check(Row("SanctionID", "oh-05-00a")), "SanctionID"), Value("OH0500A"));
  for (const char* number : {"26-05-01", "26050011", "2605"}) {
    EXPECT_EQ(Check(Row("SanctionID", number)).message, "Invalid sanction number") << number;
  }
}

TEST_F(LeagueChecksTest, ARowWithoutANumberIsHeldAndOneWithNothingTypedDropped) {
  for (const Value& blank : {Value(), Value(" "), Value("--")}) {
    const RowCheck held = Check(Row("SanctionID", blank));
    EXPECT_EQ(held.verdict, Verdict::Cancel);
    EXPECT_EQ(held.message, "");
  }
  const RowCheck dropped = Check({{"State", "PA"}, {"HandicapPct", 0}});
  EXPECT_EQ(dropped.verdict, Verdict::Discard);
  EXPECT_EQ(dropped.message, "");
}

TEST_F(LeagueChecksTest, ANewLeagueHasANumberOfItsOwn) {
  EXPECT_EQ(Check(Row("SanctionID", "26-05-001")).message, "Duplicate sanction number");
}

TEST_F(LeagueChecksTest, AStoredNumberIsMendedButNotIntoAnotherLeagues) {
  EXPECT_EQ(Check(Row("SanctionID", "2605001"), "2605001").verdict, Verdict::Save);
  EXPECT_EQ(Check(Row("SanctionID", "2605009"), "2605001").verdict, Verdict::Save);
  connection_.Execute("INSERT INTO Leagues (SanctionID) VALUES ('2605009')");
  EXPECT_EQ(Check(Row("SanctionID", "2605009"), "2605001").message, "Duplicate sanction number");
}

TEST_F(LeagueChecksTest, ANumberUnderWhichADeletedLeaguesRowsAreKeptIsForANewLeagueOnly) {
  const QPair<const char*, const char*> leftOvers[] = {
      {"LeagueMembers", "2605011"}, {"LeagueTeams", "2605012"}, {"LeagueScores", "2605013"}};
  for (const auto& [table, number] : leftOvers) {
    connection_.Execute(QString("INSERT INTO %1 (SanctionID) VALUES ('%2')").arg(table, number));
    EXPECT_EQ(Check(Row("SanctionID", number), Sanction).message, "Duplicate sanction number");
    EXPECT_EQ(Check(Row("SanctionID", number)).verdict, Verdict::Save) << table;
  }
}

TEST_F(LeagueChecksTest, AMembersFiguresAreNumbersAndHisMarksWhole) {
  struct Case {
    const char* field;
    Value value;
    const char* message;
  };
  const Case cases[] = {
      {"StartingAverage", "x", "Invalid Handicap"},
      {"StartingAverage", -1, "Invalid Handicap"},
      {"StartingAverage", "62.5", ""},
      {"HighGamePoints", "x", "Invalid high game points"},
      {"HighGamePoints", 80.5, "Invalid high game points"},
      {"HighGamePoints", 80, ""},
      {"HighGameRingers", "-3", "Invalid high game ringers"},
      {"HighGameRingers", 40000, "Invalid high game ringers"},
      {"HighGameRingers", "30", ""},
  };
  for (const Case& c : cases) {
    RowValues row{{"StartingAverage", 0}, {"HighGamePoints", 0}, {"HighGameRingers", 0}};
    row[c.field] = c.value;
    const RowCheck check = CheckLeagueMember(row);
    EXPECT_EQ(check.message, c.message) << c.field << c.value.ToText().toStdString();
    EXPECT_EQ(check.verdict == Verdict::Save, check.message.isEmpty());
  }
}

TEST_F(LeagueChecksTest, EmptyFiguresOfAMemberAreNone) {
  const RowCheck check = CheckLeagueMember({{"StartingAverage", ""}, {"HighGamePoints", 70}});
  EXPECT_EQ(check.verdict, Verdict::Save);
  EXPECT_EQ(FixOf(check, "StartingAverage"), Value(0));
  EXPECT_EQ(FixOf(check, "HighGameRingers"), Value(0));
  EXPECT_EQ(FixOf(check, "HighGamePoints"), Value("not fixed"));
}

}  // namespace
}  // namespace tavrelin
