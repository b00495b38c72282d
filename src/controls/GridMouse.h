#pragma once

#include <QPersistentModelIndex>

class QAbstractItemView;
class QMouseEvent;

namespace tavrelin {

class GridCore;

/// What the mouse does in a grid, in the table and on the cards alike: a click goes to a cell, a
/// second one opens it; check boxes and delete buttons act at the first.
class GridMouse {
 public:
  explicit GridMouse(GridCore& core) : core_(core) {}

  void Press(QAbstractItemView* view, QMouseEvent* event);
  void Release(QAbstractItemView* view, QMouseEvent* event);
  void DoubleClick(QAbstractItemView* view, QMouseEvent* event);

 private:
  void Open();

  GridCore& core_;
  QPersistentModelIndex pressed_;
  bool wasCurrent_ = false;
  int clicks_ = 0;
};

}  // namespace tavrelin
