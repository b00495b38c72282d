#pragma once

#include <memory>

#include "print/Printer.h"

class QWidget;

namespace tavrelin {

class frmReport;
class Operator;
class Store;

/// The printer of the window: the system's default printer, or its only one, through Qt's print
/// support, without a dialog; without one, a PDF file the operator names. Previews go to its one
/// frmReport.
class SystemPrinter : public Printer {
 public:
  /// Operator and store must outlive it.
  SystemPrinter(Operator& person, Store& store);
  ~SystemPrinter() override;

  Printed Print(const QString& title, const Report& report, int copies = 1) override;
  void Preview(const QString& title, const Report& report) override;

  /// Asks for a file and writes the report into it.
  Printed SaveAsPdf(const QString& question, const QString& title, const Report& report);

 private:
  Operator& person_;
  Store& store_;
  std::unique_ptr<frmReport> preview_;
};

}  // namespace tavrelin
