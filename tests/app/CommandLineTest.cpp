#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include "app/ClubCommands.h"
#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct Answer {
  int code = -1;
  QString out;
  QString err;
};

Answer Ask(const QList<Command>& commands, const QStringList& arguments) {
  Answer answer;
  QTextStream out(&answer.out);
  QTextStream err(&answer.err);
  answer.code = RunCommandLine(commands, arguments, out, err);
  return answer;
}

QList<Command> TestCommands() {
  return {{"greet", "greet NAME", "Says hello.", 1, 1,
           [](const QStringList& arguments, QTextStream& out, QTextStream&) {
             out << "hello " << arguments[0] << '\n';
             return exits::Done;
           }},
          {"refuse", "refuse", "Refuses.", 0, 0,
           [](const QStringList&, QTextStream&, QTextStream&) -> int {
             throw Error(errors::File, "The disk is full.");
           }},
          {"puzzle", "puzzle NUMBER", "Wants a number.", 1, 1,
           [](const QStringList&, QTextStream&, QTextStream&) -> int { throw WrongUsage(); }}};
}

TEST(CommandLineTest, ACommandRunsWithItsArguments) {
  const Answer answer = Ask(TestCommands(), {"greet", "Ann"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "hello Ann\n");
  EXPECT_EQ(answer.err, "");
}

TEST(CommandLineTest, ARefusalEndsWithOneAndTheMessageOnTheErrorStream) {
  const Answer answer = Ask(TestCommands(), {"refuse"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "The disk is full.\n");
}

struct WrongUsageTest : testing::TestWithParam<QStringList> {};

TEST_P(WrongUsageTest, EndsWithTwoAndTellsTheUsage) {
  const Answer answer = Ask(TestCommands(), GetParam());
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_TRUE(answer.err.contains("Usage: tavrelinctl"));
}

INSTANTIATE_TEST_SUITE_P(CommandLine, WrongUsageTest,
                         testing::Values(QStringList{}, QStringList{"dance"}, QStringList{"greet"},
                                         QStringList{"greet", "Ann", "Bob"},
                                         QStringList{"puzzle", "x"}, QStringList{"GREET", "Ann"}));

TEST(CommandLineTest, HelpListsAllCommandsOrTellsOne) {
  const Answer all = Ask(TestCommands(), {"--help"});
  EXPECT_EQ(all.code, 0);
  EXPECT_EQ(all.err, "");
  for (const char* usage : {"greet NAME", "refuse", "puzzle NUMBER"}) {
    EXPECT_TRUE(all.out.contains(usage)) << usage;
  }
  const Answer one = Ask(TestCommands(), {"greet", "--help"});
  EXPECT_EQ(one.code, 0);
  EXPECT_EQ(one.out, "Usage: tavrelinctl greet NAME\nSays hello.\n");
}

struct PlainCase {
  Value value;
  const char* text;
};
struct PlainTextTest : testing::TestWithParam<PlainCase> {};

TEST_P(PlainTextTest, WritesAValueAsScriptsReadIt) {
  EXPECT_EQ(PlainText(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, PlainTextTest,
    testing::Values(PlainCase{Value(), ""}, PlainCase{200.0 / 3, "66.66666666666667"},
                    PlainCase{0.1, "0.1"}, PlainCase{1e-7, "0.0000001"}, PlainCase{50.0, "50"},
                    PlainCase{1e21, "1000000000000000000000"}, PlainCase{-7, "-7"},
                    PlainCase{true, "True"}, PlainCase{"É O'Brien", "É O'Brien"},
                    PlainCase{"a\tb\r\nc", "a b  c"},
                    PlainCase{QDateTime(QDate(2026, 6, 6), QTime(8, 0)), "2026-06-06 08:00:00"}));

TEST(CommandLineTest, ARecordsetIsWrittenWithAHeaderLineUnderItsFilter) {
  Recordset rows;
  rows.Append("Name", FieldType::Text, 20);
  rows.Append("Percent", FieldType::Double);
  rows.OpenInMemory();
  for (const double percent : {66.5, 12.25, 80.0}) {
    rows.AddNew();
    rows.Set("Name", QStringLiteral("P%1").arg(percent));
    rows.Set("Percent", percent);
    rows.Update();
  }
  rows.SetFilter("Percent > 20");
  QString all;
  QTextStream out(&all);
  WriteRecordset(out, rows);
  EXPECT_EQ(all, "Name\tPercent\nP66.5\t66.5\nP80\t80\n");
  QString some;
  QTextStream outSome(&some);
  WriteRecordset(outSome, rows, {"Percent"});
  EXPECT_EQ(some, "Percent\n66.5\n80\n");
  EXPECT_THROW(WriteRecordset(outSome, rows, {"Nonsense"}), Error);
}

struct ClubCommandsTest : testing::Test {
  QTemporaryDir folder;
  QString file = folder.filePath("Club.mdb");
};

TEST_F(ClubCommandsTest, NewMakesAFileThatChecksWellAndRefusesToMakeItAgain) {
  EXPECT_EQ(Ask(ClubCommands(), {"new", file}).code, 0);
  const Answer check = Ask(ClubCommands(), {"check", file});
  EXPECT_EQ(check.code, 0);
  EXPECT_EQ(check.err, "");
  EXPECT_EQ(check.out,
            "Check\tResult\tTable\tFinding\nintegrity\tfine\t\tok\nversion\tfine\tSystemSettings\t"
            "11.17\n");
  const Answer again = Ask(ClubCommands(), {"new", file});
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
  const Answer check = Ask(ClubCommands(), {"check", file});
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
  const Answer check = Ask(ClubCommands(), {"check", file});
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
  const Answer check = Ask(ClubCommands(), {"check", file});
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
  process.start(QStringLiteral(TAVRELIN_BINARY_DIR "/src/app/tavrelinctl"), {"check", file});
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
  const Answer backup = Ask(ClubCommands(), {"backup", file});
  EXPECT_EQ(backup.code, 0) << backup.err.toStdString();
  EXPECT_TRUE(backup.out.startsWith(folder.filePath("Backups/Club.")));
  EXPECT_EQ(PlainDatabase(backup.out.trimmed()).Content(), PlainDatabase(file).Content());
  EXPECT_EQ(Ask(ClubCommands(), {"backup", folder.filePath("None.mdb")}).code, 1);
}

TEST(TavrelinctlTest, ExitCodesReachTheShell) {
  const QTemporaryDir folder;
  const QString program = QStringLiteral(TAVRELIN_BINARY_DIR "/src/app/tavrelinctl");
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
