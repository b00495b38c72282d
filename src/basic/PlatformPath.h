#pragma once

#include <QString>

namespace tavrelin {

/// The platform's path for a path as the store and the boxes keep it. "C:\TavrelinData\" is the
/// user's TavrelinData folder, any other drive is the user's home folder, and `\` separates:
/// "C:\TavrelinData\Tavrelin.mdb" is "/home/ann/TavrelinData/Tavrelin.mdb", "D:\Backup\x.txt" is
/// "/home/ann/Backup/x.txt". Case of drive and folder does not count. A path of the platform goes
/// through as it is, save that a `\` that was put behind it separates as well. Empty stays empty.
///
/// The environment variable TAVRELIN_DATA names another folder for TavrelinData.
QString PlatformPath(const QString& path);

}  // namespace tavrelin
