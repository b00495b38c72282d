#pragma once

#include <QTableView>
#include <vector>

#include "controls/GridMouse.h"

namespace tavrelin {

class GridCore;
class GridDelegate;
class GridKeys;

/// The card view of a grid: each record is a card that shows its fields under each other, captions
/// at the left; cards flow over the width of the window. Compact columns share a line, two by two.
/// Cells are edited as in the table, and to a screen reader the cards are one: that is what it
/// takes from QTableView.
class CardView : public QTableView {
  Q_OBJECT

 public:
  CardView(GridCore& core, GridKeys& keys, QWidget* parent);

  void SetEmptyText(const QString& text);
  /// Lays the fields of a card out anew, after the columns changed.
  void LayOutFields();

  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  QModelIndex indexAt(const QPoint& point) const override;

 protected:
  QModelIndex moveCursor(CursorAction, Qt::KeyboardModifiers) override;
  int horizontalOffset() const override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex& index) const override;
  void setSelection(const QRect&, QItemSelectionModel::SelectionFlags) override {}
  QRegion visualRegionForSelection(const QItemSelection&) const override { return {}; }
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;

  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// A field on a card: caption and cell, from the card's corner.
  struct FieldPlace {
    int number;
    QRect caption, cell;
  };

  int CardsPerRow() const;
  QRect CardRect(int line) const;
  QSize CardStep() const;
  const FieldPlace* PlaceOf(int number) const;
  void PaintCard(QPainter& painter, int line) const;
  void PaintField(QPainter& painter, int line, const FieldPlace& place) const;

  GridCore& core_;
  GridKeys& keys_;
  GridMouse mouse_;
  GridDelegate* delegate_;
  std::vector<FieldPlace> fields_;
  QSize card_;
  QString emptyText_;
};

}  // namespace tavrelin
