#pragma once

#include <optional>

#include "basic/RowCheck.h"

namespace tavrelin {

class Recordset;

/// Checks a player's row before it is saved. A row without any name vanishes silently; a missing
/// name throws the row away with a message; the other failures keep the operator on the row, and of
/// several the last one is told.
///
/// A card number that another player has (blank and "000000" aside) asks first: call again with the
/// operator's answer. No throws the row away.
///
/// Fixes: the number of a new player, empty texts in place of nulls, 0 years for none. `players` is
/// a clone of the roster with all fields; its cursor moves.
RowCheck CheckPlayer(const RowValues& row, bool newRow, Recordset& players,
                     std::optional<bool> sameCardConfirmed = std::nullopt);

}  // namespace tavrelin
