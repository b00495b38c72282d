#include "data/Recordset.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "basic/Error.h"
#include "support/QtPrinters.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

Recordset Numbers(int count) {
  Recordset rows;
  rows.Append("ID", FieldType::Long);
  rows.Append("Name", FieldType::Text, 8);
  rows.OpenInMemory();
  for (int id = 1; id <= count; ++id) {
    rows.AddNew();
    rows.Set("ID", id);
    rows.Set("Name", QStringLiteral("n%1").arg(id));
    rows.Update();
  }
  rows.MoveFirst();
  return rows;
}

int NumberOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const Error& error) {
    return error.number();
  }
  return 0;
}

TEST(Recordset, WalksFromTheFirstRowToBehindTheLast) {
  Recordset rows = Numbers(3);
  QString walked;
  for (; !rows.AtEnd(); rows.MoveNext()) walked += rows["ID"].ToText();
  EXPECT_EQ(walked, "123");
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_EQ(rows.CurrentBookmark(), 0);
  EXPECT_EQ(NumberOf([&] { rows.MoveNext(); }), errors::RecordState);
  EXPECT_EQ(NumberOf([&] { rows["ID"]; }), errors::RecordState);
  rows.MovePrevious();
  EXPECT_EQ(rows["ID"], Value(3));
  rows.MoveFirst();
  rows.MovePrevious();
  EXPECT_TRUE(rows.AtBeginning());
  EXPECT_EQ(NumberOf([&] { rows.MovePrevious(); }), errors::RecordState);
}

TEST(Recordset, AnEmptyOneIsAtItsBeginningAndItsEnd) {
  Recordset rows = Numbers(0);
  EXPECT_TRUE(rows.AtBeginning());
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_EQ(rows.RecordCount(), 0);
  rows.MoveFirst();
  rows.MoveLast();
  EXPECT_TRUE(rows.AtEnd());
}

TEST(Recordset, PositionsAndBookmarksNameTheSameRows) {
  Recordset rows = Numbers(5);
  rows.SetAbsolutePosition(4);
  const Recordset::Bookmark fourth = rows.CurrentBookmark();
  EXPECT_EQ(rows.BookmarkAt(4), fourth);
  rows.SetSort("ID DESC");
  EXPECT_EQ(rows.PositionOf(fourth), 2);
  EXPECT_TRUE(rows.GoTo(fourth));
  EXPECT_EQ(rows["ID"], Value(4));
  rows.SetFilter("ID < 3");
  EXPECT_EQ(rows.PositionOf(fourth), 0);
  EXPECT_FALSE(rows.GoTo(fourth));
  EXPECT_EQ(rows["ID"], Value(2));
  rows.SetFilter("");
  EXPECT_TRUE(rows.GoTo(fourth));
  EXPECT_EQ(NumberOf([&] { rows.SetAbsolutePosition(6); }), errors::RecordState);
  EXPECT_EQ(NumberOf([&] { rows.CellAt(0, 0); }), errors::RecordState);
  EXPECT_EQ(rows["ID"], Value(4));
}

TEST(Recordset, FieldNamesAreFoundInAnyCase) {
  Recordset rows = Numbers(1);
  EXPECT_EQ(rows["id"], Value(1));
  EXPECT_EQ(rows.FieldIndex("NAME"), 1);
  EXPECT_EQ(rows.FieldIndex("Nickname"), -1);
  EXPECT_EQ(NumberOf([&] { rows["Nickname"]; }), errors::NoSuchField);
  EXPECT_EQ(NumberOf([&] { rows.Set("Nickname", 1); }), errors::NoSuchField);
  EXPECT_EQ(NumberOf([&] { rows.At(2); }), errors::NoSuchField);
}

TEST(Recordset, ACloneHasTheSameRowsAndItsOwnPlace) {
  Recordset rows = Numbers(4);
  rows.SetAbsolutePosition(3);
  Recordset clone = rows.Clone();
  EXPECT_EQ(clone["ID"], Value(1));
  clone.SetSort("ID DESC");
  clone.SetFilter("ID <> 2");
  EXPECT_EQ(Column(clone, "ID"), "4 3 1");
  EXPECT_EQ(Column(rows, "ID"), "1 2 3 4");
  EXPECT_EQ(rows["ID"], Value(3));
  EXPECT_TRUE(clone.GoTo(rows.CurrentBookmark()));
  EXPECT_EQ(clone["ID"], Value(3));
}

TEST(Recordset, ACloneSeesWhatTheOriginalWritesAndTheReverse) {
  Recordset rows = Numbers(4);
  Recordset clone = rows.Clone();
  clone.SetFilter("ID > 1");
  clone.MoveLast();

  rows.Set("Name", "first");
  rows.Update();
  rows.MoveNext();
  rows.Delete();
  EXPECT_EQ(Column(clone, "ID"), "3 4");
  EXPECT_EQ(clone["ID"], Value(4));
  rows.AddNew();
  rows.Set("ID", 7);
  rows.Update();
  rows.AddNew();
  rows.Set("ID", 0);
  rows.Update();
  EXPECT_EQ(Column(clone, "ID"), "3 4 7");

  clone.Set("Name", "fourth");
  clone.Update();
  EXPECT_EQ(Column(rows, "Name"), "first n3 fourth - -");
}

TEST(Recordset, RowsLiveAsLongAsTheLastClone) {
  auto rows = std::make_unique<Recordset>(Numbers(2));
  const Recordset clone = rows->Clone();
  rows.reset();
  EXPECT_EQ(Column(clone, "ID"), "1 2");
}

TEST(Recordset, FieldsAreAppendedOnlyBeforeOpening) {
  Recordset rows;
  rows.Append("Win", FieldType::Double);
  EXPECT_EQ(NumberOf([&] { rows.Append("win", FieldType::Long); }), errors::RecordState);
  EXPECT_EQ(NumberOf([&] { rows.AddNew(); }), errors::RecordState);
  rows.OpenInMemory();
  EXPECT_EQ(NumberOf([&] { rows.Append("Loss", FieldType::Long); }), errors::RecordState);
}

}  // namespace
}  // namespace tavrelin
