// Ranking a class of 20 players over 4 rounds (760 games), beside what it costs at least: the same
// rows written by bare SQLite in one transaction with the same settings of the file.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Schema.h"
#include "play/Ranking.h"

namespace {

using namespace tavrelin;

constexpr int Players = 20;
constexpr int Rounds = 4;
const char* const Sanction = "2601007";

QString PlayerID(int n) {
  return QString::number(n).rightJustified(6, u'0');
}

/// A club file with a roster of the given size and one class with all its games approved.
class Club {
 public:
  explicit Club(int roster) {
    const QString path = folder_.filePath(QStringLiteral("Club.mdb"));
    DeliverClubFile(path);
    connection.Open(QStringLiteral("DBQ=") + path);
    Batch batch(connection);
    connection.Execute("INSERT INTO Tournaments (SanctionID, Name) VALUES (?, 'Open')", {Sanction});
    connection.Execute(
        "INSERT INTO TournamentClasses (SanctionID, ClassID, HandicapPct, Shoes, RankMethod, "
        "PlayFormat) VALUES (?, 'A', 0, 40, 'H', 'S')",
        {Sanction});
    for (int n = 1; n <= roster; ++n) {
      connection.Execute(
          "INSERT INTO Players (PlayerID, FirstName, LastName) VALUES (?, 'Pat', 'Stone')",
          {PlayerID(n)});
    }
    for (int n = 1; n <= Players; ++n) {
      connection.Execute(
          "INSERT INTO TournamentEntrants (SanctionID, PlayerID, ClassID) VALUES (?, ?, 'A')",
          {Sanction, PlayerID(n)});
    }
    for (int round = 0; round < Rounds; ++round) StoreRound(round);
  }

  void ClearTotals() {
    connection.Execute("UPDATE TournamentEntrants SET TotalShoes = 0, TotalPoints = 0, HiGame = 0");
  }

  Connection connection;

 private:
  void StoreRound(int round) {
    for (int one = 1; one <= Players; ++one) {
      for (int two = one + 1; two <= Players; ++two) {
        connection.Execute(
            "INSERT INTO TournamentSinglesRR (SanctionID, ClassID, Game, Court, Shoes, "
            "PlayerOneID, "
            "PlayerTwoID, PlayerOnePoints, PlayerTwoPoints, PlayerOneRingers, PlayerTwoRingers, "
            "Approved) VALUES (?, 'A', ?, '  1', 40, ?, ?, ?, ?, ?, ?, True)",
            {Sanction, round + 1, PlayerID(one), PlayerID(two), (one * 7 + two + round) % 40,
             (two * 5 + one) % 40, one, two});
      }
    }
  }

  QTemporaryDir folder_;
};

void RankTheClassOf20(benchmark::State& state) {
  Club club(static_cast<int>(state.range(0)));
  const ClassRules rules = FindClass(club.connection, Sanction, "A").value();
  for (auto _ : state) {
    state.PauseTiming();
    club.ClearTotals();
    state.ResumeTiming();
    benchmark::DoNotOptimize(RankTheClass(club.connection, rules).rankBasis);
  }
}
BENCHMARK(RankTheClassOf20)->Arg(20)->Arg(50000)->Unit(benchmark::kMillisecond)->UseRealTime();

void Bind(sqlite3_stmt* statement, int at, const QByteArray& text) {
  sqlite3_bind_text(statement, at, text.constData(), -1, SQLITE_TRANSIENT);
}

void BareWrites(benchmark::State& state) {
  Club club(static_cast<int>(state.range(0)));
  sqlite3* db = club.connection.Handle();
  sqlite3_stmt* totals = nullptr;
  sqlite3_stmt* tie = nullptr;
  sqlite3_prepare_v2(
      db,
      "UPDATE TournamentEntrants SET TotalShoes = ?, TotalRingers = ?, TotalPoints = ?, "
      "TotalWins = ?, TotalLosses = ?, HiGame = ? WHERE SanctionID = '2601007' AND "
      "ClassID = 'A' AND PlayerID = ?",
      -1, &totals, nullptr);
  sqlite3_prepare_v2(db,
                     "UPDATE TournamentEntrants SET HeadToHead = ? WHERE PlayerID = ? AND "
                     "SanctionID = '2601007'",
                     -1, &tie, nullptr);
  for (auto _ : state) {
    state.PauseTiming();
    club.ClearTotals();
    state.ResumeTiming();
    sqlite3_exec(db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    for (int n = 1; n <= Players; ++n) {
      for (int column = 1; column <= 6; ++column) sqlite3_bind_int(totals, column, n * column);
      Bind(totals, 7, PlayerID(n).toLatin1());
      sqlite3_step(totals);
      sqlite3_reset(totals);
      sqlite3_bind_int(tie, 1, n);
      Bind(tie, 2, PlayerID(n).toLatin1());
      sqlite3_step(tie);
      sqlite3_reset(tie);
    }
    sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  }
  sqlite3_finalize(totals);
  sqlite3_finalize(tie);
}
BENCHMARK(BareWrites)->Arg(20)->Arg(50000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
