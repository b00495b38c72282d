#pragma once

#include <QDateTime>
#include <QString>

namespace tavrelin {

class Connection;
class Recordset;

/// What is kept under a league's number besides the league itself.
struct LeagueHoldings {
  int members = 0;
  int teams = 0;
  int games = 0;     ///< of its members and of players who are none any more
  int teamWins = 0;  ///< rows of added team wins

  bool IsEmpty() const { return members + teams + games + teamWins == 0; }
  /// "30 members, 8 teams and 1,080 games", what there is none of left out. Empty when there is
  /// nothing.
  QString Text() const;
};
LeagueHoldings HoldingsOfLeague(Connection& connection, const QString& sanctionID);

/// What becomes of them when their league is deleted.
enum class Holdings { Stay, GoAlong };

/// Deletes the current row of `leagues` (see OpenLeagues) and, where they go along, its members,
/// teams and scores: all of it or nothing. Those of a league that has a second row under the same
/// number stay in any case. The file is backed up first, under the name of the deed.
///
/// Returns what is told; `leagues` is read again. Throws Error when the backup or the deletion
/// fails; the file has not changed then.
[[nodiscard]] QString DeleteLeague(Connection& connection, Recordset& leagues, Holdings holdings,
                                   const QDateTime& now);

}  // namespace tavrelin
