#pragma once

#include <QString>

namespace tavrelin {

/// A file that is written beside its place and takes it only when it is whole. What is not finished
/// is gone at the end of the scope.
class NewFile {
 public:
  enum class Existing { Refused, Replaced };

  /// `path` is a platform path. Makes its folder; throws Error when that cannot be done or when a
  /// file of that name exists, unless it is to be replaced.
  explicit NewFile(const QString& path, Existing existing = Existing::Refused);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Where to write. Nothing is there yet.
  const QString& WorkPath() const { return work_; }
  /// Gives the file its name, on disk when the call returns; throws Error. At every moment the
  /// place holds the old file or the new one. A file that has come meanwhile is not replaced
  /// unasked.
  void TakePlace();

 private:
  QString path_, work_;
  Existing existing_;
};

/// Removes what killed processes left of new files beside `file` or of copies named after it:
/// "Club.mdb.4711.new". Those of processes that are at work stay.
void RemoveLeftovers(const QString& file, const QString& folder);

}  // namespace tavrelin
