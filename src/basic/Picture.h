#pragma once

#include "basic/Value.h"

namespace tavrelin {

/// A value through a picture (a format string), as every grid, sheet and text file shows it.
///
/// Numbers: `0` and `#` digits, `.`, `,` for thousands, literals around them ("#0.00", "##0",
/// "00-00-000", "(000)000-0000", "#0.00-"). A picture rounds halves away from zero, on the decimal
/// number that a person sees (see Decimal). It does not pad with blanks: `###0` of 7 is "7". The
/// sign of a negative number stands first; zero has none.
///
/// Texts: `@` a character or a blank, `&` a character or nothing, filled from the right unless the
/// picture begins with `!` ("@@-@@-@@@", "!@@@@", "(@@@)@@@-@@@@"). A text that is longer than its
/// picture is shown whole. Empty text gives blanks through "!@@@@", which holds a column, and
/// nothing through a picture with literals that can be seen.
///
/// Dates, in any case of their letters, in English: d dd ddd dddd m mm mmm mmmm yy yyyy h hh n nn s
/// ss AMPM AM/PM; `m` behind `h` is minutes.
///
/// Null gives "". A text that is not numeric goes through a number picture unchanged; what is no
/// date goes through a date picture unchanged. An empty picture, or "General Number", gives the
/// value's plain text.
QString Format(const Value& value, const QString& picture);

/// The seven characters of a sanction number as people write them: "@@-@@-@@@". A text of another
/// length stays as it is.
QString FormatSanction(const QString& sanctionID);

}  // namespace tavrelin
