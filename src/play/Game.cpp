#include "play/Game.h"

#include <algorithm>
#include <numeric>

#include "data/Recordset.h"
#include "play/PlayFormat.h"
#include "players/ByID.h"

namespace tavrelin {
namespace {

/// The places of one side's columns in a recordset; -1 for a column the format lacks.
struct SideIndex {
  SideIndex(const Recordset& games, const SideColumns& columns)
      : id(games.FieldIndex(columns.id)),
        number(games.FieldIndex(columns.number)),
        points(games.FieldIndex(columns.points)),
        forfeit(games.FieldIndex(columns.forfeit)) {
    for (const QString& name : columns.pitchers) pitchers << games.FieldIndex(name);
    for (const QString& name : columns.ringers) ringers << games.FieldIndex(name);
  }

  int id, number, points, forfeit;
  QList<int> pitchers, ringers;
};

/// One row of a recordset, read by field place without moving the cursor.
struct Row {
  const Recordset& games;
  int position;

  Value At(int field) const { return field < 0 ? Value() : games.CellAt(position, field); }
  int Whole(int field) const { return static_cast<int>(At(field).ToWhole()); }
};

GameSide ReadSide(const Row& row, const SideIndex& index) {
  GameSide side;
  side.id = row.At(index.id).Trimmed();
  side.number = row.Whole(index.number);
  side.points = row.Whole(index.points);
  side.forfeit = row.At(index.forfeit).ToYesNo();
  side.pitchers.reserve(index.pitchers.size());
  side.ringers.reserve(index.ringers.size());
  for (const int field : index.pitchers)
    side.pitchers << (field == index.id ? side.id : row.At(field).Trimmed());
  for (const int field : index.ringers) side.ringers << row.Whole(field);
  return side;
}

/// The places of all columns of a game.
struct GameIndex {
  GameIndex(const Recordset& games, const PlayFormat& format)
      : sides{SideIndex(games, format.sides[0]), SideIndex(games, format.sides[1])},
        number(games.FieldIndex(QStringLiteral("Game"))),
        court(games.FieldIndex(QStringLiteral("Court"))),
        shoes(games.FieldIndex(QStringLiteral("Shoes"))),
        approved(games.FieldIndex(QStringLiteral("Approved"))) {}

  Game Read(const Row& row) const {
    return {row.Whole(number),
            row.At(court).ToText(),
            row.Whole(shoes),
            row.At(approved).ToYesNo(),
            {ReadSide(row, sides[0]), ReadSide(row, sides[1])}};
  }

  std::array<SideIndex, 2> sides;
  int number, court, shoes, approved;
};

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

QList<Game> ReadGames(const Recordset& games, const PlayFormat& format) {
  const GameIndex index(games, format);
  QList<Game> all;
  all.reserve(games.RecordCount());
  for (int position = 1; position <= games.RecordCount(); ++position)
    all.append(index.Read({games, position}));
  return all;
}

Game ReadGame(const Recordset& games, int position, const PlayFormat& format) {
  return GameIndex(games, format).Read({games, position});
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
