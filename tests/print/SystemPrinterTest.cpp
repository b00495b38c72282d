#include "print/SystemPrinter.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPrinterInfo>
#include <QTimer>

#include "basic/Error.h"
#include "print/frmReport.h"
#include "support/PdfPages.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

void HelloSheet(OutputTarget& target) {
  target.MoveTo(200, 350);
  target.Print(target.IsPrinter() ? "Paper" : "Glass");
}

struct SystemPrinterTest : testing::Test {
  ScreenBench bench;
  SystemPrinter printer{bench.person, bench.store()};

  void SetUp() override {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
  }
};

TEST_F(SystemPrinterTest, WithoutAPrinterTheOperatorIsAskedForAFile) {
  bench.person.WillChoose(bench.PathOf("sheet.pdf"));
  EXPECT_EQ(printer.Print("Spring/Open: A", HelloSheet, 3), Printed::InFile);
  ASSERT_EQ(bench.person.dialogs.size(), 1);
  EXPECT_EQ(bench.person.dialogs[0],
            "No printer is set up: save as PDF|Spring Open A.pdf|PDF files (*.pdf)");
  EXPECT_TRUE(PdfPages(bench.PathOf("sheet.pdf")).Has("Paper"));
}

TEST_F(SystemPrinterTest, CancelPrintsNothing) {
  bench.person.WillChoose({});
  EXPECT_EQ(printer.Print("Sheet", HelloSheet), Printed::Nowhere);
}

TEST_F(SystemPrinterTest, AFileThatCannotBeWrittenIsAnError) {
  bench.person.WillChoose(bench.PathOf("nowhere/sheet.pdf"));
  EXPECT_THROW(printer.Print("Sheet", HelloSheet), Error);
}

TEST_F(SystemPrinterTest, AFileWithoutAnEndingGetsOne) {
  bench.person.WillChoose(bench.PathOf("sheet"));
  EXPECT_EQ(printer.Print("Sheet", HelloSheet), Printed::InFile);
  EXPECT_EQ(PdfPages(bench.PathOf("sheet.pdf")).PageCount(), 1);
}

TEST_F(SystemPrinterTest, ThePreviewSavesTheReportAsThePrinterWouldHaveIt) {
  bench.person.WillChoose(bench.PathOf("sheet.pdf"));
  QTimer::singleShot(0, [this] {
    QWidget* window = QApplication::activeModalWidget();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), "Report Preview");
    bench.Drive(window);
    bench.Click("cmdSavePdf");
    EXPECT_EQ(bench.Message(), "File has been created");
    bench.Click("cmdClose");
  });
  printer.Preview("Sheet", HelloSheet);
  EXPECT_FALSE(bench.person.busy);
  EXPECT_TRUE(PdfPages(bench.PathOf("sheet.pdf")).Has("Paper"));
}

TEST_F(SystemPrinterTest, AReportThatFailsShowsNoPreview) {
  EXPECT_THROW(printer.Preview("Sheet", [](OutputTarget&) { throw Error(1, "no rows"); }), Error);
  EXPECT_FALSE(bench.person.busy);
}

}  // namespace
}  // namespace tavrelin
