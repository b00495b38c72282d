#include "app/DemoHands.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>

namespace tavrelin {

void DemoHands::Press(const QString& button) const {
  Find<QAbstractButton>(button).click();
  QCoreApplication::processEvents();
}

void DemoHands::Type(const QString& text) const {
  for (const QChar character : text) Key(character.toUpper().unicode(), character);
}

void DemoHands::Key(int key, const QString& text) const {
  QWidget* focus = window_.focusWidget() ? window_.focusWidget() : &window_;
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(focus, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(focus, &release);
  QCoreApplication::processEvents();
}

void DemoHands::Fill(const QString& box, const QString& text) const {
  Find(box).setFocus(Qt::TabFocusReason);
  Type(text);
  Key(Qt::Key_Return);
}

}  // namespace tavrelin
