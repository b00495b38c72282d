#pragma once

#include <QByteArray>
#include <QString>

namespace tavrelin {

// Paths are taken as the boxes keep them (see PlatformPath).

/// Writes a whole text file: to a temporary neighbor first, which then takes the old file's place,
/// so that the old file stays as it was until the new one is complete. Lines end in CRLF, in
/// whichever way `text` ends them. Windows-1252, as the association's programs expect; UTF-8 when a
/// character needs it.
///
/// Throws Error(File) with the system's reason ("No such file or directory") as description, and
/// leaves neither half a file nor a temporary one.
void WriteTextFile(const QString& path, const QString& text);

/// Reads a whole text file: UTF-8 when it is valid UTF-8, else Windows-1252. Lines end in "\n". A
/// byte order mark is left out. Throws Error(File) as WriteTextFile does.
QString ReadTextFile(const QString& path);

/// The bytes as WriteTextFile puts them into a file, line ends as they are.
QByteArray EncodeText(const QString& text);

/// The text of bytes as ReadTextFile understands them, line ends as they are.
QString DecodeText(const QByteArray& bytes);

}  // namespace tavrelin
