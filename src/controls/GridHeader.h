#pragma once

#include <memory>
#include <QHeaderView>

namespace tavrelin {

class GridCore;

/// The captions over a grid. A click sorts; a caption can be dragged into the group-by box.
class GridHeader : public QHeaderView {
  Q_OBJECT

 public:
  GridHeader(GridCore& core, QWidget* parent);
  ~GridHeader() override;

  /// The kind of drag that carries a column's key.
  static QString DragKind();
  /// Pixels that a caption needs with its sort arrow.
  int CaptionWidth(int number) const;
  /// Shows the first sort key's arrow.
  void ShowSortKey();

  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  GridCore& core_;
  std::unique_ptr<QStyle> style_;
  QPoint pressedAt_;
  int pressed_ = -1;
};

}  // namespace tavrelin
