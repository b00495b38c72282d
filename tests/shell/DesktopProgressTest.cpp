#include "shell/DesktopProgress.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include "app/Screens.h"
#include "shell/frmProgress.h"
#include "support/WindowBench.h"

namespace tavrelin {
namespace {

struct DesktopProgressTest : WindowBench {
  DesktopProgress progress;
  QTimer hands;
  bool acted = false;

  void TearDown() override {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the pointer is given back";
    WindowBench::TearDown();
  }

  static frmProgress* Dialog() {
    return qobject_cast<frmProgress*>(QApplication::activeModalWidget());
  }
  /// What the operator does once the dialog is up.
  void OnDialog(const std::function<void()>& act) {
    QObject::connect(&hands, &QTimer::timeout, [this, act] {
      if (!Dialog() || acted) return;
      acted = true;
      bench.Drive(Dialog());
      act();
      bench.Drive(window.get());
    });
    hands.start(10);
  }
  /// Works in steps of a millisecond until it is told to stop, or for `milliseconds`; true when it
  /// was stopped.
  static bool Work(LongWork& work, int milliseconds) {
    for (QElapsedTimer clock = Started(); clock.elapsed() < milliseconds; QThread::msleep(1)) {
      if (!work.Step()) return true;
    }
    return false;
  }
  static QElapsedTimer Started() {
    QElapsedTimer clock;
    clock.start();
    return clock;
  }
};

TEST_F(DesktopProgressTest, ShortWorkIsNotShownAndRunsNoEvents) {
  Open({});
  bool other = false;
  QTimer::singleShot(0, window.get(), [&other] { other = true; });
  LongWork work(progress, "Posting the tournament.", 10);
  EXPECT_FALSE(Work(work, DesktopProgress::ShownAfter / 2));
  EXPECT_EQ(Dialog(), nullptr);
  EXPECT_FALSE(other);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(DesktopProgressTest, LongWorkIsShownWithItsSentenceAndCountAndTheWindowLives) {
  Open({});
  bool other = false;
  QTimer::singleShot(0, window.get(), [&other] { other = true; });
  QString doing, count;
  int value = 0;
  OnDialog([&] {
    doing = bench.Find<QLabel>("lblDoing").text();
    count = bench.Find<QLabel>("lblCount").text();
    value = bench.Find<QProgressBar>("prgDone").value();
    EXPECT_FALSE(bench.Find("cmdCancel").isVisible());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
  });
  LongWork work(progress, "Posting the tournament.", 5000);
  EXPECT_FALSE(Work(work, DesktopProgress::ShownAfter + 300));
  EXPECT_TRUE(other);
  EXPECT_EQ(doing, "Posting the tournament.");
  EXPECT_GT(value, 0);
  EXPECT_EQ(count, QString("%1 of 5000").arg(value));
}

TEST_F(DesktopProgressTest, EscTheButtonAndTheCrossCancelAndEnterAndSpaceDoNot) {
  struct Case {
    std::string name;
    std::function<void()> act;
    bool cancels;
  };
  const QList<Case> cases = {
      {"Esc", [this] { bench.Press(Qt::Key_Escape); }, true},
      {"the button by keys",
       [this] {
         bench.Press(Qt::Key_Tab);
         bench.Press(Qt::Key_Space);
       },
       true},
      {"the button by mouse", [this] { bench.Click("cmdCancel"); }, true},
      {"the cross", [] { Dialog()->close(); }, true},
      {"Enter", [this] { bench.Press(Qt::Key_Return); }, false},
      {"Space", [this] { bench.Press(Qt::Key_Space); }, false},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.name);
    Open({});
    acted = false;
    hands.disconnect();
    OnDialog(one.act);
    LongWork work(progress, "Reading the roster.", 5000, Progress::Cancel::Allowed);
    EXPECT_EQ(Work(work, DesktopProgress::ShownAfter + 300), one.cancels);
    EXPECT_TRUE(acted);
    EXPECT_TRUE(Dialog() && Dialog()->isVisible()) << "until the work has stopped";
    const QString count = Dialog()->findChild<QLabel*>("lblCount")->text();
    EXPECT_EQ(count == "Stopping...", one.cancels);
  }
}

TEST_F(DesktopProgressTest, WorkThatCannotBeCancelledGoesOnWhateverIsPressed) {
  Open({});
  OnDialog([this] {
    bench.Press(Qt::Key_Escape);
    Dialog()->close();
  });
  LongWork work(progress, "Posting the tournament.", 5000);
  EXPECT_FALSE(Work(work, DesktopProgress::ShownAfter + 300));
  EXPECT_TRUE(acted);
  EXPECT_NE(Dialog(), nullptr);
}

TEST_F(DesktopProgressTest, NothingElseCanBeStartedNorTheWindowClosedMeanwhile) {
  Open(AllScreens());
  bench.Click("Players/Profile");
  OnDialog([this] {
    const QWidget& stats = *window->findChild<QWidget*>("Players/Stats");
    const QPoint place = stats.mapTo(window.get(), stats.rect().center());
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(window->close());
  });
  {
    LongWork work(progress, "Posting the tournament.", 5000, Progress::Cancel::Allowed);
    EXPECT_FALSE(Work(work, DesktopProgress::ShownAfter + 300));
  }
  EXPECT_TRUE(acted);
  bench.ProcessEvents();
  EXPECT_EQ(Visible(), QStringList("uctProfile"));
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Dialog(), nullptr);
  EXPECT_EQ(bench.FocusName(), "grdProfile_Table");
}

TEST_F(DesktopProgressTest, WithinAnotherPieceOfWorkThereIsOneDialogAndOneCancel) {
  Open({});
  OnDialog([this] {
    EXPECT_EQ(bench.Find<QLabel>("lblDoing").text(), "Posting the tournament.");
    EXPECT_EQ(bench.Find<QLabel>("lblCount").text(), "0 of 12");
    bench.Press(Qt::Key_Escape);
  });
  LongWork tournament(progress, "Posting the tournament.", 12, Progress::Cancel::Allowed);
  EXPECT_TRUE(tournament.Step());
  {
    LongWork ranking(progress, "Ranking the class.", 4000);
    EXPECT_TRUE(Work(ranking, DesktopProgress::ShownAfter + 300));
    EXPECT_NE(Dialog(), nullptr);
  }
  EXPECT_FALSE(tournament.Step());
}

struct frmProgressTest : testing::Test {
  ScreenBench bench;

  void Show(frmProgress& dialog) {
    bench.Drive(&dialog);
    dialog.show();
    bench.ProcessEvents();
  }
  void TearDown() override { UseLightPalette(); }
};

TEST_F(frmProgressTest, WithoutATotalItRunsToAndFroAndCountsWhatIsDone) {
  frmProgress dialog("Asking for the players of the state.", Progress::Unknown, true);
  Show(dialog);
  EXPECT_EQ(bench.Find<QProgressBar>("prgDone").maximum(), 0);
  EXPECT_EQ(bench.Find<QLabel>("lblCount").text(), "");
  dialog.ShowDone(340);
  EXPECT_EQ(bench.Find<QLabel>("lblCount").text(), "340 so far");
}

TEST_F(frmProgressTest, MoreStepsThanAnnouncedAreStillTheWhole) {
  frmProgress dialog("Printing the cards.", 12, false);
  Show(dialog);
  dialog.ShowDone(13);
  EXPECT_EQ(bench.Find<QLabel>("lblCount").text(), "12 of 12");
}

TEST_F(frmProgressTest, LooksItsPartInLightAndDark) {
  frmProgress dialog("Posting the results of the Minnesota State Tournament, all 31 classes.", 31,
                     true);
  Show(dialog);
  dialog.ShowDone(12);
  EXPECT_EQ(CutTexts(dialog), QStringList());
  bench.Shot("progress");
  UseDarkPalette();
  bench.Shot("progress-dark");
}

}  // namespace
}  // namespace tavrelin
