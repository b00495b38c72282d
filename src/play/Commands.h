#pragma once

#include "app/CommandLine.h"

namespace tavrelin {

/// Commands about the play of a class: pair, standings.
QList<Command> PlayCommands();

}  // namespace tavrelin
