#include "leagues/LeagueStats.h"

#include "basic/Error.h"
#include "leagues/LeagueBench.h"
#include "leagues/TeamWins.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

class LeagueStatsTest : public LeagueBench {
 protected:
  /// "TEAM win-loss share", by TeamID.
  QStringList Standings(CountedWins count) {
    LeagueStats stats = Stats({.count = count});
    QStringList all;
    for (; !stats.teams.AtEnd(); stats.teams.MoveNext()) {
      all << QStringList{stats.teams["Team"].ToText(), stats.teams["Win"].ToText(),
                         stats.teams["Loss"].ToText(), stats.teams["WinPercent"].ToText()}
                 .join(u' ');
    }
    return all;
  }
};

TEST_F(LeagueStatsTest, TheMemberTableHasItsTwentySevenFieldsInOrder) {
  AddMember("BERIDA");
  struct Expected {
    const char* name;
    FieldType type;
    int size = 0;
  };
  const Expected expected[] = {
      {"PlayerID", FieldType::Text, 6},
      {"PlayerName", FieldType::Text, 45},
      {"Category", FieldType::Text, 2},
      {"CardNumber", FieldType::Text, 8},
      {"AddressOne", FieldType::Text, 40},
      {"City", FieldType::Text, 30},
      {"State", FieldType::Text, 2},
      {"ZipCode", FieldType::Text, 9},
      {"Active", FieldType::YesNo},
      {"AveragePoints", FieldType::Long},
      {"StartingAverage", FieldType::Long},
      {"RingerPercent", FieldType::Single},
      {"Handicap", FieldType::Long},
      {"Win", FieldType::Single},
      {"Loss", FieldType::Single},
      {"WinPercent", FieldType::Single},
      {"TotalPoints", FieldType::Long},
      {"TotalRingers", FieldType::Long},
      {"TotalShoes", FieldType::Long},
      {"HighGamePoints", FieldType::Long},
      {"HighGameRingers", FieldType::Long},
      {"HighRingerPercent", FieldType::Single},
      {"PreviousHighRingerPercent", FieldType::Single},
      {"Elgible", FieldType::Text, 3},
      {"HighGamePointsWH", FieldType::Long},
      {"HighGamePointsOA", FieldType::Long},
      {"HighRingerPercentOA", FieldType::Single},
  };
  const LeagueStats stats = Stats();
  ASSERT_EQ(stats.members.Fields().size(), 27);
  for (int i = 0; i < 27; ++i) {
    const Field& field = stats.members.Fields()[i];
    EXPECT_EQ(field.name, expected[i].name);
    EXPECT_EQ(field.type, expected[i].type) << expected[i].name;
    EXPECT_EQ(field.size, expected[i].size) << expected[i].name;
  }
}

TEST_F(LeagueStatsTest, AMembersRowHoldsTheRosterAndTheSeason) {
  SetLeague("HandicapPct", 80);
  AddPlayer("BERIDA", "Berg", "Ida");
  AddMemberRow("BERIDA", {.start = 61, .highPoints = 84, .highRingers = 19});
  AddGame("BERIDA", {.points = 60, .ringers = 15, .result = "W"});
  AddGame("BERIDA", {.points = 71, .ringers = 20, .result = "L"});
  AddGame("BERIDA", {.points = 40, .ringers = 10, .result = "T"}, FirstNight.addDays(7));
  LeagueStats stats = Stats({.basis = 100});
  ASSERT_EQ(stats.members.RecordCount(), 1);
  const QList<QPair<const char*, Value>> expected = {
      {"PlayerID", "BERIDA"},
      {"PlayerName", "Berg, Ida"},
      {"Category", "AW"},
      {"CardNumber", "301234"},
      {"AddressOne", "12 Elm St"},
      {"City", "Erie"},
      {"State", "PA"},
      {"ZipCode", "165011234"},
      {"Active", true},
      {"AveragePoints", 57},  // 171 / 3
      {"StartingAverage", 61},
      {"RingerPercent", 30.0},  // 45 of 150
      {"Handicap", 34},         // 0.8 of 43 is 34.4
      {"Win", 1.5},
      {"Loss", 1.5},
      {"WinPercent", 0.5},
      {"TotalPoints", 171},
      {"TotalRingers", 45},
      {"TotalShoes", 150},
      {"HighGamePoints", 84},  // of a former season
      {"HighGameRingers", 20},
      {"HighRingerPercent", 40.0},
      {"PreviousHighRingerPercent", 38.0},
      {"Elgible", "Yes"},
      {"HighGamePointsWH", 71},
      {"HighGamePointsOA", 27},       // 84 - 57
      {"HighRingerPercentOA", 10.0},  // 40 - 30
  };
  for (const auto& [field, value] : expected) {
    EXPECT_EQ(stats.members[field].ToText(), value.ToText()) << field;
  }
  EXPECT_EQ(stats.firstDate, FirstNight);
  EXPECT_EQ(stats.lastDate, FirstNight.addDays(7));
}

TEST_F(LeagueStatsTest, TheValuesOfTheLeagueComeAlong) {
  SetLeague("State", Value());
  SetLeague("Director", Value());
  SetLeague("Cancellation", true);
  SetLeague("PlayFormat", "T");
  SetLeague("HandicapPct", 90);
  AddMember("BERIDA");
  const LeagueStats stats = Stats();
  EXPECT_EQ(stats.league.sanctionID, Sanction);
  EXPECT_EQ(stats.league.name, "Thursday League");
  EXPECT_EQ(stats.league.state, "");
  EXPECT_EQ(stats.league.director, "");
  EXPECT_TRUE(stats.league.cancellation);
  EXPECT_TRUE(stats.league.teams);
  EXPECT_EQ(stats.league.shoes, 50);
  EXPECT_EQ(stats.league.handicapPct, 90);
}

TEST_F(LeagueStatsTest, ALeagueWithoutMembersIsRefused) {
  const LeagueStats stats = Stats();
  EXPECT_EQ(stats.refusal.sentence, "No members in selected club");
  EXPECT_EQ(stats.members.RecordCount(), 0);
}

TEST_F(LeagueStatsTest, ALeagueWithoutGamesHasNoDates) {
  AddMember("BERIDA");
  const LeagueStats stats = Stats();
  EXPECT_FALSE(stats.refusal);
  EXPECT_FALSE(stats.firstDate.isValid());
  EXPECT_FALSE(stats.lastDate.isValid());
}

TEST_F(LeagueStatsTest, ATieAddsHalfToWinAndLossAndToTheTeams) {
  SetLeague("PlayFormat", "T");
  AddMember("BERIDA");
  const int riders = AddTeam("Riders");
  AddLeagueTeamRow(riders);
  AddGame("BERIDA", {.points = 60, .ringers = 15, .result = "T", .team = riders});
  AddGame("BERIDA", {.points = 60, .ringers = 15, .result = "W", .team = riders});
  EXPECT_EQ(Cell("BERIDA", "Win"), "1.5");
  EXPECT_EQ(Cell("BERIDA", "Loss"), "0.5");
  EXPECT_EQ(Standings(CountedWins::Players), QStringList{"Riders 1.5 0.5 0.75"});
}

TEST_F(LeagueStatsTest, AGameWithoutShoesCountsForTheRecordButNotForTheAverage) {
  AddMember("BERIDA");
  AddGame("BERIDA", {.shoes = 0, .result = "W"});
  AddGame("BERIDA", {.points = 60, .ringers = 15, .result = "L"});
  EXPECT_EQ(Cell("BERIDA", "Win"), "1");
  EXPECT_EQ(Cell("BERIDA", "AveragePoints"), "60");
}

TEST_F(LeagueStatsTest, WithLastFiveAMemberOfFourGamesIsAveragedOverAllFour) {
  AddMember("BERIDA");
  AddGames("BERIDA", {40, 50, 60, 70});
  EXPECT_EQ(Cell("BERIDA", "AveragePoints", {.lastGames = 5}), "55");
}

TEST_F(LeagueStatsTest, WithLastFiveAMemberOfNineGamesIsAveragedOverTheFifthToTheNinth) {
  AddMember("BERIDA");
  AddGames("BERIDA", {1, 2, 3, 4, 50, 60, 70, 80, 90});
  EXPECT_EQ(Cell("BERIDA", "AveragePoints", {.lastGames = 5}), "70");
  EXPECT_EQ(Cell("BERIDA", "TotalPoints", {.lastGames = 5}), "360");
}

TEST_F(LeagueStatsTest, GamesAreTakenByDateAndWithinADateAsTheyWereTyped) {
  AddMember("BERIDA");
  AddGame("BERIDA", {.points = 90, .ringers = 10}, FirstNight.addDays(7));
  AddGame("BERIDA", {.points = 40, .ringers = 10}, FirstNight);
  AddGame("BERIDA", {.points = 20, .ringers = 10}, FirstNight);
  EXPECT_EQ(Cell("BERIDA", "AveragePoints", {.lastGames = 1}), "90");
  EXPECT_EQ(Cell("BERIDA", "AveragePoints", {.lastGames = 2}), "55");
}

TEST_F(LeagueStatsTest, AHighMarkOfAnEarlierSeasonStaysTheHighMark) {
  AddMember("BERIDA", {.highPoints = 90, .highRingers = 30});
  AddGames("BERIDA", {60});
  EXPECT_EQ(Cell("BERIDA", "HighGamePoints"), "90");
  EXPECT_EQ(Cell("BERIDA", "HighGameRingers"), "30");
  EXPECT_EQ(Cell("BERIDA", "HighRingerPercent"), "60");
}

TEST_F(LeagueStatsTest, AMarkOfTenPercentThatWasNotHeldBeforeMakesEligible) {
  // With 1000 shoes a game, ringers are tenths of a percent.
  SetLeague("Shoes", 1000);
  struct Case {
    int before, now;
    const char* eligible;
  };
  const Case cases[] = {
      {399, 410, "Yes"},                     // 39.9 % before, 41 % now
      {400, 490, ""},                        // the mark of 40 was held before
      {0, 100, "Yes"},   {0, 94, ""},        // 9 % is below the lowest mark
      {0, 95, "Yes"},                        // 9.5 % goes to the even 10
      {350, 394, ""},                        // 39
      {350, 395, "Yes"}, {399, 300, "Yes"},  // the mark is reached by rounding what he held before
      {1000, 990, ""},
  };
  int n = 0;
  for (const Case& c : cases) {
    const QString id = QString("P%1").arg(n++);
    AddMember(id, {.highRingers = c.before});
    AddGame(id, {.shoes = 1000, .points = 1500, .ringers = c.now});
    EXPECT_EQ(Cell(id, "Elgible"), c.eligible) << c.before << " then " << c.now;
  }
}

TEST_F(LeagueStatsTest, BestPlayerWithoutGamesHoldsHandicapsAgainstTheBestStartingAverage) {
  SetLeague("HandicapPct", 100);
  AddMember("A1", {.start = 60});
  AddMember("B2", {.start = 75});
  AddMember("C3", {.active = false, .start = 90});
  EXPECT_EQ(Cell("A1", "Handicap"), "15");
  EXPECT_EQ(Cell("B2", "Handicap"), "0");
  EXPECT_EQ(Cell("C3", "Handicap"), "-15");
}

TEST_F(LeagueStatsTest, InactiveMembersHaveTheirStatisticsButSetNoBasis) {
  SetLeague("HandicapPct", 100);
  AddMember("A1");
  AddMember("B2", {.active = false});
  AddGames("A1", {50});
  AddGames("B2", {80});
  EXPECT_EQ(Cell("A1", "Handicap"), "0");
  EXPECT_EQ(Cell("B2", "AveragePoints"), "80");
  EXPECT_EQ(Cell("B2", "Handicap"), "-30");
  SetLeague("Cancellation", true);
  AddGame("A1", {.points = 50, .ringers = 10});
  AddGame("B2", {.points = 80, .ringers = 40});
  EXPECT_EQ(Cell("A1", "Handicap"), "0");
  EXPECT_EQ(Cell("B2", "Handicap"), "-45");  // 20 % to 50 %: 15 ringers of 50 shoes
}

TEST_F(LeagueStatsTest, InTheFirstThreeGamesTheHighGameWithHandicapIsThePlainHighGame) {
  SetLeague("HandicapPct", 100);
  AddMember("BERIDA");
  AddGames("BERIDA", {40, 50, 45});
  EXPECT_EQ(Cell("BERIDA", "HighGamePointsWH", {.basis = 150}), "50");
  AddGame("BERIDA", {.points = 10, .ringers = 0}, FirstNight.addDays(70));
  EXPECT_EQ(Cell("BERIDA", "HighGamePointsWH", {.basis = 150}), "115");  // 10 + (150 - 45)
}

TEST_F(LeagueStatsTest, TheHighGameWithHandicapKnowsTheBestOfThoseWalkedBeforeHim) {
  SetLeague("HandicapPct", 100);
  for (const char* id : {"A1", "B2", "C3"}) AddMember(id);
  AddGames("A1", {40, 40, 40, 40});
  AddGames("B2", {90, 90, 90, 90});
  AddGames("C3", {40, 40, 40, 40});
  EXPECT_EQ(Cell("A1", "HighGamePointsWH"), "40");
  EXPECT_EQ(Cell("C3", "HighGamePointsWH"), "90");
  EXPECT_EQ(Cell("A1", "Handicap"), "50");
}

TEST_F(LeagueStatsTest, ATeamHasItsPlayersGamesItsAddedWinsOrBoth) {
  SetLeague("PlayFormat", "T");
  AddMember("BERIDA");
  const int riders = AddTeam("Riders");
  const int hawks = AddTeam("Hawks");
  const int others = AddTeam("Others");
  for (const int team : {riders, hawks}) AddLeagueTeamRow(team);
  AddGame("BERIDA", {.result = "W", .team = riders});
  AddGame("BERIDA", {.result = "L", .team = riders});
  AddGame("BERIDA", {.result = "W", .team = others});  // a team of no league of ours
  AddTeamWins(riders, 2, 0.5);
  AddTeamWins(riders, 1, 0, FirstNight.addDays(7));
  AddTeamWins(others, 9, 0);
  using List = QStringList;
  EXPECT_EQ(Standings(CountedWins::Players), (List{"Riders 1 1 0.5", "Hawks 0 0 0"}));
  EXPECT_EQ(Standings(CountedWins::Teams), (List{"Riders 3 0.5 0.857142857142857", "Hawks 0 0 0"}));
  EXPECT_EQ(Standings(CountedWins::Both), (List{"Riders 4 1.5 0.727272727272727", "Hawks 0 0 0"}));
}

TEST_F(LeagueStatsTest, ASinglesLeagueHasNoTeamTable) {
  AddMember("BERIDA");
  EXPECT_FALSE(Stats().teams.IsOpen());
}

TEST_F(LeagueStatsTest, ANegativeOverAverageIsShownAsNone) {
  AddMember("BERIDA", {.start = 70});
  LeagueStats stats = Stats();
  EXPECT_EQ(stats.members["HighGamePointsOA"].ToText(), "0");  // 0 - 70
  AddGames("BERIDA", {60});
  EXPECT_EQ(Cell("BERIDA", "HighRingerPercentOA"), "0");
  SetLeague("Shoes", 100);  // the same 10 ringers are now 10 % of a game; he pitched 20 %
  EXPECT_EQ(Cell("BERIDA", "HighRingerPercentOA"), "0");
}

TEST_F(LeagueStatsTest, AMemberWithoutGamesHasTheHandicapOfHisStartingAverage) {
  SetLeague("HandicapPct", 90);
  AddMember("A1", {.start = 85});
  AddMember("B2", {.start = 0});
  EXPECT_EQ(Cell("A1", "AveragePoints", {.basis = 100}), "85");
  EXPECT_EQ(Cell("A1", "Handicap", {.basis = 100}), "13");  // 0.9 of 15
  EXPECT_EQ(Cell("B2", "Handicap", {.basis = 100}), "0");
}

TEST_F(LeagueStatsTest, UnderCancellationAMemberWithoutRingersHasNoHandicap) {
  SetLeague("HandicapPct", 100);
  SetLeague("Cancellation", true);
  for (const char* id : {"A1", "B2", "C3"}) AddMember(id, {.start = 50});
  AddGame("A1", {.points = 60, .ringers = 20});
  AddGame("B2", {.points = 30, .ringers = 0});
  EXPECT_EQ(Cell("A1", "Handicap"), "0");
  EXPECT_EQ(Cell("B2", "Handicap"), "0");
  EXPECT_EQ(Cell("C3", "Handicap"), "0");
  AddMember("D4");
  AddGame("D4", {.points = 30, .ringers = 5});
  EXPECT_EQ(Cell("D4", "Handicap"), "45");  // 40 % to 10 %: 15 ringers of 50 shoes
}

TEST_F(LeagueStatsTest, AStartingAverageGoesThroughItsWholeField) {
  SetLeague("HandicapPct", 100);
  AddMember("A1", {.start = 70.5});
  AddMember("B2", {.start = 61.5});
  EXPECT_EQ(Cell("A1", "StartingAverage"), "70");
  EXPECT_EQ(Cell("B2", "StartingAverage"), "62");
  EXPECT_EQ(Cell("B2", "Handicap"), "8");
}

TEST_F(LeagueStatsTest, NullsOfAnOldFileCountAsNothing) {
  connection_.Execute("INSERT INTO Players (PlayerID, LastName) VALUES ('BERIDA', 'Berg')");
  AddMemberRow("BERIDA", {Value(), Value(), Value(), Value()});
  connection_.Execute("INSERT INTO LeagueScores (SanctionID, PlayerID) VALUES (?, 'BERIDA')",
                      {Sanction});
  AddGame("BERIDA", {.points = 60, .ringers = 15});
  SetLeague("HandicapPct", Value());
  SetLeague("Shoes", Value());
  LeagueStats stats = Stats();
  for (const Field& field : stats.members.Fields()) {
    EXPECT_FALSE(stats.members[field.name].IsNull()) << field.name.toStdString();
  }
  EXPECT_EQ(stats.members["PlayerName"].ToText(), "Berg, ");
  EXPECT_EQ(stats.members["AveragePoints"].ToText(), "60");
  EXPECT_EQ(stats.members["HighRingerPercent"].ToText(), "0");
  EXPECT_EQ(stats.firstDate, FirstNight);
}

TEST_F(LeagueStatsTest, ANameLongerThanItsFieldIsCut) {
  AddPlayer("BERIDA", QString(25, 'B'), QString(20, 'I'));
  AddMemberRow("BERIDA");
  EXPECT_EQ(Cell("BERIDA", "PlayerName"), QString(25, 'B') + ", " + QString(18, 'I'));
}

TEST_F(LeagueStatsTest, APostalCodeThatKeptItsHyphenLosesItAndNotItsLastDigit) {
  AddMember("BERIDA");
  connection_.Execute("UPDATE Players SET ZipCode = '16501-1234'");
  EXPECT_EQ(Cell("BERIDA", "ZipCode"), "165011234");
}

TEST_F(LeagueStatsTest, HostileNamesAreTextsLikeAnyOther) {
  const QString last = "O'Br\"ien; --%_";
  const QString first = "\u00c9\u2019\U0001F3C6";
  AddPlayer("BERIDA", last, first);
  AddMemberRow("BERIDA");
  AddGames("BERIDA", {60});
  EXPECT_EQ(Cell("BERIDA", "PlayerName"), last + ", " + first);
}

TEST_F(LeagueStatsTest, WhoIsNoLongerOnTheRosterIsLeftOutWithHisGames) {
  SetLeague("HandicapPct", 100);
  AddMember("A1");
  AddMemberRow("GONE");
  AddGame("GONE", {.points = 100, .ringers = 30}, FirstNight.addDays(-7));
  AddGame("A1", {.points = 50, .ringers = 10});
  const LeagueStats stats = Stats();
  EXPECT_EQ(stats.members.RecordCount(), 1);
  EXPECT_EQ(stats.firstDate, FirstNight);
  EXPECT_EQ(Cell("A1", "Handicap"), "0");
}

TEST_F(LeagueStatsTest, GamesOfOtherLeaguesAndOfPlayersWhoAreNoMembersDoNotCount) {
  AddMember("A1");
  AddGame("A1", {.points = 50, .ringers = 10});
  AddGame("A1", {.points = 90, .ringers = 20}, FirstNight, "2605002");
  AddGame("B2", {.points = 90, .ringers = 20});
  EXPECT_EQ(Cell("A1", "TotalPoints"), "50");
}

TEST_F(LeagueStatsTest, MembersAreFoundWhateverTheCaseOfTheirNumbers) {
  AddPlayer("ab12", "Berg");
  AddMemberRow("AB12");
  AddGame("Ab12", {.points = 50, .ringers = 10});
  AddGame("AB12", {.points = 70, .ringers = 10});
  AddGame("ab12", {.points = 60, .ringers = 10});
  EXPECT_EQ(Cell("AB12", "TotalPoints"), "180");
}

TEST_F(LeagueStatsTest, BasesAreThoseOfTheBox) {
  AddMember("A1", {.start = 40});
  SetLeague("HandicapPct", 100);
  const QPair<const char*, const char*> cases[] = {
      {"Best Player", "0"}, {"50 Points", "10"},   {"60 Points", "20"},   {"70 Points", "30"},
      {"80 Points", "40"},  {"90 Points", "50"},   {"100 Points", "60"},  {"110 Points", "70"},
      {"120 Points", "80"}, {"150 Points", "110"}, {"130 Points", "110"}, {"", "110"}};
  for (const auto& [text, handicap] : cases) {
    EXPECT_EQ(Cell("A1", "Handicap", {.basis = HandicapBasis(text)}), handicap) << text;
  }
  EXPECT_EQ(HandicapBasisTexts().size(), 10);
}

TEST_F(LeagueStatsTest, StandingsAreSortedByTheBoxAndWhoIsLevelByName) {
  SetLeague("PlayFormat", "T");
  for (const char* id : {"A1", "B2", "C3"}) AddMember(id);
  AddGame("A1", {.points = 40, .ringers = 12, .result = "W"});
  AddGame("A1", {.points = 40, .ringers = 12, .result = "L"});
  AddGame("B2", {.points = 60, .ringers = 11, .result = "W"});
  AddGame("C3", {.points = 50, .ringers = 10, .result = "L"});
  const QPair<const char*, const char*> cases[] = {{"Wins", "A1 B2 C3"},
                                                   {"Average Points", "B2 C3 A1"},
                                                   {"Ringer Percent", "A1 B2 C3"},
                                                   {"Winning Percent", "B2 A1 C3"},
                                                   {"", "A1 B2 C3"}};
  for (const auto& [text, order] : cases) {
    LeagueStats stats = Stats();
    stats.members.SetSort(MemberOrder(StandingsSortOf(text)));
    EXPECT_EQ(Column(stats.members, "PlayerID"), order) << text;
  }
  EXPECT_EQ(TeamOrder(StandingsSort::WinningPercent), "WinPercent DESC, Team ASC");
  EXPECT_EQ(TeamOrder(StandingsSort::RingerPercent), "Win DESC, Team ASC");
}

TEST_F(LeagueStatsTest, AFileWithoutTheTableOfAddedWinsIsReadAllTheSame) {
  SetLeague("PlayFormat", "T");
  AddMember("BERIDA");
  AddLeagueTeamRow(AddTeam("Riders"));
  connection_.Execute("DROP TABLE LeagueTeamScores");
  EXPECT_EQ(Standings(CountedWins::Both), QStringList{"Riders 0 0 0"});
  EXPECT_FALSE(HasTeamWins(connection_));
}

TEST_F(LeagueStatsTest, ASumThatNoFieldHoldsIsToldInASentence) {
  AddMember("BERIDA");
  for (int i = 0; i < 2; ++i) AddGame("BERIDA", {.shoes = 50, .points = 2000000000});
  EXPECT_THROW(Stats(), Error);
}

}  // namespace
}  // namespace tavrelin
