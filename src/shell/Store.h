#pragma once

#include <QMap>
#include <QString>

namespace tavrelin {

/// The operator's own settings: one small file of sections and texts, under the platform's
/// configuration folder (the environment variable TAVRELIN_STORE points it elsewhere). Read at each
/// call and written whole and renamed, so two programs do not undo each other. An empty section is
/// the root. These operations never throw: a failure reads as the default.
class Store {
 public:
  /// The file of the environment or the platform.
  Store();
  explicit Store(QString file);

  /// True when the text was written.
  bool SaveRegistryString(const QString& section, const QString& name, const QString& value);
  /// The trimmed text, cut at 255 characters; `fallback` when it is missing or blank.
  QString GetRegistryString(const QString& section, const QString& name,
                            const QString& fallback = {}) const;
  /// 0 the section exists, 1 it does not, 2 the store cannot be read.
  int RegistryKeyState(const QString& section, const QString& name = {}) const;
  /// The machine's own store, read and never written: the file of TAVRELIN_MACHINE_STORE, or
  /// nothing.
  QString GetMachineRegistryString(const QString& section, const QString& name,
                                   const QString& fallback = {}) const;
  /// A stored folder, by the rule of all path settings: "C:\TavrelinData\" stands in for a missing
  /// one and for one under "C:\Program Files".
  QString GetPath(const QString& name) const;

  const QString& File() const { return file_; }

 private:
  QString file_;
};

}  // namespace tavrelin
