#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

/// Where a button of the bar leads: group and item as their captions stand, the screen's name, and
/// the name of the item's drawing.
struct Route {
  const char* group;
  const char* item;
  const char* screen;
  const char* icon;
};

/// All buttons, in the order in which they stand in the bar; a group's stand together.
const QList<Route>& Routes();

/// The screen of a button, compared exactly, the group first, because items of several groups share
/// a caption. Empty when there is no such button.
QString ScreenOf(const QString& group, const QString& item);

/// The captions of the groups from top to bottom.
QStringList Groups();

}  // namespace tavrelin
