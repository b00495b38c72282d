#include "shell/MenuBar.h"

#include <QKeySequence>
#include <QShortcutEvent>

namespace tavrelin {

bool MenuBar::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut) return QMenuBar::event(event);
  const auto* shortcut = static_cast<QShortcutEvent*>(event);
  if (!shortcut->isAmbiguous()) return QMenuBar::event(event);
  MarkNext(QChar(shortcut->key()[0].key()));
  return true;
}

void MenuBar::MarkNext(QChar letter) {
  const QString mnemonic = QLatin1Char('&') + letter;
  QList<QAction*> candidates;
  for (QAction* action : actions()) {
    if (action->text().contains(mnemonic, Qt::CaseInsensitive)) candidates.append(action);
  }
  if (candidates.isEmpty()) return;
  const qsizetype next = candidates.indexOf(activeAction()) + 1;
  setFocus(Qt::MenuBarFocusReason);
  setActiveAction(candidates[next % candidates.size()]);
}

}  // namespace tavrelin
