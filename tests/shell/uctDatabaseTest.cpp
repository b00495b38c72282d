#include "shell/uctDatabase.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTreeWidget>

#include "data/Backup.h"
#include "data/Connection.h"
#include "data/Schema.h"
#include "shell/frmRestore.h"
#include "shell/StoredValues.h"
#include "support/PlainDatabase.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

const QString DataSource = QStringLiteral("uid=;pwd=;dsn=Tavrelin");

struct uctDatabaseTest : testing::Test {
  ScreenBench bench;

  void SetUp() override {
    qputenv("ODBCINI", bench.PathOf("odbc.ini").toUtf8());
    bench.store().Save(stored::CurrentDatabase, bench.ClubFile());
  }
  void TearDown() override {
    qunsetenv("ODBCINI");
    UseLightPalette();
  }

  void Show() { bench.Show<uctDatabase>(); }
  QString Path() { return bench.Find<QLineEdit>("txtPath").text(); }
  QString StoredPath() { return bench.store().Get(stored::CurrentDatabase); }
  QString OtherClub() {
    DeliverClubFile(bench.PathOf("other.accdb"));
    return bench.PathOf("other.accdb");
  }
  void LeaveWith(const QString& path) {
    bench.Fill("txtPath", path);
    bench.Leave();
  }
  void AddPlayer(const QString& id) {
    PlainDatabase(bench.ClubFile()).Run("INSERT INTO Players (PlayerID) VALUES ('" + id + "')");
  }
  QString Players() {
    return PlainDatabase(bench.ClubFile()).Cell("SELECT group_concat(PlayerID) FROM Players");
  }
};

TEST_F(uctDatabaseTest, ShowsTheStoredPathAndTheFileInUse) {
  bench.store().Save(stored::CurrentDatabase, "C:\\TavrelinData\\Stored.mdb");
  Show();
  EXPECT_EQ(Path(), "C:\\TavrelinData\\Stored.mdb");
  EXPECT_EQ(bench.Find<QLabel>("lblPath").text(), "Database Path and Name");
  EXPECT_EQ(bench.Find<QPushButton>("Command1").text(), "Browse");
  EXPECT_EQ(bench.Find<QLabel>("lblInUse").text(), "Club file in use: " + bench.ClubFile());
  EXPECT_FALSE(bench.person.busy);
  bench.Fill("txtPath", bench.ClubFile());
}

TEST_F(uctDatabaseTest, BrowseStartsInTheDataFolderAndFillsTheBox) {
  Show();
  const QString other = OtherClub();
  bench.person.WillChoose(other);
  bench.Click("Command1");
  EXPECT_EQ(bench.person.dialogs,
            QStringList("Open|C:\\TavrelinData|Access Files (*.mdb *.accdb)"));
  EXPECT_EQ(Path(), other);
  EXPECT_EQ(StoredPath(), bench.ClubFile());  // leaving is what counts
}

TEST_F(uctDatabaseTest, ACancelledBrowseLeavesTheBoxAlone) {
  Show();
  bench.person.WillChoose({});
  bench.Click("Command1");
  EXPECT_EQ(Path(), bench.ClubFile());
}

TEST_F(uctDatabaseTest, APathTooLongToBeReadBackIsRefused) {
  Show();
  bench.person.WillChoose("/" + QString(255, u'x'));
  bench.Click("Command1");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(Path(), bench.ClubFile());
}

TEST_F(uctDatabaseTest, LeavingStoresTheTrimmedPathAndAllScreensUseIt) {
  const QString other = OtherClub();
  Show();
  LeaveWith("  " + other + " ");
  EXPECT_EQ(StoredPath(), other);
  EXPECT_EQ(DatabasePath, other);
  EXPECT_EQ(ConnectString, "DBQ=" + other + ";Driver={Microsoft Access Driver (*.mdb, *.accdb)};");
  EXPECT_FALSE(bench.person.busy);
}

TEST_F(uctDatabaseTest, AnOlderFileIsBroughtUpToDateAtOnce) {
  const QString other = OtherClub();
  PlainDatabase(other).Run(
      "UPDATE SystemSettings SET SettingValue = '11.7' WHERE SettingID = 0;"
      "DELETE FROM SystemSettings WHERE SettingID = 10");
  Show();
  LeaveWith(other);
  PlainDatabase db(other);
  EXPECT_EQ(db.Cell("SELECT SettingValue FROM SystemSettings WHERE SettingID = 0"), "11.17");
  EXPECT_EQ(db.Count("SystemSettings WHERE SettingID = 10"), 1);
}

TEST_F(uctDatabaseTest, AnEmptyPathIsStoredEmptyAndMeansTheDataSource) {
  Show();
  LeaveWith({});
  EXPECT_EQ(StoredPath(), "");
  EXPECT_EQ(DatabasePath, "");
  EXPECT_EQ(ConnectString, DataSource);
  EXPECT_TRUE(bench.errors.Take().generalMessage.startsWith("No club file is in use."));
}

TEST_F(uctDatabaseTest, APathThatCannotBeOpenedIsStoredAndToldInTheErrorDialog) {
  Show();
  LeaveWith(bench.PathOf("gone.mdb"));
  EXPECT_EQ(StoredPath(), bench.PathOf("gone.mdb"));
  EXPECT_TRUE(bench.errors.Take().generalMessage.contains("gone.mdb does not exist"));
  EXPECT_FALSE(QFile::exists(bench.PathOf("gone.mdb")));
}

TEST_F(uctDatabaseTest, TheFileThatIsLeftForAnotherIsBackedUp) {
  AddPlayer("OLSON");
  Show();
  LeaveWith(OtherClub());
  const QList<ClubBackup> backups = BackupsOf(bench.ClubFile());
  ASSERT_EQ(backups.size(), 1);
  EXPECT_EQ(backups[0].made, bench.clock.now);
  EXPECT_EQ(PlainDatabase(backups[0].path).Cell("SELECT PlayerID FROM Players"), "OLSON");
}

TEST_F(uctDatabaseTest, LeavingWithTheSameFileBacksNothingUp) {
  Show();
  bench.LeaveAndReturn();
  EXPECT_EQ(BackupsOf(bench.ClubFile()).size(), 0);
}

TEST_F(uctDatabaseTest, ABackupThatFailsIsToldTheOldFileStaysAndTheNewOneIsUsed) {
  QFile blocker(bench.PathOf("Backups"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  AddPlayer("OLSON");
  const QString other = OtherClub();
  Show();
  LeaveWith(other);
  EXPECT_TRUE(bench.errors.Take().generalMessage.startsWith(
      "The file that is left could not be backed up; it stays as it is."));
  EXPECT_EQ(DatabasePath, other);
  EXPECT_EQ(Players(), "OLSON");
}

TEST_F(uctDatabaseTest, SettingsThatCannotBeKeptAreToldAndTheRunUsesTheFile) {
  Show();
  QFile::remove(bench.store().File());
  ASSERT_TRUE(QDir().mkpath(bench.store().File()));
  const QString other = OtherClub();
  LeaveWith(other);
  EXPECT_TRUE(bench.errors.Take().generalMessage.contains("cannot be kept"));
  EXPECT_EQ(DatabasePath, other);
}

TEST_F(uctDatabaseTest, BackUpNowMakesABackupAndSaysWhere) {
  Show();
  EXPECT_EQ(bench.Find<QLabel>("lblBackups").text(), "There is no backup yet.");
  EXPECT_FALSE(bench.Find("cmdRestore").isEnabled());
  bench.Click("cmdBackup");
  EXPECT_EQ(bench.Message(),
            "Backed up as " + bench.PathOf("Backups/club.2025-06-14_09-30-00.mdb"));
  EXPECT_TRUE(bench.Find<QLabel>("lblBackups")
                  .text()
                  .startsWith("Last backup: Saturday, June 14 2025, 9:30 AM."));
  EXPECT_TRUE(bench.Find("cmdRestore").isEnabled());
  EXPECT_FALSE(bench.person.busy);
}

TEST_F(uctDatabaseTest, RestorePutsTheChosenBackupBackAndKeepsWhatItReplaces) {
  AddPlayer("OLSON");
  Show();
  bench.Click("cmdBackup");
  AddPlayer("WRONG");
  bench.clock.now = bench.clock.now.addSecs(60);
  bench.person.WillChooseBackup(0);
  bench.Click("cmdRestore");
  EXPECT_EQ(bench.person.dialogs, QStringList(bench.ClubFile() + "|1"));
  EXPECT_EQ(bench.Message(),
            "Restored: Saturday, June 14 2025, 9:30 AM. The file before it is kept as "
            "club.2025-06-14_09-31-00.mdb");
  EXPECT_EQ(Players(), "OLSON");
  EXPECT_EQ(BackupsOf(bench.ClubFile()).size(), 2);
}

TEST_F(uctDatabaseTest, ARestoreThatIsCancelledChangesNothing) {
  Show();
  bench.Click("cmdBackup");
  AddPlayer("OLSON");
  bench.person.WillChooseBackup(-1);
  bench.Click("cmdRestore");
  EXPECT_EQ(Players(), "OLSON");
  EXPECT_EQ(BackupsOf(bench.ClubFile()).size(), 1);
}

TEST_F(uctDatabaseTest, ARestoredFileOfAnOlderProgramIsBroughtUpToDate) {
  PlainDatabase(bench.ClubFile())
      .Run(
          "UPDATE SystemSettings SET SettingValue = '11.7' WHERE SettingID = 0;"
          "DELETE FROM SystemSettings WHERE SettingID = 10");
  const QString old = BackUpClub(bench.ClubFile(), bench.clock.now.addDays(-1));
  Show();
  bench.person.WillChooseBackup(0);
  bench.Click("cmdRestore");
  EXPECT_EQ(PlainDatabase(bench.ClubFile()).Count("SystemSettings WHERE SettingID = 10"), 1);
}

TEST_F(uctDatabaseTest, ARestoreWhileAnotherProgramHasTheFileIsRefusedInASentence) {
  Show();
  bench.Click("cmdBackup");
  AddPlayer("OLSON");
  QProcess other;
  other.start("tail", {"-f", bench.ClubFile()});
  ASSERT_TRUE(other.waitForReadyRead());
  bench.person.WillChooseBackup(0);
  bench.Click("cmdRestore");
  EXPECT_TRUE(bench.errors.Take().generalMessage.contains("open in another program (tail)"));
  other.kill();
  other.waitForFinished();
  EXPECT_EQ(Players(), "OLSON");
}

TEST_F(uctDatabaseTest, ADamagedFileCanBeRestored) {
  Show();
  bench.Click("cmdBackup");
  QFile file(bench.ClubFile());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.write(QByteArray(8192, 'x'));
  file.close();
  bench.person.WillChooseBackup(0);
  bench.Click("cmdRestore");
  EXPECT_TRUE(bench.Message().endsWith("kept as club.damaged-2025-06-14.mdb"));
  EXPECT_EQ(PlainDatabase(bench.ClubFile()).Count("SystemSettings"), 11);
}

TEST_F(uctDatabaseTest, WithoutAFileInUseNothingCanBeBackedUp) {
  ConnectString = DataSource;
  Show();
  EXPECT_EQ(bench.Find<QLabel>("lblInUse").text(), "No club file is in use.");
  EXPECT_FALSE(bench.Find("cmdBackup").isEnabled());
  EXPECT_FALSE(bench.Find("cmdRestore").isEnabled());
}

TEST_F(uctDatabaseTest, LooksItsPartInLightAndDark) {
  Show();
  bench.Shot("database");
  bench.Click("cmdBackup");
  EXPECT_EQ(CutTexts(bench.Find("uctDatabase")), QStringList());
  UseDarkPalette();
  bench.Shot("database-dark");
}

struct frmRestoreTest : testing::Test {
  ScreenBench bench;
  QList<ClubBackup> backups;
  std::unique_ptr<frmRestore> dialog;

  void SetUp() override {
    const QDateTime start(QDate(2025, 6, 14), QTime(9, 30));
    for (int day = 0; day < 10; ++day) {
      backups.append({"", start.addDays(-day * 7), 1200000 + day * 50000});
    }
    dialog = std::make_unique<frmRestore>("/home/ann/TavrelinData/Tavrelin.mdb", backups);
    bench.Drive(dialog.get());
    dialog->show();
    bench.ProcessEvents();
  }
  void TearDown() override {
    dialog.reset();
    UseLightPalette();
  }
};

TEST_F(frmRestoreTest, ListsDatesAndSizesWithTheNewestChosen) {
  const auto& list = bench.Find<QTreeWidget>("lstBackups");
  ASSERT_EQ(list.topLevelItemCount(), 10);
  EXPECT_EQ(list.topLevelItem(1)->text(0), "Saturday, June 7 2025, 9:30 AM");
  EXPECT_EQ(list.topLevelItem(0)->text(1), "1.1 MB");
  EXPECT_EQ(dialog->Chosen(), 0);
}

TEST_F(frmRestoreTest, TheKeyboardAloneChoosesAndRestores) {
  bench.Focus("lstBackups");
  bench.Press(Qt::Key_Down);
  bench.Press(Qt::Key_Down);
  bench.Focus("cmdRestore");
  bench.Press(Qt::Key_Space);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->Chosen(), 2);
}

TEST_F(frmRestoreTest, EnterAndEscapeRestoreNothing) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    dialog->show();
    bench.Focus("lstBackups");
    bench.Press(key);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
  }
}

TEST_F(frmRestoreTest, LooksItsPartInLightAndDark) {
  EXPECT_EQ(CutTexts(*dialog), QStringList());
  bench.Shot("restore");
  UseDarkPalette();
  bench.Shot("restore-dark");
}

}  // namespace
}  // namespace tavrelin
