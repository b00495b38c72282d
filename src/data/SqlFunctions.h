#pragma once

struct sqlite3;

namespace tavrelin {

/// Gives a connection the Access dialect's ways: texts compare by CompareText (collations NOCASE,
/// and RTRIM for CHAR columns, blanks behind disregarded), LIKE by LikeText, and three functions
/// that translated statements call: access_plus(a, b), access_join(a, b), and
/// column_value(value, declared type, column), which holds a value to its column or fails.
void RegisterSqlFunctions(sqlite3* handle);

}  // namespace tavrelin
