#include "app/ClubCommands.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "support/BuiltProgram.h"
#include "support/CommandAnswer.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct ClubCommandsTest : testing::Test {
  QTemporaryDir folder;
  QString file = folder.filePath("Club.mdb");
};

TEST_F(ClubCommandsTest, NewMakesAFileThatChecksWellAndRefusesToMakeItAgain) {
  EXPECT_EQ(Ask(ClubCommands(), {"new", file}).code, 0);
  const CommandAnswer check = Ask(ClubCommands(), {"check", file});
  EXPECT_EQ(check.code, 0);
  EXPECT_EQ(check.err, "");
  EXPECT_EQ(check.out,
            "Check\tResult\tTable\tFinding\nintegrity\tfine\t\tok\nversion\tfine\tSystemSettings\t"
            "11.17\n");
  const CommandAnswer again = Ask(ClubCommands(), {"new", file});
  EXPECT_EQ(again.code, 1);
  EXPECT_TRUE(again.err.contains("exists"));
}

TEST_F(ClubCommandsTest, AFileNeedsNoParticularEnding) {
  EXPECT_EQ(Ask(ClubCommands(), {"new", folder.filePath("plain")}).code, 0);
  EXPECT_EQ(Ask(ClubCommands(), {"check", folder.filePath("plain")}).code, 0);
}

TEST_F(ClubCommandsTest, CheckRefusesWhatIsNoClubFile) {
  EXPECT_EQ(Ask(ClubCommands(), {"check", file}).code, 1);
  QFile other(file);
  ASSERT_TRUE(other.open(QFile::WriteOnly));
  other.write(QByteArray(5000, 'x'));
  other.close();
  EXPECT_EQ(Ask(ClubCommands(), {"check", file}).code, 1);
}

struct WrongCase {
  const char* damage;
  const char* line;
};
struct WrongFileTest : ClubCommandsTest, testing::WithParamInterface<WrongCase> {};

TEST_P(WrongFileTest, IsToldAndEndsWithOne) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(QLatin1String(GetParam().damage));
  const CommandAnswer check = Ask(ClubCommands(), {"check", file});
  EXPECT_EQ(check.code, 1);
  EXPECT_TRUE(check.out.contains(GetParam().line)) << check.out.toStdString();
  EXPECT_EQ(check.err, "The file is not in order: 1 finding.\n");
}

INSTANTIATE_TEST_SUITE_P(
    Club, WrongFileTest,
    testing::Values(
        WrongCase{"UPDATE SystemSettings SET SettingValue = '11.9' WHERE SettingID = 0",
                  "version\twrong\tSystemSettings\t11.9\n"},
        WrongCase{"DELETE FROM SystemSettings WHERE SettingID = 0",
                  "version\twrong\tSystemSettings\tnone\n"},
        WrongCase{"INSERT INTO SystemSettings VALUES (0, 'Database Version', '11.17')",
                  "version\twrong\tSystemSettings\t2 rows\n"},
        WrongCase{"DROP TABLE LabelLists", "layout\twrong\tLabelLists\tno such table\n"},
        WrongCase{"ALTER TABLE Players DROP COLUMN Awards; ALTER TABLE Players DROP COLUMN Email",
                  "layout\twrong\tPlayers\tlacks Email, Awards\n"},
        WrongCase{"INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('TX05001', 'A')",
                  "orphans\twrong\tTournamentClasses\t1 rows whose SanctionID is not in "
                  "Tournaments\n"},
        WrongCase{
            "INSERT INTO Tournaments (SanctionID) VALUES ('TX05001'); INSERT INTO "
            "TournamentEntrants (SanctionID, ClassID) VALUES ('TX05001', 'B'), ('TX05001', ''),"
            " ('TX05001', NULL)",
            "orphans\twrong\tTournamentEntrants\t1 rows whose SanctionID, ClassID is not in "
            "TournamentClasses\n"},
        WrongCase{"INSERT INTO TournamentSinglesRR (SanctionID, ClassID) VALUES ('TX05001', 'B')",
                  "orphans\twrong\tTournamentSinglesRR\t1 rows"},
        WrongCase{"INSERT INTO PlayerScores (SanctionID, PlayerID) VALUES ('TX05001', NULL)",
                  "orphans\twrong\tPlayerScores\t1 rows"}));

TEST_F(ClubCommandsTest, WhatTheProgramItselfLeavesBehindIsOnlyNoted) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "INSERT INTO Tournaments (SanctionID) VALUES ('TX05001');"
      "INSERT INTO PlayerScores (SanctionID, PlayerID) VALUES ('TX05001', 'GONE00');"
      "INSERT INTO TeamPlayers VALUES (7, 'GONE00')");
  const CommandAnswer check = Ask(ClubCommands(), {"check", file});
  EXPECT_EQ(check.code, 0);
  EXPECT_TRUE(
      check.out.contains("orphans\tnote\tPlayerScores\t1 rows whose PlayerID is not in Players\n"));
  EXPECT_TRUE(
      check.out.contains("orphans\tnote\tTeamPlayers\t1 rows whose TeamID is not in Teams"));
}

TEST_F(ClubCommandsTest, ThePacerIsNoMissingPlayer) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "INSERT INTO Tournaments (SanctionID) VALUES ('TX05001');"
      "INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('TX05001', 'A');"
      "INSERT INTO Players (PlayerID) VALUES ('ONE');"
      "INSERT INTO TournamentSinglesRR (SanctionID, ClassID, PlayerOneID, PlayerTwoID) VALUES "
      "('TX05001', 'A', 'ONE', 'PPPPPP'), ('TX05001', 'A', 'PPPPPP', 'ONE')");
  EXPECT_FALSE(Ask(ClubCommands(), {"check", file}).out.contains("orphans"));
}

TEST_F(ClubCommandsTest, CheckFindsADamagedPage) {
  DeliverClubFile(file);
  {
    PlainDatabase db(file);
    for (int i = 0; i < 300; ++i) {
      db.Run(QStringLiteral("INSERT INTO Tournaments (SanctionID) VALUES ('TX%1')")
                 .arg(i, 5, 10, QLatin1Char('0')));
    }
  }
  QFile bytes(file);
  ASSERT_TRUE(bytes.open(QFile::ReadWrite));
  bytes.seek(bytes.size() - 4096);
  bytes.write(QByteArray(4096, '\xff'));
  bytes.close();
  const CommandAnswer check = Ask(ClubCommands(), {"check", file});
  EXPECT_EQ(check.code, 1);
  EXPECT_FALSE(check.err.isEmpty());
}

TEST_F(ClubCommandsTest, CheckWritesNothingAndWorksBesideAnOpenWindow) {
  DeliverClubFile(file);
  QFile bytes(file);
  ASSERT_TRUE(bytes.open(QFile::ReadOnly));
  const QByteArray before = bytes.readAll();
  Connection window;
  window.Open(FileConnectString(file));
  QProcess process;
  process.start(BuiltProgram("tavrelinctl"), {"check", file});
  ASSERT_TRUE(process.waitForFinished(30000));
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  EXPECT_TRUE(process.readAllStandardOutput().startsWith("Check\tResult\tTable\tFinding\n"));
  bytes.seek(0);
  EXPECT_EQ(bytes.readAll(), before);
}

TEST_F(ClubCommandsTest, BackupWritesThePathOfTheCopyItMadeBesideAnOpenWindow) {
  DeliverClubFile(file);
  Connection window;
  window.Open(FileConnectString(file));
  const CommandAnswer backup = Ask(ClubCommands(), {"backup", file});
  EXPECT_EQ(backup.code, 0) << backup.err.toStdString();
  EXPECT_TRUE(backup.out.startsWith(folder.filePath("Backups/Club.")));
  EXPECT_EQ(PlainDatabase(backup.out.trimmed()).Content(), PlainDatabase(file).Content());
  EXPECT_EQ(Ask(ClubCommands(), {"backup", folder.filePath("None.mdb")}).code, 1);
}

TEST(TavrelinctlTest, ExitCodesReachTheShell) {
  const QTemporaryDir folder;
  const QString program = BuiltProgram("tavrelinctl");
  EXPECT_EQ(QProcess::execute(program, {"new", folder.filePath("Éclair.mdb")}), 0);
  EXPECT_TRUE(QFile::exists(folder.filePath("Éclair.mdb")));
  QProcess process;
  process.start(program, {"new", folder.filePath("Éclair.mdb")});
  ASSERT_TRUE(process.waitForFinished(30000));
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_TRUE(QString::fromUtf8(process.readAllStandardError()).contains("Éclair.mdb"));
  process.start(program, {"dance"});
  ASSERT_TRUE(process.waitForFinished(30000));
  EXPECT_EQ(process.exitCode(), 2);
}

}  // namespace
}  // namespace tavrelin
