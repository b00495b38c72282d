#include "leagues/LeagueDeletion.h"

#include <QFile>

#include "basic/Error.h"
#include "data/Backup.h"
#include "leagues/LeagueBench.h"
#include "leagues/LeagueRoster.h"
#include "support/PlainDatabase.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

const QDateTime Noon(QDate(2026, 9, 1), QTime(12, 0, 5));

class LeagueDeletionTest : public LeagueBench {
 protected:
  void SetUp() override {
    AddMember("A1");
    AddMember("B2");
    AddGames("A1", {40, 50, 60});
    AddLeagueTeamRow(AddTeam("Riders"));
    AddTeamWins(1, 1, 0);
    connection_.Execute("INSERT INTO Leagues (SanctionID) VALUES ('2605002')");
    connection_.Execute("INSERT INTO LeagueMembers (SanctionID) VALUES ('2605002')");
  }

  QString Delete(Holdings holdings) {
    Recordset leagues = OpenLeagues(connection_);
    const QString message = DeleteLeague(connection_, leagues, holdings, Noon);
    EXPECT_EQ(Column(leagues, "SanctionID"), Column(OpenLeagues(connection_), "SanctionID"));
    return message;
  }
  QString Holdings_() { return HoldingsOfLeague(connection_, Sanction).Text(); }
};

TEST_F(LeagueDeletionTest, ALeagueAloneIsDeletedAndItsMembersAndScoresStay) {
  EXPECT_EQ(Delete(Holdings::Stay),
            "League 26-05-001 has been deleted.  The file as it was before is kept as "
            "Club.before-deleting-a-league.2026-09-01_12-00-05.mdb");
  EXPECT_EQ(Rows("SELECT SanctionID FROM Leagues"), QStringList{"2605002"});
  EXPECT_EQ(Holdings_(), "2 members, 1 team, 3 games and 1 row of team wins");
}

TEST_F(LeagueDeletionTest, ItsMembersAndScoresGoAlongWhenTheyAreTold) {
  EXPECT_NE(Delete(Holdings::GoAlong), "");
  EXPECT_TRUE(HoldingsOfLeague(connection_, Sanction).IsEmpty());
  EXPECT_EQ(Holdings_(), "");
  EXPECT_EQ(HoldingsOfLeague(connection_, "2605002").Text(), "1 member");
  EXPECT_EQ(BackupsOf(path_).size(), 1);
}

TEST_F(LeagueDeletionTest, ASecondRowUnderTheNumberKeepsThem) {
  connection_.Execute("INSERT INTO Leagues (SanctionID, Name) VALUES ('2605001', 'Twin')");
  EXPECT_NE(Delete(Holdings::GoAlong), "");
  EXPECT_EQ(AskFor("SELECT Name FROM Leagues WHERE SanctionID = '2605001'"), "Twin");
  EXPECT_EQ(HoldingsOfLeague(connection_, Sanction).members, 2);
}

TEST_F(LeagueDeletionTest, WithoutABackupNothingIsDeleted) {
  QFile inTheWay(folder_.filePath("Backups"));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  const QStringList before = PlainDatabase(path_).Content();
  EXPECT_THROW(Delete(Holdings::GoAlong), Error);
  EXPECT_EQ(PlainDatabase(path_).Content(), before);
}

TEST_F(LeagueDeletionTest, ADeletionThatTheFileRefusesLeavesAllOfIt) {
  PlainDatabase(path_).Run(
      "CREATE TRIGGER Held BEFORE DELETE ON LeagueScores BEGIN SELECT RAISE(ABORT, 'held'); END");
  const QStringList before = PlainDatabase(path_).Content();
  Recordset leagues = OpenLeagues(connection_);
  EXPECT_THROW(DeleteLeague(connection_, leagues, Holdings::GoAlong, Noon).isEmpty(), Error);
  EXPECT_EQ(PlainDatabase(path_).Content(), before);
  EXPECT_EQ(Column(leagues, "SanctionID"), "2605001 2605002");
}

TEST_F(LeagueDeletionTest, AFileWithoutTheTableOfAddedWinsIsNoHindrance) {
  connection_.Execute("DROP TABLE LeagueTeamScores");
  EXPECT_EQ(Holdings_(), "2 members, 1 team and 3 games");
  EXPECT_NE(Delete(Holdings::GoAlong), "");
  EXPECT_EQ(Holdings_(), "");
}

TEST_F(LeagueDeletionTest, ManyGamesAreWrittenInThousands) {
  EXPECT_EQ((LeagueHoldings{30, 0, 1080, 0}.Text()), "30 members and 1,080 games");
  EXPECT_EQ((LeagueHoldings{0, 8, 0, 0}.Text()), "8 teams");
  EXPECT_EQ((LeagueHoldings{0, 0, 0, 2}.Text()), "2 rows of team wins");
}

}  // namespace
}  // namespace tavrelin
