#include "play/RankOverride.h"

#include "data/Connection.h"
#include "data/Recordset.h"
#include "play/ClassLoad.h"

namespace tavrelin {
namespace {

void StorePlace(Connection& connection, const ClassRules& rules, const Recordset& standings,
                const Value& place) {
  connection.Execute(
      QStringLiteral("UPDATE TournamentEntrants SET RankOverride = ? "
                     "WHERE PlayerID = ? AND SanctionID = ? AND ClassID = ?"),
      {place, standings[QStringLiteral("PlayerID")], rules.sanctionID, rules.classID});
}

void MarkClass(Connection& connection, ClassRules& rules, bool overridden) {
  connection.Execute(QStringLiteral("UPDATE TournamentClasses SET RankOverride = ? "
                                    "WHERE SanctionID = ? AND ClassID = ?"),
                     {overridden, rules.sanctionID, rules.classID});
  rules.rankOverride = overridden;
}

}  // namespace

Refusal ApplyOverride(Connection& connection, ClassRules& rules, Recordset& standings) {
  Batch batch(connection);
  standings.SetSort(QStringLiteral("Override ASC"));
  qint64 before = 0;  // as yet no place: equal to a place left out
  for (standings.MoveFirst(); !standings.AtEnd(); standings.MoveNext()) {
    const qint64 place = standings[QStringLiteral("Override")].ToWhole();
    if (place == before) {
      batch.Commit();
      return {QStringLiteral("Duplicate Ranking: #%1 is not allowed").arg(place)};
    }
    before = place;
    StorePlace(connection, rules, standings, place);
  }
  MarkClass(connection, rules, true);
  batch.Commit();
  standings.MoveFirst();
  return {};
}

void RemoveOverride(Connection& connection, ClassRules& rules, Recordset& standings) {
  Batch batch(connection);
  // By place as computed: an order by the column that changes would move the rows under the walk.
  standings.SetSort(QStringLiteral("Rank ASC"));
  MarkClass(connection, rules, false);
  for (standings.MoveFirst(); !standings.AtEnd(); standings.MoveNext()) {
    StorePlace(connection, rules, standings, 0);
    standings.Set(QStringLiteral("Override"), standings[QStringLiteral("Rank")]);
    standings.Update();
  }
  batch.Commit();
  standings.MoveFirst();
}

}  // namespace tavrelin
