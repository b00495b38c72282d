#include "leagues/LeagueRoster.h"

#include "data/WholeBatch.h"
#include "players/ByID.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

void InsertMember(Connection& connection, const QString& sanctionID, const QString& playerID) {
  connection.Execute(
      u"INSERT INTO LeagueMembers (SanctionID, PlayerID, Active, StartingAverage, HighGamePoints, "
      "HighGameRingers) VALUES (?, ?, True, 0, 0, 0)"_s,
      {sanctionID, playerID});
}

ByID<bool> MembersOf(Connection& connection, const QString& sanctionID) {
  ByID<bool> members;
  for (Recordset rows = OpenLeagueMembers(connection, sanctionID); !rows.AtEnd(); rows.MoveNext()) {
    members[rows[u"PlayerID"_s].ToText()] = true;
  }
  return members;
}

QStringList PlayersOfTeam(Connection& connection, qint64 teamID) {
  Recordset rows;
  rows.Open(u"SELECT PlayerID FROM TeamPlayers WHERE TeamID = ?"_s, connection,
            Recordset::Lock::ReadOnly, {teamID});
  QStringList players;
  for (; !rows.AtEnd(); rows.MoveNext()) players << rows.At(0).ToText();
  return players;
}

bool HasTeam(Connection& connection, const QString& sanctionID, qint64 teamID) {
  Recordset teams = OpenLeagueTeams(connection, sanctionID);
  if (!teams.AtEnd()) teams.Find(u"TeamID = %1"_s.arg(teamID));
  return !teams.AtEnd();
}

int AddPlayersOfTeam(Connection& connection, const QString& sanctionID, qint64 teamID) {
  ByID<bool> members = MembersOf(connection, sanctionID);
  int added = 0;
  for (const QString& player : PlayersOfTeam(connection, teamID)) {
    if (members.contains(player)) continue;
    InsertMember(connection, sanctionID, player);
    members[player] = true;
    ++added;
  }
  return added;
}

}  // namespace

Recordset OpenLeagues(Connection& connection) {
  Recordset leagues;
  leagues.Open(u"SELECT * FROM Leagues ORDER BY SanctionID"_s, connection,
               Recordset::Lock::Optimistic);
  return leagues;
}

Recordset OpenLeagueMembers(Connection& connection, const QString& sanctionID) {
  Recordset members;
  members.Open(
      u"SELECT SanctionID, PlayerID, Active, StartingAverage, HighGamePoints, HighGameRingers  "
      "FROM LeagueMembers WHERE SanctionID = ? ORDER BY PlayerID"_s,
      connection, Recordset::Lock::Optimistic, {sanctionID});
  return members;
}

Recordset OpenLeagueTeams(Connection& connection, const QString& sanctionID) {
  Recordset teams;
  teams.Open(u"SELECT l.TeamID, l.SanctionID FROM LeagueTeams l WHERE SanctionID = ?"_s, connection,
             Recordset::Lock::Optimistic, {sanctionID});
  return teams;
}

Recordset LeagueTeamList(Connection& connection, const QString& sanctionID) {
  Recordset teams;
  teams.Open(
      u"SELECT l.TeamID, t.Team FROM LeagueTeams l, Teams t WHERE l.SanctionID = ? "
      "AND l.TeamID = t.TeamID ORDER BY t.Team"_s,
      connection, Recordset::Lock::ReadOnly, {sanctionID});
  return teams;
}

Refusal AddLeagueMember(Connection& connection, const QString& sanctionID,
                        const QString& playerID) {
  if (MembersOf(connection, sanctionID).contains(playerID)) {
    return {u"Player already in list"_s};
  }
  InsertMember(connection, sanctionID, playerID);
  return {};
}

AddedTeam AddLeagueTeam(Connection& connection, const QString& sanctionID, qint64 teamID) {
  if (HasTeam(connection, sanctionID, teamID)) return {{u"Team already in list"_s}};
  AddedTeam added;
  InWholeBatch(connection, [&] {
    connection.Execute(u"INSERT INTO LeagueTeams (SanctionID, TeamID) VALUES (?, ?)"_s,
                       {sanctionID, teamID});
    added.members = AddPlayersOfTeam(connection, sanctionID, teamID);
  });
  return added;
}

}  // namespace tavrelin
