#include "controls/GroupBox.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>

#include "controls/GridCore.h"
#include "controls/GridEX.h"
#include "controls/GridHeader.h"

namespace tavrelin {

namespace {

QString Caption(const GridCore& core, int number) {
  return core.model.headerData(number, Qt::Horizontal, Qt::AccessibleTextRole).toString();
}

}  // namespace

GroupBox::GroupBox(GridCore& core, QWidget* parent)
    : QFrame(parent), core_(core), row_(new QHBoxLayout(this)), add_(new QToolButton(this)) {
  setObjectName(QStringLiteral("GroupBox"));
  setAccessibleName(tr("Group by"));
  setFrameShape(QFrame::StyledPanel);
  setAcceptDrops(true);
  row_->setContentsMargins(8, 8, 8, 8);
  row_->setSpacing(8);
  add_->setObjectName(QStringLiteral("GroupByMenu"));
  add_->setText(tr("Group by..."));
  add_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  add_->setFocusPolicy(Qt::StrongFocus);
  add_->setPopupMode(QToolButton::InstantPopup);
  add_->setMinimumHeight(32);
  add_->setMenu(new QMenu(add_));
  connect(add_->menu(), &QMenu::aboutToShow, this, &GroupBox::FillMenu);
  row_->addWidget(add_);
  row_->addStretch();
  ShowGroups();
}

void GroupBox::FillMenu() {
  add_->menu()->clear();
  for (int number : core_.model.VisibleColumns()) {
    const QString key = core_.model.Column(number).Key();
    const bool groups =
        !core_.model.Column(number).icon && !core_.model.Column(number).field.isEmpty();
    if (!groups || core_.groups.contains(key, Qt::CaseInsensitive)) continue;
    add_->menu()->addAction(Caption(core_, number), this,
                            [this, key] { core_.face.AddGroup(key); });
  }
}

void GroupBox::ShowGroups() {
  // The button that was pressed may be the one that goes: it is deleted once its click is over.
  while (row_->count() > 1) {
    QLayoutItem* item = row_->takeAt(1);
    if (item->widget()) {
      item->widget()->hide();
      item->widget()->deleteLater();
    }
    delete item;
  }
  for (const QString& group : core_.groups) {
    auto* button = new QToolButton(this);
    const QString caption = Caption(core_, core_.model.ColumnNumber(group));
    button->setObjectName(QStringLiteral("Group_") + group);
    button->setText(caption + QStringLiteral("  \u00d7"));
    button->setAccessibleName(tr("Stop grouping by %1").arg(caption));
    button->setToolTip(button->accessibleName());
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumHeight(32);
    connect(button, &QToolButton::clicked, this, [this, group] { core_.RemoveGroup(group); });
    row_->addWidget(button);
  }
  if (core_.groups.isEmpty()) {
    row_->addWidget(new QLabel(tr("Drag a column heading here to group the rows by it."), this));
  }
  row_->addStretch();
}

void GroupBox::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasFormat(GridHeader::DragKind())) event->acceptProposedAction();
}

void GroupBox::dropEvent(QDropEvent* event) {
  const QByteArray key = event->mimeData()->data(GridHeader::DragKind());
  if (key.isEmpty()) return;
  event->acceptProposedAction();
  core_.face.AddGroup(QString::fromUtf8(key));
}

}  // namespace tavrelin
