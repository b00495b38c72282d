#pragma once

#include <QList>

#include "controls/GridColumn.h"

namespace tavrelin {

class GridEX;
struct PlayFormat;

/// The columns of the score grid for singles or doubles, hidden ones included.
QList<GridColumn> ScoreColumns(const PlayFormat& format);

/// The columns of the standings on the Results tab.
QList<GridColumn> StandingsColumns(const PlayFormat& format);

/// The images of the score grid, told apart by shape: 1 nothing, 2 a win, 3 a loss, 4 a tie.
QList<GridIcon> ScoreIcons();

/// Turns the score grid from table to cards with narrow captions, or back with wide ones.
void FlipScoreView(GridEX& grid, const PlayFormat& format);

}  // namespace tavrelin
