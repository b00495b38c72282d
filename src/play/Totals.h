#pragma once

#include <QList>
#include <QString>

#include "play/Game.h"
#include "players/ByID.h"

namespace tavrelin {

class Connection;
struct ClassRules;

/// What one entrant's approved games add up to.
struct Totals {
  int shoes = 0;  ///< of all pitchers of the side
  int ringers = 0;
  int points = 0;
  float wins = 0;  ///< halves occur
  float losses = 0;
  int pitcherShoes = 0;       ///< of one pitcher
  QList<int> pitcherRingers;  ///< by pitcher
};

/// Totals by entrant. A game forfeited adds a loss and nothing else; the pacer has none.
ByID<Totals> AddUp(const QList<Game>& games, const PlayFormat& format);

/// Best ringer percentage of a single approved game, by player, for pitchers in one place of the
/// side (0, or 1 for the second partner).
ByID<float> HighGames(const QList<Game>& games, qsizetype pitcher);

/// Stores the totals of every entry of the class, zeros where no game counts, and raises the high
/// games. One statement an entry; call it in a Batch.
void WriteTotals(Connection& connection, const ClassRules& rules, const QList<Game>& games);

}  // namespace tavrelin
