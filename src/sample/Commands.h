#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// The command that makes a club to try things on: sample.
QList<Command> SampleCommands();

}  // namespace tavrelin
