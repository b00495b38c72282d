#include "data/Statement.h"

#include <sqlite3.h>

#include "basic/Conversions.h"
#include "basic/Error.h"

namespace tavrelin {

Statement::Statement(sqlite3* handle, const QString& sql) : handle_(handle) {
  const QByteArray utf8 = sql.toUtf8();
  if (sqlite3_prepare_v2(handle, utf8.constData(), static_cast<int>(utf8.size()), &statement_,
                         nullptr) != SQLITE_OK) {
    ThrowDatabaseError(handle);
  }
}

Statement::~Statement() {
  if (owned_) {
    sqlite3_finalize(statement_);
  } else {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
  }
}

void Statement::Bind(int parameter, const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Null:
      sqlite3_bind_null(statement_, parameter);
      break;
    case Value::Kind::YesNo:
    case Value::Kind::Whole:
      sqlite3_bind_int64(statement_, parameter, value.ToWhole());
      break;
    case Value::Kind::Floating:
      sqlite3_bind_double(statement_, parameter, value.ToNumber());
      break;
    case Value::Kind::Text:
    case Value::Kind::Date: {
      const bool date = value.kind() == Value::Kind::Date;
      const QByteArray utf8 = (date ? StoredDate(value.ToDate()) : value.ToText()).toUtf8();
      sqlite3_bind_text64(statement_, parameter, utf8.constData(),
                          static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
      break;
    }
  }
}

void Statement::BindAll(const QList<Value>& values) {
  if (sqlite3_bind_parameter_count(statement_) != values.size()) {
    throw Error(errors::Syntax,
                QStringLiteral("The statement has %1 parameters, and %2 values were given.")
                    .arg(sqlite3_bind_parameter_count(statement_))
                    .arg(values.size()));
  }
  for (int i = 0; i < values.size(); ++i) Bind(i + 1, values[i]);
}

bool Statement::Step() {
  const int rc = sqlite3_step(statement_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  sqlite3_reset(statement_);
  ThrowDatabaseError(handle_);
}

QString Statement::Text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
}

qint64 Statement::Whole(int column) const {
  return sqlite3_column_int64(statement_, column);
}

void RunSql(sqlite3* handle, const QString& sql) {
  if (sqlite3_exec(handle, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    ThrowDatabaseError(handle);
  }
}

}  // namespace tavrelin
