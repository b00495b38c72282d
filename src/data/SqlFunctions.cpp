#include "data/SqlFunctions.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <QString>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "basic/Value.h"
#include "data/ColumnType.h"
#include "data/SqlErrors.h"

namespace tavrelin {
namespace {

constexpr int FunctionFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

unsigned char Folded(unsigned char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + 32) : c;
}

// Most names are ASCII: they are told apart by their bytes, the rest by CompareText.
int CompareUtf8(QByteArrayView a, QByteArrayView b) {
  const qsizetype shorter = std::min(a.size(), b.size());
  qsizetype i = 0;
  for (; i < shorter; ++i) {
    const auto x = static_cast<unsigned char>(a[i]);
    const auto y = static_cast<unsigned char>(b[i]);
    if (x >= 0x80 || y >= 0x80) break;
    if (Folded(x) != Folded(y)) return Folded(x) < Folded(y) ? -1 : 1;
  }
  if (i == a.size() || i == b.size()) {
    return a.size() < b.size() ? -1 : (a.size() > b.size() ? 1 : 0);
  }
  return CompareText(QString::fromUtf8(a), QString::fromUtf8(b));
}

QByteArrayView WithoutBlanksBehind(QByteArrayView text) {
  while (text.endsWith(' ')) text.chop(1);
  return text;
}

int CompareNoCase(void*, int aBytes, const void* a, int bBytes, const void* b) {
  return CompareUtf8({static_cast<const char*>(a), aBytes}, {static_cast<const char*>(b), bBytes});
}

int CompareTrimmed(void*, int aBytes, const void* a, int bBytes, const void* b) {
  return CompareUtf8(WithoutBlanksBehind({static_cast<const char*>(a), aBytes}),
                     WithoutBlanksBehind({static_cast<const char*>(b), bBytes}));
}

QString TextOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return QString::fromUtf8(text, sqlite3_value_bytes(value));
}

Value ValueOf(sqlite3_value* value) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
      return static_cast<qint64>(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
      return sqlite3_value_double(value);
    case SQLITE_NULL:
      return {};
    default:
      return TextOf(value);
  }
}

void Answer(sqlite3_context* context, const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Null:
      return sqlite3_result_null(context);
    case Value::Kind::YesNo:
    case Value::Kind::Whole:
      return sqlite3_result_int64(context, value.ToWhole());
    case Value::Kind::Floating:
      return sqlite3_result_double(context, value.ToNumber());
    case Value::Kind::Text:
    case Value::Kind::Date: {
      const bool date = value.kind() == Value::Kind::Date;
      const QByteArray utf8 = (date ? StoredDate(value.ToDate()) : value.ToText()).toUtf8();
      return sqlite3_result_text(context, utf8.constData(), static_cast<int>(utf8.size()),
                                 SQLITE_TRANSIENT);
    }
  }
}

void Fail(sqlite3_context* context, const Error& error) {
  const QByteArray message = EncodeError(error);
  sqlite3_result_error(context, message.constData(), static_cast<int>(message.size()));
}

// like(pattern, text): x LIKE y calls it with y first.
void Like(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL ||
      sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
    return sqlite3_result_null(context);
  }
  sqlite3_result_int(context, LikeText(TextOf(arguments[1]), TextOf(arguments[0])) ? 1 : 0);
}

bool IsText(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_TEXT;
}

double NumberOf(sqlite3_value* value) {
  if (!IsText(value)) return sqlite3_value_double(value);
  const QString text = TextOf(value);
  if (!IsNumeric(Value(text))) {
    throw Error(errors::DataTypeMismatch,
                QStringLiteral("\"%1\" cannot be added: it is not a number.").arg(text.left(60)));
  }
  return CDbl(Value(text));
}

void Plus(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_value* a = arguments[0];
  sqlite3_value* b = arguments[1];
  if (sqlite3_value_type(a) == SQLITE_NULL || sqlite3_value_type(b) == SQLITE_NULL) {
    return sqlite3_result_null(context);
  }
  try {
    if (IsText(a) && IsText(b)) return Answer(context, Value(TextOf(a) + TextOf(b)));
    if (sqlite3_value_type(a) == SQLITE_INTEGER && sqlite3_value_type(b) == SQLITE_INTEGER) {
      return sqlite3_result_int64(context, sqlite3_value_int64(a) + sqlite3_value_int64(b));
    }
    sqlite3_result_double(context, NumberOf(a) + NumberOf(b));
  } catch (const Error& error) {
    Fail(context, error);
  }
}

void Join(sqlite3_context* context, int, sqlite3_value** arguments) {
  Answer(context, Value(ValueOf(arguments[0]).ToText() + ValueOf(arguments[1]).ToText()));
}

// The type is the same for all rows of a statement, so it is read once and kept with the argument.
const ColumnType& TypeArgument(sqlite3_context* context, sqlite3_value** arguments) {
  if (const void* kept = sqlite3_get_auxdata(context, 1)) {
    return *static_cast<const ColumnType*>(kept);
  }
  auto type = std::make_unique<ColumnType>(ParseColumnType(TextOf(arguments[1])));
  sqlite3_set_auxdata(context, 1, type.release(),
                      [](void* kept) { delete static_cast<ColumnType*>(kept); });
  if (const void* kept = sqlite3_get_auxdata(context, 1)) {
    return *static_cast<const ColumnType*>(kept);
  }
  throw Error(errors::Database + SQLITE_NOMEM, QStringLiteral("The computer is out of memory."));
}

void ColumnValue(sqlite3_context* context, int, sqlite3_value** arguments) {
  try {
    const ColumnType& type = TypeArgument(context, arguments);
    Answer(context, ConvertToColumn(type, TextOf(arguments[2]), ValueOf(arguments[0])));
  } catch (const Error& error) {
    Fail(context, error);
  }
}

}  // namespace

void RegisterSqlFunctions(sqlite3* handle) {
  sqlite3_create_collation_v2(handle, "NOCASE", SQLITE_UTF8, nullptr, CompareNoCase, nullptr);
  sqlite3_create_collation_v2(handle, "RTRIM", SQLITE_UTF8, nullptr, CompareTrimmed, nullptr);
  const auto add = [handle](const char* name, int arguments, auto* function) {
    sqlite3_create_function_v2(handle, name, arguments, FunctionFlags, nullptr, function, nullptr,
                               nullptr, nullptr);
  };
  add("like", 2, Like);
  add("access_plus", 2, Plus);
  add("access_join", 2, Join);
  add("column_value", 3, ColumnValue);
}

}  // namespace tavrelin
