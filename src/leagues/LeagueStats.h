#pragma once

#include <QDate>

#include "basic/Refusal.h"
#include "data/Recordset.h"
#include "leagues/League.h"

namespace tavrelin {

class Connection;
struct LeagueOptions;

/// A league's games as every league report shows them: in memory, nothing of it is stored.
struct LeagueStats {
  League league;
  /// One row a member, in the order of PlayerID, inactive ones too: the 27 fields of MemberTable.
  /// No cell is null; the cursor stands on the first row. Handicap and averages are points,
  /// percents are ringers of 100 shoes, WinPercent is 0 to 1. `Elgible` is "Yes" or empty: the
  /// member passed a mark of ten percent that he did not hold before the season. WH stands for
  /// "with handicap", OA for "over average", which is never below 0.
  Recordset members;
  /// In a team league the fields TeamID, Team (may be null), Win, Loss, WinPercent, in the order
  /// of TeamID. Not open in a singles league.
  Recordset teams;
  /// Of the earliest and the latest game that a member pitched; not valid when there is none.
  QDate firstDate, lastDate;
  Refusal refusal;  ///< the league has no members; `members` has no rows then
};

/// Reckons a league's statistics: averages, handicaps, highs, wins and eligibility. The members are
/// walked in the order of PlayerID, each one's games by date and, within a date, as they were
/// typed. A member who is no longer on the roster is left out with his games.
///
/// Throws Error when the file cannot be read.
LeagueStats LoadStats(Connection& connection, const League& league, const LeagueOptions& options);

}  // namespace tavrelin
