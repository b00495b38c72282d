#pragma once

#include <QHash>

#include "data/Recordset.h"
#include "leagues/TeamWins.h"

namespace tavrelin {

class Connection;
enum class CountedWins;
struct Credit;
struct League;

/// Wins over all games that were decided or tied; 0 without any. 0 to 1.
double WinShare(double wins, double losses);

/// The standings of a league's teams while the games of its members are added up. A singles league
/// has none.
class TeamTable {
 public:
  /// Reads the teams and, where they count, the wins that were added by hand.
  TeamTable(Connection& connection, const League& league, CountedWins count);

  /// A game of a member. One of no team of the league counts for the player alone.
  void Add(qint64 teamID, const Credit& credit);

  /// The table, by TeamID, its cursor on the first row; not open in a singles league.
  Recordset Standings();

 private:
  bool countsGames_;
  Recordset rows_;
  QHash<qint64, TeamRecord> records_;
};

}  // namespace tavrelin
