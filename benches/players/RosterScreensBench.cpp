// The screens that open on the whole roster beside bare SQLite fetching the same rows: showing
// them, a header click, a key of the typed search.

#include <sqlite3.h>

#include <map>
#include <memory>

#include "Compare.h"
#include "controls/GridEX.h"
#include "data/Connection.h"
#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "players/uctTeam.h"
#include "support/ScreenBench.h"

namespace {

using namespace tavrelin;

void FillRoster(Connection& club, int players) {
  const QByteArray sql =
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " +
      QByteArray::number(players - 1) +
      ") INSERT INTO Players SELECT printf('%06d', i), 'Chris' || (i * 31 % 977), "
      "char(65 + i * 7919 % 26) || 'ame' || (i * 7919 % 100003), 'AM', printf('%06d', i), '2025', "
      "'6515550123', '1200 Peach Street', 'Erie', 'PA', '16501', '1951-05-17 00:00:00', i % 50, "
      "NULL, 30 + i % 500 / 10.0, '6515550188', 'someone@example.org', NULL, '', 'S' FROM n";
  sqlite3_exec(club.Handle(), sql.constData(), nullptr, nullptr, nullptr);
}

/// Every cell as SQLite gives it, kept nowhere.
void BareFetch(Connection& club, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(club.Handle(), sql, -1, &statement, nullptr);
  qint64 bytes = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      if (sqlite3_column_text(statement, column)) bytes += sqlite3_column_bytes(statement, column);
    }
  }
  sqlite3_finalize(statement);
  if (bytes == 0) qFatal("the roster is empty");
}

/// A screen on a club of so many players.
struct RosterScreen {
  explicit RosterScreen(int players) {
    club.Open(ConnectString);
    FillRoster(club, players);
  }

  ScreenBench bench;
  Connection club;
};

/// What a screen's list costs to show, beside the statement that it shows.
template <class ScreenClass>
void CompareShow(benchmark::State& state, Goal goal, const char* sql) {
  RosterScreen roster(50000);
  roster.bench.Show<ScreenClass>();
  Compare(state, goal,
          {[&] { roster.bench.LeaveAndReturn(); }, [&] { BareFetch(roster.club, sql); }, {}});
}

void ShowProfile(benchmark::State& state) {
  CompareShow<uctProfile>(state, 3.0, "SELECT * FROM Players ORDER BY LastName");
}
BENCHMARK(ShowProfile)->Name("Players / Profile shown, 50,000 players")->Iterations(5);

void ShowScores(benchmark::State& state) {
  CompareShow<uctScores>(
      state, {}, "SELECT PlayerID, LastName, FirstName, Category FROM Players ORDER BY LastName");
}
BENCHMARK(ShowScores)->Name("Players / Stats shown, 50,000 players")->Iterations(5);

void ShowTeams(benchmark::State& state) {
  CompareShow<uctTeam>(state, {},
                       "SELECT PlayerID, RTRIM(LastName) || ', ' || RTRIM(FirstName) AS "
                       "PlayerName, City, State FROM Players ORDER BY 2");
}
BENCHMARK(ShowTeams)->Name("Players / Teams shown, 50,000 players")->Iterations(5);

// One at a time: there is one screen and one club in a process.
double ShowProfileOnce(int players) {
  RosterScreen roster(players);
  roster.bench.Show<uctProfile>();
  return Milliseconds([&] { roster.bench.LeaveAndReturn(); });
}

void ShowLargeProfile(benchmark::State& state) {
  for (auto _ : state) {
    const double bare = ShowProfileOnce(50000);
    Tell(state, 12.0, ShowProfileOnce(500000), bare, "ms");
  }
}
BENCHMARK(ShowLargeProfile)
    ->Name("Players / Profile shown, 500,000 beside 50,000 players")
    ->Iterations(1);

GridEX& ShowGrid(RosterScreen& roster) {
  roster.bench.Show<uctProfile>();
  return roster.bench.Find<GridEX>("grdProfile");
}

void ClickHeader(benchmark::State& state) {
  RosterScreen roster(50000);
  GridEX& grid = ShowGrid(roster);
  const auto click = [&](const char* column) {
    grid.on.ColumnHeaderClick(column);
    roster.bench.ProcessEvents();
  };
  Compare(state, {},
          {[&] { click("FirstName"); },
           [&] { BareFetch(roster.club, "SELECT * FROM Players ORDER BY FirstName"); },
           [&] { click("LastName"); }});
}
BENCHMARK(ClickHeader)->Name("Header click, 50,000 players")->Iterations(5);

/// A key of the typed search, beside the statement that finds the same row.
void CompareKey(benchmark::State& state, const char* before, const char* key) {
  RosterScreen roster(50000);
  GridEX& grid = ShowGrid(roster);
  const auto startOver = [&] {
    grid.on.ColumnHeaderClick("FirstName");
    grid.on.ColumnHeaderClick("LastName");
    grid.SetRow(1);
    grid.ClearCol();
    if (*before != '\0') roster.bench.Type(before);
  };
  const auto find = [&] {
    BareFetch(roster.club,
              "SELECT * FROM Players WHERE LastName LIKE 'S%' ORDER BY LastName LIMIT 1");
  };
  Compare(state, {}, {[&] { roster.bench.Type(key); }, find, startOver});
}

void TypeFirstKey(benchmark::State& state) {
  CompareKey(state, "", "s");
}
BENCHMARK(TypeFirstKey)->Name("First key of a typed search, 50,000 players")->Iterations(1);

void TypeNextKey(benchmark::State& state) {
  CompareKey(state, "s", "a");
}
BENCHMARK(TypeNextKey)->Name("Next key of a typed search, 50,000 players")->Iterations(1);

}  // namespace
