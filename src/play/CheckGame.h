#pragma once

#include <optional>
#include <QString>

#include "basic/RowCheck.h"

namespace tavrelin {

struct ClassRules;
class Recordset;

/// What a game is checked against.
struct GameContext {
  const ClassRules& rules;
  const Recordset& games;  ///< the stored games of the class
  const Recordset& list;   ///< its entrants, see LoadedClass::list
  bool newRow = false;
  bool scoreChecker = false;  ///< singles only: hold the score against the rules of the count
  std::optional<bool> manyShoes = {};  ///< the answer to the question about more than 199 shoes
};

/// May this game be saved? Answers with the first thing that is wrong, a question, or nothing; and
/// with the fields that the row takes: the class's own IDs, zeros for figures left empty on a new
/// row, the players of a chosen team. Whatever is wrong, the operator keeps the row and what he
/// typed. A figure that CInt cannot take counts as wrong, so that what is saved fits its column and
/// its sums.
RowCheck CheckGame(const RowValues& row, const GameContext& context);

/// The score checker: a ringer is three points and cancels one of the other side, and no shoe can
/// count twice. Refused when the score cannot be right. In a handicap class the points do not
/// follow from the shoes, and the shoes are not counted.
Refusal CheckScore(const RowValues& row, double handicapPct);

}  // namespace tavrelin
