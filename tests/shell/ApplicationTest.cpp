#include "shell/Application.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

/// Fails whenever it is painted, or when it is told to.
class Troublesome : public QWidget {
 public:
  bool failsToPaint = false;
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent*) override {
    ++paints;
    QPainter painter(this);
    if (failsToPaint) throw Error(13, "This cannot be painted.");
  }
};

struct ApplicationTest : testing::Test {
  QList<ErrorReport> shown;
  Application& application = *static_cast<Application*>(qApp);

  void SetUp() override {
    application.SetErrorDisplay([this](const ErrorReport& report) { shown.append(report); });
  }
  void TearDown() override { application.SetErrorDisplay({}); }
};

TEST_F(ApplicationTest, AnExceptionFromASlotReachesTheDialogAndTheProgramGoesOn) {
  QPushButton button;
  button.setObjectName("cmdPost");
  int presses = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] {
    ++presses;
    throw Error(75, "The disk is full.");
  });
  button.show();
  QTest::mouseClick(&button, Qt::LeftButton);
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(shown[0].number, 75);
  EXPECT_EQ(shown[0].description, "The disk is full.");
  EXPECT_EQ(shown[0].callStack, "cmdPost");
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(presses, 2);
  EXPECT_EQ(shown.size(), 2);
}

TEST_F(ApplicationTest, AnExceptionFromATimerReachesTheDialogAndTheProgramGoesOn) {
  bool after = false;
  QTimer::singleShot(0, [] { throw std::runtime_error("late"); });
  QTimer::singleShot(5, [&] { after = true; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return after; }));
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(shown[0].description, "late");
}

TEST_F(ApplicationTest, APaintThatFailsEachTimeIsToldOfOnce) {
  Troublesome widget;
  widget.failsToPaint = true;
  widget.resize(50, 50);
  widget.show();
  for (int i = 0; i < 5; ++i) {
    widget.update();
    QTest::qWait(5);
  }
  EXPECT_GE(widget.paints, 2);
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(shown[0].description, "This cannot be painted.");
}

TEST_F(ApplicationTest, TheSameFailureWhileItsDialogIsUpIsNotShownAgain) {
  QTimer failing;
  QObject::connect(&failing, &QTimer::timeout, [] { throw Error(1, "again and again"); });
  application.SetErrorDisplay([this](const ErrorReport& report) {
    shown.append(report);
    QTest::qWait(30);  // the operator reads, and the timer fails on
  });
  failing.start(2);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !shown.isEmpty(); }));
  failing.stop();
  EXPECT_EQ(shown.size(), 1);
}

TEST_F(ApplicationTest, AnotherFailureWhileADialogIsUpWaitsItsTurn) {
  int depth = 0, deepest = 0;
  application.SetErrorDisplay([&](const ErrorReport& report) {
    deepest = qMax(deepest, ++depth);
    shown.append(report);
    if (shown.size() == 1) QTimer::singleShot(0, [] { throw Error(2, "second"); });
    QTest::qWait(20);
    --depth;
  });
  QTimer::singleShot(0, [] { throw Error(1, "first"); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown.size() == 2; }));
  EXPECT_EQ(deepest, 1);
  EXPECT_EQ(shown[0].description, "first");
  EXPECT_EQ(shown[1].description, "second");
}

TEST_F(ApplicationTest, NoFontIsUnderTenAndAHalfPoints) {
  EXPECT_GE(QApplication::font().pointSizeF(), 10.5);
  EXPECT_EQ(QApplication::style()->objectName(), "fusion");
}

}  // namespace
}  // namespace tavrelin
