// The roster on the screen against bare SQLite: showing it, one header click, one key of the typed
// search, and the peak of memory beside an empty window's.
//
//     tavrelin_bench_profile [PLAYERS]     (-1: nothing but an empty window)

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <QFile>
#include <QTest>
#include <vector>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "players/uctTeam.h"
#include "shell/Application.h"
#include "support/ScreenBench.h"

namespace {

using namespace tavrelin;

double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

double Median(int runs, const std::function<void()>& work) {
  std::vector<double> times;
  for (int run = 0; run < runs; ++run) times.push_back(Milliseconds(work));
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

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

// Every cell as SQLite gives it, kept nowhere.
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
  if (bytes == 0) std::puts("the roster is empty");
}

void Tell(const char* what, double screen, double bare) {
  std::printf("%-28s %9.1f ms   bare SQLite %9.1f ms   ratio %6.2f\n", what, screen, bare,
              screen / bare);
}

void TellMemory() {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly)) return;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmHWM")) std::puts(line.constData());
  }
}

// The other screens that open on the whole roster.
template <class ScreenClass>
void MeasureShow(ScreenBench& bench, Connection& club, const char* what, const char* sql) {
  bench.Show<ScreenClass>();
  const double show = Median(3, [&] { bench.LeaveAndReturn(); });
  Tell(what, show, Median(3, [&] { BareFetch(club, sql); }));
}

void Measure(int players) {
  ScreenBench bench;
  Connection club;
  club.Open(ConnectString);
  FillRoster(club, players);
  bench.Show<uctProfile>();
  const double show = Median(3, [&] { bench.LeaveAndReturn(); });
  Tell("show", show,
       Median(3, [&] { BareFetch(club, "SELECT * FROM Players ORDER BY LastName"); }));
  auto& grid = bench.Find<GridEX>("grdProfile");
  const double click = Median(3, [&] {
    grid.on.ColumnHeaderClick("FirstName");
    bench.ProcessEvents();
  });
  Tell("header click", click,
       Median(3, [&] { BareFetch(club, "SELECT * FROM Players ORDER BY FirstName"); }));
  grid.on.ColumnHeaderClick("LastName");
  grid.SetRow(1);
  grid.ClearCol();
  const double first = Milliseconds([&] { bench.Type("s"); });
  const double next = Milliseconds([&] { bench.Type("a"); });
  const double bare = Median(3, [&] {
    BareFetch(club, "SELECT * FROM Players WHERE LastName LIKE 'S%' ORDER BY LastName LIMIT 1");
  });
  Tell("first key of a typed search", first, bare);
  Tell("next key", next, bare);
  MeasureShow<uctScores>(
      bench, club, "show the stats",
      "SELECT PlayerID, LastName, FirstName, Category FROM Players ORDER BY LastName");
  MeasureShow<uctTeam>(
      bench, club, "show the teams",
      "SELECT PlayerID, RTRIM(LastName) || ', ' || RTRIM(FirstName) AS PlayerName, City, State "
      "FROM Players ORDER BY 2");
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  const int players = argc > 1 ? std::atoi(argv[1]) : 50000;
  std::printf("%d players\n", players);
  if (players < 0) {
    QWidget window;
    window.resize(1150, 640);
    window.show();
    QCoreApplication::processEvents();
  } else {
    Measure(players);
  }
  TellMemory();
  return 0;
}
