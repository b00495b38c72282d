#include "leagues/LeagueStats.h"

#include <algorithm>

#include "data/Connection.h"
#include "leagues/LeagueOptions.h"
#include "leagues/MemberTable.h"
#include "leagues/SeasonGames.h"
#include "leagues/TeamTable.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// What handicaps are held against. It follows the best of the members while they are walked.
class Basis {
 public:
  explicit Basis(int points) : points_(points), followsTheBest_(points == 0) {}

  int Points() const { return points_; }
  float Percent() const { return percent_; }

  /// What an inactive member pitches sets no basis.
  void Raise(const MemberStats& member) {
    if (!member.active) return;
    if (followsTheBest_) points_ = std::max(points_, member.averagePoints);
    percent_ = std::max(percent_, member.ringerPercent);
    start_ = std::max(start_, member.start.average);
  }

  /// All members have been walked: where nobody has pitched, the best average brought along counts.
  void Settle() {
    if (points_ == 0) points_ = start_;
  }

 private:
  int points_;
  bool followsTheBest_;
  int start_ = 0;      ///< the best average brought along
  float percent_ = 0;  ///< the best ringer percent
};

float PercentOf(qint64 ringers, int shoes) {
  if (shoes == 0) return 0;
  return static_cast<float>(static_cast<double>(ringers) * 100 / shoes);
}

void TakeFigures(MemberStats& member, const Season& season, int shoesAGame) {
  member.averagePoints = season.AveragePoints();
  member.ringerPercent = season.RingerPercent();
  member.wins = season.Wins();
  member.losses = season.Losses();
  member.totalPoints = season.TotalPoints();
  member.totalRingers = season.TotalRingers();
  member.totalShoes = season.TotalShoes();
  member.highPoints = season.HighPoints();
  member.highRingers = season.HighRingers();
  member.highWithHandicap = season.HighWithHandicap();
  member.highPercent = PercentOf(member.highRingers, shoesAGame);
  member.previousHighPercent = PercentOf(member.start.highRingers, shoesAGame);
}

/// Plays a member's season through, for himself, for the team of each game and for the basis.
void PlayThrough(MemberStats& member, const League& league, int lastGames, SeasonGames& games,
                 TeamTable& teams, Basis& basis) {
  const SeasonGames::Range range = games.Of(member.playerID);
  Season season(member.start, range.count, lastGames, HandicapRate(league.handicapPct),
                basis.Points());
  for (int i = 0; i < range.count; ++i) {
    const SeasonGame game = games.At(range.first + i);
    season.Add(game);
    if (league.teams) teams.Add(games.TeamAt(range.first + i), CreditOf(game.result));
  }
  games.Include(range);
  TakeFigures(member, season, league.shoes);
  basis.Raise(member);
  if (member.averagePoints == 0) member.averagePoints = member.start.average;
}

int HandicapOf(const MemberStats& member, const League& league, const Basis& basis) {
  const float rate = HandicapRate(league.handicapPct);
  if (league.cancellation) {
    if (member.ringerPercent == 0) return 0;
    return RingersHandicap(rate, basis.Percent(), member.ringerPercent, league.shoes);
  }
  if (member.averagePoints == 0) return 0;
  return PointsHandicap(rate, basis.Points(), member.averagePoints);
}

}  // namespace

LeagueStats LoadStats(Connection& connection, const League& league, const LeagueOptions& options) {
  LeagueStats stats;
  stats.league = league;
  QList<MemberStats> members = ReadMembers(connection, league);
  if (members.isEmpty()) stats.refusal = {u"No members in selected club"_s};
  TeamTable teams(connection, league, options.count);
  SeasonGames games(connection, league.sanctionID);
  Basis basis(options.basis);
  for (MemberStats& member : members) {
    PlayThrough(member, league, options.lastGames, games, teams, basis);
  }
  basis.Settle();
  for (MemberStats& member : members) member.handicap = HandicapOf(member, league, basis);
  stats.members = MemberTable(members);
  stats.teams = teams.Standings();
  stats.firstDate = games.FirstDate();
  stats.lastDate = games.LastDate();
  return stats;
}

}  // namespace tavrelin
