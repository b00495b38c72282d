#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>
#include <vector>

#include "data/Recordset.h"
#include "data/RowStore.h"

namespace tavrelin {

/// What Find and Filter choose rows by: tests joined by AND, each a field, an operator (= <> < > <=
/// >= LIKE) and a number, 'text', #date#, True, False or Null. Text compares without regard to
/// case; a null cell meets no test but "= Null".
class Criterion {
 public:
  Criterion() = default;
  /// Throws Error: NoSuchField, Syntax, or DataTypeMismatch when the value does not fit the field.
  Criterion(const QString& text, const QList<Field>& fields);

  bool IsEmpty() const { return tests_.empty(); }
  bool Meets(const RowStore& rows, int row) const;

  /// When the criterion is one test for equality with a text or a number: its field. -1 otherwise.
  int EqualityField() const;
  /// What that test looks for.
  Value EqualityValue() const;

 private:
  enum class Operator { Equal, Unequal, Less, Greater, LessOrEqual, GreaterOrEqual, Like };
  enum class Kind { Null, Number, Text, Date };
  struct Test {
    int field = 0;
    FieldType type = FieldType::Text;
    Operator op = Operator::Equal;
    Kind kind = Kind::Null;
    double number = 0;
    QString text;
    QByteArray ascii;  ///< the text when all of it is ASCII
    Value date;
  };
  class Parser;

  static void Fit(Test& test, const Field& field, const QString& word, bool quoted);
  static bool Passes(const Test& test, const RowStore& rows, int row);
  static bool Holds(Operator op, int comparison);
  static bool TextPasses(const Test& test, const RowStore& rows, int row);

  std::vector<Test> tests_;
};

}  // namespace tavrelin
