#pragma once

#include <QDir>

#include "print/Printer.h"
#include "shell/Operator.h"

class QWidget;

namespace tavrelin {

class Store;

/// Where the demonstration leaves what it made; each file is told on standard output.
class DemoFolder {
 public:
  explicit DemoFolder(QDir folder) : folder_(std::move(folder)) {}

  QString PathOf(const QString& name) const { return folder_.filePath(name); }
  /// A picture of a window, as NAME.png.
  void KeepPicture(QWidget& window, const QString& name);
  /// A document, as NAME.pdf. Throws Error when it cannot be written.
  void KeepPaper(const Document& document, const QString& name);
  bool AllSaved() const { return saved_; }

 private:
  QDir folder_;
  bool saved_ = true;
};

/// Says Yes to every question, aloud, and opens no dialog.
class DemoOperator : public Operator {
 public:
  bool Confirm(const QString& title, const QString& text) override;
  void Tell(const QString& title, const QString& text) override;
  QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
  QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
  int ChooseBackup(const QString&, const QList<ClubBackup>&) override { return -1; }
  void Beep() override {}
  void SetBusy(bool) override {}
};

/// A printer whose paper is a PDF in the folder; its preview is a picture there.
class DemoPrinter : public Printer {
 public:
  /// Both must outlive it.
  DemoPrinter(DemoFolder& folder, Store& store) : folder_(folder), store_(store) {}

  /// Names what comes next.
  void Expect(const QString& name) { name_ = name; }
  Printed Print(const QString& title, const Report& report, int copies) override;
  void Preview(const QString& title, const Report& report) override;

 private:
  DemoFolder& folder_;
  Store& store_;
  QString name_;
};

}  // namespace tavrelin
