// What is left of a league when the writing of a game, of a team's entry, of an archive or of a
// deletion is struck.

#include <cstdio>

#include <QDir>
#include <QFile>

#include "basic/Error.h"
#include "data/Backup.h"
#include "leagues/LeagueArchive.h"
#include "leagues/LeagueBench.h"
#include "leagues/LeagueDeletion.h"
#include "leagues/LeagueGames.h"
#include "leagues/LeagueRoster.h"
#include "support/FaultBench.h"
#include "support/PlainDatabase.h"

namespace tavrelin {
namespace {

constexpr const char* FileName = "TAVRELIN_LEAGUE_FILE";
const QString Struck = "2605001";
const QDateTime Noon(QDate(2026, 9, 1), QTime(12, 0, 5));

template <class Work>
void Tell(const Work& work) {
  try {
    Connection connection;
    connection.Open("DBQ=" + qEnvironmentVariable(FileName));
    work(connection);
    std::puts("done");
  } catch (const Error& error) {
    std::printf("refused: %s\n", error.what());
  }
}

TEST(LeagueWorker, DISABLED_SavesAGame) {
  Tell([](Connection& connection) {
    Recordset games = OpenLeagueGames(connection, Struck, "A1");
    games.AddNew();
    games.Set("SanctionID", Struck);
    games.Set("PlayerID", "A1");
    games.Set("Date", QDate(2026, 4, 14));
    for (const char* figure : {"Shoes", "Points", "Ringers"}) games.Set(figure, 10);
    games.Set("WinLoss", "W");
    games.Update();
  });
}

TEST(LeagueWorker, DISABLED_AddsATeam) {
  Tell([](Connection& connection) { (void)AddLeagueTeam(connection, Struck, 1); });
}

TEST(LeagueWorker, DISABLED_Archives) {
  Tell([](Connection& connection) {
    const League league = FindLeague(connection, Struck).value();
    (void)ArchiveLeague(connection, LoadStats(connection, league, {}), Noon);
  });
}

TEST(LeagueWorker, DISABLED_Deletes) {
  Tell([](Connection& connection) {
    Recordset leagues = OpenLeagues(connection);
    (void)DeleteLeague(connection, leagues, Holdings::GoAlong, Noon);
  });
}

/// A league with enough games to fill several pages, and a team that is not in it yet.
class LeagueFaultTest : public LeagueBench {
 protected:
  void SetUp() override {
    {
      Batch batch(connection_);
      QStringList players;
      for (int i = 0; i < 40; ++i) {
        AddMember(QString("A%1").arg(i));
        players << QString("B%1").arg(i);
        for (int game = 0; game < 15; ++game) {
          AddGame(QString("A%1").arg(i), {.points = 40 + game, .ringers = 10});
        }
      }
      AddTeam("Riders", players);
    }
    connection_.Close();
    before_ = PlainDatabase(path_).Content();
    bench_.SetVariable(FileName, Copy());
    bench_.SetVariable("ASAN_OPTIONS", "detect_leaks=0");  // it cannot look under strace
  }

  QString Copy() const { return folder_.filePath("struck/Club.mdb"); }

  void StartAnew() const {
    QDir(folder_.filePath("struck")).removeRecursively();
    QDir(folder_.path()).mkdir("struck");
    ASSERT_TRUE(QFile::copy(path_, Copy()));
  }

  /// A deed that begins with a backup has all of it before anything else is written.
  void ExpectBackupOfWhatWas() const {
    const QList<ClubBackup> backups = BackupsOf(Copy());
    ASSERT_EQ(backups.size(), 1);
    EXPECT_TRUE(PlainDatabase(backups[0].path).Content() == before_);
  }

  /// The file holds all of the deed or nothing; what was told is true.
  void CheckLeft(const QStringList& after, bool backsUp, const FaultBench::Outcome& outcome) const {
    const QStringList left = PlainDatabase(Copy()).Content();
    EXPECT_TRUE(left == before_ || left == after);
    if (outcome.output.contains("done")) {
      EXPECT_TRUE(left == after);
    }
    if (left == after && backsUp) ExpectBackupOfWhatWas();
  }

  /// Strikes the worker at every one of these calls in turn; within the making of a backup, which
  /// has a test of its own, at every eleventh. Returns how often he was struck.
  template <class Strike>
  int StrikeAtEvery(const QStringList& worker, bool backsUp, const QStringList& after,
                    const Strike& strike) {
    int strikes = 0;
    int step = backsUp ? 11 : 1;
    for (int at = 1;; at += step) {
      StartAnew();
      const FaultBench::Outcome outcome = strike(at, worker);
      CheckLeft(after, backsUp, outcome);
      if (step > 1 && !BackupsOf(Copy()).isEmpty()) {
        at = std::max(0, at - step);
        step = 1;
        continue;
      }
      if (!outcome.killed && outcome.output.contains("done")) return strikes;
      ++strikes;
    }
  }

  void ExpectWholeOrNothing(const char* test, bool backsUp) {
    const QStringList worker = FaultBench::Worker(test);
    StartAnew();
    const FaultBench::Outcome unharmed = bench_.FailAt(60000, "ENOSPC", worker);
    if (!unharmed.ran) GTEST_SKIP() << "strace is not allowed here";
    ASSERT_TRUE(unharmed.output.contains("done")) << unharmed.output.toStdString();
    const QStringList after = PlainDatabase(Copy()).Content();
    ASSERT_TRUE(after != before_);
    for (const QString call : {"pwrite64", "fdatasync"}) {
      const int killed = StrikeAtEvery(worker, backsUp, after, [&](int at, const QStringList& who) {
        return bench_.KillAt(at, who, call);
      });
      EXPECT_GE(killed, call == u"pwrite64" ? 4 : 2) << call.toStdString();
      const int failed = StrikeAtEvery(worker, backsUp, after, [&](int at, const QStringList& who) {
        return bench_.FailFrom(at, call == u"pwrite64" ? "ENOSPC" : "EIO", who, call);
      });
      EXPECT_GE(failed, call == u"pwrite64" ? 4 : 2) << call.toStdString();
    }
  }

  QStringList before_;
  FaultBench bench_;
};

TEST_F(LeagueFaultTest, AGameIsThereWholeOrNotAtAll) {
  ExpectWholeOrNothing("LeagueWorker.DISABLED_SavesAGame", false);
}

TEST_F(LeagueFaultTest, ATeamIsThereWithAllItsPlayersOrNotAtAll) {
  ExpectWholeOrNothing("LeagueWorker.DISABLED_AddsATeam", false);
}

TEST_F(LeagueFaultTest, AnArchiveIsThereWholeOrNotAtAllAndNeverWithoutItsBackup) {
  ExpectWholeOrNothing("LeagueWorker.DISABLED_Archives", true);
}

TEST_F(LeagueFaultTest, ADeletionIsThereWholeOrNotAtAllAndNeverWithoutItsBackup) {
  ExpectWholeOrNothing("LeagueWorker.DISABLED_Deletes", true);
}

}  // namespace
}  // namespace tavrelin
