// A roster fetched through Recordset against the bare loop over the same statement. The bare loop
// touches every cell as SQLite gives it and keeps nothing; "ratio" is the price of keeping all of
// it ready for the grids.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <map>
#include <memory>

#include <QDir>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"

namespace {

using namespace tavrelin;
using Clock = std::chrono::steady_clock;

const QString Query = QStringLiteral("SELECT * FROM Players ORDER BY LastName");
const QString Unsorted = QStringLiteral("SELECT * FROM Players");

/// A file with so many players, twenty columns each.
class Roster {
 public:
  explicit Roster(int players) {
    const QString path = folder_.filePath(QStringLiteral("Roster.mdb"));
    sqlite3* db = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &db);
    sqlite3_exec(db, "PRAGMA application_id = 0x5456524C", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    connection.Open(QStringLiteral("DBQ=%1;").arg(path));
    connection.Execute(QStringLiteral(
        "CREATE TABLE Players (PlayerID TEXT(6), FirstName TEXT(20), LastName TEXT(25), Category "
        "VARCHAR(2), CardNumber TEXT(6), CardYear TEXT(4), Telephone TEXT(10), AddressOne "
        "TEXT(40), "
        "City TEXT(30), State TEXT(2), ZipCode TEXT(10), BirthDate DATETIME, Longevity INTEGER, "
        "Remarks TEXT(255), Average DOUBLE, CellPhone CHAR(10), Email VARCHAR(60), EmergencyInfo "
        "VARCHAR(255), Awards VARCHAR(255), MembershipType CHAR(1))"));
    Batch all(connection);
    for (int i = 0; i < players; ++i) Insert(i);
  }

  Connection connection;

 private:
  void Insert(int i) {
    connection.Execute(
        QStringLiteral(
            "INSERT INTO Players VALUES(?, 'Christine', ?, 'EW', ?, '2024', '8145550123', "
            "'1200 Peach Street', 'Erie', 'PA', '16501', #5/17/1951#, 12, Null, ?, "
            "'8145550188', 'someone@example.org', Null, '', 'S')"),
        {Value(QStringLiteral("%1").arg(i, 6, 10, QLatin1Char('0'))),
         Value(QStringLiteral("Name%1").arg((i * 7919) % 100003)),
         Value(QStringLiteral("PA%1").arg(i % 9999)), Value(30 + (i % 500) / 10.0)});
  }
  QTemporaryDir folder_;
};

Roster& RosterOf(int players) {
  static std::map<int, std::unique_ptr<Roster>> rosters;
  auto& roster = rosters[players];
  if (!roster) roster = std::make_unique<Roster>(players);
  return *roster;
}

double BareLoop(Connection& connection, const QString& query) {
  const auto start = Clock::now();
  sqlite3_stmt* statement = nullptr;
  const QByteArray sql = query.toUtf8();
  sqlite3_prepare_v2(connection.Handle(), sql.constData(), -1, &statement, nullptr);
  qint64 bytes = 0;
  double sum = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    const int columns = sqlite3_column_count(statement);
    for (int column = 0; column < columns; ++column) {
      switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
          sum += sqlite3_column_double(statement, column);
          break;
        case SQLITE_TEXT:
          benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
          bytes += sqlite3_column_bytes(statement, column);
          break;
        default:
          break;
      }
    }
  }
  sqlite3_finalize(statement);
  benchmark::DoNotOptimize(bytes);
  benchmark::DoNotOptimize(sum);
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void FetchRoster(benchmark::State& state) {
  Roster& roster = RosterOf(static_cast<int>(state.range(0)));
  const QString& query = state.range(1) != 0 ? Query : Unsorted;
  double bare = 0;
  double fetched = 0;
  for (auto _ : state) {
    bare += BareLoop(roster.connection, query);
    const auto start = Clock::now();
    Recordset rows;
    rows.Open(query, roster.connection, Recordset::Lock::Optimistic);
    benchmark::DoNotOptimize(rows.RecordCount());
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    state.SetIterationTime(seconds);
    fetched += seconds;
  }
  state.counters["bare_ms"] = 1000 * bare / static_cast<double>(state.iterations());
  state.counters["ratio"] = fetched / bare;
}
BENCHMARK(FetchRoster)
    ->ArgNames({"players", "sorted"})
    ->ArgsProduct({{50000, 500000}, {0, 1}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void SortByName(benchmark::State& state) {
  Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM Players"),
            RosterOf(static_cast<int>(state.range(0))).connection);
  bool down = false;
  for (auto _ : state) {
    rows.SetSort(down ? QStringLiteral("LastName ASC") : QStringLiteral("LastName DESC"));
    down = !down;
  }
}
BENCHMARK(SortByName)->Arg(50000)->Arg(500000)->Unit(benchmark::kMillisecond);

void SortThatStandsAlready(benchmark::State& state) {
  Recordset rows;
  rows.Open(Query, RosterOf(static_cast<int>(state.range(0))).connection);
  for (auto _ : state) rows.SetSort(QStringLiteral("LastName ASC"));
}
BENCHMARK(SortThatStandsAlready)->Arg(50000)->Unit(benchmark::kMillisecond);

void FindTheLastPlayer(benchmark::State& state) {
  const int players = 50000;
  Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM Players"), RosterOf(players).connection);
  if (state.range(0) != 0) rows.Optimize(QStringLiteral("PlayerID"));
  const QString criterion =
      QStringLiteral("PlayerID = '%1'").arg(players - 1, 6, 10, QLatin1Char('0'));
  for (auto _ : state) {
    rows.MoveFirst();
    rows.Find(criterion);
    if (rows.AtEnd()) state.SkipWithError("not found");
  }
}
BENCHMARK(FindTheLastPlayer)->ArgName("indexed")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
