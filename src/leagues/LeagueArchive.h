#pragma once

#include <QDateTime>
#include <QString>

namespace tavrelin {

class Connection;
struct LeagueStats;

/// Closes a season: each member's average becomes the one he starts the next season with, his high
/// marks are raised to those of the season, and all games and added team wins of the league are
/// deleted. The file is backed up first, under the name of the deed.
///
/// Returns what is told: "Data has been archived.", and where the file before it is kept. Empty
/// where the league has no members: nothing happens then. Throws Error when the backup or the
/// archive fails; nothing has changed then.
[[nodiscard]] QString ArchiveLeague(Connection& connection, const LeagueStats& stats,
                                    const QDateTime& now);

}  // namespace tavrelin
