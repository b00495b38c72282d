#pragma once

#include <QFont>

namespace tavrelin {

/// Makes the two typefaces of the program's paper and grids available where the system lacks them:
/// Arial falls to its metric twin Liberation Sans, Tahoma to the free Tahoma beside fontconfig's
/// folders. Safe to call again.
void LoadFonts();

/// A font of the paper: family as the reports name it ("Arial", "Tahoma"), size in points. Text is
/// laid out unhinted, so that it measures the same at every resolution.
QFont PaperFont(const QString& family, double points);

}  // namespace tavrelin
