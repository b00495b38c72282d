#pragma once

#include <QDate>
#include <QString>

namespace tavrelin {

class Connection;
struct ClassRules;
struct League;

/// What became of the games of a class that were sent to a league. Rows count players, two a game.
struct [[nodiscard]] SentToLeague {
  int added = 0;
  int updated = 0;    ///< sent before: mended figures in place of the former ones
  int elsewhere = 0;  ///< sent to another league before; mended there, and none here
  bool teamLeague = false;
  int withoutTeam = 0;  ///< players who are on no team of the league

  /// The closing message: "Class information has been sent to league: 30 new, 0 updated, 0 left in
  /// another league", in a team league with the players without a team.
  QString Message() const;
};

/// Writes the approved games of a singles class into a league as games of one evening, one row for
/// each player but the pacer. A game that was sent before is not written twice: its row takes the
/// present figures and stays under the league and date of its first send. Figures of a forfeit go
/// as they stand. A player without a team gets the team of the one before him.
///
/// Throws Error when the file refuses a row; rows before it stay.
SentToLeague SendClassToLeague(Connection& connection, const ClassRules& rules,
                               const League& league, const QDate& evening);

/// How many rows of leagues came from the games of a class. Pairing it again gives the games new
/// numbers, and a second send would count the evening twice.
int RowsSentToLeagues(Connection& connection, const ClassRules& rules);

}  // namespace tavrelin
