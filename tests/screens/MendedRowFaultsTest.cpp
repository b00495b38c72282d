// A row that is in the file already and is mended on a disk that fails: the file holds the old row
// or the new one, whole, and all that stood beside it.

#include <gtest/gtest.h>

#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "screens/StruckClub.h"
#include "support/PlainDatabase.h"

namespace tavrelin {
namespace {

using Cells = QList<QPair<QString, QString>>;

struct MendedRowChild : StruckChild {
  /// Types into cells of the first row and goes on to the second; once more when the disk would
  /// not have it, without typing anything again.
  void Mend(GridEX& grid, const Cells& cells) {
    ASSERT_TRUE(grid.SetRow(1));
    for (const auto& [column, text] : cells) {
      grid.SetCol(column);
      bench.Type(text);
    }
    bench.Press(Qt::Key_Down);
    if (bench.errors.Count() > 0) TryAgain(grid, cells);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_FALSE(grid.DataChanged());
  }
  void TryAgain(GridEX& grid, const Cells& cells) {
    EXPECT_EQ(bench.errors.Take().description,
              "The disk is full, and nothing was written. Make room on it and try again.");
    std::puts("refused");
    EXPECT_EQ(grid.Row(), 1) << "the row waits";
    for (const auto& [column, text] : cells) EXPECT_EQ(grid.Value(column).ToText(), text);
    bench.Press(Qt::Key_Down);
  }
};

TEST_F(MendedRowChild, DISABLED_MendsAPlayer) {
  bench.Show<uctProfile>();
  Mend(Grid("grdProfile"), {{"FirstName", "Karin"}, {"AddressOne", "9 Elm St"}, {"City", "Ely"}});
}

TEST_F(MendedRowChild, DISABLED_MendsAScore) {
  bench.Show<uctScores>();
  Enter("GridEX1");
  bench.Focus("GridEX2");
  Mend(Grid("GridEX2"), {{"Shoes", "150"}, {"Ringers", "75"}, {"HiGame", "62.5"}});
}

struct MendedRow {
  const char* worker;
  const char* query;  ///< of the row that is mended
  QString before, after;
};

void PrintTo(const MendedRow& row, std::ostream* out) {
  *out << row.worker;
}

class MendedRowFaults : public testing::TestWithParam<MendedRow> {
 protected:
  void SetUp() override {
    Connection file;
    file.Open(ConnectString);
    file.Execute("UPDATE Players SET State = 'MN'");
    for (const char* id : {"MN24A01", "MN24B02"}) {
      file.Execute(
          "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category, Wins, Losses, "
          "Place, HiGame) VALUES (?, 'OLSKAR', 100, 30, 'AW', 5.5, 2, 1, 48.5)",
          {id});
    }
  }
  static QString RowOf(const QString& path) {
    return PlainDatabase(path).Rows(GetParam().query).value(0).join(u' ');
  }
  /// Lines of the whole file that are not as they were.
  qsizetype LinesChanged() const {
    const QStringList before = PlainDatabase(club_.clubs.ClubFile()).Content();
    const QStringList after = PlainDatabase(club_.copy).Content();
    EXPECT_EQ(before.size(), after.size());
    qsizetype changed = 0;
    for (const QString& line : before) changed += !after.contains(line);
    return changed;
  }
  /// The program opens the file first, as a person would: that ends what the kill left undone.
  void ExpectWhole(const std::string& at) {
    Connection().Open("DBQ=" + club_.copy);
    EXPECT_EQ(PlainDatabase(club_.copy).Cell("PRAGMA integrity_check"), "ok") << at;
    const QString row = RowOf(club_.copy);
    EXPECT_TRUE(row == GetParam().before || row == GetParam().after) << at << row.toStdString();
    EXPECT_EQ(LinesChanged(), row == GetParam().before ? 0 : 1) << at;
  }
  QStringList Worker() const {
    return FaultBench::Worker(QStringLiteral("MendedRowChild.DISABLED_") + GetParam().worker);
  }
  /// Kills the worker at each of his calls in turn; how often that was, and the row was the old.
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

  StruckClub club_;
};

TEST_P(MendedRowFaults, KilledAtAnyStepTheFileHoldsTheOldRowOrTheNewOne) {
  ASSERT_EQ(RowOf(club_.clubs.ClubFile()), GetParam().before);
  for (const QString call : {"pwrite64", "fdatasync", "unlink"}) {
    const int old = KillAtEvery(call);
    if (old < 0) GTEST_SKIP() << "strace is not allowed here";
    EXPECT_GE(old, call == u"pwrite64" ? 3 : 1) << call.toStdString();
  }
}

TEST_P(MendedRowFaults, AFullDiskIsToldTheInputStaysAndTheNextTrySavesIt) {
  int refusals = 0;
  for (int write = 1; write <= 4; ++write) {
    club_.FreshCopy();
    const FaultBench::Outcome outcome = club_.fault.FailAt(write, "ENOSPC", Worker());
    if (!outcome.ran) GTEST_SKIP() << "strace is not allowed here";
    EXPECT_EQ(outcome.exitCode, 0) << "write " << write << ": " << outcome.output.toStdString();
    ExpectWhole("write " + std::to_string(write));
    EXPECT_EQ(RowOf(club_.copy), GetParam().after) << "write " << write;
    refusals += outcome.output.contains("refused");
  }
  EXPECT_GE(refusals, 3);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MendedRowFaults,
    testing::Values(
        MendedRow{"MendsAPlayer",
                  "SELECT FirstName, LastName, AddressOne, City FROM Players WHERE PlayerID = "
                  "'OLSKAR'",
                  "Karen Olson (null) (null)", "Karin Olson 9 Elm St Ely"},
        MendedRow{"MendsAScore",
                  "SELECT Shoes, Ringers, Wins, HiGame FROM PlayerScores WHERE PlayerID = 'OLSKAR' "
                  "AND SanctionID = 'MN24A01'",
                  "100 30 5.5 48.5", "150 75 5.5 62.5"}),
    [](const auto& test) { return std::string(test.param.worker); });

}  // namespace
}  // namespace tavrelin
