#pragma once

#include <optional>
#include <QList>
#include <QString>
#include <QStringList>

#include "basic/Refusal.h"
#include "play/PlayFormat.h"

namespace tavrelin {

struct LoadedClass;

/// The games that a set of cards covers.
struct GameRange {
  int from = 1;
  int to = 0;
  Refusal refusal;  ///< "Cannot print more than 11 games on card"; about "To"
};

/// How many games fit on a card; the two cards on a sheet are not held to it.
enum class CardLimit { ElevenGames, None };

/// The range that the two boxes ask for. A box that holds no number or 0 stands for the first game,
/// or for the last one of a single round robin of so many entrants.
GameRange CardGames(const QString& from, const QString& to, int entrants, CardLimit limit);

/// One row of a card.
struct CardLine {
  int game = 0;
  bool bye = false;        ///< the entrant sits this game out; the rest is empty then
  int opponentNumber = 0;  ///< 0 when it is not known
  QString opponent;        ///< player or team; see CardSide for who is not in the file
  QString court;
};

/// The scoring card of one entrant.
struct Card {
  int number = 0;
  bool isPacer = false;
  QList<PersonName> pitchers;  ///< the player, or the team's two players
  QStringList front;  ///< the two lines of its front: his names, or the partners' last names
  QString state;      ///< singles only, as are the next two
  QString wins;       ///< by the half-win rule
  QString losses;
  double average = 0;  ///< entry average, percent
  /// Nothing in a class without handicap or without a fixed number of shoes, nor for the singles
  /// pacer.
  std::optional<int> handicap;
  QList<CardLine> lines;
};

/// How a card finds its entrant's games: by his ID, an unknown opponent having no name unless he
/// has no number either; or by his number in the class, an unknown opponent being the "PACER".
enum class CardSide { ByEntrant, ByNumber };

/// The cards of all entrants, the pacer's too, in the order of their numbers, with the games of the
/// range and a bye for each game number in which the entrant has no game.
QList<Card> Cards(Connection& connection, const LoadedClass& loaded, const GameRange& range,
                  CardSide side);

/// One line of the scorekeeper's worksheet. A name that is not in the file stays empty.
struct WorksheetLine {
  int game = 0;
  QString court;
  QString one;
  QString two;
};

/// All games of the class in the order Game, Court; empty when the class has none.
QList<WorksheetLine> Worksheet(Connection& connection, const LoadedClass& loaded);

}  // namespace tavrelin
