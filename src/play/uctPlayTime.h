#pragma once

#include "play/PlayScreen.h"

namespace tavrelin {

/// Tournaments / Play Singles.
class uctPlayTime : public PlayScreen {
  Q_OBJECT

 public:
  uctPlayTime(const Surroundings& surroundings, QWidget* parent);
};

}  // namespace tavrelin
