#include "print/PdfFile.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "basic/Error.h"
#include "print/Document.h"

namespace tavrelin {

namespace {

constexpr int TwipsPerInch = 1440;

QPageLayout LetterPage(Orientation orientation) {
  return QPageLayout(
      QPageSize(QPageSize::Letter),
      orientation == Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
      QMarginsF());
}

[[noreturn]] void Refuse(const QString& path, const QString& reason) {
  throw Error(errors::File, QStringLiteral("The PDF file %1 could not be written: %2")
                                .arg(QDir::toNativeSeparators(path), reason));
}

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
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) Refuse(path, file.errorString());
  // A disk that fills up is told by flush alone: commit would rename the piece that fitted.
  if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit()) {
    const QString reason = file.errorString();
    file.cancelWriting();
    Refuse(path, reason);
  }
}

}  // namespace tavrelin
