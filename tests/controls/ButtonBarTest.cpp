#include "controls/ButtonBar.h"

#include <gtest/gtest.h>

#include "controls/BarButton.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct ButtonBarTest : testing::Test {
  ScreenBench bench;
  ButtonBar bar;
  QStringList pressed;

  void SetUp() override {
    bar.SetGroups(
        {{"Players", {}, {{"Profile", {}}, {"Reports", {}}}}, {"Leagues", {}, {{"Reports", {}}}}});
    QObject::connect(&bar, &ButtonBar::GroupClick,
                     [this](const QString& group) { pressed.append(group); });
    QObject::connect(
        &bar, &ButtonBar::ItemClick,
        [this](const QString& group, const QString& item) { pressed.append(group + ">" + item); });
    bar.show();
    bench.Drive(&bar);
    bench.ProcessEvents();
  }
};

TEST_F(ButtonBarTest, OpensTheFirstGroupAndHidesTheItemsOfAllOthers) {
  EXPECT_EQ(bar.OpenedGroup(), "Players");
  EXPECT_TRUE(bench.Find("Players/Reports").isVisible());
  EXPECT_FALSE(bench.Find("Leagues/Reports").isVisible());
  bar.OpenGroup("Leagues");
  EXPECT_FALSE(bench.Find("Players/Reports").isVisible());
  EXPECT_TRUE(bench.Find("Leagues/Reports").isVisible());
  bar.OpenGroup("No such group");
  EXPECT_EQ(bar.OpenedGroup(), "Leagues");
}

TEST_F(ButtonBarTest, APressIsReportedAndChangesNothingByItself) {
  bench.Click("Leagues");
  bench.Click("Players/Reports");
  EXPECT_EQ(pressed, QStringList({"Leagues", "Players>Reports"}));
  EXPECT_EQ(bar.OpenedGroup(), "Players");
  EXPECT_FALSE(bench.Find<BarButton>("Players/Reports").isChecked());
}

TEST_F(ButtonBarTest, TheKeyboardWalksOverHeadersAndTheOpenItems) {
  bar.FocusBar();
  EXPECT_EQ(bench.FocusName(), "Players");
  QStringList walked;
  for (int i = 0; i < 4; ++i) {
    bench.Press(Qt::Key_Down);
    walked.append(bench.FocusName());
  }
  EXPECT_EQ(walked, QStringList({"Players/Profile", "Players/Reports", "Leagues", "Leagues"}));
  bench.Press(Qt::Key_Up);
  EXPECT_EQ(bench.FocusName(), "Players/Reports");
  bench.Press(Qt::Key_Return);
  bench.Press(Qt::Key_End);
  bench.Press(Qt::Key_Space);
  bench.Press(Qt::Key_Home);
  EXPECT_EQ(bench.FocusName(), "Players");
  EXPECT_EQ(pressed, QStringList({"Players>Reports", "Leagues"}));
}

TEST_F(ButtonBarTest, TheBarIsOneStopOfTheTabOrder) {
  bar.MarkItem("Players", "Reports");
  QStringList stops;
  for (const BarButton* button : bar.findChildren<BarButton*>()) {
    if (button->focusPolicy() & Qt::TabFocus) stops.append(button->objectName());
  }
  EXPECT_EQ(stops, QStringList("Players/Reports"));
  bar.FocusBar();
  EXPECT_EQ(bench.FocusName(), "Players/Reports");
}

TEST_F(ButtonBarTest, OneItemIsMarkedAndNoneAfterAnEmptyName) {
  bar.MarkItem("Leagues", "Reports");
  EXPECT_TRUE(bench.Find<BarButton>("Leagues/Reports").isChecked());
  EXPECT_FALSE(bench.Find<BarButton>("Players/Reports").isChecked());
  bar.MarkItem({}, {});
  EXPECT_FALSE(bench.Find<BarButton>("Leagues/Reports").isChecked());
}

TEST_F(ButtonBarTest, EveryButtonSaysItsNameToAScreenReader) {
  EXPECT_EQ(bench.Find("Players").accessibleName(), "Players, group");
  EXPECT_EQ(bench.Find("Players").accessibleDescription(), "open");
  EXPECT_EQ(bench.Find("Leagues").accessibleDescription(), "closed");
  EXPECT_EQ(bench.Find("Leagues/Reports").accessibleName(), "Reports, Leagues");
}

}  // namespace
}  // namespace tavrelin
