#include "print/frmReport.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "basic/Error.h"
#include "print/CRotate.h"
#include "print/PageSurface.h"
#include "support/PdfPages.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

Document Pages(int count, Orientation orientation = Orientation::Portrait) {
  return Record(OutputTarget::Kind::Preview, "Pages", [&](OutputTarget& target) {
    target.SetOrientation(orientation);
    for (int page = 1; page <= count; ++page) {
      if (page > 1) target.NewPage();
      for (int line = 0; line < 50; ++line) {
        target.MoveTo(200, 350 + line * 225);
        target.Print(QString("Page %1, line %2: a ringer counts three points").arg(page).arg(line));
      }
    }
  });
}

struct frmReportTest : testing::Test {
  ScreenBench bench;
  frmReport report{bench.store()};

  void SetUp() override { bench.Drive(&report); }
  void Open(const Document& document, frmReport::Actions actions = {}) {
    report.SetDocument(document, std::move(actions));
    report.show();
    report.activateWindow();
    bench.ProcessEvents();
  }
  PageSurface& Picture2() { return bench.Find<PageSurface>("Picture2"); }
  QScrollBar& VScroll1() { return bench.Find<QScrollBar>("VScroll1"); }
  QString Place() { return bench.Find<QLabel>("lblPage").text(); }
  void Turn(int angle, Qt::KeyboardModifiers modifiers) {
    QWheelEvent wheel({100, 100}, report.mapToGlobal(QPointF(100, 100)), {}, {0, angle},
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&report, &wheel);
  }
  void Close() {
    report.reject();
    bench.ProcessEvents();
  }
  QString Stored(const char* name) {
    return bench.store().GetRegistryString("frmReport", QLatin1String(name));
  }
};

TEST_F(frmReportTest, APreviewOfTwoPortraitPagesIs2000HighAndTheBarReachesItsEnd) {
  Open(Pages(2));
  EXPECT_EQ(Picture2().size(), QSize(800, 2000));
  bench.Press(Qt::Key_End);
  EXPECT_EQ(Picture2().y() + Picture2().height(), bench.Find("Picture1").height());
  EXPECT_EQ(Picture2().y(), -VScroll1().value());
  EXPECT_EQ(Place(), "Page 2 of 2");
}

TEST_F(frmReportTest, AfterUnloadWithAWindowSizeOf5000By6000TheNextOneOpensAtThatSize) {
  bench.store().SaveRegistryString("frmReport", "Height", "5000");
  bench.store().SaveRegistryString("frmReport", "Width", "6000");
  Open(Pages(1));
  EXPECT_EQ(report.size(), QSize(400, 333));
  Close();
  EXPECT_EQ(Stored("Height"), "5000");
  EXPECT_EQ(Stored("Width"), "6000");
  report.show();
  EXPECT_EQ(report.size(), QSize(400, 333));
  Close();
  bench.store().SaveRegistryString("frmReport", "Height", "6000");
  bench.store().SaveRegistryString("frmReport", "Width", "5000");
  report.show();
  EXPECT_EQ(report.size(), QSize(333, 400));
  EXPECT_EQ(CutTexts(report), QStringList());
}

TEST_F(frmReportTest, AStoreWithoutSensibleSizesOpensItAllTheSame) {
  bench.store().SaveRegistryString("frmReport", "Height", "tall");
  bench.store().SaveRegistryString("frmReport", "Width", "999999999");
  Open(Pages(1));
  EXPECT_GT(report.height(), 200);
  EXPECT_LE(report.width(), report.screen()->availableSize().width());
}

TEST_F(frmReportTest, TheSizeTheOperatorGaveIsKeptInTwips) {
  Open(Pages(1));
  EXPECT_EQ(report.size(), QSize(640, 480));
  report.resize(700, 400);
  Close();
  EXPECT_EQ(Stored("Height"), "6000");
  EXPECT_EQ(Stored("Width"), "10500");
  frmReport next(bench.store());
  next.SetDocument(Pages(1), {});
  next.show();
  EXPECT_EQ(next.size(), QSize(700, 400));
}

TEST_F(frmReportTest, ANewPreviewDoesNotKeepTheHeightOfAnEarlierOne) {
  Open(Pages(5));
  bench.Press(Qt::Key_End);
  Close();
  Open(Pages(1, Orientation::Landscape));
  EXPECT_EQ(Picture2().size(), QSize(1000, 800));
  EXPECT_EQ(Picture2().y(), 0);
}

TEST_F(frmReportTest, PagesStandBelowEachOtherInTheirOrientation) {
  report.SetPageLandscape();
  EXPECT_EQ(Picture2().PageSize(), QSize(1000, 800));
  report.NewPageLandscape();
  EXPECT_EQ(Picture2().PageSize(), QSize(1000, 1600));
  report.SetPagePortrait();
  report.NewPagePortrait();
  EXPECT_EQ(Picture2().PageSize(), QSize(800, 2000));
}

TEST_F(frmReportTest, SixtyPagesOpenWithoutAPauseAndOnlyThoseInViewAreDrawn) {
  const Document document = Pages(60);
  QElapsedTimer clock;
  clock.start();
  Open(document);
  report.grab();
  EXPECT_LT(clock.elapsed(), 1000);
  Picture2().TakePagesDrawn();
  report.GoToPage(30);
  report.grab();
  EXPECT_LE(Picture2().TakePagesDrawn(), 4);
  EXPECT_EQ(Place(), "Page 30 of 60");
}

TEST_F(frmReportTest, ZoomKeepsThePageInViewAndTheDocumentItsSize) {
  Open(Pages(3));
  report.GoToPage(3);
  const int top = VScroll1().value();
  Turn(120, Qt::ControlModifier);
  EXPECT_EQ(Picture2().size(), QSize(1000, 3750));
  EXPECT_NEAR(VScroll1().value(), top * 1.25, 1);
  bench.Press(Qt::Key_Minus);
  EXPECT_EQ(Picture2().size(), QSize(800, 3000));
  bench.Click("cmdFitWidth");
  EXPECT_EQ(Picture2().width(), bench.Find("Picture1").width());
  EXPECT_EQ(bench.Find<QScrollBar>("HScroll1").maximum(), 0);
  report.SetZoom(100);
  EXPECT_EQ(report.Zoom(), 4);
}

TEST_F(frmReportTest, ATouchpadZoomsANotchForAllTheSmallTurnsOfOne) {
  Open(Pages(1));
  for (int turn = 0; turn < 8; ++turn) Turn(15, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(report.Zoom(), 1.25);
  Turn(-119, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(report.Zoom(), 1.25);
  Turn(-1, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(report.Zoom(), 1);
}

TEST_F(frmReportTest, TheWheelAloneScrolls) {
  Open(Pages(2));
  Turn(-120, Qt::NoModifier);
  EXPECT_EQ(VScroll1().value(), 120);
  EXPECT_EQ(report.Zoom(), 1);
}

TEST_F(frmReportTest, TheLastOfSixtyPagesIsThereAtTheLargestZoom) {
  Open(Pages(60));
  report.SetZoom(4);
  report.GoToPage(60);
  const QImage seen = bench.Find("Picture1").grab().toImage();
  int dark = 0;
  // Line 0 of a page begins 200 twips from the left and 350 from the top; a pixel is 3.75 twips.
  for (int y = 93; y < 152; ++y) {
    for (int x = 53; x < 400; ++x) dark += qGray(seen.pixel(x, y)) < 128;
  }
  EXPECT_GT(dark, 500);
  EXPECT_EQ(Place(), "Page 60 of 60");
}

TEST_F(frmReportTest, TheKeyboardScrolls) {
  Open(Pages(2));
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(VScroll1().value(), 40);
  bench.Press(Qt::Key_PageDown);
  EXPECT_EQ(VScroll1().value(), 40 + bench.Find("Picture1").height());
  bench.Press(Qt::Key_Home);
  EXPECT_EQ(VScroll1().value(), 0);
  bench.Press(Qt::Key_Right);
  EXPECT_EQ(Picture2().x(), -40);
}

TEST_F(frmReportTest, AfterAPressedButtonTheKeyboardStillScrolls) {
  Open(Pages(2), {[] { return QStringLiteral("Document has been sent to printer"); }, {}});
  for (const char* button : {"cmdPrint", "cmdFitWidth", "cmdZoomOut", "cmdZoomIn"}) {
    bench.Click(button);
    bench.Press(Qt::Key_Home);
    bench.Press(Qt::Key_Down);
    EXPECT_EQ(VScroll1().value(), 40) << button;
  }
}

TEST_F(frmReportTest, PrintAndSaveSayWhatCameOfIt) {
  int printed = 0;
  Open(Pages(1), {[&] {
                    ++printed;
                    return QStringLiteral("Document has been sent to printer");
                  },
                  []() -> QString { throw Error(errors::File, "The disk is full."); }});
  bench.Click("cmdPrint");
  EXPECT_EQ(printed, 1);
  EXPECT_EQ(bench.Message(), "Document has been sent to printer");
  bench.Click("cmdSavePdf");
  EXPECT_EQ(bench.Message(), "The disk is full.");
  EXPECT_TRUE(bench.Refused());
}

/// Typefaces, weights, sizes, turned text and rules on two pages.
void ManyTexts(OutputTarget& target) {
  int y = 400;
  for (const char* face : {"Arial", "Tahoma"}) {
    for (const double size : {8.25, 10.0, 12.0, 24.0}) {
      for (const int weight : {400, 700}) {
        target.Font() = {.name = face, .size = size, .weight = weight};
        target.MoveTo(200 + weight, y);
        target.PrintOn("Ringers and shoes");
        target.Font().italic = target.Font().name == "Arial";  // Tahoma has no italics
        target.PrintAt(7000, "Featherstonehaugh");
        y += target.LineHeight() + 40;
      }
    }
  }
  target.Font() = {.size = 24};
  CRotate rotate;
  rotate.SetDevice(target);
  rotate.SetAngle(180);
  target.MoveTo(9000, 14000);
  rotate.PrintText("Walter");
  target.NewPage();
  target.Font() = {.size = 36};
  target.PrintAt(3000, "Second");
  target.MoveTo(500, 14000);
  target.PrintOn("Foot");
}

/// The ink within a word's place, in pixels of 10 twips; `top` is where its page begins.
QRect InkOf(const PdfWord& word, const QImage& picture, int top) {
  QRect ink;
  const QRect place(QPoint(int(word.x / 10) - 1, top + int(word.y / 10)),
                    QPoint(int(word.right / 10) + 1, top + int(word.bottom / 10)));
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      if (qGray(picture.pixel(x, y)) < 150) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink.translated(0, -top);
}

// The preview at 150 percent and the PDF at 144 dots an inch are both one pixel to ten twips.
TEST_F(frmReportTest, ThePreviewShowsEveryTextWhereThePdfHasIt) {
  Open(Record(OutputTarget::Kind::Preview, "Texts", ManyTexts));
  report.SetZoom(1.5);
  QImage seen(Picture2().size(), QImage::Format_RGB32);
  Picture2().render(&seen);
  const PdfPages pdf(Record(OutputTarget::Kind::Printer, "Texts", ManyTexts));
  const QImage pages[] = {pdf.Picture(1), pdf.Picture(2)};
  EXPECT_EQ(pdf.Words().size(), 16 * 4 + 3);
  for (const PdfWord& word : pdf.Words()) {
    SCOPED_TRACE(word.text.toStdString());
    const QRect file = InkOf(word, pages[word.page - 1], 0);
    const QRect preview = InkOf(word, seen, (word.page - 1) * 1500);
    ASSERT_FALSE(file.isEmpty());
    EXPECT_NEAR(preview.left(), file.left(), 1);
    EXPECT_NEAR(preview.right(), file.right(), 1);
    EXPECT_NEAR(preview.top(), file.top(), 1);
    EXPECT_NEAR(preview.bottom(), file.bottom(), 1);
  }
}

TEST_F(frmReportTest, NothingIsCutInTheWindow) {
  Open(Pages(2));
  EXPECT_EQ(CutTexts(report), QStringList());
  bench.Shot("frmReport");
  report.resize(400, 333);
  bench.ProcessEvents();
  EXPECT_EQ(CutTexts(report), QStringList());
  bench.Shot("frmReport-small");
  report.resize(1000, 640);
  report.SetZoom(2);
  bench.ProcessEvents();
  bench.Shot("frmReport-large");
  UseDarkPalette();
  report.FitWidth();
  bench.Shot("frmReport-dark");
  UseLightPalette();
}

}  // namespace
}  // namespace tavrelin
