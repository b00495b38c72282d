#include "play/CardSheets.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "play/PdfRules.h"
#include "play/PdfSpots.h"
#include "play/SampleCards.h"
#include "print/Fonts.h"

namespace tavrelin {
namespace {

using Kind = OutputTarget::Kind;
using Procedure = CardProcedure;

constexpr int LetterWidth = 12240;
constexpr int LetterLength = 15840;

/// Ascent and descent of Arial are 0.905 and 0.212 of its size.
double CellHeight(double points) {
  return points * 20 * (0.905 + 0.212);
}

QList<Spot> Moved(QList<Spot> spots, double right, double down) {
  for (Spot& spot : spots) {
    spot.x += right;
    spot.y += down;
  }
  return spots;
}

QList<Spot> SinglesTable() {
  QList<Spot> spots = {{"Game", 300, 6300},    {"Opponent", 1500, 6300}, {"Court", 4500, 6300},
                       {"Score", 5500, 6300},  {"Ringers", 6900, 6300},  {"Dbls", 8200, 6300},
                       {"Shoes", 9000, 6300},  {"Rgr%", 10000, 6300},    {"Totals", 300, 11100},
                       {"Wins:", 1500, 11100}, {"Losses:", 2800, 11100}};
  for (int game = 1; game <= 4; ++game) {
    const double y = 6300 + 400 * game;
    const QString n = QString::number(game);
    spots << Spot{n, 400, y} << Spot{"2" + n + ".", 1200, y} << Spot{"10" + n, 4600, y}
          << Spot{"/", 5850, y} << Spot{"/", 7250, y};
  }
  for (int game = 5; game <= 11; ++game) {
    const double y = 6300 + 400 * game;
    spots << Spot{QString::number(game), 400, y} << Spot{"X.", 1200, y};
    for (const double x : {4600, 5850, 7250, 8450, 9450, 10450}) spots << Spot{"X", x, y};
  }
  return spots;
}

QList<Spot> DoublesTable() {
  QList<Spot> spots = {{"Game", 300, 6300},    {"Opponent", 1500, 6300}, {"Court", 5500, 6300},
                       {"Score", 6500, 6300},  {"Ringers", 7700, 6300},  {"Dbls", 8950, 6300},
                       {"Shoes", 9650, 6300},  {"Rgr%", 10550, 6300},    {"Totals", 300, 11100},
                       {"Wins:", 1500, 11100}, {"Losses:", 2800, 11100}};
  for (int game = 1; game <= 4; ++game) {
    const double y = 6300 + 400 * game;
    const QString n = QString::number(game);
    spots << Spot{n, 400, y} << Spot{"2" + n + ".", 1200, y} << Spot{"10" + n, 5600, y}
          << Spot{"/", 6850, y} << Spot{"/", 8150, y};
  }
  for (int game = 5; game <= 11; ++game) {
    const double y = 6300 + 400 * game;
    spots << Spot{QString::number(game), 400, y} << Spot{"X.", 1200, y};
    for (const double x : {5700, 6800, 8050, 9100, 9950, 10700}) spots << Spot{"X", x, y};
  }
  return spots;
}

struct GridCase {
  int right;
  QList<int> verticals;
};

void ExpectGrid(const QList<PdfRule>& rules, const GridCase& grid, double dx, double dy) {
  const auto rule = [&](double x1, double y1, double x2, double y2) {
    EXPECT_TRUE(HasRule(rules, x1 + dx, y1 + dy, x2 + dx, y2 + dy))
        << x1 << ", " << y1 << " to " << x2 << ", " << y2;
  };
  rule(200, 6200, grid.right, 6200);
  rule(200, 11400, grid.right, 11400);
  rule(200, 6200, 200, 11400);
  rule(grid.right, 6200, grid.right, 11400);
  for (int y = 6600; y <= 11000; y += 400) rule(200, y, grid.right, y);
  rule(1000, 6200, 1000, 11000);
  for (const int x : grid.verticals) rule(x, 6200, x, 11400);
}

const GridCase SinglesRuling = {10700, {4400, 5200, 6600, 8000, 8900, 9800}};
const GridCase DoublesRuling = {11200, {5400, 6200, 7500, 8800, 9600, 10400}};

TEST(CardSheets, SinglesBackHasEveryTextInItsPlace) {
  const PdfPages pdf(Printed(SinglesJob(Procedure::OldMethod)));
  ExpectSpots(pdf, SinglesTable());
  ExpectSpots(pdf, {{"1.Ann", 200, 4600},
                    {"Class:", 300, 5800},
                    {"Shoes:", 2000, 5800},
                    {"Handicap:", 3500, 5800},
                    {"Spring", 5500, 5800}});
  EXPECT_TRUE(pdf.Text().contains("Spring Open    5/9/2026")) << pdf.Text().toStdString();
}

TEST(CardSheets, DoublesBackHasEveryTextInItsPlace) {
  const PdfPages pdf(Printed(DoublesJob(Procedure::OldMethod)));
  ExpectSpots(pdf, DoublesTable());
  ExpectSpots(pdf, {{"1A.Ann", 200, 4600}, {"Class:", 300, 5800}, {"Handicap:", 3500, 5800}});
  EXPECT_TRUE(pdf.Has("B.Eve"));
}

TEST(CardSheets, GridsAreRuledTwoPixelsWideAndTheGameColumnStopsAboveTheTotals) {
  const QList<PdfRule> singles = PdfRules(Printed(SinglesJob(Procedure::OldMethod)));
  ExpectGrid(singles, SinglesRuling, 0, 0);
  EXPECT_EQ(singles.size(), 4 + 12 + 1 + 6);
  EXPECT_FALSE(HasRule(singles, 1000, 6200, 1000, 11400));
  for (const PdfRule& rule : singles) EXPECT_NEAR(rule.width, 30, 0.1);
  const QList<PdfRule> doubles = PdfRules(Printed(DoublesJob(Procedure::OldMethod)));
  ExpectGrid(doubles, DoublesRuling, 0, 0);
  EXPECT_EQ(doubles.size(), 4 + 12 + 1 + 6);
}

TEST(CardSheets, SizesAre72OnTheFront48InTheHeadingAnd12InTheGrid) {
  const PdfPages back(Printed(SinglesJob(Procedure::OldMethod)));
  const PdfWord heading = back.Find("1.Ann");
  EXPECT_NEAR(heading.bottom - heading.y, CellHeight(48), 3);
  for (const char* text : {"Class:", "Opponent", "Totals", "X", "/"}) {
    const PdfWord word = back.Find(text);
    EXPECT_NEAR(word.bottom - word.y, CellHeight(12), Near) << text;
  }
  CardJob job = SinglesJob(Procedure::OldMethod);
  job.face = CardFace::Front;
  const PdfWord name = PdfPages(Printed(job)).Find("Ann");
  EXPECT_NEAR(name.bottom - name.y, CellHeight(72), 4);
}

TEST(CardSheets, FrontShowsTheTwoNamesOneUnderTheOther) {
  CardJob job = SinglesJob(Procedure::OldMethod, 2);
  job.face = CardFace::Front;
  const PdfPages pdf(Printed(job));
  const double second = 4500 + LineHeight({.size = 72});
  EXPECT_EQ(pdf.PageCount(), 2);
  ExpectSpots(pdf, {{"Ann", 200, 4500}, {"Stone1", 200, second}}, 1);
  ExpectSpots(pdf, {{"Ann", 200, 4500}, {"Stone2", 200, second}}, 2);
  EXPECT_TRUE(PdfRules(Printed(job)).isEmpty());
}

TEST(CardSheets, TeamsGetOneFrontForEachPartner) {
  CardJob job = DoublesJob(Procedure::OldMethod, 2);
  job.face = CardFace::Front;
  const PdfPages pdf(Printed(job));
  ASSERT_EQ(pdf.PageCount(), 4);
  for (int page = 1; page <= 4; ++page) {
    ExpectSpots(pdf, {{"Stone", 200, 4500}, {"Field", 200, 4500.0 + LineHeight({.size = 72})}},
                page);
  }
}

TEST(CardSheets, EachCardHasAPageAcrossThePaper) {
  const PdfPages pdf(Printed(SinglesJob(Procedure::OldMethod, 20)));
  ASSERT_EQ(pdf.PageCount(), 20);
  for (int page = 1; page <= 20; ++page) {
    EXPECT_EQ(pdf.PageSize(page), QSizeF(LetterLength, LetterWidth));
    ExpectSpots(pdf, {{QStringLiteral("%1.Ann").arg(page), 200, 4600}}, page);
  }
}

TEST(CardSheets, TheClubsAdjustmentsMoveEveryTextAndEveryRule) {
  CardJob job = SinglesJob(Procedure::OldMethod);
  job.down = -250;
  job.right = 140;
  ExpectSpots(PdfPages(Printed(job)), Moved(SinglesTable(), 140, -250));
  ExpectGrid(PdfRules(Printed(job)), SinglesRuling, 140, -250);
  job.face = CardFace::Front;
  ExpectSpots(PdfPages(Printed(job)), {{"Ann", 340, 4250}});
}

TEST(CardSheets, AClassWithoutShoesOrHandicapSaysNothingOfThem) {
  CardJob job = SinglesJob(Procedure::OldMethod);
  job.shoes = 0;
  job.cards[0].handicap.reset();
  const PdfPages pdf(Printed(job));
  EXPECT_FALSE(pdf.Has("Shoes:"));
  EXPECT_FALSE(pdf.Has("Handicap:"));
  ExpectSpots(pdf, {{"Class:", 300, 5800}, {"Spring", 5500, 5800}});
}

TEST(CardSheets, AnUnknownOpponentHasHisNumberAndNoName) {
  CardJob job = SinglesJob(Procedure::OldMethod);
  job.cards[0].lines[0].opponent.clear();
  const PdfPages pdf(Printed(job));
  ExpectSpots(pdf, {{"21.", 1200, 6700}});
  EXPECT_FALSE(pdf.Has("Hill1"));
}

TEST(CardSheets, AnOpponentWhoseNumberIsNotKnownStandsThereByWhatIsTold) {
  CardJob job = DoublesJob(Procedure::OldMethod);
  job.cards[0].lines[0].opponentNumber = 0;
  job.cards[0].lines[0].opponent = "17 (not on file)";
  const PdfPages pdf(Printed(job));
  ExpectSpots(pdf, {{"17", 1200, 6700}});
  EXPECT_FALSE(pdf.Has("0."));
}

TEST(CardSheets, TheTextsOfTheInformationLineStayApart) {
  CardJob job = SinglesJob(Procedure::World);
  job.className = "Intermediate";
  const PdfPages pdf(Printed(job));
  EXPECT_LT(pdf.Find("Intermediate").right, pdf.Find("St:").x - 80);
}

TEST(FoldedCards, BothFacesStandOnOneSheetThatHoldsThemWhole) {
  const Document document = Printed(SinglesJob(Procedure::NewMethod, 2));
  const PdfPages pdf(document);
  ASSERT_EQ(pdf.PageCount(), 2);
  EXPECT_EQ(pdf.PageSize(1), QSizeF(LetterWidth, LetterLength));
  for (int page = 1; page <= 2; ++page) {
    ExpectSpots(pdf, Moved(SinglesTable(), 100, 3200), page);
    ExpectGrid(PdfRules(document, page), SinglesRuling, 100, 3200);
  }
}

TEST(FoldedCards, NamesStandAboutTheirOriginsTurnedByHalf) {
  const PdfPages pdf(Printed(SinglesJob(Procedure::NewMethod)));
  const PdfWord first = pdf.Find("Ann");
  EXPECT_NEAR(first.right, 11100, Near);
  EXPECT_NEAR(first.bottom, 7500, Near);
  const PdfWord second = pdf.Find("Stone1");
  EXPECT_NEAR(second.right, 11100, Near);
  EXPECT_NEAR(second.bottom, 6200, Near);
}

bool IsDark(const QImage& image, int x, int y) {
  return qGray(image.pixel(x, y)) < 128;
}

int Ink(const QImage& image) {
  int ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ink += IsDark(image, x, y);
  }
  return ink;
}

/// Pixels in which a place of the page differs from a picture, a pixel's shift allowed.
int LeastDifference(const QImage& page, const QRect& place, const QImage& wanted) {
  int least = wanted.width() * wanted.height();
  for (const QPoint shift : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1), QPoint(-1, 0),
                             QPoint(0, -1), QPoint(-1, -1), QPoint(1, -1), QPoint(-1, 1)}) {
    const QImage found = page.copy(place.translated(shift));
    int different = 0;
    for (int y = 0; y < found.height(); ++y) {
      for (int x = 0; x < found.width(); ++x) {
        different += IsDark(found, x, y) != IsDark(wanted, x, y);
      }
    }
    least = std::min(least, different);
  }
  return least;
}

/// Where a place of a page lies once the page is turned by half.
QRect Turned(const QRect& place, const QImage& page) {
  return {page.width() - place.right() - 1, page.height() - place.bottom() - 1, place.width(),
          place.height()};
}

TEST(FoldedCards, TurnedBackTheNamesReadUpright) {
  CardJob folded = SinglesJob(Procedure::NewMethod);
  folded.down = 0;
  folded.right = 0;
  folded.cards[0].front = {"Angela", ""};
  const QImage turned = PdfPages(Printed(folded)).Picture(1);
  const QImage upright = PdfPages(Record(Kind::Printer, {}, [](OutputTarget& target) {
                           target.Font().size = 72;
                           target.MoveTo(1000, 4300);
                           target.PrintOn("Angela");
                         })).Picture(1);
  const int width = TextWidth({.size = 72}, "Angela") / 10;
  const int height = LineHeight({.size = 72}) / 10;
  const QRect place(1100 - width, 430 - height, width, height);
  const QImage wanted = upright.copy(100, 430, width, height);
  EXPECT_GT(Ink(wanted), 5000);
  EXPECT_LT(LeastDifference(turned.mirrored(true, true), Turned(place, turned), wanted),
            Ink(wanted) / 20);
  EXPECT_GT(LeastDifference(turned, place, wanted), Ink(wanted) / 2);
}

TEST(FoldedCards, TeamsShowTheirPartnersLastNames) {
  const PdfPages pdf(Printed(DoublesJob(Procedure::NewMethod)));
  EXPECT_EQ(pdf.PageCount(), 1);
  bool turnedFirst = false, turnedSecond = false;
  for (const PdfWord& word : pdf.Words()) {
    turnedFirst |= word.text == "Stone" && std::abs(word.bottom - 7500) <= Near;
    turnedSecond |= word.text == "Field" && std::abs(word.bottom - 6200) <= Near;
  }
  EXPECT_TRUE(turnedFirst);
  EXPECT_TRUE(turnedSecond);
  ExpectSpots(pdf, Moved(DoublesTable(), 100, 3200));
}

TEST(TwoUpCards, TwoBacksStandOnASheetTheUpperOneFirst) {
  const Document document = Printed(SinglesJob(Procedure::World, 3));
  const PdfPages pdf(document);
  ASSERT_EQ(pdf.PageCount(), 2);
  EXPECT_EQ(pdf.PageSize(1), QSizeF(LetterWidth, LetterLength));
  ExpectSpots(pdf, {{"1.Ann", 300, 100}, {"2.Ann", 300, 7800}}, 1);
  ExpectSpots(pdf, {{"3.Ann", 300, 100}}, 2);
  ExpectSpots(pdf, Moved(SinglesTable(), 100, -4500), 1);
  ExpectSpots(pdf, Moved(SinglesTable(), 100, 3200), 1);
  ExpectGrid(PdfRules(document), SinglesRuling, 100, -4500);
  ExpectGrid(PdfRules(document), SinglesRuling, 100, 3200);
}

TEST(TwoUpCards, AFullLastSheetIsNotFollowedByAnEmptyOne) {
  EXPECT_EQ(Printed(SinglesJob(Procedure::World, 4)).pages.size(), 2);
}

TEST(TwoUpCards, TheInformationLineHasSevenFields) {
  const PdfPages pdf(Printed(SinglesJob(Procedure::World)));
  const double y = 5800 + 3200 - 7700;
  ExpectSpots(pdf, {{"St:", 1900, y},
                    {"Avg:", 3100, y},
                    {"W/L:", 4500, y},
                    {"Sh:", 6100, y},
                    {"Spring", 7700, y}});
  const QString text = pdf.Text().simplified();
  EXPECT_TRUE(text.contains("Class: Open A St: IA Avg: 45.5 W/L: 3-1.5 Sh: 40 Hcp: 12 Spring"))
      << text.toStdString();
  EXPECT_NEAR(pdf.Find("Class:").x, 400, Near);
  EXPECT_NEAR(pdf.Find("Hcp:").x, 6900, Near);
}

TEST(TwoUpCards, AfterAPacerOfOddNumberTheNextCardIsAnUpperOneOnItsOwnSheet) {
  CardJob job = SinglesJob(Procedure::World, 4);
  job.cards[2].isPacer = true;
  const PdfPages pdf(Printed(job));
  ASSERT_EQ(pdf.PageCount(), 3);
  ExpectSpots(pdf, {{"3.Ann", 300, 100}}, 2);
  ExpectSpots(pdf, {{"4.Ann", 300, 100}}, 3);
}

TEST(TwoUpCards, APacerOfEvenNumberChangesNothing) {
  CardJob job = SinglesJob(Procedure::World, 4);
  job.cards[3].isPacer = true;
  EXPECT_EQ(Printed(job).pages.size(), 2);
}

/// Nothing that was printed lies outside the paper, and no opponent reaches into the court column.
void ExpectOnPaper(const CardJob& job, double courtRule) {
  const PdfPages pdf(Printed(job));
  EXPECT_TRUE(pdf.Text().contains("MMMM"));
  for (const PdfWord& word : pdf.Words()) {
    EXPECT_LE(word.right, pdf.PageSize(word.page).width()) << word.text.toStdString();
    EXPECT_GE(word.x, 0) << word.text.toStdString();
    const bool opponent = word.x > 1000 && word.x < 4000 && word.text.startsWith("MMM");
    if (opponent && word.bottom - word.y < 300) {
      EXPECT_LE(word.right, courtRule);
    }
  }
}

TEST(CardSheets, NamesOfFortyFiveCharactersStayWholeAndInTheirRoom) {
  for (const Procedure procedure : {Procedure::OldMethod, Procedure::NewMethod, Procedure::World}) {
    CardJob job = SinglesJob(procedure);
    job.cards[0].pitchers = {{QString(20, 'M'), QString(25, 'M')}};
    job.cards[0].front = {QString(20, 'M'), QString(25, 'M')};
    for (CardLine& line : job.cards[0].lines) {
      if (!line.bye) line.opponent = QString(20, 'M') + ' ' + QString(25, 'M');
    }
    job.className = QString(30, 'M');
    job.tournament = QString(40, 'M');
    ExpectOnPaper(job, 4400 + job.right);
    job.face = CardFace::Front;
    ExpectOnPaper(job, 4400 + job.right);
  }
}

TEST(CardSheets, ThePreviewShowsThePagesThatArePrinted) {
  for (const Procedure procedure : {Procedure::OldMethod, Procedure::NewMethod, Procedure::World}) {
    const CardJob job = SinglesJob(procedure, 5);
    EXPECT_EQ(Printed(job, Kind::Preview), Printed(job, Kind::Printer));
  }
}

TEST(CardSheets, AClassOfTwoHasOneGame) {
  CardJob job = SinglesJob(Procedure::OldMethod, 2);
  for (Card& card : job.cards) card.lines = card.lines.mid(0, 1);
  const PdfPages pdf(Printed(job));
  EXPECT_EQ(pdf.PageCount(), 2);
  ExpectSpots(pdf, {{"1", 400, 6700}, {"/", 5850, 6700}});
  EXPECT_EQ(WordAt(pdf, {"2", 400, 7100}), nullptr);
}

}  // namespace
}  // namespace tavrelin
