#pragma once

#include "basic/Value.h"

namespace tavrelin {

/// A value through a picture (a format string), as every grid, sheet and text file shows it.
///
/// Numbers: `0` and `#` digits, `.` and `,`, literals around them ("#0.00", "##0", "00-00-000",
/// "#0.00-"). A picture rounds halves away from zero. It does not pad with blanks: `###0` of 7 is
/// "7". Texts: `@` a character or a blank, `&` a character or nothing, filled from the right unless
/// the picture begins with `!` ("@@-@@-@@@", "!@@@@", "(@@@)@@@-@@@@"). Dates: d dd ddd dddd m mm
/// mmm mmmm MMM yy yyyy h hh n nn s ss AMPM AM/PM; `m` behind `h` is minutes. Null gives "". A text
/// that is not numeric goes through a number picture unchanged; a text that is no date goes through
/// a date picture unchanged. An empty picture gives the value's plain text.
QString Format(const Value& value, const QString& picture);

/// The seven characters of a sanction number as people write them: "@@-@@-@@@". Shorter texts stay
/// readable.
QString FormatSanction(const QString& sanctionID);

}  // namespace tavrelin
