#pragma once

#include <QList>

#include "basic/CodeText.h"
#include "data/Recordset.h"

namespace tavrelin {

class Connection;

// The rows that the screens of players show. What can be edited is written row by row, and the
// connection must outlive it. All throw Error when the file cannot be read.

/// The whole roster by last name, to be edited. Numbers and cards are found by an index.
Recordset OpenRoster(Connection& connection);

/// Everybody by last name, to choose from: `PlayerID`, `LastName`, `FirstName`, `Category`.
Recordset PlayersByLastName(Connection& connection);

/// What a player pitched, one row a tournament, to be edited. `Pct`, the ringer percent, is worked
/// out by the file when the rows are read.
Recordset OpenHistory(Connection& connection, const Value& playerID);

/// The tournaments that a row of a history can name, the latest first: each number, and the number
/// as it is written.
QList<CodeText> SanctionChoices(Connection& connection);

/// The teams by name, to be edited.
Recordset OpenTeams(Connection& connection);

/// The teams by name, to choose from: `TeamID`, `Team`.
Recordset TeamList(Connection& connection);

/// The players of one team by their numbers, to be edited: `TeamID`, `PlayerID`.
Recordset OpenTeamPlayers(Connection& connection, const Value& teamID);

}  // namespace tavrelin
