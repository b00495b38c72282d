#include "controls/ButtonBar.h"

#include <algorithm>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "controls/BarButton.h"

namespace tavrelin {

ButtonBar::ButtonBar(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(tr("Screens"));
}

void ButtonBar::SetGroups(const QList<BarGroup>& groups) {
  buttons_.clear();
  auto* content = new QWidget;
  content->setBackgroundRole(QPalette::Base);
  content->setAutoFillBackground(true);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (const BarGroup& group : groups) {
    column->addWidget(AddButton(group.caption, {}, group.icon));
    for (const BarItem& item : group.items) {
      column->addWidget(AddButton(group.caption, item.caption, item.icon));
    }
  }
  column->addStretch();
  setWidget(content);
  FitWidth();
  if (groups.isEmpty()) return;
  OpenGroup(groups.first().caption);
  MakeTabStop(buttons_.first());
}

BarButton* ButtonBar::AddButton(const QString& group, const QString& item, const QIcon& icon) {
  auto* button = new BarButton(group, item, icon, this);
  button->installEventFilter(this);
  buttons_.append(button);
  connect(button, &BarButton::clicked, this, [this, group, item] {
    if (item.isEmpty()) {
      Q_EMIT GroupClick(group);
    } else {
      Q_EMIT ItemClick(group, item);
    }
  });
  return button;
}

void ButtonBar::OpenGroup(const QString& group) {
  const bool known = std::any_of(buttons_.cbegin(), buttons_.cend(),
                                 [&](BarButton* button) { return button->Group() == group; });
  if (!known) return;
  opened_ = group;
  for (BarButton* button : buttons_) {
    const bool open = button->Group() == group;
    if (button->IsHeader()) {
      button->setChecked(open);
      button->setAccessibleDescription(open ? tr("open") : tr("closed"));
    } else {
      button->setVisible(open);
    }
  }
}

void ButtonBar::MarkItem(const QString& group, const QString& item) {
  for (BarButton* button : buttons_) {
    if (button->IsHeader()) continue;
    button->setChecked(button->Group() == group && button->Item() == item);
    if (button->isChecked()) MakeTabStop(button);
  }
}

void ButtonBar::FocusBar() {
  BarButton* target = nullptr;
  for (BarButton* button : Walkable()) {
    const bool openHeader = button->IsHeader() && button->isChecked();
    if (openHeader || (!button->IsHeader() && button->isChecked())) target = button;
  }
  if (target) target->setFocus(Qt::ShortcutFocusReason);
}

QList<BarButton*> ButtonBar::Walkable() const {
  QList<BarButton*> walkable;
  for (BarButton* button : buttons_) {
    if (button->IsHeader() || button->Group() == opened_) walkable.append(button);
  }
  return walkable;
}

void ButtonBar::Walk(int to) {
  const QList<BarButton*> walkable = Walkable();
  if (to >= 0 && to < walkable.size()) walkable[to]->setFocus(Qt::TabFocusReason);
}

void ButtonBar::keyPressEvent(QKeyEvent* event) {
  const QList<BarButton*> walkable = Walkable();
  const int here = static_cast<int>(walkable.indexOf(qobject_cast<BarButton*>(focusWidget())));
  switch (event->key()) {
    case Qt::Key_Up:
      return Walk(here - 1);
    case Qt::Key_Down:
      return Walk(here + 1);
    case Qt::Key_Home:
      return Walk(0);
    case Qt::Key_End:
      return Walk(static_cast<int>(walkable.size()) - 1);
    default:
      QScrollArea::keyPressEvent(event);
  }
}

bool ButtonBar::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<BarButton*>(watched);
  if (button && event->type() == QEvent::FocusIn) {
    MakeTabStop(button);
    ensureWidgetVisible(button, 0, 0);
  }
  return QScrollArea::eventFilter(watched, event);
}

void ButtonBar::MakeTabStop(BarButton* stop) {
  for (BarButton* button : buttons_) {
    button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

void ButtonBar::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitWidth();
}

void ButtonBar::FitWidth() {
  int widest = 0;
  for (const BarButton* button : buttons_) widest = qMax(widest, button->sizeHint().width());
  if (widest > 0) setFixedWidth(widest);
}

}  // namespace tavrelin
