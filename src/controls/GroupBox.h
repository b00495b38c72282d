#pragma once

#include <QFrame>

class QHBoxLayout;
class QToolButton;

namespace tavrelin {

class GridCore;

/// The box above a grid into which captions are dragged to group the rows by them; each group is a
/// button that takes it away again. A button with a menu serves the keyboard.
class GroupBox : public QFrame {
  Q_OBJECT

 public:
  GroupBox(GridCore& core, QWidget* parent);

  /// Shows the groups as the grid has them.
  void ShowGroups();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void FillMenu();

  GridCore& core_;
  QHBoxLayout* row_;
  QToolButton* add_;
};

}  // namespace tavrelin
