// A row that is in the file already and is mended on a disk that fails: the file holds the old row
// or the new one, whole, and all that stood beside it.

#include <gtest/gtest.h>

#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "screens/RowFaults.h"

namespace tavrelin {
namespace {

struct MendedRowChild : RowFaultsChild {
  /// Types into cells of the first row and goes on to the second; once more when the disk would
  /// not have it, without typing anything again.
  void Mend(GridEX& grid, const Cells& cells) {
    ASSERT_TRUE(grid.SetRow(1));
    for (const auto& [column, text] : cells) {
      grid.SetCol(column);
      bench.Type(text);
    }
    bench.Press(Qt::Key_Down);
    if (bench.errors.Count() > 0) {
      ExpectWaiting(grid, 1, cells);
      bench.Press(Qt::Key_Down);
    }
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_FALSE(grid.DataChanged());
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
  Mend(Grid("GridEX2"), {{"Shoes", "150"}, {"Ringers", "75"}, {"HiGame", "62.50"}});
}

class MendedRowFaults : public RowFaults {
 protected:
  MendedRowFaults() : RowFaults("MendedRowChild") {
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
};

TEST_P(MendedRowFaults, KilledAtAnyStepTheFileHoldsTheOldRowOrTheNewOne) {
  ExpectOldOrNewWhenKilled({"pwrite64", "fdatasync", "unlink"});
}

TEST_P(MendedRowFaults, AFullDiskIsToldTheInputStaysAndTheNextTrySavesIt) {
  ExpectToldAndSavedAtTheNextTry();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MendedRowFaults,
    testing::Values(
        RowWork{"MendsAPlayer",
                "SELECT FirstName, LastName, AddressOne, City FROM Players WHERE PlayerID = "
                "'OLSKAR'",
                "Karen Olson (null) (null)", "Karin Olson 9 Elm St Ely"},
        RowWork{"MendsAScore",
                "SELECT Shoes, Ringers, Wins, HiGame FROM PlayerScores WHERE PlayerID = 'OLSKAR' "
                "AND SanctionID = 'MN24A01'",
                "100 30 5.5 48.5", "150 75 5.5 62.5"}),
    NameOf);

}  // namespace
}  // namespace tavrelin
