#pragma once

#include <QTableView>

#include "controls/GridMouse.h"

namespace tavrelin {

class GridCore;
class GridHeader;
class GridKeys;

/// The table view of a grid.
class GridView : public QTableView {
  Q_OBJECT

 public:
  GridView(GridCore& core, GridKeys& keys, QWidget* parent);

  void SetEmptyText(const QString& text);
  /// Columns as the column table wants them: order, width, what is hidden.
  void LayOutColumns();
  GridHeader* Header() const { return header_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int Pixels(int twips) const;
  int WidthOf(int number) const;
  void FillWidth();

  GridCore& core_;
  GridKeys& keys_;
  GridMouse mouse_;
  GridHeader* header_;
  QString emptyText_;
};

}  // namespace tavrelin
