#pragma once

#include <QAbstractButton>

namespace tavrelin {

/// A button of the ButtonBar: a group's header (its item is empty) or an item. Checked means open
/// for a header, marked for an item.
class BarButton : public QAbstractButton {
  Q_OBJECT

 public:
  BarButton(const QString& group, const QString& item, const QIcon& icon, QWidget* parent);

  const QString& Group() const { return group_; }
  const QString& Item() const { return item_; }
  bool IsHeader() const { return item_.isEmpty(); }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void nextCheckState() override {}  // the bar's owner decides, not the press
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  QFont TextFont() const;
  void PaintGround(QPainter& painter) const;
  void PaintArrow(QPainter& painter) const;

  QString group_, item_;
};

}  // namespace tavrelin
