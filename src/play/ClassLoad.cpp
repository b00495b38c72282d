#include "play/ClassLoad.h"

#include <algorithm>

#include "basic/ScoreTexts.h"
#include "data/Connection.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

constexpr int Unseeded = 99;

/// An entry as the file delivers it, with the names of its pitchers.
struct Entrant {
  int seed;
  double average;
  QHash<QString, Value> values;
};

QList<Value> Key(const ClassRules& rules) {
  return {rules.sanctionID, rules.classID};
}

QList<Entrant> ReadEntrants(Connection& connection, const ClassRules& rules) {
  Recordset rows;
  rows.Open(FormatOf(rules).entrantsStatement, connection, Recordset::Lock::ReadOnly, Key(rules));
  QList<Entrant> entrants;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    Entrant entrant;
    for (const Field& field : rows.Fields()) entrant.values[field.name] = rows[field.name];
    const auto seed = static_cast<int>(rows[QStringLiteral("Seed")].ToWhole());
    entrant.seed = seed == 0 ? Unseeded : seed;
    entrant.average = rows[QStringLiteral("RingerPercent")].ToNumber();
    entrants.append(entrant);
  }
  return entrants;
}

void FillNames(Connection& connection, const PlayFormat& format, QList<Entrant>& entrants) {
  QStringList ids;
  for (const Entrant& entrant : entrants) {
    for (const PitcherColumns& pitcher : format.pitchers)
      ids << entrant.values[pitcher.id].ToText();
  }
  const ByID<PersonName> names = PlayerNames(connection, ids, {"State"});
  if (format.listsRosterOnly) {
    entrants.removeIf([&](const Entrant& entrant) {
      return !names.contains(entrant.values[format.entrantID].ToText());
    });
  }
  for (Entrant& entrant : entrants) {
    for (const PitcherColumns& pitcher : format.pitchers) {
      const PersonName name = NameOrNumber(names, entrant.values[pitcher.id].ToText());
      entrant.values[pitcher.firstName] = name.first;
      entrant.values[pitcher.lastName] = name.last;
      if (format.listsRosterOnly)
        entrant.values[QStringLiteral("State")] = name.values[QStringLiteral("State")];
    }
  }
}

/// Best seed first, then the higher entry average; who is level on both keeps the file's order.
void Number(QList<Entrant>& entrants) {
  std::stable_sort(entrants.begin(), entrants.end(), [](const Entrant& a, const Entrant& b) {
    return a.seed != b.seed ? a.seed < b.seed : a.average > b.average;
  });
}

Entrant Pacer(const PlayFormat& format) {
  Entrant pacer{100, 0, {}};
  for (const auto& [field, value] : format.pacerRow) pacer.values[field] = value;
  pacer.values[QStringLiteral("RingerPercent")] = 0;
  return pacer;
}

Value Shown(const Entrant& entrant, const QString& field) {
  const Value value = entrant.values.value(field);
  const bool games = field == u"TotalWins" || field == u"TotalLosses";
  return games ? Value(HalfWinText(value.ToNumber())) : value;
}

Recordset MakeList(const PlayFormat& format, const QList<Entrant>& entrants) {
  Recordset list;
  for (const Field& field : format.listFields) list.Append(field.name, field.type, field.size);
  list.OpenInMemory();
  int number = 0;
  for (const Entrant& entrant : entrants) {
    list.AddNew();
    for (const Field& field : format.listFields) list.Set(field.name, Shown(entrant, field.name));
    list.Set(QStringLiteral("PlayerNumber"), ++number);
    list.Update();
  }
  if (number > 0) list.MoveFirst();
  return list;
}

/// As many courts as a round needs, named by their numbers.
QStringList DefaultCourts(int entrants) {
  QStringList courts;
  for (int court = 1; court <= (entrants + 1) / 2; ++court) {
    courts << QString::number(court).leftJustified(3);
  }
  return courts;
}

void ReadGameRows(Connection& connection, LoadedClass& loaded) {
  const PlayFormat& format = loaded.Format();
  loaded.games.Open(format.gamesStatement, connection, Recordset::Lock::Optimistic,
                    Key(loaded.rules));
  const QList<Game> games = ReadGames(loaded.games, format);
  loaded.isPaired = !games.isEmpty();
  for (const Game& game : games) {
    loaded.highestGame = std::max(loaded.highestGame, game.game);
    for (const GameSide& side : game.sides) loaded.hasPacer |= format.IsPacer(side.id);
  }
}

}  // namespace

const PlayFormat& LoadedClass::Format() const {
  return FormatOf(rules);
}

QList<Game> ReadClassGames(Connection& connection, const ClassRules& rules) {
  Recordset rows;
  rows.Open(FormatOf(rules).gamesStatement, connection, Recordset::Lock::ReadOnly, Key(rules));
  return ReadGames(rows, FormatOf(rules));
}

LoadedClass LoadClass(Connection& connection, const ClassRules& rules, bool withPacer) {
  LoadedClass loaded;
  loaded.rules = rules;
  loaded.hasPacer = withPacer;
  ReadGameRows(connection, loaded);
  QList<Entrant> entrants = ReadEntrants(connection, rules);
  FillNames(connection, FormatOf(rules), entrants);
  loaded.entrants = static_cast<int>(entrants.size());
  if (entrants.isEmpty()) {
    loaded.refusal = {QStringLiteral("No players entered in class")};
    loaded.list = MakeList(FormatOf(rules), {});
    return loaded;
  }
  Number(entrants);
  if (loaded.hasPacer) entrants.append(Pacer(FormatOf(rules)));
  loaded.list = MakeList(FormatOf(rules), entrants);
  if (!loaded.isPaired) loaded.courts = DefaultCourts(loaded.entrants);
  return loaded;
}

}  // namespace tavrelin
