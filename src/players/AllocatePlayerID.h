#pragma once

#include <QString>

namespace tavrelin {

class Recordset;

/// The letters from which a player's number is made: the first three of the last name and of the
/// first, in upper case, filled with zeros to six. Apostrophes and double quotes do not count:
/// O'Brien, Al gives OBRAL0.
QString PlayerIDLetters(const QString& lastName, const QString& firstName);

/// A number (`PlayerID`) that no player of the recordset has: the letters, else their first four
/// followed by 01, 02 and so on. After the ninety-ninth it has seven characters, which the column
/// refuses: a club does not have a hundred players of the same letters. `players` has a field
/// PlayerID; its cursor moves, so hand over a clone.
QString AllocatePlayerID(Recordset& players, const QString& lastName, const QString& firstName);

}  // namespace tavrelin
