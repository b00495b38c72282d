#include "data/clsDDP.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Schema.h"
#include "data/UpgradeSteps.h"
#include "shell/Store.h"
#include "support/FaultBench.h"
#include "support/OldClub.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

struct UpgradeTest : testing::Test {
  QTemporaryDir folder;
  QString file = folder.filePath("Tavrelin.mdb");
  QList<ErrorReport> shown;

  void Upgrade() {
    ConnectString = ConnectStringFor(file);
    clsDDP upgrade([this](const ErrorReport& report) { shown.append(report); },
                   QDate(2026, 11, 21));
    upgrade.UpdateDB();
  }
  QString Version() {
    return PlainDatabase(file).Cell("SELECT SettingValue FROM SystemSettings WHERE SettingID = 0");
  }
  QStringList Copies() { return QDir(folder.path()).entryList({"*before-upgrade*"}, QDir::Files); }
  QStringList NewLayout() {
    const QString fresh = folder.filePath("fresh.mdb");
    if (!QFile::exists(fresh)) DeliverClubFile(fresh);
    return PlainDatabase(fresh).Layout();
  }
};

struct EveryOldLayout : UpgradeTest, testing::WithParamInterface<int> {};

TEST_P(EveryOldLayout, ComesUpToTheLayoutOfANewFile) {
  MakeOldClub(file, GetParam());
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  PlainDatabase db(file);
  EXPECT_EQ(db.Layout(), NewLayout());
  EXPECT_EQ(Version(), "11.17");
  EXPECT_EQ(db.Cell("PRAGMA integrity_check"), "ok");
}

TEST_P(EveryOldLayout, GetsAllSettingsWithTheOldPromptOnlyWhereRowThreeWasMissing) {
  MakeOldClub(file, GetParam());
  Upgrade();
  PlainDatabase db(file);
  QStringList prompts;
  for (const SettingDefinition& setting : ClubSettings()) prompts += QLatin1String(setting.prompt);
  if (GetParam() <= 4) prompts[3] = "Print Round Robin Cards on 8 1/2 X 11 Paper";
  const auto rows = db.Rows("SELECT PromptValue FROM SystemSettings ORDER BY SettingID");
  ASSERT_EQ(rows.size(), 11);
  for (int i = 0; i < 11; ++i) EXPECT_EQ(rows[i][0], prompts[i]);
}

TEST_P(EveryOldLayout, KeepsItsRowsAndFillsWhatIsNew) {
  MakeOldClub(file, GetParam());
  Upgrade();
  PlainDatabase db(file);
  EXPECT_EQ(db.Cell("SELECT group_concat(FirstName || LastName || Category, ' ') FROM Players"),
            "Él0O'TavishAM Él1O'TavishAW Él2O'TavishEM Él3O'TavishJB Él4O'TavishJG Él5O'TavishCA "
            "Él6O'TavishSM Él7O'TavishSW");
  EXPECT_EQ(db.Cell("SELECT group_concat(Ringers || Category || Wins || Losses || Place || HiGame "
                    "|| Points || HiGamePoints || ClassID, ' ') FROM PlayerScores"),
            "0AM000000 1AW000000 2EM000000 3JB000000 4JG000000 5CA000000 6SM000000 7SW000000");
  EXPECT_EQ(db.Rows("SELECT GameID, Game, PlayerOneID, PlayerOneNumber, PlayerOneForfeit FROM "
                    "TournamentSinglesRR ORDER BY GameID"),
            (QList<QStringList>{{"1", "1", "PLAY00", "0", "0"}, {"2", "2", "PLAY01", "0", "0"}}));
  EXPECT_EQ(db.Rows("SELECT Handicap FROM LeagueScores"), (QList<QStringList>{{"0"}}));
  if (GetParam() <= 23) {
    EXPECT_EQ(db.Rows("SELECT SanctionID, AdultCount, LifetimeCount, DirectCount, ProvisionalCount "
                      "FROM StateMembershipReport"),
              (QList<QStringList>{{"35", "40", "0", "0", "0"}}));
  }
}

TEST_P(EveryOldLayout, IsKeptBesideAsItWas) {
  MakeOldClub(file, GetParam());
  const QStringList before = PlainDatabase(file).Content();
  Upgrade();
  ASSERT_EQ(Copies(), QStringList{"Tavrelin.before-upgrade-2026-11-21.mdb"});
  PlainDatabase copy(folder.filePath(Copies()[0]));
  EXPECT_EQ(copy.Content(), before);
  EXPECT_EQ(copy.Cell("PRAGMA integrity_check"), "ok");
}

TEST_P(EveryOldLayout, IsLeftAloneByTheNextStarts) {
  MakeOldClub(file, GetParam());
  Upgrade();
  Upgrade();  // the columns for cell phone and mail came as nulls, which each start cleans up
  const QByteArray bytes = BytesOf(file);
  Upgrade();
  EXPECT_EQ(BytesOf(file), bytes);
  EXPECT_EQ(Copies().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(BeforeStep, EveryOldLayout, testing::Range(1, 27));

// Probes of single steps: what a step does beyond its column or row shows in the stamp.
TEST_F(UpgradeTest, AStampIsSetOnlyByAStepThatRan) {
  MakeOldClub(file, 26);
  PlainDatabase(file).Run("UPDATE Players SET Category = 'AM' WHERE Category = 'M'");
  Upgrade();
  EXPECT_EQ(Version(), "11.15");
}

TEST_F(UpgradeTest, AFileStampedWithThePresentVersionTakesOnlyTheRepairs) {
  DeliverClubFile(file);
  PlainDatabase db(file);
  db.Run(
      "ALTER TABLE TournamentClasses DROP COLUMN RankOverride; DELETE FROM SystemSettings WHERE "
      "SettingID = 7; INSERT INTO Players (PlayerID, Category) VALUES ('ONE', 'M')");
  Upgrade();
  EXPECT_EQ(db.Count("SystemSettings"), 10);
  EXPECT_EQ(db.Count("pragma_table_info('TournamentClasses') WHERE name = 'RankOverride'"), 0);
  EXPECT_EQ(db.Rows("SELECT City, State, ZipCode, Telephone, CellPhone, Email, Category FROM "
                    "Players")[0],
            (QStringList{"", "US", "00000", "", "", "", "M"}));
  EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(UpgradeTest, AnOldFileWithoutCellPhoneAndMailIsRepairedInWhatItHas) {
  MakeOldClub(file, 20);
  PlainDatabase(file).Run("UPDATE Players SET City = NULL, State = NULL");
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_EQ(PlainDatabase(file).Count("Players WHERE City = '' AND State = 'US'"), 8);
}

TEST_F(UpgradeTest, AMissingSettingsTableIsMadeAnew) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "DROP TABLE SystemSettings; INSERT INTO Players (PlayerID, Category) VALUES ('ONE', 'M')");
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  PlainDatabase db(file);
  // Row 0 comes with a column that the file already has, so it does not come again.
  EXPECT_EQ(db.Cell("SELECT group_concat(SettingID) FROM SystemSettings"), "1,2,3,4,5,6,7,8,9,10");
  EXPECT_EQ(db.Cell("SELECT PromptValue FROM SystemSettings WHERE SettingID = 3"),
            "Print Round Robin Cards on 8 1/2 X 11 Paper");
  EXPECT_EQ(db.Cell("SELECT Category FROM Players"), "AM");
}

TEST_F(UpgradeTest, TwoVersionRowsWalkTheChainAtEachStartWithoutHarm) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "INSERT INTO SystemSettings VALUES (0, 'Database Version', '11.17'); INSERT INTO Players "
      "(PlayerID, Category, City, State, ZipCode, Telephone, CellPhone, Email) VALUES ('ONE', "
      "'AM', "
      "'', 'TX', '', '', '', '')");
  const QByteArray before = BytesOf(file);
  for (int start = 0; start < 3; ++start) Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_EQ(BytesOf(file), before);
  EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(UpgradeTest, AVersionPaddedWithBlanksIsThePresentOne) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "UPDATE SystemSettings SET SettingValue = '11.17               ' WHERE SettingID = 0;"
      "DELETE FROM SystemSettings WHERE SettingID = 10");
  Upgrade();
  EXPECT_EQ(PlainDatabase(file).Count("SystemSettings"), 10);
}

struct DamagedVersion : UpgradeTest, testing::WithParamInterface<const char*> {};

TEST_P(DamagedVersion, OfAFileInThePresentLayoutEndsAtThePresentVersion) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(QLatin1String(GetParam()));
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_EQ(Version(), "11.17");
  EXPECT_EQ(PlainDatabase(file).Layout(), NewLayout());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedVersion,
    testing::Values("UPDATE SystemSettings SET SettingValue = NULL WHERE SettingID = 0",
                    "UPDATE SystemSettings SET SettingValue = '' WHERE SettingID = 0",
                    "UPDATE SystemSettings SET SettingValue = 'eleven' WHERE SettingID = 0",
                    "UPDATE SystemSettings SET SettingValue = '11.16' WHERE SettingID = 0",
                    "UPDATE SystemSettings SET SettingValue = '12.0' WHERE SettingID = 0"));

TEST_F(UpgradeTest, AMissingVersionRowStaysMissingWhereTheLayoutIsComplete) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "DELETE FROM SystemSettings WHERE SettingID = 0; INSERT INTO Players (PlayerID, Category) "
      "VALUES ('ONE', 'AM')");
  Upgrade();
  EXPECT_EQ(Version(), "(none)");
  EXPECT_TRUE(shown.isEmpty());
}

TEST_F(UpgradeTest, AVersionThatLagsBehindWalksAllStepsAndKeepsAMembersDivision) {
  MakeOldClub(file, 26);
  PlainDatabase(file).Run("UPDATE SystemSettings SET SettingValue = '11.3' WHERE SettingID = 0");
  Upgrade();
  EXPECT_EQ(Version(), "11.17");
  EXPECT_EQ(PlainDatabase(file).Layout(), NewLayout());
}

TEST_F(UpgradeTest, OneLetterDivisionsBecomeTwoLettersInRosterAndResults) {
  MakeOldClub(file, 26);
  ASSERT_EQ(PlainDatabase(file).Cell("SELECT group_concat(Category, '') FROM Players"), "MWEBGCSL");
  Upgrade();
  for (const char* table : {"Players", "PlayerScores"}) {
    EXPECT_EQ(
        PlainDatabase(file).Cell(
            QStringLiteral("SELECT group_concat(Category) FROM %1").arg(QLatin1String(table))),
        "AM,AW,EM,JB,JG,CA,SM,SW");
  }
}

TEST_F(UpgradeTest, AnyManOfTheNewDivisionKeepsTheRecodeFromRunning) {
  MakeOldClub(file, 26);
  PlainDatabase(file).Run("UPDATE Players SET Category = 'AM' WHERE PlayerID = 'PLAY03'");
  const QStringList before = PlainDatabase(file).Content();
  Upgrade();
  Upgrade();
  EXPECT_EQ(PlainDatabase(file).Content(), before);
}

TEST_F(UpgradeTest, APlayerWithoutAStateBelongsToTheWholeCountry) {
  DeliverClubFile(file);
  PlainDatabase(file).Run(
      "INSERT INTO Players (PlayerID, State) VALUES ('ONE', NULL), ('TWO', 'TX'), ('SIX', '')");
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_EQ(PlainDatabase(file).Cell("SELECT group_concat(State) FROM Players"), "US,TX,");
}

TEST_F(UpgradeTest, ThePromptThatIsOneCharacterOverItsColumnIsInsertedWhole) {
  MakeOldClub(file, 6);
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  PlainDatabase db(file);
  EXPECT_EQ(db.Cell("SELECT type FROM pragma_table_info('SystemSettings') WHERE name = "
                    "'PromptValue'"),
            "CHAR(50)");
  EXPECT_EQ(db.Rows("SELECT PromptValue, length(PromptValue), SettingValue FROM SystemSettings "
                    "WHERE SettingID = 5")[0],
            (QStringList{"Record handicaps weekly when entering league scores", "51", "N"}));
}

TEST_F(UpgradeTest, AnEmptyRosterIsRecodedAndStamped) {
  MakeOldClub(file, 26);
  PlainDatabase(file).Run("DELETE FROM Players");
  Upgrade();
  EXPECT_EQ(Version(), "11.17");
}

TEST_F(UpgradeTest, ARowThreeFromBeforeTheRunGetsTheNewPromptAndKeepsItsValue) {
  MakeOldClub(file, 12);
  PlainDatabase(file).Run(
      "UPDATE SystemSettings SET PromptValue = 'PRINT ROUND ROBIN CARDS ON 8 1/2 X 11 Paper', "
      "SettingValue = '2' WHERE SettingID = 3");
  Upgrade();
  EXPECT_EQ(PlainDatabase(file).Rows("SELECT PromptValue, SettingValue FROM SystemSettings WHERE "
                                     "SettingID = 3")[0],
            (QStringList{"Round Robin Card Style: 1=Card; 2=Folded; 3=2up", "2"}));
}

TEST_F(UpgradeTest, ATableThatIsMissingIsPassedOverAndTheChainGoesOn) {
  MakeOldClub(file, 12);
  PlainDatabase(file).Run("DROP TABLE StateMembershipReport");
  Upgrade();
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_EQ(Version(), "11.17");
}

TEST_F(UpgradeTest, AFailingRowQuestionEndsTheChainWithAMessageAndKeepsWhatWasReached) {
  MakeOldClub(file, 15);
  PlainDatabase(file).Run("DROP TABLE Players");
  Upgrade();
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(shown[0].callStack, "UpdateDB");
  EXPECT_EQ(Version(), "11.15");
}

TEST_F(UpgradeTest, AFileThatCannotBeOpenedReachesTheCaller) {
  EXPECT_THROW(Upgrade(), Error);
  EXPECT_TRUE(shown.isEmpty());
}

TEST_F(UpgradeTest, WithoutACopyOfTheFileNothingIsChanged) {
  MakeOldClub(file, 12);
  const QStringList before = PlainDatabase(file).Content();
  // A hundred copies of this day would not stop it, but a folder of the copy's name does.
  ASSERT_TRUE(QDir(folder.path())
                  .mkdir(QStringLiteral("Tavrelin.before-upgrade-2026-11-21.mdb.%1.new")
                             .arg(QCoreApplication::applicationPid())));
  Upgrade();
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(PlainDatabase(file).Content(), before);
}

TEST_F(UpgradeTest, TheStepsAreTwentySixAndEndWithThePresentVersion) {
  ASSERT_EQ(UpgradeSteps().size(), 26);
  EXPECT_STREQ(UpgradeSteps().last().stamp, ClubVersion);
}

// Run by the next test in a process of its own, which is killed at a write.
TEST(UpgradeWorker, DISABLED_UpgradesTheFileOfTheEnvironment) {
  ConnectString = ConnectStringFor(qEnvironmentVariable("TAVRELIN_WORKER_FILE"));
  clsDDP([](const ErrorReport&) {}, QDate(2026, 11, 21)).UpdateDB();
}

TEST_F(UpgradeTest, KilledAtAnyWriteTheNextStartBringsTheFileUp) {
  const QString old = folder.filePath("old.mdb");
  MakeOldClub(old, 1);
  FaultBench bench;
  bool killed = true;
  int write = 1;
  // Copy and journal begin with the first writes; behind them one page is like the next.
  for (; killed; write += write < 24 ? 1 : 5) {
    const QString one = folder.filePath(QStringLiteral("killed%1").arg(write));
    ASSERT_TRUE(QDir().mkdir(one));
    file = one + "/Tavrelin.mdb";
    ASSERT_TRUE(QFile::copy(old, file));
    bench.SetVariable("TAVRELIN_WORKER_FILE", file);
    const auto outcome = bench.KillAt(
        write, FaultBench::Worker("UpgradeWorker.DISABLED_UpgradesTheFileOfTheEnvironment"));
    if (!outcome.ran) GTEST_SKIP() << "strace cannot be used here";
    killed = outcome.killed;
    Upgrade();
    EXPECT_EQ(PlainDatabase(file).Layout(), NewLayout()) << "killed at write " << write;
    EXPECT_EQ(Version(), "11.17") << "killed at write " << write;
  }
  EXPECT_GT(write, 60);
  EXPECT_TRUE(shown.isEmpty());
}

}  // namespace
}  // namespace tavrelin
