#include <algorithm>
#include <array>
#include <utility>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "data/DialectWriter.h"

namespace tavrelin {
namespace {

// Functions that SQLite knows under another name.
constexpr std::array<std::pair<QLatin1String, QLatin1String>, 5> Renamed = {{
    {QLatin1String("UCASE"), QLatin1String("upper")},
    {QLatin1String("LCASE"), QLatin1String("lower")},
    {QLatin1String("LEN"), QLatin1String("length")},
    {QLatin1String("MID"), QLatin1String("substr")},
    {QLatin1String("NZ"), QLatin1String("ifnull")},
}};

bool OneOf(const QString& name, std::initializer_list<const char*> names) {
  return std::any_of(names.begin(), names.end(), [&name](const char* candidate) {
    return name.compare(QLatin1String(candidate), Qt::CaseInsensitive) == 0;
  });
}

// Words that are never a column, unless in brackets.
bool IsReserved(const QString& word) {
  return OneOf(word, {"SELECT", "FROM", "WHERE", "GROUP", "HAVING", "ORDER", "UNION", "AND", "OR",
                      "IN", "LIKE", "BETWEEN", "IS", "AS", "ON", "SET", "VALUES", "INTO"});
}

}  // namespace

DialectWriter::Operand DialectWriter::Expression() {
  Operand left = AndExpression();
  while (TakeIf("OR")) {
    left = {left.sql + QStringLiteral(" OR ") + AndExpression().sql, Operand::Kind::Whole};
  }
  return left;
}

DialectWriter::Operand DialectWriter::AndExpression() {
  Operand left = NotExpression();
  while (TakeIf("AND")) {
    left = {left.sql + QStringLiteral(" AND ") + NotExpression().sql, Operand::Kind::Whole};
  }
  return left;
}

DialectWriter::Operand DialectWriter::NotExpression() {
  if (!TakeIf("NOT")) return Comparison();
  return {QStringLiteral("NOT (%1)").arg(NotExpression().sql), Operand::Kind::Whole};
}

DialectWriter::Operand DialectWriter::Comparison() {
  Operand left = Concatenation();
  for (;;) {
    const bool negated =
        PeekIs("NOT") && (PeekIs("LIKE", 1) || PeekIs("IN", 1) || PeekIs("BETWEEN", 1));
    if (negated) Take();
    if (TakeIf("IN")) {
      left = InList(left, negated);
    } else if (TakeIf("BETWEEN")) {
      left = Between(left, negated);
    } else if (TakeIf("LIKE")) {
      const QString word = negated ? QStringLiteral(" NOT LIKE ") : QStringLiteral(" LIKE ");
      left = {left.sql + word + Concatenation().sql, Operand::Kind::Whole};
    } else if (TakeIf("IS")) {
      const bool isNot = TakeIf("NOT");
      Expect("NULL");
      left = {left.sql + (isNot ? QStringLiteral(" IS NOT NULL") : QStringLiteral(" IS NULL")),
              Operand::Kind::Whole};
    } else if (PeekIs("=") || PeekIs("<>") || PeekIs("<") || PeekIs(">") || PeekIs("<=") ||
               PeekIs(">=")) {
      const QString sign = Take().text;
      left = Compare(left, sign, Concatenation());
    } else {
      return left;
    }
  }
}

// Expressions have no order of texts of their own: theirs is that of the columns.
QString DialectWriter::TextOrder(const Operand& operand) const {
  return operand.column || operand.IsNumber() || operand.kind == Operand::Kind::Date
             ? QString()
             : QStringLiteral(" COLLATE NOCASE");
}

// A text that stands against a date is the date that it reads as.
DialectWriter::Operand DialectWriter::AsDate(const Operand& operand, const Operand& other) {
  if (other.kind != Operand::Kind::Date || operand.kind != Operand::Kind::Text ||
      !operand.literal) {
    return operand;
  }
  const auto date = ReadDate(operand.sql.mid(1, operand.sql.size() - 2));
  if (!date) return operand;
  return {QuotedText(StoredDate(*date)), Operand::Kind::Date, false, true};
}

DialectWriter::Operand DialectWriter::Compare(const Operand& left, const QString& sign,
                                              const Operand& right) const {
  const Operand a = AsDate(left, right);
  const Operand b = AsDate(right, left);
  const QString order = a.column || b.column ? QString() : TextOrder(b);
  return {a.sql + u' ' + sign + u' ' + b.sql + order, Operand::Kind::Whole};
}

DialectWriter::Operand DialectWriter::InList(const Operand& left, bool negated) {
  Expect("(");
  QString list;
  if (PeekIs("SELECT")) {
    Query inner;
    const QList<Source> outer = sources_;
    list = SelectText(inner);
    sources_ = outer;
  } else {
    QStringList items;
    do {
      items.append(AsDate(Expression(), left).sql);
    } while (TakeIf(","));
    list = items.join(QStringLiteral(", "));
  }
  Expect(")");
  const QString word = negated ? QStringLiteral(" NOT IN (") : QStringLiteral(" IN (");
  return {left.sql + TextOrder(left) + word + list + u')', Operand::Kind::Whole};
}

DialectWriter::Operand DialectWriter::Between(const Operand& left, bool negated) {
  const Operand low = AsDate(Concatenation(), left);
  Expect("AND");
  const Operand high = AsDate(Concatenation(), left);
  const QString word = negated ? QStringLiteral(" NOT BETWEEN ") : QStringLiteral(" BETWEEN ");
  return {left.sql + TextOrder(left) + word + low.sql + QStringLiteral(" AND ") + high.sql,
          Operand::Kind::Whole};
}

DialectWriter::Operand DialectWriter::Concatenation() {
  Operand left = Sum();
  while (TakeIf("&")) {
    left = {QStringLiteral("access_join(%1, %2)").arg(left.sql, Sum().sql), Operand::Kind::Text};
  }
  return left;
}

// Adds numbers, joins texts; what neither is known to be is decided row by row.
DialectWriter::Operand DialectWriter::Add(const Operand& left, const Operand& right) {
  if (left.kind == Operand::Kind::Text && right.kind == Operand::Kind::Text) {
    return {QStringLiteral("(%1 || %2)").arg(left.sql, right.sql), Operand::Kind::Text};
  }
  if (left.IsNumber() && right.IsNumber()) {
    const bool whole = left.kind == Operand::Kind::Whole && right.kind == Operand::Kind::Whole;
    return {QStringLiteral("(%1 + %2)").arg(left.sql, right.sql),
            whole ? Operand::Kind::Whole : Operand::Kind::Floating};
  }
  return {QStringLiteral("access_plus(%1, %2)").arg(left.sql, right.sql)};
}

DialectWriter::Operand DialectWriter::Sum() {
  Operand left = Remainder();
  for (;;) {
    if (TakeIf("+")) {
      left = Add(left, Remainder());
    } else if (TakeIf("-")) {
      const Operand right = Remainder();
      const bool whole = left.kind == Operand::Kind::Whole && right.kind == Operand::Kind::Whole;
      left = {QStringLiteral("(%1 - %2)").arg(left.sql, right.sql),
              whole ? Operand::Kind::Whole : Operand::Kind::Floating};
    } else {
      return left;
    }
  }
}

DialectWriter::Operand DialectWriter::Remainder() {
  Operand left = Product();
  while (TakeIf("MOD")) {
    left = {QStringLiteral("(%1 % %2)").arg(left.sql, Product().sql), Operand::Kind::Whole};
  }
  return left;
}

// Division is always floating; by zero it gives null.
DialectWriter::Operand DialectWriter::Product() {
  Operand left = Unary();
  for (;;) {
    if (TakeIf("*")) {
      const Operand right = Unary();
      const bool whole = left.kind == Operand::Kind::Whole && right.kind == Operand::Kind::Whole;
      left = {QStringLiteral("(%1 * %2)").arg(left.sql, right.sql),
              whole ? Operand::Kind::Whole : Operand::Kind::Floating};
    } else if (TakeIf("/")) {
      left = {QStringLiteral("(1.0 * %1 / %2)").arg(left.sql, Unary().sql),
              Operand::Kind::Floating};
    } else {
      return left;
    }
  }
}

DialectWriter::Operand DialectWriter::Unary() {
  if (TakeIf("+")) return Unary();
  if (!TakeIf("-")) return Primary();
  Operand operand = Unary();
  operand.sql = QStringLiteral("(- %1)").arg(operand.sql);
  operand.column = false;
  if (!operand.IsNumber()) operand.kind = Operand::Kind::Floating;
  return operand;
}

DialectWriter::Operand DialectWriter::Primary() {
  switch (Peek().kind) {
    case Token::Kind::Number:
    case Token::Kind::Text:
    case Token::Kind::Date:
    case Token::Kind::Parameter:
      return Literal(Take());
    case Token::Kind::Word:
    case Token::Kind::Bracketed:
      return NameOrCall();
    default:
      break;
  }
  Expect("(");
  if (PeekIs("SELECT")) {
    Query inner;
    const QList<Source> outer = sources_;
    const QString sql = SelectText(inner);
    sources_ = outer;
    Expect(")");
    return {QStringLiteral("(%1)").arg(sql)};
  }
  Operand inner = Expression();
  Expect(")");
  inner.sql = u'(' + inner.sql + u')';
  return inner;
}

DialectWriter::Operand DialectWriter::Literal(const Token& token) {
  switch (token.kind) {
    case Token::Kind::Number: {
      const bool whole =
          !token.text.contains(u'.') && !token.text.contains(u'e', Qt::CaseInsensitive);
      return {token.text, whole ? Operand::Kind::Whole : Operand::Kind::Floating, false, true};
    }
    case Token::Kind::Text:
      return {QuotedText(token.text), Operand::Kind::Text, false, true,
              static_cast<int>(token.text.size())};
    case Token::Kind::Date: {
      const auto date = ReadDate(token.text.trimmed());
      if (!date) {
        throw Error(errors::Syntax, QStringLiteral("#%1# is not a date.").arg(token.text));
      }
      return {QuotedText(StoredDate(*date)), Operand::Kind::Date, false, true};
    }
    default:
      return {QStringLiteral("?")};
  }
}

DialectWriter::Operand DialectWriter::NameOrCall() {
  if (Peek().kind == Token::Kind::Word && IsReserved(Peek().text)) Refuse();
  const Token first = Take();
  if (first.kind == Token::Kind::Word) {
    if (PeekIs("(")) return Call(first.text);
    if (first.Is(QLatin1String("TRUE")) || first.Is(QLatin1String("YES"))) {
      return {QStringLiteral("-1"), Operand::Kind::Whole, false, true};
    }
    if (first.Is(QLatin1String("FALSE")) || first.Is(QLatin1String("NO"))) {
      return {QStringLiteral("0"), Operand::Kind::Whole, false, true};
    }
    if (first.Is(QLatin1String("NULL"))) {
      return {QStringLiteral("NULL"), Operand::Kind::Null, false, true};
    }
  }
  if (!TakeIf(".")) return Column({}, first.text);
  return Column(first.text, TakeName("a column"));
}

DialectWriter::Operand DialectWriter::Column(const QString& table, const QString& name) {
  Operand operand{table.isEmpty() ? QuotedName(name) : QuotedName(table) + u'.' + QuotedName(name),
                  Operand::Kind::Unknown, true};
  const TableColumn* column = Resolve(table, name);
  if (!column || !column->type.known) return operand;
  switch (column->type.type) {
    case FieldType::Text:
    case FieldType::Memo:
      operand.kind = Operand::Kind::Text;
      break;
    case FieldType::Date:
      operand.kind = Operand::Kind::Date;
      break;
    case FieldType::Single:
    case FieldType::Double:
      operand.kind = Operand::Kind::Floating;
      break;
    default:
      operand.kind = Operand::Kind::Whole;
  }
  return operand;
}

const TableColumn* DialectWriter::Resolve(const QString& table, const QString& name) const {
  for (const Source& source : sources_) {
    if (!table.isEmpty() && source.alias.compare(table, Qt::CaseInsensitive) != 0) continue;
    const QList<TableColumn>& columns = catalogue_.Columns(source.table);
    const auto found = std::find_if(columns.begin(), columns.end(), [&name](const TableColumn& c) {
      return c.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found != columns.end()) return &*found;
  }
  return nullptr;
}

DialectWriter::Operand DialectWriter::Call(const QString& name) {
  Expect("(");
  QStringList arguments;
  Operand first;
  if (TakeIf("*")) {
    arguments.append(QStringLiteral("*"));
  } else if (!PeekIs(")")) {
    const QString distinct = TakeIf("DISTINCT") ? QStringLiteral("DISTINCT ") : QString();
    first = Expression();
    arguments.append(distinct + first.sql);
    while (TakeIf(",")) arguments.append(Expression().sql);
  }
  Expect(")");
  QString sqlName = name;
  for (const auto& [access, sqlite] : Renamed) {
    if (name.compare(access, Qt::CaseInsensitive) == 0) sqlName = sqlite;
  }
  Operand result{sqlName + u'(' + arguments.join(QStringLiteral(", ")) + u')'};
  if (OneOf(name, {"COUNT", "SUM", "AVG", "MIN", "MAX"})) aggregate_ = true;
  if (OneOf(name, {"COUNT", "LEN"})) result.kind = Operand::Kind::Whole;
  if (OneOf(name, {"AVG"})) result.kind = Operand::Kind::Floating;
  if (OneOf(name, {"RTRIM", "LTRIM", "TRIM", "UCASE", "LCASE", "MID"})) {
    result.kind = Operand::Kind::Text;
  }
  if (OneOf(name, {"SUM", "MIN", "MAX"})) result.kind = first.kind;
  return result;
}

}  // namespace tavrelin
