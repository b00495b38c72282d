#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include "play/BoxScores.h"

namespace tavrelin {

class Connection;
struct Standings;

/// One entrant's line in the standings, as sheets and text files show it.
struct StandingLine {
  int place = 0;
  QString name;  ///< player or team
  double entryAverage = 0;
  int handicap = 0;  ///< points a game; 0 in a class without handicap
  QString category;  ///< singles only, as are the next two
  QString card;
  QString state;
  double won = 0;  ///< halves occur
  double loss = 0;
  int points = 0;
  int ringers = 0;
  int shoes = 0;       ///< of all pitchers
  double percent = 0;  ///< unrounded
  int headToHead = 0;
  double overAverage = 0;  ///< unrounded
};

/// What is told of a class after play: on the sheet, in the preview and in the text file.
struct ClassResults {
  QString tournament;
  QString sanctionID;
  QDateTime date;  ///< of the tournament; may be invalid
  QString className;
  QString rankBasis;  ///< how the order came about, in brackets; may be empty
  bool doubles = false;
  QList<StandingLine> standings;  ///< in place order
  QList<BoxScore> boxScores;      ///< in place order
};

/// Which sections the director asked for.
struct ResultsChoice {
  bool standings = true;
  bool boxScores = true;
  bool brief = false;  ///< the short standings; a doubles class has none
};

/// The lines of ranked standings. The cursor of the rows stays.
QList<StandingLine> StandingLines(const Standings& standings);

/// All results of a ranked class, with its tournament's name and date. The standings stay on their
/// first row.
ClassResults ReadResults(Connection& connection, Standings& standings);

/// How often the sheet is printed: the number in the box, and once when it holds none or less.
int CopiesOf(const QString& text);

}  // namespace tavrelin
