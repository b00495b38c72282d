#include "basic/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace tavrelin {

namespace {

constexpr int VisibleDigits = 15;

bool IsSingle(double number) {
  return std::abs(number) < 1e7 && number != std::trunc(number) &&
         static_cast<double>(static_cast<float>(number)) == number;
}

// "1.2345e+02", whatever the machine's locale.
QByteArray Scientific(double number) {
  std::array<char, 40> buffer;
  char* const end = buffer.data() + buffer.size();
  const auto result = IsSingle(number)
                          ? std::to_chars(buffer.data(), end, static_cast<float>(number),
                                          std::chars_format::scientific)
                          : std::to_chars(buffer.data(), end, number, std::chars_format::scientific,
                                          VisibleDigits - 1);
  return QByteArray(buffer.data(), result.ptr - buffer.data());
}

}  // namespace

Decimal::Decimal(double number) : negative_(number < 0) {
  if (number == 0) return;
  const QByteArray text = Scientific(std::abs(number));
  const auto mark = text.indexOf('e');
  digits_ = text.left(mark).replace(".", "");
  point_ = text.mid(mark + 1).toInt() + 1;
  DropTrailingZeros();
}

Decimal::Decimal(qint64 number) : negative_(number < 0) {
  if (number == 0) return;
  digits_ = QByteArray::number(number);
  if (negative_) digits_.remove(0, 1);
  point_ = static_cast<int>(digits_.size());
  DropTrailingZeros();
}

void Decimal::DropTrailingZeros() {
  while (digits_.endsWith('0')) digits_.chop(1);
  if (digits_.isEmpty()) point_ = 0;
}

void Decimal::CarryOne() {
  while (digits_.endsWith('9')) digits_.chop(1);
  if (digits_.isEmpty()) {
    digits_ = "1";  // 0.996 to two places: a digit more in front
    ++point_;
  } else {
    digits_.back() = static_cast<char>(digits_.back() + 1);
  }
}

void Decimal::RoundTo(int places) {
  const int kept = point_ + places;
  if (kept >= digits_.size()) return;
  const bool up = kept >= 0 && digits_.at(kept) >= '5';
  digits_.truncate(std::max(kept, 0));
  if (up) CarryOne();
  DropTrailingZeros();
}

QByteArray Decimal::Whole() const {
  return point_ <= 0 ? QByteArray() : digits_.left(point_).leftJustified(point_, '0');
}

QByteArray Decimal::Fraction() const {
  return point_ >= 0 ? digits_.mid(point_) : QByteArray(-point_, '0') + digits_;
}

}  // namespace tavrelin
