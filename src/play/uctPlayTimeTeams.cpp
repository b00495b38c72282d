#include "play/uctPlayTimeTeams.h"

#include "play/PlayFormat.h"

namespace tavrelin {

uctPlayTimeTeams::uctPlayTimeTeams(const Surroundings& surroundings, QWidget* parent)
    : PlayScreen("uctPlayTimeTeams", " Doubles Round Robin", DoublesFormat(), surroundings,
                 parent) {}

}  // namespace tavrelin
