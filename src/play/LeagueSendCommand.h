#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// The command "league-send": a class's games into a league, as one of its evenings.
Command LeagueSendCommand();

}  // namespace tavrelin
