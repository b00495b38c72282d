#pragma once

#include <QList>

#include "command/CommandLine.h"

namespace tavrelin {

class Connection;
struct League;

/// The commands that show a league's statistics and close its season.
QList<Command> LeagueCommands();

/// The league that an argument names by its number, hyphens or none; throws Error when there is
/// none.
League NamedLeague(Connection& connection, const QString& argument);

}  // namespace tavrelin
