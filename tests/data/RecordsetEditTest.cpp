#include <gtest/gtest.h>

#include <QDate>

#include "basic/Error.h"
#include "data/Recordset.h"
#include "support/QtPrinters.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

struct RecordsetEdit : testing::Test {
  RecordsetEdit() {
    rows.Append("ID", FieldType::Long);
    rows.Append("Name", FieldType::Text, 5);
    rows.Append("Paid", FieldType::YesNo);
    rows.Append("Date", FieldType::Date);
    rows.OpenInMemory();
    for (int id = 1; id <= 4; ++id) {
      rows.AddNew();
      rows.Set("ID", id);
      rows.Set("Name", QStringLiteral("n%1").arg(id));
      rows.Update();
    }
    rows.MoveFirst();
  }
  Recordset rows;
};

TEST_F(RecordsetEdit, AChangeShowsAtOnceAndIsWrittenByUpdate) {
  rows.Set("Name", "Anna");
  EXPECT_TRUE(rows.IsEditing());
  EXPECT_FALSE(rows.IsAdding());
  EXPECT_EQ(rows["Name"], Value("Anna"));
  EXPECT_EQ(rows.CellAt(1, 1), Value("Anna"));
  EXPECT_EQ(rows.Clone()["Name"], Value("n1"));
  rows.Update();
  EXPECT_FALSE(rows.IsEditing());
  EXPECT_EQ(rows.Clone()["Name"], Value("Anna"));
}

TEST_F(RecordsetEdit, CancelUpdateGivesTheChangeUp) {
  rows.Set("Name", "Anna");
  rows.CancelUpdate();
  EXPECT_EQ(rows["Name"], Value("n1"));
  rows.AddNew();
  rows.CancelUpdate();
  EXPECT_EQ(rows.RecordCount(), 4);
  EXPECT_EQ(rows["ID"], Value(1));
}

TEST_F(RecordsetEdit, LeavingTheRowWritesTheChange) {
  rows.Set("Name", "Anna");
  rows.MoveNext();
  EXPECT_EQ(rows["ID"], Value(2));
  rows.Set("Name", "Bert");
  rows.Find("ID = 4");
  rows.Set("Name", "Dora");
  rows.SetSort("ID DESC");
  EXPECT_EQ(Column(rows, "Name"), "Dora n3 Bert Anna");
}

TEST_F(RecordsetEdit, AddNewPutsTheCursorOnTheNewRow) {
  rows.SetSort("ID DESC");
  rows.AddNew();
  EXPECT_TRUE(rows.IsAdding());
  EXPECT_FALSE(rows.AtEnd());
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_TRUE(rows["Name"].IsNull());
  EXPECT_EQ(rows["Paid"], Value(false));
  rows.Set("ID", 9);
  EXPECT_EQ(rows.RecordCount(), 4);
  rows.Update();
  EXPECT_EQ(rows["ID"], Value(9));
  EXPECT_EQ(rows.AbsolutePosition(), 5);
  rows.SetSort("ID DESC");
  EXPECT_EQ(Column(rows, "ID"), "9 4 3 2 1");
}

TEST_F(RecordsetEdit, AValueWiderThanItsFieldIsRefusedAndTheRestOfTheRowStays) {
  rows.Set("Paid", 1);
  try {
    rows.Set("Name", "Annabel");
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), errors::FieldTooSmall);
  }
  EXPECT_EQ(rows["Name"], Value("n1"));
  EXPECT_EQ(rows["Paid"], Value(true));
  EXPECT_THROW(rows.Set("ID", "x"), Error);
  EXPECT_THROW(rows.Set("Date", "31/31/2020"), Error);
  rows.Set("Date", "2/29/2020");
  rows.Update();
  EXPECT_EQ(rows["Date"], Value(QDate(2020, 2, 29)));
}

TEST_F(RecordsetEdit, DeleteGoesToTheNextRowOrBehindTheLast) {
  rows.SetAbsolutePosition(3);
  const Recordset::Bookmark third = rows.CurrentBookmark();
  rows.Delete();
  EXPECT_EQ(rows["ID"], Value(4));
  EXPECT_EQ(rows.PositionOf(third), 0);
  EXPECT_FALSE(rows.GoTo(third));
  rows.Delete();
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_THROW(rows.Delete(), Error);
  EXPECT_EQ(Column(rows, "ID"), "1 2");
}

TEST_F(RecordsetEdit, TheLatestTenAreKeptByDeletingFromTheEnd) {
  for (int id = 5; id <= 14; ++id) {
    rows.AddNew();
    rows.Set("ID", id);
    rows.Update();
  }
  rows.SetSort("ID DESC");
  while (rows.RecordCount() >= 11) {
    rows.MoveLast();
    rows.Delete();
  }
  EXPECT_EQ(Column(rows, "ID"), "14 13 12 11 10 9 8 7 6 5");
}

TEST_F(RecordsetEdit, ARowThatACloneDeletedCannotBeUpdated) {
  Recordset clone = rows.Clone();
  rows.Set("Name", "Anna");
  clone.Delete();
  EXPECT_THROW(rows.Update(), Error);
  EXPECT_TRUE(rows.IsEditing());
  rows.CancelUpdate();
  EXPECT_EQ(Column(rows, "Name"), "n2 n3 n4");
}

TEST_F(RecordsetEdit, AWalkThatWritesTheSortedFieldMeetsEveryRowOnce) {
  rows.SetSort("ID ASC");
  int rank = 10;
  for (; !rows.AtEnd(); rows.MoveNext()) rows.Set("ID", --rank);
  EXPECT_EQ(Column(rows, "ID"), "9 8 7 6");
  rows.SetSort(rows.Sort());
  EXPECT_EQ(Column(rows, "ID"), "6 7 8 9");
}

}  // namespace
}  // namespace tavrelin
