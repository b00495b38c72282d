#pragma once

#include <QString>

namespace tavrelin {

class Recordset;
struct ClassRules;

/// What the standing of a class is put in order for.
enum class StandingOrder {
  Computed,   ///< for the screen: by the rank method
  Directed,   ///< for sheet and text file: the same, unless the director set the places by hand
  AfterPlay,  ///< for the reports after play: as Directed, then by seed and entry average
  Entries,    ///< for the list of entries: by seed and entry average alone
  Posting,    ///< for the pitchers' records: handicap and places set by hand do not count
};

/// An order of standing rows, as Recordset::SetSort takes it, and how paper names it.
struct RankOrder {
  QString sort;
  QString basis;  ///< "(Rank: W/L - Pts - H2H - OvrAvg)"; empty where paper does not name it
};

/// The order of a class by its rules. A doubles class has no places set by hand.
RankOrder OrderOf(const ClassRules& rules, StandingOrder order);

/// Fills `Rank` with the place in the list, from 1, and in singles `Override` with the same unless
/// the class's places are set by hand. Goes to the first row.
void NumberPlaces(Recordset& rows, bool rankOverride);

}  // namespace tavrelin
