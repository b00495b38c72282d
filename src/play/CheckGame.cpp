#include "play/CheckGame.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "data/Recordset.h"
#include "play/ClassLoad.h"
#include "play/Game.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

constexpr int ManyShoes = 199;

/// What one side of a score claims.
struct Claim {
  int points;
  int ringers;
  int singles;

  int Counted() const { return ringers + singles; }
  bool TooHigh() const { return points > 3 * ringers + singles; }
};

/// What a cell counts for, as it will be stored; 0 while it holds no figure.
int FigureIn(const Value& value) {
  return IsInt(value) ? CInt(value) : 0;
}

Claim ClaimOf(const RowValues& row, const SideColumns& side) {
  return {FigureIn(row.value(side.points)), FigureIn(row.value(side.ringers[0])),
          FigureIn(row.value(side.singlePoints))};
}

/// The margin of a game is what the winner's uncancelled ringers and singles give, and no more.
bool MarginAddsUp(const Claim& one, const Claim& two) {
  const Claim& winner = one.points > two.points ? one : two;
  const Claim& other = one.points > two.points ? two : one;
  return winner.points - other.points - 3 * (winner.ringers - other.ringers) ==
         winner.singles - other.singles;
}

/// The two formats count their own figures in their own words.
struct Figure {
  QString field;
  QString message;
  size_t side;
};

QList<Figure> FiguresOf(const PlayFormat& format) {
  const QString words[] = {QStringLiteral("one"), QStringLiteral("two")};
  QList<Figure> figures;
  for (size_t i = 0; i < 2; ++i) {
    const SideColumns& side = format.sides[i];
    const QString who = QStringLiteral("Invalid %1 %2 ").arg(format.entrant, words[i]);
    figures << Figure{side.points, who + "points", i};
    for (const QString& ringers : side.ringers) {
      figures << Figure{
          ringers, format.IsDoubles() ? QStringLiteral("Invalid ringers") : who + "ringers", i};
    }
  }
  return figures;
}

/// Pairing leaves the pacer's figures empty, and nobody need type them.
bool IsEmptyOfPacer(const RowValues& row, const QString& field, const PlayFormat& format,
                    size_t side) {
  return format.IsPacer(row.value(format.sides[side].id).Trimmed()) &&
         row.value(field).Trimmed().isEmpty();
}

/// Walks the checks of one row in their order; each answers false once the row is decided.
class Checker {
 public:
  Checker(const RowValues& row, const GameContext& context)
      : row_(row), context_(context), format_(FormatOf(context.rules)) {}

  RowCheck Run() {
    if (Shoes() && Score() && Sides() && GameNumber() && Court() && Figures()) SinglePoints();
    return check_;
  }

 private:
  bool Refuse(const QString& message) {
    check_.Refuse(message);
    return false;
  }

  bool Shoes() {
    if (!format_.checksScores || FigureIn(row_.value(QStringLiteral("Shoes"))) <= ManyShoes)
      return true;
    if (context_.manyShoes.has_value()) {
      return *context_.manyShoes || Refuse({});
    }
    check_.AskFirst(QStringLiteral("Confirm shoe count"),
                    QStringLiteral("Shoe count is abnormally high. Continue?"));
    return false;
  }

  bool Score() {
    if (!format_.checksScores || !context_.scoreChecker) return true;
    const Refusal refusal = CheckScore(row_, context_.rules.handicapPct);
    return !refusal || Refuse(refusal.sentence);
  }

  bool Sides() {
    check_.Fix(QStringLiteral("SanctionID"), context_.rules.sanctionID);
    check_.Fix(QStringLiteral("ClassID"), context_.rules.classID);
    const QString entrant = format_.IsDoubles() ? QStringLiteral("Team") : QStringLiteral("Player");
    for (size_t i = 0; i < 2; ++i) {
      if (!row_.value(format_.sides[i].id).Trimmed().isEmpty()) continue;
      return Refuse(QStringLiteral("Invalid %1 %2.").arg(entrant, i == 0 ? u"One" : u"Two"));
    }
    return Pitchers(format_.sides[0]) && Pitchers(format_.sides[1]);
  }

  /// Choosing a team chooses its players.
  bool Pitchers(const SideColumns& side) {
    if (!side.IsTeam()) return true;
    const QString id = row_.value(side.id).Trimmed();
    if (format_.IsPacer(id)) {
      for (int i = 0; i < 2; ++i) check_.Fix(side.pitchers[i], format_.pacerPitchers[i]);
      return true;
    }
    const int position = Find(context_.list, format_.entrantID, id);
    if (position == 0) return Refuse(QStringLiteral("Team not found in entries "));
    for (int i = 0; i < 2; ++i) {
      const int field = context_.list.FieldIndex(format_.pitchers[i].id);
      check_.Fix(side.pitchers[i], context_.list.CellAt(position, field));
    }
    return true;
  }

  static int Find(const Recordset& rows, const QString& field, const QString& id) {
    const int index = rows.FieldIndex(field);
    for (int position = rows.RecordCount(); position > 0; --position) {
      if (rows.CellAt(position, index).Trimmed() == id) return position;
    }
    return 0;
  }

  bool GameNumber() {
    return IsInt(row_.value(QStringLiteral("Game"))) ||
           Refuse(QStringLiteral("Invalid game number"));
  }

  bool Court() {
    if (row_.value(QStringLiteral("Court")).Trimmed().isEmpty()) {
      return Refuse(QStringLiteral("Invalid court"));
    }
    if (!context_.newRow || !CourtTaken()) return true;
    return Refuse(QStringLiteral("Court already in use for this game"));
  }

  bool CourtTaken() const {
    const int game = FigureIn(row_.value(QStringLiteral("Game")));
    const QString court = RightJustifyCourt(row_.value(QStringLiteral("Court")).ToText());
    const QList<Game> games = ReadGames(context_.games, format_);
    return std::any_of(games.begin(), games.end(), [&](const Game& other) {
      return other.game == game && CompareText(RightJustifyCourt(other.court), court) == 0;
    });
  }

  bool Figures() {
    if (!IsFigure(QStringLiteral("Shoes"), QStringLiteral("Invalid shoes"), true)) return false;
    for (const Figure& figure : FiguresOf(format_)) {
      if (IsEmptyOfPacer(row_, figure.field, format_, figure.side)) {
        check_.Fix(figure.field, 0);
      } else if (!IsFigure(figure.field, figure.message, format_.forgivesTypingSlips)) {
        return false;
      }
    }
    return true;
  }

  /// They may stay empty without the score checker; a slip typed before it was switched off
  /// cannot be saved all the same.
  bool SinglePoints() {
    for (size_t i = 0; i < 2 && format_.checksScores; ++i) {
      const QString& field = format_.sides[i].singlePoints;
      const Value value = row_.value(field);
      if (value.IsNull() || IsInt(value)) continue;
      if (value.Trimmed().isEmpty()) {
        check_.Fix(field, 0);
        continue;
      }
      return Refuse(
          QStringLiteral("Invalid player %1 single points").arg(i == 0 ? u"one" : u"two"));
    }
    return true;
  }

  /// On a new row an empty figure is 0, and so, with `forgive`, is one that is no number.
  bool IsFigure(const QString& field, const QString& message, bool forgive) {
    const Value value = row_.value(field);
    if (IsInt(value)) return true;
    const bool zero = value.Trimmed().isEmpty() || (forgive && !IsNumeric(value));
    if (!context_.newRow || !zero) return Refuse(message);
    check_.Fix(field, 0);
    return true;
  }

  const RowValues& row_;
  const GameContext& context_;
  const PlayFormat& format_;
  RowCheck check_;
};

}  // namespace

Refusal CheckScore(const RowValues& row, double handicapPct) {
  const auto& sides = SinglesFormat().sides;
  const Refusal invalid = {QStringLiteral("Score Checker On.  Invalid Score.")};
  for (size_t i = 0; i < 2; ++i) {
    const QString& field = sides[i].singlePoints;
    if (!IsInt(row.value(field)) && !IsEmptyOfPacer(row, field, SinglesFormat(), i)) return invalid;
  }
  const Claim one = ClaimOf(row, sides[0]);
  const Claim two = ClaimOf(row, sides[1]);
  const QString tooHigh = QStringLiteral("Invalid Score for player %1.  Point total too high");
  if (one.TooHigh()) return {tooHigh.arg(u"one")};
  if (two.TooHigh()) return {tooHigh.arg(u"two")};
  if (!MarginAddsUp(one, two)) return invalid;
  const int shoes = FigureIn(row.value(QStringLiteral("Shoes")));
  if (handicapPct == 0 && (one.Counted() > shoes || two.Counted() > shoes)) {
    return {QStringLiteral("Score Checker On.  Invalid Score.  Check number of shoes.")};
  }
  return {};
}

RowCheck CheckGame(const RowValues& row, const GameContext& context) {
  return Checker(row, context).Run();
}

}  // namespace tavrelin
