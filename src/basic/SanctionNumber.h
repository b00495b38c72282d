#pragma once

#include <QString>

namespace tavrelin {

// A sanction number is seven letters and digits, stored in capitals without hyphens and written
// "@@-@@-@@@". It names a tournament or a league.

/// A typed key as it goes into a sanction cell: a lower-case letter turns upper-case, every other
/// character stays.
QChar SanctionKey(QChar typed);

/// What is left of a typed number when its cell is left: digits, letters (in capitals) and blanks,
/// in their order. "12-34-abc" gives "1234ABC". Its length is for the row's check to judge.
QString CleanSanction(const QString& typed);

/// The text by which a combo offers a tournament or league: the number, and when there is a name,
/// three blanks and the trimmed name.
QString SanctionComboText(const QString& sanctionID, const QString& name);

/// The number back out of such a text: characters 1-2, 4-5 and 7-9. Of a text that does not begin
/// with a written number, what stands in front of the three blanks. Empty for an empty choice.
QString SanctionOfComboText(const QString& text);

}  // namespace tavrelin
