#include "basic/Value.h"

#include <cmath>

#include "basic/Conversions.h"
#include "basic/Dates.h"
#include "basic/Decimal.h"

namespace tavrelin {

namespace {

QString NumberText(double number) {
  if (!std::isfinite(number)) return QString::number(number);
  const Decimal decimal(number);
  const QByteArray sign = decimal.IsNegative() ? "-" : "";
  const int exponent = decimal.Exponent();
  if (number != 0 && (exponent >= 15 || exponent < -15)) {
    const QByteArray digits = decimal.Digits();
    const QByteArray rest = digits.size() > 1 ? "." + digits.mid(1) : QByteArray();
    return QString::fromLatin1(sign + digits.left(1) + rest + (exponent < 0 ? "E-" : "E+") +
                               QByteArray::number(std::abs(exponent)));
  }
  const QByteArray whole = decimal.Whole();
  const QByteArray fraction = decimal.Fraction();
  return QString::fromLatin1(sign + (whole.isEmpty() ? QByteArray("0") : whole) +
                             (fraction.isEmpty() ? QByteArray() : "." + fraction));
}

QString DateText(const QDateTime& date) {
  if (!date.isValid()) return {};
  const QTime time = date.time();
  const QString clock = QStringLiteral("%1:%2 %3")
                            .arg((time.hour() + 11) % 12 + 1)
                            .arg(time.toString(u"mm:ss"))
                            .arg(time.hour() < 12 ? u"AM" : u"PM");
  if (date.date() == ZeroDay()) return clock;
  const QString day = date.date().toString(u"M/d/yyyy");
  return time == QTime(0, 0) ? day : day + u' ' + clock;
}

template <typename Number>
int Order(Number a, Number b) {
  return a < b ? -1 : (b < a ? 1 : 0);
}

}  // namespace

QString Value::ToText() const {
  switch (kind()) {
    case Kind::Null:
      return {};
    case Kind::YesNo:
      return std::get<bool>(data_) ? QStringLiteral("True") : QStringLiteral("False");
    case Kind::Whole:
      return QString::number(std::get<qint64>(data_));
    case Kind::Floating:
      return NumberText(std::get<double>(data_));
    case Kind::Text:
      return std::get<QString>(data_);
    case Kind::Date:
      return DateText(std::get<QDateTime>(data_));
  }
  return {};
}

double Value::ToNumber() const {
  switch (kind()) {
    case Kind::Null:
      return 0;
    case Kind::YesNo:
      return std::get<bool>(data_) ? -1 : 0;
    case Kind::Whole:
      return static_cast<double>(std::get<qint64>(data_));
    case Kind::Floating:
      return std::get<double>(data_);
    case Kind::Text:
      return Val(std::get<QString>(data_));
    case Kind::Date:
      return SerialDay(std::get<QDateTime>(data_));
  }
  return 0;
}

qint64 Value::ToWhole() const {
  if (kind() == Kind::Whole) return std::get<qint64>(data_);
  // The ends of 64 bits themselves, where a double would step over them.
  const double number = RoundHalfEven(ToNumber());
  if (number >= 0x1p63) return std::numeric_limits<qint64>::max();
  if (number < -0x1p63) return std::numeric_limits<qint64>::min();
  return std::isnan(number) ? 0 : static_cast<qint64>(number);
}

bool Value::ToYesNo() const {
  if (kind() != Kind::Text) return ToNumber() != 0;
  const QString text = Trimmed();
  return text.compare(u"True", Qt::CaseInsensitive) == 0 ||
         text.compare(u"Yes", Qt::CaseInsensitive) == 0 || (IsNumeric(*this) && Val(text) != 0);
}

QDateTime Value::ToDate() const {
  if (kind() == Kind::Date) return std::get<QDateTime>(data_);
  if (kind() == Kind::Text) return ReadDate(std::get<QString>(data_)).value_or(QDateTime());
  return {};
}

int Value::Compare(const Value& a, const Value& b) {
  if (a.IsNull() || b.IsNull()) return Order(!a.IsNull(), !b.IsNull());
  if (a.kind() == Kind::Text && b.kind() == Kind::Text) {
    return CompareText(std::get<QString>(a.data_), std::get<QString>(b.data_));
  }
  if (a.kind() == Kind::Whole && b.kind() == Kind::Whole) {
    return Order(std::get<qint64>(a.data_), std::get<qint64>(b.data_));
  }
  if (a.IsNumber() && b.IsNumber()) return Order(a.ToNumber(), b.ToNumber());
  if (a.kind() == Kind::Date && b.kind() == Kind::Date) {
    return Order(std::get<QDateTime>(a.data_), std::get<QDateTime>(b.data_));
  }
  return CompareText(a.ToText(), b.ToText());
}

}  // namespace tavrelin
