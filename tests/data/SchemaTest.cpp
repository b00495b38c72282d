#include "data/Schema.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "data/Backup.h"
#include "data/Connection.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct SchemaTest : testing::Test {
  QTemporaryDir folder;
  QString file = folder.filePath("Tavrelin.mdb");

  void Fill(PlainDatabase& db) {
    db.Run(
        "INSERT INTO Tournaments (SanctionID) VALUES ('TX05001'), ('TX05002');"
        "INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('TX05001', 'A'), ('TX05001', "
        "'B'), ('TX05002', 'A');"
        "INSERT INTO TournamentEntrants (SanctionID, PlayerID, ClassID) VALUES ('TX05001', 'ONE', "
        "'A'), ('TX05001', 'TWO', 'B'), ('TX05002', 'ONE', 'A');"
        "INSERT INTO TournamentTeamEntrants (SanctionID, TeamID, ClassID) VALUES ('TX05001', 1, "
        "'A'), ('TX05002', 1, 'A');"
        "INSERT INTO TournamentSinglesRR (SanctionID, ClassID, Game) VALUES ('TX05001', 'A', 1), "
        "('TX05001', 'B', 1), ('TX05002', 'A', 1);"
        "INSERT INTO TournamentDoublesRR (SanctionID, ClassID, Game) VALUES ('TX05001', 'A', 1), "
        "('TX05002', 'A', 1);"
        "INSERT INTO ReportGroup (SanctionID) VALUES ('TX05001'), ('TX05002');"
        "INSERT INTO ReportGroupClass VALUES (1, 'TX05001', 'A'), (1, 'TX05001', 'B'), (2, "
        "'TX05002', 'A');"
        "INSERT INTO PlayerScores (SanctionID, PlayerID) VALUES ('TX05001', 'ONE'), ('TX05002', "
        "'ONE');"
        "INSERT INTO LeagueScores (SanctionID, PlayerID) VALUES ('TX05001', 'ONE');");
  }
};

TEST_F(SchemaTest, ANewClubFileHasAllTablesAndTheElevenSettings) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  EXPECT_EQ(db.Count("sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'"), 23);
  EXPECT_EQ(db.Count("SystemSettings"), 11);
  EXPECT_EQ(db.Cell("SELECT SettingValue FROM SystemSettings WHERE SettingID = 0"), "11.17");
  EXPECT_EQ(db.Cell("SELECT PromptValue FROM SystemSettings WHERE SettingID = 3"),
            "Round Robin Card Style: 1=Card; 2=Folded; 3=2up");
  EXPECT_EQ(db.Cell("SELECT PromptValue FROM SystemSettings WHERE SettingID = 5"),
            "Record handicaps weekly when entering league scores");
  EXPECT_EQ(db.Cell("SELECT group_concat(SettingValue, ' ') FROM SystemSettings"),
            "11.17 0 0 N N N N N N 0 N");
  EXPECT_EQ(db.Cell("SELECT typeof(SettingValue) FROM SystemSettings WHERE SettingID = 1"), "text");
}

TEST_F(SchemaTest, ColumnsStandInThePhysicalOrderThatInsertsWithoutAListRelyOn) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  const auto columns = [&](const char* table) {
    return db.Cell(QStringLiteral("SELECT group_concat(name, ' ') FROM pragma_table_info('%1')")
                       .arg(QLatin1String(table)));
  };
  EXPECT_EQ(
      columns("Players"),
      "PlayerID FirstName LastName Category CardNumber CardYear Telephone AddressOne City "
      "State ZipCode BirthDate Longevity Remarks Average CellPhone Email EmergencyInfo Awards "
      "MembershipType");
  EXPECT_EQ(columns("PlayerScores"),
            "SanctionID PlayerID Shoes Ringers Category Wins Losses Place HiGame Points "
            "HiGamePoints ClassID");
  EXPECT_EQ(columns("Tournaments"), "SanctionID Name Date City State Director");
  EXPECT_EQ(
      columns("StateMembershipReport"),
      "SanctionID Year ReportNumber ReportDate CharterName OfficerName AdultCount JuniorCount "
      "LifetimeCount DirectCount ProvisionalCount");
  EXPECT_EQ(columns("SystemSettings"), "SettingID PromptValue SettingValue");
}

TEST_F(SchemaTest, ANewEntryStartsWithZerosAndNoChecks) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  db.Run(
      "INSERT INTO TournamentEntrants (SanctionID, PlayerID) VALUES ('TX05001', 'ONE');"
      "INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('TX05001', 'A')");
  const QStringList zeros(12, "0");
  EXPECT_EQ(db.Rows("SELECT Paid, Seed, RingerPercent, TotalShoes, TotalRingers, TotalPoints, "
                    "TotalWins, TotalLosses, HeadToHead, HiGame, RankOverride, HiGamePoints FROM "
                    "TournamentEntrants")[0]
                .replaceInStrings("0.0", "0"),
            zeros);
  EXPECT_EQ(db.Rows("SELECT ChampionshipClass, Report, RankOverride, HandicapPct, Shoes FROM "
                    "TournamentClasses")[0],
            (QStringList{"0", "0", "0", "(null)", "(null)"}));
}

TEST_F(SchemaTest, TheEngineNumbersTeamsListsLettersGroupsGamesAndLeagueScores) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  const QList<QStringList> automatic{
      {"Teams", "TeamID", "Team"},          {"LabelLists", "LabelListID", "Name"},
      {"Invitations", "InviteID", "Name"},  {"ReportGroup", "GroupID", "SanctionID"},
      {"LeagueScores", "ID", "SanctionID"}, {"TournamentSinglesRR", "GameID", "SanctionID"}};
  for (const QStringList& one : automatic) {
    const QString insert = QStringLiteral("INSERT INTO %1 (%2) VALUES ('x')").arg(one[0], one[2]);
    db.Run(insert);
    db.Run(QStringLiteral("DELETE FROM %1").arg(one[0]));
    db.Run(insert);
    EXPECT_EQ(db.Cell(QStringLiteral("SELECT %1 FROM %2").arg(one[1], one[0])), "2")
        << one[0].toStdString();
  }
}

TEST_F(SchemaTest, OnlySanctionNumbersAndNumericKeysAreIndexed) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  const QString indexed = db.Cell(
      "SELECT group_concat(DISTINCT i.name) FROM sqlite_master m, pragma_index_info(m.name) i "
      "WHERE "
      "m.type = 'index' AND m.sql IS NOT NULL");
  for (const QString& column : indexed.split(',')) {
    EXPECT_TRUE(column == "SanctionID" || column == "TeamID" || column == "LabelListID" ||
                column == "GroupID")
        << column.toStdString();
  }
}

TEST_F(SchemaTest, DeletingATournamentTakesAllThatIsItsOwnAndNothingElse) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  Fill(db);
  db.Run("DELETE FROM Tournaments WHERE SanctionID = 'TX05001'");
  for (const char* table :
       {"TournamentClasses", "TournamentEntrants", "TournamentTeamEntrants", "TournamentSinglesRR",
        "TournamentDoublesRR", "ReportGroup", "ReportGroupClass", "PlayerScores"}) {
    const QString name = QLatin1String(table);
    EXPECT_EQ(db.Count(name + " WHERE SanctionID = 'TX05001'"), 0) << table;
    EXPECT_EQ(db.Count(name + " WHERE SanctionID = 'TX05002'"), 1) << table;
  }
  EXPECT_EQ(db.Count("LeagueScores"), 1);
}

TEST_F(SchemaTest, AMendedSanctionNumberTakesAlongAllThatIsKeptUnderIt) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  Fill(db);
  const QStringList tables = {
      "TournamentClasses",   "TournamentEntrants", "TournamentTeamEntrants", "TournamentSinglesRR",
      "TournamentDoublesRR", "ReportGroup",        "ReportGroupClass",       "PlayerScores"};
  QHash<QString, int> before;
  for (const QString& table : tables)
    before[table] = db.Count(table + " WHERE SanctionID = 'TX05001'");
  db.Run("UPDATE Tournaments SET SanctionID = 'TX05009' WHERE SanctionID = 'TX05001'");
  for (const QString& table : tables) {
    EXPECT_EQ(db.Count(table + " WHERE SanctionID = 'TX05009'"), before[table])
        << table.toStdString();
    EXPECT_EQ(db.Count(table + " WHERE SanctionID = 'TX05001'"), 0);
    EXPECT_EQ(db.Count(table + " WHERE SanctionID = 'TX05002'"), 1);
  }
}

TEST_F(SchemaTest, AMendedNumberOfALeagueTakesMembersTeamsAndScoresAlong) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  const QStringList tables = {"LeagueMembers", "LeagueTeams", "LeagueScores", "LeagueTeamScores"};
  for (const QString number : {"TX05001", "TX05002"}) {
    db.Run("INSERT INTO Leagues (SanctionID) VALUES ('" + number + "')");
    for (const QString& table : tables)
      db.Run("INSERT INTO " + table + " (SanctionID) VALUES ('" + number + "')");
  }
  db.Run("UPDATE Leagues SET SanctionID = 'TX05009' WHERE SanctionID = 'TX05001'");
  for (const QString& table : tables) {
    EXPECT_EQ(db.Count(table + " WHERE SanctionID = 'TX05009'"), 1) << table.toStdString();
    EXPECT_EQ(db.Count(table + " WHERE SanctionID = 'TX05002'"), 1) << table.toStdString();
  }
}

TEST_F(SchemaTest, ADeletedLeagueLeavesItsMembersAndScores) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  db.Run(
      "INSERT INTO Leagues (SanctionID) VALUES ('TX05001');"
      "INSERT INTO LeagueMembers (SanctionID) VALUES ('TX05001');"
      "INSERT INTO LeagueScores (SanctionID) VALUES ('TX05001');"
      "DELETE FROM Leagues");
  EXPECT_EQ(db.Count("LeagueMembers"), 1);
  EXPECT_EQ(db.Count("LeagueScores"), 1);
}

TEST_F(SchemaTest, TheNumberOfOneOfTwoRowsOfATournamentTakesNothingAlong) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  Fill(db);
  db.Run(
      "INSERT INTO Tournaments (SanctionID) VALUES ('TX05001');"
      "UPDATE Tournaments SET SanctionID = 'TX05009' WHERE rowid = 3");
  EXPECT_EQ(db.Count("TournamentEntrants WHERE SanctionID = 'TX05009'"), 0);
}

TEST_F(SchemaTest, DeletingAClassTakesItsGamesAndLeavesItsEntriesUnplaced) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  Fill(db);
  db.Run("DELETE FROM TournamentClasses WHERE SanctionID = 'TX05001' AND ClassID = 'A'");
  EXPECT_EQ(db.Cell("SELECT group_concat(SanctionID || ClassID) FROM TournamentSinglesRR"),
            "TX05001B,TX05002A");
  EXPECT_EQ(db.Cell("SELECT group_concat(SanctionID || ClassID) FROM TournamentDoublesRR"),
            "TX05002A");
  EXPECT_EQ(db.Cell("SELECT group_concat(SanctionID || ClassID) FROM ReportGroupClass"),
            "TX05001B,TX05002A");
  EXPECT_EQ(db.Cell("SELECT group_concat(PlayerID || ClassID) FROM TournamentEntrants"),
            "ONE,TWOB,ONEA");
  EXPECT_EQ(db.Cell("SELECT group_concat(TeamID || ClassID) FROM TournamentTeamEntrants"), "1,1A");
}

TEST_F(SchemaTest, DeletingOneOfTwoRowsOfATournamentLosesNothing) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  Fill(db);
  db.Run(
      "INSERT INTO Tournaments (SanctionID) VALUES ('TX05001');"
      "DELETE FROM Tournaments WHERE rowid = 3");
  EXPECT_EQ(db.Count("TournamentEntrants"), 3);
  EXPECT_EQ(db.Count("PlayerScores"), 2);
}

TEST_F(SchemaTest, AFileThatIsThereIsNeverReplaced) {
  QFile other(file);
  ASSERT_TRUE(other.open(QFile::WriteOnly));
  other.write("something else");
  other.close();
  EXPECT_THROW(DeliverClubFile(file), Error);
  ASSERT_TRUE(other.open(QFile::ReadOnly));
  EXPECT_EQ(other.readAll(), "something else");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"Tavrelin.mdb"});
}

TEST_F(SchemaTest, AMissingFolderIsMadeAndNothingElseIsLeftInIt) {
  const QString deep = folder.filePath("a/b/Club.mdb");
  DeliverClubFile(deep);
  EXPECT_EQ(QDir(folder.filePath("a/b")).entryList(QDir::Files), QStringList{"Club.mdb"});
}

TEST_F(SchemaTest, AFolderThatCannotBeMadeIsToldAndLeavesNothing) {
  DeliverClubFile(file);
  EXPECT_THROW(DeliverClubFile(file + "/Club.mdb"), Error);
}

TEST_F(SchemaTest, ADeliveredFileOpensAsAClubFile) {
  DeliverClubFile(file);
  Connection connection;
  connection.Open(ConnectStringFor(file));
  EXPECT_EQ(connection.Execute("INSERT INTO Teams (Team) VALUES ('Ringers')"), 1);
}

TEST_F(SchemaTest, ACopyIsTheWholeFileAndRefusesToReplaceAnother) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  Fill(db);
  Connection connection;
  connection.Open(ConnectStringFor(file));
  const QString copy = CopyBeforeUpgrade(connection.Handle(), file, QDate(2026, 11, 21));
  EXPECT_EQ(copy, folder.filePath("Tavrelin.before-upgrade-2026-11-21.mdb"));
  EXPECT_EQ(CopyBeforeUpgrade(connection.Handle(), file, QDate(2026, 11, 21)),
            folder.filePath("Tavrelin.before-upgrade-2026-11-21-2.mdb"));
  EXPECT_THROW(CopyClubFile(connection.Handle(), copy), Error);
  EXPECT_EQ(PlainDatabase(copy).Content(), db.Content());
}

}  // namespace
}  // namespace tavrelin
