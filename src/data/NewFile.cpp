#include "data/NewFile.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "basic/Error.h"

namespace tavrelin {
namespace {

const QString Journal = QStringLiteral("-journal");

[[noreturn]] void Refuse(const QString& path, const QString& why) {
  throw Error(errors::File, QStringLiteral("%1: %2.").arg(QDir::toNativeSeparators(path), why));
}

void Replace(const QString& from, const QString& to) {
  QFile::setPermissions(from, QFile::permissions(to));
  if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
    return;
  Refuse(to, QString::fromLocal8Bit(std::strerror(errno)));
}

// A name is on disk when its folder is. Some file systems cannot be asked for that; they keep
// names in their own way.
void SyncFolderOf(const QString& path) {
  const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
  const int descriptor = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

bool IsAtWork(qint64 process) {
  return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

}  // namespace

NewFile::NewFile(const QString& path, Existing existing)
    : path_(path),
      work_(QStringLiteral("%1.%2.new").arg(path).arg(QCoreApplication::applicationPid())),
      existing_(existing) {
  if (existing == Existing::Refused && QFileInfo::exists(path)) {
    Refuse(path, QStringLiteral("a file of that name exists"));
  }
  if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
    Refuse(path, QStringLiteral("its folder cannot be made"));
  }
  QFile::remove(work_);
}

NewFile::~NewFile() {
  QFile::remove(work_);
  QFile::remove(work_ + Journal);
}

void NewFile::TakePlace() {
  if (existing_ == Existing::Replaced && QFileInfo::exists(path_)) {
    Replace(work_, path_);
  } else {
    QFile work(work_);
    if (!work.rename(path_)) Refuse(path_, work.errorString());
  }
  SyncFolderOf(path_);
}

void RemoveLeftovers(const QString& file, const QString& folder) {
  const QFileInfo club(file);
  const QRegularExpression leftover(QStringLiteral("^%1(\\..+)?\\.%2\\.(\\d+)\\.new(%3)?$")
                                        .arg(QRegularExpression::escape(club.completeBaseName()),
                                             QRegularExpression::escape(club.suffix()), Journal));
  for (const QFileInfo& found : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
    const QRegularExpressionMatch match = leftover.match(found.fileName());
    if (match.hasMatch() && !IsAtWork(match.captured(2).toLongLong())) {
      QFile::remove(found.filePath());
    }
  }
}

}  // namespace tavrelin
