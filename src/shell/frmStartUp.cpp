#include "shell/frmStartUp.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QShortcut>
#include <QTimer>

#include "basic/Twips.h"
#include "controls/Backdrop.h"
#include "controls/ButtonBar.h"
#include "controls/LineIcon.h"
#include "shell/frmAbout.h"
#include "shell/HelpDesk.h"
#include "shell/MenuBar.h"
#include "shell/Operator.h"
#include "shell/Routes.h"
#include "shell/StartUp.h"
#include "shell/WindowPlace.h"

namespace tavrelin {

namespace {

// Margins around a screen and the picture, in twips. A screen is placed a little narrower than a
// resize makes it; both numbers are meant.
constexpr int ScreenTop = 30;
constexpr int ScreenGap = 30;
constexpr int PlacedMargin = 120;
constexpr int ResizedMargin = 90;
constexpr int PictureMargin = 220;

/// A file beside the program.
QUrl ProgramFile(const char* name) {
  return QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                             QLatin1String(name));
}

}  // namespace

frmStartUp::frmStartUp(const Surroundings& surroundings, StartUp& startUp,
                       const QList<MakeScreen>& screens, QWidget* parent)
    : QMainWindow(parent),
      surroundings_(surroundings),
      startUp_(startUp),
      toMake_(screens),
      errors_(surroundings.showError),
      inner_(new QWidget(this)),
      image1_(new Backdrop(QStringLiteral(":/pictures/court.svg"), inner_)),
      bbMenu_(new ButtonBar(inner_)) {
  setObjectName(QStringLiteral("frmStartUp"));
  setWindowTitle(QStringLiteral("Tavrelin"));
  image1_->setObjectName(QStringLiteral("Image1"));
  image1_->setAccessibleName(tr("A horseshoe court in the evening"));
  MakeMenu();
  MakeBar();
  setCentralWidget(inner_);
  inner_->installEventFilter(this);
  auto* switchFocus = new QShortcut(QKeySequence(Qt::Key_F6), this);
  connect(switchFocus, &QShortcut::activated, this, &frmStartUp::SwitchFocus);
  auto* help = new QShortcut(QKeySequence(Qt::Key_F1), this);
  connect(help, &QShortcut::activated, this, &frmStartUp::ShowHelpFile);
}

// Hidden first, so that the present screen ends its edits while all of it still stands.
frmStartUp::~frmStartUp() {
  hide();
}

void frmStartUp::MakeMenu() {
  auto* bar = new MenuBar(this);
  setMenuBar(bar);
  auto add = [this](QWidget* menu, const char* name, const QString& caption, Leaving why,
                    void (frmStartUp::*command)()) {
    auto* action = new QAction(caption, this);
    action->setObjectName(QLatin1String(name));
    menu->addAction(action);
    connect(action, &QAction::triggered, this, [=, this] {
      if (MayLeave(why)) (this->*command)();
    });
  };
  QMenu* mnuFile = bar->addMenu(tr("&File"));
  mnuFile->setObjectName(QStringLiteral("mnuFile"));
  add(mnuFile, "mnuExit", tr("Exit"), Leaving::Window, &frmStartUp::mnuExit_Click);
  add(bar, "mnuAbout", tr("&About"), Leaving::Aside, &frmStartUp::mnuAbout_Click);
  add(bar, "mnuHelp", tr("&Help"), Leaving::Aside, &frmStartUp::mnuHelp_Click);
  add(bar, "mnuHelpDesk", tr("&Help Desk"), Leaving::Aside, &frmStartUp::mnuHelpDesk_Click);
}

void frmStartUp::MakeBar() {
  QList<BarGroup> groups;
  for (const QString& group : Groups()) {
    groups.append({group, LineIcon(group.toLower()), {}});
    for (const Route& route : Routes()) {
      if (group != QLatin1String(route.group)) continue;
      groups.last().items.append({QLatin1String(route.item), LineIcon(QLatin1String(route.icon))});
    }
  }
  bbMenu_->setObjectName(QStringLiteral("bbMenu"));
  bbMenu_->SetGroups(groups);
  connect(bbMenu_, &ButtonBar::GroupClick, this, [this](const QString& group) {
    errors_.Run("bbMenu_GroupClick", [&] { bbMenu_GroupClick(group); });
  });
  connect(bbMenu_, &ButtonBar::ItemClick, this, [this](const QString& group, const QString& item) {
    errors_.Run("bbMenu_ItemClick", [&] { bbMenu_ItemClick(group, item); });
  });
}

void frmStartUp::Form_Load(const QString& commandLine) {
  errors_.Run("Form_Load", [&] {
    helpFile_ = ProgramFile("Tavrelin.hlp");
    startUp_.SeedStore();
    SizePicture();
    startUp_.ChooseDatabase(commandLine);
    startUp_.UpdateDatabase();
  });
}

// The pause lets the window be painted first.
void frmStartUp::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  constexpr int Pause = 30;
  if (!AllScreensMade()) QTimer::singleShot(Pause, this, [this] { MakeNextScreen(); });
}

void frmStartUp::MakeNextScreen() {
  errors_.Run("MakeNextScreen", [this] {
    if (!AllScreensMade()) Listen(toMake_.takeFirst()(surroundings_, inner_));
  });
  if (!AllScreensMade()) QTimer::singleShot(0, this, [this] { MakeNextScreen(); });
}

Screen* frmStartUp::FindScreen(const QString& name) {
  auto* screen = inner_->findChild<Screen*>(name, Qt::FindDirectChildrenOnly);
  while (!screen && !AllScreensMade()) {
    Listen(toMake_.takeFirst()(surroundings_, inner_));
    screen = inner_->findChild<Screen*>(name, Qt::FindDirectChildrenOnly);
  }
  if (!screen) throw Error(errors::Subscript, tr("There is no screen of the name %1.").arg(name));
  return screen;
}

void frmStartUp::Listen(Screen* screen) {
  screen->setAutoFillBackground(true);  // Image1 stays behind it
  connect(screen, &Screen::ModalBehavior, this, [this, screen](bool modal) {
    errors_.Run("uctControls_ObjectEvent", [&] { uctControls_ModalBehavior(screen, modal); });
  });
  connect(screen, &Screen::NextUserControl, this, [this, screen](const QString& name) {
    errors_.Run("uctControls_ObjectEvent", [&] { uctControls_NextUserControl(screen, name); });
  });
}

void frmStartUp::bbMenu_GroupClick(const QString& group) {
  if (modalActive_) return surroundings_.person.Beep();
  if (!MayLeave(Leaving::Screen)) return;
  HidePresentScreen();
  bbMenu_->MarkItem({}, {});
  bbMenu_->OpenGroup(group);
}

void frmStartUp::bbMenu_ItemClick(const QString& group, const QString& item) {
  if (modalActive_) return surroundings_.person.Beep();
  if (!MayLeave(Leaving::Screen)) return;
  HidePresentScreen();
  const QString screen = ScreenOf(group, item);
  if (screen.isEmpty()) return;
  surroundings_.person.SetBusy(true);  // the screen takes it back when it is shown
  bbMenu_->MarkItem(group, item);
  ShowScreen(screen);
}

// Only the screen that is up is heard.
void frmStartUp::uctControls_ModalBehavior(const Screen* sender, bool modal) {
  if (sender == uctControls_) modalActive_ = modal;
}

void frmStartUp::uctControls_NextUserControl(const Screen* sender, const QString& name) {
  if (sender != uctControls_ || !MayLeave(Leaving::Screen)) return;
  HidePresentScreen();
  ShowScreen(name.trimmed());
}

// A screen that a group header has hidden has been asked.
bool frmStartUp::MayLeave(Leaving why) {
  return !uctControls_ || !uctControls_->isVisible() || uctControls_->MayLeave(why);
}

void frmStartUp::HidePresentScreen() {
  if (!uctControls_) return;
  uctControls_->hide();
  startUp_.HoldFile();  // the Database screen may have chosen another
}

void frmStartUp::ShowScreen(const QString& name) {
  Screen* screen = FindScreen(name);
  uctControls_ = screen;
  screen->setGeometry(bbMenu_->width() + PixelsOf(ScreenGap), PixelsOf(ScreenTop),
                      inner_->width() - bbMenu_->width() - PixelsOf(PlacedMargin),
                      inner_->height());
  screen->raise();
  screen->show();
  FocusScreen();
}

// A screen that has put the focus somewhere itself keeps it there.
void frmStartUp::FocusScreen() {
  QWidget* present = focusWidget();
  if (!uctControls_ || !uctControls_->isVisible()) return;
  if (present && uctControls_->isAncestorOf(present)) return;
  for (QWidget* next = uctControls_->nextInFocusChain(); next != uctControls_;
       next = next->nextInFocusChain()) {
    const bool reachable = (next->focusPolicy() & Qt::TabFocus) && next->isEnabled() &&
                           next->isVisible() && uctControls_->isAncestorOf(next);
    if (reachable) return next->setFocus(Qt::TabFocusReason);
  }
}

void frmStartUp::SwitchFocus() {
  const QWidget* present = focusWidget();
  if (present && bbMenu_->isAncestorOf(present)) {
    FocusScreen();
  } else {
    bbMenu_->FocusBar();
  }
}

void frmStartUp::SizePicture() {
  image1_->setGeometry(bbMenu_->width() + PixelsOf(PictureMargin / 2), PixelsOf(ScreenTop),
                       inner_->width() - bbMenu_->width() - PixelsOf(PictureMargin),
                       inner_->height());
}

void frmStartUp::Form_Resize() {
  bbMenu_->resize(bbMenu_->width(), inner_->height());
  SizePicture();
  if (!uctControls_) return;
  uctControls_->resize(inner_->width() - bbMenu_->width() - PixelsOf(ResizedMargin),
                       inner_->height());
}

void frmStartUp::mnuExit_Click() {
  errors_.Run("mnuExit_Click", [this] {
    uctControls_ = nullptr;
    close();
  });
}

void frmStartUp::mnuAbout_Click() {
  errors_.Run("mnuAbout_Click", [this] { frmAbout(surroundings_, this).exec(); });
}

void frmStartUp::mnuHelp_Click() {
  errors_.Run("mnuHelp_Click", [this] {
    OpenDocument(ProgramFile("Tavrelinhelp.pdf"),
                 tr("The manual could not be opened. Look for the file Tavrelinhelp.pdf in the "
                    "program's folder:\n%1"));
  });
}

// Not every desktop has a program for help files, and not every installation brings one.
void frmStartUp::ShowHelpFile() {
  errors_.Run("ShowHelpFile", [this] {
    if (!surroundings_.browser.Open(helpFile_)) mnuHelp_Click();
  });
}

void frmStartUp::mnuHelpDesk_Click() {
  errors_.Run("mnuHelpDesk_Click", [this] {
    OpenDocument(QUrl(QLatin1String(HelpDeskAddress)),
                 tr("No web browser could be opened. The help desk is at this address:\n%1"));
  });
}

void frmStartUp::OpenDocument(const QUrl& address, const QString& sentence) {
  if (surroundings_.browser.Open(address)) return;
  surroundings_.person.Tell(QStringLiteral("Tavrelin"),
                            sentence.arg(address.toString(QUrl::PreferLocalFile)));
}

bool frmStartUp::eventFilter(QObject* watched, QEvent* event) {
  if (watched == inner_ && event->type() == QEvent::Resize) Form_Resize();
  return QMainWindow::eventFilter(watched, event);
}

void frmStartUp::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Form_Resize();
}

void frmStartUp::ShowAsLeft() {
  ShowWindowAsLeft(*this, surroundings_.store);
}

// What an open dialog asks about is not settled, and work that goes on is not done.
void frmStartUp::closeEvent(QCloseEvent* event) {
  if (QApplication::activeModalWidget() || !MayLeave(Leaving::Window)) return event->ignore();
  StoreWindowPlace(*this, surroundings_.store);
  QMainWindow::closeEvent(event);
}

}  // namespace tavrelin
