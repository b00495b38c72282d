#include <gtest/gtest.h>

#include "basic/SanctionNumber.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(SanctionNumber, TypedLettersTurnUpperCase) {
  EXPECT_EQ(SanctionKey(u'a'), u'A');
  EXPECT_EQ(SanctionKey(u'z'), u'Z');
  EXPECT_EQ(SanctionKey(u'Q'), u'Q');
  EXPECT_EQ(SanctionKey(u'7'), u'7');
  EXPECT_EQ(SanctionKey(u'-'), u'-');
  EXPECT_EQ(SanctionKey(u'é'), u'é');
}

TEST(SanctionNumber, CleaningKeepsDigitsLettersAndBlanks) {
  const QList<QPair<QString, QString>> cases = {
      {u"12-34-567"_qs, u"1234567"_qs},
      {u"ab-34-5c7"_qs, u"AB345C7"_qs},
      {u"12 34"_qs, u"12 34"_qs},
      {u"1.2/3'4\"5"_qs, u"12345"_qs},
      {u"É12٣"_qs, u"12"_qs},
      {u"---"_qs, u""_qs},
      {u""_qs, u""_qs},
  };
  for (const auto& [typed, clean] : cases) EXPECT_EQ(CleanSanction(typed), clean);
}

TEST(SanctionNumber, ComboTextBeginsWithTheWrittenNumber) {
  EXPECT_EQ(SanctionComboText(u"1234567"_qs, u" Spring Open "_qs), u"12-34-567   Spring Open");
  EXPECT_EQ(SanctionComboText(u"1234567"_qs, u"  "_qs), u"12-34-567");
  EXPECT_EQ(SanctionComboText(u"1234567"_qs, QString()), u"12-34-567");
}

TEST(SanctionNumber, IsTakenBackOutOfTheComboText) {
  const QList<QPair<QString, QString>> cases = {
      {u"12-34-567   Spring Open"_qs, u"1234567"_qs},
      {u"AB-12-C34"_qs, u"AB12C34"_qs},
      {u""_qs, u""_qs},
      {u"   "_qs, u""_qs},
  };
  for (const auto& [text, id] : cases) EXPECT_EQ(SanctionOfComboText(text), id);
}

TEST(SanctionNumber, AShortNumberFromOldDataComesBackToo) {
  for (const auto& id : {u"123456"_qs, u"A"_qs}) {
    EXPECT_EQ(SanctionOfComboText(SanctionComboText(id, u"Fall-Fair Open"_qs)), id);
    EXPECT_EQ(SanctionOfComboText(SanctionComboText(id, QString())), id);
  }
}

}  // namespace
}  // namespace tavrelin
