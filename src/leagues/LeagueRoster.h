#pragma once

#include <QString>

#include "basic/Refusal.h"
#include "data/Recordset.h"

namespace tavrelin {

class Connection;

/// All leagues by number; each row can be edited. The connection must outlive them.
Recordset OpenLeagues(Connection& connection);
/// The members of a league by PlayerID; each row can be edited.
Recordset OpenLeagueMembers(Connection& connection, const QString& sanctionID);
/// The teams of a league; rows can be deleted.
Recordset OpenLeagueTeams(Connection& connection, const QString& sanctionID);
/// The teams of a league with their names, by name, to choose from: TeamID and Team.
Recordset LeagueTeamList(Connection& connection, const QString& sanctionID);

/// Makes a player a member of a league: active, without average and high marks as yet. Refused when
/// he is one already.
Refusal AddLeagueMember(Connection& connection, const QString& sanctionID, const QString& playerID);

/// What became of a team that was to be added.
struct [[nodiscard]] AddedTeam {
  Refusal refusal;
  int members = 0;  ///< how many of its players became members with it
};

/// Adds a team to a league, and as members those of its players who are none yet: all of it or,
/// when the file refuses a row, nothing. Refused when the team is in the league already.
AddedTeam AddLeagueTeam(Connection& connection, const QString& sanctionID, qint64 teamID);

}  // namespace tavrelin
