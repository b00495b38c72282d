#pragma once

#include <QString>

#include "print/OutputTarget.h"

namespace tavrelin {

/// What became of a report that was to be printed.
enum class Printed { Nowhere, OnPaper, InFile };

/// The news of it for the operator; empty when it went nowhere.
QString PrintedText(Printed printed);

/// Where a screen's Print and Preview buttons go. The window fills it with the system's default
/// printer and frmReport (SystemPrinter), tests with a FakePrinter.
class Printer {
 public:
  virtual ~Printer() = default;

  /// Runs the report with the printer as target and sends its document, `copies` times, to the
  /// default printer; without one the operator is asked for a PDF file to save it in, and it goes
  /// nowhere when the operator would not. Throws Error when the printer or the file fails: nothing
  /// is printed then, or the whole of it is in the queue. `title` names the job and proposes the
  /// file's name.
  virtual Printed Print(const QString& title, const Report& report, int copies = 1) = 0;

  /// Runs the report with the preview as target and shows its pages; returns when the operator
  /// closes them. The report is run again when the operator prints or saves from there.
  virtual void Preview(const QString& title, const Report& report) = 0;
};

}  // namespace tavrelin
