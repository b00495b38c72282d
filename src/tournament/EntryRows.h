#pragma once

#include <QList>
#include <QString>

#include "basic/CodeText.h"
#include "data/Recordset.h"

namespace tavrelin {

class Connection;

// The rows that the entries screen shows. All throw Error when the file cannot be read.

/// A tournament has entries of players and of teams, each kind in a table of its own.
enum class EntryKind { Players, Teams };

/// The field that names who is entered: "PlayerID" or "TeamID".
QString EntrantField(EntryKind kind);

/// The format of the classes that they are placed in: "S" or "D".
QString PlayFormatOf(EntryKind kind);

/// Who can be entered: the roster by last and first name with `PlayerName` ("Stone, Ann"), or the
/// teams by name.
Recordset EntrantList(Connection& connection, EntryKind kind);

/// What of an entry is read.
enum class EntryFields { All, WithoutShoes };

/// The entries of a tournament, to be edited; the connection must outlive them.
Recordset OpenEntries(Connection& connection, EntryKind kind, const QString& sanctionID,
                      EntryFields fields = EntryFields::All);

/// What is shown for those who are entered, each once, by PlayerID or TeamID.
struct EntrantTexts {
  QList<CodeText> names;      ///< "Stone, Ann", the team's name, or that the file holds it no more
  QList<CodeText> divisions;  ///< of players, as a word; "Unknown" where nothing is known
};

/// The texts for these entries. Their cursor stays.
EntrantTexts TextsOf(Connection& connection, EntryKind kind, const Recordset& entries);

}  // namespace tavrelin
