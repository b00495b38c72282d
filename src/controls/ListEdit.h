#pragma once

#include <QComboBox>
#include <QKeyEvent>
#include <QWheelEvent>

namespace tavrelin {

/// The drop-down of a cell. A choice from the open list is a decision, told by Chosen; walking the
/// codes with the keys is not.
class ListEdit : public QComboBox {
  Q_OBJECT

 public:
  explicit ListEdit(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::activated, this, [this] {
      if (!byKey_) Q_EMIT Chosen();
    });
  }

 Q_SIGNALS:
  void Chosen();

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    byKey_ = true;
    QComboBox::keyPressEvent(event);
    byKey_ = false;
  }
  // The wheel scrolls the grid; it must not change a code under the pointer.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  bool byKey_ = false;
};

}  // namespace tavrelin
