#include "tournament/Entries.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

const QDate Today(2025, 9, 1);

struct EntriesTest : testing::Test {
  QTemporaryDir folder;
  Connection connection;

  void SetUp() override {
    const QString file = folder.filePath("club.mdb");
    DeliverClubFile(file);
    connection.Open(ConnectStringFor(file));
    connection.Execute(
        "INSERT INTO Tournaments (SanctionID, Name, Date) VALUES ('MN25A01', 'Spring Open', "
        "#9/20/2025#)");
  }

  void AddPlayer(const QString& id, const Value& average, const QString& category = "AM") {
    connection.Execute(
        "INSERT INTO Players (PlayerID, FirstName, LastName, Category, Average) VALUES (?, "
        "'First', ?, ?, ?)",
        {id, id, category, average});
  }

  void AddResult(const QString& id, int daysAgo, int ringers, const QString& category = "AM") {
    const QString sanction = QStringLiteral("T%1").arg(daysAgo, 6, 10, QLatin1Char('0'));
    connection.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES (?, ?)",
                       {sanction, Value(Today.addDays(-daysAgo))});
    connection.Execute(
        "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category) VALUES (?, ?, "
        "100, ?, ?)",
        {sanction, id, ringers, category});
  }

  void AddTeam(int teamID, const QStringList& players) {
    connection.Execute("INSERT INTO Teams (TeamID, Team) VALUES (?, 'Team')", {teamID});
    for (const QString& player : players)
      connection.Execute("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (?, ?)",
                         {teamID, player});
  }

  void Enter(int teamID) { EXPECT_FALSE(EnterTeam(connection, "MN25A01", teamID, Today)); }

  void Update() { EXPECT_FALSE(UpdateTeamAverages(connection, "MN25A01")); }

  Value Ask(const QString& sql) {
    Recordset rows;
    rows.Open(sql, connection);
    return rows.AtEnd() ? Value() : rows.At(0);
  }

  double TeamPercent(int teamID) {
    return Ask(QStringLiteral("SELECT RingerPercent FROM TournamentTeamEntrants WHERE TeamID = %1")
                   .arg(teamID))
        .ToNumber();
  }
};

TEST_F(EntriesTest, APlayerWithoutAverageAndWithoutResultsOfTheYearEntersWithZero) {
  AddPlayer("SMIJOH", Value());
  AddResult("SMIJOH", 366, 80);
  EXPECT_EQ(EnterPlayer(connection, "MN25A01", "SMIJOH", "AM", Today), 0.0);
  EXPECT_EQ(Ask("SELECT RingerPercent FROM TournamentEntrants").ToNumber(), 0.0);
  EXPECT_EQ(Ask("SELECT ClassID FROM TournamentEntrants"), Value(""));
  EXPECT_EQ(Ask("SELECT RankOverride FROM TournamentEntrants").ToNumber(), 0.0);
  EXPECT_FALSE(Ask("SELECT Paid FROM TournamentEntrants").IsNull());
  EXPECT_FALSE(Ask("SELECT Seed FROM TournamentEntrants").IsNull());
}

TEST_F(EntriesTest, FourResultsOfTheYearGiveThePooledFigureOfTheBestThree) {
  AddPlayer("SMIJOH", 0);
  AddResult("SMIJOH", 10, 50);
  AddResult("SMIJOH", 20, 40);
  AddResult("SMIJOH", 30, 30);
  AddResult("SMIJOH", 40, 20);
  EXPECT_DOUBLE_EQ(EnterPlayer(connection, "MN25A01", "SMIJOH", "AM", Today), 40.0);
}

TEST_F(EntriesTest, OnlyTheTenMostRecentResultsCountEvenIfAnOlderOneIsTheBest) {
  AddPlayer("SMIJOH", 0);
  AddResult("SMIJOH", 300, 90);
  for (int i = 1; i <= 10; ++i) AddResult("SMIJOH", i * 10, 30);
  EXPECT_DOUBLE_EQ(EnterPlayer(connection, "MN25A01", "SMIJOH", "AM", Today), 30.0);
}

TEST_F(EntriesTest, ATwelfthOlderResultOfTheYearIsIgnoredEvenIfItIsTheBest) {
  AddPlayer("SMIJOH", 0);
  AddResult("SMIJOH", 300, 99);
  AddResult("SMIJOH", 250, 98);
  for (int i = 1; i <= 10; ++i) AddResult("SMIJOH", i * 10, 20 + i);
  // The latest ten have 21 to 30 %; the best three of them are 30, 29 and 28 of 100 shoes.
  EXPECT_DOUBLE_EQ(EnterPlayer(connection, "MN25A01", "SMIJOH", "AM", Today), 29.0);
}

TEST_F(EntriesTest, OnlyResultsInThePresentDivisionCount) {
  AddPlayer("SMIJOH", 0, "EM");
  AddResult("SMIJOH", 10, 80, "AM");
  AddResult("SMIJOH", 20, 30, "EM");
  EXPECT_DOUBLE_EQ(EnterPlayer(connection, "MN25A01", "SMIJOH", "EM", Today), 30.0);
}

TEST_F(EntriesTest, PartnersWithoutARosterAverageBringTheirResultsToTheTeam) {
  AddPlayer("AAA000", 0);
  AddPlayer("BBB000", Value());
  AddResult("AAA000", 10, 20);
  AddResult("BBB000", 20, 50);
  AddTeam(1, {"AAA000", "BBB000"});
  Enter(1);
  EXPECT_DOUBLE_EQ(TeamPercent(1), 35);
  EXPECT_EQ(Ask("SELECT PlayerOneID FROM TournamentTeamEntrants"), Value("BBB000"));
}

TEST_F(EntriesTest, AnUpdateLeavesThePartnersInTheirPlacesAlsoTheOtherWayRound) {
  AddPlayer("AAA000", 60);
  AddPlayer("BBB000", 40);
  AddTeam(1, {"AAA000", "BBB000"});
  Enter(1);
  connection.Execute("UPDATE Players SET Average = 80 WHERE PlayerID = 'BBB000'");
  Update();
  EXPECT_DOUBLE_EQ(TeamPercent(1), 70);
  EXPECT_EQ(Ask("SELECT PlayerOneID FROM TournamentTeamEntrants"), Value("AAA000"));
}

TEST_F(EntriesTest, PartnersStandInTheOrderOfTheirTeamWhateverTheOrderOfTheRoster) {
  // Zoe is put on the team first; nobody behind her counts while she has no average.
  for (int i = 0; i < 300; ++i) AddPlayer(QStringLiteral("P%1").arg(i, 5, 10, QLatin1Char('0')), 1);
  AddPlayer("AAA000", 50);
  AddPlayer("ZOE000", 0);
  AddTeam(1, {"ZOE000", "AAA000"});
  connection.Execute(
      "INSERT INTO TournamentTeamEntrants (SanctionID, TeamID, RingerPercent) "
      "VALUES ('MN25A01', 1, 11)");
  Update();
  EXPECT_DOUBLE_EQ(TeamPercent(1), 11);
}

TEST_F(EntriesTest, AnUpdateTouchesNoOtherTournament) {
  AddPlayer("AAA000", 40);
  connection.Execute("INSERT INTO Tournaments (SanctionID) VALUES ('WI25B02')");
  EnterPlayer(connection, "WI25B02", "AAA000", "AM", Today);
  connection.Execute("UPDATE TournamentEntrants SET RingerPercent = 12.5");
  UpdatePlayerAverages(connection, "MN25A01");
  EXPECT_DOUBLE_EQ(Ask("SELECT RingerPercent FROM TournamentEntrants").ToNumber(), 12.5);
}

TEST_F(EntriesTest, APlayerStandsInAClassOnce) {
  AddPlayer("AAA000", 40);
  for (const char* classID : {"A", ""})
    connection.Execute(
        "INSERT INTO TournamentEntrants (SanctionID, PlayerID, ClassID) VALUES ('MN25A01', "
        "'AAA000', ?)",
        {classID});
  Recordset entries;
  entries.Open("SELECT PlayerID, ClassID FROM TournamentEntrants", connection);
  const auto first = entries.BookmarkAt(1), second = entries.BookmarkAt(2);
  const auto message = [&](Recordset::Bookmark own, const char* classID) {
    return CheckClassChange(entries, own, {{"PlayerID", "AAA000"}, {"ClassID", classID}}).message;
  };
  EXPECT_EQ(message(second, "A"), "Player already entered in this class");
  EXPECT_EQ(message(first, ""), "Player already has an entry without a class");
  EXPECT_EQ(message(second, "B"), "");
  EXPECT_EQ(message(second, ""), "");
  EXPECT_EQ(message(first, "A"), "");
}

TEST_F(EntriesTest, AFirstEntryWithoutAClassBlocksASecondOneAndWithAClassIsAskedAbout) {
  AddPlayer("SMIJOH", 45.5);
  Recordset none;
  none.Open("SELECT PlayerID, ClassID FROM TournamentEntrants", connection);
  EXPECT_EQ(CheckSecondEntry(none, "SMIJOH").verdict, Verdict::Save);

  EnterPlayer(connection, "MN25A01", "SMIJOH", "AM", Today);
  Recordset entries;
  entries.Open("SELECT PlayerID, ClassID FROM TournamentEntrants", connection);
  RowCheck check = CheckSecondEntry(entries, "SMIJOH");
  EXPECT_EQ(check.verdict, Verdict::Cancel);
  EXPECT_EQ(check.message,
            "Player already entered in tournament. Cannot be entered again until first entry is "
            "placed in a class. ");

  connection.Execute("UPDATE TournamentEntrants SET ClassID = 'A'");
  entries.Requery();
  check = CheckSecondEntry(entries, "SMIJOH");
  EXPECT_EQ(check.verdict, Verdict::Ask);
  EXPECT_EQ(check.title, "Duplicate Entry");
  EXPECT_EQ(check.question, "Player already entered in tournament. Enter again? ");
  EXPECT_EQ(check.message, check.question);
}

TEST_F(EntriesTest, ATeamOfOneOrOfThreePlayersCannotBeEntered) {
  for (const char* id : {"AAA000", "BBB000", "CCC000"}) AddPlayer(id, 50);
  AddTeam(1, {"AAA000"});
  AddTeam(2, {"AAA000", "BBB000", "CCC000"});
  AddTeam(3, {"AAA000", "GONE00"});
  for (int team : {1, 2, 3, 99})
    EXPECT_EQ(EnterTeam(connection, "MN25A01", team, Today).sentence, "Team must have two players")
        << team;
  EXPECT_TRUE(Ask("SELECT TeamID FROM TournamentTeamEntrants").IsNull());
}

TEST_F(EntriesTest, TheStrongerPartnerBecomesPlayerOneAndTheTeamGetsTheMean) {
  AddPlayer("AAA000", 40);
  AddPlayer("BBB000", 60);
  AddTeam(1, {"AAA000", "BBB000"});
  EXPECT_FALSE(EnterTeam(connection, "MN25A01", 1, Today));
  EXPECT_EQ(Ask("SELECT PlayerOneID FROM TournamentTeamEntrants"), Value("BBB000"));
  EXPECT_EQ(Ask("SELECT PlayerTwoID FROM TournamentTeamEntrants"), Value("AAA000"));
  EXPECT_DOUBLE_EQ(TeamPercent(1), 50);
  EXPECT_EQ(EnterTeam(connection, "MN25A01", 1, Today).sentence,
            "Team already entered in Tournament");
}

TEST_F(EntriesTest, EqualPartnersKeepTheirStoredOrder) {
  AddPlayer("AAA000", 40);
  AddPlayer("BBB000", 40);
  AddTeam(1, {"BBB000", "AAA000"});
  Enter(1);
  EXPECT_EQ(Ask("SELECT PlayerOneID FROM TournamentTeamEntrants"), Value("BBB000"));
}

TEST_F(EntriesTest, ATournamentIsPastOnceItsDayIsOver) {
  EXPECT_FALSE(IsPast(Today.addDays(1).startOfDay(), Today));
  EXPECT_FALSE(IsPast(Today.startOfDay(), Today));
  EXPECT_TRUE(IsPast(Today.addDays(-1).startOfDay(), Today));
}

TEST_F(EntriesTest, APlayerWithoutARosterAverageKeepsWhatHeHas) {
  AddPlayer("AAA000", 40);
  AddPlayer("BBB000", 0);
  EnterPlayer(connection, "MN25A01", "AAA000", "AM", Today);
  EnterPlayer(connection, "MN25A01", "BBB000", "AM", Today);
  connection.Execute("UPDATE TournamentEntrants SET RingerPercent = 12.5");
  UpdatePlayerAverages(connection, "MN25A01");
  EXPECT_DOUBLE_EQ(
      Ask("SELECT RingerPercent FROM TournamentEntrants WHERE PlayerID = 'AAA000'").ToNumber(), 40);
  EXPECT_DOUBLE_EQ(
      Ask("SELECT RingerPercent FROM TournamentEntrants WHERE PlayerID = 'BBB000'").ToNumber(),
      12.5);
}

TEST_F(EntriesTest, AMissingPartnerAverageHalvesTheFirstAndAMissingFirstLeavesTheTeamAsItIs) {
  AddPlayer("AAA000", 70);
  AddPlayer("BBB000", 0);
  AddPlayer("CCC000", Value());
  AddPlayer("DDD000", 50);
  AddTeam(1, {"AAA000", "BBB000"});
  AddTeam(2, {"CCC000", "DDD000"});
  AddTeam(3, {"AAA000", "DDD000"});
  for (int team : {1, 2, 3}) Enter(team);
  connection.Execute("UPDATE TournamentTeamEntrants SET RingerPercent = 11");
  EXPECT_FALSE(UpdateTeamAverages(connection, "MN25A01"));
  EXPECT_DOUBLE_EQ(TeamPercent(1), 35);
  EXPECT_DOUBLE_EQ(TeamPercent(2), 11);
  EXPECT_DOUBLE_EQ(TeamPercent(3), 60);
}

TEST_F(EntriesTest, ATeamThatLostAPlayerStopsTheUpdateAndTheTeamsBeforeItStayChanged) {
  for (const char* id : {"AAA000", "BBB000", "CCC000", "DDD000"}) AddPlayer(id, 50);
  AddTeam(1, {"AAA000", "BBB000"});
  AddTeam(2, {"CCC000", "DDD000"});
  AddTeam(3, {"AAA000", "DDD000"});
  for (int team : {1, 2, 3}) Enter(team);
  connection.Execute("UPDATE TournamentTeamEntrants SET RingerPercent = 11");
  connection.Execute("DELETE FROM Players WHERE PlayerID = 'CCC000'");
  EXPECT_EQ(UpdateTeamAverages(connection, "MN25A01").sentence, "Team must have two players");
  EXPECT_DOUBLE_EQ(TeamPercent(1), 50);
  EXPECT_DOUBLE_EQ(TeamPercent(2), 11);
  EXPECT_DOUBLE_EQ(TeamPercent(3), 11);
}

TEST_F(EntriesTest, EntriesAreRefusedInOrder) {
  const RowValues good = {{"RingerPercent", 40.0},
                          {"Paid", 10},
                          {"Seed", 0},
                          {"TotalShoes", 100},
                          {"TotalRingers", 100}};
  EXPECT_EQ(CheckEntry(good).verdict, Verdict::Save);
  struct Case {
    const char* field;
    Value value;
    const char* message;
  };
  const Case cases[] = {
      {"RingerPercent", "", "Invalid ringer percent"},
      {"RingerPercent", "x", "Invalid ringer percent"},
      {"Paid", Value(), "Invalid payment"},
      {"Seed", "first", "Invalid seed"},
      {"TotalShoes", "", "Invalid Shoes"},
      {"TotalRingers", Value(), "Invalid Ringers"},
      {"TotalRingers", 101, "Ringers cannot be greater than Shoes"},
      {"TotalShoes", 40000, "Invalid Shoes"},
  };
  for (const Case& c : cases) {
    RowValues row = good;
    row[c.field] = c.value;
    EXPECT_EQ(CheckEntry(row).message, c.message);
    const bool shared = QString(c.field) == "RingerPercent" || QString(c.field) == "Paid" ||
                        QString(c.field) == "Seed";
    EXPECT_EQ(CheckTeamEntry(row).message, shared ? c.message : "");
  }
}

}  // namespace
}  // namespace tavrelin
