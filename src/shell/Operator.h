#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QUrl>

namespace tavrelin {

struct ClubBackup;

// The seams between a screen and the outside world. The window fills them with dialogs (see
// Surroundings in Screen.h), tests with answers prepared beforehand. None of them is owned by the
// screens that use it.

/// The person at the keyboard.
class Operator {
 public:
  virtual ~Operator() = default;
  /// A Yes/No box; true is Yes. `parent` of the box is the active window.
  virtual bool Confirm(const QString& title, const QString& text) = 0;
  /// A box with OK alone.
  virtual void Tell(const QString& title, const QString& text) = 0;
  /// A file to open; empty when cancelled. `filter` in Qt's form "Club files (*.mdb *.accdb)".
  virtual QString OpenFile(const QString& title, const QString& folder, const QString& filter) = 0;
  /// A file to write; empty when cancelled.
  virtual QString SaveFile(const QString& title, const QString& proposal,
                           const QString& filter) = 0;
  /// Which of a club file's backups is to take its place: its number in the list, from 0; -1 when
  /// cancelled.
  virtual int ChooseBackup(const QString& file, const QList<ClubBackup>& backups) = 0;
  virtual void Beep() = 0;
  /// The hourglass, on and off; not counted.
  virtual void SetBusy(bool busy) = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDateTime Now() const = 0;
  QDate Today() const { return Now().date(); }
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual QString Text() const = 0;
  virtual void SetText(const QString& text) = 0;
};

/// The platform's open-document operation: help file, web address.
class Browser {
 public:
  virtual ~Browser() = default;
  virtual bool Open(const QUrl& address) = 0;
};

}  // namespace tavrelin
