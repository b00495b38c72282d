#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "basic/Value.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

int Sign(int number) {
  return (number > 0) - (number < 0);
}

int KeyOrder(const QString& a, const QString& b) {
  return Sign(SortKey(a).compare(SortKey(b)));
}

// Texts in their order; every one stands before every later one.
const QStringList& InOrder() {
  static const QStringList texts = {
      u""_qs,     u" "_qs,     u"'"_qs,     u"-"_qs,       u"0"_qs,      u"10"_qs,      u"9"_qs,
      u"_"_qs,    u"A"_qs,     u"A B"_qs,   u"AE"_qs,      u"æ"_qs,      u"AEA"_qs,     u"AF"_qs,
      u"cote"_qs, u"coté"_qs,  u"côte"_qs,  u"côté"_qs,    u"E"_qs,      u"É"_qs,       u"EA"_qs,
      u"Éa"_qs,   u"eb"_qs,    u"émile"_qs, u"F"_qs,       u"Müller"_qs, u"Mullet"_qs,  u"O"_qs,
      u"Ö"_qs,    u"Ø"_qs,     u"OA"_qs,    u"STRASSE"_qs, u"Straße"_qs, u"STRASSF"_qs, u"z"_qs,
      u"~"_qs,    u"Αθήνα"_qs, u"Βόλος"_qs, u"Борис"_qs,   u"Вера"_qs,   u"日本"_qs,    u"🎯"_qs,
      u"🎯🎯"_qs,
  };
  return texts;
}

TEST(CompareText, BaseLettersThenAccents) {
  const QStringList& texts = InOrder();
  for (qsizetype i = 0; i < texts.size(); ++i) {
    for (qsizetype j = 0; j < texts.size(); ++j) {
      const int expected = Sign(static_cast<int>(i - j));
      EXPECT_EQ(Sign(CompareText(texts[i], texts[j])), expected)
          << texts[i].toStdString() << " and " << texts[j].toStdString();
      EXPECT_EQ(KeyOrder(texts[i], texts[j]), expected)
          << texts[i].toStdString() << " and " << texts[j].toStdString();
    }
  }
}

TEST(CompareText, CaseNeverDecides) {
  const QList<QPair<QString, QString>> pairs = {
      {u"SMITH"_qs, u"smith"_qs}, {u"ÉMILE"_qs, u"émile"_qs}, {u"ΣΟΦΟΣ"_qs, u"σοφος"_qs},
      {u"ΣΟΦΟΣ"_qs, u"σοφοσ"_qs}, {u"БОРИС"_qs, u"борис"_qs}, {u"ẞ"_qs, u"ß"_qs},
      {u"ŁÓDŹ"_qs, u"łódź"_qs},   {u"ÆØÅ"_qs, u"æøå"_qs},     {u"É"_qs, u"e\u0301"_qs},
      {u"𐐀"_qs, u"𐐨"_qs},
  };
  for (const auto& [upper, lower] : pairs) {
    EXPECT_EQ(CompareText(upper, lower), 0) << upper.toStdString();
    EXPECT_EQ(SortKey(upper), SortKey(lower)) << upper.toStdString();
  }
}

TEST(CompareText, IsOneStrictWeakOrderOverRandomTexts) {
  const QString alphabet = u"aAbeEéÉè zZßsS\u0301\u0327øoæΣς🎯-'"_qs;
  std::mt19937 random(20260);
  const auto text = [&] {
    QString made;
    for (auto n = random() % 6; n > 0; --n) made += alphabet.at(random() % alphabet.size());
    return made;
  };
  for (int i = 0; i < 20000; ++i) {
    const QString a = text(), b = text(), c = text();
    const int ab = Sign(CompareText(a, b));
    ASSERT_EQ(ab, -Sign(CompareText(b, a)));
    ASSERT_EQ(ab, KeyOrder(a, b)) << a.toStdString() << " and " << b.toStdString();
    if (ab <= 0 && CompareText(b, c) <= 0) {
      const bool tied = ab == 0 && CompareText(b, c) == 0;
      ASSERT_EQ(Sign(CompareText(a, c)), tied ? 0 : -1)
          << a.toStdString() << ", " << b.toStdString() << ", " << c.toStdString();
    }
  }
}

TEST(CompareText, TextsWithZeroCharactersStayApart) {
  const QString zero(QChar(0));
  EXPECT_LT(CompareText(u"a", u"a"_qs + zero), 0);
  EXPECT_LT(CompareText(u"é"_qs + zero, u"éa"), 0);
  EXPECT_LT(KeyOrder(u"a"_qs, u"a"_qs + zero), 0);
}

struct LikeCase {
  const char* text;
  const char* pattern;
  bool like;
};

TEST(LikeText, PercentUnderscoreAndEveryScript) {
  const LikeCase cases[] = {
      {"Smith", "smith", true},
      {"Smith", "SM%", true},
      {"Smith", "%th", true},
      {"Smith", "%mit%", true},
      {"Smith", "S_ith", true},
      {"Smith", "S_th", false},
      {"Smith", "Smit", false},
      {"Smith", "mith", false},
      {"", "", true},
      {"", "%", true},
      {"", "_", false},
      {"a", "", false},
      {"abcabd", "%abd", true},
      {"aXbXc", "a%b%c", true},
      {"aXbX", "a%b%c", false},
      {"aaaaaaaaab", "%a%a%b", true},
      {"100%", "100%", true},
      {"Émile", "émile", true},
      {"ÉMILE", "é%", true},
      {"Émile", "e%", false},
      {"Emile", "é%", false},
      {"e\u0301mile", "_mile", true},
      {"БОРИС", "бор%", true},
      {"ΣΟΦΟΣ", "%ς", true},
      {"🎯x", "_X", true},
      {"straße", "strasse", false},
      {"STRAẞE", "straße", true},
      {"Jose_", "jose_", true},
      {"a.c", "a.c", true},
      {"abc", "a.c", false},
      {"a*c", "a*", false},
  };
  for (const auto& [text, pattern, like] : cases) {
    EXPECT_EQ(LikeText(QString::fromUtf8(text), QString::fromUtf8(pattern)), like)
        << text << " LIKE " << pattern;
  }
}

TEST(LikeText, ManyPercentsDoNotRunAway) {
  const QString text(5000, u'a');
  EXPECT_FALSE(LikeText(text, QStringLiteral("%a").repeated(50) + u'b'));
}

}  // namespace
}  // namespace tavrelin
