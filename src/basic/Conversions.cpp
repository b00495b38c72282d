#include "basic/Conversions.h"

#include <cfloat>
#include <charconv>
#include <cmath>
#include <limits>
#include <QRegularExpression>

#include "basic/Dates.h"
#include "basic/Error.h"

namespace tavrelin {

namespace {

// The bare digits of a number as people write it, or nothing. Accounting's (5) and 5- are -5.
std::optional<QByteArray> PlainNumber(const QString& text) {
  static const QRegularExpression form(QRegularExpression::anchoredPattern(QStringLiteral(
      R"((\()?([+-]?)\s*\$?\s*([+-]?)((?:[0-9][0-9,]*(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?)([+-]?)(\))?)")));
  const auto m = form.match(text.trimmed());
  if (!m.hasMatch() || m.captured(1).isEmpty() != m.captured(6).isEmpty()) return {};
  const QString signs = m.captured(1) + m.captured(2) + m.captured(3) + m.captured(5);
  if (signs.size() > 1) return {};
  const QByteArray digits = m.captured(4).remove(u',').toLower().toLatin1();
  return signs.isEmpty() || signs == u"+" ? digits : "-" + digits;
}

[[noreturn]] void Mismatch(const Value& value, const char* kind) {
  const QString shown = value.IsNull() ? QStringLiteral("Nothing") : u'"' + value.ToText() + u'"';
  throw Error(errors::TypeMismatch,
              QStringLiteral("Type mismatch: %1 is not a %2.").arg(shown, QLatin1String(kind)));
}

[[noreturn]] void TooLarge(const Value& value) {
  throw Error(errors::Overflow, QStringLiteral("Overflow: %1 is too large.").arg(value.ToText()));
}

template <typename Whole>
bool Fits(double number) {
  return number >= std::numeric_limits<Whole>::min() && number <= std::numeric_limits<Whole>::max();
}

template <typename Whole>
Whole ToWholeNumber(const Value& value) {
  const double number = RoundHalfEven(CDbl(value));
  if (!Fits<Whole>(number)) TooLarge(value);
  return static_cast<Whole>(number);
}

// The number that bare digits write; infinity when they go beyond a double.
double Read(const QByteArray& digits) {
  double number = 0;  // which it stays when the text is too small for a double
  const auto result = std::from_chars(digits.cbegin(), digits.cend(), number);
  const bool beyond = result.ec == std::errc::result_out_of_range && !digits.contains("e-");
  return beyond ? std::numeric_limits<double>::infinity() : number;
}

bool IsDigit(const QString& text, qsizetype at) {
  return at < text.size() && text.at(at) >= u'0' && text.at(at) <= u'9';
}

qsizetype SkipDigits(const QString& text, qsizetype at) {
  while (IsDigit(text, at)) ++at;
  return at;
}

// Where the exponent at `at` ends; `at` when there is none.
qsizetype SkipExponent(const QString& text, qsizetype at) {
  if (at >= text.size() || text.at(at).toLower() != u'e') return at;
  const qsizetype sign = at + 1;
  const bool isSigned = sign < text.size() && (text.at(sign) == u'+' || text.at(sign) == u'-');
  const qsizetype first = isSigned ? sign + 1 : sign;
  return IsDigit(text, first) ? SkipDigits(text, first) : at;
}

}  // namespace

bool IsNumeric(const Value& value) {
  return value.IsNumber() || (value.kind() == Value::Kind::Text && PlainNumber(value.ToText()));
}

bool IsInt(const Value& value) {
  if (value.IsNumber()) return Fits<qint16>(RoundHalfEven(value.ToNumber()));
  if (value.kind() != Value::Kind::Text) return false;
  const auto digits = PlainNumber(value.ToText());
  return digits && Fits<qint16>(RoundHalfEven(Read(*digits)));
}

bool IsDate(const Value& value) {
  return value.ToDate().isValid();
}

double Val(QStringView text) {
  QString packed = text.toString();
  packed.removeIf([](QChar c) { return c == u' ' || c == u'\t' || c == u'\n'; });
  qsizetype end = packed.startsWith(u'-') || packed.startsWith(u'+') ? 1 : 0;
  const qsizetype first = end;
  end = SkipDigits(packed, end);
  qsizetype digits = end - first;
  if (end < packed.size() && packed.at(end) == u'.') {
    const qsizetype point = end + 1;
    end = SkipDigits(packed, point);
    digits += end - point;
  }
  if (digits == 0) return 0;
  return packed.left(SkipExponent(packed, end)).toLatin1().toDouble();
}

qint16 CInt(const Value& value) {
  return ToWholeNumber<qint16>(value);
}

qint32 CLng(const Value& value) {
  return ToWholeNumber<qint32>(value);
}

float CSng(const Value& value) {
  const double number = CDbl(value);
  if (std::abs(number) > FLT_MAX) TooLarge(value);
  return static_cast<float>(number);
}

double CDbl(const Value& value) {
  if (value.IsNull()) Mismatch(value, "number");
  if (value.kind() != Value::Kind::Text) return value.ToNumber();
  const auto digits = PlainNumber(value.ToText());
  if (!digits) Mismatch(value, "number");
  const double number = Read(*digits);
  if (std::isinf(number)) TooLarge(value);
  return number;
}

QString CStr(const Value& value) {
  if (value.IsNull()) Mismatch(value, "text");
  return value.ToText();
}

QDateTime CDate(const Value& value) {
  const QDateTime date = value.IsNumber() ? FromSerialDay(value.ToNumber()) : value.ToDate();
  if (!date.isValid()) Mismatch(value, "date");
  return date;
}

double RoundHalfEven(double number) {
  return std::nearbyint(number);
}

QString EscapeQuotes(const QString& text) {
  return QString(text).replace(u'\'', QStringLiteral("''"));
}

}  // namespace tavrelin
