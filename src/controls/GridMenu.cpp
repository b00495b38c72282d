#include "controls/GridMenu.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>

#include "controls/GridCore.h"
#include "controls/GridEX.h"

namespace tavrelin {

namespace {

QString Say(const char* text) {
  return QCoreApplication::translate("GridMenu", text);
}

QString Caption(const GridCore& core, int number) {
  return core.model.headerData(number, Qt::Horizontal, Qt::AccessibleTextRole).toString();
}

void AddColumns(QMenu* menu, const GridCore& core, const std::function<void(int)>& chosen) {
  for (int number : core.model.VisibleColumns()) {
    if (core.model.Column(number).icon || core.model.Column(number).field.isEmpty()) continue;
    menu->addAction(Caption(core, number), menu, [chosen, number] { chosen(number); });
  }
}

}  // namespace

void ShowGridMenu(GridCore& core, QContextMenuEvent* event) {
  if (!core.model.Bound()) return;
  core.CloseCell(true);
  auto* menu = new QMenu(core.view);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  AddColumns(menu->addMenu(Say("&Sort by")), core, [&core](int number) {
    core.HeaderClicked(number);
    Q_EMIT core.OrderChanged();
  });
  if (core.face.GroupByBoxVisible()) {
    AddColumns(menu->addMenu(Say("&Group by")), core,
               [&core](int number) { core.face.AddGroup(core.model.Column(number).Key()); });
  }
  if (core.model.Rows().HasNewRow()) {
    menu->addAction(Say("&New record\tInsert"), menu, [&core] { core.MoveToNewRow(); });
  }
  if (core.allowDelete && core.Row() > 0) {
    menu->addAction(Say("&Delete this row"), menu, [&core] { core.DeleteRow(); });
  }
  const bool mouse = event->reason() == QContextMenuEvent::Mouse;
  const QRect cell = core.view->visualRect(core.cursor.currentIndex());
  menu->popup(mouse ? event->globalPos()
                    : core.view->viewport()->mapToGlobal(cell.isValid() ? cell.bottomLeft()
                                                                        : QPoint(8, 8)));
}

}  // namespace tavrelin
