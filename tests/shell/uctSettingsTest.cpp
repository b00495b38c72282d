#include "shell/uctSettings.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct uctSettingsTest : testing::Test {
  ScreenBench bench;

  void SetUp() override { bench.Show<uctSettings>(); }
  void TearDown() override { UseLightPalette(); }

  GridEX& Grid() { return bench.Find<GridEX>("grdSettings"); }
  QString Stored(int id) {
    Connection connection;
    connection.Open(ConnectString);
    Recordset row;
    row.Open("SELECT SettingValue FROM SystemSettings WHERE SettingID = ?", connection,
             Recordset::Lock::ReadOnly, {id});
    return row.AtEnd() ? QString() : row.At(0).ToText();
  }
  int RowOf(int id) {
    for (int row = 1; row <= Grid().RowCount(); ++row) {
      if (Grid().ValueAt(row, "SettingID").ToWhole() == id) return row;
    }
    return 0;
  }
  /// Types a value into a setting and takes the row over.
  void Set(int id, const QString& value) {
    ASSERT_TRUE(Grid().SetRow(RowOf(id)));
    ASSERT_TRUE(Grid().SetCol("SettingValue"));
    bench.Type(value);
    bench.Press(Qt::Key_Return);
  }
  int CurrentID() { return static_cast<int>(Grid().Value("SettingID").ToWhole()); }
};

TEST_F(uctSettingsTest, ShowsNineSettingsWithoutTheVersionAndTheLeagueSync) {
  QStringList ids;
  for (int row = 1; row <= Grid().RowCount(); ++row) ids << Grid().TextAt(row, "SettingID");
  EXPECT_EQ(ids, QStringList({"1", "2", "3", "4", "5", "6", "7", "9", "10"}));
  EXPECT_EQ(Grid().TextAt(1, "PromptValue"), "Round Robin Cards Vertical Adjustment");
  EXPECT_FALSE(bench.person.busy);
}

TEST_F(uctSettingsTest, ColumnsStandAsTheyAreDrawn) {
  const QList<GridColumn>& columns = Grid().Columns();
  ASSERT_EQ(columns.size(), 3);
  const struct {
    const char *caption, *field;
    int width;
    bool editable;
    int maxLength;
  } drawn[] = {{"ID", "SettingID", 495, false, 0},
               {"Setting", "PromptValue", 4995, false, 0},
               {"Value", "SettingValue", 1995, true, 20}};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(columns[i].caption, drawn[i].caption);
    EXPECT_EQ(columns[i].field, drawn[i].field);
    EXPECT_EQ(columns[i].width, drawn[i].width);
    EXPECT_EQ(columns[i].editable, drawn[i].editable);
    EXPECT_EQ(columns[i].maxLength, drawn[i].maxLength);
  }
  EXPECT_FALSE(Grid().AllowAddNew());
  EXPECT_FALSE(Grid().AllowDelete());
}

TEST_F(uctSettingsTest, ATypedValueIsStored) {
  Set(5, "Y");
  EXPECT_EQ(Stored(5), "Y");
  EXPECT_EQ(bench.person.beeps, 0);
}

TEST_F(uctSettingsTest, XInAnAdjustmentOfTheCardsIsRefusedAndTheOperatorStays) {
  for (const int id : {1, 2}) {
    Set(id, "X");
    EXPECT_EQ(bench.Message(), "Adjustment must be numeric");
    EXPECT_TRUE(bench.Refused());
    EXPECT_EQ(bench.person.beeps, id);
    EXPECT_EQ(CurrentID(), id);
    EXPECT_EQ(Grid().Value("SettingValue"), Value("X"));
    EXPECT_EQ(Stored(id), "0");
    Set(id, "-120");
    EXPECT_EQ(Stored(id), "-120");
    EXPECT_EQ(bench.Message(), "");
  }
}

TEST_F(uctSettingsTest, XInTheOffsetOfResultsIsStored) {
  Set(9, "X");
  EXPECT_EQ(Stored(9), "X");
  EXPECT_EQ(bench.person.beeps, 0);
}

TEST_F(uctSettingsTest, ACardStyleTakesWhateverIsTyped) {
  Set(3, "folded, please");
  EXPECT_EQ(Stored(3), "folded, please");
}

TEST_F(uctSettingsTest, NoMoreThanTwentyCharactersCanBeTyped) {
  Set(3, "123456789012345678901234");
  EXPECT_EQ(Stored(3), "12345678901234567890");
}

TEST_F(uctSettingsTest, TypingOnTheRowSelectorGoesToTheSettingThatBeginsSo) {
  bench.Type("RECORD");
  EXPECT_EQ(CurrentID(), 5);
  QTest::qWait(1600);  // the word is over
  bench.Type("t");
  EXPECT_EQ(CurrentID(), 9);
}

TEST_F(uctSettingsTest, APauseOfOneAndAHalfSecondsEndsTheWord) {
  EXPECT_EQ(bench.Find("uctSettings").findChild<QTimer*>("Timer1")->interval(), 1500);
}

TEST_F(uctSettingsTest, WhatNoSettingBeginsWithMovesNothing) {
  bench.Type("O");
  EXPECT_EQ(CurrentID(), 10);
  bench.Type("zz");
  EXPECT_EQ(CurrentID(), 10);
}

TEST_F(uctSettingsTest, LeavingTheScreenSavesTheOpenCell) {
  Grid().SetRow(RowOf(4));
  Grid().SetCol("SettingValue");
  bench.Type("Y");
  bench.LeaveAndReturn();
  EXPECT_EQ(Stored(4), "Y");
  EXPECT_EQ(Grid().ValueAt(RowOf(4), "SettingValue"), Value("Y"));
}

TEST_F(uctSettingsTest, LeavingWithARefusedValueKeepsTheOldOne) {
  Grid().SetRow(RowOf(1));
  Grid().SetCol("SettingValue");
  bench.Type("X");
  bench.LeaveAndReturn();
  EXPECT_EQ(Stored(1), "0");
  EXPECT_EQ(Grid().ValueAt(1, "SettingValue"), Value("0"));
}

TEST_F(uctSettingsTest, LooksItsPartInLightAndDark) {
  EXPECT_EQ(CutTexts(bench.Find("uctSettings")), QStringList());
  bench.Shot("settings");
  Set(1, "X");
  bench.Shot("settings-refused");
  UseDarkPalette();
  bench.Shot("settings-dark");
}

}  // namespace
}  // namespace tavrelin
