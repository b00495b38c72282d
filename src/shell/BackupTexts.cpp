#include "shell/BackupTexts.h"

#include <QFileInfo>
#include <QLocale>

#include "data/Backup.h"

namespace tavrelin {

QString BackupDate(const ClubBackup& backup) {
  const QString date =
      QLocale::c().toString(backup.made, QStringLiteral("dddd, MMMM d yyyy, h:mm AP"));
  return backup.deed.isEmpty() ? date : date + QStringLiteral(", before ") + backup.deed;
}

QString BackupSize(const ClubBackup& backup) {
  return QLocale::c().formattedDataSize(backup.size, 1, QLocale::DataSizeTraditionalFormat);
}

QString BackupsText(const QList<ClubBackup>& backups) {
  if (backups.isEmpty()) return QStringLiteral("There is no backup yet.");
  return QStringLiteral("Last backup: %1. The last %2 are kept in %3.")
      .arg(BackupDate(backups.first()))
      .arg(BackupsKept)
      .arg(QFileInfo(backups.first().path).absolutePath());
}

QString RestoredText(const ClubBackup& restored, const QString& kept) {
  const QString done = QStringLiteral("Restored: %1.").arg(BackupDate(restored));
  if (kept.isEmpty()) return done;
  return done + QStringLiteral(" The file before it is kept as %1").arg(QFileInfo(kept).fileName());
}

}  // namespace tavrelin
