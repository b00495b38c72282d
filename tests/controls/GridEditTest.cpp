#include <QCalendarWidget>
#include <QComboBox>
#include <QMenuBar>

#include "basic/Error.h"
#include "basic/RowCheck.h"
#include "controls/GridBench.h"

namespace tavrelin {
namespace {

struct GridEditTest : testing::Test {
  GridBench bench;
  GridEX& grid = *bench.grid;

  /// Types into a cell of a row and leaves the cell open.
  void TypeInto(int row, const QString& column, const QString& text) {
    ASSERT_TRUE(grid.SetRow(row));
    ASSERT_TRUE(grid.SetCol(column));
    bench.Type(text);
  }
};

TEST_F(GridEditTest, BindingShowsTheRowsAndStandsOnTheRowSelectorOfTheFirst) {
  EXPECT_EQ(grid.RowCount(), 5);
  EXPECT_EQ(bench.Place(), "1,-1");
  EXPECT_EQ(grid.Value("LastName"), Value("Adams"));
  EXPECT_FALSE(grid.DataChanged());
}

TEST_F(GridEditTest, TypingReplacesTheCellAndLeavingTheRowSavesIt) {
  TypeInto(3, "LastName", "Clay");
  EXPECT_TRUE(grid.IsEditing());
  EXPECT_EQ(bench.Editor(), "Clay");
  EXPECT_EQ(bench.Stored(3, "LastName"), "Clark");
  bench.Press(Qt::Key_Tab);
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(grid.Value("LastName"), Value("Clay"));
  EXPECT_EQ(bench.Stored(3, "LastName"), "Clark");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Stored(3, "LastName"), "Clay");
  EXPECT_EQ(bench.Place(), "4,4");
}

TEST_F(GridEditTest, F2KeepsTheTextAndBackspaceEmptiesTheCell) {
  grid.SetCol("LastName");
  bench.Press(Qt::Key_F2);
  EXPECT_EQ(bench.Editor(), "Adams");
  bench.Press(Qt::Key_Escape);
  bench.Press(Qt::Key_Backspace);
  EXPECT_EQ(bench.Editor(), "");
}

TEST_F(GridEditTest, EscUndoesTheCellThenTheRow) {
  TypeInto(1, "FirstName", "Eve");
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

TEST_F(GridEditTest, EscReachesTheScreenOnlyWhenNothingIsLeftToUndo) {
  QList<int> keys;
  grid.on.KeyDown = [&](GridKeyDown& event) { keys.append(event.key); };
  TypeInto(1, "FirstName", "E");
  bench.Press(Qt::Key_Tab);
  keys.clear();
  bench.Press(Qt::Key_Escape);
  EXPECT_TRUE(keys.isEmpty());
  bench.Press(Qt::Key_Escape);
  EXPECT_EQ(keys, QList<int>{Qt::Key_Escape});
}

TEST_F(GridEditTest, ACanceledUpdateKeepsTheOperatorOnTheRowWithTheInput) {
  int updates = 0;
  grid.on.BeforeUpdate = [&](GridUpdate& update) {
    EXPECT_FALSE(update.newRow);
    update.cancel = ++updates == 1;
  };
  TypeInto(2, "LastName", "\"Bak\"");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Place(), "2,3");
  EXPECT_EQ(grid.Value("LastName"), Value("\"Bak\""));
  EXPECT_TRUE(grid.DataChanged());
  EXPECT_EQ(bench.Stored(2, "LastName"), "Baker");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Place(), "3,3");
  EXPECT_EQ(bench.Stored(2, "LastName"), "\"Bak\"");
}

TEST_F(GridEditTest, DataChangedFalseThrowsTheChangesAwayAndLetsTheOperatorGo) {
  grid.on.BeforeUpdate = [](GridUpdate& update) { update.dataChanged = false; };
  int after = 0;
  grid.on.AfterUpdate = [&] { ++after; };
  TypeInto(2, "LastName", "Zorn");
  bench.Press(Qt::Key_Up);
  EXPECT_EQ(bench.Place(), "1,3");
  EXPECT_EQ(bench.Stored(2, "LastName"), "Baker");
  EXPECT_EQ(grid.TextAt(2, "LastName"), "Baker");
  EXPECT_EQ(after, 0);
}

TEST_F(GridEditTest, CancelWithDataChangedFalseThrowsAwayAndStays) {
  grid.on.BeforeUpdate = [](GridUpdate& update) {
    update.cancel = true;
    update.dataChanged = false;
  };
  TypeInto(2, "LastName", "Zorn");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Place(), "2,3");
  EXPECT_EQ(grid.Value("LastName"), Value("Baker"));
  EXPECT_FALSE(grid.DataChanged());
}

TEST_F(GridEditTest, ARuleIsObeyedAndItsFixesGoIntoTheRow) {
  RowCheck check;
  check.Fix("CardNumber", "");
  check.Fix("PlayerID", "BAKBO1");
  grid.on.BeforeUpdate = [&](GridUpdate& update) {
    grid.Apply(check);
    update.Obey(check);
  };
  TypeInto(2, "LastName", "Bakker");
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(bench.Stored(2, "CardNumber"), "");
  EXPECT_EQ(bench.Stored(2, "PlayerID"), "BAKBO1");
  check.Refuse("Invalid State");
  TypeInto(2, "LastName", "B");
  EXPECT_FALSE(grid.CommitRow());
  check.Drop();
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(bench.Stored(2, "LastName"), "Bakker");
}

TEST_F(GridEditTest, ARowIsCalledByItsPatternOrTheFirstTextItShows) {
  struct Case {
    QString pattern, name;
  };
  grid.SetRow(2);
  grid.SetValue("LastName", "Zorn");  // not saved yet
  const QList<Case> cases = {{"", "Bob"},
                             {"{FirstName} {LastName}", "Bob Zorn"},
                             {"Card {CardNumber}", "Card 1000"},
                             {"{MembershipType} {Nothing}", "Provisional {Nothing}"},
                             {"{BirthDate}", ""}};
  for (const Case& one : cases) {
    grid.SetRowName(one.pattern);
    EXPECT_EQ(grid.RowName(), one.name) << one.pattern.toStdString();
  }
  grid.SetDataChanged(false);
  grid.SetRowName({});
  grid.MoveToNewRow();
  EXPECT_EQ(grid.RowName(), "Standard") << "the first cell that is not empty";
  grid.SetRecordset(nullptr);
  EXPECT_EQ(grid.RowName(), "");
}

TEST_F(GridEditTest, TheMenuBarDoesNotTakeTheFocusOutOfTheGrid) {
  int asked = 0;
  grid.on.BeforeUpdate = [&](GridUpdate&) { ++asked; };
  TypeInto(2, "LastName", "Zorn");
  QMenuBar menu(&bench.window);
  menu.show();
  menu.setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(asked, 0);
  grid.setFocus();
  bench.after->setFocus();
  EXPECT_EQ(asked, 1);
}

TEST_F(GridEditTest, AFailedUpdateShowsTheErrorKeepsTheInputAndTheNextTrySavesIt) {
  TypeInto(2, "FirstName", "Bobby");
  bench.Press(Qt::Key_Tab);
  grid.SetValue("MembershipType", "too wide for its column");
  EXPECT_FALSE(grid.SetRow(3));
  EXPECT_EQ(bench.errors.Take().number, errors::FieldTooSmall);
  EXPECT_EQ(bench.Place(), "2,3");
  EXPECT_EQ(grid.Value("FirstName"), Value("Bobby"));
  EXPECT_EQ(bench.Stored(2, "FirstName"), "Bob");
  EXPECT_FALSE(bench.rows.IsEditing());
  grid.SetValue("MembershipType", "L");
  EXPECT_TRUE(grid.SetRow(3));
  EXPECT_EQ(bench.Stored(2, "FirstName"), "Bobby");
  EXPECT_EQ(bench.Stored(2, "MembershipType"), "L");
}

TEST_F(GridEditTest, AFailedNewRowIsSavedOnceWhenItIsTriedAgain) {
  grid.MoveToNewRow();
  TypeInto(-1, "LastName", "New");
  bench.Press(Qt::Key_Tab);
  grid.SetValue("PlayerID", "SMIJ100");
  EXPECT_FALSE(grid.CommitRow());
  EXPECT_EQ(bench.errors.Take().number, errors::FieldTooSmall);
  EXPECT_EQ(bench.rows.RecordCount(), 5);
  grid.SetValue("PlayerID", "NEW000");
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(bench.rows.RecordCount(), 6);
  EXPECT_EQ(bench.Stored(6, "LastName"), "New");
}

TEST_F(GridEditTest, AFailingProcedureKeepsTheRowAndTheProgramGoesOn) {
  grid.on.BeforeUpdate = [](GridUpdate&) { throw Error(51, "No such table"); };
  TypeInto(2, "LastName", "Zorn");
  bench.Press(Qt::Key_Down);
  const ErrorReport report = bench.errors.Take();
  EXPECT_EQ(report.description, "No such table");
  EXPECT_EQ(report.callStack, "GridEX1_BeforeUpdate");
  EXPECT_EQ(bench.Place(), "2,3");
  EXPECT_EQ(grid.Value("LastName"), Value("Zorn"));
}

TEST_F(GridEditTest, TheNewRowStartsFromTheDefaultsAndIsAppendedWhenItIsLeft) {
  QStringList order;
  grid.on.BeforeUpdate = [&](GridUpdate& update) {
    EXPECT_TRUE(update.newRow);
    order.append("before");
    grid.SetValue("PlayerID", "DOEDON");
  };
  grid.on.AfterUpdate = [&] { order.append(QString("after %1").arg(grid.Row())); };
  TypeInto(-1, "FirstName", "Don");
  bench.Press(Qt::Key_Tab);
  bench.Type("Doe");
  EXPECT_EQ(grid.TextAt(-1, "MembershipType"), "Standard");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(order, QStringList({"before", "after -1"}));
  EXPECT_EQ(grid.RowCount(), 6);
  EXPECT_EQ(bench.Stored(6, "PlayerID"), "DOEDON");
  EXPECT_EQ(bench.Stored(6, "MembershipType"), "S");
  EXPECT_EQ(bench.Place(), "1,3");
  EXPECT_EQ(grid.ValueAt(-1, "FirstName"), Value());
}

TEST_F(GridEditTest, ADefaultCanChangeFromRowToRow) {
  grid.on.AfterUpdate = [&] { grid.SetDefault("LastName", "Doe"); };
  TypeInto(-1, "LastName", "Doe");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.Place(), "-1,3");
  EXPECT_EQ(grid.TextAt(-1, "LastName"), "Doe");
  EXPECT_FALSE(grid.DataChanged());
}

TEST_F(GridEditTest, AnUntouchedNewRowIsLeftWithoutAnyUpdate) {
  grid.on.BeforeUpdate = [](GridUpdate&) { ADD_FAILURE() << "nothing was typed"; };
  grid.MoveToNewRow();
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(grid.RowCount(), 5);
  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridEditTest, WhatAScreenPutsIntoEachNewRowIsThereAgainInTheNext) {
  grid.on.RowColChange = [&](int, int) {
    if (grid.IsNewRow()) grid.SetValue("CardNumber", "77");
  };
  grid.on.BeforeUpdate = [&](GridUpdate& update) {
    update.dataChanged = !grid.Value("LastName").Trimmed().isEmpty();
  };
  TypeInto(-1, "LastName", "First");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(grid.Value("CardNumber"), Value("77"));
  bench.Type("Second");
  bench.Press(Qt::Key_Escape);
  bench.Press(Qt::Key_Escape);
  EXPECT_EQ(grid.Value("CardNumber"), Value("77"));
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(grid.RowCount(), 6);
  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridEditTest, RebindingAfterANewRowPutsItInItsSortedPlaceAndTheCursorWhereItWasGoing) {
  grid.AddSortKey("LastName");
  grid.on.AfterUpdate = [&] {
    if (grid.IsNewRow()) grid.Rebind();
  };
  TypeInto(-1, "LastName", "Bell");
  grid.MoveToBookmark(bench.rows.BookmarkAt(4));
  EXPECT_EQ(bench.Column("LastName"), "Adams Baker Bell Clark Smith Snow");
  EXPECT_EQ(grid.Row(), 5);
  EXPECT_EQ(grid.Value("LastName"), Value("Smith"));
}

TEST_F(GridEditTest, AProcedureThatGoesToARowOfItsOwnHasTheLastWord) {
  grid.on.AfterUpdate = [&] {
    grid.SetRecordset(&bench.rows);
    grid.MoveToNewRow();
    grid.SetCol("Average");
  };
  TypeInto(2, "LastName", "Bell");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Place(), "-1,7");
  EXPECT_EQ(bench.Stored(2, "LastName"), "Bell");
}

TEST_F(GridEditTest, RowColChangeTellsWhatWasLeftBehind) {
  QStringList moves;
  grid.on.RowColChange = [&](int row, int col) {
    moves.append(QString("%1,%2>%3").arg(row).arg(col).arg(bench.Place()));
  };
  grid.SetRecordset(&bench.rows);
  grid.SetCol(2);
  grid.SetRow(3);
  grid.SetRow(3);
  grid.MoveToNewRow();
  EXPECT_EQ(moves, QStringList({"0,0>1,-1", "1,-1>1,2", "1,2>3,2", "3,2>-1,2"}));
}

TEST_F(GridEditTest, RowColChangeMaySendTheCursorOn) {
  grid.on.RowColChange = [&](int lastRow, int) {
    if (grid.IsNewRow() && lastRow != -1) grid.SetCol(2);
    if (!grid.IsNewRow() && lastRow == -1) grid.SetCol(-1);
  };
  bench.Press(Qt::Key_Insert);
  EXPECT_EQ(bench.Place(), "-1,2");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Place(), "1,-1");
}

TEST_F(GridEditTest, ColEditEventsComeInOrderAndMayChangeTheCell) {
  QStringList order;
  grid.on.BeforeColEdit = [&](GridColEdit& event) {
    order.append("before " + event.column);
    grid.SetValue("CardNumber", grid.Value("CardNumber").ToText().remove('0'));
  };
  grid.on.AfterColEdit = [&](GridColEdit& event) {
    order.append("after " + event.column + " " + grid.Value(event.column).ToText());
    grid.SetValue(event.column, grid.Value(event.column).ToText().remove('-'));
  };
  grid.SetCol("CardNumber");
  bench.Press(Qt::Key_F2);
  EXPECT_EQ(bench.Editor(), "9");
  bench.Press(Qt::Key_Escape);
  EXPECT_EQ(grid.Value("CardNumber"), Value("900"));
  EXPECT_FALSE(grid.DataChanged());
  bench.Type("1-2");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(order, QStringList({"before CardNumber", "before CardNumber", "after CardNumber 1-2"}));
  EXPECT_EQ(bench.Stored(1, "CardNumber"), "12");
}

TEST_F(GridEditTest, BeforeColEditMayCancel) {
  grid.on.BeforeColEdit = [](GridColEdit& event) { event.cancel = true; };
  TypeInto(1, "LastName", "X");
  EXPECT_FALSE(grid.IsEditing());
  grid.SetCol("Active");
  bench.Press(Qt::Key_Space);
  EXPECT_FALSE(grid.DataChanged());
}

TEST_F(GridEditTest, KeyPressReplacesAndSwallowsCharacters) {
  QString seen;
  grid.on.KeyPress = [&](GridKeyPress& press) {
    EXPECT_EQ(press.column, "LastName");
    seen += press.character;
    if (press.character.isLower()) press.character = press.character.toUpper();
    if (press.character == '-') press.character = QChar();
  };
  TypeInto(1, "LastName", "a-b9");
  bench.Press(Qt::Key_Backspace);
  EXPECT_EQ(bench.Editor(), "AB");
  EXPECT_EQ(seen, "a-b9\b");
}

TEST_F(GridEditTest, UpperCaseColumnsTurnLettersAsTheyAreTypedAndStopAtTheirLength) {
  TypeInto(1, "CardNumber", "ab12345");
  EXPECT_EQ(bench.Editor(), "AB1234");
}

TEST_F(GridEditTest, AListIsEditedByItsTextAndStoresItsCode) {
  TypeInto(1, "MembershipType", "l");
  auto* list = bench.window.findChild<QComboBox*>("CellEditor");
  ASSERT_TRUE(list);
  EXPECT_EQ(list->currentText(), "Lifetime");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.Stored(1, "MembershipType"), "L");
}

TEST_F(GridEditTest, F4DropsTheListDownAndAChoiceTakesTheCellOver) {
  grid.SetCol("MembershipType");
  bench.Press(Qt::Key_F4);
  auto* list = bench.window.findChild<QComboBox*>("CellEditor");
  ASSERT_TRUE(list);
  ASSERT_TRUE(list->view()->isVisible());
  bench.Shot("grid-dropdown");
  QTest::keyClick(list->view(), Qt::Key_Down);
  QTest::keyClick(list->view(), Qt::Key_Return);
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(grid.TextAt(1, "MembershipType"), "Provisional");
}

TEST_F(GridEditTest, AValueListCanBeFilledAndClearedWhileTheGridIsOpen) {
  grid.SetValueList("MembershipType", {{"S", "Singles"}});
  EXPECT_EQ(bench.Column("MembershipType"), "Singles P Singles Singles L");
  grid.ClearValueList("MembershipType");
  EXPECT_EQ(bench.Column("MembershipType"), "S P S S L");
}

TEST_F(GridEditTest, SpaceAndAClickToggleACheckBox) {
  grid.SetCol("Active");
  bench.Press(Qt::Key_Space);
  EXPECT_EQ(grid.Value("Active"), Value(true));
  auto* view = bench.window.findChild<QAbstractItemView*>("GridEX1_Table");
  const QRect box = view->visualRect(view->model()->index(1, 8));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, box.center());
  EXPECT_EQ(grid.Value("Active"), Value(false));
}

TEST_F(GridEditTest, ADateIsTypedOrPicked) {
  TypeInto(1, "BirthDate", "7/4/1976");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(grid.TextAt(1, "BirthDate"), "07/04/1976");
  grid.SetCol("BirthDate");
  bench.Press(Qt::Key_F4);
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_TRUE(popup);
  auto* calendar = popup->findChild<QCalendarWidget*>("Calendar");
  EXPECT_EQ(calendar->selectedDate(), QDate(1976, 7, 4));
  bench.Shot("grid-calendar");
  Q_EMIT calendar->activated(QDate(1976, 7, 5));
  EXPECT_EQ(bench.Editor(), "07/05/1976");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.rows.CellAt(1, bench.rows.FieldIndex("BirthDate")), Value(QDate(1976, 7, 5)));
}

TEST_F(GridEditTest, TheCalendarOfADateCellLooksLikeACalendar) {
  grid.SetCol("BirthDate");
  bench.Press(Qt::Key_F4);
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_TRUE(popup);
  // The year is written in light on the accent colour: it must lie beneath it.
  auto* year = popup->findChild<QWidget*>("qt_calendar_yearbutton");
  ASSERT_TRUE(year);
  const QImage picture = popup->grab().toImage();
  const QPoint corner = year->mapTo(popup, QPoint(4, year->height() / 2));
  EXPECT_EQ(picture.pixelColor(corner), year->palette().color(QPalette::Highlight));
  popup->close();
}

TEST_F(GridEditTest, WhatIsNoDateStaysAsTypedForTheChecksOfTheRow) {
  TypeInto(1, "BirthDate", "soon");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(grid.Value("BirthDate"), Value("soon"));
}

TEST_F(GridEditTest, AnEmptiedNumberIsStoredAsNull) {
  grid.SetCol("Average");
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(grid.Value("Average"), Value(""));
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(bench.rows.CellAt(1, bench.rows.FieldIndex("Average")), Value());
}

TEST_F(GridEditTest, ANumberOpensInItsShortestFormNotItsPicture) {
  grid.SetRow(2);
  grid.SetCol("Average");
  bench.Press(Qt::Key_F2);
  EXPECT_EQ(bench.Editor(), "33.335");
  bench.Press(Qt::Key_Return);
  EXPECT_FALSE(grid.DataChanged());
}

TEST_F(GridEditTest, DeletingARowAsksFirstAndGoesToTheNextRow) {
  bool cancel = true;
  grid.on.BeforeDelete = [&](GridDelete& event) { event.cancel = cancel; };
  grid.SetRow(2);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(grid.RowCount(), 5);
  cancel = false;
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(bench.Column("LastName"), "Adams Clark Smith Snow");
  EXPECT_EQ(grid.Value("LastName"), Value("Clark"));
  grid.SetRow(4);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(grid.Row(), 3);
}

TEST_F(GridEditTest, NothingIsDeletedAddedOrEditedWhereItIsNotAllowed) {
  grid.SetAllowDelete(false);
  grid.SetAllowAddNew(false);
  grid.SetAllowEdit(false);
  bench.Press(Qt::Key_Delete);
  bench.Press(Qt::Key_Insert);
  EXPECT_EQ(grid.Row(), 1);
  grid.SetCol("LastName");
  bench.Type("X");
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(grid.RowCount(), 5);
}

TEST_F(GridEditTest, AColumnOfTheNewRowOnlyCannotBeEditedLater) {
  QList<GridColumn> columns = PlayerColumns();
  columns[1].newRowOnly = true;
  grid.SetColumns(columns);
  grid.SetRecordset(&bench.rows);
  TypeInto(1, "FirstName", "X");
  EXPECT_FALSE(grid.IsEditing());
  TypeInto(-1, "FirstName", "X");
  EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GridEditTest, LeavingTheGridSavesTheRowAndTellsTheScreen) {
  QStringList events;
  grid.on.AfterUpdate = [&] { events.append("saved"); };
  grid.on.LostFocus = [&] { events.append("lost"); };
  grid.on.GotFocus = [&] { events.append("got"); };
  TypeInto(2, "LastName", "Zorn");
  bench.after->setFocus();
  bench.Press(Qt::Key_Home);
  grid.setFocus();
  EXPECT_EQ(events, QStringList({"saved", "lost", "got"}));
  EXPECT_EQ(bench.Stored(2, "LastName"), "Zorn");
}

TEST_F(GridEditTest, ARefusedRowKeepsTheFocusInTheGrid) {
  bool cancel = true;
  grid.on.BeforeUpdate = [&](GridUpdate& update) { update.cancel = cancel; };
  grid.on.LostFocus = [] { ADD_FAILURE() << "the grid still has the focus"; };
  TypeInto(2, "LastName", "Zorn");
  bench.after->setFocus();
  EXPECT_TRUE(grid.isAncestorOf(QApplication::focusWidget()));
  EXPECT_EQ(grid.Value("LastName"), Value("Zorn"));
  grid.on.LostFocus = {};
}

TEST_F(GridEditTest, AFieldThatCannotBeWrittenShowsWhatWasSetAndIsNotStored) {
  grid.on.BeforeUpdate = [&](GridUpdate&) { grid.SetValue("Pct", 66.5); };
  QList<GridColumn> columns = PlayerColumns();
  columns.append({.caption = "%", .field = "Pct", .picture = "#0.00"});
  grid.SetColumns(columns);
  grid.SetRecordset(&bench.rows);
  TypeInto(2, "LastName", "Zorn");
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(grid.TextAt(2, "Pct"), "66.50");
  EXPECT_EQ(grid.TextAt(1, "Pct"), "");
}

TEST(GridEndTest, AGridThatEndsWithAnOpenCellSavesNothingAndRaisesNothing) {
  int events = 0;
  {
    GridBench bench;
    bench.grid->SetCol("LastName");
    bench.Type("Zorn");
    bench.grid->on.BeforeUpdate = [&](GridUpdate& update) {
      ++events;
      update.cancel = true;
    };
    bench.grid->on.LostFocus = [&] { ++events; };
    delete bench.grid;
    bench.grid = new GridEX("GridEX2", "Other", bench.Guard(), &bench.window);
    bench.after->setFocus();
  }
  EXPECT_EQ(events, 0);
}

TEST_F(GridEditTest, UnboundTheGridShowsNoRows) {
  grid.SetRecordset(nullptr);
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(bench.Place(), "0,0");
  EXPECT_FALSE(grid.MoveToNewRow());
  EXPECT_EQ(grid.Value("LastName"), Value());
  grid.SetValue("LastName", "X");
  EXPECT_TRUE(grid.CommitRow());
}

}  // namespace
}  // namespace tavrelin
