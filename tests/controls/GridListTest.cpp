// Cells with a drop-down: what is typed beside the list counts as what is chosen from it.

#include <QComboBox>
#include <QListWidget>

#include "controls/GridBench.h"

namespace tavrelin {
namespace {

// The card number stands in for a sanction number: typed freely, or one of the list.
QList<GridColumn> ColumnsWithCombo() {
  QList<GridColumn> columns = PlayerColumns();
  columns[4].editor = CellEditor::Combo;
  columns[4].maxLength = 9;
  columns[4].values = {{"25A01", "MN-25-A01"}, {"25B02", "MN-25-B02"}, {"WI9", "WI-24-X99"}};
  return columns;
}

struct GridListTest : testing::Test {
  GridBench bench{Players(), ColumnsWithCombo()};
  GridEX& grid = *bench.grid;

  void Type(const QString& text) {
    grid.SetCol("CardNumber");
    bench.Type(text);
  }
  QListWidget& List() { return *bench.window.findChild<QListWidget*>("Suggestions"); }
  QStringList Suggested() {
    QStringList texts;
    for (int i = 0; List().isVisible() && i < List().count(); ++i) texts << List().item(i)->text();
    return texts;
  }
  QComboBox* Open() const {
    for (auto* combo : bench.window.findChildren<QComboBox*>("CellEditor")) {
      if (combo->isVisible()) return combo;
    }
    return nullptr;
  }
  QString TypedSoFar() const { return Open() ? Open()->currentText() : "(closed)"; }
  // The next cell has the keys, and what is typed arrives there.
  void ExpectTypingGoesOn() {
    EXPECT_EQ(QApplication::activeWindow(), &bench.window);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    grid.SetCol("FirstName");
    bench.Type("Zoe");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(grid.Value("FirstName"), Value("Zoe"));
  }
};

TEST_F(GridListTest, WhatBeginsAsTypedIsSuggestedHyphensLeftAside) {
  Type("mn25");
  EXPECT_EQ(Suggested(), QStringList({"MN-25-A01", "MN-25-B02"}));
  bench.Type("b");
  EXPECT_EQ(Suggested(), QStringList("MN-25-B02"));
  EXPECT_EQ(TypedSoFar(), "MN25B") << "nothing is put in that was not typed";
  bench.Shot("grid-suggestions");
  bench.Type("9");
  EXPECT_EQ(Suggested(), QStringList());
}

TEST_F(GridListTest, SuggestionsTakeNeitherTheTextNorTheTabNorTheNextCell) {
  for (const char* typed : {"mn", "wi-24-x99", "ZZ"}) {
    Type(typed);
    bench.Press(Qt::Key_Tab);
    EXPECT_FALSE(grid.IsEditing()) << typed;
    EXPECT_FALSE(List().isVisible()) << typed;
    EXPECT_EQ(grid.ColumnKey(grid.Col()), "BirthDate") << typed;
    ExpectTypingGoesOn();
  }
  EXPECT_EQ(grid.Value("CardNumber"), Value("ZZ"));
}

TEST_F(GridListTest, CharactersReachTheScreenAsInAnyOtherCell) {
  QString seen;
  grid.on.KeyPress = [&seen](GridKeyPress& press) {
    seen += press.character;
    if (press.character == '-') press.character = {};
  };
  Type("mn-25");
  EXPECT_EQ(seen, "MN-25");
  EXPECT_EQ(TypedSoFar(), "MN25") << "swallowed by the screen";
}

TEST_F(GridListTest, ATextOfTheListIsStoredByItsCode) {
  Type("wi-24-x99");
  ASSERT_TRUE(grid.CommitRow());
  EXPECT_EQ(bench.Stored(1, "CardNumber"), "WI9");
}

TEST_F(GridListTest, DownAndUpBringASuggestionIntoTheCell) {
  Type("mn");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(TypedSoFar(), "MN-25-A01");
  bench.Press(Qt::Key_Down);
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(TypedSoFar(), "MN-25-B02") << "the last one stays";
  bench.Press(Qt::Key_Up);
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(grid.Value("CardNumber"), Value("25A01"));
  ExpectTypingGoesOn();
}

TEST_F(GridListTest, AClickChoosesASuggestion) {
  Type("mn");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                    List().visualItemRect(List().item(1)).center());
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(grid.Value("CardNumber"), Value("25B02"));
  ExpectTypingGoesOn();
}

TEST_F(GridListTest, EscTakesTheSuggestionsAndWhatWasTyped) {
  Type("mn");
  bench.Press(Qt::Key_Escape);
  EXPECT_FALSE(List().isVisible());
  EXPECT_EQ(grid.Value("CardNumber"), Value("900"));
  ExpectTypingGoesOn();
}

TEST_F(GridListTest, SuggestionsStayInsideTheWindow) {
  ASSERT_TRUE(grid.SetRow(5));
  bench.window.resize(1100, 330);
  Type("mn");
  ASSERT_TRUE(List().isVisible());
  EXPECT_TRUE(bench.window.rect().contains(List().geometry()));
}

TEST_F(GridListTest, AfterAChoiceFromTheOpenListTypingGoesOn) {
  for (const char* column : {"MembershipType", "CardNumber"}) {
    grid.SetCol(column);
    bench.Press(Qt::Key_F4);
    ASSERT_TRUE(Open()) << column;
    QAbstractItemView* list = Open()->view();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_FALSE(grid.IsEditing()) << column;
    ExpectTypingGoesOn();
  }
}

TEST_F(GridListTest, ATypedLetterOfAListAndATabTakeTheCellOver) {
  grid.SetCol("MembershipType");
  bench.Type("p");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(grid.Value("MembershipType"), Value("P"));
  ExpectTypingGoesOn();
}

TEST_F(GridListTest, AListIsSearchedByAllThatIsTypedBlanksIncluded) {
  const struct {
    const char *typed, *code;
  } cases[] = {{"sr w", "SW"}, {"s", "SM"},    {"ss", "SW"},
               {"sss", "SM"},  {"SR M", "SM"}, {"wx", "W"}};
  grid.SetValueList("MembershipType",
                    {{"L", "Lifetime"}, {"W", "Women"}, {"SM", "Sr Men"}, {"SW", "Sr Women"}});
  for (const auto& c : cases) {
    grid.SetCol("MembershipType");
    bench.Type(c.typed);
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(grid.Value("MembershipType"), Value(c.code)) << c.typed;
    ExpectTypingGoesOn();
  }
}

TEST_F(GridListTest, ABlankAloneOpensTheList) {
  grid.SetCol("MembershipType");
  bench.Type(" ");
  ASSERT_TRUE(Open());
  EXPECT_TRUE(Open()->view()->isVisible());
  QTest::keyClick(Open()->view(), Qt::Key_Escape);
}

}  // namespace
}  // namespace tavrelin
