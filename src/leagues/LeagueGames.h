#pragma once

#include <optional>
#include <QDate>
#include <QString>

#include "basic/RowCheck.h"
#include "data/Recordset.h"
#include "players/ByID.h"

namespace tavrelin {

class Connection;
struct League;

/// The day that a typed date names; nothing for what is no date, and for a time without a day.
std::optional<QDate> LeagueDay(const Value& typed);

/// The games of a member in a league, by date and, within a date, as they were typed. Each row can
/// be edited; the connection must outlive it.
Recordset OpenLeagueGames(Connection& connection, const QString& sanctionID,
                          const QString& playerID);

/// The team of each player in a team league, by PlayerID. A player of two teams stands with the one
/// that the file names first.
ByID<qint64> LeagueTeamsOfPlayers(Connection& connection, const QString& sanctionID);

/// What a new game of a member starts with: his league, number and team, the league's shoes, the
/// evening's date and, where the club records handicaps weekly, the handicap of his own latest
/// game. `games` holds his games in this league.
RowValues NewLeagueGame(const League& league, const QString& playerID, const ByID<qint64>& teams,
                        const Recordset& games, const QDate& evening, bool weeklyHandicaps);

/// A game about to be saved: figures that a score can have. Where every ringer counts, the points
/// are at least three for each; in any league, each other shoe adds one at most. A row without
/// player, date, points or shoes is held without a word; figures are whole and not below 0. Fixes:
/// the result in capitals, an empty handicap as 0, and in a team league an empty team.
RowCheck CheckLeagueGame(const RowValues& row, const League& league, const ByID<qint64>& teams);

/// The active members of a league by name, in memory: PlayerID, SanctionID, LastName, FirstName and
/// `Games`, how many games each has on the evening's date.
Recordset EveningMembers(Connection& connection, const QString& sanctionID, const QDate& evening);

/// Counts the games of the evening once more, in the rows that are there. Cursor, order and filter
/// of `members` stay.
void CountEveningGames(Connection& connection, const QString& sanctionID, const QDate& evening,
                       Recordset& members);

}  // namespace tavrelin
