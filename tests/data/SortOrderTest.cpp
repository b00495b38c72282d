#include "data/SortOrder.h"

#include <gtest/gtest.h>

#include <vector>

#include "basic/Error.h"
#include "support/QtPrinters.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

// Won, Name: with nulls, ties, mixed case and an accent.
Recordset Standings() {
  Recordset rows;
  rows.Append("ID", FieldType::Long);
  rows.Append("Won", FieldType::Single);
  rows.Append("Name", FieldType::Text, 20);
  rows.OpenInMemory();
  const std::vector<std::pair<Value, Value>> cells = {{3.5, "beta"},    {3, "Alpha"},
                                                      {Value(), "Elm"}, {3, "alpha"},
                                                      {0, Value()},     {3.5, "\u00c9lan"}};
  int id = 0;
  for (const auto& [won, name] : cells) {
    rows.AddNew();
    rows.Set("ID", ++id);
    rows.Set("Won", won);
    rows.Set("Name", name);
    rows.Update();
  }
  return rows;
}

TEST(SortOrder, OrdersByKeysStablyAndNullFirst) {
  struct Case {
    const char* keys;
    const char* ids;
  };
  const std::vector<Case> cases = {
      {"Won", "3 5 2 4 1 6"},
      {"Won ASC", "3 5 2 4 1 6"},
      {"won desc", "1 6 2 4 5 3"},
      {"Name", "5 2 4 1 6 3"},
      {"Name DESC", "3 6 1 2 4 5"},
      {"Won DESC, Name DESC", "6 1 2 4 5 3"},
      {"Won DESC,ID DESC", "6 1 4 2 5 3"},
      {"[Name] ASC, [ID] DESC", "5 4 2 1 6 3"},
      {"", "1 2 3 4 5 6"},
  };
  Recordset rows = Standings();
  for (const Case& c : cases) {
    rows.SetSort(QString::fromUtf8(c.keys));
    EXPECT_EQ(Column(rows, "ID"), c.ids) << c.keys;
    EXPECT_EQ(rows.Sort(), QString::fromUtf8(c.keys));
    EXPECT_EQ(rows.AbsolutePosition(), 1);
  }
}

TEST(SortOrder, RefusesAKeyItDoesNotKnow) {
  Recordset rows = Standings();
  rows.SetSort("ID DESC");
  EXPECT_THROW(rows.SetSort("Lost DESC"), Error);
  EXPECT_THROW(rows.SetSort("Won,,ID"), Error);
  EXPECT_EQ(Column(rows, "ID"), "6 5 4 3 2 1");
}

TEST(SortOrder, TextsAndNumbersInOneFieldAreOrderedByValueOrText) {
  RowStore store(1);
  for (const Value& value : {Value("10"), Value(9), Value(), Value("2")}) {
    store.AppendEmptyRow();
    store.Set(store.Rows() - 1, 0, value);
  }
  std::vector<int> order = {0, 1, 2, 3};
  SortRows(order, store, {Field{"Any", FieldType::Text, 0, true}}, {SortTerm{0, false}});
  EXPECT_EQ(order, (std::vector<int>{2, 0, 3, 1}));
}

}  // namespace
}  // namespace tavrelin
