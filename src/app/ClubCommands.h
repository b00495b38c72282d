#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// Commands about the club's file as a whole: new, check, sample.
QList<Command> ClubCommands();

}  // namespace tavrelin
