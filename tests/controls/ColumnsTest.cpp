#include "controls/Columns.h"

#include <gtest/gtest.h>

#include "data/Recordset.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

TEST(Columns, EachKindIsTypedShownAndSortedInItsWay) {
  const struct {
    GridColumn column;
    CellEditor editor;
    SortKind sort;
    bool right;
    QString picture;
    int maxLength;
  } cases[] = {
      {TextColumn("Name", "Name", 100, 30), CellEditor::Text, SortKind::Text, false, "", 30},
      {NumberColumn("Seed", "Seed", 100), CellEditor::Number, SortKind::Numeric, true, "", 0},
      {PercentColumn("%", "Pct", 100), CellEditor::Number, SortKind::Numeric, true, "#0.00", 0},
      {DateColumn("Date", "Date", 100), CellEditor::Date, SortKind::Date, false, "mm/dd/yyyy", 0},
      {DateTimeColumn("At", "DateTime", 100), CellEditor::DateTime, SortKind::Date, false,
       "mm/dd/yyyy h:mm AMPM", 0},
      {CheckColumn("X", "Approved", 100), CellEditor::CheckBox, SortKind::Text, false, "", 0},
      {ListColumn("Cat", "Category", 100), CellEditor::List, SortKind::Text, false, "", 0},
      {SanctionColumn(100), CellEditor::Text, SortKind::Text, false, "@@-@@-@@@", 9},
      {StateColumn(100), CellEditor::List, SortKind::Text, false, "", 0},
      {NamesColumn("Name", "PlayerID", 100), CellEditor::Text, SortKind::Shown, false, "", 0},
  };
  for (const auto& c : cases) {
    const std::string name = c.column.field.toStdString();
    EXPECT_EQ(c.column.editor, c.editor) << name;
    EXPECT_EQ(c.column.sort, c.sort) << name;
    EXPECT_EQ(c.column.alignment == Qt::AlignRight, c.right) << name;
    EXPECT_EQ(c.column.picture, c.picture) << name;
    EXPECT_EQ(c.column.maxLength, c.maxLength) << name;
    EXPECT_EQ(c.column.width, 100) << name;
    EXPECT_TRUE(c.column.visible) << name;
  }
  EXPECT_FALSE(HiddenColumn("SanctionID").visible);
  EXPECT_FALSE(NamesColumn("Name", "PlayerID", 100).selectable);
  EXPECT_TRUE(SanctionColumn(100).upperCase);
}

TEST(Columns, WhatIsSaidOfAColumnChangesThatAlone) {
  const GridColumn column = NumberColumn("HiGm", "HiGame", 680)
                                .Keyed("High")
                                .Spoken("High game")
                                .Pictured("#0.0")
                                .Placed(3)
                                .Defaulted(0)
                                .SortedBy(SortKind::Text)
                                .Filling()
                                .Compacted()
                                .UpperCased()
                                .Skipped()
                                .ReadOnly();
  EXPECT_EQ(column.Key(), "High");
  EXPECT_EQ(column.spokenCaption, "High game");
  EXPECT_EQ(column.picture, "#0.0");
  EXPECT_EQ(column.position, 3);
  EXPECT_EQ(column.defaultValue, Value(0));
  EXPECT_EQ(column.sort, SortKind::Text);
  EXPECT_TRUE(column.fill && column.compact && column.upperCase);
  EXPECT_FALSE(column.selectable || column.editable);
  EXPECT_EQ(column.caption + column.field, "HiGmHiGame");
  EXPECT_EQ(column.editor, CellEditor::Number);
  EXPECT_EQ(NumberColumn("HiGm", "HiGame", 680).Key(), "HiGame");
}

TEST(Columns, NamesAreReadOutOfRowsWhoseCursorStays) {
  Recordset rows;
  rows.Append("PlayerID", FieldType::Text, 6);
  rows.Append("City", FieldType::Text, 20);
  rows.Append("PlayerName", FieldType::Text, 50);
  rows.OpenInMemory();
  const QStringList ids = {"SMIJOH", "OLSKAR"}, people = {"Smith, John", "Olson, Karen"};
  for (int i = 0; i < 2; ++i) {
    rows.AddNew();
    rows.Set("PlayerID", ids[i]);
    rows.Set("PlayerName", people[i]);
    rows.Update();
  }
  const ValueList names = NamesIn(rows, "PlayerID", "PlayerName");
  ASSERT_EQ(names.Items().size(), 2);
  EXPECT_EQ(names.Items()[names.IndexOf("olskar")].text, "Olson, Karen");
  EXPECT_EQ(rows.AbsolutePosition(), 2);
}

}  // namespace
}  // namespace tavrelin
