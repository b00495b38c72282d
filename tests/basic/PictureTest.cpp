#include <gtest/gtest.h>

#include <limits>
#include <QLocale>

#include "basic/Picture.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct PictureCase {
  Value value;
  const char* picture;
  const char* shown;
};

void Check(const QList<PictureCase>& cases) {
  for (const auto& [value, picture, shown] : cases) {
    EXPECT_EQ(Format(value, QString::fromUtf8(picture)), QString::fromUtf8(shown))
        << testing::PrintToString(value) << " through " << picture;
  }
}

const QDateTime& Morning() {
  static const QDateTime date(QDate(2024, 3, 5), QTime(8, 7, 9));
  return date;
}

TEST(Picture, NumbersWithDecimals) {
  Check({
      {45.678, "#0.00", "45.68"}, {0.0, "#0.00", "0.00"},     {0.5, "#0.00", "0.50"},
      {5, "#0.00", "5.00"},       {100.0, "#0.00", "100.00"}, {1234567.891, "#0.00", "1234567.89"},
      {-1.25, "#0.00", "-1.25"},  {7.5, "##0.00", "7.50"},    {123.456, "##0.00", "123.46"},
      {25, "####0.00", "25.00"},  {0, "####0.00", "0.00"},    {12345.5, "#####0.00", "12345.50"},
      {3.5, "#0.0", "3.5"},       {3, "#0.0", "3.0"},         {33.25, "##0.0", "33.3"},
      {0.5, "0.0", "0.5"},        {12.0, "0.0", "12.0"},      {81.25, "0.00", "81.25"},
      {7.5, "00.00", "07.50"},    {81.255, "00.00", "81.26"}, {5.0, "#.##", "5."},
      {0.25, "#.##", ".25"},      {12.5, ".00", "12.50"},
  });
}

TEST(Picture, WholeNumbers) {
  Check({
      {7, "###0", "7"},
      {12345, "###0", "12345"},
      {0, "###0", "0"},
      {42, "##0", "42"},
      {12.5, "##0", "13"},
      {99999, "####0", "99999"},
      {0, "#0", "0"},
      {3, "#0", "3"},
      {3.0, "#0", "3"},
      {9, "0", "9"},
      {-9, "0", "-9"},
      {7, "###", "7"},
      {0, "###", ""},
      {12, "##", "12"},
      {0, "##", ""},
      {1, "0#", "01"},
      {99, "0#", "99"},
      {100, "0#", "100"},
      {true, "0", "-1"},
      {1234567, "#,##0", "1,234,567"},
      {999, "#,##0", "999"},
      {-1234.5, "#,##0.00", "-1,234.50"},
      {1000, "0,000", "1,000"},
      {std::numeric_limits<qint64>::max(), "0", "9223372036854775807"},
  });
}

TEST(Picture, HalvesRoundAwayFromZeroOnTheDecimalNumberThatIsSeen) {
  Check({
      {2.675, "#0.00", "2.68"},
      {0.125, "#0.00", "0.13"},
      {-1.005, "#0.00", "-1.01"},
      {1.005, "#0.00", "1.01"},
      {2.665, "#0.00", "2.67"},
      {0.285 * 100, "#0", "29"},
      {0.5, "#0", "1"},
      {1.5, "#0", "2"},
      {2.5, "#0", "3"},
      {-2.5, "#0", "-3"},
      {0.49, "#0", "0"},
      {9.995, "#0.00", "10.00"},
      {99.999, "#0.00", "100.00"},
      {0.996, "#0.00", "1.00"},
      {0.05, "#0.0", "0.1"},
      {0.005, "#0.00", "0.01"},
      {0.0049, "#0.00", "0.00"},
      {0.00001, "#0.00", "0.00"},
      {static_cast<double>(2.675f), "#0.00", "2.68"},
      {static_cast<double>(45.125f), "#0.00", "45.13"},
  });
}

TEST(Picture, ZeroHasNoSign) {
  Check({
      {-0.0, "#0.00", "0.00"},
      {-0.001, "#0.00", "0.00"},
      {-0.004, "#0.00-", "0.00-"},
      {-0.4, "##0", "0"},
  });
}

TEST(Picture, LiteralsAndBlanksStandWhereThePictureHasThem) {
  Check({
      {1.25, "#0.00-", "1.25-"},
      {1.25, "#0.00 ", "1.25 "},
      {3, "#0  ", "3  "},
      {12, "#0  ", "12  "},
      {1.5, "$#0.00", "$1.50"},
      {-5, "(000)", "-(005)"},
  });
}

TEST(Picture, DigitPicturesOverNumericTexts) {
  Check({
      {"5551234567", "(000)000-0000", "(555)123-4567"},
      {"0001234567", "(000)000-0000", "(000)123-4567"},
      {"5551234", "(000)000-0000", "(000)555-1234"},
      {"", "(000)000-0000", ""},
      {"unlisted", "(000)000-0000", "unlisted"},
      {Value(), "(000)000-0000", ""},
      {"1234567", "00-00-000", "12-34-567"},
      {"0034567", "00-00-000", "00-34-567"},
      {"12AB567", "00-00-000", "12AB567"},
      {1234567, "00-00-000", "12-34-567"},
      {"542", "000000", "000542"},
      {542, "000000", "000542"},
      {"123456", "000000", "123456"},
      {"501", "00000", "00501"},
      {"2.675", "#0.00", "2.68"},
      {"12.5%", "#0.00", "12.5%"},
      {"3.5", "#0.0", "3.5"},
  });
}

TEST(Picture, TextsFillFromTheRight) {
  Check({
      {"1234567", "@@-@@-@@@", "12-34-567"},
      {"AB345C7", "@@-@@-@@@", "AB-34-5C7"},
      {"4567", "@@-@@-@@@", "  - 4-567"},
      {"123456789", "@@-@@-@@@", "1234-56-789"},
      {"", "@@-@@-@@@", ""},
      {Value(), "@@-@@-@@@", ""},
      {"5551234567", "(@@@)@@@-@@@@", "(555)123-4567"},
      {"5551234", "@@@-@@@@", "555-1234"},
      {"5551234567", "@@@-@@@-@@@@", "555-123-4567"},
      {"123456789", "@@@@@-@@@@", "12345-6789"},
      {"LIB01", "@@@@@@", " LIB01"},
      {"LIBO00", "@@@@@@", "LIBO00"},
      {7, "@@@", "  7"},
      {"", "@@@", "   "},
      {"12", "&&&", "12"},
      {"Ab", "&-&", "A-b"},
  });
}

TEST(Picture, TextsFillFromTheLeftBehindAnExclamationMark) {
  Check({
      {"NE", "!@@@@", "NE  "},
      {"NE", "!@@@@  ", "NE    "},
      {"", "!@@@@  ", "      "},
      {"NE", "!@@  ", "NE  "},
      {"00542", "!@@@@@@", "00542 "},
      {"Ann Lee", "!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@", "Ann Lee                      "},
      {"Ann Lee", "!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@  ", "Ann Lee                        "},
      {"ABCDE", "!@@@@  ", "ABCDE  "},
      {Value(), "!@@@@", ""},
      {"12", "!&&&", "12"},
      {"123", "!@@-@@", "12-3 "},
  });
}

TEST(Picture, Dates) {
  const QDateTime evening(QDate(1999, 11, 25), QTime(18, 30));
  Check({
      {Morning(), "mm/dd/yyyy h:mm AMPM", "03/05/2024 8:07 AM"},
      {evening, "mm/dd/yyyy h:mm AMPM", "11/25/1999 6:30 PM"},
      {Morning(), "mm/dd/yyyy", "03/05/2024"},
      {Morning(), "mm/dd/yy", "03/05/24"},
      {Morning(), "m/d/yyyy", "3/5/2024"},
      {Morning(), "m/dd/yyyy", "3/05/2024"},
      {Morning(), "m/d/yy", "3/5/24"},
      {Morning(), "d-mmm-yyyy", "5-Mar-2024"},
      {Morning(), "dd-mmm-yyyy", "05-Mar-2024"},
      {Morning(), "DD-MMM-YYYY", "05-Mar-2024"},
      {Morning(), "DD-MMM-YY", "05-Mar-24"},
      {Morning(), "DDMMMYYYY", "05Mar2024"},
      {Morning(), "YYYY", "2024"},
      {Morning(), "mmm d, yyyy", "Mar 5, 2024"},
      {Morning(), "mmmm d, yyyy", "March 5, 2024"},
      {Morning(), "dddd, mmm d yyyy", "Tuesday, Mar 5 2024"},
      {evening, "dddd, mmm d yyyy  h:mm AMPM", "Thursday, Nov 25 1999  6:30 PM"},
      {Morning(), "ddd", "Tue"},
      {Morning(), "hh:nn:ss", "08:07:09"},
      {evening, "h:n:s", "18:30:0"},
      {evening, "h:mm AM/PM", "6:30 PM"},
      {QDate(2024, 3, 5), "h:mm AMPM", "12:00 AM"},
      {QDateTime(QDate(2024, 3, 5), QTime(12, 0)), "h:mm AMPM", "12:00 PM"},
      {"1/2/2024", "mm/dd/yyyy", "01/02/2024"},
      {"soon", "mm/dd/yyyy", "soon"},
      {"", "mm/dd/yyyy", ""},
      {Value(), "mm/dd/yyyy", ""},
  });
}

TEST(Picture, PlainTextWithoutAPicture) {
  Check({
      {2.5, "", "2.5"},
      {"As typed", "", "As typed"},
      {Value(), "", ""},
      {12, "General Number", "12"},
      {0.5, "General Number", "0.5"},
      {std::numeric_limits<double>::infinity(), "#0.00", "inf"},
  });
}

TEST(Picture, StaysInUsFormOnAGermanMachine) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  Check({
      {1234.5, "#,##0.00", "1,234.50"},
      {Morning(), "dddd, mmm d yyyy", "Tuesday, Mar 5 2024"},
      {Morning(), "h:mm AMPM", "8:07 AM"},
  });
  QLocale::setDefault(before);
}

TEST(Picture, FormatSanctionPutsTheDashesIntoSevenCharacters) {
  EXPECT_EQ(FormatSanction(u"1234567"_qs), u"12-34-567");
  EXPECT_EQ(FormatSanction(u"AB12C34"_qs), u"AB-12-C34");
  EXPECT_EQ(FormatSanction(u"123"_qs), u"123");
  EXPECT_EQ(FormatSanction(QString()), u"");
}

}  // namespace
}  // namespace tavrelin
