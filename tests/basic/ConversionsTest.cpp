#include <gtest/gtest.h>

#include <limits>
#include <QLocale>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

template <typename Work>
int ErrorNumber(Work work) {
  try {
    work();
  } catch (const Error& error) {
    EXPECT_FALSE(error.description().isEmpty());
    return error.number();
  }
  return 0;
}

TEST(Conversions, IsNumericReadsWhatBasicReads) {
  for (const char* text : {"0", "12", " -1.5 ", "1,234.5", "$5", "-$5", "$-5", "1e3", "1.5E-2",
                           "(5)", "($1,234.50)", "5-", "+7", ".5", "5.", "007", "  42"}) {
    EXPECT_TRUE(IsNumeric(text)) << text;
  }
  for (const char* text :
       {"",     " ",  "12abc", "abc", "$",  "-",        ".",    "--5", "(5",   "5)",
        "(-5)", "1e", "1.2.3", "1 2", "5%", "1/2/2024", "8:00", "٣",   "True", ",5"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
  EXPECT_FALSE(IsNumeric(Value()));
  EXPECT_FALSE(IsNumeric(QDate(2024, 1, 2)));
  EXPECT_TRUE(IsNumeric(true));
  EXPECT_TRUE(IsNumeric(5));
  EXPECT_TRUE(IsNumeric(2.5));
}

TEST(Conversions, ValTakesTheLeadingNumber) {
  const QList<QPair<const char*, double>> cases = {
      {"", 0},    {"abc", 0},     {"12abc", 12}, {" 1 2 3", 123}, {"-4.5x", -4.5},
      {"+3", 3},  {".5", 0.5},    {"5.", 5},     {"1e3", 1000},   {"1e", 1},
      {"1e+", 1}, {"2E-1z", 0.2}, {"1,234", 1},  {"$5", 0},       {"-", 0},
      {".", 0},   {"1.2.3", 1.2}, {"--1", 0},    {"1-2", 1},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(Val(QString::fromUtf8(text)), number) << text;
}

TEST(Conversions, WholeNumbersRoundHalvesToEven) {
  const QList<QPair<double, int>> cases = {{0.5, 0},   {1.5, 2},    {2.5, 2},
                                           {3.5, 4},   {-0.5, 0},   {-1.5, -2},
                                           {-2.5, -2}, {2.4999, 2}, {2.5001, 3}};
  for (const auto& [number, whole] : cases) {
    EXPECT_EQ(CInt(number), whole) << number;
    EXPECT_EQ(CLng(number), whole) << number;
    EXPECT_EQ(RoundHalfEven(number), whole) << number;
  }
}

TEST(Conversions, WholeNumbersOverflowAtTheirWidth) {
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(CInt("-32768"), -32768);
  EXPECT_EQ(ErrorNumber([] { CInt(32767.5); }), errors::Overflow);
  EXPECT_EQ(ErrorNumber([] { CInt(-32769); }), errors::Overflow);
  EXPECT_EQ(CLng("2147483647"), 2147483647);
  EXPECT_EQ(CLng(-2147483648.0), std::numeric_limits<qint32>::min());
  EXPECT_EQ(ErrorNumber([] { CLng(2147483647.5); }), errors::Overflow);
  EXPECT_EQ(ErrorNumber([] { CLng("1e10"); }), errors::Overflow);
  EXPECT_EQ(ErrorNumber([] { CLng(std::numeric_limits<double>::quiet_NaN()); }), errors::Overflow);
}

TEST(Conversions, IsIntSaysWhatCIntCanRead) {
  for (const Value& value : {Value(0), Value(-32768), Value(32767.4), Value("12"),
                             Value(" $1,234 "), Value(true), Value("1e-999")}) {
    EXPECT_TRUE(IsInt(value)) << value.ToText().toStdString();
    EXPECT_NO_THROW(CInt(value));
  }
  for (const Value& value : {Value(), Value(""), Value("x"), Value(32767.5), Value("-32769"),
                             Value("1e9"), Value("1e999"), Value(QDate(2026, 5, 9))}) {
    EXPECT_FALSE(IsInt(value)) << value.ToText().toStdString();
  }
}

TEST(Conversions, NumbersReadTextsInUsForm) {
  EXPECT_EQ(CDbl("1,234.5"), 1234.5);
  EXPECT_EQ(CDbl("(5)"), -5);
  EXPECT_EQ(CDbl("5-"), -5);
  EXPECT_EQ(CDbl("$ 12.50"), 12.5);
  EXPECT_EQ(CDbl(true), -1);
  EXPECT_EQ(CDbl(QDate(1900, 1, 1)), 2);
  EXPECT_EQ(CDbl("1e-400"), 0);
  EXPECT_EQ(CSng("0.1"), 0.1f);
  EXPECT_EQ(ErrorNumber([] { CDbl("1e400"); }), errors::Overflow);
  EXPECT_EQ(ErrorNumber([] { CSng("1e39"); }), errors::Overflow);
}

TEST(Conversions, WhatCannotBeReadIsRefused) {
  for (const Value& value : {Value(), Value(""), Value(" "), Value("12abc"), Value("1/2/2024")}) {
    EXPECT_EQ(ErrorNumber([&] { CInt(value); }), errors::TypeMismatch);
    EXPECT_EQ(ErrorNumber([&] { CLng(value); }), errors::TypeMismatch);
    EXPECT_EQ(ErrorNumber([&] { CSng(value); }), errors::TypeMismatch);
    EXPECT_EQ(ErrorNumber([&] { CDbl(value); }), errors::TypeMismatch);
  }
  EXPECT_EQ(ErrorNumber([] { CStr(Value()); }), errors::TypeMismatch);
  EXPECT_EQ(ErrorNumber([] { CDate(Value()); }), errors::TypeMismatch);
  EXPECT_EQ(ErrorNumber([] { CDate("soon"); }), errors::TypeMismatch);
}

TEST(Conversions, StayInUsFormOnAGermanMachine) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(CDbl("1,234.5"), 1234.5);
  EXPECT_FALSE(IsNumeric("1.234,5"));
  EXPECT_EQ(Val(u"2.5"), 2.5);
  EXPECT_EQ(CStr(2.5), u"2.5");
  EXPECT_EQ(CStr(QDate(2024, 3, 5)), u"3/5/2024");
  EXPECT_EQ(CDate("5-Mar-2024").date(), QDate(2024, 3, 5));
  EXPECT_FALSE(IsDate("5-Mai-2024"));
  EXPECT_EQ(StoredDate(QDateTime(QDate(2024, 3, 5), QTime(13, 0))), u"2024-03-05 13:00:00");
  QLocale::setDefault(before);
}

TEST(Conversions, EscapeQuotesDoublesEachQuote) {
  EXPECT_EQ(EscapeQuotes(u"O'Neil's ''"_qs), u"O''Neil''s ''''");
  EXPECT_EQ(EscapeQuotes(QString()), QString());
  EXPECT_EQ(EscapeQuotes(u"\"quoted\""_qs), u"\"quoted\"");
}

}  // namespace
}  // namespace tavrelin
