#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

struct ClubBackup;

/// "Saturday, June 14 2025, 9:30 AM", and ", before archiving scores" behind it where it was made
/// before a deed.
QString BackupDate(const ClubBackup& backup);
/// "1.2 MB"
QString BackupSize(const ClubBackup& backup);
/// What the Database screen says of the backups of a file.
QString BackupsText(const QList<ClubBackup>& backups);
/// What it says after one was restored; `kept` is where the replaced file went, or empty.
QString RestoredText(const ClubBackup& restored, const QString& kept);

}  // namespace tavrelin
