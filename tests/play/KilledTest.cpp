#include <gtest/gtest.h>

#include <QFile>

#include "leagues/League.h"
#include "play/ClassBench.h"
#include "play/LeagueSend.h"
#include "play/Ranking.h"
#include "play/RankOverride.h"
#include "support/BuiltProgram.h"
#include "support/FaultBench.h"

namespace tavrelin {
namespace {

constexpr const char* FileName = "TAVRELIN_KILLED_FILE";

/// A process to be killed that ranks: this program again, with this test alone. No command of the
/// command line ranks into the file.
TEST(KilledChild, DISABLED_Rank) {
  Connection connection;
  connection.Open("DBQ=" + qEnvironmentVariable(FileName));
  EXPECT_EQ(
      RankTheClass(connection, FindClass(connection, "2601007", "A").value()).refusal.sentence, "");
}

/// One that sets the places of a class as the director wants them: the other way round.
TEST(KilledChild, DISABLED_Override) {
  Connection connection;
  connection.Open("DBQ=" + qEnvironmentVariable(FileName));
  ClassRules rules = FindClass(connection, "2601007", "A").value();
  Standings standings = RankTheClass(connection, rules);
  int place = standings.rows.RecordCount();
  for (; !standings.rows.AtEnd(); standings.rows.MoveNext()) {
    standings.rows.Set("Override", place--);
    standings.rows.Update();
  }
  EXPECT_EQ(ApplyOverride(connection, rules, standings.rows).sentence, "");
}

/// One that sends a class to a league.
TEST(KilledChild, DISABLED_Send) {
  Connection connection;
  connection.Open("DBQ=" + qEnvironmentVariable(FileName));
  const ClassRules rules = FindClass(connection, "2601007", "A").value();
  const League league = FindLeague(connection, "2605001").value();
  EXPECT_GT(SendClassToLeague(connection, rules, league, QDate(2026, 4, 7)).added, 0);
}

class KilledTest : public ClassBench {
 protected:
  /// Everything that a rule of play may write.
  static QStringList Content(const QString& path) {
    Connection connection;
    connection.Open("DBQ=" + path);
    QStringList all;
    for (const QString table : {"TournamentClasses", "TournamentSinglesRR", "TournamentEntrants",
                                "TournamentDoublesRR", "TournamentTeamEntrants", "LeagueScores"}) {
      Recordset rows;
      for (rows.Open("SELECT * FROM " + table, connection); !rows.AtEnd(); rows.MoveNext()) {
        QString line;
        for (int i = 0; i < rows.Fields().size(); ++i) line += rows.At(i).ToText() + '|';
        all << line;
      }
    }
    return all;
  }

  QString Copy() const { return folder_.filePath("Copy.mdb"); }

  /// Kills the worker, who works on the copy, at each of his calls in turn; what is left each time,
  /// the last time of a worker who was let live.
  QList<QStringList> KillAtEvery(const QString& call, const QStringList& worker) {
    FaultBench bench;
    bench.SetVariable(FileName, Copy());
    bench.SetVariable("ASAN_OPTIONS", "detect_leaks=0");  // it cannot look under strace
    QList<QStringList> left;
    for (int at = 1;; ++at) {
      QFile::remove(Copy());
      QFile::remove(Copy() + "-journal");
      EXPECT_TRUE(QFile::copy(path_, Copy()));
      const FaultBench::Outcome outcome = bench.KillAt(at, worker, call);
      if (!outcome.ran) return {};
      left << Content(Copy());
      if (outcome.killed) continue;
      EXPECT_EQ(outcome.exitCode, 0);
      return left;
    }
  }

  /// The calls by which a commit changes the file, makes sure of it and is done.
  void ExpectWholeOrNothing(const QStringList& worker) {
    connection_.Close();
    const QStringList before = Content(path_);
    for (const QString call : {"pwrite64", "fdatasync", "unlink"}) {
      const QList<QStringList> left = KillAtEvery(call, worker);
      if (left.isEmpty()) GTEST_SKIP() << "strace is not allowed here";
      const QStringList& after = left.last();
      EXPECT_NE(after, before);
      for (const QStringList& content : left) EXPECT_TRUE(content == before || content == after);
      EXPECT_GE(left.count(before), call == u"pwrite64" ? 4 : 1) << call.toStdString();
    }
  }
};

TEST_F(KilledTest, APairingIsThereWholeOrNotAtAll) {
  MakeSingles(9);
  ExpectWholeOrNothing(
      {BuiltProgram("tavrelinctl"), "pair", Copy(), "26-01-007", "A", "--pacer", "--rounds", "4"});
}

TEST_F(KilledTest, ARankingIsThereWholeOrNotAtAll) {
  MakeSingles(12);
  {
    Batch batch(connection_);
    for (int one = 1; one <= 12; ++one) {
      for (int two = one + 1; two <= 12; ++two) Store({one, two, {one, two}, {{one}, {two}}});
    }
  }
  ExpectWholeOrNothing(FaultBench::Worker("KilledChild.DISABLED_Rank"));
}

TEST_F(KilledTest, APairingOfTeamsIsThereWholeOrNotAtAll) {
  MakeDoubles(9);
  ExpectWholeOrNothing(
      {BuiltProgram("tavrelinctl"), "pair", Copy(), "26-01-007", "A", "--pacer", "--rounds", "4"});
}

TEST_F(KilledTest, ARankingOfTeamsIsThereWholeOrNotAtAll) {
  MakeDoubles(12);
  {
    Batch batch(connection_);
    for (int one = 1; one <= 12; ++one) {
      for (int two = one + 1; two <= 12; ++two) {
        StoreTeams({one, two, {one, two}, {{one, 1}, {two, 2}}});
      }
    }
  }
  ExpectWholeOrNothing(FaultBench::Worker("KilledChild.DISABLED_Rank"));
}

TEST_F(KilledTest, ASendToALeagueIsThereWholeOrNotAtAll) {
  MakeSingles(16);
  {
    Batch batch(connection_);
    connection_.Execute("INSERT INTO Leagues (SanctionID) VALUES ('2605001')");
    for (int one = 1; one <= 16; ++one) {
      for (int two = one + 1; two <= 16; ++two) Store({one, two, {one, two}, {{one}, {two}}});
    }
  }
  ExpectWholeOrNothing(FaultBench::Worker("KilledChild.DISABLED_Send"));
}

TEST_F(KilledTest, ASendToALeagueOnAFullDiskWritesNothing) {
  MakeSingles(4);
  Store({1, 2, {30, 24}});
  connection_.Execute("INSERT INTO Leagues (SanctionID) VALUES ('2605001')");
  connection_.Close();
  const QStringList before = Content(path_);
  FaultBench bench;
  bench.SetVariable(FileName, Copy());
  bench.SetVariable("ASAN_OPTIONS", "detect_leaks=0");
  int refused = 0;
  for (int at = 1;; ++at) {
    QFile::remove(Copy());
    ASSERT_TRUE(QFile::copy(path_, Copy()));
    const FaultBench::Outcome outcome =
        bench.FailFrom(at, "ENOSPC", FaultBench::Worker("KilledChild.DISABLED_Send"));
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    if (outcome.exitCode == 0) break;
    EXPECT_TRUE(Content(Copy()) == before) << at;
    ++refused;
  }
  EXPECT_TRUE(Content(Copy()) != before);
  EXPECT_GE(refused, 4);
}

TEST_F(KilledTest, PlacesSetByHandAreThereAllOfThemOrNone) {
  MakeSingles(12);
  RankTheClass(connection_, Rules());  // the ranking before it has nothing left to change
  ExpectWholeOrNothing(FaultBench::Worker("KilledChild.DISABLED_Override"));
}

}  // namespace
}  // namespace tavrelin
