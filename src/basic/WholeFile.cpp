#include "basic/WholeFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include <QSaveFile>

#include "basic/Error.h"

namespace tavrelin {

namespace {

[[noreturn]] void Fail(const QString& reason) {
  throw Error(errors::File, reason);
}

// On a disk that fills up, a write says that it wrote a part; only the next one fails, and says
// why.
void WriteAll(QSaveFile& file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const qint64 written = file.write(bytes.data(), bytes.size());
    if (written <= 0) Fail(file.errorString());
    bytes = bytes.sliced(written);
  }
}

// QSaveFile takes no notice of a disk that fails now. Some file systems cannot be asked.
void Sync(const QSaveFile& file) {
  if (fsync(file.handle()) == 0 || errno == EINVAL) return;
  Fail(QString::fromLocal8Bit(std::strerror(errno)));
}

}  // namespace

// Unbuffered, or what did not fit is told when the file has its name already.
void WriteWholeFile(const QString& path, QByteArrayView bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) Fail(file.errorString());
  WriteAll(file, bytes);
  Sync(file);
  if (!file.commit()) Fail(file.errorString());
}

}  // namespace tavrelin
