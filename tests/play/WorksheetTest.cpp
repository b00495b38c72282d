#include <gtest/gtest.h>

#include "play/CardSheets.h"
#include "play/PdfRules.h"
#include "play/PdfSpots.h"
#include "play/SampleCards.h"

namespace tavrelin {
namespace {

const QList<int> Verticals = {200, 1200, 2200, 6200, 7200, 8200, 12200, 13200, 14200};
constexpr int RowsOnPage = 25;

CardJob Games(int count) {
  CardJob job;
  job.procedure = CardProcedure::Worksheet;
  for (int n = 1; n <= count; ++n) {
    job.lines << WorksheetLine{n, QString::number(100 + n), QStringLiteral("Ann%1 Stone").arg(n),
                               QStringLiteral("Bob%1 Hill").arg(n)};
  }
  return job;
}

TEST(Worksheet, HasEveryTextInItsPlace) {
  const PdfPages pdf(Printed(Games(3)));
  EXPECT_EQ(pdf.PageSize(1), QSizeF(15840, 12240));
  ExpectSpots(pdf, {{"Game", 250, 650},
                    {"Court", 1250, 650},
                    {"Player", 2350, 650},
                    {"Points", 6250, 650},
                    {"Ringers", 7250, 650},
                    {"Player", 8350, 650},
                    {"Points", 12250, 650},
                    {"Ringers", 13250, 650}});
  for (int n = 1; n <= 3; ++n) {
    const double y = 700 + 400 * n;
    ExpectSpots(pdf, {{QString::number(n), 250, y},
                      {QString::number(100 + n), 1250, y},
                      {QStringLiteral("Ann%1").arg(n), 2350, y},
                      {QStringLiteral("Bob%1").arg(n), 8350, y}});
  }
}

TEST(Worksheet, HeadAndRowsAreRuled) {
  const QList<PdfRule> rules = PdfRules(Printed(Games(2)));
  for (const int y : {600, 1000, 1400, 1800}) EXPECT_TRUE(HasRule(rules, 200, y, 14200, y)) << y;
  for (const int x : Verticals) EXPECT_TRUE(HasRule(rules, x, 600, x, 1800)) << x;
  EXPECT_EQ(rules.size(), 4 + Verticals.size());
}

TEST(Worksheet, HeadingsAreBoldAndGamesAreNot) {
  const Document document = Printed(Games(1));
  for (const Mark& mark : document.pages[0].marks) {
    const auto* text = std::get_if<TextMark>(&mark);
    if (text == nullptr) continue;
    EXPECT_EQ(text->font.Bold(), text->y == 650) << text->text.toStdString();
    EXPECT_EQ(text->font.size, 12);
  }
}

TEST(Worksheet, APageHoldsTwentyFiveGames) {
  EXPECT_EQ(Printed(Games(RowsOnPage)).pages.size(), 1);
  const Document document = Printed(Games(RowsOnPage + 1));
  ASSERT_EQ(document.pages.size(), 2);
  const PdfPages pdf(document);
  ExpectSpots(pdf, {{"Ann25", 2350, 10700}}, 1);
  ExpectSpots(pdf, {{"Game", 250, 650}, {"Ann26", 2350, 1100}}, 2);
}

TEST(Worksheet, AGameOnThePacerLeavesHisCellBlank) {
  CardJob job = Games(1);
  job.lines[0].two.clear();
  const PdfPages pdf(Printed(job));
  EXPECT_TRUE(pdf.Has("Ann1"));
  EXPECT_FALSE(pdf.Has("PACER"));
  EXPECT_EQ(pdf.Words().size(), 8 + 4);
}

TEST(Worksheet, NamesOfFortyFiveCharactersEndBeforeTheirPoints) {
  CardJob job = Games(1);
  job.lines[0].one = QString(45, 'M');
  job.lines[0].two = QString(45, 'W');
  const PdfPages pdf(Printed(job));
  EXPECT_LE(pdf.Find(QString(45, 'M')).right, 6200);
  EXPECT_LE(pdf.Find(QString(45, 'W')).right, 12200);
}

TEST(Worksheet, TheAdjustmentsOfTheCardsDoNotMoveIt) {
  CardJob job = Games(1);
  job.down = 3200;
  job.right = 100;
  ExpectSpots(PdfPages(Printed(job)), {{"Game", 250, 650}});
}

TEST(Worksheet, ThePreviewShowsThePagesThatArePrinted) {
  EXPECT_EQ(Printed(Games(60), OutputTarget::Kind::Preview), Printed(Games(60)));
}

}  // namespace
}  // namespace tavrelin
