#include "data/FileClaim.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <map>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "basic/Error.h"

namespace tavrelin {
namespace {

// Between opening the neighbor and locking it, the one who held it may have removed it.
bool IsStillThere(int descriptor, const QByteArray& path) {
  struct stat opened {};
  struct stat present {};
  return fstat(descriptor, &opened) == 0 && stat(path.constData(), &present) == 0 &&
         opened.st_ino == present.st_ino && opened.st_dev == present.st_dev;
}

[[noreturn]] void RefuseSecondCopy(const QString& file) {
  throw Error(errors::FileInUse,
              QStringLiteral("The file %1 is open in another copy of the program. Use that window, "
                             "or close it first.")
                  .arg(QDir::toNativeSeparators(file)));
}

[[noreturn]] void RefuseLock(const QString& file, int reason) {
  throw Error(errors::FileUnusable, QStringLiteral("The file %1 cannot be guarded against a second "
                                                   "copy of the program: %2.")
                                        .arg(QDir::toNativeSeparators(file),
                                             QString::fromLocal8Bit(std::strerror(reason))));
}

}  // namespace

class FileClaim::Lock {
 public:
  explicit Lock(const QString& file) : path_(QFile::encodeName(file + QStringLiteral(".lock"))) {
    while (descriptor_ < 0) {
      const int opened = open(path_.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
      if (opened < 0 && (errno == EROFS || errno == EACCES || errno == EPERM)) return;
      if (opened < 0) RefuseLock(file, errno);
      if (flock(opened, LOCK_EX | LOCK_NB) != 0) {
        const int reason = errno;
        close(opened);
        if (reason == EWOULDBLOCK) RefuseSecondCopy(file);
        RefuseLock(file, reason);
      }
      if (IsStillThere(opened, path_)) {
        descriptor_ = opened;
      } else {
        close(opened);
      }
    }
  }
  ~Lock() {
    if (descriptor_ < 0) return;
    unlink(path_.constData());
    close(descriptor_);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  QByteArray path_;
  int descriptor_ = -1;
};

FileClaim::FileClaim(const QString& path) {
  // The process's own claims, by file: its connections do not shut each other out.
  static std::map<QString, std::weak_ptr<Lock>> held;
  const QString file = QFileInfo(path).canonicalFilePath();
  const QString key = file.isEmpty() ? path : file;
  lock_ = held[key].lock();
  if (lock_) return;
  lock_ = std::make_shared<Lock>(key);
  held[key] = lock_;
}

}  // namespace tavrelin
