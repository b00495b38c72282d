#pragma once

struct sqlite3;

namespace tavrelin {

/// Before every commit, a single statement's too: refuses it when the file under the connection is
/// no longer the file at its path (replaced, moved, deleted) or was cut short. SQLite alone would
/// go on writing into a file that nobody will open again.
void GuardCommits(sqlite3* handle);

/// True when the file under the connection is no longer the file at its path or was cut short. An
/// emptied file looks to SQLite like a new one, whose tables are missing.
bool IsFileGone(sqlite3* handle);

}  // namespace tavrelin
