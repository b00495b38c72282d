#include "print/SystemPrinter.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QStorageInfo>
#include <QWindow>

#include "basic/Error.h"
#include "print/frmReport.h"
#include "print/PdfFile.h"
#include "print/PrintSystem.h"
#include "shell/Operator.h"

namespace tavrelin {

namespace {

constexpr double TwipsPerInch = 1440;

[[noreturn]] void Refuse(const QString& reason) {
  throw Error(errors::Printer, reason);
}

// One printer needs no choice: it is the default one even where nobody said so.
QPrinterInfo UsualPrinter() {
  const QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
  const QStringList names = QPrinterInfo::availablePrinterNames();
  return chosen.isNull() && names.size() == 1 ? QPrinterInfo::printerInfo(names.first()) : chosen;
}

// What is sent to a stopped printer comes out days later, or never.
void RefuseStopped(const QPrinterInfo& device) {
  if (device.state() != QPrinter::Error) return;
  Refuse(QStringLiteral("The printer %1 is stopped. Nothing was printed. Look after it, start it "
                        "again in the computer's printer settings, and print once more.")
             .arg(device.printerName()));
}

// Qt writes a job into a temporary file first and does not notice when that is cut short.
void RefuseWithoutRoom(const Document& document, int copies) {
  const QStorageInfo disk(QDir::tempPath());
  const qint64 needed = qint64{2} * copies * PdfBytes(document).size();
  if (!disk.isValid() || disk.bytesAvailable() > needed) return;
  Refuse(QStringLiteral("There is no room in %1 to prepare the document. Nothing was printed.")
             .arg(QDir::toNativeSeparators(QDir::tempPath())));
}

void DrawPage(QPainter& painter, QPrinter& printer, const Page& page) {
  printer.setFullPage(true);
  printer.setPageLayout(LetterPage(page.orientation));
  const bool ready = painter.isActive() ? printer.newPage() : painter.begin(&printer);
  if (!ready) Refuse(QStringLiteral("The printer %1 does not answer").arg(printer.printerName()));
  painter.resetTransform();
  painter.scale(printer.resolution() / TwipsPerInch, printer.resolution() / TwipsPerInch);
  PaintPage(painter, page);
}

void FinishJob(QPainter& painter, const QPrinter& printer, const QString& name) {
  const bool ended = painter.end();
  const bool failed =
      printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
  const QString refusal = RefusalOfLastJob();
  if (ended && !failed && refusal.isEmpty()) return;
  Refuse(
      QStringLiteral("The printer %1 did not take the document. %2").arg(name, refusal).trimmed());
}

// All copies are one job, so that the printer takes all of them or none.
void SendToPrinter(const QPrinterInfo& device, const Document& document, int copies) {
  QPrinter printer(device, QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::NativeFormat);
  printer.setDocName(document.title);
  printer.setCreator(QStringLiteral("Tavrelin"));
  QPainter painter;
  for (int copy = 0; copy < copies; ++copy) {
    for (const Page& page : document.pages) DrawPage(painter, printer, page);
  }
  FinishJob(painter, printer, device.printerName());
}

// A modal window that belongs to none may open behind the program's own.
void PutAbove(QWidget& dialog, const QWidget* window) {
  dialog.winId();
  if (window && window != &dialog) {
    dialog.windowHandle()->setTransientParent(window->window()->windowHandle());
  }
}

QString FileName(const QString& title) {
  static const QRegularExpression Forbidden(QStringLiteral("[\\\\/:*?\"<>|]+"));
  return QString(title).replace(Forbidden, QStringLiteral(" ")).simplified() +
         QStringLiteral(".pdf");
}

QString Words(const char* text) {
  return QCoreApplication::translate("SystemPrinter", text);
}

}  // namespace

SystemPrinter::SystemPrinter(Operator& person, Store& store) : person_(person), store_(store) {}

SystemPrinter::~SystemPrinter() = default;

Printed SystemPrinter::Print(const QString& title, const Report& report, int copies) {
  person_.SetBusy(true);
  const auto idle = qScopeGuard([this] { person_.SetBusy(false); });
  RefuseDeafPrintSystem();
  const QPrinterInfo device = UsualPrinter();
  if (device.isNull()) {
    const bool none = QPrinterInfo::availablePrinterNames().isEmpty();
    return SaveAsPdf(none ? Words("No printer is set up: save as PDF")
                          : Words("No printer is the default one: save as PDF"),
                     title, report);
  }
  const Document document = Record(OutputTarget::Kind::Printer, title, report);
  RefuseDeafPrintSystem();
  RefuseStopped(device);
  RefuseWithoutRoom(document, copies);
  SendToPrinter(device, document, copies);
  return Printed::OnPaper;
}

Printed SystemPrinter::SaveAsPdf(const QString& question, const QString& title,
                                 const Report& report) {
  const Document document = Record(OutputTarget::Kind::Printer, title, report);
  person_.SetBusy(false);
  QString path = person_.SaveFile(question, FileName(title), Words("PDF files (*.pdf)"));
  if (path.isEmpty()) return Printed::Nowhere;
  if (!path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) path += QLatin1String(".pdf");
  WritePdf(document, path);
  return Printed::InFile;
}

void SystemPrinter::Preview(const QString& title, const Report& report) {
  person_.SetBusy(true);
  auto idle = qScopeGuard([this] { person_.SetBusy(false); });
  if (!preview_) preview_ = std::make_unique<frmReport>(store_);
  const Document document = Record(OutputTarget::Kind::Preview, title, report);
  preview_->SetDocument(
      document, {[&] { return PrintedText(Print(title, report)); },
                 [&] { return PrintedText(SaveAsPdf(Words("Save as PDF"), title, report)); }});
  idle.dismiss();
  person_.SetBusy(false);
  PutAbove(*preview_, QApplication::activeWindow());
  preview_->exec();
}

}  // namespace tavrelin
