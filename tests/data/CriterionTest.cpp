#include "data/Criterion.h"

#include <gtest/gtest.h>

#include <QDate>
#include <vector>

#include "basic/Error.h"
#include "support/QtPrinters.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

// Five players: a null average, a name with an apostrophe, one beyond ASCII.
Recordset Players() {
  Recordset rows;
  rows.Append("Number", FieldType::Long);
  rows.Append("LastName", FieldType::Text, 25);
  rows.Append("Average", FieldType::Single);
  rows.Append("BirthDate", FieldType::Date);
  rows.Append("Active", FieldType::YesNo);
  rows.OpenInMemory();
  const auto add = [&rows](int number, const char* name, const Value& average, QDate born,
                           bool active) {
    rows.AddNew();
    rows.Set("Number", number);
    rows.Set("LastName", name);
    rows.Set("Average", average);
    rows.Set("BirthDate", born);
    rows.Set("Active", active);
    rows.Update();
  };
  add(1, "Smith", 61.3, QDate(1950, 1, 2), true);
  add(2, "O'Brien", Value(), QDate(1961, 12, 31), false);
  add(3, "smythe", 0.1, QDate(1944, 6, 6), true);
  add(4, "\u00c9tienne", 45, QDate(1950, 1, 2), false);
  add(5, "", -3, QDate(1970, 7, 4), true);
  rows.MoveFirst();
  return rows;
}

TEST(Criterion, ChoosesTheRowsThatMeetIt) {
  struct Case {
    const char* criteria;
    const char* numbers;
  };
  const std::vector<Case> cases = {
      {"", "1 2 3 4 5"},
      {"LastName = 'SMITH'", "1"},
      {"LastName <> 'smith'", "2 3 4 5"},
      {"LastName LIKE 'sm%'", "1 3"},
      {"lastname like 'sm_th'", "1"},
      {"LastName = 'O''Brien'", "2"},
      {"LastName > 'smith'", "3"},
      {"LastName = '\u00e9tienne'", "4"},
      {"LastName = 'Etienne'", ""},
      {"LastName = ''", "5"},
      {"[LastName] = \"Smith\"", "1"},
      {"Number >= 4", "4 5"},
      {"Number<=2", "1 2"},
      {"Number < 1.5", "1"},
      {"Average = 0.1", "3"},
      {"Average = 61.3", "1"},
      {"Average = -3", "5"},
      {"Average <> 45", "1 3 5"},
      {"Average = Null", "2"},
      {"Average <> Null", "1 3 4 5"},
      {"BirthDate = #1/2/1950#", "1 4"},
      {"BirthDate >= #1961-12-31#", "2 5"},
      {"BirthDate < 1/1/1950", "3"},
      {"BirthDate = '1/2/1950'", "1 4"},
      {"Active = True", "1 3 5"},
      {"Active = 0", "2 4"},
      {"Active = 1 AND Average > 0", "1 3"},
      {"Number > 1 and Number < 5 AND LastName LIKE '%e'", "3 4"},
      {"Number = '3'", "3"},
  };
  Recordset rows = Players();
  for (const Case& c : cases) {
    rows.SetFilter(QString::fromUtf8(c.criteria));
    EXPECT_EQ(Column(rows, "Number"), c.numbers) << c.criteria;
    EXPECT_EQ(rows.Filter(), QString::fromUtf8(c.criteria));
  }
}

TEST(Criterion, RefusesWhatItCannotReadAndLeavesTheFilterAsItWas) {
  struct Case {
    const char* criteria;
    int number;
  };
  const std::vector<Case> cases = {
      {"LastName", errors::Syntax},
      {"LastName = ", errors::Syntax},
      {"LastName = 'Smith", errors::Syntax},
      {"LastName ~ 'Smith'", errors::Syntax},
      {"Number = 1 AND", errors::Syntax},
      {"Number = '1' OR Number = '2'", errors::Syntax},
      {"= 3", errors::Syntax},
      {"Nickname = 'Bud'", errors::NoSuchField},
      {"Number = 'abc'", errors::DataTypeMismatch},
      {"BirthDate = 'soon'", errors::DataTypeMismatch},
  };
  Recordset rows = Players();
  rows.SetFilter("Number = 4");
  for (const Case& c : cases) {
    try {
      rows.SetFilter(QString::fromUtf8(c.criteria));
      ADD_FAILURE() << c.criteria << " was accepted";
    } catch (const Error& error) {
      EXPECT_EQ(error.number(), c.number) << c.criteria;
      EXPECT_EQ(Column(rows, "Number"), "4") << c.criteria;
    }
  }
}

TEST(Criterion, FindGoesForwardFromTheCurrentRow) {
  Recordset rows = Players();
  rows.Find("BirthDate = #1/2/1950#");
  EXPECT_EQ(rows["Number"], Value(1));
  rows.Find("BirthDate = #1/2/1950#");
  EXPECT_EQ(rows["Number"], Value(1));
  rows.Find("BirthDate = #1/2/1950#", 1);
  EXPECT_EQ(rows["Number"], Value(4));
  rows.Find("BirthDate = #1/2/1950#", 1);
  EXPECT_TRUE(rows.AtEnd());
}

TEST(Criterion, AnOptimizedFieldFindsTheSameRows) {
  Recordset plain = Players();
  Recordset fast = Players();
  fast.Optimize("LastName");
  fast.Optimize("Number");
  for (const char* criterion :
       {"LastName = 'SMITH'", "LastName = 'smythe'", "LastName = '\u00e9tienne'", "LastName = ''",
        "LastName = 'nobody'", "Number = 4", "Number = 9"}) {
    for (Recordset* rows : {&plain, &fast}) {
      rows->SetSort("Number DESC");
      rows->Find(QString::fromUtf8(criterion));
    }
    EXPECT_EQ(plain.AbsolutePosition(), fast.AbsolutePosition()) << criterion;
  }
  fast.SetSort("");
  fast.Set("LastName", "Jones");
  fast.Update();
  fast.Find("LastName = 'smith'");
  EXPECT_TRUE(fast.AtEnd());
  fast.MoveFirst();
  fast.Find("LastName = 'jones'");
  EXPECT_EQ(fast["Number"], Value(1));
}

}  // namespace
}  // namespace tavrelin
