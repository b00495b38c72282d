#pragma once

#include <QList>

#include "shell/Screen.h"

namespace tavrelin {

/// How the 22 screens are made, in the order in which the window creates them. A screen's name is
/// its objectName. The one place that knows all subjects.
const QList<MakeScreen>& AllScreens();

}  // namespace tavrelin
