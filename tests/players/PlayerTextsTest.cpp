#include "players/PlayerTexts.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(PlayerTexts, AZipCodeOfNineShowsWithAHyphenAndAnyOtherAsStored) {
  struct {
    Value stored;
    QString shown;
  } const cases[] = {{"55101", "55101"},
                     {"551011234", "55101-1234"},
                     {"K1A0B6", "K1A0B6"},
                     {Value(), ""},
                     {"", ""},
                     {" 551011234 ", "55101-1234"},
                     {"55101-1234", "55101-1234"},
                     {"5510112345", "5510112345"}};
  for (const auto& c : cases) EXPECT_EQ(ShownZipCode(c.stored), c.shown);
}

TEST(PlayerTexts, AZipCodeIsStoredAsCapitalsAndDigits) {
  EXPECT_EQ(StoredZipCode("55101-1234"), "551011234");
  EXPECT_EQ(StoredZipCode("k1a 0b6"), "K1A0B6");
  EXPECT_EQ(StoredZipCode(QStringLiteral("é5'")), "5");
  EXPECT_EQ(StoredZipCode(""), "");
}

TEST(PlayerTexts, CharactersOfAZipCode) {
  EXPECT_EQ(ZipCodeCharacter('k'), QChar('K'));
  EXPECT_EQ(ZipCodeCharacter('Z'), QChar('Z'));
  EXPECT_EQ(ZipCodeCharacter('0'), QChar('0'));
  for (const QChar c : QStringLiteral("- .,'@[`{/:é٣")) {
    EXPECT_TRUE(ZipCodeCharacter(c).isNull()) << int(c.unicode());
  }
}

TEST(PlayerTexts, APhoneTypedWithBracketsBlanksAndHyphensIsItsTenDigitsAlone) {
  EXPECT_EQ(StoredTelephone("(651) 555-0123"), "6515550123");
  EXPECT_EQ(StoredTelephone("651.555.0123 x9"), "65155501239");
  EXPECT_EQ(StoredTelephone("none"), "");
  EXPECT_EQ(StoredTelephone(QStringLiteral("٣5")), "5");
}

}  // namespace
}  // namespace tavrelin
