#include <QAccessible>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QToolButton>

#include "controls/GridBench.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

QIcon Letter(const QString& letter) {
  QPixmap picture(32, 32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.drawEllipse(2, 2, 28, 28);
  painter.drawText(picture.rect(), Qt::AlignCenter, letter);
  return picture;
}

struct GridViewsTest : testing::Test {
  GridBench bench;
  GridEX& grid = *bench.grid;
  QAbstractItemView& table = *bench.window.findChild<QAbstractItemView*>("GridEX1_Table");
  QAbstractItemView& cards = *bench.window.findChild<QAbstractItemView*>("GridEX1_Cards");

  QStringList Headings() {
    QStringList texts;
    for (int line = 0; line < table.model()->rowCount(); ++line) {
      const QString text = table.model()->index(line, 0).data().toString();
      if (!text.isEmpty()) texts.append(text);
    }
    return texts;
  }
};

TEST_F(GridViewsTest, GroupingPutsHeadingsOverTheRowsAndTheCursorPassesThem) {
  grid.SetGroupByBoxVisible(true);
  grid.AddGroup("MembershipType");
  EXPECT_EQ(Headings(),
            QStringList({"Type: Lifetime  (1)", "Type: Provisional  (1)", "Type: Standard  (3)"}));
  EXPECT_EQ(bench.Column("LastName"), "Snow Baker Adams Clark Smith");
  grid.SetRow(1);
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(grid.Row(), 2);
  bench.Press(Qt::Key_Up);
  bench.Press(Qt::Key_Up);
  EXPECT_EQ(grid.Row(), -1);
  bench.Shot("grid-grouped");
  grid.ClearGroups();
  EXPECT_EQ(Headings(), QStringList());
}

TEST_F(GridViewsTest, GroupsWithinGroupsAreCountedEach) {
  grid.AddGroup("MembershipType");
  grid.AddGroup("Active");
  EXPECT_EQ(grid.Groups(), QStringList({"MembershipType", "Active"}));
  EXPECT_EQ(Headings().size(), 6);
  EXPECT_EQ(Headings()[4], "Type: Standard  (3)");
  EXPECT_EQ(Headings()[5], "Active: not checked  (3)");
}

TEST_F(GridViewsTest, ACaptionDroppedIntoTheBoxGroupsAndItsButtonTakesTheGroupAway) {
  grid.SetGroupByBoxVisible(true);
  auto* box = bench.window.findChild<QWidget*>("GroupBox");
  QMimeData column;
  column.setData("application/x-tavrelin-column", "MembershipType");
  QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &column, Qt::LeftButton, Qt::NoModifier);
  static_cast<QObject*>(box)->event(&drop);
  EXPECT_EQ(grid.Groups(), QStringList{"MembershipType"});
  auto* button = bench.window.findChild<QToolButton*>("Group_MembershipType");
  ASSERT_TRUE(button);
  EXPECT_EQ(button->accessibleName(), "Stop grouping by Type");
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(grid.Groups(), QStringList());
}

TEST_F(GridViewsTest, TheMenuOfTheBoxGroupsWithoutTheMouse) {
  grid.SetGroupByBoxVisible(true);
  auto* button = bench.window.findChild<QToolButton*>("GroupByMenu");
  Q_EMIT button->menu()->aboutToShow();
  ASSERT_GE(button->menu()->actions().size(), 3);
  EXPECT_EQ(button->menu()->actions()[2]->text(), "Type");
  button->menu()->actions()[2]->trigger();
  EXPECT_EQ(grid.Groups(), QStringList{"MembershipType"});
}

TEST_F(GridViewsTest, ANewRowSavedWhileGroupedGoesToItsGroup) {
  grid.AddGroup("MembershipType");
  grid.MoveToNewRow();
  grid.SetCol("LastName");
  bench.Type("New");
  bench.Press(Qt::Key_Return);
  grid.Rebind();
  EXPECT_EQ(Headings()[2], "Type: Standard  (4)");
}

TEST_F(GridViewsTest, TheCardsShowTheSameCellsAndAreEditedAlike) {
  grid.SetRow(2);
  grid.SetView(GridEX::View::Card);
  EXPECT_EQ(grid.CurrentView(), GridEX::View::Card);
  EXPECT_TRUE(cards.isVisible());
  for (auto* button : cards.findChildren<QAbstractButton*>()) EXPECT_FALSE(button->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &cards);
  grid.SetCol("FirstName");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Place(), "2,3");
  bench.Shot("grid-cards");
  bench.Type("Bell");
  bench.Shot("grid-cards-editing");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.Stored(2, "LastName"), "Bell");
  bench.Press(Qt::Key_Left);
  EXPECT_EQ(bench.Place(), "2,3");
  grid.SetView(GridEX::View::Table);
  EXPECT_TRUE(table.isVisible());
  EXPECT_EQ(bench.Place(), "2,3");
}

TEST_F(GridViewsTest, AClickOnACardsFieldGoesToItsCell) {
  grid.SetView(GridEX::View::Card);
  const QModelIndex cell = cards.model()->index(3, 5);
  ASSERT_EQ(cards.indexAt(cards.visualRect(cell).center()), cell);
  QTest::mouseClick(cards.viewport(), Qt::LeftButton, {}, cards.visualRect(cell).center());
  EXPECT_EQ(bench.Place(), "3,5");
}

TEST_F(GridViewsTest, CompactColumnsShareALineOfTheCard) {
  grid.SetCompact("CardNumber", true);
  grid.SetCompact("MembershipType", true);
  grid.SetView(GridEX::View::Card);
  const auto top = [&](int number) {
    return cards.visualRect(cards.model()->index(1, number)).top();
  };
  EXPECT_EQ(top(4), top(5));
  EXPECT_LT(top(3), top(4));
  EXPECT_LT(top(5), top(6));
  EXPECT_EQ(top(6) - top(5), top(4) - top(3));
}

TEST_F(GridViewsTest, TheLastCardIsScrolledIntoView) {
  bench.window.resize(500, 400);
  grid.SetView(GridEX::View::Card);
  QApplication::processEvents();
  grid.SetRow(5);
  EXPECT_TRUE(cards.viewport()->rect().intersects(cards.visualRect(cards.model()->index(5, 0))));
}

TEST_F(GridViewsTest, AScreenReaderHearsTheCardsAsATable) {
  grid.SetView(GridEX::View::Card);
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&cards);
  ASSERT_TRUE(face && face->tableInterface());
  EXPECT_EQ(face->tableInterface()->cellAt(2, 3)->text(QAccessible::Name), "Baker");
  EXPECT_EQ(face->tableInterface()->columnDescription(3), "Last");
}

TEST_F(GridViewsTest, TheMenuKeySortsAndDeletesWithoutTheMouse) {
  grid.SetRow(2);
  QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(&table, &key);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu);
  QStringList texts;
  for (QAction* action : menu->actions()) texts.append(action->text());
  EXPECT_EQ(texts, QStringList({"&Sort by", "&New record\tInsert", "&Delete this row"}));
  menu->actions()[0]->menu()->actions()[0]->trigger();
  EXPECT_EQ(bench.rows.Sort(), "FirstName ASC");
  menu->actions()[2]->trigger();
  EXPECT_EQ(bench.Column("LastName"), "Adams Clark Smith Snow");
  menu->close();
}

TEST_F(GridViewsTest, IconsComeFromTheScreenAndHaveAWord) {
  QList<GridColumn> columns = PlayerColumns();
  columns.append({.caption = "W/L", .field = "WL", .editable = false, .icon = true});
  grid.SetIcons({{{}, ""}, {Letter("W"), "Win"}, {Letter("L"), "Loss"}});
  grid.on.FetchIcon = [&](GridFetchIcon& event) {
    if (event.row > 0) event.icon = grid.ValueAt(event.row, "Average").ToNumber() > 40 ? 2 : 3;
  };
  grid.SetColumns(columns);
  grid.SetRecordset(&bench.rows);
  EXPECT_EQ(table.model()->index(1, 9).data(Qt::AccessibleTextRole), "Win");
  EXPECT_EQ(table.model()->index(2, 9).data(Qt::AccessibleTextRole), "Loss");
  grid.SetRow(2);
  grid.SetCol("LastName");
  bench.Shot("grid-icons");
}

// Texts sorted by the numbers in them take another order than the recordset has.
TEST_F(GridViewsTest, AnIconIsAskedForByThePositionOfItsRowInTheRecordset) {
  QList<GridColumn> columns = PlayerColumns();
  columns.append({.caption = "W/L", .field = "WL", .editable = false, .icon = true});
  grid.SetIcons({{{}, ""}, {Letter("W"), "Win"}, {Letter("L"), "Loss"}});
  grid.on.FetchIcon = [&](GridFetchIcon& event) {
    if (event.position == 0) return;
    const bool snow = bench.rows.CellAt(event.position, 2) == Value("Snow");
    event.icon = snow ? 2 : 3;
  };
  grid.SetColumns(columns);
  grid.SetRecordset(&bench.rows);
  grid.AddSortKey("CardNumber");
  QStringList words;
  for (int line = 0; line <= 5; ++line)
    words << table.model()->index(line, 9).data(Qt::AccessibleTextRole).toString();
  EXPECT_EQ(bench.Column("LastName"), "Smith Snow Clark Adams Baker");
  EXPECT_EQ(words, QStringList({"", "Loss", "Win", "Loss", "Loss", "Loss"}));
}

TEST_F(GridViewsTest, AnEmptyGridSaysWhatToDoNext) {
  bench.rows.SetFilter("LastName = 'Nobody'");
  grid.Rebind();
  EXPECT_EQ(bench.Place(), "-1,-1");
  bench.Shot("grid-empty");
  const QImage with = table.viewport()->grab().toImage();
  grid.SetEmptyText("");
  EXPECT_NE(with, table.viewport()->grab().toImage());
}

// The texts of the cells stand out from their paper, also in the dark.
TEST(GridPaletteTest, TheGridIsReadableInTheDarkToo) {
  UseDarkPalette();
  {
    GridBench bench;
    bench.grid->SetRow(2);
    bench.Shot("grid-dark-row");
    bench.grid->SetCol("LastName");
    bench.Shot("grid-dark");
    const QImage picture = bench.grid->grab().toImage();
    const QPoint paper = bench.grid->rect().center() + QPoint(0, 120);
    EXPECT_LT(picture.pixelColor(paper).lightness(), 60);
    bench.Press(Qt::Key_F2);
    bench.Shot("grid-dark-editing");
    bench.Press(Qt::Key_Escape);
    bench.grid->SetView(GridEX::View::Card);
    bench.Shot("grid-dark-cards");
  }
  UseLightPalette();
}

TEST_F(GridViewsTest, StandingOnACellAndEditingItLookDifferent) {
  grid.SetRow(2);
  grid.SetCol("LastName");
  const QImage elsewhere = table.viewport()->grab().toImage();
  bench.Shot("grid-standing");
  bench.Press(Qt::Key_F2);
  EXPECT_NE(table.viewport()->grab().toImage(), elsewhere);
  bench.Shot("grid-editing");
  bench.Press(Qt::Key_Escape);
  bench.after->setFocus();
  EXPECT_NE(table.viewport()->grab().toImage(), elsewhere);
  grid.SetRow(3);
  grid.SetValue("Active", true);
  bench.Shot("grid-nofocus");
}

}  // namespace
}  // namespace tavrelin
