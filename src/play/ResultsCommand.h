#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

/// The command "results": standings and box scores of a class as text or PDF. A PDF needs a
/// QGuiApplication, for the typefaces.
Command ResultsCommand();

}  // namespace tavrelin
