#include "shell/Store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "shell/StoredValues.h"
#include "support/FileLimit.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct StoreTest : testing::Test {
  QTemporaryDir folder;
  QString file = folder.filePath(QStringLiteral("config/store.ini"));
  Store store{file};

  void TearDown() override { qunsetenv("TAVRELIN_MACHINE_STORE"); }
};

TEST_F(StoreTest, KeepsEveryTextExactly) {
  const QStringList texts = {
      "C:\\TavrelinData\\",
      "Sioux Falls, SD; 12 'A' Street \"rear\"",
      "50% off %41 %zz %",
      "Åse Þórsdóttir 蹄鉄 🐴",
      "Line one\r\nLine two\nLine three",
      "[Xmit]",
      "a=b=c",
      "# no comment ; none",
      "tab\tinside",
  };
  for (const QString& text : texts) {
    SCOPED_TRACE(text.toStdString());
    ASSERT_TRUE(store.SaveRegistryString("Export", "Value", text));
    EXPECT_EQ(store.GetRegistryString("Export", "Value", "none"), text);
    EXPECT_EQ(Store(file).GetRegistryString("Export", "Value"), text);
  }
}

TEST_F(StoreTest, KeepsTextsWhoseSectionAndNameHoldTheMarksOfTheFile) {
  ASSERT_TRUE(store.SaveRegistryString("]odd[=%", "[name]=%=", "one"));
  ASSERT_TRUE(store.SaveRegistryString("]odd[", "plain", "two"));
  EXPECT_EQ(store.GetRegistryString("]odd[=%", "[name]=%="), "one");
  EXPECT_EQ(store.GetRegistryString("]odd[", "plain"), "two");
}

TEST_F(StoreTest, AValueOfBlanksReadsAsItsDefault) {
  store.SaveRegistryString("", "RecentLeague", "   ");
  EXPECT_EQ(store.GetRegistryString("", "RecentLeague", "none"), "none");
}

TEST_F(StoreTest, AValueReadsTrimmed) {
  store.SaveRegistryString("", "NatStatEmail", "  stats@example.org ");
  EXPECT_EQ(store.GetRegistryString("", "NatStatEmail"), "stats@example.org");
}

TEST_F(StoreTest, AValueOfMoreThan255CharactersComesBackCut) {
  store.SaveRegistryString("", "ReturnAddress", QString(255, u'x') + "yz");
  EXPECT_EQ(store.GetRegistryString("", "ReturnAddress"), QString(255, u'x'));
}

TEST_F(StoreTest, AMissingFileSectionOrNameReadsAsTheDefault) {
  EXPECT_EQ(store.GetRegistryString("", "GameBasis", "All Games"), "All Games");
  store.SaveRegistryString("Xmit", "State", "MN");
  EXPECT_EQ(store.GetRegistryString("Export", "State", "0"), "0");
  EXPECT_EQ(store.GetRegistryString("Xmit", "Year", "1999"), "1999");
}

TEST_F(StoreTest, TheRootKeyIsThereOnceAnythingWasStored) {
  EXPECT_EQ(store.RegistryKeyState(""), 1);
  store.SaveRegistryString("Xmit", "State", "MN");
  EXPECT_EQ(store.RegistryKeyState(""), 0);
  EXPECT_EQ(store.RegistryKeyState("Xmit", "no such name"), 0);
  EXPECT_EQ(store.RegistryKeyState("Export"), 1);
}

TEST_F(StoreTest, AStoreThatCannotBeReadGivesAnEmptyTextAndIsNotOverwritten) {
  ASSERT_TRUE(QDir().mkpath(file));  // a folder stands where the file should
  EXPECT_EQ(store.RegistryKeyState(""), 2);
  EXPECT_EQ(store.GetRegistryString("", "Forfeit", "0"), "");
  EXPECT_FALSE(store.SaveRegistryString("", "Forfeit", "1"));
  EXPECT_TRUE(QFileInfo(file).isDir());
}

TEST_F(StoreTest, AFolderThatCannotBeMadeRefusesTheSaveAndReadsAsTheDefault) {
  QFile blocker(folder.filePath("blocked"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  Store blocked(folder.filePath("blocked/store.ini"));
  EXPECT_FALSE(blocked.SaveRegistryString("", "Forfeit", "1"));
  EXPECT_EQ(blocked.GetRegistryString("", "Forfeit", "0"), "0");
}

TEST_F(StoreTest, NamesAreToldApartWithoutRegardToCase) {
  store.SaveRegistryString("MN2025", "ExportMembershipReport", "4");
  store.SaveRegistryString("mn2025", "exportmembershipreport", "5");
  EXPECT_EQ(store.GetRegistryString("MN2025", "ExportMembershipReport"), "5");
}

TEST_F(StoreTest, TwoProgramsOnOneStoreDoNotUndoEachOther) {
  Store other(file);
  store.SaveRegistryString("", "RecentTournament", "2501001");
  other.SaveRegistryString("", "RecentLeague", "2501002");
  store.SaveRegistryString("", "RecentTournament", "2501003");
  EXPECT_EQ(other.GetRegistryString("", "RecentTournament"), "2501003");
  EXPECT_EQ(store.GetRegistryString("", "RecentLeague"), "2501002");
}

TEST_F(StoreTest, WhileAnotherProgramWritesTheSaveWaitsAndIsRefusedInTheEnd) {
  store.SaveRegistryString("", "ScoreCheck", "0");
  QProcess other;
  other.start("flock", {folder.filePath("config"), "sh", "-c", "echo held; read line"});
  ASSERT_TRUE(other.waitForReadyRead());
  EXPECT_FALSE(store.SaveRegistryString("", "ScoreCheck", "1"));
  EXPECT_EQ(store.Get(stored::ScoreCheck), "0");
  other.kill();
  other.waitForFinished();
  EXPECT_TRUE(store.SaveRegistryString("", "ScoreCheck", "1"));
}

TEST_F(StoreTest, NoFileButTheStoreItselfStaysBehind) {
  store.SaveRegistryString("", "ScoreCheck", "1");
  EXPECT_EQ(QDir(folder.filePath("config")).entryList(QDir::Files | QDir::Hidden),
            QStringList("store.ini"));
}

TEST_F(StoreTest, TheMachineStoreIsReadWhereTheEnvironmentNamesItAndNowhereElse) {
  store.SaveRegistryString("", "Forfeit", "1");
  EXPECT_EQ(store.GetMachineRegistryString("", "Forfeit", "none"), "none");
  const QString machine = folder.filePath("machine.ini");
  Store(machine).SaveRegistryString("", "Forfeit", "2");
  qputenv("TAVRELIN_MACHINE_STORE", machine.toUtf8());
  EXPECT_EQ(store.GetMachineRegistryString("", "Forfeit", "none"), "2");
  EXPECT_EQ(store.GetMachineRegistryString("", "GameBasis", "none"), "none");
}

TEST_F(StoreTest, AStoredTournamentPathUnderProgramFilesReadsAsTheDataFolder) {
  EXPECT_EQ(store.Get(stored::TournamentPath), "C:\\TavrelinData\\");
  store.Save(stored::TournamentPath, "C:\\Program Files\\Old\\");
  EXPECT_EQ(store.Get(stored::TournamentPath), "C:\\TavrelinData\\");
  store.Save(stored::TournamentPath, "D:\\x\\C:\\Program Files\\Old\\");
  EXPECT_EQ(store.Get(stored::TournamentPath), "C:\\TavrelinData\\");
  store.Save(stored::TournamentPath, "c:\\program files\\Old\\");
  EXPECT_EQ(store.Get(stored::TournamentPath), "c:\\program files\\Old\\");
}

TEST_F(StoreTest, AStoreThatTheDiskDoesNotGiveBackReadsAsTheDefaultAndIsLeftAlone) {
  Store lost("/proc/self/mem");  // opens, and fails at the first read
  EXPECT_EQ(lost.Get(stored::ScoreCheck), "0");
  EXPECT_EQ(lost.Get(stored::LeaguesPath), "C:\\TavrelinData\\");
  EXPECT_EQ(lost.RegistryKeyState(""), 2);
  EXPECT_FALSE(lost.Save(stored::ScoreCheck, "1"));
}

// A limit on the size of files stands in for a full disk: the write ends half way.
TEST_F(StoreTest, AFullDiskRefusesTheSaveAndAllSettingsStay) {
  for (const char* name : {"ReturnAddress", "NatStatEmail", "LeaguesPath", "ScoreCheck"}) {
    store.SaveRegistryString("", name, QString(200, u'x'));
  }
  const FileLimit limit(300);
  EXPECT_FALSE(store.Save(stored::ScoreCheck, "1"));
  for (const char* name : {"ReturnAddress", "NatStatEmail", "LeaguesPath", "ScoreCheck"}) {
    EXPECT_EQ(store.GetRegistryString("", name), QString(200, u'x')) << name;
  }
  EXPECT_EQ(QDir(folder.filePath("config")).entryList(QDir::Files | QDir::Hidden),
            QStringList("store.ini"));
}

struct Default {
  StoredValue value;
  QString section, name, text;
};

QList<Default> AllDefaults() {
  using namespace stored;
  const QString data = "C:\\TavrelinData\\";
  return {
      {CurrentDatabase, "", "CurrentDatabase", ""},
      {RecentTournament, "", "RecentTournament", ""},
      {RecentLeague, "", "RecentLeague", ""},
      {ScoreCheck, "", "ScoreCheck", "0"},
      {Forfeit, "", "Forfeit", "0"},
      {BriefReport, "", "BriefReport", "0"},
      {TournamentPath, "", "TournamentPath", data},
      {ExportProfilePath, "", "ExportProfilePath", data},
      {ExportStatsPath, "", "ExportStatsPath", data},
      {ExportNatStatsPath, "", "ExportNatStatsPath", data},
      {ExportMembershipPath, "", "ExportMembershipPath", data},
      {ExportMembershipState, "", "ExportMembershipState", ""},
      {ExportMembershipSanction, "", "ExportMembershipSanction", ""},
      {ReturnAddress, "", "ReturnAddress", ""},
      {NatStatEmail, "", "NatStatEmail", ""},
      {HandicapBasis, "", "HandicapBasis", "Best Player"},
      {StandingsSort, "", "StandingsSort", "Wins"},
      {GameBasis, "", "GameBasis", "All Games"},
      {CountTeamWins, "", "CountTeamWins", "1"},
      {LeaguesPath, "", "LeaguesPath", data},
      {XmitState, "Xmit", "State", ""},
      {XmitSanctionID, "Xmit", "SanctionID", ""},
      {XmitYear, "Xmit", "Year", ""},
      {XmitReport, "Xmit", "Report", "0"},
      {StartTab, "Export", "StartTab", "0"},
      {PreviewHeight, "frmReport", "Height", "7200"},
      {PreviewWidth, "frmReport", "Width", "9600"},
  };
}

TEST_F(StoreTest, EveryValueStandsUnderItsNameAndReadsAsItsDefaultUntilItIsStored) {
  for (const Default& one : AllDefaults()) {
    SCOPED_TRACE(one.name.toStdString());
    EXPECT_EQ(store.Get(one.value), one.text);
    ASSERT_TRUE(store.Save(one.value, "  "));
    EXPECT_EQ(store.Get(one.value), one.text);
    ASSERT_TRUE(store.Save(one.value, "D:\\Club\\"));
    EXPECT_EQ(store.Get(one.value), "D:\\Club\\");
    EXPECT_EQ(store.GetRegistryString(one.section, one.name), "D:\\Club\\");
  }
}

TEST_F(StoreTest, FoldersAloneAreNeverUnderProgramFiles) {
  const QString old = "C:\\Program Files\\Old\\";
  for (const Default& one : AllDefaults()) {
    SCOPED_TRACE(one.name.toStdString());
    ASSERT_TRUE(store.Save(one.value, old));
    EXPECT_EQ(store.Get(one.value), one.text.startsWith("C:\\") ? "C:\\TavrelinData\\" : old);
  }
}

TEST_F(StoreTest, ReportNumbersAreKeptForEachStateOrLeagueAndYear) {
  const QString minnesota = ReportSection("MN", "2025"), league = ReportSection("25MN001", "2026");
  EXPECT_EQ(minnesota, "MN2025");
  EXPECT_EQ(store.Get(stored::ExportMembershipReport, minnesota), "0");
  EXPECT_EQ(store.Get(stored::LeagueMembershipReport, league), "1");
  ASSERT_TRUE(store.Save(stored::ExportMembershipReport, "7", minnesota));
  EXPECT_EQ(store.Get(stored::ExportMembershipReport, minnesota), "7");
  EXPECT_EQ(store.Get(stored::ExportMembershipReport, ReportSection("MN", "2026")), "0");
  EXPECT_EQ(store.GetRegistryString("MN2025", "ExportMembershipReport"), "7");
}

TEST(StoreFile, TheEnvironmentPointsTheStoreElsewhere) {
  const QByteArray before = qgetenv("TAVRELIN_STORE");
  qputenv("TAVRELIN_STORE", "/somewhere/else.ini");
  EXPECT_EQ(Store().File(), "/somewhere/else.ini");
  qunsetenv("TAVRELIN_STORE");
  EXPECT_TRUE(Store().File().endsWith("/Tavrelin/store.ini"));
  if (!before.isEmpty()) qputenv("TAVRELIN_STORE", before);
}

}  // namespace
}  // namespace tavrelin
