#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

struct sqlite3;

namespace tavrelin {

// Copies of a club's file, all made by SQLite from an open file, so that a window at work on it is
// not disturbed, and read back and compared before they take their names. All paths are platform
// paths. What cannot be done throws Error, a sentence for the operator, and leaves the club's file
// as it was.

/// Copies an open club file, as its last commit left it, to a new file at a platform path. The copy
/// is read back and compared before it takes its name. Throws Error, with nothing left behind, when
/// it cannot be made or a file of that name exists.
void CopyClubFile(sqlite3* from, const QString& path);

/// The copy that is kept beside a file before its layout is changed:
/// "Tavrelin.before-upgrade-2026-11-21.mdb", with "-2" and so on behind the date when there is one
/// already. Returns its path.
QString CopyBeforeUpgrade(sqlite3* from, const QString& file, const QDate& today);

/// A backup in the folder "Backups" beside a club's file.
struct ClubBackup {
  QString path;
  QDateTime made;     ///< local time, as its name tells it
  qint64 size = 0;    ///< bytes
  QString deed = {};  ///< what it was made before ("archiving scores"); empty for a plain backup
};

/// How many plain backups of one club's file are kept.
inline constexpr int BackupsKept = 10;

/// The backups of a club's file, the newest first. The file itself need not be there.
QList<ClubBackup> BackupsOf(const QString& file);

/// Makes a backup: "Backups/Tavrelin.2026-11-21_14-05-09.mdb" beside the file, which may be in use.
/// Once it is verified and in its place, the oldest beyond the last ten go. Returns its path.
QString BackUpClub(const QString& file, const QDateTime& now);

/// Makes the backup that a deed begins with which removes many rows, named after the deed:
/// "Backups/Tavrelin.before-archiving-scores.2026-11-21_14-05-09.mdb" for "archiving scores" (small
/// letters and blanks). It lies outside the ten: no later backup takes it away. Returns its path.
/// Throws Error when it cannot be made and verified; the deed must not be done then.
QString BackUpBefore(const QString& deed, const QString& file, const QDateTime& now);

/// "The file as it was before is kept as Tavrelin.before-...mdb": what the message of such a deed
/// ends with.
QString KeptBefore(const QString& backup);

/// Puts a backup in the place of the club's file, in one step: at every moment the place holds the
/// old file or the restored one, whole. What it replaces is backed up first; a file too damaged for
/// that is kept as it is, as "Backups/Tavrelin.damaged-2026-11-21.mdb". No connection of this
/// process may be open. Refused while another program has the file open, and when the backup is not
/// sound.
///
/// Returns where the replaced file is kept; empty when there was none.
QString RestoreClub(const QString& file, const QString& backup, const QDateTime& now);

}  // namespace tavrelin
