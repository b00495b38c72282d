#pragma once

#include <QHash>
#include <QString>

#include "basic/RowCheck.h"
#include "data/Recordset.h"

namespace tavrelin {

class Connection;

/// Wins and losses of a team beyond the games of its players. Halves occur.
struct TeamRecord {
  double wins = 0;
  double losses = 0;
};

/// Whether the file has the table LeagueTeamScores: those of older programs got it with their first
/// league.
bool HasTeamWins(Connection& connection);
/// Makes it where it is missing.
void EnsureTeamWins(Connection& connection);

/// The added wins of every team of a league, by TeamID. None in a file without the table.
QHash<qint64, TeamRecord> AddedTeamWins(Connection& connection, const QString& sanctionID);

/// The rows of one team in a league, by date; each can be edited. The connection must outlive them.
Recordset OpenTeamWins(Connection& connection, const QString& sanctionID, qint64 teamID);

/// A row of added team wins about to be saved. `others` holds the rows of this team and league,
/// `own` is the row itself when it is stored already (0 for a new one). Fixes: the league, the
/// team, and 0 for an empty figure. A row without a date is held without a word; one without wins
/// and losses is dropped without a word. A team has one row a day.
RowCheck CheckTeamWins(const RowValues& row, const QString& sanctionID, qint64 teamID,
                       const Recordset& others, qint64 own);

}  // namespace tavrelin
