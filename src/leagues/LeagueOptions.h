#pragma once

#include <QString>
#include <QStringList>

namespace tavrelin {

/// What a team's wins and losses are made of.
enum class CountedWins {
  Players = 1,  ///< the games of its players
  Teams = 2,    ///< the wins added by hand
  Both = 3,
};

/// In which order standings are shown.
enum class StandingsSort { Wins, AveragePoints, RingerPercent, WinningPercent };

/// What statistics are reckoned on, as the league reports offer it.
struct LeagueOptions {
  /// Points against which handicaps are held; 0: those of the best active player.
  int basis = 0;
  /// Averages are taken over this many last games of a member; 0: over all.
  int lastGames = 0;
  CountedWins count = CountedWins::Players;
};

/// "Best Player", "50 Points" and so on, as the box has them.
const QStringList& HandicapBasisTexts();
/// The basis that such a text names; 150 for one that is not in the box.
int HandicapBasis(const QString& text);

/// "Wins", "Average Points", "Ringer Percent", "Winning Percent", in the order of StandingsSort.
const QStringList& StandingsSortTexts();
/// The order that such a text names; Wins for one that is not in the box.
StandingsSort StandingsSortOf(const QString& text);

/// Sort keys of the member table and of the team table. Who is level stands by name.
QString MemberOrder(StandingsSort sort);
QString TeamOrder(StandingsSort sort);
/// The members by name.
QString MemberNameOrder();

}  // namespace tavrelin
