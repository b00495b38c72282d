#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>

#include "basic/Error.h"
#include "controls/GridBench.h"
#include "controls/RowMap.h"
#include "controls/TypedSearch.h"

namespace tavrelin {
namespace {

TEST(RowMapTest, PlainRowsFollowTheNewRecordRow) {
  RowMap map;
  map.Reset(true, 3);
  EXPECT_EQ(map.Lines(), 4);
  EXPECT_EQ(map.RowAt(0), -1);
  EXPECT_EQ(map.RowAt(3), 3);
  EXPECT_EQ(map.RowAt(4), 0);
  EXPECT_EQ(map.LineOfRow(-1), 0);
  EXPECT_EQ(map.LineOfRow(4), -1);
  map.Reset(false, 3);
  EXPECT_EQ(map.LineOfRow(-1), -1);
  EXPECT_EQ(map.LineOfRow(1), 0);
}

TEST(RowMapTest, HeadingsPushTheRowsDown) {
  RowMap map;
  map.Reset(true, 4, {3, 1, 4, 2});
  map.AddHeading(1, "A");
  map.AddHeading(1, "A1");
  map.AddHeading(3, "B");
  // 0 new, 1 A, 2 A1, 3 row 1, 4 row 2, 5 B, 6 row 3, 7 row 4
  EXPECT_EQ(map.Lines(), 8);
  const int rows[] = {-1, 0, 0, 1, 2, 0, 3, 4};
  for (int line = 0; line < 8; ++line) {
    EXPECT_EQ(map.RowAt(line), rows[line]) << line;
    if (rows[line] == 0) continue;
    EXPECT_EQ(map.LineOfRow(rows[line]), line);
  }
  EXPECT_EQ(map.HeadingAt(5), "B");
  EXPECT_EQ(map.HeadingAt(4), "");
  EXPECT_EQ(map.PositionOfRow(2), 1);
  EXPECT_EQ(map.RowOfPosition(2), 4);
}

TEST(ValueListTest, CodesAndTextsAreFoundWithoutRegardToCaseAndBlanks) {
  const ValueList list{{"AM", "Men"}, {7, "Seven"}, {"am", "again"}};
  EXPECT_EQ(list.IndexOf(" am "), 0);
  EXPECT_EQ(list.IndexOf("7"), 1);
  EXPECT_EQ(list.IndexOf(Value()), -1);
  EXPECT_EQ(list.IndexOfText("SEVEN"), 1);
  EXPECT_EQ(list.IndexOfText("Eight"), -1);
}

struct GridModelTest : testing::Test {
  GridBench bench;
  GridEX& grid = *bench.grid;
  QTableView& table = *bench.window.findChild<QTableView*>("GridEX1_Table");
};

TEST_F(GridModelTest, TheModelKeepsQtsRulesThroughALifeOfEdits) {
  QAbstractItemModelTester tester(table.model(),
                                  QAbstractItemModelTester::FailureReportingMode::Fatal);
  grid.SetCol("LastName");
  bench.Type("Abel");
  bench.Press(Qt::Key_Insert);
  bench.Type("New");
  bench.Press(Qt::Key_Return);
  grid.SetSortKeys({{"CardNumber", SortOrder::Descending}});
  grid.SetGroupByBoxVisible(true);
  grid.AddGroup("MembershipType");
  grid.SetRow(2);
  EXPECT_TRUE(grid.DeleteRow());
  grid.ClearGroups();
  grid.SetRecordset(nullptr);
}

TEST_F(GridModelTest, CellsShowPicturesTextsOfCodesAndTheTextsThatAScreenFetches) {
  QList<GridColumn> columns = PlayerColumns();
  columns.append({.caption = "Zip", .field = "PlayerID", .key = "Zip", .fetchData = true});
  grid.SetColumns(columns);
  grid.on.FetchData = [](GridFetchData& event) {
    event.text = QString("%1:%2-%3").arg(event.row).arg(event.text.left(3), event.text.mid(3));
  };
  grid.SetRecordset(&bench.rows);
  EXPECT_EQ(grid.TextAt(2, "Zip"), "2:BAK-BOB");
  EXPECT_EQ(grid.TextAt(2, "PlayerID"), "BAKBOB");
  EXPECT_EQ(grid.TextAt(2, "Average"), "33.34");
  EXPECT_EQ(grid.TextAt(5, "MembershipType"), "Lifetime");
  EXPECT_EQ(grid.TextAt(5, "BirthDate"), "");
}

TEST_F(GridModelTest, TwoColumnsStandOnOneField) {
  grid.SetColumns({{.caption = "Name",
                    .field = "PlayerID",
                    .selectable = false,
                    .values = {{"ADAANN", "Adams, Ann"}}},
                   {.caption = "Cat",
                    .field = "PlayerID",
                    .key = "Category",
                    .values = {{"ADAANN", "Women"}}}});
  grid.SetRecordset(&bench.rows);
  EXPECT_EQ(grid.TextAt(1, "PlayerID"), "Adams, Ann");
  EXPECT_EQ(grid.TextAt(1, "Category"), "Women");
  EXPECT_EQ(grid.Value("Category"), Value("ADAANN"));
  EXPECT_EQ(grid.ColumnNumber("category"), 2);
  EXPECT_EQ(grid.ColumnKey(2), "Category");
}

TEST_F(GridModelTest, ColumnsStandInTheOrderOfTheirPositions) {
  grid.SetColumns({{.caption = "A", .field = "A", .position = 4},
                   {.caption = "B", .field = "B", .visible = false},
                   {.caption = "C", .field = "C", .position = 3},
                   {.caption = "D", .field = "D", .width = 0},
                   {.caption = "E", .field = "E"}});
  QString shown;
  for (int i = 1; i < table.horizontalHeader()->count(); ++i) {
    const int number = table.horizontalHeader()->logicalIndex(i);
    if (!table.isColumnHidden(number)) shown += grid.Columns()[number - 1].caption;
  }
  EXPECT_EQ(shown, "CAE");
}

TEST_F(GridModelTest, AColumnShownLaterIsReachedAndOneHiddenUnderTheCursorLetsItGo) {
  grid.SetColumnVisible("PlayerID", true);
  EXPECT_TRUE(grid.SetCol("PlayerID"));
  EXPECT_EQ(grid.Col(), 1);
  grid.SetColumnVisible("PlayerID", false);
  EXPECT_NE(grid.Col(), 1);
}

TEST_F(GridModelTest, CaptionsAreNeverCutAtTheirOwnWidth) {
  const QFontMetrics metrics(table.horizontalHeader()->font());
  for (int number = 2; number <= 8; ++number) {
    const int text = metrics.horizontalAdvance(grid.Columns()[number - 1].caption);
    EXPECT_GE(table.columnWidth(number), text + 16) << number;
  }
  EXPECT_GE(table.rowHeight(1), 32);
  EXPECT_GE(table.font().pointSizeF(), 10.5);
}

TEST_F(GridModelTest, WhatAPictureWritesIsNotCutInAnyFont) {
  const struct {
    const char* picture;
    CellEditor editor;
    const char* written;
  } cases[] = {{"(000)000-0000", CellEditor::Text, "(651)888-0808"},
               {"@@-@@-@@@", CellEditor::Text, "MN-25-A01"},
               {"mm/dd/yyyy", CellEditor::Date, "12/28/1948"},
               {"mm/dd/yyyy h:mm AMPM", CellEditor::DateTime, "12/28/2048 10:48 PM"},
               {"##0.00", CellEditor::Number, "100.00"}};
  QList<GridColumn> columns = {{.caption = "A", .field = "PlayerID", .width = 300}};
  for (const auto& c : cases) {
    columns.append({.caption = "B",
                    .field = "CardNumber",
                    .width = 300,
                    .editor = c.editor,
                    .picture = c.picture});
  }
  grid.SetColumns(columns);
  for (const char* family : {"DejaVu Sans", "Liberation Sans", "DejaVu Sans Mono"}) {
    table.setFont(QFont(family, 14));
    for (int i = 0; i < 5; ++i) {
      const int text = table.fontMetrics().horizontalAdvance(cases[i].written);
      EXPECT_GT(table.columnWidth(i + 2), text + 16) << family << ' ' << cases[i].picture;
      EXPECT_LT(table.columnWidth(i + 2), text * 3 / 2 + 50) << family << ' ' << cases[i].picture;
    }
  }
}

TEST_F(GridModelTest, TheCounterTellsTheRecord) {
  auto* counter = bench.window.findChild<QLabel*>("RecordCounter");
  EXPECT_EQ(counter->text(), "Record 1 of 5 records");
  grid.SetRecordCaption("players");
  grid.SetRow(5);
  EXPECT_EQ(counter->text(), "Record 5 of 5 players");
  grid.MoveToNewRow();
  EXPECT_EQ(counter->text(), "New record, 5 players");
  grid.SetRecordset(nullptr);
  EXPECT_EQ(counter->text(), "0 players");
}

TEST_F(GridModelTest, AFailingFetchShowsOneErrorAndTheGridGoesOn) {
  QList<GridColumn> columns = PlayerColumns();
  columns[1].fetchData = true;
  grid.SetColumns(columns);
  grid.on.FetchData = [](GridFetchData&) { throw Error(9, "Subscript out of range"); };
  grid.SetRecordset(&bench.rows);
  bench.window.grab();
  QApplication::processEvents();
  EXPECT_EQ(bench.errors.Count(), 1);
  EXPECT_EQ(bench.errors.Take().callStack, "GridEX1_FetchData");
  EXPECT_EQ(grid.TextAt(1, "FirstName"), "Ann");
}

TEST_F(GridModelTest, AWidthThatTheOperatorGaveOutlivesTheScreensChanges) {
  table.setColumnWidth(3, 321);
  grid.SetSelectable("FirstName", false);
  grid.SetDefault("LastName", "Doe");
  grid.SetValueList("CardNumber", {{"900", "Nine hundred"}});
  EXPECT_EQ(table.columnWidth(3), 321);
}

TEST_F(GridModelTest, TheFillingColumnTakesTheRoomThatIsLeft) {
  QList<GridColumn> columns = PlayerColumns();
  columns[2].fill = true;
  grid.SetColumns(columns);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(table.horizontalHeader()->length(), table.viewport()->width());
}

struct GridOrderTest : GridModelTest {};

TEST_F(GridOrderTest, ATextThatSortsAsANumberIsInTheOrderOfItsNumbers) {
  grid.AddSortKey("CardNumber");
  EXPECT_EQ(bench.Column("CardNumber"), " 12 80 900 1000");
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
  EXPECT_EQ(grid.Row(), 4);
  EXPECT_TRUE(grid.MoveToBookmark(bench.rows.BookmarkAt(1)));
}

TEST_F(GridOrderTest, SeveralKeysWeighInTheirOrderAndEqualRowsKeepTheirs) {
  grid.SetSortKeys({{"MembershipType", SortOrder::Descending}, {"Average"}});
  EXPECT_EQ(bench.Column("LastName"), "Clark Adams Smith Baker Snow");
  grid.ClearSortKeys();
  grid.AddSortKey("MembershipType");
  EXPECT_EQ(bench.Column("MembershipType"), "Lifetime Provisional Standard Standard Standard");
}

TEST_F(GridOrderTest, AHeaderClickSortsAndTheNextOneTurnsTheOrder) {
  QHeaderView* header = table.horizontalHeader();
  const auto click = [&] {
    const QPoint caption(header->sectionViewportPosition(3) + 30, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, caption);
  };
  click();
  EXPECT_EQ(bench.rows.Sort(), "LastName ASC");
  click();
  EXPECT_EQ(bench.Column("LastName"), "Snow Smith Clark Baker Adams");
  EXPECT_EQ(header->sortIndicatorSection(), 3);
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
}

TEST_F(GridOrderTest, AHeaderClickIsTheScreensWhereItWantsIt) {
  QString clicked;
  grid.on.ColumnHeaderClick = [&](const QString& key) {
    clicked = key;
    const bool up = grid.NextOrder(key) == SortOrder::Ascending;
    bench.rows.SetSort(key + (up ? " ASC" : " DESC"));
    grid.Rebind();
    grid.SetSortKeys({{key, up ? SortOrder::Ascending : SortOrder::Descending}});
  };
  QHeaderView* header = table.horizontalHeader();
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                    QPoint(header->sectionViewportPosition(2) + 30, 8));
  EXPECT_EQ(clicked, "FirstName");
  EXPECT_EQ(grid.NextOrder("FirstName"), SortOrder::Descending);
}

TEST_F(GridOrderTest, ARowThatIsRefusedStopsTheSort) {
  grid.on.BeforeUpdate = [](GridUpdate& update) { update.cancel = true; };
  grid.SetCol("LastName");
  bench.Type("Q");
  QHeaderView* header = table.horizontalHeader();
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                    QPoint(header->sectionViewportPosition(3) + 30, 8));
  EXPECT_EQ(bench.rows.Sort(), "");
  EXPECT_EQ(grid.Value("LastName"), Value("Q"));
}

TEST_F(GridOrderTest, RebindShowsWhatTheRecordsetHoldsNow) {
  grid.SetRow(3);
  bench.rows.SetFilter("Average > 30");
  grid.Rebind();
  EXPECT_EQ(bench.Column("LastName"), "Adams Baker Smith");
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_FALSE(grid.MoveToBookmark(12345));
}

Recordset ManyPlayers(int count) {
  Recordset rows;
  rows.Append("LastName", FieldType::Text, 25);
  rows.Append("CardNumber", FieldType::Text, 6);
  rows.Append("Average", FieldType::Single);
  rows.OpenInMemory();
  for (int i = 0; i < count; ++i) {
    const int mixed = static_cast<int>(i * 7919LL % count);
    rows.AddNew();
    rows.Set("LastName", QString("P%1").arg(mixed, 6, 10, QChar('0')));
    rows.Set("CardNumber", QString::number(mixed));
    rows.Set("Average", mixed % 90);
    rows.Update();
  }
  rows.MoveFirst();
  return rows;
}

TEST(GridScrollTest, RebindingLeavesTheRowsWhereTheyAre) {
  GridBench bench(ManyPlayers(1000), {{.caption = "Last", .field = "LastName"}});
  auto* table = bench.window.findChild<QTableView*>("GridEX1_Table");
  QApplication::processEvents();
  bench.grid->SetRow(500);
  const int first = table->rowAt(0);
  EXPECT_GT(first, 400);
  bench.grid->Rebind();
  QApplication::processEvents();
  EXPECT_EQ(table->rowAt(0), first);
  EXPECT_EQ(bench.grid->Row(), 500);
  bench.grid->EnsureVisible(1);
  EXPECT_EQ(table->rowAt(0), 1);
}

TEST(GridAccessTest, AScreenReaderHearsTableRowsColumnsAndCells) {
  GridBench bench;
  auto* table = bench.window.findChild<QTableView*>("GridEX1_Table");
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(table);
  ASSERT_TRUE(face);
  EXPECT_EQ(face->text(QAccessible::Name), "Players");
  QAccessibleTableInterface* cells = face->tableInterface();
  ASSERT_TRUE(cells);
  EXPECT_EQ(cells->columnDescription(3), "Last");
  EXPECT_EQ(cells->rowDescription(2), "2");
  EXPECT_EQ(cells->cellAt(2, 3)->text(QAccessible::Name), "Baker");
  EXPECT_EQ(cells->cellAt(2, 4)->text(QAccessible::Name), "Provisional");
  EXPECT_EQ(cells->cellAt(2, 7)->text(QAccessible::Name), "33.34");
  EXPECT_EQ(cells->cellAt(2, 8)->text(QAccessible::Name), "not checked");
  EXPECT_TRUE(cells->cellAt(2, 0)->text(QAccessible::Name).startsWith("First Bob, Last Baker"));
  EXPECT_TRUE(cells->cellAt(0, 0)->text(QAccessible::Name).startsWith("New record"));
}

TEST(GridSpeedTest, FiftyThousandRowsScrollSortAndSearchWithoutAPause) {
  GridBench bench(ManyPlayers(50000),
                  {{.caption = "Last", .field = "LastName"},
                   {.caption = "Card", .field = "CardNumber", .sort = SortKind::Numeric},
                   {.caption = "%", .field = "Average", .picture = "#0.00"}});
  GridEX& grid = *bench.grid;
  auto* table = bench.window.findChild<QTableView*>("GridEX1_Table");
  TypedSearch search(grid, 1500,
                     [](const QString& typed) { return TypedSearch::ByStart("LastName", typed); });
  grid.on.KeyDown = [&](GridKeyDown& event) { search.KeyDown(event); };
  const auto timed = [](const char* what, const std::function<void()>& work) {
    QElapsedTimer clock;
    clock.start();
    work();
    testing::Test::RecordProperty(what, static_cast<int>(clock.elapsed()));
    std::printf("%s %d ms\n", what, static_cast<int>(clock.elapsed()));
    return clock.elapsed();
  };
  // Generous, for a loaded machine: a pause is what a person notices.
  EXPECT_LT(timed("bind", [&] { grid.SetRecordset(&bench.rows); }), 250);
  EXPECT_LT(timed("sort", [&] { grid.SetSortKeys({{"LastName"}}); }), 1000);
  EXPECT_LT(timed("search", [&] { bench.Type("P049999"); }), 1000);
  EXPECT_EQ(grid.TextAt(grid.Row(), "LastName"), "P049999");
  EXPECT_LT(timed("numeric", [&] { grid.SetSortKeys({{"CardNumber"}}); }), 1500);
  EXPECT_EQ(grid.TextAt(50000, "CardNumber"), "49999");
  EXPECT_LT(timed("scroll 50 pages",
                  [&] {
                    for (int i = 0; i < 50; ++i) {
                      table->verticalScrollBar()->setValue(i * 1000);
                      table->viewport()->grab();
                    }
                  }),
            2500);
  EXPECT_LT(timed("group", [&] { grid.AddGroup("Average"); }), 2500);
}

}  // namespace
}  // namespace tavrelin
