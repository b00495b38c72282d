#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// Commands about the club's file as a whole: new, check, backup.
QList<Command> ClubCommands();

}  // namespace tavrelin
