#include <filesystem>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "basic/Error.h"
#include "data/Backup.h"
#include "data/BackupParts.h"
#include "data/Connection.h"
#include "data/DataSource.h"
#include "data/FileClaim.h"
#include "data/FileUsers.h"
#include "data/NewFile.h"
#include "data/SqlFile.h"
#include "data/Statement.h"

namespace tavrelin {
namespace {

// It would go on writing into the file that was replaced, and lose what it writes.
void RefuseWhileOpenElsewhere(const QString& club) {
  const QString program = ProgramUsing(club);
  if (program.isEmpty()) return;
  throw Error(errors::FileUnusable,
              QStringLiteral("The file %1 is open in another program (%2). Close it there and try "
                             "again.")
                  .arg(QDir::toNativeSeparators(club), program));
}

void WriteRestored(const QString& backup, const QString& path) {
  Connection source;
  source.OpenSnapshot(ConnectStringOfFile(backup));
  WriteCopy(source.Handle(), path);
}

/// Keeps every other program from writing into the file while it is replaced. Null when there is
/// nothing worth a backup, or when the file is damaged.
SqlFile Hold(const QString& club) {
  if (QFileInfo(club).size() == 0) return {};
  try {
    SqlFile held = OpenSqlFile(club, SqlAccess::Change);
    RunSql(held.get(), QStringLiteral("PRAGMA journal_mode = DELETE; BEGIN IMMEDIATE"));
    return IsSound(held.get()) ? std::move(held) : SqlFile();
  } catch (const Error& error) {
    if (error.number() == errors::FileUnusable) return {};
    throw;
  }
}

// A second name for the same file where the file system has such, else a copy of it byte by byte.
void GiveSecondName(const QString& club, const QString& name) {
  QDir().mkpath(QFileInfo(name).absolutePath());
  std::error_code refused;
  std::filesystem::create_hard_link(QFile::encodeName(club).constData(),
                                    QFile::encodeName(name).constData(), refused);
  QFile file(club);
  if (!refused || file.copy(name)) return;
  throw Error(errors::File, QStringLiteral("The present file cannot be kept as %1: %2.")
                                .arg(QDir::toNativeSeparators(name), file.errorString()));
}

// SQLite would take the journal of the old file for the new one's and write it over it.
void SetJournalAside(const QString& club, const QString& name) {
  const QString ending = QStringLiteral("-journal");
  if (!QFileInfo::exists(club + ending)) return;
  QDir().mkpath(QFileInfo(name).absolutePath());
  QFile journal(club + ending);
  if (journal.rename(name + ending)) return;
  throw Error(errors::File,
              QStringLiteral("%1: %2.").arg(journal.fileName(), journal.errorString()));
}

// A connection that holds a file for writing cannot be copied from, so it is opened once more.
QString BackUpReplaced(const QString& club, const QDateTime& now) {
  const SqlFile present = OpenSqlFile(club, SqlAccess::Read);
  const QString backup = NewBackupName(club, now);
  CopyClubFile(present.get(), backup);
  return backup;
}

QString KeepDamaged(const QString& club, const QDateTime& now) {
  const QString name = NewDamagedName(club, now);
  const bool isThere = QFileInfo(club).size() > 0;
  if (isThere) GiveSecondName(club, name);
  SetJournalAside(club, name);
  return isThere ? name : QString();
}

}  // namespace

QString RestoreClub(const QString& file, const QString& backup, const QDateTime& now) {
  const QString club = RealPath(file);
  const FileClaim claim(club);
  RefuseWhileOpenElsewhere(club);
  NewFile restored(club, NewFile::Existing::Replaced);
  WriteRestored(backup, restored.WorkPath());
  const SqlFile held = Hold(club);
  const QString kept = held ? BackUpReplaced(club, now) : KeepDamaged(club, now);
  restored.TakePlace();
  RemoveLeftovers(club, QFileInfo(club).absolutePath());
  RemoveOldBackups(club, held ? kept : QString());
  return kept;
}

}  // namespace tavrelin
