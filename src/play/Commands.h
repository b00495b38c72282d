#pragma once

#include "command/CommandLine.h"

namespace tavrelin {

class Connection;
struct ClassRules;

/// The class that the arguments FILE SANCTION CLASS name; throws Error when there is none. The
/// sanction number may have its dashes.
ClassRules NamedClass(Connection& connection, const QStringList& arguments);

/// Commands about the play of a class: pair, standings.
QList<Command> PlayCommands();

}  // namespace tavrelin
