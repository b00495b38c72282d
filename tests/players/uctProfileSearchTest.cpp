// Jumping to a player by typing, and the order of the roster.

#include <QTest>

#include "players/ProfileScreenTest.h"

namespace tavrelin {
namespace {

struct uctProfileSearchTest : ProfileScreenTest {};

TEST_F(uctProfileSearchTest, TypingSMOnTheRowSelectorJumpsToTheFirstSmith) {
  Add("SANABE", "Sandberg", "Abe");
  Add("SMIJOH", "Smith", "John");
  Add("SMIKAY", "Smith", "Kay");
  Add("AASALX", "Aas", "Al");
  Show();
  OnRowSelector("AASALX");
  bench.Type("s");
  EXPECT_EQ(CurrentPlayer(), "SANABE");
  bench.Type("m");
  EXPECT_EQ(CurrentPlayer(), "SMIJOH");
  EXPECT_EQ(Grid().Col(), -1);
}

TEST_F(uctProfileSearchTest, APauseRestartsTheSearchFromTheNewKey) {
  Add("SMIJOH", "Smith", "John");
  Add("MOEKAY", "Moe", "Kay");
  Show();
  OnRowSelector("MOEKAY");
  bench.Type("s");
  EXPECT_EQ(CurrentPlayer(), "SMIJOH");
  QTest::qWait(1700);
  bench.Type("m");
  EXPECT_EQ(CurrentPlayer(), "MOEKAY");
}

TEST_F(uctProfileSearchTest, ANameThatNobodyHasGoesToTheNextAndBehindTheLastNothingMoves) {
  Add("AASALX", "Aas", "Al");
  Add("SMIJOH", "Smith", "John");
  Show();
  OnRowSelector("AASALX");
  bench.Type("k");
  EXPECT_EQ(CurrentPlayer(), "SMIJOH");
  QTest::qWait(1700);
  bench.Type("z");
  EXPECT_EQ(CurrentPlayer(), "SMIJOH");
}

TEST_F(uctProfileSearchTest, TypedSearchByYearsGoesToTheFirstRowWithAtLeastThatNumber) {
  Add("AASALX", "Aas", "Al", {}, 30);
  Add("BERPIA", "Berg", "Pia", {}, 4);
  Add("SMIJOH", "Smith", "John", {}, 12);
  Show();
  Grid().on.ColumnHeaderClick("Longevity");
  OnRowSelector("BERPIA");
  bench.Type("5");
  EXPECT_EQ(CurrentPlayer(), "SMIJOH");
  bench.Type("x");
  EXPECT_EQ(CurrentPlayer(), "SMIJOH");
}

TEST_F(uctProfileSearchTest, InsideACellAKeyGoesToTheCell) {
  Add("AASALX", "Aas", "Al");
  Add("SMIJOH", "Smith", "John");
  Show();
  GoTo("AASALX");
  Grid().SetCol("City");
  bench.Type("s");
  EXPECT_EQ(CurrentPlayer(), "AASALX");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Stored("City", "AASALX"), Value("s"));
}

TEST_F(uctProfileSearchTest, AHeaderClickSortsUpAndTheNextOneDown) {
  Add("AASALX", "Aas", "Zoe", "20");
  Add("SMIJOH", "Smith", "Abe", "100");
  Show();
  Grid().on.ColumnHeaderClick("LastName");
  EXPECT_EQ(Grid().TextAt(1, "LastName"), "Smith") << "the roster opens in ascending order";
  Grid().on.ColumnHeaderClick("FirstName");
  EXPECT_EQ(Grid().TextAt(1, "FirstName"), "Abe");
  Grid().on.ColumnHeaderClick("FirstName");
  EXPECT_EQ(Grid().TextAt(1, "FirstName"), "Zoe");
  Grid().on.ColumnHeaderClick("CardNumber");
  EXPECT_EQ(Grid().TextAt(1, "CardNumber"), "20") << "cards sort as numbers";
}

}  // namespace
}  // namespace tavrelin
