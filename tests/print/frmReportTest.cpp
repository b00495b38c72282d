#include "print/frmReport.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "basic/Error.h"
#include "print/PageSurface.h"
#include "print/PdfFile.h"
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
  bench.store().SaveRegistryString("frmReport", "Width", "9000");
  Open(Pages(1));
  const QSize size = report.size();
  EXPECT_EQ(size, QSize(600, 333));
  Close();
  EXPECT_EQ(Stored("Height"), "5000");
  report.show();
  EXPECT_EQ(report.size(), size);
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
  QWheelEvent wheel({100, 100}, report.mapToGlobal(QPointF(100, 100)), {}, {0, 120}, Qt::NoButton,
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&report, &wheel);
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

// The preview at 150 percent and the PDF at 144 dots an inch are both one pixel to ten twips: the
// same letters stand in the same places.
TEST_F(frmReportTest, ThePreviewShowsWhatThePdfHolds) {
  const Document document = Pages(2);
  Open(document);
  report.SetZoom(1.5);
  QImage seen(Picture2().size(), QImage::Format_RGB32);
  Picture2().render(&seen);
  const PdfPages pdf(document);
  for (const PdfWord& word : pdf.Words()) {
    const int top = (word.page - 1) * 1500;
    const QRect place(int(word.x / 10), top + int(word.y / 10), int((word.right - word.x) / 10),
                      int((word.bottom - word.y) / 10));
    int dark = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
      for (int x = place.left(); x <= place.right(); ++x) dark += qGray(seen.pixel(x, y)) < 160;
    }
    EXPECT_GT(dark, 2) << word.text.toStdString();
  }
}

TEST_F(frmReportTest, NothingIsCutInTheWindow) {
  Open(Pages(2));
  EXPECT_EQ(CutTexts(report), QStringList());
  bench.Shot("frmReport");
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
