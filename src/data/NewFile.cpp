#include "data/NewFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "basic/Error.h"

namespace tavrelin {
namespace {

[[noreturn]] void Refuse(const QString& path, const QString& why) {
  throw Error(errors::File, QStringLiteral("%1: %2.").arg(QDir::toNativeSeparators(path), why));
}

}  // namespace

NewFile::NewFile(const QString& path)
    : path_(path),
      work_(QStringLiteral("%1.%2.new").arg(path).arg(QCoreApplication::applicationPid())) {
  if (QFileInfo::exists(path)) Refuse(path, QStringLiteral("a file of that name exists"));
  if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
    Refuse(path, QStringLiteral("its folder cannot be made"));
  }
  QFile::remove(work_);
}

NewFile::~NewFile() {
  QFile::remove(work_);
  QFile::remove(work_ + QStringLiteral("-journal"));
}

void NewFile::TakePlace() {
  QFile work(work_);
  if (!work.rename(path_)) Refuse(path_, work.errorString());
}

}  // namespace tavrelin
