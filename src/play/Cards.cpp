#include "play/Cards.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "basic/Figures.h"
#include "play/ClassLoad.h"
#include "play/StandingRows.h"

namespace tavrelin {
namespace {

constexpr int LargestSpan = 10;  // from the first to the last of eleven games
constexpr double LargestGame = 32767;

int WholeNumber(const QString& text) {
  if (!IsNumeric(text)) return 0;
  return static_cast<int>(std::clamp(RoundHalfEven(Value(text).ToNumber()), 0.0, LargestGame));
}

QList<Game> InGameOrder(const LoadedClass& loaded) {
  QList<Game> games = ReadGames(loaded.games, loaded.Format());
  std::stable_sort(games.begin(), games.end(),
                   [](const Game& a, const Game& b) { return a.game < b.game; });
  return games;
}

/// Big enough to read across the court: a player's two names, or the partners' last names. The
/// pacers of a team have no last names and stand there as they are called.
QStringList FrontLines(const QList<PersonName>& pitchers) {
  if (pitchers.size() == 1) return {pitchers[0].first, pitchers[0].last};
  QStringList lines;
  for (const PersonName& name : pitchers) lines << (name.last.isEmpty() ? name.first : name.last);
  return lines;
}

/// Fills cards from the games of a class.
class CardWriter {
 public:
  CardWriter(Connection& connection, const LoadedClass& loaded, CardSide side)
      : list_(loaded.list),
        rules_(loaded.rules),
        format_(loaded.Format()),
        side_(side),
        games_(InGameOrder(loaded)),
        names_(format_.entrantNames(connection, EntrantsIn(games_))),
        best_(LargestFigure(list_, QStringLiteral("RingerPercent"))) {
    for (int n = 1; n <= list_.RecordCount(); ++n) numbers_[At(n, format_.entrantID).ToText()] = n;
  }

  Card Write(int number, const GameRange& range) const {
    Card card = Head(number);
    int expected = range.from;
    const auto byesUpTo = [&](int game) {
      for (; expected < game; ++expected) card.lines << CardLine{expected, true, 0, {}, {}};
    };
    for (const Game& game : games_) {
      const int side = SideOf(game, number);
      if (side < 0 || game.game < range.from || game.game > range.to) continue;
      byesUpTo(game.game);
      card.lines << Line(game, game.sides[static_cast<size_t>(1 - side)]);
      expected = game.game + 1;
    }
    byesUpTo(range.to + 1);
    return card;
  }

 private:
  /// The list stands in the order of the numbers.
  Value At(int number, const QString& field) const {
    const int index = list_.FieldIndex(field);
    return index < 0 ? Value() : list_.CellAt(number, index);
  }

  Card Head(int number) const {
    Card card;
    card.number = number;
    card.isPacer = format_.IsPacer(At(number, format_.entrantID).ToText());
    for (const PitcherColumns& pitcher : format_.pitchers) {
      card.pitchers << PersonName{At(number, pitcher.firstName).Trimmed(),
                                  At(number, pitcher.lastName).Trimmed()};
    }
    card.front = FrontLines(card.pitchers);
    card.state = At(number, QStringLiteral("State")).Trimmed();
    card.wins = At(number, QStringLiteral("TotalWins")).ToText();
    card.losses = At(number, QStringLiteral("TotalLosses")).ToText();
    card.average = At(number, QStringLiteral("RingerPercent")).ToNumber();
    const bool exempt = card.isPacer && !format_.pacerHasHandicap;
    if (rules_.handicapPct != 0 && rules_.shoes != 0 && !exempt) {
      card.handicap = HandicapFigure(best_, card.average, rules_.shoes, rules_.handicapPct);
    }
    return card;
  }

  int SideOf(const Game& game, int number) const {
    if (side_ == CardSide::ByEntrant) return game.SideOf(At(number, format_.entrantID).ToText());
    if (game.sides[0].number == number) return 0;
    return game.sides[1].number == number ? 1 : -1;
  }

  CardLine Line(const Game& game, const GameSide& opponent) const {
    const bool byNumber = side_ == CardSide::ByNumber;
    const int number = byNumber ? opponent.number : numbers_.value(opponent.id, opponent.number);
    QString name = names_.value(opponent.id, UnknownName(opponent.id));
    if (name.isEmpty() && number == 0) name = NotOnFile(opponent.id);
    return {game.game, false, number, name, game.court};
  }

  QString UnknownName(const QString& id) const {
    if (side_ == CardSide::ByNumber) return QStringLiteral("PACER");
    return format_.IsPacer(id) ? format_.pacerOnCards : QString();
  }

  const Recordset& list_;
  const ClassRules& rules_;
  const PlayFormat& format_;
  CardSide side_;
  QList<Game> games_;
  ByID<QString> names_;
  double best_;
  ByID<int> numbers_;
};

}  // namespace

GameRange CardGames(const QString& from, const QString& to, int entrants, CardLimit limit) {
  GameRange range{std::max(WholeNumber(from), 1), WholeNumber(to), {}};
  if (range.to == 0) range.to = entrants % 2 == 1 ? entrants : entrants - 1;
  if (limit == CardLimit::ElevenGames && range.to - range.from > LargestSpan) {
    range.refusal = {QStringLiteral("Cannot print more than 11 games on card"),
                     QStringLiteral("To")};
  }
  return range;
}

QList<Card> Cards(Connection& connection, const LoadedClass& loaded, const GameRange& range,
                  CardSide side) {
  const CardWriter writer(connection, loaded, side);
  QList<Card> cards;
  for (int number = 1; number <= loaded.list.RecordCount(); ++number) {
    cards << writer.Write(number, range);
  }
  return cards;
}

QList<WorksheetLine> Worksheet(Connection& connection, const LoadedClass& loaded) {
  const QList<Game> games = ReadGames(loaded.games, loaded.Format());
  const ByID<QString> names = loaded.Format().entrantNames(connection, EntrantsIn(games));
  QList<WorksheetLine> lines;
  for (const Game& game : games) {
    lines << WorksheetLine{game.game, game.court, names.value(game.sides[0].id),
                           names.value(game.sides[1].id)};
  }
  return lines;
}

}  // namespace tavrelin
