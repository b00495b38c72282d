#include "data/Backup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/NewFile.h"
#include "data/Schema.h"
#include "shell/BackupTexts.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

const QDateTime Noon(QDate(2026, 11, 21), QTime(12, 0, 5));

struct BackupTest : testing::Test {
  QTemporaryDir folder;
  QString club = folder.filePath("Club.mdb");

  void SetUp() override { DeliverClubFile(club); }

  void AddPlayer(const QString& name) {
    PlainDatabase(club).Run("INSERT INTO Players (PlayerID, LastName) VALUES ('" + name + "', '" +
                            name + "')");
  }
  static QString Players(const QString& file) {
    return PlainDatabase(file).Cell("SELECT group_concat(PlayerID) FROM Players");
  }
  QStringList Files(const QString& inFolder) const {
    return QDir(folder.filePath(inFolder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  void Write(const QString& name, const QByteArray& bytes) const {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).absolutePath()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray Read(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  /// What the operator reads; empty when it is done.
  template <class Work>
  QString RefusalOf(const Work& work) {
    try {
      work();
    } catch (const Error& error) {
      return error.description();
    }
    return {};
  }
};

TEST_F(BackupTest, ABackupStandsInTheFolderBesideTheFileWithItsMoment) {
  AddPlayer("OLSON");
  const QString made = BackUpClub(club, Noon);
  EXPECT_EQ(made, folder.filePath("Backups/Club.2026-11-21_12-00-05.mdb"));
  EXPECT_EQ(PlainDatabase(made).Content(), PlainDatabase(club).Content());
  const QList<ClubBackup> backups = BackupsOf(club);
  ASSERT_EQ(backups.size(), 1);
  EXPECT_EQ(backups[0].path, made);
  EXPECT_EQ(backups[0].made, Noon);
  EXPECT_EQ(backups[0].size, QFileInfo(club).size());
}

TEST_F(BackupTest, AFileThatIsOpenAndBeingWorkedOnIsBackedUpAsItsLastCommitLeftIt) {
  Connection window;
  window.Open(ConnectStringFor(club));
  window.Execute("INSERT INTO Players (PlayerID) VALUES ('ONE')");
  Batch batch(window);
  window.Execute("INSERT INTO Players (PlayerID) VALUES ('TWO')");
  EXPECT_EQ(Players(BackUpClub(club, Noon)), "ONE");
}

TEST_F(BackupTest, TwoBackupsOfOneSecondBothStay) {
  BackUpClub(club, Noon);
  AddPlayer("OLSON");
  const QString second = BackUpClub(club, Noon);
  EXPECT_EQ(second, folder.filePath("Backups/Club.2026-11-21_12-00-05-2.mdb"));
  EXPECT_EQ(BackupsOf(club)[0].path, second);
  EXPECT_EQ(BackupsOf(club).size(), 2);
}

TEST_F(BackupTest, TheLastTenAreKept) {
  QStringList made;
  for (int day = 0; day < 12; ++day) made << BackUpClub(club, Noon.addDays(day));
  QStringList kept;
  for (const ClubBackup& backup : BackupsOf(club)) kept.prepend(backup.path);
  EXPECT_EQ(kept, made.mid(2));
}

TEST_F(BackupTest, ABackupBeforeADeedIsNamedAfterItAndListedWithIt) {
  AddPlayer("OLSON");
  const QString made = BackUpBefore("archiving scores", club, Noon);
  EXPECT_EQ(made, folder.filePath("Backups/Club.before-archiving-scores.2026-11-21_12-00-05.mdb"));
  EXPECT_EQ(Players(made), "OLSON");
  const QList<ClubBackup> backups = BackupsOf(club);
  ASSERT_EQ(backups.size(), 1);
  EXPECT_EQ(backups[0].deed, "archiving scores");
  EXPECT_EQ(backups[0].made, Noon);
  EXPECT_EQ(BackupDate(backups[0]),
            "Saturday, November 21 2026, 12:00 PM, before archiving scores");
  AddPlayer("WRONG");
  RestoreClub(club, made, Noon.addSecs(60));
  EXPECT_EQ(Players(club), "OLSON");
}

TEST_F(BackupTest, BackupsBeforeDeedsLieOutsideTheTen) {
  const QString deed = BackUpBefore("deleting a league", club, Noon.addDays(-1));
  for (int day = 0; day < 11; ++day) BackUpClub(club, Noon.addDays(day));
  EXPECT_TRUE(QFile::exists(deed));
  EXPECT_EQ(BackupsOf(club).size(), 11);
  for (int day = 0; day < 11; ++day) BackUpBefore("deleting a league", club, Noon.addDays(day));
  EXPECT_EQ(BackupsOf(club).size(), 22);
}

TEST_F(BackupTest, ABackupMadeUnderAClockThatWasSetBackIsNotTheOneThatGoes) {
  for (int day = 0; day < 10; ++day) BackUpClub(club, Noon.addDays(day));
  const QString made = BackUpClub(club, Noon.addYears(-20));
  EXPECT_TRUE(QFile::exists(made));
  EXPECT_EQ(BackupsOf(club).size(), 10);
  EXPECT_FALSE(QFile::exists(folder.filePath("Backups/Club.2026-11-21_12-00-05.mdb")));
}

TEST_F(BackupTest, OtherFilesInTheFolderAreNeitherListedNorRemoved) {
  const QStringList others = {"Club.damaged-2026-01-01.mdb", "Club2.2020-01-01_00-00-00.mdb",
                              "Club.2020-01-01_00-00-00.accdb", "Club.mdb", "notes.txt"};
  for (const QString& other : others) Write("Backups/" + other, "x");
  for (int day = 0; day < 11; ++day) BackUpClub(club, Noon.addDays(day));
  EXPECT_EQ(BackupsOf(club).size(), 10);
  for (const QString& other : others) EXPECT_TRUE(Files("Backups").contains(other));
}

TEST_F(BackupTest, AFileWhosePathHoldsASemicolonIsBackedUp) {
  const QString odd = folder.filePath("Club; new [1].mdb");
  DeliverClubFile(odd);
  EXPECT_EQ(BackUpClub(odd, Noon),
            folder.filePath("Backups/Club; new [1].2026-11-21_12-00-05.mdb"));
  EXPECT_EQ(BackupsOf(odd).size(), 1);
}

TEST_F(BackupTest, ADamagedFileIsNotBackedUpAndItsBackupsStay) {
  for (int day = 0; day < 10; ++day) BackUpClub(club, Noon.addDays(day));
  const QStringList before = Files("Backups");
  QByteArray bytes = Read(club);
  bytes.replace(4096 * 3, 4096, QByteArray(4096, 'x'));
  Write("Club.mdb", bytes);
  EXPECT_TRUE(RefusalOf([&] { BackUpClub(club, Noon.addDays(20)); }).contains("damaged"));
  EXPECT_EQ(Files("Backups"), before);
}

TEST_F(BackupTest, AMissingFileIsRefusedAndNoFolderIsMade) {
  const QString gone = folder.filePath("Gone.mdb");
  EXPECT_TRUE(RefusalOf([&] { BackUpClub(gone, Noon); }).contains("does not exist"));
  EXPECT_FALSE(QFileInfo::exists(folder.filePath("Backups")));
}

TEST_F(BackupTest, AFileInThePlaceOfTheFolderIsToldAndTheClubStays) {
  Write("Backups", "a file");
  AddPlayer("OLSON");
  EXPECT_TRUE(RefusalOf([&] { BackUpClub(club, Noon); }).contains("its folder cannot be made"));
  EXPECT_EQ(Players(club), "OLSON");
}

TEST_F(BackupTest, WhatAKilledProgramLeftIsClearedAwayAndWhatALiveOneWritesStays) {
  const QString alive = QString::number(QCoreApplication::applicationPid());
  QProcess ended;
  ended.start("true", QStringList());
  const QString dead = QString::number(ended.processId());
  ended.waitForFinished();
  const QString stem = "Backups/Club.2026-01-01_00-00-00.mdb.";
  for (const QString& name :
       {stem + dead + ".new", stem + dead + ".new-journal", stem + alive + ".new",
        "Backups/Other.mdb." + dead + ".new", "Backups/Club.mdb." + dead + ".new"}) {
    Write(name, "half a file");
  }
  BackUpClub(club, Noon);
  EXPECT_THAT(Files("Backups"), testing::UnorderedElementsAre(
                                    "Club.2026-01-01_00-00-00.mdb." + alive + ".new",
                                    "Other.mdb." + dead + ".new", "Club.2026-11-21_12-00-05.mdb"));
}

TEST_F(BackupTest, ARestoredFileIsTheBackupAndTheReplacedOneIsABackupToo) {
  AddPlayer("OLSON");
  const QString good = BackUpClub(club, Noon);
  AddPlayer("WRONG");
  const QString kept = RestoreClub(club, good, Noon.addSecs(60));
  EXPECT_EQ(Players(club), "OLSON");
  EXPECT_EQ(kept, folder.filePath("Backups/Club.2026-11-21_12-01-05.mdb"));
  EXPECT_EQ(Players(kept), "OLSON,WRONG");
  EXPECT_EQ(Players(good), "OLSON");
  EXPECT_EQ(Files("."), QStringList("Club.mdb"));
}

TEST_F(BackupTest, TheOldestOfTenBackupsCanBeRestored) {
  AddPlayer("OLSON");
  const QString oldest = BackUpClub(club, Noon);
  AddPlayer("BERG");
  for (int day = 1; day < 10; ++day) BackUpClub(club, Noon.addDays(day));
  RestoreClub(club, oldest, Noon.addDays(10));
  EXPECT_EQ(Players(club), "OLSON");
  EXPECT_EQ(BackupsOf(club).size(), 10);
}

TEST_F(BackupTest, ARestoredFileKeepsTheRightsOfTheOneItReplaces) {
  const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
  QFile::setPermissions(club, rights);
  RestoreClub(club, BackUpClub(club, Noon), Noon);
  EXPECT_EQ(QFile::permissions(club) & ~(QFile::ReadUser | QFile::WriteUser), rights);
}

TEST_F(BackupTest, ALinkToTheFileStaysALink) {
  const QString link = folder.filePath("Link.mdb");
  ASSERT_TRUE(QFile::link(club, link));
  AddPlayer("OLSON");
  const QString made = BackUpClub(link, Noon);
  EXPECT_EQ(made, folder.filePath("Backups/Club.2026-11-21_12-00-05.mdb"));
  AddPlayer("WRONG");
  RestoreClub(link, made, Noon);
  EXPECT_EQ(QFile::symLinkTarget(link), club);
  EXPECT_EQ(Players(club), "OLSON");
}

TEST_F(BackupTest, AFileThatIsGoneIsRestoredAndNothingOfItsOldJournalWithIt) {
  AddPlayer("OLSON");
  const QString good = BackUpClub(club, Noon);
  ASSERT_TRUE(QFile::remove(club));
  Write("Club.mdb-journal", "what a crash left of the old file");
  EXPECT_EQ(RestoreClub(club, good, Noon), "");
  EXPECT_EQ(Players(club), "OLSON");
  EXPECT_EQ(Files("."), QStringList("Club.mdb"));
}

struct DamagedFileTest : BackupTest, testing::WithParamInterface<const char*> {
  /// Half a page in the middle overwritten, cut short, or overwritten from its first byte.
  QByteArray Damaged(QByteArray bytes) const {
    const QString how = GetParam();
    if (how == "cut") return bytes.first(bytes.size() / 2);
    const qsizetype from = how == "page" ? 4096 * 3 : 0;
    return bytes.replace(from, 2048, QByteArray(2048, 'x'));
  }
};

TEST_P(DamagedFileTest, IsReplacedByABackupAndKeptAsItIs) {
  AddPlayer("OLSON");
  const QString good = BackUpClub(club, Noon);
  const QByteArray damaged = Damaged(Read(club));
  Write("Club.mdb", damaged);
  const QString kept = RestoreClub(club, good, Noon);
  EXPECT_EQ(kept, folder.filePath("Backups/Club.damaged-2026-11-21.mdb"));
  EXPECT_EQ(Read(kept), damaged);
  EXPECT_EQ(Players(club), "OLSON");
  EXPECT_EQ(BackupsOf(club).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Backup, DamagedFileTest, testing::Values("page", "cut", "head"));

TEST_F(BackupTest, ABackupThatIsDamagedIsNotRestored) {
  const QString backup = BackUpClub(club, Noon);
  AddPlayer("OLSON");
  QByteArray bytes = Read(backup);
  bytes.replace(4096 * 3, 4096, QByteArray(4096, 'x'));
  Write("Backups/" + QFileInfo(backup).fileName(), bytes);
  const QByteArray before = Read(club);
  EXPECT_TRUE(RefusalOf([&] { RestoreClub(club, backup, Noon.addDays(1)); }).contains("damaged"));
  EXPECT_EQ(Read(club), before);
  EXPECT_EQ(BackupsOf(club).size(), 1);
  EXPECT_EQ(Files("."), QStringList("Club.mdb"));
}

TEST_F(BackupTest, AFileThatAnotherProgramHasOpenIsNotReplaced) {
  const QString good = BackUpClub(club, Noon);
  QProcess other;
  other.start("tail", {"-f", club});
  ASSERT_TRUE(other.waitForStarted());
  ASSERT_TRUE(other.waitForReadyRead());
  const QString refusal = RefusalOf([&] { RestoreClub(club, good, Noon.addDays(1)); });
  EXPECT_TRUE(refusal.contains("is open in another program (tail)")) << refusal.toStdString();
  other.kill();
  other.waitForFinished();
  EXPECT_EQ(BackupsOf(club).size(), 1);
  RestoreClub(club, good, Noon.addDays(1));
}

TEST_F(BackupTest, AFileOpenInAnotherCopyOfTheProgramIsNotReplaced) {
  const QString good = BackUpClub(club, Noon);
  QProcess other;
  other.start("flock", {club + ".lock", "-c", "echo held; read line"});
  ASSERT_TRUE(other.waitForReadyRead());
  EXPECT_TRUE(RefusalOf([&] { RestoreClub(club, good, Noon); }).contains("another copy"));
  other.closeWriteChannel();
  other.waitForFinished();
}

}  // namespace
}  // namespace tavrelin
