#include "shell/Screen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTabWidget>

#include "basic/RowCheck.h"
#include "controls/GridEX.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// What a person does with keys, mouse or an input method. A key that is held down and the second
/// press of a double click go on with a deed; the key of a shortcut arrives nowhere else.
bool IsDeed(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return !static_cast<const QKeyEvent&>(event).isAutoRepeat();
    case QEvent::InputMethod:
      return !static_cast<const QInputMethodEvent&>(event).commitString().isEmpty();
    case QEvent::MouseButtonPress:
    case QEvent::Shortcut:
      return true;
    default:
      return false;
  }
}

}  // namespace

Screen::Screen(const QString& name, const QString& title, const Surroundings& surroundings,
               QWidget* parent)
    : QWidget(parent),
      title_(title),
      surroundings_(surroundings),
      errors_(surroundings.showError),
      stsInfo_(new MessageBar(this)) {
  setObjectName(name);
  setAccessibleName(title.trimmed());
  hide();
}

Screen::~Screen() = default;

void Screen::Refuse(const QString& message) {
  surroundings_.person.Beep();
  stsInfo_->ShowRefusal(message);
}

void Screen::Say(const QString& message) {
  stsInfo_->ShowNews(message);
}

bool Screen::Ask(const RowCheck& check) {
  return surroundings_.person.Confirm(check.title, check.question);
}

void Screen::Settle(const RowCheck& check, GridEX& grid, GridUpdate& update) {
  grid.Apply(check);
  update.Obey(check);
  if (!check.message.isEmpty()) Refuse(check.message);
}

// Leaving

bool Screen::MayLeave(Leaving why) {
  bool may = true;
  // After a failure, which was shown, nobody is locked in.
  const bool asked =
      Event("MayLeave", [&] { may = (why == Leaving::Aside || SaveRows(why)) && !Holds(why); });
  return may || !asked;
}

bool Screen::Holds(Leaving) {
  return false;
}

bool Screen::SaveRows(Leaving why) {
  stsInfo_->ClearMessage();
  for (GridEX* grid : findChildren<GridEX*>()) {
    if (!SaveRow(*grid, why)) return false;
  }
  return true;
}

bool Screen::SaveRow(GridEX& grid, Leaving why) {
  grid.EndEdit();
  const QString row = grid.RowName();  // a rule may throw the row away and stay
  if (grid.CommitRow()) return true;
  BringForward(grid);
  if (why != Leaving::Window) return false;
  const QString refusal = stsInfo_->IsRefusal() ? stsInfo_->Message() : QString();
  const QString question = LeaveWithoutQuestion(row, refusal);
  if (!surroundings_.person.Confirm(u"Confirm Leaving"_s, question)) return false;
  grid.SetDataChanged(false);
  return true;
}

void Screen::BringForward(GridEX& grid) {
  for (QWidget* around = grid.parentWidget(); around != this; around = around->parentWidget()) {
    auto* tabs = qobject_cast<QTabWidget*>(around);
    for (int i = 0; tabs && i < tabs->count(); ++i) {
      if (tabs->widget(i)->isAncestorOf(&grid)) tabs->setCurrentIndex(i);
    }
  }
  grid.setFocus();
}

// The message: a key or click notes the one it finds, and that one goes once the deed is done. One
// that nothing took up arrives at the screen itself, and the message stays.

bool Screen::eventFilter(QObject* watched, QEvent* event) {
  const auto* control = qobject_cast<QWidget*>(watched);
  const bool inMessage = control == stsInfo_ || stsInfo_->isAncestorOf(control);
  const bool here = control && isAncestorOf(control) && control->isEnabled() && !inMessage;
  if (here && IsDeed(*event) && !stale_) {
    stale_ = stsInfo_->Stamp();
    QMetaObject::invokeMethod(this, &Screen::ForgetMessage, Qt::QueuedConnection);
  }
  return QWidget::eventFilter(watched, event);
}

void Screen::ForgetMessage() {
  const bool old = stale_ == stsInfo_->Stamp();
  stale_.reset();
  if (old) stsInfo_->ClearMessage();
}

void Screen::keyPressEvent(QKeyEvent* event) {
  stale_.reset();
  event->ignore();
}

void Screen::mousePressEvent(QMouseEvent* event) {
  stale_.reset();
  event->ignore();
}

// Minimizing and restoring the window are the platform's own events: the screen stays as it is
// then.
void Screen::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) return;
  stsInfo_->ClearMessage();
  qApp->installEventFilter(this);
  Event("UserControl_Show", [this] { UserControl_Show(); });
  surroundings_.person.SetBusy(false);
}

void Screen::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (event->spontaneous()) return;
  qApp->removeEventFilter(this);
  // Who hides the screen has asked; a window that goes without asking has nobody to ask.
  Event("UserControl_Hide", [this] {
    for (GridEX* grid : findChildren<GridEX*>()) grid->CommitRow();
    UserControl_Hide();
  });
}

}  // namespace tavrelin
