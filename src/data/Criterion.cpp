#include "data/Criterion.h"

#include <algorithm>
#include <array>
#include <utility>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "data/FieldNames.h"

namespace tavrelin {
namespace {

int Sign(double difference) {
  return difference < 0 ? -1 : (difference > 0 ? 1 : 0);
}

bool IsAscii(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

char Folded(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

enum class Equality { Same, Different, Undecided };

// Decides ASCII against ASCII by the bytes; anything else is CompareText's business.
Equality CompareAscii(QByteArrayView cell, const QByteArray& wanted) {
  bool same = cell.size() == wanted.size();
  for (qsizetype i = 0; i < cell.size(); ++i) {
    if (static_cast<unsigned char>(cell[i]) >= 0x80) return Equality::Undecided;
    if (same && Folded(cell[i]) != Folded(wanted[i])) same = false;
  }
  return same ? Equality::Same : Equality::Different;
}

}  // namespace

/// Reads a criterion's text from left to right.
class Criterion::Parser {
 public:
  Parser(const QString& text, const QList<Field>& fields) : text_(text), fields_(fields) {}

  std::vector<Test> Read() {
    std::vector<Test> tests;
    SkipBlanks();
    while (at_ < text_.size()) {
      tests.push_back(ReadTest());
      SkipBlanks();
      if (at_ == text_.size()) break;
      if (!TakeWord(u"AND")) Refuse();
      SkipBlanks();
      if (at_ == text_.size()) Refuse();
    }
    return tests;
  }

 private:
  [[noreturn]] void Refuse() const {
    throw Error(errors::Syntax,
                QStringLiteral("The condition cannot be read: %1").arg(text_.trimmed()));
  }

  void SkipBlanks() {
    while (at_ < text_.size() && text_[at_].isSpace()) ++at_;
  }

  bool TakeWord(QStringView word) {
    if (QStringView(text_).mid(at_, word.size()).compare(word, Qt::CaseInsensitive) != 0) {
      return false;
    }
    const qsizetype end = at_ + word.size();
    if (end < text_.size() && (text_[end].isLetterOrNumber() || text_[end] == u'_')) return false;
    at_ = end;
    return true;
  }

  QString TakeField() {
    const qsizetype start = at_;
    if (at_ < text_.size() && text_[at_] == u'[') {
      at_ = text_.indexOf(u']', at_);
      if (at_ < 0) Refuse();
      return text_.mid(start + 1, at_++ - start - 1);
    }
    while (at_ < text_.size() && (text_[at_].isLetterOrNumber() || text_[at_] == u'_')) ++at_;
    if (at_ == start) Refuse();
    return text_.mid(start, at_ - start);
  }

  Operator TakeOperator() {
    static constexpr std::array<std::pair<QStringView, Operator>, 6> Signs = {{
        {u"<>", Operator::Unequal},
        {u"<=", Operator::LessOrEqual},
        {u">=", Operator::GreaterOrEqual},
        {u"=", Operator::Equal},
        {u"<", Operator::Less},
        {u">", Operator::Greater},
    }};
    for (const auto& [sign, op] : Signs) {
      if (QStringView(text_).mid(at_).startsWith(sign)) {
        at_ += sign.size();
        return op;
      }
    }
    if (TakeWord(u"LIKE")) return Operator::Like;
    Refuse();
  }

  // A quoted text; a quote within it is doubled.
  QString TakeQuoted(QChar quote) {
    QString word;
    for (++at_; at_ < text_.size(); ++at_) {
      if (text_[at_] == quote) {
        ++at_;
        if (at_ == text_.size() || text_[at_] != quote) return word;
      }
      word += text_[at_];
    }
    Refuse();
  }

  // A bare word goes up to the next AND: "BirthDate >= 1/2/1950".
  QString TakeBare() {
    const qsizetype start = at_;
    while (at_ < text_.size()) {
      if (text_[at_].isSpace()) {
        const qsizetype blank = at_;
        SkipBlanks();
        const qsizetype behind = at_;
        const bool conjunction = TakeWord(u"AND");
        at_ = conjunction || behind == text_.size() ? blank : behind;
        if (at_ == blank) break;
      } else {
        ++at_;
      }
    }
    return text_.mid(start, at_ - start);
  }

  Test ReadTest() {
    Test test;
    const QString name = TakeField();
    test.field = IndexOfField(fields_, name);
    if (test.field < 0) RefuseField(name);
    const Field& field = fields_[test.field];
    test.type = field.type;
    SkipBlanks();
    test.op = TakeOperator();
    SkipBlanks();
    if (at_ == text_.size()) Refuse();
    const QChar first = text_[at_];
    const bool quoted = first == u'\'' || first == u'"' || first == u'#';
    Fit(test, field, quoted ? TakeQuoted(first) : TakeBare(), quoted);
    return test;
  }

  const QString& text_;
  const QList<Field>& fields_;
  qsizetype at_ = 0;
};

Criterion::Criterion(const QString& text, const QList<Field>& fields)
    : tests_(Parser(text, fields).Read()) {}

int Criterion::EqualityField() const {
  if (tests_.size() != 1 || tests_.front().op != Operator::Equal) return -1;
  const Kind kind = tests_.front().kind;
  return kind == Kind::Text || kind == Kind::Number ? tests_.front().field : -1;
}

Value Criterion::EqualityValue() const {
  const Test& test = tests_.front();
  return test.kind == Kind::Number ? Value(test.number) : Value(test.text);
}

// Turns the criterion's word into the kind of value that the field holds.
void Criterion::Fit(Test& test, const Field& field, const QString& word, bool quoted) {
  const auto refuse = [&] {
    throw Error(errors::DataTypeMismatch,
                QStringLiteral("%1 cannot be compared with \"%2\".").arg(field.name, word));
  };
  const auto is = [&](const char* name) {
    return !quoted && word.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
  };
  if (is("NULL")) return;
  test.text = word;
  const bool numeric = field.type != FieldType::Text && field.type != FieldType::Memo &&
                       field.type != FieldType::Date;
  if (test.op == Operator::Like || (!numeric && field.type != FieldType::Date)) {
    test.kind = Kind::Text;
    if (IsAscii(word)) test.ascii = word.toUtf8();
  } else if (numeric) {
    test.kind = Kind::Number;
    if (is("TRUE") || is("YES")) {
      test.number = -1;
    } else if (!is("FALSE") && !is("NO")) {
      if (!IsNumeric(Value(word))) refuse();
      test.number = CDbl(Value(word));
    }
    if (field.type == FieldType::YesNo && test.number != 0) test.number = -1;
    if (field.type == FieldType::Single) test.number = static_cast<float>(test.number);
  } else {
    test.kind = Kind::Date;
    const auto date = ReadDate(word);
    if (!date && !IsNumeric(Value(word))) refuse();
    test.date = date ? *date : CDate(Value(CDbl(Value(word))));
  }
}

bool Criterion::Meets(const RowStore& rows, int row) const {
  return std::all_of(tests_.begin(), tests_.end(),
                     [&](const Test& test) { return Passes(test, rows, row); });
}

bool Criterion::Holds(Operator op, int comparison) {
  switch (op) {
    case Operator::Equal:
      return comparison == 0;
    case Operator::Unequal:
      return comparison != 0;
    case Operator::Less:
      return comparison < 0;
    case Operator::Greater:
      return comparison > 0;
    case Operator::LessOrEqual:
      return comparison <= 0;
    case Operator::GreaterOrEqual:
      return comparison >= 0;
    case Operator::Like:
      return false;
  }
  return false;
}

bool Criterion::Passes(const Test& test, const RowStore& rows, int row) {
  const RowStore::Tag tag = rows.TagAt(row, test.field);
  if (test.kind == Kind::Null || tag == RowStore::Tag::Null) {
    const bool bothNull = test.kind == Kind::Null && tag == RowStore::Tag::Null;
    if (test.kind == Kind::Null && test.op == Operator::Unequal) return !bothNull;
    return bothNull && test.op == Operator::Equal;
  }
  switch (test.kind) {
    case Kind::Text:
      return TextPasses(test, rows, row);
    case Kind::Number:
      if (tag != RowStore::Tag::Text) {
        const double cell = rows.NumberAt(row, test.field);
        const bool yes = test.type == FieldType::YesNo && cell != 0;
        return Holds(test.op, Sign((yes ? -1 : cell) - test.number));
      }
      return Holds(test.op,
                   Value::Compare(rows.At(row, test.field, test.type), Value(test.number)));
    case Kind::Date:
      return Holds(test.op, Value::Compare(rows.At(row, test.field, test.type), test.date));
    case Kind::Null:
      break;
  }
  return false;
}

bool Criterion::TextPasses(const Test& test, const RowStore& rows, int row) {
  const bool isText = rows.TagAt(row, test.field) == RowStore::Tag::Text;
  const bool equality = test.op == Operator::Equal || test.op == Operator::Unequal;
  if (isText && equality && test.ascii.size() == test.text.size()) {
    const Equality equal = CompareAscii(rows.TextAt(row, test.field), test.ascii);
    if (equal != Equality::Undecided) {
      return (equal == Equality::Same) == (test.op == Operator::Equal);
    }
  }
  const QString cell = rows.At(row, test.field, test.type).ToText();
  if (test.op == Operator::Like) return LikeText(cell, test.text);
  return Holds(test.op, CompareText(cell, test.text));
}

}  // namespace tavrelin
