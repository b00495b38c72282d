// Ranking a class of 20 players over 4 rounds (760 games), beside what it costs at least with bare
// SQLite, in one transaction and with the same settings of the file: only the rows it writes; the
// games and entries it reads as well; and the totals added up by an update for each side of a game,
// as the rule is told.
#include <sqlite3.h>

#include <QTemporaryDir>

#include "Compare.h"
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

void Bind(sqlite3_stmt* statement, int at, const QByteArray& text) {
  sqlite3_bind_text(statement, at, text.constData(), -1, SQLITE_TRANSIENT);
}

/// The statements of a ranking, prepared once, on the handle of a club's file.
class Bare {
 public:
  explicit Bare(sqlite3* db) : db_(db) {
    totals_ = Prepare(
        "UPDATE TournamentEntrants SET TotalShoes = ?, TotalRingers = ?, TotalPoints = ?, "
        "TotalWins = ?, TotalLosses = ?, HiGame = ? WHERE SanctionID = '2601007' AND "
        "ClassID = 'A' AND PlayerID = ?");
    add_ = Prepare(
        "UPDATE TournamentEntrants SET TotalShoes = TotalShoes + ?, TotalRingers = TotalRingers + "
        "?, TotalPoints = TotalPoints + ?, TotalWins = TotalWins + ?, TotalLosses = TotalLosses + "
        "? WHERE SanctionID = '2601007' AND ClassID = 'A' AND PlayerID = ?");
    tie_ = Prepare(
        "UPDATE TournamentEntrants SET HeadToHead = ? WHERE PlayerID = ? AND "
        "SanctionID = '2601007'");
    games_ = Prepare(
        "SELECT * FROM TournamentSinglesRR WHERE SanctionID = '2601007' AND ClassID = 'A' "
        "ORDER BY Game, Court");
    entries_ =
        Prepare("SELECT * FROM TournamentEntrants WHERE SanctionID = '2601007' AND ClassID = 'A'");
    names_ = Prepare(
        "SELECT * FROM Players WHERE PlayerID IN (SELECT PlayerID FROM TournamentEntrants WHERE "
        "SanctionID = '2601007' AND ClassID = 'A')");
  }
  ~Bare() {
    for (sqlite3_stmt* statement : {totals_, add_, tie_, games_, entries_, names_})
      sqlite3_finalize(statement);
  }

  void Begin() { sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr); }
  void Commit() { sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr); }
  void Read() {
    Walk(games_);
    Walk(entries_);
    Walk(names_);
  }
  void Write() {
    for (int n = 1; n <= Players; ++n) Run(totals_, 6, n);
    for (int n = 1; n <= Players; ++n) Run(tie_, 1, n);
  }
  void AddUp() {
    for (int game = 0; game < Rounds * Players * (Players - 1) / 2; ++game)
      for (int side = 0; side < 2; ++side) Run(add_, 5, (game + side * 7) % Players + 1);
  }

 private:
  sqlite3_stmt* Prepare(const char* text) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db_, text, -1, &statement, nullptr) != SQLITE_OK)
      qFatal("%s", sqlite3_errmsg(db_));
    return statement;
  }
  static void Run(sqlite3_stmt* statement, int figures, int player) {
    for (int i = 1; i <= figures; ++i) sqlite3_bind_int(statement, i, player * i);
    Bind(statement, figures + 1, PlayerID(player).toLatin1());
    sqlite3_step(statement);
    sqlite3_reset(statement);
  }
  static void Walk(sqlite3_stmt* statement) {
    while (sqlite3_step(statement) == SQLITE_ROW) {
      for (int i = 0; i < sqlite3_column_count(statement); ++i)
        benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
    }
    sqlite3_reset(statement);
  }

  sqlite3* db_;
  sqlite3_stmt *totals_, *add_, *tie_, *games_, *entries_, *names_;
};

using BareWork = std::function<void(Bare&)>;

void CompareRanking(benchmark::State& state, int roster, Goal goal, const BareWork& work) {
  Club club(roster);
  const ClassRules rules = FindClass(club.connection, Sanction, "A").value();
  Bare bare(club.connection.Handle());
  const auto runBare = [&] {
    bare.Begin();
    work(bare);
    bare.Commit();
  };
  const auto rank = [&] {
    benchmark::DoNotOptimize(RankTheClass(club.connection, rules).rankBasis);
  };
  Compare(state, goal, {rank, runBare, [&] { club.ClearTotals(); }});
}

void ReadAndWrite(Bare& bare) {
  bare.Read();
  bare.Write();
}

void RankBesideFinalRows(benchmark::State& state) {
  CompareRanking(state, Players, 2.0, ReadAndWrite);
}
BENCHMARK(RankBesideFinalRows)
    ->Name("RankTheClass of 20, 760 games: reads and final rows")
    ->Iterations(25);

void RankBesideAddingUp(benchmark::State& state) {
  CompareRanking(state, Players, {}, [](Bare& bare) {
    bare.Read();
    bare.AddUp();
    bare.Write();
  });
}
BENCHMARK(RankBesideAddingUp)
    ->Name("RankTheClass of 20, 760 games: an update a side")
    ->Iterations(25);

void RankBesideWrites(benchmark::State& state) {
  CompareRanking(state, Players, {}, [](Bare& bare) { bare.Write(); });
}
BENCHMARK(RankBesideWrites)
    ->Name("RankTheClass of 20, 760 games: final rows alone")
    ->Iterations(25);

void RankInALargeClub(benchmark::State& state) {
  CompareRanking(state, 50000, 2.0, ReadAndWrite);
}
BENCHMARK(RankInALargeClub)
    ->Name("RankTheClass of 20 with a roster of 50,000: reads and final rows")
    ->Iterations(25);

}  // namespace
