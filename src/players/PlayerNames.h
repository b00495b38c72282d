#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "basic/Value.h"
#include "data/Recordset.h"
#include "players/ByID.h"

namespace tavrelin {

class Connection;

/// What a player is called.
struct PersonName {
  QString first;
  QString last;
  QHash<QString, Value> values = {};  ///< what else was asked for, by column of the roster

  /// "Ann Stone", as results and cards have it.
  QString Full() const;
  /// "Stone, Ann", as lists to choose from have it.
  QString Listed() const;
};

/// What is shown for a player or team that a game, an entry or a list still names and the file no
/// longer holds: "AB1234 (not on file)". The one sentence for it, on every screen and sheet.
QString NotOnFile(const QString& id);

/// The names of these players, in one query, with further columns of the roster. Who is not on
/// file is not in the answer.
ByID<PersonName> PlayerNames(Connection& connection, const QStringList& ids,
                             const QStringList& columns = {});

/// The name of this player among those; NotOnFile as last name for one who is not among them, and
/// nothing for an empty number.
PersonName NameOrNumber(const ByID<PersonName>& names, const QString& id);

/// PersonName::Full of these players, in one query. Who is not on file is not in the answer.
ByID<QString> FullNames(Connection& connection, const QStringList& ids);

/// The names of these teams, in one query. A team that is not on file is not in the answer.
ByID<QString> TeamNames(Connection& connection, const QStringList& ids);

/// By what the roster list is ordered. A last name that begins with another one ("Van", "Van
/// Horn") takes another place in the two.
enum class RosterOrder {
  ShownName,  ///< by the text that is shown
  LastName,   ///< by last, then first name
};

/// Everybody on the roster, to choose from: `PlayerID`, `PlayerName` ("Stone, Ann"), and these
/// further columns. Read-only; the cursor stands on the first row.
Recordset RosterList(Connection& connection, const QStringList& columns = {},
                     RosterOrder order = RosterOrder::ShownName);

}  // namespace tavrelin
