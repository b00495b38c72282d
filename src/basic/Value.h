#pragma once

#include <concepts>
#include <cstddef>
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <variant>

namespace tavrelin {

/// One value as the data layer, the pictures and the grids pass it on: null, yes/no, a whole
/// number, a floating number, a text or a date.
///
/// A Value converts only when asked, by the functions of Conversions.h; it never fails by itself.
class Value {
 public:
  enum class Kind { Null, YesNo, Whole, Floating, Text, Date };

  Value() = default;  ///< null
  /// A real bool only: a pointer would turn into yes.
  template <std::same_as<bool> YesNo>
  Value(YesNo yes) : data_(yes) {}
  Value(int number) : data_(static_cast<qint64>(number)) {}
  Value(qint64 number) : data_(number) {}
  Value(double number) : data_(number) {}
  Value(QString text) : data_(std::move(text)) {}
  Value(const char* utf8) : data_(QString::fromUtf8(utf8)) {}
  Value(QDateTime date) : data_(std::move(date)) {}
  Value(QDate date) : data_(date.startOfDay()) {}
  // A letter would turn into its number, and nullptr into a text.
  Value(char) = delete;
  Value(wchar_t) = delete;
  Value(char16_t) = delete;
  Value(std::nullptr_t) = delete;

  Kind kind() const { return static_cast<Kind>(data_.index()); }
  bool IsNull() const { return kind() == Kind::Null; }
  bool IsNumber() const {
    return kind() == Kind::Whole || kind() == Kind::Floating || kind() == Kind::YesNo;
  }

  /// The value as Basic's CStr writes it in US form: null is "", yes/no "True" or "False", a number
  /// its shortest decimal form (at most 15 digits, no exponent below 1e15), a date "m/d/yyyy" with
  /// " h:mm:ss AM" behind it when it is not midnight, a time alone "h:mm:ss AM".
  QString ToText() const;

  /// The text without blanks at both ends; null is "".
  QString Trimmed() const { return ToText().trimmed(); }

  /// The value as a number: null 0, yes -1, no 0, a text by Val (so "" and "x" are 0), a date its
  /// serial day number. For code that has already checked the value; use CDbl where a bad text must
  /// be refused.
  double ToNumber() const;
  /// ToNumber, rounded halves to even.
  qint64 ToWhole() const;
  /// True for yes and for any number but 0; text "True", "Yes" (any case), "1" likewise.
  bool ToYesNo() const;
  /// The date, or an invalid one when the value is none.
  QDateTime ToDate() const;

  /// Same kind and same content; text compares to the letter. For the data layer's compare see
  /// Compare.
  friend bool operator==(const Value&, const Value&) = default;

  /// The data layer's order: null before everything, then numbers by value (yes/no is -1 or 0),
  /// dates by time, text without regard to case (CompareText). Mixed kinds compare by their text.
  /// Negative, zero or positive.
  static int Compare(const Value& a, const Value& b);

 private:
  std::variant<std::monostate, bool, qint64, double, QString, QDateTime> data_;
};

/// The one order of texts, used by SQL (collation NOCASE), Find, Filter, Sort and the grids alike.
/// Case is disregarded in every script; an accented letter stands beside its base letter (É after
/// E, before F) yet is not equal to it. Negative, zero or positive.
int CompareText(QStringView a, QStringView b);

/// A key whose memcmp order (QByteArray's own <) is that of CompareText: for sorts of many texts,
/// made once a text. Equal keys are equal texts.
QByteArray SortKey(QStringView text);

/// LIKE of the data layer: `%` any run of characters, `_` any one character, case disregarded.
bool LikeText(QStringView text, QStringView pattern);

}  // namespace tavrelin
