#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>

#include "basic/Progress.h"
#include "data/Backup.h"
#include "shell/CSError.h"
#include "shell/Operator.h"
#include "support/QtPrinters.h"

namespace tavrelin {

/// The person at the keyboard, with answers prepared beforehand. A question nobody prepared an
/// answer for fails the test and is answered No.
class FakeOperator : public Operator {
 public:
  struct Box {
    QString title, text;
  };

  /// Answers the next question, whatever it is; questions() tells afterwards what was asked.
  void WillAnswer(bool yes) { answers_.append(yes); }
  /// The file that the next file dialog returns; empty for Cancel.
  void WillChoose(const QString& file) { files_.append(file); }
  /// The backup that the next list of backups returns, from 0; -1 for Cancel.
  void WillChooseBackup(int backup) { backups_.append(backup); }
  /// Prepared answers and files that nobody asked for.
  qsizetype Unused() const { return answers_.size() + files_.size() + backups_.size(); }

  QList<Box> questions;  ///< every Yes/No box, in order
  QList<Box> told;       ///< every box with OK alone, in order
  QStringList dialogs;   ///< every file dialog as "title|folder or proposal|filter"
  int beeps = 0;
  bool busy = false;

  bool Confirm(const QString& title, const QString& text) override {
    questions.append({title, text});
    if (!answers_.isEmpty()) return answers_.takeFirst();
    ADD_FAILURE() << "nobody expected the question " << title.toStdString() << ": "
                  << text.toStdString();
    return false;
  }
  void Tell(const QString& title, const QString& text) override { told.append({title, text}); }
  QString OpenFile(const QString& title, const QString& folder, const QString& filter) override {
    return Choose(title, folder, filter);
  }
  QString SaveFile(const QString& title, const QString& proposal, const QString& filter) override {
    return Choose(title, proposal, filter);
  }
  int ChooseBackup(const QString& file, const QList<ClubBackup>& backups) override {
    dialogs.append(file + QLatin1Char('|') + QString::number(backups.size()));
    if (!backups_.isEmpty()) return backups_.takeFirst();
    ADD_FAILURE() << "nobody expected the list of backups";
    return -1;
  }
  void Beep() override { ++beeps; }
  void SetBusy(bool on) override { busy = on; }

 private:
  QString Choose(const QString& title, const QString& where, const QString& filter) {
    dialogs.append(title + QLatin1Char('|') + where + QLatin1Char('|') + filter);
    if (!files_.isEmpty()) return files_.takeFirst();
    ADD_FAILURE() << "nobody expected the file dialog " << title.toStdString();
    return {};
  }

  QList<bool> answers_;
  QStringList files_;
  QList<int> backups_;
};

/// Stands still at Saturday, June 14 2025, 9:30 until a test sets it.
class FakeClock : public Clock {
 public:
  QDateTime now{QDate(2025, 6, 14), QTime(9, 30)};
  QDateTime Now() const override { return now; }
};

class FakeClipboard : public Clipboard {
 public:
  QString text;
  QString Text() const override { return text; }
  void SetText(const QString& newText) override { text = newText; }
};

class FakeBrowser : public Browser {
 public:
  QList<QUrl> opened;
  bool works = true;  ///< what Open answers
  bool Open(const QUrl& address) override {
    opened.append(address);
    return works;
  }
};

/// Keeps what long work said, and cancels where a test wants it.
class FakeProgress : public Progress {
 public:
  struct Work {
    QString doing;
    int total = 0;
    Cancel cancel = Cancel::Never;
    QList<int> steps;
    bool ended = false;
  };

  QList<Work> works;  ///< in the order in which they began
  int cancelAt = -1;  ///< the count of steps done at which the operator cancels; -1: never

  void Begin(const QString& doing, int total, Cancel cancel) override {
    open_.append(works.size());
    works.append({doing, total, cancel, {}});
  }
  bool Step(int done) override {
    Work& work = works[open_.last()];
    work.steps.append(done);
    return cancelAt < 0 || done < cancelAt || work.cancel == Cancel::Never;
  }
  void End() override { works[open_.takeLast()].ended = true; }

 private:
  QList<qsizetype> open_;
};

/// Takes the place of frmError. An error that no test took fails the test when the recorder ends.
class ErrorRecorder {
 public:
  ~ErrorRecorder() {
    for (const ErrorReport& report : reports_) {
      ADD_FAILURE() << "an error nobody expected: " << report.description.toStdString() << " ("
                    << report.number << ") in " << report.callStack.toStdString();
    }
  }
  CSError::Display Display() {
    return [this](const ErrorReport& report) { reports_.append(report); };
  }
  qsizetype Count() const { return reports_.size(); }
  /// The oldest error shown, which is expected then; an empty one, and a failure, without any.
  ErrorReport Take() {
    if (!reports_.isEmpty()) return reports_.takeFirst();
    ADD_FAILURE() << "no error was shown";
    return {};
  }

 private:
  QList<ErrorReport> reports_;
};

}  // namespace tavrelin
