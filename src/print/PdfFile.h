#pragma once

#include <QByteArray>
#include <QString>

namespace tavrelin {

struct Document;

/// The document as a PDF of Letter pages, fonts embedded, text selectable.
QByteArray PdfBytes(const Document& document);

/// Writes the PDF whole to a temporary neighbor and renames it over `path`, a path of the
/// platform. Throws Error(File) with the system's reason; what stood at `path` stays then, and no
/// half file is left.
void WritePdf(const Document& document, const QString& path);

}  // namespace tavrelin
