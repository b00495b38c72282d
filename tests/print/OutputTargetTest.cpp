#include "print/OutputTarget.h"

#include <gtest/gtest.h>

#include "print/CRotate.h"
#include "print/Fonts.h"
#include "support/PdfPages.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Kind = OutputTarget::Kind;
constexpr double Near = 2;  // twips

Document Written(const Report& report) {
  return Record(Kind::Printer, "Test", report);
}

TEST(OutputTarget, APlainPrintMovesOneLineDownAndBackToTheMargin) {
  OutputTarget target(Kind::Printer);
  target.MoveTo(500, 1000);
  target.Print("Ringer");
  EXPECT_EQ(target.CurrentX(), 0);
  // Arial's ascent and descent are 1854 and 434 of 2048 units: 10 point is 200 twips.
  EXPECT_NEAR(target.CurrentY(), 1000 + 200.0 * (1854 + 434) / 2048, 1);
}

TEST(OutputTarget, PrintingOnStaysOnTheLineBehindTheText) {
  OutputTarget target(Kind::Printer);
  target.MoveTo(500, 1000);
  target.PrintOn("00");
  // A digit of Arial is 1139 of 2048 units wide.
  EXPECT_NEAR(target.CurrentX(), 500 + 2 * 200.0 * 1139 / 2048, 1);
  EXPECT_EQ(target.CurrentY(), 1000);
}

TEST(OutputTarget, AnEmptyPrintMovesDownByTheFontsLine) {
  OutputTarget target(Kind::Printer);
  for (const double size : {8.25, 10.0, 11.0, 12.0, 48.0, 72.0}) {
    target.MoveTo(0, 0);
    target.Font().size = size;
    target.Print();
    EXPECT_NEAR(target.CurrentY(), size * 20 * (1854 + 434) / 2048, 1) << size;
  }
}

TEST(OutputTarget, LinesAreAsHighForThePrinterAsForThePreview) {
  OutputTarget printer(Kind::Printer), preview(Kind::Preview);
  printer.Font().name = preview.Font().name = "Tahoma";
  EXPECT_EQ(printer.LineHeight(), preview.LineHeight());
  EXPECT_EQ(printer.TextWidth("Horseshoe"), preview.TextWidth("Horseshoe"));
}

TEST(OutputTarget, TextStandsInTheFileWhereItWasPut) {
  struct Spot {
    int x, y;
    double size;
    const char* text;
  };
  const QList<Spot> spots = {{200, 350, 12, "Heading"},   {500, 1300, 11, "Name"},
                             {10600, 14577, 10, "42.86"}, {3, 0, 8.25, "Corner"},
                             {200, 4500, 72, "Walter"},   {11000, 15200, 10, "Foot"}};
  const PdfPages pdf(Written([&](OutputTarget& target) {
    for (const Spot& spot : spots) {
      target.Font().size = spot.size;
      target.MoveTo(spot.x, spot.y);
      target.Print(spot.text);
    }
  }));
  for (const Spot& spot : spots) {
    const PdfWord word = pdf.Find(spot.text);
    EXPECT_NEAR(word.x, spot.x, Near) << spot.text;
    EXPECT_NEAR(word.y, spot.y, Near) << spot.text;
    EXPECT_NEAR(word.bottom - word.y, spot.size * 20 * (1854 + 434) / 2048, Near) << spot.text;
  }
}

TEST(OutputTarget, PagesAreLetterInTheirOrientation) {
  const PdfPages pdf(Written([](OutputTarget& target) {
    target.Print("upright");
    target.SetOrientation(Orientation::Landscape);
    target.NewPage();
    target.PrintAt(14000, "lying");
  }));
  ASSERT_EQ(pdf.PageCount(), 2);
  EXPECT_EQ(pdf.PageSize(1), QSizeF(12240, 15840));
  EXPECT_EQ(pdf.PageSize(2), QSizeF(15840, 12240));
  EXPECT_EQ(pdf.Find("lying").page, 2);
  EXPECT_NEAR(pdf.Find("lying").x, 14000, Near);
  EXPECT_NEAR(pdf.Find("lying").y, 0, Near);
}

TEST(OutputTarget, OrientationHoldsForAPageOnWhichNothingStands) {
  OutputTarget target(Kind::Printer);
  target.SetOrientation(Orientation::Landscape);
  target.Print("first");
  target.SetOrientation(Orientation::Portrait);
  target.NewPage();
  target.Print("second");
  EXPECT_EQ(target.Written().pages[0].orientation, Orientation::Landscape);
  EXPECT_EQ(target.Written().pages[1].orientation, Orientation::Portrait);
}

TEST(OutputTarget, EndDocDropsALastPageOnWhichNothingStands) {
  const Document document = Written([](OutputTarget& target) {
    target.Print("label");
    target.NewPage();
  });
  EXPECT_EQ(document.pages.size(), 1);
  EXPECT_EQ(Written([](OutputTarget&) {}).pages.size(), 1);
}

TEST(OutputTarget, ANewPageKeepsTheFontAndStartsAtTheTop) {
  OutputTarget target(Kind::Printer);
  target.Font().size = 14;
  target.Font().SetBold(true);
  target.MoveTo(100, 9000);
  target.NewPage();
  EXPECT_EQ(target.CurrentX(), 0);
  EXPECT_EQ(target.CurrentY(), 0);
  EXPECT_EQ(target.Font().size, 14);
  EXPECT_TRUE(target.Font().Bold());
}

TEST(OutputTarget, BoldAndWeightAreOneThing) {
  PageFont font;
  EXPECT_EQ(font.weight, 400);
  font.SetBold(true);
  EXPECT_EQ(font.weight, 700);
  font.weight = 400;
  EXPECT_FALSE(font.Bold());
}

TEST(OutputTarget, TextTooWideForItsRoomIsMadeSmallerAndStaysWholeOnTheSameBaseline) {
  const QString name = "Bartholomew-Christopher Featherstonehaugh-Sme";
  OutputTarget target(Kind::Printer);
  target.Font().size = 11;
  target.MoveTo(500, 1300);
  target.PrintWithin(2890, name);
  EXPECT_LE(target.CurrentX(), 500 + 2890);
  const TextMark mark = std::get<TextMark>(target.Written().pages[0].marks[0]);
  EXPECT_EQ(mark.text, name);
  EXPECT_EQ(mark.y + Ascent(mark.font), 1300 + Ascent(target.Font()));
  target.MoveTo(500, 1300);
  target.PrintWithin(2890, "Ann Lee");
  EXPECT_EQ(std::get<TextMark>(target.Written().pages[0].marks[1]).font.size, 11);
}

bool Dark(const QImage& picture, int x, int y) {
  return qGray(picture.pixel(x / 10, y / 10)) < 128;
}

TEST(OutputTarget, RulesAndBoxesRunBetweenTheirPoints) {
  const PdfPages pdf(Written([](OutputTarget& target) {
    target.SetDrawWidth(2);
    target.Line(2900, 5000, 5400, 5000);
    target.Box(200, 6200, 10700, 11400);
  }));
  const QImage page = pdf.Picture(1);
  for (int x = 2905; x < 5400; x += 50) EXPECT_TRUE(Dark(page, x, 5000)) << x;
  EXPECT_FALSE(Dark(page, 2860, 5000));
  EXPECT_FALSE(Dark(page, 5440, 5000));
  EXPECT_FALSE(Dark(page, 4000, 4960));
  EXPECT_FALSE(Dark(page, 4000, 5040));
  for (int x = 200; x <= 10700; x += 100) {
    EXPECT_TRUE(Dark(page, x, 6200)) << x;
    EXPECT_TRUE(Dark(page, x, 11400)) << x;
  }
  for (int y = 6200; y <= 11400; y += 100) {
    EXPECT_TRUE(Dark(page, 200, y)) << y;
    EXPECT_TRUE(Dark(page, 10700, y)) << y;
  }
  EXPECT_FALSE(Dark(page, 5000, 8000));
}

TEST(OutputTarget, DrawWidthIsInPixelsOfFifteenTwips) {
  OutputTarget target(Kind::Preview);
  target.Line(0, 0, 100, 0);
  target.SetDrawWidth(3);
  target.Line(0, 0, 100, 0);
  EXPECT_EQ(std::get<LineMark>(target.Written().pages[0].marks[0]).width, 15);
  EXPECT_EQ(std::get<LineMark>(target.Written().pages[0].marks[1]).width, 45);
}

TEST(CRotate, AnAngleOfZeroDrawsAsPrintWouldInTheSamePosition) {
  for (const double size : {10.0, 12.0, 72.0}) {
    OutputTarget target(Kind::Printer);
    target.Font().size = size;
    CRotate rotate;
    rotate.SetDevice(target);
    rotate.SetAngle(0);
    target.MoveTo(700, 900);
    rotate.PrintText("Walter");
    target.Print("Walter");
    const QList<Mark>& marks = target.Written().pages[0].marks;
    EXPECT_EQ(marks[0], marks[1]) << size;
  }
}

TEST(CRotate, TextUpsideDownIsTurnedAboutItsOrigin) {
  const Document document = Written([](OutputTarget& target) {
    target.SetOrientation(Orientation::Landscape);
    target.Font().size = 72;
    CRotate rotate;
    rotate.SetDevice(target);
    rotate.SetAngle(180);
    target.MoveTo(11000, 4300);
    rotate.PrintText("Walter");
    EXPECT_EQ(target.CurrentX(), 11000);
    EXPECT_EQ(target.CurrentY(), 4300);
  });
  // pdftotext reads it right way round, in the rectangle that hangs left of and above the origin.
  const PdfWord word = PdfPages(document).Find("Walter");
  EXPECT_NEAR(word.right, 11000, Near);
  EXPECT_NEAR(word.bottom, 4300, Near);
  EXPECT_NEAR(word.y, 4300 - 1440.0 * (1854 + 434) / 2048, Near);
}

TEST(CRotate, AQuarterTurnClimbsFromTheOrigin) {
  const Document document = Written([](OutputTarget& target) {
    CRotate rotate;
    rotate.SetDevice(target);
    rotate.SetAngle(90);
    target.MoveTo(3000, 8000);
    rotate.PrintText("Court");
  });
  const PdfWord word = PdfPages(document).Find("Court");
  EXPECT_NEAR(word.x, 3000, Near);
  EXPECT_NEAR(word.bottom, 8000, Near);
}

TEST(CRotate, TheHeightIsInWholeDots) {
  OutputTarget target(Kind::Printer);
  target.Font().size = 8.33;  // 8.33 * 1440 is 11995; divided by 72 it is 166 whole dots
  CRotate rotate;
  rotate.SetDevice(target);
  rotate.PrintText("x");
  const TextMark mark = std::get<TextMark>(target.Written().pages[0].marks[0]);
  EXPECT_DOUBLE_EQ(mark.font.size * 20, 166);
}

TEST(CRotate, TheAngleIsHeldAsIt) {
  CRotate rotate;
  rotate.SetAngle(-32768);
  EXPECT_EQ(rotate.Angle(), -32768);
}

}  // namespace
}  // namespace tavrelin
