#pragma once

#include "basic/RowCheck.h"

namespace tavrelin {

class Recordset;

/// Checks a team's row before it is saved: one without a name is dropped without a word.
RowCheck CheckTeam(const RowValues& row);

/// Puts a player on a list that is kept by name: a team, a list for mailings. `members` holds the
/// rows of that one list, updatable: its number (`listField`) and a PlayerID.
///
/// Refused when he is on it already. Once he is added the rows are read again, so that he is in his
/// place, with the cursor on him. Throws Error when the file refuses the row; then nothing is left
/// pending.
Refusal AddToPlayerList(Recordset& members, const QString& listField, const Value& list,
                        const Value& playerID);

}  // namespace tavrelin
