#include "leagues/LeagueGames.h"

#include "leagues/LeagueBench.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

class LeagueGamesTest : public LeagueBench {
 protected:
  static RowValues Row(int points, int ringers, int shoes = 50) {
    return {{"PlayerID", "BERIDA"}, {"SanctionID", Sanction}, {"Date", "4/7/2026"},
            {"Shoes", shoes},       {"Points", points},       {"Ringers", ringers},
            {"WinLoss", "W"},       {"Handicap", 0},          {"TeamID", Value()}};
  }
  static RowValues With(const QString& field, const Value& value) {
    RowValues row = Row(60, 20);
    row[field] = value;
    return row;
  }
  RowCheck Check(const RowValues& row) { return CheckLeagueGame(row, TheLeague(), teams_); }

  ByID<qint64> teams_;
};

TEST_F(LeagueGamesTest, AScoreFollowsFromShoesAndRingers) {
  struct Case {
    int shoes, points, ringers;
    bool cancellation;
    const char* message;
  };
  constexpr const char* TooLow = "Invalid ringers or invalid points.";
  constexpr const char* TooHigh = "Point total is too high based on Shoes and Ringers";
  const Case cases[] = {
      {50, 60, 20, false, ""},
      {50, 59, 20, false, TooLow},
      {50, 59, 20, true, ""},
      {50, 90, 20, false, ""},
      {50, 91, 20, false, TooHigh},
      {50, 90, 20, true, ""},
      {50, 91, 20, true, TooHigh},
      {50, 150, 50, false, ""},
      {50, 151, 50, false, "Invalid points."},
      {50, 50, 51, true, "Invalid ringers."},
      {50, -1, 0, true, "Invalid points."},
      {50, 10, -1, true, "Invalid ringers."},
      {50, 0, 0, false, ""},
      {0, 0, 0, false, ""},  // a game that was not pitched
      {0, 1, 0, false, "Invalid points."},
      {-2, 0, 0, false, "Invalid shoes."},
      {40, 121, 41, true, "Invalid points."},
  };
  for (const Case& c : cases) {
    SetLeague("Cancellation", c.cancellation);
    const RowCheck check = Check(Row(c.points, c.ringers, c.shoes));
    EXPECT_EQ(check.message, c.message) << c.shoes << ' ' << c.points << ' ' << c.ringers;
    EXPECT_EQ(check.verdict, check.message.isEmpty() ? Verdict::Save : Verdict::Cancel);
  }
}

TEST_F(LeagueGamesTest, AnUnfinishedRowIsHeldWithoutAWord) {
  for (const char* field : {"PlayerID", "SanctionID", "Date", "Points", "Shoes"}) {
    for (const Value& blank : {Value(), Value(" ")}) {
      const RowCheck check = Check(With(field, blank));
      EXPECT_EQ(check.verdict, Verdict::Cancel) << field;
      EXPECT_EQ(check.message, "");
    }
  }
  EXPECT_EQ(Check(With("Shoes", "x")).message, "");
}

TEST_F(LeagueGamesTest, WhatIsNoFigureIsRefusedWithItsFieldsMessage) {
  const std::tuple<const char*, Value, const char*> cases[] = {
      {"Date", "soon", "Invalid date."},        {"Date", "2/30/2026", "Invalid date."},
      {"Date", "7:30 PM", "Invalid date."},  // a time has no day
      {"Points", "x", "Invalid points."},       {"Points", "1e6", "Invalid points."},
      {"Ringers", Value(), "Invalid ringers."}, {"Ringers", "x", "Invalid ringers."},
      {"Shoes", "1e6", "Invalid shoes."},       {"WinLoss", Value(), "Invalid win loss."},
      {"WinLoss", "X", "Invalid win loss."},    {"Handicap", "x", "Invalid Handicap"},
      {"Handicap", 70000, "Invalid Handicap"},
  };
  for (const auto& [field, value, message] : cases) {
    EXPECT_EQ(Check(With(field, value)).message, message) << field;
  }
}

TEST_F(LeagueGamesTest, TheFirstThingThatIsWrongIsTold) {
  RowValues row = Row(200, 60);
  row["WinLoss"] = "";
  EXPECT_EQ(Check(row).message, "Invalid points.");
  row["Date"] = "soon";
  EXPECT_EQ(Check(row).message, "Invalid date.");
}

TEST_F(LeagueGamesTest, AResultTakesCapitalsAndAnEmptyHandicapIsNone) {
  RowValues row = With("WinLoss", "t");
  row["Handicap"] = "";
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, Verdict::Save);
  const QList<QPair<QString, Value>> fixes = {{"WinLoss", "T"}, {"Handicap", 0}};
  EXPECT_EQ(check.fixes, fixes);
}

TEST_F(LeagueGamesTest, InATeamLeagueAnEmptyTeamIsThePlayersOwn) {
  teams_["BERIDA"] = 7;
  EXPECT_EQ(Check(Row(60, 20)).fixes.size(), 1);  // a singles league: the result alone
  SetLeague("PlayFormat", "T");
  const QPair<QString, Value> team = {"TeamID", Value(qint64{7})};
  EXPECT_TRUE(Check(Row(60, 20)).fixes.contains(team));
  EXPECT_FALSE(Check(With("TeamID", 3)).fixes.contains(team));
  EXPECT_EQ(Check(With("PlayerID", "OTHER")).fixes.size(), 1);
}

TEST_F(LeagueGamesTest, APlayersTeamIsThatOfThisLeague) {
  const int others = AddTeam("Others", {"A1", "B2"});
  const int riders = AddTeam("Riders", {"a1"});
  AddLeagueTeamRow(riders);
  const ByID<qint64> teams = LeagueTeamsOfPlayers(connection_, Sanction);
  EXPECT_EQ(teams.value("A1"), riders);
  EXPECT_FALSE(teams.contains("B2"));
  EXPECT_NE(others, riders);
}

TEST_F(LeagueGamesTest, ANewGameTakesTheLeaguesShoesAndTheEveningsDateWithoutTyping) {
  AddMember("BERIDA");
  AddGame("BERIDA", {.points = 60, .ringers = 20}, FirstNight);
  const QDate evening = FirstNight.addDays(14);
  const Recordset games = OpenLeagueGames(connection_, Sanction, "BERIDA");
  const RowValues row = NewLeagueGame(TheLeague(), "BERIDA", teams_, games, evening, false);
  const RowValues expected = {
      {"SanctionID", Sanction}, {"PlayerID", "BERIDA"}, {"Shoes", 50}, {"Date", evening}};
  EXPECT_EQ(row, expected);
}

TEST_F(LeagueGamesTest, ANewGameTakesTheHandicapOfTheMembersOwnLatestGame) {
  AddMember("BERIDA");
  const auto handicap = [&](bool weekly) {
    const Recordset games = OpenLeagueGames(connection_, Sanction, "BERIDA");
    return NewLeagueGame(TheLeague(), "BERIDA", teams_, games, FirstNight, weekly)
        .value("Handicap", "none");
  };
  EXPECT_EQ(handicap(true).ToText(), "0");
  const QPair<int, int> rows[] = {{7, 12}, {14, 15}, {14, 16}, {0, 9}};
  for (const auto& [day, given] : rows) {
    AddGame("BERIDA", {.points = 60, .ringers = 20}, FirstNight.addDays(day));
    connection_.Execute("UPDATE LeagueScores SET Handicap = ? WHERE Handicap IS NULL", {given});
  }
  EXPECT_EQ(handicap(true).ToText(), "16");
  EXPECT_EQ(handicap(false).ToText(), "none");
}

TEST_F(LeagueGamesTest, ANewGameOfATeamLeagueStandsWithThePlayersTeam) {
  SetLeague("PlayFormat", "T");
  teams_["BERIDA"] = 7;
  const Recordset none = OpenLeagueGames(connection_, Sanction, "BERIDA");
  const auto team = [&](const QString& player) {
    return NewLeagueGame(TheLeague(), player, teams_, none, FirstNight, false)
        .value("TeamID", "none");
  };
  EXPECT_EQ(team("BERIDA").ToText(), "7");
  EXPECT_EQ(team("OTHER").ToText(), "none");
}

TEST_F(LeagueGamesTest, TheEveningsListHasTheActiveMembersWithTheirGamesOfThatDate) {
  AddMember("CARL");
  AddMember("ANNE");
  AddMember("BETH", {.active = false});
  AddMemberRow("GONE");
  for (int i = 0; i < 3; ++i) AddGame("CARL", {.points = 60, .ringers = 20});
  AddGame("CARL", {.points = 60, .ringers = 20}, FirstNight.addDays(7));
  AddGame("ANNE", {.points = 60, .ringers = 20}, FirstNight, "2605002");
  AddGame("carl", {.points = 60, .ringers = 20}, QDateTime(FirstNight, QTime(19, 30)));
  Recordset members = EveningMembers(connection_, Sanction, FirstNight);
  EXPECT_EQ(Column(members, "LastName"), "ANNE CARL");
  EXPECT_EQ(Column(members, "Games"), "0 4");
  members.SetAbsolutePosition(2);
  CountEveningGames(connection_, Sanction, FirstNight.addDays(7), members);
  EXPECT_EQ(Column(members, "Games"), "0 1");
  EXPECT_EQ(members.AbsolutePosition(), 2);
}

}  // namespace
}  // namespace tavrelin
