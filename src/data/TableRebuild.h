#pragma once

#include "data/Dialect.h"

struct sqlite3;

namespace tavrelin {

/// Changes a column's type, or adds a numbering one, by writing the table anew: SQLite cannot do it
/// in place. Column order, rows with their numbers, indexes and triggers stay. All or nothing; a
/// value that the new type cannot hold is refused with an Error.
void RebuildTable(sqlite3* handle, const Translation::Rebuild& change);

}  // namespace tavrelin
