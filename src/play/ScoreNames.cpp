#include "play/ScoreNames.h"
#include "play/ClassLoad.h"
#include "play/Game.h"
#include "play/PlayFormat.h"

namespace tavrelin {

EntrantLists NamesForScores(Connection& connection, const LoadedClass& loaded) {
  const PlayFormat& format = loaded.Format();
  QStringList ids, players;
  const auto collect = [](QStringList& all, const QStringList& more) {
    for (const QString& id : more)
      if (!id.isEmpty() && !all.contains(id)) all.append(id);
  };
  const int entrantField = loaded.list.FieldIndex(format.entrantID);
  for (int row = 1; row <= loaded.list.RecordCount(); ++row)
    collect(ids, {loaded.list.CellAt(row, entrantField).Trimmed()});
  collect(ids, {format.pacerID.ToText()});
  for (const Game& game : ReadGames(loaded.games, format)) {
    for (const GameSide& side : game.sides) {
      collect(ids, {side.id});
      collect(players, side.pitchers);
    }
  }

  EntrantLists lists;
  const ByID<QString> names = format.entrantNames(connection, ids);
  for (const QString& id : ids)
    lists.entrants.Add(id, format.IsPacer(id) ? "PACER" : names.value(id, NotOnFile(id)));
  const ByID<PersonName> people = PlayerNames(connection, players);
  for (const QString& id : players) {
    const qsizetype pacer = format.pacerPitchers.indexOf(id);
    const QString name = NameOrNumber(people, id).Full();
    lists.pitchers.Add(id, pacer < 0 ? name : QString("PACER %1").arg(pacer + 1));
  }
  return lists;
}

}  // namespace tavrelin
