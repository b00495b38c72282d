#pragma once

#include <QDateTime>

namespace tavrelin {

/// The day from which Basic counts: serial day 0, on which a time without a date falls.
QDate ZeroDay();

/// Days since the zero day, the time as the day's fraction; 0 for an invalid date.
double SerialDay(const QDateTime& date);

/// The date of a serial day number, to the second; invalid outside the years 100 to 9999.
QDateTime FromSerialDay(double serial);

/// English, "January" to "December" for 1 to 12, whatever the machine's language.
QString MonthName(int month);

/// English, "Monday" to "Sunday" for 1 to 7.
QString DayName(int dayOfWeek);

}  // namespace tavrelin
