#pragma once

#include <QList>
#include <QString>

#include "basic/Refusal.h"
#include "data/Recordset.h"
#include "play/ClassLoad.h"
#include "play/Game.h"
#include "play/RankOrder.h"

namespace tavrelin {

class Connection;

/// The standing of a class.
struct Standings {
  ClassRules rules;
  /// One row an entrant, cut loose from the file, in place order and on the first row. Fields: see
  /// ReadStandingRows.
  Recordset rows;
  QList<Game> games;  ///< from which the standing was computed, in the order Game, Court
  QString rankBasis;  ///< RankOrder::basis of the order
  Refusal refusal;    ///< "Nothing to report" when the class has no entrants
};

/// Ranks a class: totals of its approved games, high game, head to head within each tie, percentage
/// over entry average, and the order. The one ranking of the system.
///
/// Stores in the entries: the totals, afresh each time; the high game, which only rises; the head
/// to head, which goes to every entry of the same player in the tournament. All in one Batch. A
/// tied game is half a win and half a loss; who forfeits a game loses it with an empty line; the
/// pacer always loses and is not listed; winless entrants get no head to head. Who is level on all
/// keys of the order stays in the order of the file: there are no tied places. Throws Error on a
/// failure of the file.
Standings RankTheClass(Connection& connection, const ClassRules& rules,
                       StandingOrder order = StandingOrder::Computed);

}  // namespace tavrelin
