// What is left of a club's file and its backups when a backup or a restore is struck.

#include <cstdio>

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "data/Backup.h"
#include "data/Schema.h"
#include "support/FaultBench.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

constexpr const char* FileName = "TAVRELIN_BACKUP_FILE";
const QDateTime Noon(QDate(2026, 11, 21), QTime(12, 0, 0));

template <class Work>
void Tell(const Work& work) {
  try {
    work(qEnvironmentVariable(FileName));
    std::puts("done");
  } catch (const Error& error) {
    std::printf("refused: %s\n", error.what());
  }
}

TEST(BackupWorker, DISABLED_BacksUp) {
  Tell([](const QString& file) { BackUpClub(file, Noon); });
}

TEST(BackupWorker, DISABLED_Restores) {
  Tell([](const QString& file) { RestoreClub(file, BackupsOf(file).last().path, Noon); });
}

/// Ten backups, the oldest of them another state of the club's file.
struct BackupFaultTest : testing::Test {
  QTemporaryDir folder;
  QString club = folder.filePath("Club.mdb");
  QStringList before, after;
  FaultBench bench;
  const QStringList backsUp = FaultBench::Worker("BackupWorker.DISABLED_BacksUp");
  const QStringList restores = FaultBench::Worker("BackupWorker.DISABLED_Restores");

  void SetUp() override {
    bench.SetVariable(FileName, club);
    bench.SetVariable("ASAN_OPTIONS", "detect_leaks=0");
    DeliverClubFile(club);
    after = PlainDatabase(club).Content();
    MakeBackups(0, 1);
    PlainDatabase(club).Run("INSERT INTO Players (PlayerID) VALUES ('OLSON')");
    before = PlainDatabase(club).Content();
    MakeBackups(1, BackupsKept);
  }
  void MakeBackups(int from, int to) const {
    for (int day = from; day < to; ++day) BackUpClub(club, Noon.addDays(day - 100));
  }
  QStringList Leftovers() const {
    return QDir(folder.path()).entryList({"*.new*"}, QDir::Files) +
           QDir(folder.filePath("Backups")).entryList({"*.new*"}, QDir::Files);
  }
  void CheckBackups(int at) const {
    const QList<ClubBackup> backups = BackupsOf(club);
    EXPECT_GE(backups.size(), BackupsKept - 1) << at;
    for (const ClubBackup& backup : backups) {
      EXPECT_EQ(PlainDatabase(backup.path).Cell("PRAGMA integrity_check"), "ok") << at;
    }
  }
  /// The file as it was before the strike, with its ten backups.
  void StartAnew() {
    QDir(folder.filePath("Backups")).removeRecursively();
    QFile::remove(club);
    SetUp();
  }
};

TEST_F(BackupFaultTest, ABackupThatIsKilledLeavesTheFileAndTheOldBackups) {
  int strikes = 0;
  for (int at = 1; at < 200; at += 11) {
    const FaultBench::Outcome outcome = bench.KillAt(at, backsUp);
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    EXPECT_EQ(PlainDatabase(club).Content(), before) << at;
    EXPECT_GE(BackupsOf(club).size(), BackupsKept) << at;
    CheckBackups(at);
    if (!outcome.killed) break;
    ++strikes;
  }
  EXPECT_GT(strikes, 3);
  EXPECT_EQ(Leftovers(), QStringList());  // the last one was not killed and cleared up
}

TEST_F(BackupFaultTest, ARestoreThatIsKilledLeavesTheOldFileOrTheRestoredOne) {
  int strikes = 0;
  bool restored = false;
  for (const QString call : {"pwrite64", "rename", "renameat2", "unlink", "fdatasync"}) {
    for (int at = 1; at < 200; at += call == "pwrite64" ? 23 : 1) {
      StartAnew();
      const FaultBench::Outcome outcome = bench.KillAt(at, restores, call);
      if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
      const QStringList content = PlainDatabase(club).Content();
      EXPECT_TRUE(content == before || content == after) << call.toStdString() << at;
      restored = restored || content == after;
      CheckBackups(at);
      if (!outcome.killed) break;
      ++strikes;
    }
  }
  EXPECT_TRUE(restored);
  EXPECT_GT(strikes, 8);
}

TEST_F(BackupFaultTest, AFullDiskIsToldAndNothingIsLost) {
  for (const int at : {1, 9}) {
    for (const QStringList& worker : {backsUp, restores}) {
      const FaultBench::Outcome outcome = bench.FailFrom(at, "ENOSPC", worker);
      if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
      EXPECT_TRUE(outcome.output.contains("refused: The disk is full"))
          << outcome.output.toStdString();
      EXPECT_EQ(PlainDatabase(club).Content(), before);
      EXPECT_EQ(BackupsOf(club).size(), BackupsKept);
      EXPECT_EQ(Leftovers(), QStringList());
    }
  }
}

TEST_F(BackupFaultTest, AReadOnlyFolderIsToldAndNothingIsLost) {
  for (const QStringList& worker : {backsUp, restores}) {
    const FaultBench::Outcome outcome = bench.WithReadOnly(folder.path(), worker);
    if (!outcome.ran) GTEST_SKIP() << "mounting is not allowed here";
    EXPECT_TRUE(outcome.output.contains("refused: ")) << outcome.output.toStdString();
    EXPECT_EQ(PlainDatabase(club).Content(), before);
    EXPECT_EQ(BackupsOf(club).size(), BackupsKept);
  }
}

}  // namespace
}  // namespace tavrelin
