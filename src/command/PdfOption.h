#pragma once

#include <QString>

class QTextStream;

namespace tavrelin {

struct Document;

/// Writes a command's document to the file that its option --pdf names, or, for "-", to the
/// command's own output. Throws Error when it cannot be written.
void SavePdf(const Document& document, const QString& file, QTextStream& out);

}  // namespace tavrelin
