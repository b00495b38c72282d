#include "print/PdfFile.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "basic/Error.h"
#include "basic/WholeFile.h"
#include "print/Document.h"

namespace tavrelin {

namespace {

constexpr int TwipsPerInch = 1440;

}  // namespace

QByteArray PdfBytes(const Document& document) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(TwipsPerInch);
  writer.setTitle(document.title);
  writer.setCreator(QStringLiteral("Tavrelin"));
  QPainter painter;
  for (const Page& page : document.pages) {
    writer.setPageLayout(LetterPage(page.orientation));
    if (painter.isActive()) {
      writer.newPage();
    } else {
      painter.begin(&writer);
    }
    PaintPage(painter, page);
  }
  painter.end();
  return buffer.data();
}

void WritePdf(const Document& document, const QString& path) {
  const QByteArray bytes = PdfBytes(document);
  try {
    WriteWholeFile(path, bytes);
  } catch (const Error& error) {
    throw Error(errors::File, QStringLiteral("Unable to open file. ") + error.description());
  }
}

}  // namespace tavrelin
