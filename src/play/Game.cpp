#include "play/Game.h"

#include <algorithm>
#include <numeric>

#include "data/Recordset.h"
#include "play/PlayFormat.h"
#include "players/ByID.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// One row of a recordset, read by field place without moving the cursor.
struct Row {
  const Recordset& games;
  int position;

  Value At(int field) const { return field < 0 ? Value() : games.CellAt(position, field); }
  int Whole(int field) const { return static_cast<int>(At(field).ToWhole()); }
};

QList<int> PlacesOf(const Recordset& rows, const QStringList& names) {
  QList<int> places;
  for (const QString& name : names) places << rows.FieldIndex(name);
  return places;
}

}  // namespace

int GameSide::Ringers() const {
  return std::accumulate(ringers.begin(), ringers.end(), 0);
}

int Game::SideOf(const QString& id) const {
  const QString key = IDKey(id);
  if (IDKey(sides[0].id) == key) return 0;
  return IDKey(sides[1].id) == key ? 1 : -1;
}

QStringList EntrantsIn(const QList<Game>& games) {
  QStringList ids;
  for (const Game& game : games) ids << game.sides[0].id << game.sides[1].id;
  ids.removeDuplicates();
  return ids;
}

GameReader::Side GameReader::SideIn(const Recordset& games, const SideColumns& columns) {
  return {games.FieldIndex(columns.id),      games.FieldIndex(columns.number),
          games.FieldIndex(columns.points),  games.FieldIndex(columns.forfeit),
          PlacesOf(games, columns.pitchers), PlacesOf(games, columns.ringers)};
}

GameReader::GameReader(const Recordset& games, const PlayFormat& format)
    : sides_{SideIn(games, format.sides[0]), SideIn(games, format.sides[1])},
      number_(games.FieldIndex(u"Game"_s)),
      court_(games.FieldIndex(u"Court"_s)),
      shoes_(games.FieldIndex(u"Shoes"_s)),
      approved_(games.FieldIndex(u"Approved"_s)) {}

GameSide GameReader::ReadSide(const Recordset& games, int position, const Side& columns) {
  const Row row{games, position};
  GameSide side;
  side.id = row.At(columns.id).Trimmed();
  side.number = row.Whole(columns.number);
  side.points = row.Whole(columns.points);
  side.forfeit = row.At(columns.forfeit).ToYesNo();
  side.pitchers.reserve(columns.pitchers.size());
  side.ringers.reserve(columns.ringers.size());
  for (const int field : columns.pitchers)
    side.pitchers << (field == columns.id ? side.id : row.At(field).Trimmed());
  for (const int field : columns.ringers) side.ringers << row.Whole(field);
  return side;
}

Game GameReader::Read(const Recordset& games, int position) const {
  const Row row{games, position};
  return {row.Whole(number_),
          row.At(court_).ToText(),
          row.Whole(shoes_),
          row.At(approved_).ToYesNo(),
          {ReadSide(games, position, sides_[0]), ReadSide(games, position, sides_[1])}};
}

QList<Game> ReadGames(const Recordset& games, const PlayFormat& format) {
  const GameReader reader(games, format);
  QList<Game> all;
  all.reserve(games.RecordCount());
  for (int position = 1; position <= games.RecordCount(); ++position)
    all.append(reader.Read(games, position));
  return all;
}

Outcome OutcomeOf(const Game& game, int side, const PlayFormat& format) {
  const GameSide& own = game.sides[static_cast<size_t>(side)];
  const GameSide& other = game.sides[static_cast<size_t>(1 - side)];
  if (own.forfeit || format.IsPacer(own.id)) return Outcome::Loss;
  if (other.forfeit || format.IsPacer(other.id)) return Outcome::Win;
  if (own.points == other.points) return Outcome::Tie;
  return own.points > other.points ? Outcome::Win : Outcome::Loss;
}

Outcome GameIcon(const Game& game, int side, const PlayFormat& format) {
  return game.approved ? OutcomeOf(game, side, format) : Outcome::None;
}

QString RightJustifyCourt(const QString& court) {
  return court.trimmed().left(3).trimmed().rightJustified(3);
}

bool ResultsMissing(const QList<Game>& games) {
  bool sawOpen = false;
  for (const Game& game : games) {
    if (game.approved && sawOpen) return true;
    if (!game.approved) sawOpen = true;
  }
  return false;
}

}  // namespace tavrelin
