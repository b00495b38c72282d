#pragma once

#include <QByteArray>

namespace tavrelin {

/// A number as the decimal digits that a person sees, at most 15 of them. Rounding for the eye is
/// done here and not on the binary number: 2.675 rounds to 2.68 although its double lies below it.
///
/// A number that a SINGLE column holds has only seven digits of meaning and shows these: 3.1 stays
/// 3.1 although the single nearest to it is 3.0999999046.
class Decimal {
 public:
  explicit Decimal(double number);  ///< must be finite
  explicit Decimal(qint64 number);

  /// Halves away from zero. Places are digits behind the point, not negative.
  void RoundTo(int places);

  bool IsNegative() const { return negative_ && !digits_.isEmpty(); }  ///< false for zero
  QByteArray Whole() const;     ///< digits before the point, without leading zeros; zero is ""
  QByteArray Fraction() const;  ///< digits behind the point, without trailing zeros
  int Exponent() const { return point_ - 1; }  ///< of the first digit: 0 for 5, 2 for 123
  QByteArray Digits() const { return digits_; }

 private:
  void DropTrailingZeros();
  void CarryOne();  ///< adds one to the last digit that is kept

  bool negative_ = false;
  QByteArray digits_;  ///< without leading and trailing zeros; zero has none
  int point_ = 0;      ///< digits before the point; negative: zeros behind it
};

}  // namespace tavrelin
