#include "data/Backup.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "basic/Error.h"
#include "data/BackupParts.h"
#include "data/Connection.h"
#include "data/DataSource.h"
#include "data/NewFile.h"
#include "data/Sql.h"
#include "data/SqlFile.h"

namespace tavrelin {
namespace {

const QString Moment = QStringLiteral("yyyy-MM-dd_HH-mm-ss");

void VerifyCopy(sqlite3* from, const QString& copy) {
  const SqlFile db = OpenSqlFile(copy, SqlAccess::Read);
  for (const char* same :
       {"PRAGMA page_count", "SELECT group_concat(sql, ';') FROM sqlite_master"}) {
    const QString question = QLatin1String(same);
    if (AskSql(db.get(), question) != AskSql(from, question)) {
      throw Error(errors::File, QStringLiteral("The copy %1 is not the same as the file.")
                                    .arg(QDir::toNativeSeparators(copy)));
    }
  }
  if (IsSound(db.get())) return;
  throw Error(errors::FileUnusable, QStringLiteral("The file is damaged, and its copy with it."));
}

/// "-2", "-3" and so on go before the ending when there is such a file already.
QString FreeName(const QString& stem, const QString& ending) {
  QString name = stem + ending;
  for (int n = 2; QFileInfo::exists(name); ++n) {
    name = QStringLiteral("%1-%2%3").arg(stem).arg(n).arg(ending);
  }
  return name;
}

QString EndingOf(const QString& file) {
  const QString suffix = QFileInfo(file).suffix();
  return suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix;
}

/// "/home/ann/TavrelinData/Backups/Tavrelin."
QString BackupStem(const QString& file) {
  return BackupFolder(file) + QLatin1Char('/') + QFileInfo(file).completeBaseName() +
         QLatin1Char('.');
}

/// Reads the name of a backup; `made` is not valid when it is none of this file's.
ClubBackup ReadName(const QFileInfo& found, const QString& file) {
  const QRegularExpression pattern(
      QStringLiteral("^%1\\.(?:before-([a-z-]+)\\.)?(\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d)"
                     "(-\\d+)?%2$")
          .arg(QRegularExpression::escape(QFileInfo(file).completeBaseName()),
               QRegularExpression::escape(EndingOf(file))));
  const QRegularExpressionMatch match = pattern.match(found.fileName());
  if (!match.hasMatch()) return {};
  return {found.absoluteFilePath(), QDateTime::fromString(match.captured(2), Moment), found.size(),
          match.captured(1).replace(u'-', u' ')};
}

QString NewDeedName(const QString& file, const QString& deed, const QDateTime& now) {
  const QString words = QString(deed).replace(u' ', u'-');
  return FreeName(BackupStem(file) + QStringLiteral("before-%1.").arg(words) + now.toString(Moment),
                  EndingOf(file));
}

void CopyPresentState(const QString& club, const QString& path) {
  Connection snapshot;
  snapshot.OpenSnapshot(ConnectStringOfFile(club));
  CopyClubFile(snapshot.Handle(), path);
  RemoveLeftovers(club, BackupFolder(club));
}

bool IsNewer(const ClubBackup& one, const ClubBackup& other) {
  if (one.made != other.made) return one.made > other.made;
  if (one.path.size() != other.path.size()) return one.path.size() > other.path.size();
  return one.path > other.path;
}

}  // namespace

bool IsSound(sqlite3* handle) {
  try {
    const QList<QStringList> sound{{QStringLiteral("ok")}};
    return AskSql(handle, QStringLiteral("PRAGMA integrity_check")) == sound;
  } catch (const Error& error) {
    if (error.number() == errors::FileUnusable) return false;
    throw;
  }
}

void WriteCopy(sqlite3* from, const QString& path) {
  {
    const SqlFile to = OpenSqlFile(path, SqlAccess::Make);
    RunSql(to.get(), QStringLiteral("PRAGMA synchronous = EXTRA"));
    CopyAllPages(from, to.get());
  }
  VerifyCopy(from, path);
}

void CopyClubFile(sqlite3* from, const QString& path) {
  NewFile file(path);
  WriteCopy(from, file.WorkPath());
  file.TakePlace();
}

QString CopyBeforeUpgrade(sqlite3* from, const QString& file, const QDate& today) {
  const QFileInfo info(file);
  const QString copy =
      FreeName(info.absolutePath() + QLatin1Char('/') + info.completeBaseName() +
                   QStringLiteral(".before-upgrade-") + today.toString(Qt::ISODate),
               EndingOf(file));
  CopyClubFile(from, copy);
  return copy;
}

QString RealPath(const QString& file) {
  const QFileInfo info(file);
  return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

QString BackupFolder(const QString& file) {
  return QFileInfo(file).absolutePath() + QStringLiteral("/Backups");
}

QString NewBackupName(const QString& file, const QDateTime& now) {
  return FreeName(BackupStem(file) + now.toString(Moment), EndingOf(file));
}

QString NewDamagedName(const QString& file, const QDateTime& now) {
  return FreeName(BackupStem(file) + QStringLiteral("damaged-") + now.date().toString(Qt::ISODate),
                  EndingOf(file));
}

// One that cannot be removed is tried again with the next backup.
void RemoveOldBackups(const QString& file, const QString& made) {
  QList<ClubBackup> backups = BackupsOf(file);
  backups.removeIf(
      [&made](const ClubBackup& backup) { return backup.path == made || !backup.deed.isEmpty(); });
  const int kept = made.isEmpty() ? BackupsKept : BackupsKept - 1;
  for (qsizetype i = kept; i < backups.size(); ++i) QFile::remove(backups[i].path);
}

QList<ClubBackup> BackupsOf(const QString& file) {
  const QString club = RealPath(file);
  QList<ClubBackup> backups;
  for (const QFileInfo& found : QDir(BackupFolder(club)).entryInfoList(QDir::Files)) {
    const ClubBackup backup = ReadName(found, club);
    if (backup.made.isValid()) backups.append(backup);
  }
  std::sort(backups.begin(), backups.end(), IsNewer);
  return backups;
}

QString BackUpClub(const QString& file, const QDateTime& now) {
  const QString club = RealPath(file);
  const QString made = NewBackupName(club, now);
  CopyPresentState(club, made);
  RemoveOldBackups(club, made);
  return made;
}

QString BackUpBefore(const QString& deed, const QString& file, const QDateTime& now) {
  const QString club = RealPath(file);
  const QString made = NewDeedName(club, deed, now);
  CopyPresentState(club, made);
  return made;
}

QString KeptBefore(const QString& backup) {
  return QStringLiteral("The file as it was before is kept as %1")
      .arg(QFileInfo(backup).fileName());
}

}  // namespace tavrelin
