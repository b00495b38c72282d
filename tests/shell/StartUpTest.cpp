#include "shell/StartUp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sqlite3.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/FileClaim.h"
#include "data/Schema.h"
#include "shell/Routes.h"
#include "shell/Store.h"
#include "shell/SystemInfo.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

const QString DataSourceString = QStringLiteral("uid=;pwd=;dsn=Tavrelin");
const QString DefaultPath = QStringLiteral("C:\\TavrelinData\\Tavrelin.mdb");
const QString MdbDriver = QStringLiteral(";Driver={Microsoft Access Driver (*.mdb)};");
const QString AccdbDriver = QStringLiteral(";Driver={Microsoft Access Driver (*.mdb, *.accdb)};");

/// A machine of its own: no settings, no data source, an empty TavrelinData folder.
struct StartUpTest : testing::Test {
  QTemporaryDir machine;
  Store store{machine.filePath("store.ini")};
  QList<ErrorReport> shown;
  StartUp startUp{store, [this](const ErrorReport& report) { shown.append(report); }};

  void SetUp() override {
    qputenv("TAVRELIN_DATA", machine.filePath("TavrelinData").toUtf8());
    qputenv("ODBCINI", machine.filePath("odbc.ini").toUtf8());
  }
  void TearDown() override {
    for (const char* name : {"TAVRELIN_DATA", "ODBCINI", "TAVRELIN_MACHINE_STORE"}) {
      qunsetenv(name);
    }
    ConnectString.clear();
    DatabasePath.clear();
  }

  QString Club(const QString& name) {
    const QString path = machine.filePath(name);
    DeliverClubFile(path);
    return path;
  }
  void DefineDataSource(const QString& file) {
    QFile ini(machine.filePath("odbc.ini"));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Tavrelin]\nDatabase = " + file.toUtf8() + "\n");
  }
  void StorePath(const QString& path) { store.SaveRegistryString("", "CurrentDatabase", path); }
  QString StoredPath() { return store.GetRegistryString("", "CurrentDatabase"); }
  void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  /// What the operator reads after a run with that file, which must be exactly one error.
  QString RefusalOf(const QString& file) {
    startUp.Run(file);
    EXPECT_EQ(shown.size(), 1);
    return shown.isEmpty() ? QString() : shown.takeFirst().generalMessage;
  }
};

TEST_F(StartUpTest, AFirstRunOnACleanMachineStoresTheDefaultPathAndDeliversItsFile) {
  startUp.Run({});
  EXPECT_EQ(StoredPath(), DefaultPath);
  EXPECT_EQ(DatabasePath, DefaultPath);
  EXPECT_EQ(ConnectString, "DBQ=" + DefaultPath + MdbDriver);
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_TRUE(QFile::exists(machine.filePath("TavrelinData/Tavrelin.mdb")));
  Connection connection;
  connection.Open(ConnectString);
}

TEST_F(StartUpTest, ADataSourceAndNoStoredPathRunOverTheDataSourceAndStoreNothing) {
  DefineDataSource(Club("club.db"));
  store.SaveRegistryString("", "Forfeit", "1");  // the operator's settings exist
  startUp.Run({});
  EXPECT_EQ(ConnectString, DataSourceString);
  EXPECT_EQ(DatabasePath, "");
  EXPECT_EQ(StoredPath(), "");
  EXPECT_TRUE(shown.isEmpty());
}

TEST_F(StartUpTest, AStoredPathWinsOverADataSourceThatWorks) {
  DefineDataSource(Club("source.db"));
  const QString club = Club("club.mdb");
  StorePath(club);
  startUp.Run({});
  EXPECT_EQ(DatabasePath, club);
  EXPECT_EQ(ConnectString, "DBQ=" + club + MdbDriver);
}

TEST_F(StartUpTest, TheDriverFollowsThePathsExtensionAndCaseCounts) {
  const struct {
    QString path, connectString;
  } cases[] = {
      {"/a/club.mdb", "DBQ=/a/club.mdb" + MdbDriver},
      {"/a/club.accdb", "DBQ=/a/club.accdb" + AccdbDriver},
      {"/old.mdb/club.accdb", "DBQ=/old.mdb/club.accdb" + MdbDriver},
      {"/a/club.MDB", DataSourceString},
      {"/a/club", DataSourceString},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.path.toStdString());
    StorePath(one.path);
    startUp.ChooseDatabase({});
    EXPECT_EQ(ConnectString, one.connectString);
    EXPECT_EQ(DatabasePath, one.path);
  }
}

TEST_F(StartUpTest, APathOnTheCommandLineIsUsedForThisRunAndNotStored) {
  StorePath("/stored/club.mdb");
  const QString club = Club("other.accdb");
  startUp.Run("  " + club + " ");
  EXPECT_EQ(DatabasePath, club);
  EXPECT_EQ(ConnectString, "DBQ=" + club + AccdbDriver);
  EXPECT_EQ(StoredPath(), "/stored/club.mdb");
  EXPECT_TRUE(shown.isEmpty());
}

TEST_F(StartUpTest, AnOperatorWithSettingsIsNotSeededAgain) {
  store.SaveRegistryString("", "Forfeit", "1");
  startUp.SeedStore();
  EXPECT_EQ(StoredPath(), "");
}

TEST_F(StartUpTest, TheMachinesSettingsBecomeTheOperatorsOwnTrimmedAndStayWhereTheyWere) {
  const QString file = machine.filePath("machine.ini");
  Store(file).SaveRegistryString("", "CurrentDatabase", "C:\\Club\\club.mdb");
  Store(file).SaveRegistryString("", "NatStatEmail", " stats@example.org ");
  Store(file).SaveRegistryString("", "SomethingElse", "x");
  qputenv("TAVRELIN_MACHINE_STORE", file.toUtf8());
  startUp.SeedStore();
  EXPECT_EQ(StoredPath(), "C:\\Club\\club.mdb");
  EXPECT_EQ(store.GetRegistryString("", "NatStatEmail"), "stats@example.org");
  EXPECT_EQ(store.GetRegistryString("", "SomethingElse", "none"), "none");
  EXPECT_EQ(Store(file).GetRegistryString("", "SomethingElse"), "x");
}

TEST_F(StartUpTest, AFileThatIsMissingIsRefusedAndNotMadeUnlessItIsTheDefaultOne) {
  const QString path = machine.filePath("gone.mdb");
  EXPECT_TRUE(RefusalOf(path).contains("does not exist. Check the path under Setup, Database."));
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(StartUpTest, NoDatabaseAtAllTellsWhereToChooseOne) {
  StorePath("/a/club.MDB");
  EXPECT_EQ(RefusalOf({}),
            "No club file is in use. Choose the club's file under Setup, Database; its name ends "
            "in .mdb or .accdb.");
}

TEST_F(StartUpTest, AnAccessFileIsRefusedByName) {
  const QString path = machine.filePath("old.mdb");
  WriteFile(path, QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4096, '\0'));
  EXPECT_THAT(RefusalOf(path).toStdString(), testing::HasSubstr("Microsoft Access"));
}

TEST_F(StartUpTest, AFileThatIsNoDatabaseIsRefused) {
  const QString path = machine.filePath("letter.mdb");
  WriteFile(path, QByteArray("Dear members,\n").repeated(500));
  EXPECT_TRUE(RefusalOf(path).contains("not a club's database"));
}

TEST_F(StartUpTest, AFileOfANewerProgramIsRefused) {
  const QString path = Club("newer.mdb");
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &db), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(db, "PRAGMA user_version=99", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(db);
  EXPECT_TRUE(RefusalOf(path).contains("newer program"));
}

// A second process holds the file the way another copy of the program does.
TEST_F(StartUpTest, AFileOpenInAnotherCopyIsRefused) {
  const QString path = Club("club.mdb");
  QProcess other;
  other.start("flock", {path + ".lock", "-c", "echo held; read line"});
  ASSERT_TRUE(other.waitForStarted());
  ASSERT_TRUE(other.waitForReadyRead());
  EXPECT_TRUE(RefusalOf(path).contains("another copy"));
  other.write("\n");
  other.closeWriteChannel();
  other.waitForFinished();
  startUp.Run(path);
  EXPECT_TRUE(shown.isEmpty());
}

TEST_F(StartUpTest, TheFileIsHeldForTheRunAndTheNextOneAfterAChange) {
  auto held = [](const QString& file) {
    return QProcess::execute("flock", {"-n", file + ".lock", "true"}) != 0;
  };
  const QString first = Club("first.mdb"), second = Club("second.mdb");
  startUp.Run(first);
  EXPECT_TRUE(held(first));
  ConnectString = ConnectStringFor(second);
  startUp.HoldFile();
  EXPECT_FALSE(held(first));
  EXPECT_TRUE(held(second));
}

TEST_F(StartUpTest, SettingsThatCannotBeKeptAreTold) {
  const QString blocker = machine.filePath("blocked");
  WriteFile(blocker, "x");
  Store blocked(blocker + "/store.ini");
  StartUp run(blocked, [this](const ErrorReport& report) { shown.append(report); });
  run.Run({});
  EXPECT_EQ(DatabasePath, DefaultPath);
  ASSERT_EQ(shown.size(), 1);
  EXPECT_TRUE(shown[0].description.contains("cannot be kept"));
}

TEST_F(StartUpTest, APlaceWhereNothingCanBeDeliveredIsTold) {
  WriteFile(machine.filePath("TavrelinData"), "a file where the folder should be");
  EXPECT_TRUE(RefusalOf({}).contains("TavrelinData"));
}

TEST_F(StartUpTest, TheSystemInformationToolIsFoundByPathElseByFolderIfItIsThere) {
  EXPECT_EQ(SystemInfoTool(store), "");
  const QString file = machine.filePath("machine.ini");
  qputenv("TAVRELIN_MACHINE_STORE", file.toUtf8());
  Store registry(file);
  registry.SaveRegistryString("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO",
                              machine.path());
  EXPECT_EQ(SystemInfoTool(store), "");
  WriteFile(machine.filePath("MSINFO32.EXE"), "x");
  EXPECT_EQ(SystemInfoTool(store), machine.filePath("MSINFO32.EXE"));
  registry.SaveRegistryString("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", "/opt/info");
  EXPECT_EQ(SystemInfoTool(store), "/opt/info");
}

TEST(Routes, GroupAndItemAreComparedExactlyTheGroupFirst) {
  EXPECT_EQ(ScreenOf("Tournaments", "Setup"), "uctTournaments");
  EXPECT_EQ(ScreenOf("Leagues", "Setup"), "uctLeagues");
  EXPECT_EQ(ScreenOf("Players", "Reports"), "uctPlayerReports");
  EXPECT_EQ(ScreenOf("Leagues", "Reports"), "uctLeagueReports");
  EXPECT_EQ(ScreenOf("players", "Reports"), "");
  EXPECT_EQ(ScreenOf("Players", "Setup"), "");
  EXPECT_EQ(Routes().size(), 21);
  EXPECT_EQ(Groups(), QStringList({"Players", "Tournaments", "Leagues", "Mailings", "Setup"}));
}

}  // namespace
}  // namespace tavrelin
