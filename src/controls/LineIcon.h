#pragma once

#include <QIcon>
#include <QString>

namespace tavrelin {

/// A line drawing that takes the color of the text around it, in the light and in the dark palette
/// alike, sharp at every scale. `name` is a file of the program's resources
/// (":/icons/profile.svg" is "profile"); its strokes and fills of #000000 become the palette's text
/// color when it is painted. An unknown name gives an empty icon.
QIcon LineIcon(const QString& name);

}  // namespace tavrelin
