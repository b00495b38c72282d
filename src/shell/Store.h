#pragma once

#include <QString>

namespace tavrelin {

struct StoredValue;

/// The operator's own settings: one small file of sections and texts, under the platform's
/// configuration folder (the environment variable TAVRELIN_STORE points it elsewhere). Read at each
/// call, and written whole to a neighbor and renamed under a lock, so two programs do not undo each
/// other. An empty section is the root; names are told apart without regard to case. These
/// operations never throw: a failure reads as the default.
class Store {
 public:
  /// The file of the environment or the platform.
  Store();
  explicit Store(QString file);

  /// True when the text was written. A store that is there and cannot be read is left as it is.
  bool SaveRegistryString(const QString& section, const QString& name, const QString& value);
  /// The text, cut at 255 characters and trimmed; `fallback` when it is missing, blank or lost to
  /// the disk, and an empty text when the store is there and cannot be opened.
  QString GetRegistryString(const QString& section, const QString& name,
                            const QString& fallback = {}) const;
  /// 0 the section exists, 1 it does not, 2 the store cannot be read. The name is not looked at.
  int RegistryKeyState(const QString& section, const QString& name = {}) const;
  /// The machine's own store, read and never written: the file of TAVRELIN_MACHINE_STORE, or
  /// nothing.
  QString GetMachineRegistryString(const QString& section, const QString& name,
                                   const QString& fallback = {}) const;
  /// One of the values of StoredValues.h, with its default. "C:\TavrelinData\" also stands in for a
  /// folder that holds "C:\Program Files" anywhere, case counted. `section` goes before the value's
  /// own, for values that stand in many.
  QString Get(const StoredValue& value, const QString& section = {}) const;
  /// False when it cannot be kept.
  bool Save(const StoredValue& value, const QString& text, const QString& section = {});

  const QString& File() const { return file_; }

 private:
  QString file_;
};

}  // namespace tavrelin
