#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "play/ClassBench.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"

namespace tavrelin {
namespace {

/// A class made by chance: few points and ringers, so that ties of every depth occur.
struct ChanceClass {
  QString method;
  bool handicap = false;
  bool teams = false;
  int entrants = 0;
  std::vector<double> averages;
  std::vector<Played> games;
};

ChanceClass MakeChanceClass(std::mt19937& chance, bool teams) {
  const auto below = [&](int limit) {
    return static_cast<int>(chance() % static_cast<unsigned>(limit));
  };
  ChanceClass c;
  c.method = QStringLiteral("PRHOX").mid(below(5), 1);
  c.handicap = below(2) == 1;
  c.teams = teams;
  c.entrants = 2 + below(19);
  const int points = 2 + below(5);
  for (int n = 0; n < c.entrants; ++n) c.averages.push_back(below(3) * 12.5);
  const bool pacer = c.entrants % 2 == 1 && below(2) == 1;
  const int rounds = 1 + below(4);
  for (int round = 0; round < rounds; ++round) {
    for (int one = 1; one <= c.entrants; ++one) {
      for (int two = one + 1; two <= c.entrants + (pacer ? 1 : 0); ++two) {
        Played game{one, two > c.entrants ? 0 : two};
        if (below(4) == 0) std::swap(game.one, game.two);
        for (int side : {0, 1}) {
          game.points[side] = below(points);
          game.ringers[side] = {below(3) * 4, teams ? below(3) * 4 : 0};
          game.forfeit[side] = !teams && below(12) == 0;
        }
        game.shoes = below(10) == 0 ? 0 : 16;
        game.approved = below(6) != 0;
        game.game = round + 1;
        c.games.push_back(game);
      }
    }
  }
  return c;
}

/// The line of one entrant, found by looking at one game after the other.
struct Line {
  int number = 0;
  int halves = 0;  ///< wins, in halves, so that no rounding comes in
  int lostHalves = 0;
  int shoes = 0, ringers = 0, points = 0;
  int headToHead = 0;
  double percent = 0, over = 0;
};

void PlayFor(Line& line, const Played& game, int side) {
  const int other = 1 - side;
  const int opponent = side == 0 ? game.two : game.one;
  const int pitchers = static_cast<int>(std::min<qsizetype>(2, game.ringers[side].size()));
  int won = 1;
  if (game.forfeit[side]) {
    line.lostHalves += 2;
    return;
  }
  if (opponent == 0 || game.forfeit[other] || game.points[side] > game.points[other])
    won = 2;
  else if (game.points[side] < game.points[other])
    won = 0;
  line.halves += won;
  line.lostHalves += 2 - won;
  line.points += game.points[side];
  for (int i = 0; i < pitchers; ++i) line.ringers += game.ringers[side][i];
  line.shoes += game.shoes;
}

double TieKey(const ChanceClass& c, const Line& line) {
  if (c.method == "R") return line.ringers;
  if (c.method == "H") return 0;
  if (c.method == "O") return static_cast<float>(line.over);
  return line.points;
}

int Beaten(const ChanceClass& c, int me, int other) {
  int count = 0;
  for (const Played& game : c.games) {
    if (game.one == other && game.two == me && game.points[1] > game.points[0]) ++count;
    if (game.two == other && game.one == me && game.points[0] > game.points[1]) ++count;
  }
  return count;
}

/// The keys behind wins and losses, all "more is better".
std::vector<double> Keys(const ChanceClass& c, const Line& line) {
  const double h = line.headToHead, p = line.points, r = line.percent, o = line.over;
  const bool plain = !c.handicap;
  if (c.method == "R") return {r, h, plain && c.teams ? p : o};
  if (c.method == "H") return {h, plain ? r : o, p};
  if (c.method == "O") return {o, plain ? r : h, p};
  return {p, h, plain ? r : o};
}

std::vector<Line> Expected(const ChanceClass& c) {
  std::vector<Line> lines(static_cast<size_t>(c.entrants));
  for (int n = 1; n <= c.entrants; ++n) {
    Line& line = lines[static_cast<size_t>(n - 1)];
    line.number = n;
    for (const Played& game : c.games) {
      if (game.approved && game.one == n) PlayFor(line, game, 0);
      if (game.approved && game.two == n) PlayFor(line, game, 1);
    }
    if (c.teams) line.shoes *= 2;
    if (line.shoes > 0) {
      line.percent = line.ringers * 100.0 / line.shoes;
      line.over = line.percent - c.averages[static_cast<size_t>(n - 1)];
    }
  }
  for (Line& me : lines) {
    for (const Line& other : lines) {
      const bool tied = me.number != other.number && me.halves == other.halves && me.halves > 0 &&
                        TieKey(c, me) == TieKey(c, other);
      if (tied) me.headToHead += Beaten(c, me.number, other.number);
    }
  }
  std::stable_sort(lines.begin(), lines.end(), [&](const Line& a, const Line& b) {
    if (a.halves != b.halves) return a.halves > b.halves;
    if (a.lostHalves != b.lostHalves) return a.lostHalves < b.lostHalves;
    return Keys(c, a) > Keys(c, b);
  });
  return lines;
}

class RankingOracle : public ClassBench {
 protected:
  void StoreClass(const ChanceClass& c, const QString& id) {
    Batch batch(connection_);
    AddClass(c.method, c.handicap ? 80 : 0, c.teams ? "D" : "S", id);
    for (int n = 1; n <= c.entrants; ++n) {
      const double average = c.averages[static_cast<size_t>(n - 1)];
      c.teams ? EnterTeam(n, average, 0, id) : Enter(n, average, 0, id);
    }
    for (const Played& game : c.games) c.teams ? StoreTeams(game, id) : Store(game, id);
  }

  void Compare(const ChanceClass& c, const QString& id) {
    const Standings standings = RankTheClass(connection_, Rules(id));
    const std::vector<Line> lines = Expected(c);
    const Recordset& rows = standings.rows;
    ASSERT_EQ(rows.RecordCount(), c.entrants);
    for (int place = 1; place <= c.entrants; ++place) {
      const Line& line = lines[static_cast<size_t>(place - 1)];
      const auto figure = [&](const char* field) {
        return rows.CellAt(place, rows.FieldIndex(field)).ToNumber();
      };
      ASSERT_EQ(figure(c.teams ? "TeamID" : "PlayerID"), line.number) << "place " << place;
      EXPECT_EQ(figure("Won") * 2, line.halves);
      EXPECT_EQ(figure("Loss") * 2, line.lostHalves);
      EXPECT_EQ(figure("Shoes"), line.shoes);
      EXPECT_EQ(figure("Ringers"), line.ringers);
      EXPECT_EQ(figure("Points"), line.points);
      EXPECT_EQ(figure("HeadToHead"), line.headToHead);
      EXPECT_DOUBLE_EQ(figure("RingerPercent"), line.percent);
      EXPECT_DOUBLE_EQ(figure("OverAverage"), line.over);
    }
  }

  void RunClasses(bool teams) {
    {
      Batch batch(connection_);
      teams ? AddTeams(20) : AddPlayers(20);
    }
    std::mt19937 chance(20260509);
    for (int i = 0; i < 60; ++i) {
      const ChanceClass c = MakeChanceClass(chance, teams);
      const QString id = QString::number(i);
      SCOPED_TRACE("class " + id.toStdString() + ", method " + c.method.toStdString() +
                   (c.handicap ? ", handicap" : ""));
      StoreClass(c, id);
      Compare(c, id);
      if (HasFatalFailure()) return;
      connection_.Execute("DELETE FROM TournamentClasses WHERE ClassID = ?", {id});
    }
  }
};

TEST_F(RankingOracle, SinglesClassesByChanceAgreeWithAPlainCount) {
  RunClasses(false);
}

TEST_F(RankingOracle, DoublesClassesByChanceAgreeWithAPlainCount) {
  RunClasses(true);
}

}  // namespace
}  // namespace tavrelin
