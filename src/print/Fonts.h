#pragma once

#include <QFont>

#include "print/PageFont.h"

namespace tavrelin {

/// Makes the two typefaces of the program's paper and grids available where the system lacks them:
/// Arial falls to its metric twin Liberation Sans, Tahoma to the free Tahoma beside fontconfig's
/// folders. Needs a QGuiApplication; safe to call again.
void LoadFonts();

/// The font as it is drawn on a surface of one unit a twip. Text is laid out unhinted and without
/// regard to any device, so that it measures the same on paper, in a file and on every screen.
QFont TwipFont(const PageFont& font);

/// Ascent plus descent in twips: the distance by which a printed line moves down. The font's
/// leading is left out, so that 10 point lines stand 223 twips apart.
int LineHeight(const PageFont& font);

/// From the top of a line to its baseline, in twips.
int Ascent(const PageFont& font);

/// The width of a text in twips.
int TextWidth(const PageFont& font, const QString& text);

}  // namespace tavrelin
