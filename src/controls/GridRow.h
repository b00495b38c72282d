#pragma once

#include "basic/RowCheck.h"

namespace tavrelin {

class GridEX;

/// The current row of a grid as a rule reads it: every column's value under its field and under its
/// key, changes that are not saved included.
RowValues CurrentRow(const GridEX& grid);

}  // namespace tavrelin
