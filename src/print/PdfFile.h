#pragma once

#include <QByteArray>
#include <QString>

namespace tavrelin {

struct Document;

/// The document as a PDF of Letter pages, fonts embedded, text selectable.
QByteArray PdfBytes(const Document& document);

/// Writes the PDF whole to `path`, a path of the platform (see WriteWholeFile). Throws Error(File):
/// "Unable to open file. " and the system's reason.
void WritePdf(const Document& document, const QString& path);

}  // namespace tavrelin
