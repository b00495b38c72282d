#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// Commands about players: average.
QList<Command> PlayerCommands();

}  // namespace tavrelin
