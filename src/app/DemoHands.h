#pragma once

#include <QString>
#include <QWidget>

#include "basic/Error.h"

namespace tavrelin {

/// Works a window as a person does, by its controls' names and by keys.
class DemoHands {
 public:
  /// The window must outlive the hands.
  explicit DemoHands(QWidget& window) : window_(window) {}

  /// The control of this name that can be seen, or one that cannot. Throws Error when there is
  /// none.
  template <class Control = QWidget>
  Control& Find(const QString& name) const {
    Control* hidden = nullptr;
    for (Control* control : window_.findChildren<Control*>(name)) {
      if (control->isVisible()) return *control;
      hidden = control;
    }
    if (!hidden) throw Error(errors::RecordState, "There is no control named " + name);
    return *hidden;
  }
  void Press(const QString& button) const;
  /// Types into the control that has the focus.
  void Type(const QString& text) const;
  void Key(int key, const QString& text = {}) const;
  /// Types into a box in place of what stands there, and leaves it by Enter.
  void Fill(const QString& box, const QString& text) const;

 private:
  QWidget& window_;
};

}  // namespace tavrelin
