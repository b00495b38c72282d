#pragma once

#include <QByteArray>
#include <QString>

namespace tavrelin {

/// Writes a file whole: to a temporary neighbor first, which takes the old file's place once all of
/// it is on disk. `path` is a path of the platform.
///
/// Throws Error(File) with the system's reason ("No space left on device") as description; what
/// stood at `path` stays then, and neither half a file nor a temporary one is left.
void WriteWholeFile(const QString& path, QByteArrayView bytes);

}  // namespace tavrelin
