#pragma once

#include <array>
#include <QList>
#include <QString>
#include <QStringList>

#include "basic/Value.h"
#include "data/Recordset.h"
#include "players/PlayerNames.h"

namespace tavrelin {

class Connection;
struct ClassRules;

/// The columns of one side of a stored game. An empty name: the format has no such column.
struct SideColumns {
  QString id;      ///< the entrant: a player's or a team's number
  QString number;  ///< the entrant's number in the class
  QString result;  ///< won or lost: not stored, for the icon of the score grid
  QString points;
  QString singlePoints;  ///< points from shoes in count that are no ringers
  QString forfeit;
  QStringList pitchers;  ///< the player or players who pitch for the side
  QStringList ringers;   ///< one for each pitcher

  bool IsTeam() const { return pitchers.size() > 1; }
};

/// The columns of one pitcher in an entry and in the lists made from it.
struct PitcherColumns {
  QString id;
  QString hiGame;   ///< best ringer percentage of a single game
  QString ringers;  ///< the pitcher's share in the entry; empty when he pitches alone
  QString shoes;
  QString firstName;  ///< in the class list
  QString lastName;
  QString fullName;  ///< in the standings, as are the next ones
  QString prefix;    ///< of his RosterFields
};

/// What the standings hold of each pitcher from the roster.
struct RosterField {
  QString name;    ///< behind PitcherColumns::prefix: "Card", "PlayerOneCard"
  QString column;  ///< of Players
  int width;       ///< characters
};

const QList<RosterField>& RosterFields();

/// All in which singles and doubles differ. The rules of play are written once, over these columns:
/// a singles entrant is a side with one pitcher, a team one with two.
struct PlayFormat {
  QString code;     ///< "S" or "D", as a class stores it
  QString entrant;  ///< "player" or "team"
  QString gameTable;
  QString entrantTable;
  QString entrantID;  ///< "PlayerID" or "TeamID"
  std::array<SideColumns, 2> sides;
  QList<PitcherColumns> pitchers;  ///< in playing order
  Value pacerID;                   ///< stands in a game for the pacer
  QStringList pacerPitchers;       ///< and for the pacer's players

  bool checksScores = false;         ///< a game counts shoes, and its score is held against them
  bool hasForfeits = false;          ///< a game can be forfeited
  bool forgivesTypingSlips = false;  ///< a new game takes 0 for a figure that is no number
  bool listsRosterOnly = false;   ///< an entrant who is not on the roster is in no list; a team is,
                                  ///< whoever of it was taken off
  bool hasOverride = false;       ///< the director may set the places by hand
  bool pacerHasHandicap = false;  ///< on the pacer's card
  QString pacerOnCards;        ///< the pacer as somebody's opponent there; empty: his number alone
  bool hasTwoUpCards = false;  ///< and a worksheet; the card style is a number then, not yes or no

  QString gamesStatement;                 ///< takes sanction and class; ordered by Game, Court
  QString entrantsStatement;              ///< takes sanction and class
  QString standingsStatement;             ///< takes sanction and class; see ReadStandingRows
  QList<Field> listFields;                ///< of the class list, with "PlayerNumber" last
  QList<QPair<QString, Value>> pacerRow;  ///< the pacer as the class list shows it
  QString standingsName;                  ///< the entrant's name in a row of the standings
  QStringList standingsRingers;           ///< ringers by pitcher in a row of the standings

  /// The names of these entrants by ID, in one query: players as "First Last", teams by their team
  /// name. Who is not in the file, the pacer above all, is not in the answer.
  ByID<QString> (*entrantNames)(Connection& connection, const QStringList& ids);

  bool IsDoubles() const { return pitchers.size() > 1; }
  /// Pitchers of one side.
  int Pitchers() const { return static_cast<int>(pitchers.size()); }
  bool IsPacer(const QString& id) const { return id == pacerID.ToText(); }
};

const PlayFormat& SinglesFormat();
const PlayFormat& DoublesFormat();
/// By a class's PlayFormat: "D" is doubles, anything else singles.
const PlayFormat& FormatOf(const QString& code);
const PlayFormat& FormatOf(const ClassRules& rules);

}  // namespace tavrelin
