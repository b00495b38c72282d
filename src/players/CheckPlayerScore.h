#pragma once

#include "basic/RowCheck.h"

namespace tavrelin {

class Recordset;

/// Ringers over shoes in percent; null where there are no shoes.
Value RingerPercent(const Value& ringers, const Value& shoes);

/// Checks a row of a player's tournament history before it is saved. A row without player,
/// tournament, shoes or ringers is dropped without a word, so that no row without shoes is ever
/// stored. Wins and losses count in halves, since a tied game is half of each. A player has one row
/// a tournament.
///
/// Fixes: the ringer percent that is shown (`Pct`). `scores` holds the rows of the player; its
/// cursor moves.
RowCheck CheckPlayerScore(const RowValues& row, bool newRow, Recordset& scores);

}  // namespace tavrelin
