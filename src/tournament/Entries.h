#pragma once

#include <QDate>
#include <QString>

#include "basic/RowCheck.h"
#include "data/Recordset.h"

namespace tavrelin {

class Connection;

/// May this player be entered (again)? `entries` holds the tournament's singles entries; its cursor
/// is moved. A player may stand in several classes, so a second entry is asked for, but not before
/// the first one has its class.
RowCheck CheckSecondEntry(Recordset& entries, const QString& playerID);

/// Enters a player without a class and returns the entry average he got, in percent.
double EnterPlayer(Connection& connection, const QString& sanctionID, const QString& playerID,
                   const QString& category, const QDate& today);

/// Enters a team of exactly two players, the stronger as player one, with the mean of their entry
/// averages. Refused: a team that is entered already, or that has not exactly two players on the
/// roster.
Refusal EnterTeam(Connection& connection, const QString& sanctionID, int teamID,
                  const QDate& today);

/// True when the tournament's day is over: its averages are then not changed unasked.
bool IsPast(const QDateTime& tournamentDate, const QDate& today);

/// The roster's averages into the singles entries of a tournament; a player without one keeps what
/// he has.
void UpdatePlayerAverages(Connection& connection, const QString& sanctionID);

/// The same for team entries. Refused by the first team that no longer has exactly two
/// players; teams before it stay changed. The first player's average counts if there is one, the
/// second's only beside it; the team gets half the sum, so a partner without an average halves the
/// first one's.
Refusal UpdateTeamAverages(Connection& connection, const QString& sanctionID);

/// A singles entry about to be saved: percent, payment, seed, shoes and ringers are numbers,
/// ringers within shoes.
RowCheck CheckEntry(const RowValues& row);

/// A singles entry about to go into another class: a player stands in a class once. `entries` holds
/// the tournament's singles entries, its cursor is moved; `own` is the row that is saved.
RowCheck CheckClassChange(Recordset& entries, Recordset::Bookmark own, const RowValues& row);

/// A team entry about to be saved: percent, payment and seed are numbers.
RowCheck CheckTeamEntry(const RowValues& row);

}  // namespace tavrelin
