#include "shell/frmStartUp.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "app/Screens.h"
#include "controls/BarButton.h"
#include "controls/ButtonBar.h"
#include "controls/GridEX.h"
#include "shell/HelpDesk.h"
#include "shell/Routes.h"
#include "shell/Store.h"
#include "support/RecordsetPrinters.h"
#include "support/WindowBench.h"

namespace tavrelin {
namespace {

/// A screen that tells when it is shown and hidden, and speaks to the window when a test says so.
class Probe : public Screen {
 public:
  Probe(const QString& name, const Surroundings& surroundings, QWidget* parent)
      : Screen(name, name, surroundings, parent), button(new QPushButton(name, this)) {}

  QPushButton* button;
  int shows = 0, hides = 0;
  bool fails = false;

 protected:
  void UserControl_Show() override {
    ++shows;
    if (fails) throw Error(75, "The disk is full.");
  }
  void UserControl_Hide() override { ++hides; }
};

QList<MakeScreen> Probes() {
  QStringList names = {QStringLiteral("uctTransmittal")};
  for (const Route& route : Routes()) names.append(QLatin1String(route.screen));
  QList<MakeScreen> makers;
  for (const QString& name : names) {
    makers.append([name](const Surroundings& surroundings, QWidget* parent) -> Screen* {
      return new Probe(name, surroundings, parent);
    });
  }
  return makers;
}

struct frmStartUpTest : WindowBench {
  void SetUp() override {
    WindowBench::SetUp();
    Open(Probes());
  }
  Probe& Of(const QString& screen) { return static_cast<Probe&>(bench.Find<Screen>(screen)); }
  /// Runs when the next modal dialog is up, and closes it.
  void OnDialog(const std::function<void(QWidget&)>& look) {
    QTimer::singleShot(0, window.get(), [look] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_TRUE(dialog);
      look(*dialog);
      dialog->close();
    });
  }
};

TEST_F(frmStartUpTest, OpensWithTheBarAndThePictureAndNoScreen) {
  EXPECT_EQ(window->windowTitle(), "Tavrelin");
  EXPECT_EQ(Visible(), QStringList());
  EXPECT_EQ(window->uctControls(), nullptr);
  EXPECT_TRUE(bench.Find("Image1").isVisible());
  EXPECT_EQ(bench.Find<ButtonBar>("bbMenu").OpenedGroup(), "Players");
}

TEST_F(frmStartUpTest, EachOfTheTwentyOneButtonsShowsItsScreenAlone) {
  for (const Route& route : Routes()) {
    SCOPED_TRACE(std::string(route.group) + "/" + route.item);
    Go(QLatin1String(route.group), QLatin1String(route.item));
    EXPECT_EQ(Visible(), QStringList(QLatin1String(route.screen)));
    EXPECT_EQ(Of(route.screen).shows, 1);
    EXPECT_FALSE(bench.person.busy);
  }
}

TEST_F(frmStartUpTest, AScreenIsPlacedByItsMarginsAndWidenedByAResize) {
  Go("Players", "Profile");
  const Probe& screen = Of("uctProfile");
  const QSize inner = window->centralWidget()->size();
  const int bar = bench.Find("bbMenu").width();
  EXPECT_EQ(screen.geometry(), QRect(bar + 2, 2, inner.width() - bar - 8, inner.height()));
  window->resize(1300, 650);
  bench.ProcessEvents();
  const QSize resized = window->centralWidget()->size();
  EXPECT_EQ(screen.geometry(), QRect(bar + 2, 2, resized.width() - bar - 6, resized.height()));
  EXPECT_EQ(bench.Find("bbMenu").height(), resized.height());
  EXPECT_EQ(bench.Find("Image1").size(), QSize(resized.width() - bar - 15, resized.height()));
}

TEST_F(frmStartUpTest, AGroupHeaderHidesTheScreenAndTheSameItemShowsItAnew) {
  Go("Players", "Profile");
  bench.Click("Tournaments");
  EXPECT_EQ(Visible(), QStringList());
  EXPECT_EQ(window->uctControls(), &Of("uctProfile"));
  EXPECT_EQ(Of("uctProfile").hides, 1);
  EXPECT_TRUE(bench.Find("Image1").isVisible());
  Go("Players", "Profile");
  EXPECT_EQ(Of("uctProfile").shows, 2);
  EXPECT_EQ(Of("uctProfile").hides, 1);
}

TEST_F(frmStartUpTest, WhileAScreenIsModalButtonsAndHeadersBeepAndChangeNothing) {
  Go("Players", "Export");
  Q_EMIT Of("uctExport").NextUserControl(" uctTransmittal ");
  EXPECT_EQ(Visible(), QStringList("uctTransmittal"));
  Q_EMIT Of("uctTransmittal").ModalBehavior(true);
  bench.Click("Tournaments");
  bench.Click("Players/Profile");
  bench.Find<BarButton>("Tournaments/Setup").click();
  EXPECT_EQ(bench.person.beeps, 3);
  EXPECT_EQ(Visible(), QStringList("uctTransmittal"));
  EXPECT_EQ(bench.Find<ButtonBar>("bbMenu").OpenedGroup(), "Players");
  Q_EMIT Of("uctTransmittal").ModalBehavior(false);
  Q_EMIT Of("uctTransmittal").NextUserControl("uctExport");
  EXPECT_EQ(Visible(), QStringList("uctExport"));
  Go("Tournaments", "Setup");
  EXPECT_EQ(Visible(), QStringList("uctTournaments"));
  EXPECT_EQ(bench.person.beeps, 3);
}

TEST_F(frmStartUpTest, OnlyTheScreenThatIsUpIsHeard) {
  Go("Players", "Profile");
  Q_EMIT Of("uctExport").NextUserControl("uctTransmittal");
  Q_EMIT Of("uctExport").ModalBehavior(true);
  EXPECT_EQ(Visible(), QStringList("uctProfile"));
  EXPECT_FALSE(window->ModalActive());
}

TEST_F(frmStartUpTest, AScreenThatFailsToOpenShowsItsErrorAndTheWindowGoesOn) {
  Of("uctScores").fails = true;
  Go("Players", "Stats");
  EXPECT_EQ(bench.errors.Take().callStack, "UserControl_Show");
  EXPECT_FALSE(bench.person.busy);
  Go("Players", "Teams");
  EXPECT_EQ(Visible(), QStringList("uctTeam"));
}

TEST_F(frmStartUpTest, AScreenOfAnUnknownNameIsAnError) {
  Go("Players", "Export");
  Q_EMIT Of("uctExport").NextUserControl("uctNowhere");
  EXPECT_EQ(bench.errors.Take().callStack, "uctControls_ObjectEvent");
}

TEST_F(frmStartUpTest, TheKeyboardAloneOpensAScreenAndReturns) {
  bench.Press(Qt::Key_F6);
  EXPECT_EQ(bench.FocusName(), "Players");
  for (int i = 0; i < 3; ++i) bench.Press(Qt::Key_Down);
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Visible(), QStringList("uctTeam"));
  EXPECT_TRUE(Of("uctTeam").button->hasFocus());
  bench.Press(Qt::Key_F6);
  EXPECT_EQ(bench.FocusName(), "Players/Teams");
  bench.Press(Qt::Key_F6);
  EXPECT_TRUE(Of("uctTeam").button->hasFocus());
}

TEST_F(frmStartUpTest, TheMenusStandInTheirOrder) {
  QStringList captions;
  for (const QAction* action : window->menuBar()->actions()) captions.append(action->text());
  EXPECT_EQ(captions, QStringList({"&File", "&About", "&Help", "&Help Desk"}));
  const QMenu* file = window->menuBar()->actions().first()->menu();
  ASSERT_EQ(file->actions().size(), 1);
  EXPECT_EQ(file->actions()[0]->text(), "Exit");
}

TEST_F(frmStartUpTest, HelpOpensTheManualAndHelpDeskTheAddress) {
  Command("mnuHelp").trigger();
  Command("mnuHelpDesk").trigger();
  ASSERT_EQ(bench.browser.opened.size(), 2);
  EXPECT_EQ(bench.browser.opened[0].toLocalFile(),
            QCoreApplication::applicationDirPath() + "/Tavrelinhelp.pdf");
  EXPECT_EQ(bench.browser.opened[1], QUrl(HelpDeskAddress));
  bench.browser.works = false;
  Command("mnuHelp").trigger();
  ASSERT_EQ(bench.person.told.size(), 1);
  EXPECT_TRUE(bench.person.told[0].text.contains("Tavrelinhelp.pdf"));
}

TEST_F(frmStartUpTest, TheHelpKeyOpensTheHelpFileOrTheManualInItsPlace) {
  bench.Press(Qt::Key_F1);
  ASSERT_EQ(bench.browser.opened.size(), 1);
  EXPECT_EQ(bench.browser.opened[0].toLocalFile(),
            QCoreApplication::applicationDirPath() + "/Tavrelin.hlp");
  bench.browser.works = false;
  bench.Press(Qt::Key_F1);
  ASSERT_EQ(bench.browser.opened.size(), 3);
  EXPECT_TRUE(bench.browser.opened[2].toLocalFile().endsWith("/Tavrelinhelp.pdf"));
  EXPECT_EQ(bench.person.told.size(), 1);
}

TEST_F(frmStartUpTest, TheLetterOfBothHelpsWalksBetweenThemAndEnterRunsTheMarkedOne) {
  bench.Press(Qt::Key_H, Qt::AltModifier);
  EXPECT_EQ(window->menuBar()->activeAction(), &Command("mnuHelp"));
  EXPECT_TRUE(bench.browser.opened.isEmpty());
  bench.Press(Qt::Key_H, Qt::AltModifier);
  EXPECT_EQ(window->menuBar()->activeAction(), &Command("mnuHelpDesk"));
  bench.Press(Qt::Key_Return);
  ASSERT_EQ(bench.browser.opened.size(), 1);
  EXPECT_EQ(bench.browser.opened[0], QUrl(HelpDeskAddress));
}

TEST_F(frmStartUpTest, TheMenuStaysLiveWhileAScreenIsModal) {
  Go("Players", "Export");
  Q_EMIT Of("uctExport").ModalBehavior(true);
  Command("mnuExit").trigger();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Of("uctExport").hides, 1);
}

TEST_F(frmStartUpTest, AboutTellsNameVersionAndWhomToAsk) {
  OnDialog([this](QWidget& about) {
    EXPECT_EQ(about.windowTitle(), "About this Software");
    EXPECT_EQ(about.findChild<QLabel*>("lblTitle")->text(), "Tavrelin");
    EXPECT_EQ(about.findChild<QLabel*>("lblVersion")->text(), "Version 1.0.0");
    EXPECT_FALSE(about.findChild<QLabel*>("lblTrademark")->text().isEmpty());
    EXPECT_EQ(CutTexts(about), QStringList());
    bench.Drive(&about);
    bench.Shot("about");
    EXPECT_EQ(bench.Find<QPushButton>("cmdSysInfo").text(), "&System Info...");
    bench.Click("cmdSysInfo");
    bench.Drive(window.get());
  });
  Command("mnuAbout").trigger();
  ASSERT_EQ(bench.person.told.size(), 1);
  EXPECT_EQ(bench.person.told[0].title, "System Information Unavailable");
  EXPECT_EQ(bench.person.told[0].text, "System Information Is Unavailable At This Time");
}

TEST_F(frmStartUpTest, AboutStartsTheSystemInformationToolWhereThereIsOneAndOkClosesIt) {
  const QString tool = bench.PathOf("sysinfo"), mark = bench.PathOf("started");
  QFile script(tool);
  ASSERT_TRUE(script.open(QIODevice::WriteOnly));
  script.write("#!/bin/sh\ntouch " + mark.toUtf8() + "\n");
  script.close();
  script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  const QString machine = bench.PathOf("machine.ini");
  Store(machine).SaveRegistryString("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", tool);
  qputenv("TAVRELIN_MACHINE_STORE", machine.toUtf8());
  bool closed = false;
  OnDialog([&](QWidget& about) {
    about.findChild<QPushButton*>("cmdSysInfo")->click();
    about.findChild<QPushButton*>("cmdOK")->click();
    closed = !about.isVisible();
  });
  Command("mnuAbout").trigger();
  qunsetenv("TAVRELIN_MACHINE_STORE");
  EXPECT_TRUE(closed);
  EXPECT_TRUE(bench.person.told.isEmpty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(mark); }));
}

TEST_F(frmStartUpTest, ANewWindowOpensAtTheSizeAndPlaceTheLastOneWasLeftWith) {
  window->setGeometry(40, 30, 700, 500);
  bench.ProcessEvents();
  window->close();
  EXPECT_EQ(bench.store().GetRegistryString("frmStartUp", "Width"), "10500");
  frmStartUp next(bench.around(), startUp, {});
  next.ShowAsLeft();
  EXPECT_EQ(next.geometry(), QRect(40, 30, 700, 500));
}

TEST_F(frmStartUpTest, FitsALaptopWithNothingCut) {
  Open(AllScreens());
  EXPECT_LE(window->minimumSizeHint().width(), 1366);
  EXPECT_LE(window->minimumSizeHint().height(), 700);
  for (const QString& group : Groups()) {
    bench.Click(group);
    EXPECT_EQ(CutTexts(*window), QStringList()) << group.toStdString();
    bench.Shot("window-" + group.toLower());
  }
}

TEST_F(frmStartUpTest, AllTwentyTwoScreensAreMadeInTheirOrderAndFoundByTheirRoutes) {
  Open(AllScreens());
  QStringList names;
  for (const Screen* screen : window->findChildren<Screen*>()) names.append(screen->objectName());
  EXPECT_EQ(
      names,
      QStringList({"uctProfile",       "uctScores",        "uctTournaments",       "uctETally",
                   "uctImport",        "uctExport",        "uctEntrants",          "uctPlayTime",
                   "uctPlayTimeTeams", "uctPlayerReports", "uctAfterPlay",         "uctLabelList",
                   "uctLabels",        "uctInvitation",    "uctTournamentCleanup", "uctLeagues",
                   "uctLeagueScores",  "uctLeagueReports", "uctTransmittal",       "uctTeam",
                   "uctDatabase",      "uctSettings"}));
}

TEST_F(frmStartUpTest, AScreenThatIsAskedForBeforeItsTurnIsMadeAtOnce) {
  frmStartUp early(bench.around(), startUp, Probes());
  early.Form_Load({});
  early.show();
  EXPECT_FALSE(early.AllScreensMade());
  bench.Drive(&early);
  Go("Setup", "Settings");
  EXPECT_EQ(early.uctControls()->objectName(), "uctSettings");
  EXPECT_TRUE(early.uctControls()->isVisible());
  bench.Drive(window.get());
}

TEST_F(frmStartUpTest, ARowThatIsRefusedKeepsItsScreenUntilItIsMendedOrGivenUp) {
  Open(AllScreens());
  bench.Click("Players/Profile");
  auto& roster = bench.Find<GridEX>("grdProfile");
  bench.Type("Karen");
  for (const char* button : {"Players/Stats", "Tournaments"}) {
    roster.SetCol("FirstName");
    roster.SetValue("LastName", "Ol\"son");
    bench.Click(button);
    EXPECT_EQ(Visible(), QStringList("uctProfile")) << button;
    EXPECT_EQ(bench.Message(), "Double Quotes are not allowed in Last Name");
    EXPECT_EQ(roster.Value("FirstName"), Value("Karen")) << "what was typed is still there";
  }
  bench.Press(Qt::Key_Escape);
  EXPECT_FALSE(roster.DataChanged());
  bench.Click("Players/Stats");
  EXPECT_EQ(Visible(), QStringList("uctScores"));
}

TEST_F(frmStartUpTest, LooksItsPartInTheDark) {
  UseDarkPalette();
  Open(AllScreens());
  bench.Shot("window-dark");
  bench.Click("Players/Stats");
  bench.Shot("window-dark-screen");
  EXPECT_EQ(Visible(), QStringList("uctScores"));
}

}  // namespace
}  // namespace tavrelin
