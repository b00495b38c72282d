#include "tournament/EntryRows.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Schema.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

struct EntryRowsTest : testing::Test {
  QTemporaryDir folder;
  Connection connection;

  void SetUp() override {
    const QString file = folder.filePath("club.mdb");
    DeliverClubFile(file);
    connection.Open(ConnectStringFor(file));
    for (const char* row : {"'VANZED', 'Van', 'Zed', 'AM'", "'ADAANN', 'Adams', 'Ann', 'CG'",
                            "'VANAL0', 'Van Horn', 'Al', 'XX'"})
      Run(QString("INSERT INTO Players (PlayerID, LastName, FirstName, Category) VALUES (%1)")
              .arg(row));
    Run("INSERT INTO Teams (TeamID, Team) VALUES (1, 'Ringers')");
    Run("INSERT INTO Teams (TeamID, Team) VALUES (2, 'Aces')");
    for (const char* entry : {"MN25A01', 'VANAL0", "MN25A01', 'GONE01", "MN25A01', 'ADAANN",
                              "MN25A01', 'ADAANN", "WI25B02', 'VANZED"})
      Run(QString("INSERT INTO TournamentEntrants (SanctionID, PlayerID) VALUES ('%1')")
              .arg(entry));
    for (const char* entry : {"'MN25A01', 2", "'MN25A01', 7", "'WI25B02', 1"})
      Run(QString("INSERT INTO TournamentTeamEntrants (SanctionID, TeamID) VALUES (%1)")
              .arg(entry));
  }
  void Run(const QString& sql) { connection.Execute(sql); }
  EntrantTexts Texts(EntryKind kind) {
    return TextsOf(connection, kind, OpenEntries(connection, kind, "MN25A01"));
  }
};

QString Written(const QList<CodeText>& texts) {
  QStringList parts;
  for (const CodeText& text : texts) parts << text.code + '=' + text.text;
  return parts.join("; ");
}

TEST_F(EntryRowsTest, PlayersAreOfferedByLastNameAndTeamsByTheirName) {
  const Recordset players = EntrantList(connection, EntryKind::Players);
  EXPECT_EQ(Column(players, "PlayerID"), "ADAANN VANZED VANAL0");
  EXPECT_EQ(players["PlayerName"], Value("Adams, Ann"));
  EXPECT_EQ(Column(EntrantList(connection, EntryKind::Teams), "Team"), "Aces Ringers");
}

TEST_F(EntryRowsTest, EntriesAreThoseOfTheTournamentAndCanBeEdited) {
  Recordset entries = OpenEntries(connection, EntryKind::Players, "MN25A01");
  EXPECT_EQ(Column(entries, "PlayerID"), "VANAL0 GONE01 ADAANN ADAANN");
  entries.Set("TotalShoes", 40);
  entries.Update();
  Recordset teams = OpenEntries(connection, EntryKind::Teams, "mn25a01");
  EXPECT_EQ(Column(teams, "TeamID"), "2 7");
  teams.Set("Paid", 12.5);
  teams.Update();
  EXPECT_EQ(Column(OpenEntries(connection, EntryKind::Players, "MN25A01"), "TotalShoes").left(2),
            "40");
}

TEST_F(EntryRowsTest, ShoesAndRingersAreReadOnlyWhereTheyAreWanted) {
  const Recordset all = OpenEntries(connection, EntryKind::Players, "MN25A01");
  const Recordset few =
      OpenEntries(connection, EntryKind::Players, "MN25A01", EntryFields::WithoutShoes);
  for (const char* field : {"TotalShoes", "TotalRingers", "RankOverride"}) {
    EXPECT_GE(all.FieldIndex(field), 0) << field;
    EXPECT_EQ(few.FieldIndex(field), -1) << field;
  }
  EXPECT_EQ(Column(few, "PlayerID"), Column(all, "PlayerID"));
}

TEST_F(EntryRowsTest, EverybodyEnteredHasANameOnceAndWhoIsGoneIsToldByNumber) {
  const EntrantTexts players = Texts(EntryKind::Players);
  EXPECT_EQ(Written(players.names),
            "VANAL0=Van Horn, Al; GONE01=GONE01 (not on file); ADAANN=Adams, Ann");
  EXPECT_EQ(Written(players.divisions), "VANAL0=Unknown; GONE01=Unknown; ADAANN=Cadet Girl");
  const EntrantTexts teams = Texts(EntryKind::Teams);
  EXPECT_EQ(Written(teams.names), "2=Aces; 7=7 (not on file)");
  EXPECT_TRUE(teams.divisions.isEmpty());
}

}  // namespace
}  // namespace tavrelin
