#include "data/FileUsers.h"

#include <sys/stat.h>

#include <optional>

#include <QDir>
#include <QFile>

namespace tavrelin {
namespace {

std::optional<struct stat> Identity(const QString& path) {
  struct stat found {};
  if (stat(QFile::encodeName(path).constData(), &found) != 0) return std::nullopt;
  return found;
}

bool HasOpen(const QDir& process, const struct stat& file) {
  const QDir open(process.filePath(QStringLiteral("fd")));
  for (const QString& number : open.entryList(QDir::Files | QDir::System)) {
    const auto one = Identity(open.filePath(number));
    if (one && one->st_dev == file.st_dev && one->st_ino == file.st_ino) return true;
  }
  return false;
}

QString NameOf(const QDir& process) {
  QFile name(process.filePath(QStringLiteral("comm")));
  if (!name.open(QIODevice::ReadOnly)) return process.dirName();
  return QString::fromLocal8Bit(name.readAll()).trimmed();
}

}  // namespace

QString ProgramUsing(const QString& path) {
  const auto file = Identity(path);
  if (!file) return {};
  const QDir processes(QStringLiteral("/proc"));
  for (const QString& name : processes.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QDir process(processes.filePath(name));
    if (name.front().isDigit() && HasOpen(process, *file)) return NameOf(process);
  }
  return {};
}

}  // namespace tavrelin
