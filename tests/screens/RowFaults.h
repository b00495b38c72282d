#pragma once

#include "screens/StruckClub.h"
#include "support/PlainDatabase.h"

namespace tavrelin {

/// The struck process of a row that is typed or mended.
struct RowFaultsChild : StruckChild {
  using Cells = QList<QPair<QString, QString>>;

  /// Types into cells of a row (-1 the new one, 1 the first) and leaves it; once more when the disk
  /// would not have it, without typing anything again.
  void Type(GridEX& grid, int row, const Cells& cells) {
    ASSERT_TRUE(grid.SetRow(row));
    for (const auto& [column, text] : cells) {
      grid.SetCol(column);
      bench.Type(text);
    }
    grid.CommitRow();
    if (bench.errors.Count() > 0) {
      ExpectWaiting(grid, row, cells);
      EXPECT_TRUE(grid.CommitRow());
    }
    EXPECT_EQ(bench.Message(), "");
    EXPECT_FALSE(grid.DataChanged());
  }
  /// The full disk was told, and the row can be saved as it stands.
  void ExpectWaiting(GridEX& grid, int row, const Cells& cells) {
    TakeFullDisk();
    EXPECT_EQ(grid.Row(), row) << "the row waits";
    for (const auto& [column, text] : cells)
      EXPECT_EQ(grid.TextAt(row, column), text) << column.toStdString();
  }
  void TakeFullDisk() {
    EXPECT_EQ(bench.errors.Take().description,
              "The disk is full, and nothing was written. Make room on it and try again.");
    std::puts("refused");
  }
};

/// What a struck process writes: its test, and the row as it was and as it is to be.
struct RowWork {
  const char* worker;
  const char* query;  ///< of the row
  QString before, after;
  int lines = 1;  ///< of the file that are written
};

inline void PrintTo(const RowWork& work, std::ostream* out) {
  *out << work.worker;
}

inline std::string NameOf(const testing::TestParamInfo<RowWork>& info) {
  return info.param.worker;
}

/// Strikes a process at each of its steps: the file holds the row as it was or as it is to be,
/// whole, and all that stood beside it.
class RowFaults : public testing::TestWithParam<RowWork> {
 protected:
  /// The suite of the workers.
  explicit RowFaults(const char* child) : child_(child) {}

  void ExpectOldOrNewWhenKilled(const QStringList& calls) {
    ASSERT_EQ(RowOf(club_.clubs.ClubFile()), GetParam().before);
    for (const QString& call : calls) {
      const int old = KillAtEvery(call);
      if (old < 0) GTEST_SKIP() << "strace is not allowed here";
      EXPECT_GE(old, call == u"pwrite64" ? 3 : 1) << call.toStdString();
    }
  }
  /// `oneRow`: a row of the file is all that the worker writes.
  void ExpectToldAndSavedAtTheNextTry(bool oneRow = true) {
    int refusals = 0;
    for (int write = 1; write <= 4; ++write) {
      club_.FreshCopy();
      const FaultBench::Outcome outcome = club_.fault.FailAt(write, "ENOSPC", Worker());
      if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
      EXPECT_EQ(outcome.exitCode, 0) << "write " << write << ": " << outcome.output.toStdString();
      if (oneRow) ExpectWhole("write " + std::to_string(write));
      EXPECT_EQ(RowOf(club_.copy), GetParam().after) << "write " << write;
      refusals += outcome.output.contains("refused");
    }
    EXPECT_GE(refusals, 3);
  }

  StruckClub club_;

 private:
  static QString RowOf(const QString& path) {
    return PlainDatabase(path).Rows(GetParam().query).value(0).join(u' ');
  }
  /// Lines of one file that the other does not hold.
  static qsizetype LinesOnlyIn(const QString& path, const QString& other) {
    const QStringList others = PlainDatabase(other).Content();
    qsizetype lines = 0;
    for (const QString& line : PlainDatabase(path).Content()) lines += !others.contains(line);
    return lines;
  }
  /// The program opens the file first, as a person would: that ends what the kill left undone.
  void ExpectWhole(const std::string& at) {
    Connection().Open("DBQ=" + club_.copy);
    EXPECT_EQ(PlainDatabase(club_.copy).Cell("PRAGMA integrity_check"), "ok") << at;
    const QString row = RowOf(club_.copy);
    const bool old = row == GetParam().before;
    EXPECT_TRUE(old || row == GetParam().after) << at << ": " << row.toStdString();
    EXPECT_EQ(LinesOnlyIn(club_.copy, club_.clubs.ClubFile()), old ? 0 : GetParam().lines) << at;
    const bool mended = !old && !GetParam().before.isEmpty();
    EXPECT_EQ(LinesOnlyIn(club_.clubs.ClubFile(), club_.copy), mended ? GetParam().lines : 0) << at;
  }
  QStringList Worker() const {
    return FaultBench::Worker(child_ + QStringLiteral(".DISABLED_") + GetParam().worker);
  }
  /// How often the worker was killed and the row was the old; -1 where that is not allowed.
  int KillAtEvery(const QString& call) {
    int old = 0;
    for (int at = 1; at < 60; ++at) {
      club_.FreshCopy();
      const FaultBench::Outcome outcome = club_.fault.KillAt(at, Worker(), call);
      if (!outcome.ran) return -1;
      ExpectWhole(call.toStdString() + ' ' + std::to_string(at));
      old += RowOf(club_.copy) == GetParam().before;
      if (outcome.killed) continue;
      EXPECT_EQ(outcome.exitCode, 0) << outcome.output.toStdString();
      EXPECT_EQ(RowOf(club_.copy), GetParam().after) << "nobody struck";
      return old;
    }
    ADD_FAILURE() << "the worker never came to his end";
    return old;
  }

  QString child_;
};

}  // namespace tavrelin
