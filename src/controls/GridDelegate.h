#pragma once

#include <QColor>
#include <QPointer>
#include <QStyledItemDelegate>

class QLineEdit;

namespace tavrelin {

class GridCore;

/// How one cell is to be painted.
struct CellLook {
  bool currentRow = false, currentCell = false, wholeRow = false, focus = false;
  QColor paper, ink;
};

/// Paints the cells of a grid, in the table and on the cards alike, and opens the editor that a
/// column asks for.
class GridDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  GridDelegate(GridCore& core, QObject* parent);

  /// The open editor, or null.
  QWidget* Editor() const { return editor_; }
  /// Types a character into the open cell as the keyboard does, with KeyPress.
  void Type(QKeyEvent* event);
  /// Drops down the list or the calendar of the open cell.
  void DropDown();
  static int RowHeight(const QWidget& widget);
  /// Of what an empty grid says: quieter than its rows, and read as well while the grid is switched
  /// off, when it tells how to switch it on.
  static QColor HintColor(const QPalette& palette);
  /// Pixels that a cell needs to show a text whole.
  static int RoomFor(const QWidget& widget, const QString& text);

  /// The head of a card: the row's mark and number, or a heading's text.
  void PaintCardHead(QPainter* painter, const QStyleOptionViewItem& option, int line) const;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  bool eventFilter(QObject* object, QEvent* event) override;
  /// A text that its cell cuts off shows whole under the pointer; an icon tells its word.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  bool KeyInEditor(QKeyEvent* event);
  bool Leave(QKeyEvent* event);
  bool Filter(QLineEdit* line, QKeyEvent* event);
  void PaintContent(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                    const CellLook& look) const;
  void PaintText(QPainter& painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const;
  QWidget* CreateList(QWidget* parent, const QModelIndex& index) const;

  GridCore& core_;
  mutable QPointer<QWidget> editor_;
};

}  // namespace tavrelin
