#pragma once

#include <QDateTime>
#include <QString>

struct sqlite3;

namespace tavrelin {

// What backing up and restoring share. `file` is the real path of a club's file.

/// SQLite's own check of every page and index.
bool IsSound(sqlite3* handle);

/// Writes a copy to a path where nothing is yet, and reads it back.
void WriteCopy(sqlite3* from, const QString& path);

/// Without links on the way, so that the file itself is replaced and not the link to it.
QString RealPath(const QString& file);
QString BackupFolder(const QString& file);

/// Paths that nothing has yet.
QString NewBackupName(const QString& file, const QDateTime& now);
QString NewDamagedName(const QString& file, const QDateTime& now);

/// Removes the oldest beyond the last ten, counting the one just made, whatever its name says of
/// its age: the machine's clock may have been set back. `made` may be empty.
void RemoveOldBackups(const QString& file, const QString& made);

}  // namespace tavrelin
