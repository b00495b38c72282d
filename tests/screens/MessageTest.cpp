// How long a message stays: until the next key or click that acts.

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "shell/MessageBar.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

/// Refuses a key and lets it go on to the controls around it.
class Grumbler : public QWidget {
 public:
  Grumbler(std::function<void()> refuse, QWidget* parent)
      : QWidget(parent), refuse_(std::move(refuse)) {
    setObjectName("Grumbler");
    setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    refuse_();
    event->ignore();
  }

 private:
  std::function<void()> refuse_;
};

class Speaker : public Screen {
 public:
  Speaker(const Surroundings& surroundings, QWidget* parent)
      : Screen("uctSpeaker", "Speaker", surroundings, parent) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(Button("cmdRefuse", "Refuse", [this] { Refuse("Invalid category"); }));
    column->addWidget(Button("cmdSay", "Say", [this] { Say("File has been created"); }));
    column->addWidget(Button("cmdQuiet", "&Quiet", [] {}));
    column->addWidget(Button("cmdBarred", "Barred", [] {}));
    findChild<QPushButton*>("cmdBarred")->setEnabled(false);
    auto* text = new QLineEdit(this);
    text->setObjectName("txtName");
    column->addWidget(text);
    auto* label = new QLabel("Name", this);
    label->setObjectName("lblName");
    column->addWidget(label);
    auto* frame = new QWidget(this);
    frame->setObjectName("fraGrumbler");
    auto* inner = new QVBoxLayout(frame);
    inner->addWidget(new Grumbler([this] { Refuse("Not here"); }, frame));
    column->addWidget(frame);
    column->addWidget(stsInfo());
  }

 private:
  QPushButton* Button(const QString& name, const QString& caption, std::function<void()> click) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, click);
    return button;
  }
};

struct MessageTest : testing::Test {
  ScreenBench bench;

  struct Deed {
    std::string name;
    std::function<void()> act;
  };
  void SetUp() override { bench.Show<Speaker>(); }
  void Send(const QString& control, QEvent& event) {
    QCoreApplication::sendEvent(&bench.Find(control), &event);
    bench.ProcessEvents();
  }
};

TEST_F(MessageTest, GoesWithTheNextKeyOrClickThatActs) {
  const QList<Deed> deeds = {
      {"a letter typed",
       [this] {
         bench.Focus("txtName");
         bench.Type("a");
       }},
      {"a letter of an input method",
       [this] {
         bench.Focus("txtName");
         bench.Type("é");
       }},
      {"an arrow in a text",
       [this] {
         bench.Focus("txtName");
         bench.Press(Qt::Key_Left);
       }},
      {"a click into a text", [this] { bench.Click("txtName"); }},
      {"a button pressed", [this] { bench.Click("cmdQuiet"); }},
      {"a button by Space",
       [this] {
         bench.Focus("cmdQuiet");
         bench.Press(Qt::Key_Space);
       }},
      {"a button by its letter", [this] { bench.Press(Qt::Key_Q, Qt::AltModifier); }},
      {"Tab",
       [this] {
         bench.Focus("txtName");
         bench.Press(Qt::Key_Tab);
       }},
  };
  for (const char* speaks : {"cmdRefuse", "cmdSay"}) {
    for (const Deed& deed : deeds) {
      SCOPED_TRACE(std::string(speaks) + ", then " + deed.name);
      bench.Click(speaks);
      ASSERT_NE(bench.Message(), "");
      deed.act();
      EXPECT_EQ(bench.Message(), "");
      EXPECT_FALSE(bench.Refused());
    }
  }
}

TEST_F(MessageTest, StaysWhileNothingActs) {
  const QList<Deed> idle = {
      {"the mouse moved",
       [this] {
         QTest::mouseMove(&bench.Find("txtName"), QPoint(5, 5));
         bench.ProcessEvents();
       }},
      {"the wheel turned",
       [this] {
         QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                          false);
         Send("txtName", turn);
       }},
      {"a click on a label", [this] { bench.Click("lblName"); }},
      {"a click on a button that is barred", [this] { bench.Click("cmdBarred"); }},
      {"a click on the ground", [this] { bench.Click("uctSpeaker"); }},
      {"the message marked to copy it", [this] { bench.Click("Panel1"); }},
      {"Shift alone",
       [this] {
         bench.Focus("txtName");
         bench.Press(Qt::Key_Shift);
       }},
      {"a key nobody takes",
       [this] {
         bench.Focus("cmdQuiet");
         bench.Press(Qt::Key_K);
       }},
      {"a key still held down",
       [this] {
         QKeyEvent again(QEvent::KeyPress, Qt::Key_A, {}, "a", true);
         Send("txtName", again);
       }},
  };
  for (const char* speaks : {"cmdRefuse", "cmdSay"}) {
    for (const Deed& deed : idle) {
      SCOPED_TRACE(std::string(speaks) + ", then " + deed.name);
      bench.Click(speaks);
      deed.act();
      EXPECT_NE(bench.Message(), "");
    }
  }
}

TEST_F(MessageTest, IsNeverTakenAwayByTheKeyOrClickThatBroughtIt) {
  for (int time = 0; time < 3; ++time) {
    bench.Click("cmdRefuse");
    EXPECT_EQ(bench.Message(), "Invalid category") << "also the same one once more";
    EXPECT_TRUE(bench.Refused());
  }
  bench.Focus("cmdSay");
  bench.Press(Qt::Key_Space);
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_FALSE(bench.Refused());
  bench.Focus("Grumbler");
  for (int time = 0; time < 2; ++time) {
    bench.Press(Qt::Key_K);
    EXPECT_EQ(bench.Message(), "Not here") << "though the key goes on to the controls around";
  }
}

TEST_F(MessageTest, IsGoneWhenTheScreenComesBack) {
  bench.Click("cmdRefuse");
  bench.LeaveAndReturn();
  EXPECT_EQ(bench.Message(), "");
}

}  // namespace
}  // namespace tavrelin
