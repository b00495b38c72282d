// What is left in the file when the program is killed, the disk fills up or fails, or the place can
// only be read.

#include <cstdio>

#include <QRegularExpression>

#include "support/ClubFixture.h"
#include "support/FaultBench.h"

namespace tavrelin {
namespace {

constexpr int SingleRows = 3;
constexpr int RowsInBatch = 400;

// The struck program: single rows, each acknowledged when it is on disk, then a batch.
TEST(FaultWorker, DISABLED_WritesRows) {
  Connection connection;
  try {
    connection.Open(QStringLiteral("DBQ=%1;").arg(qEnvironmentVariable("TAVRELIN_FAULT_FILE")));
    for (int row = 1; row <= SingleRows; ++row) {
      connection.Execute("INSERT INTO Games VALUES(?, 'single')", {Value(row)});
      std::printf("acknowledged %d\n", row);
      std::fflush(stdout);
    }
    {
      Batch batch(connection);
      const QString wide(200, u'x');
      for (int row = 1; row <= RowsInBatch; ++row) {
        connection.Execute("INSERT INTO Games VALUES(?, ?)", {Value(row), Value(wide)});
      }
      batch.Commit();
    }
    std::puts("acknowledged batch");
  } catch (const Error& error) {
    std::printf("refused: %s\n", error.what());
  }
}

// A program that goes on after the disk refused a row of its batch.
TEST(FaultWorker, DISABLED_GoesOnAfterARefusal) {
  Connection connection;
  connection.Open(QStringLiteral("DBQ=%1;").arg(qEnvironmentVariable("TAVRELIN_FAULT_FILE")));
  try {
    Batch batch(connection);
    const QString wide(200, u'x');
    for (int row = 1; row <= 20 * RowsInBatch; ++row) {
      try {
        connection.Execute("INSERT INTO Games VALUES(?, ?)", {Value(row), Value(wide)});
      } catch (const Error&) {
        continue;
      }
    }
    batch.Commit();
  } catch (const Error& error) {
    std::printf("refused: %s\n", error.what());
  }
}

struct FaultTest : ClubFixture {
  FaultTest() {
    Run("CREATE TABLE Games (ID INTEGER, Kind TEXT(255))");
    connection.Close();
    bench.SetVariable("TAVRELIN_FAULT_FILE", path);
  }
  void Refill() { Raw("DELETE FROM Games"); }
  // The file opens, is whole, and holds every acknowledged row and all of the batch or nothing.
  void CheckFile(const QString& output, int at) {
    connection.Open(ConnectText());
    const qint64 singles = Ask("SELECT COUNT(*) FROM Games WHERE Kind = 'single'").ToWhole();
    const qint64 batch = Ask("SELECT COUNT(*) FROM Games WHERE Kind <> 'single'").ToWhole();
    connection.Close();
    EXPECT_EQ(Raw("PRAGMA integrity_check"), "ok") << at;
    EXPECT_GE(singles, output.count(QRegularExpression("acknowledged \\d"))) << at;
    EXPECT_TRUE(batch == 0 || batch == RowsInBatch) << at << ": " << batch;
    if (output.contains("acknowledged batch")) {
      EXPECT_EQ(batch, RowsInBatch) << at;
    }
  }

  FaultBench bench;
  const QStringList worker = FaultBench::Worker("FaultWorker.DISABLED_WritesRows");
};

TEST_F(FaultTest, KilledAtAnyWriteNothingAcknowledgedIsLost) {
  int strikes = 0;
  for (int at = 1; at < 400; at += at < 24 ? 1 : 13) {
    Refill();
    const FaultBench::Outcome outcome = bench.KillAt(at, worker);
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    CheckFile(outcome.output, at);
    if (!outcome.killed) break;
    ++strikes;
  }
  EXPECT_GT(strikes, 15);
}

TEST_F(FaultTest, KilledWhileAJournalIsRemovedNothingAcknowledgedIsLost) {
  for (int at = 1; at <= SingleRows + 1; ++at) {
    Refill();
    const FaultBench::Outcome outcome = bench.KillAt(at, worker, "unlink");
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    EXPECT_TRUE(outcome.killed) << at;
    CheckFile(outcome.output, at);
  }
}

TEST_F(FaultTest, AFullDiskIsToldAndTheFileStaysWhole) {
  for (const int at : {1, 4, 9, 20}) {
    Refill();
    const FaultBench::Outcome outcome = bench.FailFrom(at, "ENOSPC", worker);
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    EXPECT_TRUE(outcome.output.contains("refused: The disk is full"))
        << outcome.output.toStdString();
    CheckFile(outcome.output, at);
  }
}

TEST_F(FaultTest, ABatchThatLostItsTransactionWritesNothingMore) {
  const QStringList command = FaultBench::Worker("FaultWorker.DISABLED_GoesOnAfterARefusal");
  const FaultBench::Outcome outcome = bench.FailFrom(4, "ENOSPC", command);
  if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
  EXPECT_TRUE(outcome.output.contains("refused: ")) << outcome.output.toStdString();
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Games"), "0");
}

TEST_F(FaultTest, AFailingDiskIsToldAndTheFileStaysWhole) {
  for (const int at : {1, 3}) {
    Refill();
    const FaultBench::Outcome outcome = bench.FailFrom(at, "EIO", worker, "fdatasync");
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    EXPECT_TRUE(outcome.output.contains("refused: The disk failed"))
        << outcome.output.toStdString();
    CheckFile(outcome.output, at);
  }
}

TEST_F(FaultTest, AReadOnlyPlaceIsTold) {
  const FaultBench::Outcome outcome = bench.WithReadOnly(folder.path(), worker);
  if (!outcome.ran) GTEST_SKIP() << "mounting is not allowed here";
  EXPECT_TRUE(outcome.output.contains("can only be read")) << outcome.output.toStdString();
  CheckFile(outcome.output, 0);
}

TEST_F(FaultTest, ALockLeftByAKilledProgramDoesNotBlockTheNext) {
  const FaultBench::Outcome outcome = bench.KillAt(1, worker);
  if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
  EXPECT_TRUE(outcome.killed);
  EXPECT_TRUE(QFile::exists(path + ".lock"));
  connection.Open(ConnectText());
}

}  // namespace
}  // namespace tavrelin
