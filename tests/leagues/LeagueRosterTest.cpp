#include "leagues/LeagueRoster.h"

#include "leagues/LeagueBench.h"

namespace tavrelin {
namespace {

class LeagueRosterTest : public LeagueBench {
 protected:
  QStringList Members() {
    return Rows(
        "SELECT PlayerID, Active, StartingAverage, HighGamePoints, HighGameRingers "
        "FROM LeagueMembers WHERE SanctionID = '2605001' ORDER BY PlayerID");
  }
};

TEST_F(LeagueRosterTest, AMemberBeginsActiveWithoutAverageAndMarks) {
  AddPlayer("BERIDA", "Berg");
  EXPECT_FALSE(AddLeagueMember(connection_, Sanction, "BERIDA"));
  EXPECT_EQ(Members(), QStringList{"BERIDA True 0 0 0"});
}

TEST_F(LeagueRosterTest, AMemberIsAddedOnce) {
  AddMember("BERIDA", {.start = 70});
  for (const char* id : {"BERIDA", "berida"}) {
    EXPECT_EQ(AddLeagueMember(connection_, Sanction, id).sentence, "Player already in list");
  }
  EXPECT_EQ(Members(), QStringList{"BERIDA True 70 0 0"});
}

TEST_F(LeagueRosterTest, AMemberOfAnotherLeagueIsNone) {
  connection_.Execute("INSERT INTO LeagueMembers (SanctionID, PlayerID) VALUES ('2605002', 'A1')");
  EXPECT_FALSE(AddLeagueMember(connection_, Sanction, "A1"));
  EXPECT_EQ(Members().size(), 1);
}

TEST_F(LeagueRosterTest, ATeamBringsThoseOfItsPlayersWhoAreNotYetMembers) {
  AddMember("A1", {.active = false, .start = 50});
  for (const char* id : {"B2", "C3"}) AddPlayer(id, id);
  const int riders = AddTeam("Riders", {"C3", "A1", "B2", "B2"});
  const AddedTeam added = AddLeagueTeam(connection_, Sanction, riders);
  EXPECT_FALSE(added.refusal);
  EXPECT_EQ(added.members, 2);
  EXPECT_EQ(Members(), (QStringList{"A1 False 50 0 0", "B2 True 0 0 0", "C3 True 0 0 0"}));
  EXPECT_EQ(Rows("SELECT * FROM LeagueTeams"), QStringList{QString("2605001 %1").arg(riders)});
}

TEST_F(LeagueRosterTest, ATeamIsAddedOnceAndItsNewPlayersAreNotAddedByTheRefusal) {
  const int riders = AddTeam("Riders");
  EXPECT_FALSE(AddLeagueTeam(connection_, Sanction, riders).refusal);
  connection_.Execute("INSERT INTO TeamPlayers VALUES(?, 'A1')", {riders});
  EXPECT_EQ(AddLeagueTeam(connection_, Sanction, riders).refusal.sentence, "Team already in list");
  EXPECT_EQ(Rows("SELECT * FROM LeagueTeams").size(), 1);
  EXPECT_EQ(Members().size(), 0);
}

TEST_F(LeagueRosterTest, ATeamWithoutPlayersIsAddedAlone) {
  EXPECT_EQ(AddLeagueTeam(connection_, Sanction, AddTeam("Riders")).members, 0);
  EXPECT_EQ(Rows("SELECT * FROM LeagueTeams").size(), 1);
}

TEST_F(LeagueRosterTest, ListsAreThoseOfTheLeagueInTheirOrder) {
  const int riders = AddTeam("Riders");
  const int hawks = AddTeam("Hawks");
  for (const int team : {riders, hawks}) AddLeagueTeamRow(team);
  AddMember("B2");
  AddMember("A1");
  connection_.Execute("INSERT INTO LeagueMembers (SanctionID, PlayerID) VALUES ('2605002', 'C3')");
  connection_.Execute("INSERT INTO Leagues (SanctionID) VALUES ('2505001')");
  const auto text = [](const Recordset& rows, const QString& field) {
    QStringList all;
    for (int position = 1; position <= rows.RecordCount(); ++position) {
      all << rows.CellAt(position, rows.FieldIndex(field)).ToText();
    }
    return all.join(u' ');
  };
  EXPECT_EQ(text(OpenLeagueMembers(connection_, Sanction), "PlayerID"), "A1 B2");
  EXPECT_EQ(text(LeagueTeamList(connection_, Sanction), "Team"), "Hawks Riders");
  EXPECT_EQ(text(OpenLeagues(connection_), "SanctionID"), "2505001 2605001");
  EXPECT_EQ(OpenLeagueTeams(connection_, Sanction).RecordCount(), 2);
}

}  // namespace
}  // namespace tavrelin
