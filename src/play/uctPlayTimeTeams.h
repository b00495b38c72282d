#pragma once

#include "play/PlayScreen.h"

namespace tavrelin {

/// Tournaments / Play Doubles.
class uctPlayTimeTeams : public PlayScreen {
  Q_OBJECT

 public:
  uctPlayTimeTeams(const Surroundings& surroundings, QWidget* parent);
};

}  // namespace tavrelin
