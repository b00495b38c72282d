#include "print/SystemPrinter.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>

#include "basic/Error.h"
#include "print/frmReport.h"
#include "print/PdfFile.h"
#include "shell/Operator.h"

namespace tavrelin {

namespace {

constexpr double TwipsPerInch = 1440;

[[noreturn]] void Refuse(const QString& reason) {
  throw Error(errors::Printer, reason);
}

QPageLayout LetterPage(Orientation orientation) {
  return QPageLayout(
      QPageSize(QPageSize::Letter),
      orientation == Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
      QMarginsF());
}

// Qt hands the finished job to CUPS and does not look at the answer. CUPS keeps it for the thread,
// so ask there; systems without CUPS have no such question.
QString RefusalOfTheQueue() {
  QLibrary cups(QStringLiteral("cups"), 2);
  using LastError = int (*)();
  using LastErrorString = const char* (*)();
  const auto number = reinterpret_cast<LastError>(cups.resolve("cupsLastError"));
  const auto text = reinterpret_cast<LastErrorString>(cups.resolve("cupsLastErrorString"));
  constexpr int FirstFailure = 0x400;  // the statuses of IPP below are successes
  if (!number || !text || number() < FirstFailure) return {};
  return QString::fromUtf8(text());
}

void DrawPages(QPrinter& printer, const Document& document) {
  QPainter painter;
  for (const Page& page : document.pages) {
    printer.setFullPage(true);
    printer.setPageLayout(LetterPage(page.orientation));
    const bool ready = painter.isActive() ? printer.newPage() : painter.begin(&printer);
    if (!ready) Refuse(QStringLiteral("The printer %1 does not answer").arg(printer.printerName()));
    painter.resetTransform();
    painter.scale(printer.resolution() / TwipsPerInch, printer.resolution() / TwipsPerInch);
    PaintPage(painter, page);
  }
  const bool ended = painter.end();
  const bool failed =
      printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
  const QString refusal = RefusalOfTheQueue();
  if (!ended || failed || !refusal.isEmpty()) {
    Refuse(QStringLiteral("The printer %1 did not take the document. %2")
               .arg(printer.printerName(), refusal)
               .trimmed());
  }
}

void SendToPrinter(const QPrinterInfo& device, const Document& document, int copies) {
  QPrinter printer(device, QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::NativeFormat);
  printer.setDocName(document.title);
  printer.setCreator(QStringLiteral("Tavrelin"));
  for (int copy = 0; copy < copies; ++copy) DrawPages(printer, document);
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

bool SystemPrinter::Print(const QString& title, const Report& report, int copies) {
  const QPrinterInfo device = QPrinterInfo::defaultPrinter();
  if (device.isNull()) {
    return SaveAsPdf(Words("No printer is set up: save as PDF"), title, report);
  }
  SendToPrinter(device, Record(OutputTarget::Kind::Printer, title, report), copies);
  return true;
}

bool SystemPrinter::SaveAsPdf(const QString& question, const QString& title, const Report& report) {
  const Document document = Record(OutputTarget::Kind::Printer, title, report);
  QString path = person_.SaveFile(question, FileName(title), Words("PDF files (*.pdf)"));
  if (path.isEmpty()) return false;
  if (!path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) path += QLatin1String(".pdf");
  WritePdf(document, path);
  return true;
}

void SystemPrinter::Preview(const QString& title, const Report& report) {
  person_.SetBusy(true);
  auto idle = qScopeGuard([this] { person_.SetBusy(false); });
  if (!preview_) preview_ = std::make_unique<frmReport>(store_);
  const Document document = Record(OutputTarget::Kind::Preview, title, report);
  preview_->SetDocument(document,
                        {[&] {
                           return Print(title, report) ? Words("Document has been sent to printer")
                                                       : QString();
                         },
                         [&] {
                           const bool saved = SaveAsPdf(Words("Save as PDF"), title, report);
                           return saved ? Words("File has been created") : QString();
                         }});
  idle.dismiss();
  person_.SetBusy(false);
  preview_->exec();
}

}  // namespace tavrelin
