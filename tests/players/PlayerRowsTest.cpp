#include "players/PlayerRows.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Schema.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

struct PlayerRowsTest : testing::Test {
  QTemporaryDir folder;
  Connection connection;

  void SetUp() override {
    const QString file = folder.filePath("club.mdb");
    DeliverClubFile(file);
    connection.Open(ConnectStringFor(file));
    for (const char* row : {"'VANZED', 'Van', 'Zed', 'AM'", "'ADAANN', 'Adams', 'Ann', 'AW'",
                            "'VANAL0', 'Van Horn', 'Al', 'EM'"})
      Run(QString("INSERT INTO Players (PlayerID, LastName, FirstName, Category) VALUES (%1)")
              .arg(row));
    Run("INSERT INTO Tournaments (SanctionID, Date) VALUES ('MN24A01', #9/20/2024#)");
    Run("INSERT INTO Tournaments (SanctionID, Date) VALUES ('MN25A01', #9/20/2025#)");
    for (const char* row : {"'ADAANN', 'MN24A01', 200, 91", "'ADAANN', 'MN25A01', 100, 60",
                            "'VANZED', 'MN25A01', 100, 10"})
      Run(QString("INSERT INTO PlayerScores (PlayerID, SanctionID, Shoes, Ringers) VALUES (%1)")
              .arg(row));
    for (const char* team : {"1, 'Ringers'", "2, 'Aces'"})
      Run(QString("INSERT INTO Teams (TeamID, Team) VALUES (%1)").arg(team));
    for (const char* player : {"1, 'VANZED'", "1, 'ADAANN'", "2, 'VANAL0'"})
      Run(QString("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (%1)").arg(player));
  }
  void Run(const QString& sql) { connection.Execute(sql); }
  Value Ask(const QString& sql) {
    Recordset rows;
    rows.Open(sql, connection);
    return rows.AtEnd() ? Value() : rows.At(0);
  }
};

TEST_F(PlayerRowsTest, ComeInTheOrderInWhichTheyAreShown) {
  const struct {
    const char* what;
    Recordset rows;
    const char *field, *expected;
  } cases[] = {
      {"the roster", OpenRoster(connection), "PlayerID", "ADAANN VANZED VANAL0"},
      {"to choose from", PlayersByLastName(connection), "PlayerID", "ADAANN VANZED VANAL0"},
      {"a history", OpenHistory(connection, "ADAANN"), "SanctionID", "MN24A01 MN25A01"},
      {"teams", OpenTeams(connection), "TeamID", "2 1"},
      {"teams to choose from", TeamList(connection), "TeamID", "2 1"},
      {"a team", OpenTeamPlayers(connection, 1), "PlayerID", "ADAANN VANZED"},
      {"nobody's team", OpenTeamPlayers(connection, 9), "PlayerID", ""},
      {"no history", OpenHistory(connection, "NOBODY"), "PlayerID", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Column(c.rows, c.field), c.expected) << c.what;
}

TEST_F(PlayerRowsTest, WhatIsTypedIsWrittenAndListsToChooseFromAreNot) {
  struct {
    Recordset rows;
    const char *field, *typed, *stored;
  } cases[] = {
      {OpenRoster(connection), "City", "Erie",
       "SELECT City FROM Players WHERE PlayerID = 'ADAANN'"},
      {OpenHistory(connection, "VANZED"), "Ringers", "33",
       "SELECT Ringers FROM PlayerScores WHERE PlayerID = 'VANZED'"},
      {OpenTeams(connection), "Team", "Kings", "SELECT Team FROM Teams WHERE TeamID = 2"},
      {OpenTeamPlayers(connection, 2), "PlayerID", "ADAANN",
       "SELECT PlayerID FROM TeamPlayers WHERE TeamID = 2"},
  };
  for (auto& c : cases) {
    c.rows.Set(c.field, c.typed);
    c.rows.Update();
    EXPECT_EQ(Ask(c.stored).ToText(), c.typed);
  }
  for (Recordset (*list)(Connection&) : {PlayersByLastName, TeamList}) {
    Recordset rows = list(connection);
    EXPECT_THROW(rows.Set(1, "x"), Error);
  }
}

TEST_F(PlayerRowsTest, AHistoryKnowsItsRingerPercentAndNoneWithoutShoes) {
  Recordset history = OpenHistory(connection, "ADAANN");
  EXPECT_EQ(history["Pct"].ToNumber(), 45.5);
  Run("UPDATE PlayerScores SET Shoes = 0 WHERE SanctionID = 'MN24A01'");
  history.Requery();
  EXPECT_TRUE(history["Pct"].IsNull());
}

TEST_F(PlayerRowsTest, TournamentsAreOfferedTheLatestFirstAsTheyAreWritten) {
  const QList<CodeText> choices = SanctionChoices(connection);
  ASSERT_EQ(choices.size(), 2);
  EXPECT_EQ(choices[0].code, "MN25A01");
  EXPECT_EQ(choices[0].text, "MN-25-A01");
  EXPECT_EQ(choices[1].code, "MN24A01");
}

}  // namespace
}  // namespace tavrelin
