#pragma once

#include <QString>

namespace tavrelin {

/// The full path of a program of this build: "tavrelin", "tavrelinctl", "tavrelin-demo".
QString BuiltProgram(const QString& name);

/// The top folder of the sources that this build was made from, without a slash at its end.
QString SourceFolder();

}  // namespace tavrelin
