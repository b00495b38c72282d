#pragma once

#include "controls/GridColumn.h"

namespace tavrelin {

class Connection;
struct LoadedClass;

/// Who can be chosen in the score grid, and what everybody in its rows is called.
struct EntrantLists {
  ValueList entrants;
  ValueList pitchers;  ///< the players of the teams
};

/// The entrants in the order of their numbers, the pacer, and last those who stand in a game
/// without being entered any more; who is not even on file is told by his number.
EntrantLists NamesForScores(Connection& connection, const LoadedClass& loaded);

}  // namespace tavrelin
