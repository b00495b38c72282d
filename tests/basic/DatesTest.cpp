#include <gtest/gtest.h>

#include "basic/Conversions.h"
#include "basic/Dates.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct DateCase {
  const char* text;
  const char* stored;  // empty: no date
};

TEST(Dates, ReadInUsForm) {
  const DateCase cases[] = {
      {"1/2/2024", "2024-01-02 00:00:00"},
      {" 01/02/2024 ", "2024-01-02 00:00:00"},
      {"1-2-2024", "2024-01-02 00:00:00"},
      {"2024-1-2", "2024-01-02 00:00:00"},
      {"2024-01-02 13:05:09", "2024-01-02 13:05:09"},
      {"2024-02-30 13:05:09", ""},
      {"2024-01-02 24:05:09", ""},
      {"2024-0a-02 13:05:09", ""},
      {"2024/01/02", "2024-01-02 00:00:00"},
      {"2-Jan-2024", "2024-01-02 00:00:00"},
      {"02-JAN-24", "2024-01-02 00:00:00"},
      {"2 January 2024", "2024-01-02 00:00:00"},
      {"Jan 2, 2024", "2024-01-02 00:00:00"},
      {"September 2, 1999", "1999-09-02 00:00:00"},
      {"Sept 2 1999", "1999-09-02 00:00:00"},
      {"1/2/00", "2000-01-02 00:00:00"},
      {"1/2/29", "2029-01-02 00:00:00"},
      {"1/2/30", "1930-01-02 00:00:00"},
      {"1/2/99", "1999-01-02 00:00:00"},
      {"1/2/5", "2005-01-02 00:00:00"},
      {"13/1/2024", "2024-01-13 00:00:00"},  // no thirteenth month: the day stands first
      {"2/29/2024", "2024-02-29 00:00:00"},
      {"8:00 AM", "1899-12-30 08:00:00"},
      {"8 pm", "1899-12-30 20:00:00"},
      {"12:00 AM", "1899-12-30 00:00:00"},
      {"12:30 PM", "1899-12-30 12:30:00"},
      {"23:59:59", "1899-12-30 23:59:59"},
      {"1/2/2024 8:00 AM", "2024-01-02 08:00:00"},
      {"1/2/2024 8:00:30 pm", "2024-01-02 20:00:30"},
      {"Jan 2, 2024 8:00AM", "2024-01-02 08:00:00"},
      {"", ""},
      {" ", ""},
      {"2/30/2024", ""},
      {"2/29/2023", ""},
      {"13/13/2024", ""},
      {"0/1/2024", ""},
      {"1/2", ""},
      {"1/2-2024", ""},
      {"1/2/202", ""},
      {"1/2/0050", ""},
      {"12", ""},
      {"12.5", ""},
      {"Foo 2, 2024", ""},
      {"24:00", ""},
      {"8:60", ""},
      {"13:00 PM", ""},
      {"0:30 AM", ""},
      {"1/2/2024 soon", ""},
      {"#1/2/2024#", ""},
  };
  for (const auto& [text, stored] : cases) {
    const auto date = ReadDate(QString::fromUtf8(text));
    EXPECT_EQ(date ? StoredDate(*date) : QString(), QString::fromUtf8(stored)) << text;
    EXPECT_EQ(IsDate(text), *stored != '\0') << text;
  }
}

TEST(Dates, OnlyDatesAndTheirTextsAreDates) {
  EXPECT_TRUE(IsDate(QDate(2024, 1, 2)));
  EXPECT_FALSE(IsDate(QDateTime()));
  EXPECT_FALSE(IsDate(Value()));
  EXPECT_FALSE(IsDate(45000));
  EXPECT_FALSE(IsDate(true));
}

TEST(Dates, SerialDaysCountFromTheZeroDay) {
  const QList<QPair<double, QDateTime>> cases = {
      {0, QDateTime(QDate(1899, 12, 30), QTime(0, 0))},
      {1.5, QDateTime(QDate(1899, 12, 31), QTime(12, 0))},
      {45293, QDateTime(QDate(2024, 1, 2), QTime(0, 0))},
      {45293.75, QDateTime(QDate(2024, 1, 2), QTime(18, 0))},
      {-1.25, QDateTime(QDate(1899, 12, 29), QTime(6, 0))},
  };
  for (const auto& [serial, date] : cases) {
    EXPECT_EQ(SerialDay(date), serial);
    EXPECT_EQ(FromSerialDay(serial), date) << serial;
    EXPECT_EQ(CDate(serial), date) << serial;
  }
  EXPECT_FALSE(FromSerialDay(3e6).isValid());
  EXPECT_FALSE(FromSerialDay(-7e5).isValid());
  EXPECT_EQ(FromSerialDay(45293.9999999999), QDateTime(QDate(2024, 1, 3), QTime(0, 0)));
}

}  // namespace
}  // namespace tavrelin
