// The statistics against a plain walk through the rules as they are told, member by member and game
// by game, with the records that they name.

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

#include "leagues/LeagueBench.h"

namespace tavrelin {
namespace {

struct OracleGame {
  QString player;
  int day = 0;
  int shoes = 0, points = 0, ringers = 0;
  QString result;
  int team = 0;
};

struct OracleMember {
  QString id;
  bool onRoster = true;
  bool active = true;
  double start = 0;
  int highPoints = 0, highRingers = 0;
};

struct OracleLeague {
  double handicapPct = 0;
  int shoes = 0;
  bool cancellation = false, teams = false;
  QList<OracleMember> members;  // in the order of PlayerID
  QList<OracleGame> games;      // as typed
  QList<int> teamIDs;
  std::map<int, std::pair<double, double>> added;
};

/// What the walk finds for a member.
struct Row {
  QString id;
  bool active = false;
  double AveragePoints = 0, StartingAverage = 0, Handicap = 0;
  float RingerPercent = 0, Win = 0, Loss = 0, WinPercent = 0;
  double TotalPoints = 0, TotalRingers = 0, TotalShoes = 0, HighGamePoints = 0, HighGameRingers = 0;
  float HighRingerPercent = 0, PreviousHighRingerPercent = 0;
  QString Elgible;
  double HighGamePointsWH = 0, HighGamePointsOA = 0;
  float HighRingerPercentOA = 0;
};

struct Result {
  QList<Row> rows;
  std::map<int, std::pair<double, double>> teams;
  int firstDay = 9999, lastDay = -9999;
};

double Nearest(double x) {
  return std::nearbyint(x);  // halves to even, the processor's own way
}

Result Walk(const OracleLeague& league, int basisChosen, int n, int countTeamWins) {
  Result result;
  const bool bestPlayer = basisChosen == 0;
  double basis = basisChosen;
  double bestStart = 0;
  float bestRP = 0;
  const auto hcpRate = static_cast<float>(league.handicapPct / 100);
  if (league.teams) {
    for (const int team : league.teamIDs) result.teams[team] = {0, 0};
    if (countTeamWins != 1) {
      for (auto& [team, record] : result.teams) {
        const auto found = league.added.find(team);
        if (found != league.added.end()) record = found->second;
      }
    }
  }
  for (const OracleMember& member : league.members) {
    if (!member.onRoster) continue;
    Row row;
    row.id = member.id;
    row.active = member.active;
    row.StartingAverage = Nearest(member.start);
    if (league.shoes != 0) {
      row.PreviousHighRingerPercent = static_cast<float>(member.highRingers * 100.0 / league.shoes);
    }
    if (member.active && row.StartingAverage > bestStart) bestStart = row.StartingAverage;

    QList<OracleGame> games;
    for (const OracleGame& game : league.games) {
      if (game.player == member.id) games << game;
    }
    std::stable_sort(games.begin(), games.end(),
                     [](const OracleGame& a, const OracleGame& b) { return a.day < b.day; });
    const auto count = static_cast<int>(games.size());
    const int skip = count > n ? count - n : 0;
    int index = 0, counted = 0, windowGames = 0;
    double wins = 0, losses = 0, total = 0, ringers = 0, shoes = 0;
    double windowPoints = 0, windowRingers = 0, windowShoes = 0;
    double highPoints = member.highPoints, highRingers = member.highRingers, bestWH = 0;
    for (const OracleGame& game : games) {
      ++index;
      const bool inWindow = skip > 0 && index > skip;
      if (game.shoes != 0) {
        ++counted;
        if (inWindow) ++windowGames;
      }
      result.firstDay = std::min(result.firstDay, game.day);
      result.lastDay = std::max(result.lastDay, game.day);
      double win = 0, loss = 0;
      if (game.result == "W") win = 1;
      if (game.result == "L") loss = 1;
      if (game.result == "T") win = loss = 0.5;
      wins += win;
      losses += loss;
      if (league.teams && countTeamWins != 2 && result.teams.count(game.team) != 0) {
        result.teams[game.team].first += win;
        result.teams[game.team].second += loss;
      }
      double gameHcp = 0;
      if (index > 3) {
        const double gameAvg = Nearest(total / (index - 1));
        gameHcp = Nearest(static_cast<double>(hcpRate) * (basis - gameAvg));
      }
      if (game.points + gameHcp > bestWH) bestWH = game.points + gameHcp;
      shoes += game.shoes;
      total += game.points;
      ringers += game.ringers;
      if (inWindow) {
        windowShoes += game.shoes;
        windowPoints += game.points;
        windowRingers += game.ringers;
      }
      if (game.points > highPoints) highPoints = game.points;
      if (game.ringers > highRingers) highRingers = game.ringers;
    }
    row.AveragePoints = counted == 0 ? 0 : Nearest(total / counted);
    if (skip >= 1 && windowGames >= 1) row.AveragePoints = Nearest(windowPoints / windowGames);
    if (member.active && bestPlayer && row.AveragePoints > basis) basis = row.AveragePoints;
    row.RingerPercent = shoes == 0 ? 0 : static_cast<float>(ringers * 100 / shoes);
    if (skip >= 1 && windowShoes >= 1) {
      row.RingerPercent = static_cast<float>(windowRingers * 100 / windowShoes);
    }
    if (member.active && row.RingerPercent > bestRP) bestRP = row.RingerPercent;
    row.Win = static_cast<float>(wins);
    row.Loss = static_cast<float>(losses);
    row.TotalPoints = total;
    row.TotalRingers = ringers;
    row.TotalShoes = shoes;
    row.HighGamePoints = highPoints;
    row.HighGameRingers = highRingers;
    row.HighGamePointsWH = bestWH;
    if (league.shoes != 0) {
      row.HighRingerPercent = static_cast<float>(highRingers * 100 / league.shoes);
    }
    const int mark = static_cast<int>(Nearest(static_cast<double>(row.HighRingerPercent))) / 10;
    if (mark >= 1 && row.PreviousHighRingerPercent < static_cast<float>(mark * 10)) {
      row.Elgible = "Yes";
    }
    if (row.AveragePoints == 0 && row.StartingAverage != 0) {
      row.AveragePoints = row.StartingAverage;
    }
    result.rows << row;
  }
  if (basis == 0) basis = bestStart;
  for (Row& row : result.rows) {
    if (row.Win + row.Loss > 0) row.WinPercent = row.Win / (row.Win + row.Loss);
    const auto rate = static_cast<double>(hcpRate);
    if (!league.cancellation && row.AveragePoints != 0) {
      row.Handicap = Nearest(rate * (basis - row.AveragePoints));
    }
    if (league.cancellation && row.RingerPercent != 0) {
      const double behind = static_cast<double>(bestRP) - static_cast<double>(row.RingerPercent);
      row.Handicap = Nearest(behind * (league.shoes * 3) * (rate / 100));
    }
    row.HighGamePointsOA = std::max(0.0, row.HighGamePoints - row.AveragePoints);
    row.HighRingerPercentOA = std::max(0.0F, row.HighRingerPercent - row.RingerPercent);
  }
  return result;
}

class LeagueStatsOracleTest : public LeagueBench {
 protected:
  int Below(int count) { return static_cast<int>(dice_() % static_cast<unsigned>(count)); }
  bool OneIn(int count) { return Below(count) == 0; }
  template <class T>
  T OneOf(const QList<T>& all) {
    return all[Below(static_cast<int>(all.size()))];
  }

  OracleMember RandomMember(int number) {
    OracleMember member;
    member.id = QString("M%1").arg(number, 5, 10, QLatin1Char('0'));
    member.onRoster = !OneIn(12);
    member.active = !OneIn(5);
    member.start = OneIn(3) ? 0 : Below(180) / 2.0;
    member.highPoints = OneIn(3) ? 0 : Below(100);
    member.highRingers = OneIn(3) ? 0 : Below(40);
    return member;
  }

  OracleGame RandomGame(const QString& player, const OracleLeague& league) {
    OracleGame game;
    game.player = player;
    game.day = Below(12);
    game.shoes = OneIn(15) ? 0 : (OneIn(10) ? 20 : league.shoes);
    game.ringers = game.shoes == 0 ? 0 : Below(game.shoes + 1);
    game.points = OneIn(20) ? 0 : game.ringers + Below(2 * game.ringers + 20);
    game.result = OneOf(QStringList{"W", "W", "W", "L", "L", "L", "T", ""});
    game.team = OneIn(8) ? 99 : (league.teamIDs.isEmpty() ? 0 : OneOf(league.teamIDs));
    return game;
  }

  OracleLeague RandomLeague() {
    OracleLeague league;
    league.handicapPct = OneOf(QList<double>{0, 50, 75, 80, 85, 90, 100});
    league.shoes = OneOf(QList<int>{0, 20, 30, 40, 50, 50, 50, 100});
    league.cancellation = OneIn(2);
    league.teams = OneIn(2);
    for (int i = 0; i < Below(5); ++i) league.teamIDs << i + 1;
    for (int i = 0; i < 1 + Below(9); ++i) {
      league.members << RandomMember(i);
      for (int g = OneIn(5) ? 0 : Below(14); g > 0; --g) {
        league.games << RandomGame(league.members.last().id, league);
      }
    }
    std::shuffle(league.games.begin(), league.games.end(), dice_);
    for (const int team : league.teamIDs) {
      if (OneIn(2)) league.added[team] = {Below(20) / 2.0, Below(20) / 2.0};
    }
    return league;
  }

  void Store(const OracleLeague& league) {
    Batch batch(connection_);
    for (const char* table :
         {"Players", "LeagueMembers", "LeagueScores", "LeagueTeams", "Teams", "LeagueTeamScores"}) {
      connection_.Execute(QString("DELETE FROM %1").arg(table));
    }
    SetLeague("HandicapPct", league.handicapPct);
    SetLeague("Shoes", league.shoes);
    SetLeague("Cancellation", league.cancellation);
    SetLeague("PlayFormat", league.teams ? "T" : "S");
    for (const OracleMember& member : league.members) {
      if (member.onRoster) AddPlayer(member.id, member.id);
      const auto orNull = [&](double number) {
        return number == 0 && OneIn(2) ? Value() : Value(number);
      };
      AddMemberRow(member.id, {member.active, orNull(member.start), orNull(member.highPoints),
                               orNull(member.highRingers)});
    }
    for (const OracleGame& game : league.games) {
      AddGame(game.player, {game.shoes, game.points, game.ringers, game.result, game.team},
              FirstNight.addDays(game.day));
    }
    for (const int team : league.teamIDs) {
      connection_.Execute("INSERT INTO Teams (TeamID, Team) VALUES (?, ?)",
                          {team, QString("Team %1").arg(team)});
      AddLeagueTeamRow(team);
    }
    for (const auto& [team, record] : league.added) {
      AddTeamWins(team, record.first, record.second);
    }
    batch.Commit();
  }

  static QStringList TextOf(const Row& row) {
    const auto single = [](float x) { return Value(static_cast<double>(x)).ToText(); };
    const auto whole = [](double x) { return Value(x).ToText(); };
    return {row.id,
            row.id + ", Ann",
            "AW",
            "301234",
            "12 Elm St",
            "Erie",
            "PA",
            "165011234",
            Value(row.active).ToText(),
            whole(row.AveragePoints),
            whole(row.StartingAverage),
            single(row.RingerPercent),
            whole(row.Handicap == 0 ? 0 : row.Handicap),  // never "-0"
            single(row.Win),
            single(row.Loss),
            single(row.WinPercent),
            whole(row.TotalPoints),
            whole(row.TotalRingers),
            whole(row.TotalShoes),
            whole(row.HighGamePoints),
            whole(row.HighGameRingers),
            single(row.HighRingerPercent),
            single(row.PreviousHighRingerPercent),
            row.Elgible,
            whole(row.HighGamePointsWH),
            whole(row.HighGamePointsOA),
            single(row.HighRingerPercentOA)};
  }

  void ExpectSame(const Result& expected, LeagueStats& stats) {
    ASSERT_EQ(stats.members.RecordCount(), expected.rows.size());
    for (const Row& row : expected.rows) {
      const QStringList wanted = TextOf(row);
      for (int i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(stats.members.At(i).ToText(), wanted[i])
            << stats.members.Fields()[i].name.toStdString() << " of " << row.id.toStdString();
      }
      stats.members.MoveNext();
    }
    const bool played = expected.firstDay <= expected.lastDay;
    EXPECT_EQ(stats.firstDate, played ? FirstNight.addDays(expected.firstDay) : QDate());
    EXPECT_EQ(stats.lastDate, played ? FirstNight.addDays(expected.lastDay) : QDate());
    ExpectSameTeams(expected, stats);
  }

  static void ExpectSameTeams(const Result& expected, LeagueStats& stats) {
    ASSERT_EQ(stats.teams.IsOpen(), stats.league.teams);
    if (!stats.league.teams) return;
    ASSERT_EQ(stats.teams.RecordCount(), static_cast<int>(expected.teams.size()));
    for (const auto& [team, record] : expected.teams) {
      const auto& [win, loss] = record;
      EXPECT_EQ(stats.teams["TeamID"].ToWhole(), team);
      EXPECT_EQ(stats.teams["Win"].ToNumber(), win);
      EXPECT_EQ(stats.teams["Loss"].ToNumber(), loss);
      EXPECT_EQ(stats.teams["WinPercent"].ToNumber(), win + loss > 0 ? win / (win + loss) : 0);
      stats.teams.MoveNext();
    }
  }

  std::mt19937 dice_{20260407};
};

TEST_F(LeagueStatsOracleTest, RandomLeaguesComeOutAsAPlainWalkHasThem) {
  for (int league = 0; league < 150 && !HasFailure(); ++league) {
    const OracleLeague made = RandomLeague();
    Store(made);
    for (int choice = 0; choice < 8 && !HasFailure(); ++choice) {
      const int basis = OneOf(QList<int>{0, 0, 0, 50, 80, 100, 150});
      const int last = OneOf(QList<int>{0, 1, 2, 3, 5, 9, 30});
      const int count = 1 + Below(3);
      LeagueStats stats = Stats({basis, last, static_cast<CountedWins>(count)});
      ExpectSame(Walk(made, basis, last, count), stats);
      EXPECT_FALSE(HasFailure()) << "league " << league << ", basis " << basis << ", last " << last
                                 << ", count " << count;
    }
  }
}

}  // namespace
}  // namespace tavrelin
