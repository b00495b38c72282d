#include "shell/frmError.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

const ErrorReport TwoNames = {{},
                              "The disk is full.",
                              "Nothing was saved: the disk is full.",
                              "RankTheClass\r\ncmdPrint_Click",
                              75};

struct frmErrorTest : testing::Test {
  ScreenBench bench;
  std::unique_ptr<frmError> dialog;

  void Open(const ErrorReport& report) {
    dialog = std::make_unique<frmError>(report, bench.clipboard);
    dialog->show();
    bench.Drive(dialog.get());
    bench.ProcessEvents();
  }
  QString TextOf(const QString& box) { return bench.Find<QPlainTextEdit>(box).toPlainText(); }
};

TEST_F(frmErrorTest, OpensLowWithTheMessageAndTheButtonsAlone) {
  Open(TwoNames);
  EXPECT_EQ(dialog->windowTitle(), "Error");
  EXPECT_EQ(dialog->height(), 165);  // 2475 twips
  EXPECT_EQ(TextOf("txtGeneralMessage"), "The disk is full.");
  EXPECT_FALSE(bench.Find("txtDescription").isVisible());
  EXPECT_FALSE(bench.Find("txtCallStack").isVisible());
  EXPECT_FALSE(bench.Find("lblNumber").isVisible());
  EXPECT_EQ(CutTexts(*dialog), QStringList());
  bench.Shot("error");
}

TEST_F(frmErrorTest, DetailsOpenAndCloseWithTheirCaptionAndHeight) {
  Open(TwoNames);
  auto& cmdDetails = bench.Find<QPushButton>("cmdDetails");
  EXPECT_EQ(cmdDetails.text(), "Details");
  bench.Click("cmdDetails");
  EXPECT_EQ(cmdDetails.text(), "No Details");
  EXPECT_EQ(dialog->height(), 423);  // 6345 twips
  EXPECT_EQ(TextOf("txtDescription"), "Nothing was saved: the disk is full.");
  EXPECT_EQ(TextOf("txtCallStack"), "RankTheClass\ncmdPrint_Click");
  EXPECT_EQ(bench.Find<QLabel>("lblNumber").text(), "75");
  EXPECT_TRUE(bench.Find("txtCallStack").isVisible());
  EXPECT_EQ(CutTexts(*dialog), QStringList());
  bench.Shot("error-details");
  bench.Click("cmdDetails");
  EXPECT_EQ(cmdDetails.text(), "Details");
  EXPECT_EQ(dialog->height(), 165);
  EXPECT_FALSE(bench.Find("txtCallStack").isVisible());
}

TEST_F(frmErrorTest, TheLabelsStandToTheLetter) {
  Open(TwoNames);
  QStringList captions;
  for (const char* label : {"lblNumberCaption", "lblDescriptionCaption", "lblCallStackCaption"}) {
    captions.append(bench.Find<QLabel>(label).text());
  }
  EXPECT_EQ(captions, QStringList({"Error Number:", "Error Description:", "Call Stack:"}));
  EXPECT_EQ(bench.Find<QPushButton>("cmdCopy").text(), "Copy To Clipboard");
  EXPECT_EQ(bench.Find<QPushButton>("cmdOk").text(), "Ok");
}

TEST_F(frmErrorTest, CopyPutsAllPartsOnTheClipboardWithBlankLinesBetween) {
  Open(TwoNames);
  bench.Click("cmdCopy");
  EXPECT_EQ(bench.clipboard.text,
            "The disk is full.\r\n\r\n"
            "Error Number: 75\r\n\r\n"
            "Description: \r\n\r\n"
            "Nothing was saved: the disk is full.\r\n\r\n"
            "Call Stack: \r\n\r\n"
            "RankTheClass\r\ncmdPrint_Click");
}

TEST_F(frmErrorTest, TheFocusGoesToOkAndEnterDismisses) {
  Open(TwoNames);
  EXPECT_EQ(bench.FocusName(), "cmdOk");
  bench.Click("cmdDetails");
  for (const char* box : {"txtGeneralMessage", "txtDescription"}) {
    bench.Focus("cmdCopy");
    bench.Focus(box);
    EXPECT_EQ(bench.FocusName(), "cmdOk") << box;
  }
  bench.Press(Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(frmErrorTest, ATitleBecomesTheCaption) {
  ErrorReport titled = TwoNames;
  titled.title = "Print";
  Open(titled);
  EXPECT_EQ(dialog->windowTitle(), "Print");
}

TEST_F(frmErrorTest, ADialogThatGrowsOverTheScreensEndIsCentered) {
  EXPECT_EQ(frmError::TopOf(100, 423, 768), 100);
  EXPECT_EQ(frmError::TopOf(345, 423, 768), 345);
  EXPECT_EQ(frmError::TopOf(346, 423, 768), 172);
  EXPECT_EQ(frmError::TopOf(10, 900, 768), 0);
  Open(TwoNames);
  const int screenHeight = dialog->screen()->size().height();
  dialog->move(dialog->x(), screenHeight - 200);
  bench.Click("cmdDetails");
  EXPECT_EQ(dialog->y(), qMax(0, (screenHeight - 423) / 2));
}

TEST_F(frmErrorTest, ALargeFontMakesTheDialogHigherThanCutItsTexts) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSize(20);
  QApplication::setFont(large);
  Open(TwoNames);
  EXPECT_GE(dialog->height(), dialog->minimumSizeHint().height());
  EXPECT_GT(dialog->height(), 165);
  dialog.reset();
  QApplication::setFont(before);
}

TEST_F(frmErrorTest, TheDisplayWaitsUntilTheDialogIsClosed) {
  bool seen = false;
  QTimer::singleShot(0, [&] {
    QWidget* open = QApplication::activeModalWidget();
    ASSERT_TRUE(open);
    seen = open->objectName() == "frmError";
    open->close();
  });
  ErrorDialog(bench.clipboard)(TwoNames);
  EXPECT_TRUE(seen);
}

TEST_F(frmErrorTest, TheHourglassRestsWhileTheDialogIsRead) {
  Qt::CursorShape pointer = Qt::BlankCursor;
  QTimer::singleShot(0, [&] {
    pointer = QApplication::overrideCursor()->shape();
    QApplication::activeModalWidget()->close();
  });
  QApplication::setOverrideCursor(Qt::WaitCursor);
  ErrorDialog(bench.clipboard)(TwoNames);
  EXPECT_EQ(pointer, Qt::ArrowCursor);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  QApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace tavrelin
