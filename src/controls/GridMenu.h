#pragma once

class QContextMenuEvent;

namespace tavrelin {

class GridCore;

/// The menu of a grid, under the right mouse button and the menu key: sorting, grouping, adding and
/// deleting without the mouse.
void ShowGridMenu(GridCore& core, QContextMenuEvent* event);

}  // namespace tavrelin
