#include "players/Vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

QStringList Codes(const QList<CodeText>& list) {
  QStringList codes;
  for (const CodeText& entry : list) codes.append(entry.code);
  return codes;
}

TEST(Vocabulary, DivisionsStandInTheOrderOfTheirList) {
  EXPECT_EQ(Codes(Divisions()), QString("AM AW JB JG EM CA CB CG SM SW UK AX").split(' '));
  EXPECT_EQ(Codes(MembershipTypes()), QString("S P L D T").split(' '));
  EXPECT_EQ(DefaultMembershipType(), "S");
}

TEST(Vocabulary, TextsOfCodes) {
  struct {
    QString code, text;
  } const cases[] = {{"AM", "Men"},       {"aw", "Women"},
                     {" JB ", "Jr Boys"}, {"JG", "Jr Girls"},
                     {"EM", "Elder"},     {"CA", "Cadet"},
                     {"CB", "Cadet Boy"}, {"CG", "Cadet Girl"},
                     {"SM", "Sr Men"},    {"SW", "Sr Women"},
                     {"UK", "Unknown"},   {"AX", "Exempt"},
                     {"M", "M"},          {"", ""}};
  for (const auto& c : cases) EXPECT_EQ(DivisionText(c.code), c.text) << c.code.toStdString();
  EXPECT_EQ(MembershipTypeText("S"), "Standard");
  EXPECT_EQ(MembershipTypeText("P"), "Provisional");
  EXPECT_EQ(MembershipTypeText("l"), "Lifetime");
  EXPECT_EQ(MembershipTypeText("D"), "Director");
  EXPECT_EQ(MembershipTypeText("T"), "Trial");
}

TEST(Vocabulary, ADivisionBesideAnEntryHasItsOwnWordAndSomeAreUnknownThere) {
  struct {
    QString code, text;
  } const cases[] = {{"AM", "Men"},       {"AW", "Women"},      {"JB", "Jr Boy"},
                     {"jg ", "Jr Girl"},  {"EM", "Elder"},      {"CA", "Cadet"},
                     {"CB", "Cadet Boy"}, {"CG", "Cadet Girl"}, {"SM", "Unknown"},
                     {"SW", "Unknown"},   {"UK", "Unknown"},    {"AX", "Exempt"},
                     {"M", "Unknown"},    {"", "Unknown"}};
  for (const auto& c : cases) EXPECT_EQ(EntryDivisionText(c.code), c.text) << c.code.toStdString();
}

TEST(Vocabulary, StatesAreInAlphabeticalOrderWithTheWholeCountryLast) {
  for (QStringList codes : {StateCodes(), StateFilterCodes()}) {
    ASSERT_EQ(codes.takeLast(), "US");
    EXPECT_TRUE(std::is_sorted(codes.begin(), codes.end()));
    EXPECT_EQ(codes.removeDuplicates(), 0);
  }
}

TEST(Vocabulary, APlayerInStateNAOrZACanBeKeptButIsNeverOfferedByAFilter) {
  EXPECT_EQ(StateCodes().size(), 66);
  EXPECT_EQ(StateFilterCodes().size(), 64);
  QStringList kept = StateCodes();
  for (const QString& offered : StateFilterCodes()) kept.removeOne(offered);
  EXPECT_EQ(kept, QStringList({"NA", "ZA"}));
}

}  // namespace
}  // namespace tavrelin
