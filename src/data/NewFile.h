#pragma once

#include <QString>

namespace tavrelin {

/// A file that is written beside its place and takes it only when it is whole. What is not finished
/// is gone at the end of the scope.
class NewFile {
 public:
  /// `path` is a platform path. Makes its folder; throws Error when that cannot be done or when a
  /// file of that name exists.
  explicit NewFile(const QString& path);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Where to write. Nothing is there yet.
  const QString& WorkPath() const { return work_; }
  /// Gives the file its name; throws Error, and never takes the place of a file that has come
  /// meanwhile.
  void TakePlace();

 private:
  QString path_, work_;
};

}  // namespace tavrelin
