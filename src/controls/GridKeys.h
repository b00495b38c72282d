#pragma once

#include <QObject>

class QKeyEvent;

namespace tavrelin {

class GridCore;

/// What the keys do in a grid, in the table and on the cards alike.
class GridKeys {
 public:
  explicit GridKeys(GridCore& core) : core_(core) {}

  /// True when the key has done its work.
  bool Press(QKeyEvent* event);
  /// Tab and Shift+Tab: false when the focus is to leave the grid.
  bool Tab(bool forward);
  /// Lines that fit on the screen, for Page Up and Page Down.
  int linesPerPage = 10;
  /// On the cards Up and Down walk through the fields of a card, Left and Right from card to card.
  bool cards = false;

 private:
  bool Move(QKeyEvent* event);
  bool Edit(QKeyEvent* event);
  bool Raise(int key, Qt::KeyboardModifiers modifiers);
  void Enter();
  void Vertical(int steps);
  void Horizontal(int step);
  void NextField(int step);
  void Ends(bool first, bool wholeGrid);
  bool Type(QKeyEvent* event);
  void Erase();
  bool InPlace(int key);
  /// The next line that is no heading, `step` away from this one; the same when there is none.
  int Beside(int line, int step) const;

  GridCore& core_;
};

}  // namespace tavrelin
