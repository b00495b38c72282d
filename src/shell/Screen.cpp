#include "shell/Screen.h"

#include <QApplication>
#include <QKeyEvent>

#include "basic/RowCheck.h"
#include "controls/GridEX.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"

namespace tavrelin {

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
  Event("UserControl_Hide", [this] { UserControl_Hide(); });
}

}  // namespace tavrelin
