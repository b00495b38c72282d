#pragma once

#include <QList>

#include "controls/GridColumn.h"

namespace tavrelin {

/// The columns of the roster, in the order in which they are numbered; their positions say where
/// they stand.
QList<GridColumn> ProfileColumns();

}  // namespace tavrelin
