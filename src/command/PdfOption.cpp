#include "command/PdfOption.h"

#include <QIODevice>
#include <QTextStream>

#include "basic/Error.h"
#include "print/PdfFile.h"

namespace tavrelin {

void SavePdf(const Document& document, const QString& file, QTextStream& out) {
  if (file != u"-") return WritePdf(document, file);
  out.flush();
  QIODevice* device = out.device();
  const QByteArray bytes = PdfBytes(document);
  if (device == nullptr || device->write(bytes) != bytes.size()) {
    throw Error(errors::File, QStringLiteral("The PDF could not be written to the output"));
  }
}

}  // namespace tavrelin
