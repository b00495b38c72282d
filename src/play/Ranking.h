#pragma once

#include <QList>
#include <QString>

#include "data/Recordset.h"
#include "play/ClassLoad.h"
#include "play/Game.h"

namespace tavrelin {

class Connection;
struct RankOrder;

/// How a class is ranked.
struct RankOptions {
  bool honourOverride = false;  ///< places set by the director take the place of the method
  bool forReport = false;       ///< for the after-play reports, which sort for themselves
};

/// The standing of a class.
struct Standings {
  ClassRules rules;
  /// One row an entrant, cut loose from the file, in place order and on the first row. Fields: see
  /// PlayFormat::standingsStatement. `RingerPercent` and `OverAverage` are unrounded percent.
  Recordset rows;
  QList<Game> games;  ///< from which the standing was computed, in the order Game, Court
  QString rankBasis;  ///< "(Rank: ...)" for paper; empty with RankOptions::forReport
  QString refusal;    ///< "Nothing to report" when the class has no entrants; else empty
};

/// Ranks a class: totals of its approved games, high game, head to head within each tie, percentage
/// over entry average, and the order by the class's rank method. The one ranking of the system.
///
/// Stores in the entries: the totals, anew each time; the high game, which only rises; the head to
/// head, which goes to every entry of the same player in the tournament. All in one Batch. A tied
/// game is half a win and half a loss; who forfeits a game loses it with an empty line; the pacer
/// always loses and is not listed; winless entrants get no head to head. Who is level on all keys
/// of the order stays in the order of the file: there are no tied places. Throws Error on a failure
/// of the file.
Standings RankTheClass(Connection& connection, const ClassRules& rules,
                       const RankOptions& options = {});

/// Fills `Rank` with the place in the list, from 1, and `Override` with the same unless the class's
/// places are set by hand. A list without these fields stays as it is. Goes to the first row.
void NumberPlaces(Recordset& rows, bool rankOverride);

/// The order of a class by its rules, and its name on paper.
RankOrder OrderOf(const ClassRules& rules, bool honourOverride);

}  // namespace tavrelin
