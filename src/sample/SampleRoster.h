#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

class Connection;
class Dice;

/// What the rest of the sample needs to know of a player.
struct SamplePlayer {
  QString id;
  QString lastName;
  QString category;
  double skill = 0;  ///< probability of a ringer, 0 to 1
};

/// A named team of two.
struct SampleTeam {
  int id = 0;
  SamplePlayer one;
  SamplePlayer two;
};

/// Writes 120 invented players and returns them, the strongest first.
QList<SamplePlayer> AddSamplePlayers(Connection& connection, Dice& dice);

/// Writes 16 teams of two neighbors in the list each.
QList<SampleTeam> AddSampleTeams(Connection& connection, const QList<SamplePlayer>& players);

}  // namespace tavrelin
