#include "sample/SampleLeagues.h"

#include <algorithm>
#include <array>

#include "basic/Error.h"
#include "data/Connection.h"
#include "leagues/League.h"
#include "leagues/LeagueGames.h"
#include "leagues/LeagueOptions.h"
#include "leagues/LeagueRoster.h"
#include "leagues/LeagueStats.h"
#include "sample/Dice.h"
#include "sample/PitchedGame.h"
#include "sample/SampleRoster.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int GamesANight = 3;
constexpr int LastNightOfTheLeaver = 4;
constexpr int SinglesMembers = 16;
constexpr int TeamsOfTheLeague = 8;

struct LeaguePlan {
  const char* sanctionID;
  const char* name;
  double handicapPct;
  int shoes;
  bool cancellation;
  const char* playFormat;
};

constexpr LeaguePlan CountAll{"OH26501", "Thursday Night League", 90, 50, false, "S"};
constexpr LeaguePlan Cancellation{"OH26502", "Tuesday Ringers", 0, 40, true, "S"};
constexpr LeaguePlan Teams{"OH26503", "Maple Creek Team League", 80, 30, false, "T"};

/// Who pitches in an evening, with the handicap he comes with.
struct Pitcher {
  SamplePlayer player;
  int team = 0;
  int handicap = 0;
};

/// A league while its evenings are pitched.
class Evenings {
 public:
  Evenings(Connection& connection, Dice& dice, const LeaguePlan& plan)
      : connection_(connection), dice_(dice) {
    connection.Execute(
        u"INSERT INTO Leagues VALUES(?, ?, 'Maple Creek', 'OH', 'Hazel O''Tavish', ?, ?, ?, ?)"_s,
        {plan.sanctionID, plan.name, plan.handicapPct, plan.shoes, plan.cancellation,
         plan.playFormat});
    league_ = FindLeague(connection, QLatin1String(plan.sanctionID)).value();
  }

  const League& TheLeague() const { return league_; }

  void Join(const SamplePlayer& player, int startingAverage) {
    const Refusal refusal = AddLeagueMember(connection_, league_.sanctionID, player.id);
    if (refusal) throw Error(errors::RecordState, refusal.sentence);
    BringAlong(player, startingAverage);
  }
  /// What a member knows of himself before his first evening here.
  void BringAlong(const SamplePlayer& player, int startingAverage) {
    const int highRingers = std::min(league_.shoes, HighRingers(player));
    connection_.Execute(
        u"UPDATE LeagueMembers SET StartingAverage = ?, HighGameRingers = ? WHERE "
        "SanctionID = ? AND PlayerID = ?"_s,
        {startingAverage, highRingers, league_.sanctionID, player.id});
  }
  /// What a game of his gives where every ringer and every shoe in count is counted.
  int UsualPoints(const SamplePlayer& player) const {
    return static_cast<int>(league_.shoes * (player.skill * 2.45 + 0.55));
  }
  void Leave(const SamplePlayer& player) {
    connection_.Execute(
        u"UPDATE LeagueMembers SET Active = False WHERE SanctionID = ? AND PlayerID = ?"_s,
        {league_.sanctionID, player.id});
  }

  /// Handicaps as the worksheet of the evening has them.
  ByID<int> Handicaps() {
    ByID<int> handicaps;
    Recordset members = LoadStats(connection_, league_, {}).members;
    for (; !members.AtEnd(); members.MoveNext()) {
      handicaps[members[u"PlayerID"_s].ToText()] =
          static_cast<int>(members[u"Handicap"_s].ToWhole());
    }
    return handicaps;
  }

  /// Two pitch their games against each other. Returns the points of each, handicaps included.
  std::array<int, 2> Meet(const Pitcher& one, const Pitcher& two, const QDate& night) {
    std::array<int, 2> points{};
    for (int game = 0; game < GamesANight; ++game) {
      const auto pitched = Pitch(one.player.skill, two.player.skill);
      const int forOne = pitched[0].points + one.handicap;
      const int forTwo = pitched[1].points + two.handicap;
      Store(one, pitched[0], forOne - forTwo, night);
      Store(two, pitched[1], forTwo - forOne, night);
      points[0] += forOne;
      points[1] += forTwo;
    }
    return points;
  }

 private:
  int HighRingers(const SamplePlayer& player) const {
    return static_cast<int>(player.skill * league_.shoes) + 5;
  }

  std::array<PitchedSide, 2> Pitch(double one, double two) {
    if (league_.cancellation) return PitchGame(dice_, {one, two}, league_.shoes);
    return {PitchAlone(dice_, one, league_.shoes), PitchAlone(dice_, two, league_.shoes)};
  }

  void Store(const Pitcher& pitcher, const PitchedSide& pitched, int lead, const QDate& night) {
    connection_.Execute(
        u"INSERT INTO LeagueScores (SanctionID, PlayerID, TeamID, [Date], Shoes, Points, Ringers, "
        "WinLoss, Handicap) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
        {league_.sanctionID, pitcher.player.id, pitcher.team, night, league_.shoes, pitched.points,
         pitched.ringers, lead > 0 ? "W" : (lead < 0 ? "L" : "T"), pitcher.handicap});
  }

  Connection& connection_;
  Dice& dice_;
  League league_;
};

/// The circle in which everybody meets everybody: the first keeps its place, the others move on.
template <class T>
QList<T> Turned(const QList<T>& all, int turns) {
  QList<T> turned = {all.first()};
  const int moving = static_cast<int>(all.size()) - 1;
  for (int i = 0; i < moving; ++i) turned << all[1 + (i + turns) % moving];
  return turned;
}

void PlaySingles(Connection& connection, Dice& dice, const LeaguePlan& plan,
                 QList<SamplePlayer> players, const QDate& firstNight) {
  Evenings evenings(connection, dice, plan);
  const SamplePlayer latecomer = players.takeLast();
  for (int i = 0; i < players.size(); ++i) {
    const bool isNew = i % 4 == 0 || plan.cancellation;
    evenings.Join(players[i], isNew ? 0 : evenings.UsualPoints(players[i]));
  }
  for (int night = 0; night < SampleNights; ++night) {
    if (night == LastNightOfTheLeaver) {
      evenings.Leave(players.last());
      players.last() = latecomer;
      evenings.Join(latecomer, 0);
    }
    const ByID<int> handicaps = evenings.Handicaps();
    const QList<SamplePlayer> present = Turned(players, night);
    for (int i = 0; i + 1 < present.size(); i += 2) {
      evenings.Meet({present[i], 0, handicaps.value(present[i].id)},
                    {present[i + 1], 0, handicaps.value(present[i + 1].id)},
                    firstNight.addDays(7 * night));
    }
  }
}

void AddTeamWins(Connection& connection, const League& league, const SampleTeam& team, int lead,
                 const QDate& night) {
  const double wins = lead > 0 ? 1 : (lead < 0 ? 0 : 0.5);
  connection.Execute(u"INSERT INTO LeagueTeamScores VALUES(?, ?, ?, ?, ?)"_s,
                     {league.sanctionID, team.id, night, wins, 1 - wins});
}

void PlayTeams(Connection& connection, Dice& dice, const QList<SampleTeam>& teams,
               const QDate& firstNight) {
  Evenings evenings(connection, dice, Teams);
  for (const SampleTeam& team : teams) {
    const AddedTeam added = AddLeagueTeam(connection, evenings.TheLeague().sanctionID, team.id);
    if (added.refusal) throw Error(errors::RecordState, added.refusal.sentence);
    for (const SamplePlayer& player : {team.one, team.two}) evenings.BringAlong(player, 0);
  }
  for (int night = 0; night < SampleNights; ++night) {
    const QDate day = firstNight.addDays(7 * night);
    const ByID<int> handicaps = evenings.Handicaps();
    const auto pitcher = [&](const SampleTeam& team, const SamplePlayer& player) {
      return Pitcher{player, team.id, handicaps.value(player.id)};
    };
    const QList<SampleTeam> present = Turned(teams, night);
    for (int i = 0; i + 1 < present.size(); i += 2) {
      const SampleTeam& home = present[i];
      const SampleTeam& away = present[i + 1];
      const auto first = evenings.Meet(pitcher(home, home.one), pitcher(away, away.one), day);
      const auto second = evenings.Meet(pitcher(home, home.two), pitcher(away, away.two), day);
      const int lead = first[0] + second[0] - first[1] - second[1];
      AddTeamWins(connection, evenings.TheLeague(), home, lead, day);
      AddTeamWins(connection, evenings.TheLeague(), away, -lead, day);
    }
  }
}

/// Every seventh player from a first one on.
QList<SamplePlayer> Some(const QList<SamplePlayer>& players, int first, int count) {
  QList<SamplePlayer> some;
  for (int i = 0; i < count; ++i) some << players[(first + 7 * i) % players.size()];
  return some;
}

}  // namespace

void AddSampleLeagues(Connection& connection, Dice& dice, const QList<SamplePlayer>& players,
                      const QList<SampleTeam>& teams, const QDate& lastNight) {
  const QDate first = lastNight.addDays(-7 * (SampleNights - 1));
  PlaySingles(connection, dice, CountAll, Some(players, 1, SinglesMembers + 1), first);
  PlaySingles(connection, dice, Cancellation, Some(players, 4, SinglesMembers + 1),
              first.addDays(-2));
  PlayTeams(connection, dice, teams.mid(0, TeamsOfTheLeague), first.addDays(-1));
}

}  // namespace tavrelin
