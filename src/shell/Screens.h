#pragma once

#include <functional>
#include <QList>
#include <QString>

class QWidget;

namespace tavrelin {

class Screen;
struct Surroundings;

/// Makes one screen; the parent owns it.
using MakeScreen = std::function<Screen*(const Surroundings&, QWidget* parent)>;

/// How the 22 screens are made, in the order in which the window creates them. A screen's name is
/// its objectName.
const QList<MakeScreen>& AllScreens();

}  // namespace tavrelin
