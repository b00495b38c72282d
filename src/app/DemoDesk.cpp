#include "app/DemoDesk.h"

#include <cstdio>
#include <QCoreApplication>
#include <QWidget>

#include "print/frmReport.h"
#include "print/PdfFile.h"

namespace tavrelin {

void DemoFolder::KeepPicture(QWidget& window, const QString& name) {
  QCoreApplication::processEvents();
  const QString file = PathOf(name + ".png");
  const bool saved = window.grab().save(file);
  saved_ = saved_ && saved;
  std::printf("%s %s\n", saved ? "picture" : "cannot write", qPrintable(file));
}

void DemoFolder::KeepPaper(const Document& document, const QString& name) {
  const QString file = PathOf(name + ".pdf");
  WritePdf(document, file);
  std::printf("paper %s\n", qPrintable(file));
}

bool DemoOperator::Confirm(const QString& title, const QString& text) {
  std::printf("%s: %s Yes\n", qPrintable(title), qPrintable(text));
  return true;
}

void DemoOperator::Tell(const QString& title, const QString& text) {
  std::printf("%s: %s\n", qPrintable(title), qPrintable(text));
}

Printed DemoPrinter::Print(const QString& title, const Report& report, int) {
  folder_.KeepPaper(Record(OutputTarget::Kind::Printer, title, report), name_);
  return Printed::OnPaper;
}

void DemoPrinter::Preview(const QString& title, const Report& report) {
  frmReport preview(store_);
  preview.SetDocument(Record(OutputTarget::Kind::Preview, title, report), {});
  preview.show();
  preview.resize(1000, 700);
  folder_.KeepPicture(preview, name_);
}

}  // namespace tavrelin
