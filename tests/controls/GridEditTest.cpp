#include "controls/GridBench.h"

namespace tavrelin {
namespace {

struct GridEditTest : testing::Test {
  GridBench bench;
  GridEX& grid = *bench.grid;
};

TEST_F(GridEditTest, BindingShowsTheRowsAndStandsOnTheRowSelectorOfTheFirst) {
  EXPECT_EQ(grid.RowCount(), 5);
  EXPECT_EQ(bench.Place(), "1,-1");
  EXPECT_EQ(grid.TextAt(2, "Average"), "33.34");
  EXPECT_EQ(grid.TextAt(2, "MembershipType"), "Provisional");
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
  bench.Shot("grid-table");
}

TEST_F(GridEditTest, TypingReplacesTheCellAndLeavingTheRowSavesIt) {
  grid.SetRow(3);
  grid.SetCol("LastName");
  bench.Type("Clay");
  EXPECT_TRUE(grid.IsEditing());
  EXPECT_EQ(bench.Editor(), "Clay");
  EXPECT_EQ(bench.Stored(3, "LastName"), "Clark");
  bench.Shot("grid-editing");
  bench.Press(Qt::Key_Tab);
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(grid.Value("LastName"), Value("Clay"));
  EXPECT_EQ(bench.Stored(3, "LastName"), "Clark");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Stored(3, "LastName"), "Clay");
  EXPECT_EQ(bench.Place(), "4,4");
}

TEST_F(GridEditTest, EscUndoesTheCellThenTheRow) {
  grid.SetCol("FirstName");
  bench.Type("Eve");
  bench.Press(Qt::Key_Tab);
  bench.Type("Zed");
  bench.Press(Qt::Key_Escape);
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
  EXPECT_EQ(grid.Value("FirstName"), Value("Eve"));
  EXPECT_TRUE(grid.DataChanged());
  bench.Press(Qt::Key_Escape);
  EXPECT_EQ(grid.Value("FirstName"), Value("Ann"));
  EXPECT_FALSE(grid.DataChanged());
}

}  // namespace
}  // namespace tavrelin
