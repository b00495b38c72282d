#pragma once

#include "shell/Operator.h"

namespace tavrelin {

// The seams of Operator.h filled with the desktop that the program runs on.

class DesktopOperator : public Operator {
 public:
  /// Yes and No; Escape and Enter alike are No, so that a deletion is never confirmed by accident.
  bool Confirm(const QString& title, const QString& text) override;
  void Tell(const QString& title, const QString& text) override;
  QString OpenFile(const QString& title, const QString& folder, const QString& filter) override;
  QString SaveFile(const QString& title, const QString& proposal, const QString& filter) override;
  int ChooseBackup(const QString& file, const QList<ClubBackup>& backups) override;
  void Beep() override;
  void SetBusy(bool busy) override;

 private:
  bool busy_ = false;
};

class SystemClock : public Clock {
 public:
  QDateTime Now() const override;
};

class DesktopClipboard : public Clipboard {
 public:
  QString Text() const override;
  void SetText(const QString& text) override;
};

class DesktopBrowser : public Browser {
 public:
  /// False when the file is not there or the desktop knows no program for the address.
  bool Open(const QUrl& address) override;
};

}  // namespace tavrelin
