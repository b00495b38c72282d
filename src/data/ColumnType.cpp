#include "data/ColumnType.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "basic/Conversions.h"
#include "basic/Error.h"

namespace tavrelin {
namespace {

struct TypeName {
  const char* name;
  FieldType type;
  bool fixed = false;
  bool byte = false;
};

constexpr std::array TypeNames = {
    TypeName{"TEXT", FieldType::Text},
    TypeName{"VARCHAR", FieldType::Text},
    TypeName{"STRING", FieldType::Text},
    TypeName{"CHAR", FieldType::Text, true},
    TypeName{"CHARACTER", FieldType::Text, true},
    TypeName{"MEMO", FieldType::Memo},
    TypeName{"LONGTEXT", FieldType::Memo},
    TypeName{"BYTE", FieldType::Short, false, true},
    TypeName{"SHORT", FieldType::Short},
    TypeName{"SMALLINT", FieldType::Short},
    TypeName{"INTEGER", FieldType::Long},
    TypeName{"INT", FieldType::Long},
    TypeName{"LONG", FieldType::Long},
    TypeName{"SINGLE", FieldType::Single},
    TypeName{"REAL", FieldType::Single},
    TypeName{"DOUBLE", FieldType::Double},
    TypeName{"FLOAT", FieldType::Double},
    TypeName{"NUMBER", FieldType::Double},
    TypeName{"NUMERIC", FieldType::Double},
    TypeName{"CURRENCY", FieldType::Double},
    TypeName{"YESNO", FieldType::YesNo},
    TypeName{"BIT", FieldType::YesNo},
    TypeName{"DATETIME", FieldType::Date},
    TypeName{"DATE", FieldType::Date},
    TypeName{"AUTOINCREMENT", FieldType::AutoNumber},
    TypeName{"COUNTER", FieldType::AutoNumber},
};

[[noreturn]] void RefuseSize(const QString& column, const QString& why) {
  throw Error(errors::FieldTooSmall, QStringLiteral("%1: %2").arg(column, why));
}

[[noreturn]] void RefuseType(const QString& column, const Value& value, const char* wanted) {
  throw Error(errors::DataTypeMismatch,
              QStringLiteral("%1: \"%2\" is not %3.")
                  .arg(column, value.ToText().left(60), QLatin1String(wanted)));
}

Value ToTextColumn(const ColumnType& type, const QString& column, const Value& value) {
  QString text = value.ToText();
  if (type.fixed) {
    while (text.endsWith(u' ')) text.chop(1);
  }
  if (type.size > 0 && text.size() > type.size) {
    RefuseSize(column, QStringLiteral("the text has %1 characters, and there is room for %2.")
                           .arg(text.size())
                           .arg(type.size));
  }
  return text;
}

double ToNumber(const QString& column, const Value& value) {
  if (value.IsNumber()) return value.ToNumber();
  if (!IsNumeric(value)) RefuseType(column, value, "a number");
  return CDbl(value);
}

Value ToWholeColumn(const QString& column, const Value& value, double low, double high) {
  const double number = RoundHalfEven(ToNumber(column, value));
  if (!(number >= low && number <= high)) {
    RefuseSize(column, QStringLiteral("%1 is out of range; the number must be from %2 to %3.")
                           .arg(value.ToText())
                           .arg(low, 0, 'f', 0)
                           .arg(high, 0, 'f', 0));
  }
  return static_cast<qint64>(number);
}

Value ToSingleColumn(const QString& column, const Value& value) {
  const double number = ToNumber(column, value);
  if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
    RefuseSize(column, QStringLiteral("%1 is out of range.").arg(value.ToText()));
  }
  return static_cast<double>(static_cast<float>(number));
}

Value ToYesNoColumn(const QString& column, const Value& value) {
  if (value.IsNumber()) return value.ToYesNo();
  const QString text = value.Trimmed().toLower();
  if (text == u"true" || text == u"yes" || text == u"on") return true;
  if (text == u"false" || text == u"no" || text == u"off") return false;
  if (!IsNumeric(value)) RefuseType(column, value, "Yes or No");
  return CDbl(value) != 0;
}

Value ToDateColumn(const QString& column, const Value& value) {
  if (value.kind() == Value::Kind::Date && value.ToDate().isValid()) return value;
  if (value.kind() != Value::Kind::Text) RefuseType(column, value, "a date");
  const auto date = ReadDate(value.ToText());
  if (!date) RefuseType(column, value, "a date");
  return *date;
}

}  // namespace

ColumnType ParseColumnType(QStringView declared) {
  const qsizetype bracket = declared.indexOf(u'(');
  const QStringView name = (bracket < 0 ? declared : declared.left(bracket)).trimmed();
  ColumnType result;
  const auto* known = std::find_if(TypeNames.begin(), TypeNames.end(), [&](const TypeName& t) {
    return name.compare(QLatin1String(t.name), Qt::CaseInsensitive) == 0;
  });
  if (known == TypeNames.end()) {
    result.known = false;
    return result;
  }
  result.type = known->type;
  result.fixed = known->fixed;
  result.byte = known->byte;
  if (bracket >= 0 && result.type == FieldType::Text) {
    result.size = static_cast<int>(Val(declared.mid(bracket + 1)));
  }
  return result;
}

QString StoredDeclaration(QStringView declared) {
  const qsizetype bracket = declared.indexOf(u'(');
  const QStringView name = (bracket < 0 ? declared : declared.left(bracket)).trimmed();
  const QString rest = bracket < 0 ? QString() : declared.mid(bracket).toString().remove(u' ');
  if (name.compare(u"STRING", Qt::CaseInsensitive) == 0) return QStringLiteral("TEXT") + rest;
  if (name.compare(u"MEMO", Qt::CaseInsensitive) == 0) return QStringLiteral("LONGTEXT");
  return name.toString().toUpper() + rest;
}

Value ConvertToColumn(const ColumnType& type, const QString& column, const Value& value) {
  if (value.IsNull()) return type.type == FieldType::YesNo ? Value(false) : value;
  if (!type.known) return value;
  switch (type.type) {
    case FieldType::Text:
    case FieldType::Memo:
      return ToTextColumn(type, column, value);
    case FieldType::Short:
      return type.byte ? ToWholeColumn(column, value, 0, 255)
                       : ToWholeColumn(column, value, -32768, 32767);
    case FieldType::Long:
    case FieldType::AutoNumber:
      return ToWholeColumn(column, value, -2147483648.0, 2147483647.0);
    case FieldType::Single:
      return ToSingleColumn(column, value);
    case FieldType::Double:
      return ToNumber(column, value);
    case FieldType::YesNo:
      return ToYesNoColumn(column, value);
    case FieldType::Date:
      return ToDateColumn(column, value);
  }
  return value;
}

}  // namespace tavrelin
