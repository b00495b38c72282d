#include "basic/Dates.h"

#include <cmath>
#include <QLocale>
#include <QRegularExpression>

#include "basic/Conversions.h"

namespace tavrelin {

namespace {

constexpr int SecondsPerDay = 86400;

QRegularExpression Pattern(const char* text) {
  return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(text)),
                            QRegularExpression::CaseInsensitiveOption);
}

// "jan", "sept", "January": three letters or more of the name.
int MonthNumber(QStringView name) {
  for (int month = 1; month <= 12; ++month) {
    if (MonthName(month).startsWith(name, Qt::CaseInsensitive)) return month;
  }
  return 0;
}

// Two digits fall in 1930 to 2029.
int FullYear(QStringView digits) {
  const int year = digits.toInt();
  if (digits.size() > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

QDate Day(int year, int month, int day) {
  return year >= 100 ? QDate(year, month, day) : QDate();
}

// Month first; a first number that can be no month is the day.
QDate MonthFirst(int first, int second, int year) {
  return first > 12 ? Day(year, second, first) : Day(year, first, second);
}

QDate ReadDay(const QString& text) {
  static const auto numbers = Pattern(R"((\d{1,2})([/-])(\d{1,2})\2(\d{4}|\d{1,2}))");
  static const auto yearFirst = Pattern(R"((\d{4})([/-])(\d{1,2})\2(\d{1,2}))");
  static const auto dayName = Pattern(R"((\d{1,2})[ -]([a-z]{3,9})[ -](\d{4}|\d{1,2}))");
  static const auto nameDay = Pattern(R"(([a-z]{3,9}) +(\d{1,2}) *[, ] *(\d{4}|\d{1,2}))");
  if (const auto m = numbers.match(text); m.hasMatch()) {
    return MonthFirst(m.captured(1).toInt(), m.captured(3).toInt(), FullYear(m.capturedView(4)));
  }
  if (const auto m = yearFirst.match(text); m.hasMatch()) {
    return Day(m.captured(1).toInt(), m.captured(3).toInt(), m.captured(4).toInt());
  }
  if (const auto m = dayName.match(text); m.hasMatch()) {
    return Day(FullYear(m.capturedView(3)), MonthNumber(m.capturedView(2)), m.captured(1).toInt());
  }
  if (const auto m = nameDay.match(text); m.hasMatch()) {
    return Day(FullYear(m.capturedView(3)), MonthNumber(m.capturedView(1)), m.captured(2).toInt());
  }
  return {};
}

QTime Clock(int hour, int minute, int second, const QString& half) {
  if (half.isEmpty()) return QTime(hour, minute, second);
  if (hour < 1 || hour > 12) return {};
  const int afternoon = half.startsWith(u'p', Qt::CaseInsensitive) ? 12 : 0;
  return QTime(hour % 12 + afternoon, minute, second);
}

// The number of `size` digits at `at`, or -1.
int DigitsAt(QStringView text, qsizetype at, qsizetype size) {
  int number = 0;
  for (const QChar c : text.sliced(at, size)) {
    if (c < u'0' || c > u'9') return -1;
    number = number * 10 + (c.unicode() - u'0');
  }
  return number;
}

// The form in which the file stores dates, read without patterns: a club has thousands of them.
QDateTime ReadStored(QStringView text) {
  const bool isStored = text.size() == 19 && text.at(4) == u'-' && text.at(7) == u'-' &&
                        text.at(10) == u' ' && text.at(13) == u':' && text.at(16) == u':';
  if (!isStored) return {};
  const QDate day = Day(DigitsAt(text, 0, 4), DigitsAt(text, 5, 2), DigitsAt(text, 8, 2));
  const QTime time(DigitsAt(text, 11, 2), DigitsAt(text, 14, 2), DigitsAt(text, 17, 2));
  return day.isValid() && time.isValid() ? QDateTime(day, time) : QDateTime();
}

}  // namespace

QDate ZeroDay() {
  return QDate(1899, 12, 30);
}

double SerialDay(const QDateTime& date) {
  if (!date.isValid()) return 0;
  const double days = static_cast<double>(ZeroDay().daysTo(date.date()));
  const double part = date.time().msecsSinceStartOfDay() / (SecondsPerDay * 1000.0);
  return days < 0 ? days - part : days + part;  // a time counts away from zero: -1.25 is 6:00 AM
}

QDateTime FromSerialDay(double serial) {
  if (!(serial > -657435.0 && serial < 2958466.0)) return {};
  const double days = std::trunc(serial);
  const auto seconds = std::llround(std::abs(serial - days) * SecondsPerDay);
  const QDate day = ZeroDay().addDays(static_cast<qint64>(days) + seconds / SecondsPerDay);
  return QDateTime(day, QTime(0, 0).addSecs(static_cast<int>(seconds % SecondsPerDay)));
}

QString MonthName(int month) {
  return QLocale::c().monthName(month);
}

QString DayName(int dayOfWeek) {
  return QLocale::c().dayName(dayOfWeek);
}

std::optional<QDateTime> ReadDate(QStringView text) {
  static const auto timed = Pattern(
      R"((?:(?<day>.*\S) +)?(?<h>\d{1,2})(?::(?<m>\d{1,2})(?::(?<s>\d{1,2}))? *(?<half>[ap]m)?| *(?<half2>[ap]m)))");
  if (const QDateTime stored = ReadStored(text); stored.isValid()) return stored;
  const QString whole = text.trimmed().toString();
  QDate day = ReadDay(whole);
  QTime time(0, 0);
  if (!day.isValid()) {
    const auto m = timed.match(whole);
    if (!m.hasMatch()) return {};
    const QString dayText = m.captured(u"day");
    day = dayText.isEmpty() ? ZeroDay() : ReadDay(dayText);
    time = Clock(m.captured(u"h").toInt(), m.captured(u"m").toInt(), m.captured(u"s").toInt(),
                 m.captured(u"half") + m.captured(u"half2"));
  }
  const QDateTime date(day, time);
  if (!day.isValid() || !time.isValid() || !date.isValid()) return {};
  return date;
}

QString StoredDate(const QDateTime& date) {
  return date.toString(u"yyyy-MM-dd hh:mm:ss");
}

}  // namespace tavrelin
