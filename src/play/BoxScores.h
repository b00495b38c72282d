#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tavrelin {

class Connection;
struct Standings;

/// Ringers and percentage of each pitcher over some shoes.
struct BoxFigures {
  int points = 0;
  int shoes = 0;  ///< of one pitcher
  QList<int> ringers;
  QList<double> percents;  ///< unrounded; 0 without shoes
};

/// One approved game from an entrant's side.
struct BoxLine {
  QString opponent;     ///< player's or team's name; "PACER" for who is not in the file
  QString forfeitMark;  ///< "F-" lost by forfeit, "F+" won by it, else empty
  int opposingPoints = 0;
  BoxFigures own;
};

/// All that one entrant played.
struct BoxScore {
  int place = 0;
  QString name;          ///< player or team
  QStringList pitchers;  ///< the player, or the team's two players
  double won = 0;
  double loss = 0;
  QList<BoxLine> lines;  ///< in the order Game, Court
  BoxFigures totals;     ///< as ranked: a forfeited game is an empty line there
  BoxFigures played;     ///< the sum of the lines, forfeited games included
};

/// The box scores of a ranked class in place order. The standings stay on their first row.
QList<BoxScore> BoxScores(Connection& connection, Standings& standings);

}  // namespace tavrelin
