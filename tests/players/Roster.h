#pragma once

#include <QString>

#include "data/Recordset.h"

namespace tavrelin {

/// A roster in memory with the fields that the rules look at.
inline Recordset RosterInMemory() {
  Recordset players;
  players.Append("PlayerID", FieldType::Text, 7);
  players.Append("FirstName", FieldType::Text, 20);
  players.Append("LastName", FieldType::Text, 25);
  players.Append("CardNumber", FieldType::Text, 6);
  players.OpenInMemory();
  return players;
}

inline void AddToRoster(Recordset& players, const QString& playerID, const QString& first = {},
                        const QString& last = {}, const Value& card = {}) {
  players.AddNew();
  players.Set("PlayerID", playerID);
  players.Set("FirstName", first);
  players.Set("LastName", last);
  players.Set("CardNumber", card);
  players.Update();
}

}  // namespace tavrelin
