#include "data/CommitGuard.h"

#include <sqlite3.h>

#include <array>
#include <cstring>

#include <QtEndian>

namespace tavrelin {
namespace {

// Where the file's first page keeps the size of a page and the number of pages.
constexpr int HeaderSize = 32;
constexpr int PageSizeAt = 16;
constexpr int PageCountAt = 28;

bool HasMoved(sqlite3* handle) {
  int moved = 0;
  sqlite3_file_control(handle, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

// Read through SQLite's own handle: opening the file a second time would drop its locks.
bool IsCutShort(sqlite3* handle) {
  sqlite3_file* file = nullptr;
  sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  if (!file || !file->pMethods) return false;
  sqlite3_int64 size = 0;
  std::array<uchar, HeaderSize> header{};
  if (file->pMethods->xFileSize(file, &size) != SQLITE_OK || size < HeaderSize) return true;
  if (file->pMethods->xRead(file, header.data(), HeaderSize, 0) != SQLITE_OK) return true;
  if (std::memcmp(header.data(), "SQLite format 3", 16) != 0) return true;
  const sqlite3_int64 page = qFromBigEndian<quint16>(header.data() + PageSizeAt);
  const sqlite3_int64 pages = qFromBigEndian<quint32>(header.data() + PageCountAt);
  return size < pages * (page == 1 ? 65536 : page);
}

int RefuseWhenGone(void* handle) {
  return IsFileGone(static_cast<sqlite3*>(handle)) ? 1 : 0;
}

}  // namespace

bool IsFileGone(sqlite3* handle) {
  return HasMoved(handle) || IsCutShort(handle);
}

void GuardCommits(sqlite3* handle) {
  sqlite3_commit_hook(handle, RefuseWhenGone, handle);
}

}  // namespace tavrelin
