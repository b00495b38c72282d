#pragma once

#include <QString>

class QWidget;

namespace tavrelin {

/// A control with a caption, known by its own name. `parent` owns it.
template <class Control>
Control* NewControl(const QString& name, const QString& caption, QWidget* parent) {
  auto* control = new Control(caption, parent);
  control->setObjectName(name);
  return control;
}

}  // namespace tavrelin
