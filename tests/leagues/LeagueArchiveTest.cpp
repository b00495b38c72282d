#include "leagues/LeagueArchive.h"

#include <QDir>
#include <QFile>

#include "basic/Error.h"
#include "data/Backup.h"
#include "leagues/LeagueBench.h"
#include "support/PlainDatabase.h"

namespace tavrelin {
namespace {

const QDateTime Noon(QDate(2026, 9, 1), QTime(12, 0, 5));

class LeagueArchiveTest : public LeagueBench {
 protected:
  QString Archive(const LeagueOptions& options = {}) {
    return ArchiveLeague(connection_, Stats(options), Noon);
  }
  QStringList Members() {
    return Rows(
        "SELECT PlayerID, StartingAverage, HighGamePoints, HighGameRingers FROM LeagueMembers "
        "ORDER BY PlayerID");
  }
};

TEST_F(LeagueArchiveTest, AveragesAndHighsAreCarriedOnAndTheScoresDeleted) {
  AddMember("A1", {.start = 40, .highPoints = 70, .highRingers = 10});
  AddMember("B2", {.active = false, .start = 55, .highPoints = 90, .highRingers = 30});
  AddMember("C3", {.start = 33});
  AddGame("A1", {.points = 60, .ringers = 19});
  AddGame("A1", {.points = 80, .ringers = 15});
  AddGame("B2", {.points = 50, .ringers = 10});
  AddTeamWins(1, 2, 0);
  const QString message = Archive();
  EXPECT_EQ(message,
            "Data has been archived.  The file as it was before is kept as "
            "Club.before-archiving-scores.2026-09-01_12-00-05.mdb");
  EXPECT_EQ(Members(), (QStringList{"A1 70 80 19", "B2 50 90 30", "C3 33 0 0"}));
  EXPECT_EQ(AskFor("SELECT COUNT(*) FROM LeagueScores"), "0");
  EXPECT_EQ(AskFor("SELECT COUNT(*) FROM LeagueTeamScores"), "0");
}

TEST_F(LeagueArchiveTest, TheAverageIsThatOfThePresentWindow) {
  AddMember("A1");
  AddGames("A1", {10, 20, 60});
  Archive({.lastGames = 1});
  EXPECT_EQ(Members(), QStringList{"A1 60 60 10"});
}

TEST_F(LeagueArchiveTest, OtherLeaguesKeepTheirScoresAndMembers) {
  AddMember("A1", {.start = 40});
  connection_.Execute("INSERT INTO LeagueMembers VALUES('2605002', 'A1', True, 41, 1, 1)");
  AddGame("A1", {.points = 60, .ringers = 19}, FirstNight, "2605002");
  AddGame("A1", {.points = 70, .ringers = 19});
  connection_.Execute("INSERT INTO LeagueTeamScores VALUES('2605002', 1, #4/7/2026#, 1, 0)");
  EXPECT_NE(Archive(), "");
  EXPECT_EQ(Members(), (QStringList{"A1 70 70 19", "A1 41 1 1"}));
  EXPECT_EQ(Rows("SELECT SanctionID FROM LeagueScores"), QStringList{"2605002"});
  EXPECT_EQ(Rows("SELECT SanctionID FROM LeagueTeamScores"), QStringList{"2605002"});
}

TEST_F(LeagueArchiveTest, TheBackupHoldsTheSeasonAsItWas) {
  AddMember("A1", {.start = 40});
  AddGames("A1", {10, 20, 60});
  const QStringList before = PlainDatabase(path_).Content();
  EXPECT_NE(Archive(), "");
  const QList<ClubBackup> backups = BackupsOf(path_);
  ASSERT_EQ(backups.size(), 1);
  EXPECT_EQ(backups[0].deed, "archiving scores");
  EXPECT_EQ(PlainDatabase(backups[0].path).Content(), before);
}

TEST_F(LeagueArchiveTest, WithoutABackupNothingIsDeleted) {
  AddMember("A1", {.start = 40});
  AddGames("A1", {10, 20, 60});
  QFile inTheWay(folder_.filePath("Backups"));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  const QStringList before = PlainDatabase(path_).Content();
  EXPECT_THROW(Archive(), Error);
  EXPECT_EQ(PlainDatabase(path_).Content(), before);
}

TEST_F(LeagueArchiveTest, ALeagueWithoutMembersIsNotArchivedAndNotBackedUp) {
  AddGame("GONE", {.points = 60, .ringers = 19});
  EXPECT_EQ(Archive(), "");
  EXPECT_EQ(AskFor("SELECT COUNT(*) FROM LeagueScores"), "1");
  EXPECT_FALSE(QDir(folder_.filePath("Backups")).exists());
}

TEST_F(LeagueArchiveTest, AFileWithoutTheTableOfAddedWinsIsArchivedAllTheSame) {
  AddMember("A1");
  AddGames("A1", {10});
  connection_.Execute("DROP TABLE LeagueTeamScores");
  EXPECT_NE(Archive(), "");
  EXPECT_EQ(AskFor("SELECT COUNT(*) FROM LeagueScores"), "0");
}

TEST_F(LeagueArchiveTest, AMemberWhoIsOffTheRosterKeepsWhatHeBroughtAlong) {
  AddMember("A1");
  AddMemberRow("GONE", {.start = 44, .highPoints = 5});
  AddGame("GONE", {.points = 60, .ringers = 19});
  EXPECT_NE(Archive(), "");
  EXPECT_EQ(Members(), (QStringList{"A1 0 0 0", "GONE 44 5 0"}));
}

}  // namespace
}  // namespace tavrelin
