#pragma once

#include <array>
#include <QList>
#include <QString>
#include <QStringList>

namespace tavrelin {

struct PlayFormat;
struct SideColumns;
class Recordset;

/// One side of a game as the rules read it.
struct GameSide {
  QString id;      ///< player or team; the pacer's ID for the pacer
  int number = 0;  ///< the entrant's number in the class; 0 where none is stored
  int points = 0;
  bool forfeit = false;
  QStringList pitchers;  ///< the player, or the team's two players
  QList<int> ringers;    ///< one for each pitcher

  int Ringers() const;
};

/// One stored game. Empty figures read as 0.
struct Game {
  int game = 0;  ///< game number over all rounds
  QString court;
  int shoes = 0;  ///< shoes that each pitcher pitched
  bool approved = false;
  std::array<GameSide, 2> sides;

  /// The side of this entrant, 0 or 1; -1 when he does not play here.
  int SideOf(const QString& id) const;
};

/// The IDs of all who play in these games, each once.
QStringList EntrantsIn(const QList<Game>& games);

/// How a game ended for one side.
enum class Outcome { None, Win, Loss, Tie };

/// Reads games from a recordset by the columns of a format, which are looked up once.
class GameReader {
 public:
  GameReader(const Recordset& games, const PlayFormat& format);

  /// The game at a position of that recordset, from 1, or of one with the same fields. The cursor
  /// stays where it is.
  Game Read(const Recordset& games, int position) const;

 private:
  /// Places of one side's columns; -1 for one that the format lacks.
  struct Side {
    int id, number, points, forfeit;
    QList<int> pitchers, ringers;
  };
  static Side SideIn(const Recordset& games, const SideColumns& columns);
  static GameSide ReadSide(const Recordset& games, int position, const Side& columns);

  std::array<Side, 2> sides_;
  int number_, court_, shoes_, approved_;
};

/// All rows of a class's game recordset, in its present order; its cursor stays where it is.
QList<Game> ReadGames(const Recordset& games, const PlayFormat& format);

/// The result of a game for one side (0 or 1), approved or not: a forfeit of one's own loses
/// whatever else happened, the pacer always loses, then the points decide.
Outcome OutcomeOf(const Game& game, int side, const PlayFormat& format);

/// What the score grid shows beside a side: nothing until the game is approved.
Outcome GameIcon(const Game& game, int side, const PlayFormat& format);

/// A court's name as it is stored: trimmed, its first three characters, right-justified in three.
QString RightJustifyCourt(const QString& court);

/// True when an unapproved game stands before an approved one: results seem to have been skipped.
/// Games that are simply still to come do not count.
bool ResultsMissing(const QList<Game>& games);

}  // namespace tavrelin
