#include "play/uctPlayTime.h"

#include "play/PlayFormat.h"

namespace tavrelin {

uctPlayTime::uctPlayTime(const Surroundings& surroundings, QWidget* parent)
    : PlayScreen("uctPlayTime", " Singles Round Robin", SinglesFormat(), surroundings, parent) {}

}  // namespace tavrelin
