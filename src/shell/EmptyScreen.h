#pragma once

#include "shell/Screen.h"

namespace tavrelin {

/// Stands where a screen has its place in the bar that this program does not have: its title and a
/// friendly line.
class EmptyScreen : public Screen {
  Q_OBJECT

 public:
  EmptyScreen(const QString& name, const QString& title, const Surroundings& surroundings,
              QWidget* parent);
};

}  // namespace tavrelin
