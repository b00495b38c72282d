#include "shell/Screen.h"

#include <QHideEvent>
#include <QShowEvent>

#include "basic/RowCheck.h"
#include "controls/GridEX.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"

namespace tavrelin {

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

// Minimizing and restoring the window are the platform's own events: the screen stays as it is
// then.
void Screen::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) return;
  stsInfo_->ClearMessage();
  Event("UserControl_Show", [this] { UserControl_Show(); });
  surroundings_.person.SetBusy(false);
}

void Screen::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (event->spontaneous()) return;
  Event("UserControl_Hide", [this] { UserControl_Hide(); });
}

}  // namespace tavrelin
