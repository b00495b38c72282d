#pragma once

#include <QString>

namespace tavrelin {

/// The name of a program that has the file at a platform path open, this one included; empty when
/// none is known to. Only programs of the same user on this machine can be seen, and none where the
/// platform does not tell.
QString ProgramUsing(const QString& path);

}  // namespace tavrelin
