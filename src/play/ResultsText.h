#pragma once

#include <QString>

#include "basic/Refusal.h"

namespace tavrelin {

struct ClassResults;
struct ResultsChoice;

/// The results of a class as fixed-width text, lines ending in "\n". The box scores of a singles
/// class go through a table of 24 entrants with 24 games each: throws Error(Subscript) when the
/// class has more. Doubles knows no such limit.
QString ExportTheClass(const ClassResults& results, const ResultsChoice& choice);

/// Writes the text to the file `file` in the folder `path`, both as the boxes hold them, over what
/// stands there. Refused with "Unable to open file. " and the reason when that fails, and a hint
/// when the name holds a "/"; nothing is written then.
Refusal WriteResults(const QString& path, const QString& file, const QString& text);

/// A singles class's export folder with the "\" it needs at its end; doubles leaves it as typed.
QString ResultsFolder(const QString& path, bool doubles);

/// The name proposed for a text file about this: blanks removed, ".txt" at its end.
QString ResultsFile(const QString& about);

}  // namespace tavrelin
