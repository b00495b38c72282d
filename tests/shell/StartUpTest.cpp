#include "shell/StartUp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sqlite3.h>
#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "shell/Routes.h"
#include "shell/Store.h"
#include "shell/SystemInfo.h"
#include "support/FaultBench.h"
#include "support/OldClub.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

const QString DataSourceString = QStringLiteral("uid=;pwd=;dsn=Tavrelin");
const QString DefaultPath = QStringLiteral("C:\\TavrelinData\\Tavrelin.mdb");
const QString MdbDriver = QStringLiteral(";Driver={Microsoft Access Driver (*.mdb)};");
const QString AccdbDriver = QStringLiteral(";Driver={Microsoft Access Driver (*.mdb, *.accdb)};");

/// A second process that holds a file the way another copy of the program does, while it lives.
class OtherCopy {
 public:
  explicit OtherCopy(const QString& file) {
    process_.start("flock", {file + ".lock", "-c", "echo held; read line"});
    EXPECT_TRUE(process_.waitForReadyRead());
  }
  ~OtherCopy() {
    process_.write("\n");
    process_.closeWriteChannel();
    process_.waitForFinished();
  }
  OtherCopy(const OtherCopy&) = delete;
  OtherCopy& operator=(const OtherCopy&) = delete;

 private:
  QProcess process_;
};

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
  /// The connection text of a run with that path stored.
  QString ConnectStringOf(const QString& path) {
    StorePath(path);
    startUp.ChooseDatabase({});
    return ConnectString;
  }
  /// What the operator reads after a run with that file, which must be exactly one error.
  QString RefusalOf(const QString& file) {
    startUp.Run(file);
    EXPECT_EQ(shown.size(), 1);
    if (shown.isEmpty()) return {};
    EXPECT_EQ(shown[0].callStack, "Form_Load");
    return shown.takeFirst().generalMessage;
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

// A second start of the program beside the first.
TEST_F(StartUpTest, ADataSourceWhoseFileIsOpenInAnotherCopyIsRefusedAndStoresNothing) {
  const QString club = Club("club.db");
  DefineDataSource(club);
  store.SaveRegistryString("", "Forfeit", "1");
  OtherCopy other(club);
  EXPECT_TRUE(RefusalOf({}).contains("No club file is in use"));
  EXPECT_EQ(ConnectString, DataSourceString);
  EXPECT_EQ(StoredPath(), "");
}

TEST_F(StartUpTest, TheDriverFollowsThePathsExtension) {
  EXPECT_EQ(ConnectStringOf("/a/club.mdb"), "DBQ=/a/club.mdb" + MdbDriver);
  EXPECT_EQ(ConnectStringOf("/a/club.accdb"), "DBQ=/a/club.accdb" + AccdbDriver);
}

TEST_F(StartUpTest, APathWithoutEitherExtensionOrWithOneInCapitalsFallsBackToTheDataSource) {
  for (const char* path : {"/a/club", "/a/club.MDB", "/a/club.Accdb"}) {
    EXPECT_EQ(ConnectStringOf(path), DataSourceString) << path;
    EXPECT_EQ(DatabasePath, path);
  }
}

TEST_F(StartUpTest, AFolderNameWithMdbBeforeAnAccdbFileGetsTheMdbDriver) {
  EXPECT_EQ(ConnectStringOf("/old.mdb/club.accdb"), "DBQ=/old.mdb/club.accdb" + MdbDriver);
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

TEST_F(StartUpTest, AFileOpenInAnotherCopyIsRefused) {
  const QString path = Club("club.mdb");
  {
    OtherCopy other(path);
    EXPECT_TRUE(RefusalOf(path).contains("another copy"));
  }
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

// Run by the next tests as a process of its own, in a place that can only be read.
TEST(StartUpWorker, DISABLED_StartsOnTheFileOfTheEnvironmentAndChangesARow) {
  Store store;
  const auto tell = [](const ErrorReport& report) {
    std::printf("shown: %s\n", qPrintable(report.generalMessage));
  };
  StartUp(store, tell).Run(qEnvironmentVariable("TAVRELIN_WORKER_FILE"));
  try {
    Connection connection;
    connection.Open(ConnectString);
    Recordset settings;
    settings.Open("SELECT * FROM SystemSettings ORDER BY SettingID", connection,
                  Recordset::Lock::Optimistic);
    std::printf("read: %d\n", settings.RecordCount());
    settings.Set("SettingValue", "9");
    settings.Update();
    std::puts("written");
  } catch (const Error& error) {
    std::printf("refused: %s\n", error.what());
  }
}

struct ReadOnlyPlace : StartUpTest {
  QString file = machine.filePath("stick/club.mdb");

  /// What the worker said; empty where this machine forbids such places.
  QString StartThere() {
    FaultBench bench;
    bench.SetVariable("TAVRELIN_STORE", machine.filePath("store.ini"));
    bench.SetVariable("TAVRELIN_WORKER_FILE", file);
    const auto outcome = bench.WithReadOnly(
        machine.filePath("stick"),
        FaultBench::Worker("StartUpWorker.DISABLED_StartsOnTheFileOfTheEnvironmentAndChangesARow"));
    return outcome.ran ? outcome.output : QString();
  }
};

TEST_F(ReadOnlyPlace, AClubsFileIsShownThereAndAChangeIsRefusedWithASentence) {
  Club("stick/club.mdb");
  const QStringList before = PlainDatabase(file).Content();
  const QString said = StartThere();
  if (said.isEmpty()) GTEST_SKIP() << "mounting is not allowed here";
  EXPECT_FALSE(said.contains("shown:")) << said.toStdString();
  EXPECT_TRUE(said.contains("read: 11")) << said.toStdString();
  EXPECT_TRUE(said.contains("refused: The file " + file + " can only be read. Copy it to a folder"))
      << said.toStdString();
  EXPECT_EQ(PlainDatabase(file).Content(), before);
}

TEST_F(ReadOnlyPlace, AnOldFileThatCannotBeBroughtUpThereIsToldAtTheStart) {
  ASSERT_TRUE(QDir(machine.path()).mkdir("stick"));
  MakeOldClub(file, 20);
  const QStringList before = PlainDatabase(file).Content();
  const QString said = StartThere();
  if (said.isEmpty()) GTEST_SKIP() << "mounting is not allowed here";
  EXPECT_EQ(said.count("shown:"), 1) << said.toStdString();
  EXPECT_TRUE(said.contains("shown: The file " + file + " can only be read. Copy it to a folder"))
      << said.toStdString();
  EXPECT_EQ(PlainDatabase(file).Content(), before);
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
