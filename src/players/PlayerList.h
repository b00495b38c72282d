#pragma once

#include "basic/RowCheck.h"

namespace tavrelin {

class Recordset;

/// Checks a team's row before it is saved: one without a name is dropped without a word.
RowCheck CheckTeam(const RowValues& row);

/// Puts a player on a list that is kept by name: a team, a list for mailings. `members` holds the
/// rows of that one list, updatable: its number (`listField`) and a PlayerID.
///
/// Returns what is to be told when he is on it already, and writes nothing then. Empty when he was
/// added: the rows are read anew, so that he stands in his place, with the cursor on him. Throws
/// Error when the file refuses the row; then nothing is left pending.
QString AddToPlayerList(Recordset& members, const QString& listField, const Value& list,
                        const Value& playerID);

}  // namespace tavrelin
