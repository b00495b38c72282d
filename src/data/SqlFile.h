#pragma once

#include <memory>
#include <QString>

struct sqlite3;

namespace tavrelin {

struct CloseSqlFile {
  void operator()(sqlite3* handle) const;
};

/// A file open in SQLite alone, without the dialect and the claim of a Connection: for work on
/// whole files. Closed by scope.
using SqlFile = std::unique_ptr<sqlite3, CloseSqlFile>;

enum class SqlAccess { Read, Change, Make };

/// Opens a file at a platform path; throws Error. Waits a moment for a file that others use.
SqlFile OpenSqlFile(const QString& path, SqlAccess access);

/// Copies all pages of one open file over another, as the last commit left them. Throws Error, also
/// when others keep on writing.
void CopyAllPages(sqlite3* from, sqlite3* to);

}  // namespace tavrelin
