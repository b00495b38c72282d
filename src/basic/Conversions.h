#pragma once

#include <optional>

#include "basic/Value.h"

namespace tavrelin {

// Basic's functions under their own names. US form always ('.' decimal, ',' thousands, month
// first), whatever the locale of the machine. Each C... function throws Error(TypeMismatch) on what
// it cannot read and Error(Overflow) on what does not fit.

/// True for numbers, dates excluded, and for texts that read as one ("12", " -1.5 ", "1,234", "$5",
/// "1e3", "(5)", "5-"). Empty text, blanks and null are not numeric.
bool IsNumeric(const Value& value);

/// True when CInt can read the value: a number, or the text of one, that fits 16 bits.
bool IsInt(const Value& value);

/// True for dates and for texts that read as one: "m/d/yyyy", "m/d/yy" (00-29 is 20xx), "m-d-yyyy",
/// "yyyy-mm-dd", "d-MMM-yyyy", "MMM d, yyyy", "h:mm", "h:mm:ss", "h:mm AM", "h AM", or date and
/// time joined by a blank. A first number above 12 is the day: "13/1/2024" is January 13. Numbers
/// are no dates here, though CDate reads them as serial days.
bool IsDate(const Value& value);

/// The leading number of a text, blanks skipped; 0 when there is none. Never fails. "12abc" is 12.
double Val(QStringView text);

qint16 CInt(const Value& value);  ///< 16 bit, halves to even, overflows
qint32 CLng(const Value& value);  ///< 32 bit, halves to even, overflows
float CSng(const Value& value);
double CDbl(const Value& value);
QString CStr(const Value& value);  ///< null is refused
QDateTime CDate(const Value& value);

/// Nearest whole number, halves to the even one: the rounding of handicaps and court counts.
double RoundHalfEven(double number);

/// The US reading of a date text, or nothing. A time alone falls on the zero day 1899-12-30.
std::optional<QDateTime> ReadDate(QStringView text);

/// "yyyy-mm-dd hh:mm:ss", the form in which the file stores a date.
QString StoredDate(const QDateTime& date);

/// Each ' doubled, for texts that go into an SQL literal.
QString EscapeQuotes(const QString& text);

}  // namespace tavrelin
