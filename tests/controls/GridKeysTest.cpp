#include "controls/GridBench.h"
#include "controls/TypedSearch.h"

namespace tavrelin {
namespace {

struct GridKeysTest : testing::Test {
  GridBench bench;
  GridEX& grid = *bench.grid;

  struct Step {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* place;
  };
  void Walk(const QList<Step>& steps) {
    int number = 0;
    for (const Step& step : steps) {
      bench.Press(step.key, step.modifiers);
      EXPECT_EQ(bench.Place(), step.place) << "step " << ++number;
    }
  }
};

// Columns on the screen: 2 First, 3 Last, 4 Type, 5 Card, 6 Birth Date, 7 Rgr %, 8 Active.
TEST_F(GridKeysTest, EveryPlaceOfTheGridIsReachedByTheKeyboard) {
  grid.SetSelectable("LastName", false);
  Walk({{Qt::Key_Right, {}, "1,2"},
        {Qt::Key_Right, {}, "1,4"},
        {Qt::Key_Left, {}, "1,2"},
        {Qt::Key_Left, {}, "1,-1"},
        {Qt::Key_Left, {}, "1,-1"},
        {Qt::Key_Tab, {}, "1,2"},
        {Qt::Key_End, {}, "1,8"},
        {Qt::Key_Home, {}, "1,2"},
        {Qt::Key_End, Qt::ControlModifier, "5,2"},
        {Qt::Key_Down, {}, "5,2"},
        {Qt::Key_Home, Qt::ControlModifier, "1,2"},
        {Qt::Key_Up, {}, "-1,2"},
        {Qt::Key_PageDown, {}, "5,2"},
        {Qt::Key_PageUp, {}, "-1,2"},
        {Qt::Key_Down, {}, "1,2"},
        {Qt::Key_Tab, Qt::ShiftModifier, "-1,8"},
        {Qt::Key_Tab, {}, "1,2"},
        {Qt::Key_Return, {}, "2,2"},
        {Qt::Key_Insert, {}, "-1,2"}});
}

TEST_F(GridKeysTest, TabGoesFromRowToRowAndOutBehindTheLastCell) {
  grid.SetRow(5);
  grid.SetCol("Active");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), bench.after);
  bench.after->setFocus();
  bench.Press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(grid.isAncestorOf(QApplication::focusWidget()));
  grid.SetRow(-1);
  grid.SetCol(2);
  bench.Press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), bench.before);
}

TEST_F(GridKeysTest, ControlTabLeavesFromAnywhere) {
  grid.SetCol(2);
  bench.Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), bench.after);
}

TEST_F(GridKeysTest, TabOutOfATypedNewRowSavesItAndStartsTheNext) {
  grid.MoveToNewRow();
  grid.SetCol("Average");
  bench.Type("50");
  bench.Press(Qt::Key_Tab);
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(grid.RowCount(), 6);
  EXPECT_EQ(bench.Place(), "-1,2");
  EXPECT_FALSE(grid.DataChanged());
}

TEST_F(GridKeysTest, TabLeavesAListAtOnceAndItsRowIsTheCursor) {
  grid.SetRowMode(true);
  grid.SetAllowEdit(false);
  grid.SetAllowAddNew(false);
  Walk({{Qt::Key_Down, {}, "2,-1"},
        {Qt::Key_Right, {}, "2,-1"},
        {Qt::Key_End, {}, "5,-1"},
        {Qt::Key_Home, {}, "1,-1"}});
  EXPECT_TRUE(grid.SetCol(3));
  EXPECT_EQ(grid.Col(), -1);
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), bench.after);
}

TEST_F(GridKeysTest, KeyDownComesFirstAndMaySwallow) {
  QStringList keys;
  grid.on.KeyDown = [&](GridKeyDown& event) {
    keys.append(QString("%1/%2").arg(event.key).arg(event.modifiers.toInt()));
    event.swallow = event.key == Qt::Key_Down;
  };
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(grid.Row(), 1);
  bench.Press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(keys,
            QStringList({QString("%1/0").arg(int(Qt::Key_Down)),
                         QString("%1/%2").arg(int(Qt::Key_Tab)).arg(int(Qt::ShiftModifier))}));
}

TEST_F(GridKeysTest, EnterInACellArrivesOnceTheCellIsTakenOver) {
  QStringList seen;
  grid.on.KeyDown = [&](GridKeyDown& event) {
    if (event.key == Qt::Key_Return) seen.append(grid.Value("LastName").ToText());
  };
  grid.SetCol("LastName");
  bench.Type("New");
  bench.Press(Qt::Key_Enter);
  EXPECT_EQ(seen, QStringList{"New"});
  EXPECT_EQ(bench.Place(), "2,3");
}

TEST_F(GridKeysTest, ADoubleClickGoesToTheScreenOrOpensTheCell) {
  auto* view = bench.window.findChild<QAbstractItemView*>("GridEX1_Table");
  const QPoint cell = view->visualRect(view->model()->index(3, 3)).center();
  int clicks = 0;
  grid.on.DblClick = [&] { ++clicks; };
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell);
  EXPECT_EQ(bench.Place(), "3,3");
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(grid.IsEditing());
  grid.on.DblClick = {};
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell);
  EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GridKeysTest, AClickBesideTheCellsOfARowOrOnAnUnselectableOneTakesTheRow) {
  grid.SetSelectable("FirstName", false);
  auto* view = bench.window.findChild<QAbstractItemView*>("GridEX1_Table");
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(2, 2)).center());
  EXPECT_EQ(bench.Place(), "2,-1");
}

TEST_F(GridKeysTest, ADeleteColumnDeletesItsRowByClickAndKey) {
  QList<GridColumn> columns = PlayerColumns();
  columns.append({.caption = "Del", .key = "Delete", .editor = CellEditor::Delete});
  grid.SetColumns(columns);
  grid.SetRecordset(&bench.rows);
  auto* view = bench.window.findChild<QAbstractItemView*>("GridEX1_Table");
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(2, 9)).center());
  EXPECT_EQ(bench.Column("LastName"), "Adams Clark Smith Snow");
  grid.SetRow(3);
  grid.SetCol("Delete");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.Column("LastName"), "Adams Clark Snow");
}

struct TypedSearchTest : GridKeysTest {
  TypedSearch search{grid, 60,
                     [](const QString& typed) { return TypedSearch::ByStart("LastName", typed); }};

  TypedSearchTest() {
    grid.SetSortKeys({{"LastName"}});
    grid.on.KeyDown = [this](GridKeyDown& event) { search.KeyDown(event); };
  }
};

TEST_F(TypedSearchTest, TypingJumpsToTheFirstNameThatBeginsSoAndAPauseStartsAnew) {
  bench.Type("sn");
  EXPECT_EQ(grid.Value("LastName"), Value("Snow"));
  EXPECT_EQ(search.Buffer(), "SN");
  QTest::qWait(120);
  EXPECT_EQ(search.Buffer(), "");
  bench.Type("b");
  EXPECT_EQ(grid.Value("LastName"), Value("Baker"));
}

TEST_F(TypedSearchTest, WhereNoNameBeginsSoTheNextOneIsTaken) {
  bench.Type("bz");
  EXPECT_EQ(grid.Value("LastName"), Value("Clark"));
}

TEST_F(TypedSearchTest, BehindTheLastNameNothingMovesUnlessTheLastRowIsWanted) {
  grid.SetRow(2);
  bench.Type("z");
  EXPECT_EQ(grid.Row(), 2);
  search.Clear();
  search.SetElseLast(true);
  bench.Type("z");
  EXPECT_EQ(grid.Row(), 5);
}

TEST_F(TypedSearchTest, InsideACellTheKeyGoesToTheCell) {
  grid.SetCol("FirstName");
  bench.Type("s");
  EXPECT_EQ(bench.Editor(), "s");
  EXPECT_EQ(search.Buffer(), "");
  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(TypedSearchTest, ANumberGoesToTheFirstRowWithAtLeastThatMuch) {
  TypedSearch numbers(grid, 60,
                      [](const QString& typed) { return TypedSearch::ByNumber("Average", typed); });
  grid.on.KeyDown = [&](GridKeyDown& event) { numbers.KeyDown(event); };
  grid.SetSortKeys({{"Average"}});
  bench.Type("45");
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
  bench.Type("9");
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
}

TEST_F(TypedSearchTest, DigitsCanBeLeftOutOfTheSearch) {
  search.SetDigits(false);
  bench.Type("1");
  EXPECT_EQ(search.Buffer(), "");
}

TEST_F(TypedSearchTest, ARowAddedSinceIsFound) {
  bench.Type("b");
  grid.MoveToNewRow();
  grid.SetCol("LastName");
  bench.Type("Bill");
  bench.Press(Qt::Key_Return);
  grid.SetRow(1);
  grid.ClearCol();
  search.Clear();
  bench.Type("bi");
  EXPECT_EQ(grid.Value("LastName"), Value("Bill"));
}

}  // namespace
}  // namespace tavrelin
