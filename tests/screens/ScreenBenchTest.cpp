#include "support/ScreenBench.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "data/Connection.h"
#include "shell/MessageBar.h"

namespace tavrelin {
namespace {

/// A screen with one control of each kind that the bench drives.
class uctSample : public Screen {
 public:
  uctSample(const Surroundings& surroundings, QWidget* parent)
      : Screen(QStringLiteral("uctSample"), QStringLiteral("Sample"), surroundings, parent) {
    auto* column = new QVBoxLayout(this);
    Add(column, new QLineEdit(this), "txtName");
    auto* combo = new QComboBox(this);
    combo->addItems({"MN", "SD"});
    Add(column, combo, "cboState");
    auto* button = new QPushButton(QStringLiteral("Delete"), this);
    Add(column, button, "cmdDelete");
    column->addWidget(stsInfo());
    connect(button, &QPushButton::clicked, this,
            [this] { Event("cmdDelete_Click", [this] { cmdDelete_Click(); }); });
  }

  int shows = 0, hides = 0;

 protected:
  void UserControl_Show() override { ++shows; }
  void UserControl_Hide() override { ++hides; }

 private:
  static void Add(QVBoxLayout* column, QWidget* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    column->addWidget(control);
  }
  void cmdDelete_Click() {
    if (!around().person.Confirm("Confirm Deletion", "Delete?")) return Refuse("Not deleted");
    throw Error(75, "The disk is full.");
  }
};

TEST(ScreenBench, DrivesAScreenByKeysAndClicks) {
  ScreenBench bench;
  bench.Show<uctSample>();
  bench.Fill("txtName", "Olson");
  bench.Fill("txtName", "Berg");
  EXPECT_EQ(bench.Find<QLineEdit>("txtName").text(), "Berg");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(bench.FocusName(), "cboState");
  bench.Pick("cboState", "SD");
  EXPECT_EQ(bench.Find<QComboBox>("cboState").currentText(), "SD");
  bench.Shot("sample");
}

TEST(ScreenBench, AnswersQuestionsAndRecordsRefusalsAndErrors) {
  ScreenBench bench;
  bench.Show<uctSample>();
  bench.person.WillAnswer(false);
  bench.Click("cmdDelete");
  EXPECT_EQ(bench.Message(), "Not deleted");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(bench.person.beeps, 1);
  bench.person.WillAnswer(true);
  bench.Click("cmdDelete");
  const ErrorReport error = bench.errors.Take();
  EXPECT_EQ(error.description, "The disk is full.");
  EXPECT_EQ(error.callStack, "cmdDelete_Click");
  ASSERT_EQ(bench.person.questions.size(), 2);
  EXPECT_EQ(bench.person.questions[1].title, "Confirm Deletion");
}

TEST(ScreenBench, LeavingAndReturningRunsTheScreensOwnEvents) {
  ScreenBench bench;
  auto& screen = bench.Show<uctSample>();
  EXPECT_EQ(screen.shows, 1);
  bench.LeaveAndReturn();
  EXPECT_EQ(screen.shows, 2);
  EXPECT_EQ(screen.hides, 1);
  EXPECT_FALSE(bench.person.busy);
}

TEST(ScreenBench, GivesEachTestANewClubOfItsOwn) {
  for (int test = 0; test < 2; ++test) {
    ScreenBench bench;
    Connection connection;
    connection.Open(ConnectString);
    EXPECT_EQ(connection.FilePath(), bench.ClubFile());
    EXPECT_EQ(connection.Execute("UPDATE SystemSettings SET SettingValue = 'Y' "
                                 "WHERE SettingID = 10 AND SettingValue <> 'Y'"),
              1);
  }
  EXPECT_EQ(ConnectString, "");
}

TEST(ScreenBench, AnUnexpectedQuestionFailsTheTestAndIsAnsweredNo) {
  FakeOperator person;
  EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(person.Confirm("Confirm Post", "Post?")), "Confirm Post");
}

TEST(ScreenBench, AnErrorNobodyTookFailsTheTest) {
  auto leave = [] {
    ErrorRecorder recorder;
    recorder.Display()({{}, "Lost", "Lost", "cmdSave_Click", 75});
  };
  EXPECT_NONFATAL_FAILURE(leave(), "cmdSave_Click");
}

TEST(ScreenBench, FindsTextsThatAreCut) {
  QWidget window;
  window.resize(300, 100);
  auto* button = new QPushButton(QStringLiteral("Copy To Clipboard"), &window);
  button->setObjectName("cmdCopy");
  button->resize(button->sizeHint());
  window.show();
  EXPECT_EQ(CutTexts(window), QStringList());
  button->resize(40, button->height());
  EXPECT_EQ(CutTexts(window), QStringList("cmdCopy: Copy To Clipboard"));
}

}  // namespace
}  // namespace tavrelin
