#pragma once

#include <QString>

#include "basic/RowCheck.h"

namespace tavrelin {

class Connection;

/// A league about to be saved. Its number loses hyphens, has seven characters and is its own:
/// `storedNumber` is that of a stored row (empty for a new one), which may be mended but not into
/// one under which members or scores are kept already. Name, state and format must be there; the
/// handicap is a percentage from 0 to 100. A row without a number is held without a word, and
/// dropped when nothing else was typed either. Fixes: the number as it is stored.
RowCheck CheckLeague(Connection& connection, const RowValues& row, const QString& storedNumber);

/// A member's row about to be saved: his starting average is a number, his high marks are whole,
/// none below 0. Fixes: 0 for what is empty.
RowCheck CheckLeagueMember(const RowValues& row);

}  // namespace tavrelin
