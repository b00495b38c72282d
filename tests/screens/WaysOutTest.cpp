// Every way out of a screen, taken with keys and clicks through the whole window.

#include <csignal>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTimer>

#include "controls/ButtonBar.h"
#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "shell/EmptyScreen.h"
#include "shell/Routes.h"
#include "shell/SessionEnd.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"
#include "shell/uctDatabase.h"
#include "shell/uctSettings.h"
#include "support/RecordsetPrinters.h"
#include "support/WindowBench.h"

namespace tavrelin {
namespace {

template <class ScreenClass>
Screen* Make(const Surroundings& surroundings, QWidget* parent) {
  return new ScreenClass(surroundings, parent);
}

Screen* MakeExport(const Surroundings& surroundings, QWidget* parent) {
  return new EmptyScreen("uctExport", "Export", surroundings, parent);
}

struct WaysOutTest : WindowBench {
  struct Way {
    std::string name;
    std::function<void()> go;
  };

  /// Down the bar to the item after the one that is marked, and Enter on it.
  void WalkTheBar(Qt::Key key) {
    bench.Press(Qt::Key_F6);
    bench.Press(key);
    bench.Press(Qt::Key_Return);
  }
  void PressFileExit() {
    bench.Press(Qt::Key_F, Qt::AltModifier);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu) << "the File menu is open";
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    bench.ProcessEvents();
  }
  void Signal(int number) {
    const SessionEnd sessionEnd(*window);
    std::raise(number);
    bench.ProcessEvents();
  }

  /// From Players / Profile to another screen, or to none.
  QList<Way> WaysToOtherScreens() {
    return {
        {"an item by mouse", [this] { bench.Click("Players/Stats"); }},
        {"an item by keyboard", [this] { WalkTheBar(Qt::Key_Down); }},
        {"an item by a screen reader",
         [this] { bench.Find<QAbstractButton>("Players/Stats").click(); }},
        {"the same item once more", [this] { bench.Click("Players/Profile"); }},
        {"a header by mouse", [this] { bench.Click("Tournaments"); }},
        {"a header by keyboard", [this] { WalkTheBar(Qt::Key_Home); }},
        {"the screen's own wish",
         [this] { Q_EMIT window->uctControls()->NextUserControl("uctExport"); }},
    };
  }
  QList<Way> WaysOutOfTheProgram() {
    return {
        {"File, Exit", [this] { Command("mnuExit").trigger(); }},
        {"File, Exit by keyboard", [this] { PressFileExit(); }},
        {"the window's cross", [this] { window->close(); }},
        {"a session that ends", [this] { Signal(SIGTERM); }},
        {"a session that breaks off", [this] { Signal(SIGHUP); }},
    };
  }

  void OpenWindow() {
    Open({Make<uctProfile>, Make<uctScores>, MakeExport, Make<uctDatabase>, Make<uctSettings>});
  }

  // The roster, with a player typed on the new row.

  GridEX& Roster() { return bench.Find<GridEX>("grdProfile"); }
  void TypePlayer(const QString& category) {
    OpenWindow();
    bench.Click("Players/Profile");
    bench.Type("Nils");
    bench.Press(Qt::Key_Tab);
    bench.Type("Oberg");
    bench.Press(Qt::Key_Tab);
    Roster().SetValue("State", "MN");
    Roster().SetValue("Category", category);
  }
  static qint64 PlayersOnFile() {
    Connection file;
    file.Open(ConnectString);
    Recordset rows;
    rows.Open("SELECT COUNT(*) FROM Players WHERE LastName = 'Oberg'", file);
    return rows.At(0).ToWhole();
  }
  void ExpectTheRowAsTyped() {
    EXPECT_EQ(Visible(), QStringList("uctProfile"));
    EXPECT_EQ(bench.FocusName(), "grdProfile_Table");
    EXPECT_EQ(Roster().Value("FirstName"), Value("Nils"));
    EXPECT_EQ(Roster().Value("LastName"), Value("Oberg"));
    EXPECT_TRUE(Roster().DataChanged());
  }
};

TEST_F(WaysOutTest, ARefusedRowKeepsItsScreenFromEveryOtherScreen) {
  for (const Way& way : WaysToOtherScreens()) {
    SCOPED_TRACE(way.name);
    TypePlayer({});
    way.go();
    ExpectTheRowAsTyped();
    EXPECT_EQ(bench.Message(), "Invalid category");
    EXPECT_TRUE(bench.Refused());
    EXPECT_TRUE(bench.person.questions.isEmpty());
    Roster().SetDataChanged(false);
  }
}

TEST_F(WaysOutTest, ARefusedRowIsNamedBeforeTheProgramEndsAndNoStays) {
  for (const Way& way : WaysOutOfTheProgram()) {
    SCOPED_TRACE(way.name);
    TypePlayer({});
    bench.person.questions.clear();
    bench.person.WillAnswer(false);
    way.go();
    ASSERT_EQ(bench.person.questions.size(), 1);
    EXPECT_EQ(bench.person.questions[0].title, "Confirm Leaving");
    EXPECT_EQ(bench.person.questions[0].text,
              "Nils Oberg is not saved: Invalid category. Leave without it?");
    EXPECT_TRUE(window->isVisible());
    ExpectTheRowAsTyped();
    Roster().SetDataChanged(false);
  }
}

TEST_F(WaysOutTest, WithYesTheProgramEndsWithoutTheRow) {
  for (const Way& way : WaysOutOfTheProgram()) {
    SCOPED_TRACE(way.name);
    TypePlayer({});
    bench.person.questions.clear();
    bench.person.WillAnswer(true);
    way.go();
    EXPECT_EQ(bench.person.questions.size(), 1) << "asked once";
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(PlayersOnFile(), 0);
  }
}

TEST_F(WaysOutTest, ARowThatCanBeSavedIsSavedOnEveryWay) {
  qint64 saved = 0;
  for (const Way& way : WaysToOtherScreens() + WaysOutOfTheProgram()) {
    SCOPED_TRACE(way.name);
    TypePlayer("AM");
    way.go();
    EXPECT_EQ(PlayersOnFile(), ++saved);
    EXPECT_TRUE(bench.person.questions.isEmpty());
  }
}

TEST_F(WaysOutTest, AfterTheRowIsGivenUpWithEscEveryWayIsFree) {
  for (const Way& way : WaysToOtherScreens() + WaysOutOfTheProgram()) {
    SCOPED_TRACE(way.name);
    TypePlayer({});
    bench.Press(Qt::Key_Escape);
    bench.Press(Qt::Key_Escape);
    ASSERT_FALSE(Roster().DataChanged());
    way.go();
    EXPECT_EQ(PlayersOnFile(), 0);
    EXPECT_TRUE(bench.person.questions.isEmpty());
  }
}

// A cell that is open is part of the row, and of its name.
TEST_F(WaysOutTest, WhatStandsInTheOpenCellIsAskedAboutToo) {
  TypePlayer({});
  Roster().SetCol("LastName");
  bench.Type("Lind");
  ASSERT_TRUE(Roster().IsEditing());
  bench.person.WillAnswer(false);
  window->close();
  EXPECT_TRUE(bench.person.questions[0].text.startsWith("Nils Lind is not saved"));
  Roster().SetDataChanged(false);
}

// Whom a refusal puzzles looks for help.
TEST_F(WaysOutTest, HelpAndAboutCanBeHadWithAnUnfinishedRow) {
  TypePlayer({});
  bool about = false;
  QTimer::singleShot(0, window.get(), [&about] {
    about = QApplication::activeModalWidget();
    if (about) QApplication::activeModalWidget()->close();
  });
  bench.Press(Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(about);
  Command("mnuHelp").trigger();
  Command("mnuHelpDesk").trigger();
  EXPECT_EQ(bench.browser.opened.size(), 2);
  EXPECT_EQ(bench.person.beeps, 0) << "the row was not touched";
  ExpectTheRowAsTyped();
  Roster().SetDataChanged(false);
}

TEST_F(WaysOutTest, ASessionThatMayNotAskSavesWhatItCanAndAsksNothing) {
  TypePlayer("AM");
  SessionEnd sessionEnd(*window);
  EXPECT_TRUE(sessionEnd.MayEnd(false));
  EXPECT_EQ(PlayersOnFile(), 1);
  bench.Press(Qt::Key_Insert);
  bench.Type("Pia");
  bench.Press(Qt::Key_Tab);
  bench.Type("Berg");
  bench.Press(Qt::Key_Tab);
  EXPECT_FALSE(sessionEnd.MayEnd(false));
  EXPECT_TRUE(bench.person.questions.isEmpty());
  Roster().SetDataChanged(false);
}

TEST_F(WaysOutTest, TheDesktopIsAnsweredAsTheWindowIsClosed) {
  TypePlayer({});
  SessionEnd sessionEnd(*window);
  bench.person.WillAnswer(false);
  EXPECT_FALSE(sessionEnd.MayEnd(true));
  ExpectTheRowAsTyped();
  bench.person.WillAnswer(true);
  EXPECT_TRUE(sessionEnd.MayEnd(true));
  EXPECT_FALSE(Roster().DataChanged());
  EXPECT_TRUE(window->isVisible()) << "the desktop closes it";
}

TEST_F(WaysOutTest, AfterANoTheNextEndOfASessionAsksAgain) {
  TypePlayer({});
  const SessionEnd sessionEnd(*window);
  for (int times = 1; times <= 2; ++times) {
    bench.person.WillAnswer(false);
    std::raise(SIGTERM);
    bench.ProcessEvents();
    EXPECT_EQ(bench.person.questions.size(), times);
  }
  Roster().SetDataChanged(false);
}

TEST_F(WaysOutTest, AnOpenDialogKeepsTheSessionAndIsClosedByASignal) {
  OpenWindow();
  SessionEnd sessionEnd(*window);
  bool kept = false;
  QTimer::singleShot(0, window.get(), [&] {
    ASSERT_TRUE(QApplication::activeModalWidget());
    kept = !sessionEnd.MayEnd(true) && !window->close();
    std::raise(SIGTERM);
  });
  Command("mnuAbout").trigger();
  EXPECT_TRUE(kept);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
}

// The other file comes into force when the Database screen is left, on whatever way.
TEST_F(WaysOutTest, AnotherDatabaseIsInForceOnEveryWayOutOfItsScreen) {
  const QList<Way> ways = {{"an item by mouse", [this] { bench.Click("Setup/Settings"); }},
                           {"an item by keyboard", [this] { WalkTheBar(Qt::Key_Down); }},
                           {"a header", [this] { bench.Click("Players"); }}};
  const QString other = bench.PathOf("other.mdb");
  ASSERT_TRUE(QFile::copy(bench.ClubFile(), other));
  for (const Way& way : ways + WaysOutOfTheProgram()) {
    SCOPED_TRACE(way.name);
    bench.store().Save(stored::CurrentDatabase, bench.ClubFile());
    OpenWindow();
    Go("Setup", "Database");
    bench.Fill("txtPath", other);
    EXPECT_EQ(DatabasePath, bench.ClubFile());
    way.go();
    EXPECT_EQ(DatabasePath, other);
  }
}

/// A screen that holds for a reason of its own.
class Holder : public Screen {
 public:
  Holder(const QString& name, const Surroundings& surroundings, QWidget* parent)
      : Screen(name, name, surroundings, parent), box(new QLineEdit(this)) {}

  QLineEdit* box;
  bool holds = true;
  QList<Leaving> asked;
  std::function<void()> whenAsked = [] {};

 protected:
  bool Holds(Leaving why) override {
    asked.append(why);
    whenAsked();
    if (holds) Refuse("The report is not sent yet");
    return holds;
  }
};

struct HoldingScreenTest : WaysOutTest {
  void SetUp() override {
    WaysOutTest::SetUp();
    QList<MakeScreen> makers;
    for (const Route& route : Routes()) {
      makers.append([name = QString::fromLatin1(route.screen)](const Surroundings& surroundings,
                                                               QWidget* parent) -> Screen* {
        return new Holder(name, surroundings, parent);
      });
    }
    Open(makers);
    bench.Click("Players/Profile");
  }
  Holder& Shown() { return static_cast<Holder&>(*window->uctControls()); }
  QList<Way> WaysAside() {
    return {{"About", [this] { Command("mnuAbout").trigger(); }},
            {"Help", [this] { Command("mnuHelp").trigger(); }},
            {"Help Desk", [this] { Command("mnuHelpDesk").trigger(); }}};
  }
  void ExpectHeld(const Way& way, Leaving why) {
    SCOPED_TRACE(way.name);
    Shown().asked.clear();
    Shown().box->setFocus();
    way.go();
    EXPECT_EQ(Shown().asked, QList<Leaving>{why}) << "asked once";
    EXPECT_EQ(Visible(), QStringList("uctProfile"));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(bench.Message(), "The report is not sent yet");
    EXPECT_EQ(bench.Find<ButtonBar>("bbMenu").OpenedGroup(), "Players");
    EXPECT_FALSE(bench.person.busy);
  }
};

TEST_F(HoldingScreenTest, EveryWayAsksTheScreenOnceAndStays) {
  for (const Way& way : WaysToOtherScreens()) ExpectHeld(way, Leaving::Screen);
  for (const Way& way : WaysOutOfTheProgram()) ExpectHeld(way, Leaving::Window);
  for (const Way& way : WaysAside()) ExpectHeld(way, Leaving::Aside);
  EXPECT_TRUE(bench.browser.opened.isEmpty());
}

TEST_F(HoldingScreenTest, OnceItLetsGoTheWayIsFree) {
  Shown().holds = false;
  bench.Click("Players/Stats");
  EXPECT_EQ(Visible(), QStringList("uctScores"));
}

TEST_F(HoldingScreenTest, AScreenHiddenByAHeaderIsNotAskedAgain) {
  Shown().holds = false;
  bench.Click("Tournaments");
  Shown().holds = true;
  Shown().asked.clear();
  bench.Click("Tournaments/Setup");
  EXPECT_EQ(Visible(), QStringList("uctTournaments"));
}

TEST_F(HoldingScreenTest, WhileLockedTheBarBeepsUnaskedAndTheMenuAsks) {
  Q_EMIT Shown().ModalBehavior(true);
  bench.Click("Players/Stats");
  bench.Click("Tournaments");
  EXPECT_EQ(bench.person.beeps, 2);
  EXPECT_TRUE(Shown().asked.isEmpty());
  Holder& locked = Shown();
  locked.holds = false;
  Command("mnuExit").trigger();
  EXPECT_EQ(locked.asked, QList<Leaving>{Leaving::Window});
  EXPECT_FALSE(window->isVisible());
}

TEST_F(HoldingScreenTest, ASecondSignalBeforeTheAnswerEndsTheProgramAtOnce) {
  const auto endsTheProgram = [] {
    struct sigaction present = {};
    sigaction(SIGTERM, nullptr, &present);
    return present.sa_handler == SIG_DFL;
  };
  bool ends = false;
  Shown().whenAsked = [&] { ends = endsTheProgram(); };
  {
    const SessionEnd sessionEnd(*window);
    std::raise(SIGTERM);
    bench.ProcessEvents();
    EXPECT_TRUE(ends);
    EXPECT_FALSE(endsTheProgram()) << "once the screen has answered";
  }
  EXPECT_TRUE(endsTheProgram()) << "the signals are given back";
}

TEST_F(HoldingScreenTest, AFailureOfTheQuestionIsShownAndLocksNobodyIn) {
  class Failing : public Screen {
   public:
    Failing(const Surroundings& surroundings, QWidget* parent)
        : Screen("uctProfile", "Profile", surroundings, parent) {}

   protected:
    bool Holds(Leaving) override { throw Error(75, "The disk is full."); }
  };
  Open({[](const Surroundings& surroundings, QWidget* parent) -> Screen* {
    return new Failing(surroundings, parent);
  }});
  bench.Click("Players/Profile");
  EXPECT_TRUE(window->close());
  EXPECT_EQ(bench.errors.Take().callStack, "MayLeave");
}

}  // namespace
}  // namespace tavrelin
