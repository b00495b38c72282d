#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "basic/Refusal.h"
#include "data/Recordset.h"
#include "play/Game.h"
#include "tournament/Classes.h"

namespace tavrelin {

class Connection;
struct PlayFormat;

/// The stored games of a class, in the order Game, Court.
QList<Game> ReadClassGames(Connection& connection, const ClassRules& rules);

/// A class made ready for play: its games and its numbered entrants. What the screens, the cards
/// and the command line work on.
struct LoadedClass {
  ClassRules rules;
  /// The stored games in the order Game, Court, with the columns of the score grid; each row can be
  /// edited. The connection must outlive it.
  Recordset games;
  /// The entrants in the order of their numbers, in memory: the fields of PlayFormat::listFields.
  /// `PlayerNumber` is 1 for the top seed; unseeded entrants follow by entry average, the pacer
  /// stands last.
  Recordset list;
  int entrants = 0;  ///< without the pacer
  bool hasPacer = false;
  bool isPaired = false;  ///< games are stored
  QStringList courts;     ///< for an unpaired class: the numbers from 1, left-justified in three
  int highestGame = 0;
  Refusal refusal;  ///< "No players entered in class", the list being empty then

  const PlayFormat& Format() const;
  bool IsOdd() const { return entrants % 2 == 1; }
};

/// Reads a class. A class is played with a pacer when its games say so, or, while it has none, when
/// `withPacer` asks for one.
LoadedClass LoadClass(Connection& connection, const ClassRules& rules, bool withPacer = false);

}  // namespace tavrelin
