#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "basic/Value.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

template <class... Given>
constexpr bool CanBeAnyOf = (std::is_constructible_v<Value, Given> || ...);

// Whatever else C++ would turn into a yes or a number by itself does not compile.
static_assert(!CanBeAnyOf<const char16_t*, const char32_t*, const wchar_t*, const void*, int*,
                          Value*, void (*)(), std::nullptr_t>);
static_assert(!CanBeAnyOf<char, char16_t, wchar_t>);
static_assert(std::is_constructible_v<Value, bool> && std::is_constructible_v<Value, const char*>);

TEST(Value, OnlyARealBoolIsYesOrNo) {
  const bool yes = true;
  EXPECT_EQ(Value(yes).kind(), Value::Kind::YesNo);
  EXPECT_EQ(Value(1).kind(), Value::Kind::Whole);
  EXPECT_EQ(Value("Ann").kind(), Value::Kind::Text);
}

TEST(Value, ItsTextIsInUsForm) {
  const QList<QPair<Value, QString>> cases = {
      {Value(), u""_qs},
      {true, u"True"_qs},
      {false, u"False"_qs},
      {0, u"0"_qs},
      {-42, u"-42"_qs},
      {std::numeric_limits<qint64>::min(), u"-9223372036854775808"_qs},
      {0.0, u"0"_qs},
      {-0.0, u"0"_qs},
      {2.5, u"2.5"_qs},
      {-0.125, u"-0.125"_qs},
      {0.1 + 0.2, u"0.3"_qs},
      {1.0 / 3, u"0.333333333333333"_qs},
      {200.0 / 3, u"66.6666666666667"_qs},
      {0.00001, u"0.00001"_qs},
      {123456789012345.0, u"123456789012345"_qs},
      {1e15, u"1E+15"_qs},
      {-1.5e20, u"-1.5E+20"_qs},
      {static_cast<double>(3.1f), u"3.1"_qs},
      {static_cast<double>(45.67f), u"45.67"_qs},
      {100000008.0, u"100000008"_qs},
      {"As typed ", u"As typed "_qs},
      {QDate(2024, 1, 2), u"1/2/2024"_qs},
      {QDateTime(QDate(2024, 11, 12), QTime(8, 5)), u"11/12/2024 8:05:00 AM"_qs},
      {QDateTime(QDate(2024, 11, 12), QTime(0, 5)), u"11/12/2024 12:05:00 AM"_qs},
      {QDateTime(QDate(2024, 11, 12), QTime(12, 0)), u"11/12/2024 12:00:00 PM"_qs},
      {QDateTime(QDate(2024, 11, 12), QTime(23, 59, 58)), u"11/12/2024 11:59:58 PM"_qs},
      {QDateTime(QDate(1899, 12, 30), QTime(8, 0)), u"8:00:00 AM"_qs},
      {QDateTime(), u""_qs},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(value.ToText(), text);
}

TEST(Value, ItsNumberNeverFails) {
  EXPECT_EQ(Value().ToNumber(), 0);
  EXPECT_EQ(Value(true).ToNumber(), -1);
  EXPECT_EQ(Value("12abc").ToNumber(), 12);
  EXPECT_EQ(Value("x").ToNumber(), 0);
  EXPECT_EQ(Value(QDate(2024, 1, 2)).ToNumber(), 45293);
  EXPECT_EQ(Value(2.5).ToWhole(), 2);
  EXPECT_EQ(Value(3.5).ToWhole(), 4);
  EXPECT_EQ(Value("-7.5").ToWhole(), -8);
  EXPECT_EQ(Value(1e30).ToWhole(), std::numeric_limits<qint64>::max());
  EXPECT_EQ(Value(-1e30).ToWhole(), std::numeric_limits<qint64>::min());
  EXPECT_EQ(Value(std::numeric_limits<qint64>::max()).ToWhole(),
            std::numeric_limits<qint64>::max());
}

TEST(Value, YesIsAnythingButZeroAndNo) {
  for (const Value& yes :
       {Value(true), Value(-1), Value(1), Value(0.5), Value("TRUE"), Value(" yes "), Value("-1")}) {
    EXPECT_TRUE(yes.ToYesNo());
  }
  for (const Value& no : {Value(), Value(false), Value(0), Value(0.0), Value(""), Value("No"),
                          Value("False"), Value("0"), Value("1st")}) {
    EXPECT_FALSE(no.ToYesNo());
  }
}

TEST(Value, ItsDateIsReadFromDatesAndTexts) {
  EXPECT_EQ(Value("1/2/2024").ToDate().date(), QDate(2024, 1, 2));
  EXPECT_EQ(Value(QDate(2024, 1, 2)).ToDate().date(), QDate(2024, 1, 2));
  EXPECT_FALSE(Value("soon").ToDate().isValid());
  EXPECT_FALSE(Value(45293).ToDate().isValid());
  EXPECT_FALSE(Value().ToDate().isValid());
}

TEST(Value, EqualIsSameKindAndContent) {
  EXPECT_EQ(Value(), Value());
  EXPECT_EQ(Value("a"), Value(u"a"_qs));
  EXPECT_FALSE(Value("a") == Value("A"));
  EXPECT_FALSE(Value(5) == Value(5.0));
  EXPECT_FALSE(Value("") == Value());
}

TEST(Value, CompareFollowsTheDataLayer) {
  const QList<QPair<Value, Value>> lessThan = {
      {Value(), ""},
      {Value(), -5},
      {Value(), QDate(1, 1, 1)},
      {2, 10},
      {2, 2.5},
      {true, false},
      {-2, true},
      {"a", "B"},
      {"10", "9"},
      {"E", "É"},
      {QDate(2024, 1, 9), QDate(2024, 1, 10)},
      {std::numeric_limits<qint64>::max() - 1, std::numeric_limits<qint64>::max()},
      {10, "9"},  // of mixed kinds the texts decide
  };
  for (const auto& [less, more] : lessThan) {
    EXPECT_LT(Value::Compare(less, more), 0) << testing::PrintToString(less);
    EXPECT_GT(Value::Compare(more, less), 0) << testing::PrintToString(less);
  }
  EXPECT_EQ(Value::Compare(Value(), Value()), 0);
  EXPECT_EQ(Value::Compare("smith", "SMITH"), 0);
  EXPECT_EQ(Value::Compare(5, 5.0), 0);
  EXPECT_EQ(Value::Compare("5", 5), 0);
}

}  // namespace
}  // namespace tavrelin
