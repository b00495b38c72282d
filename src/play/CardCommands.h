#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// Commands that put a class on paper before it plays: cards, worksheet.
QList<Command> CardCommands();

}  // namespace tavrelin
