#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

class Connection;

/// One thing that was looked at in a club's file.
struct ClubFinding {
  enum class Kind {
    Fine,
    Note,   ///< left behind by the system's own rules, as the results of a deleted player are
    Wrong,  ///< damage: something that no working file has
  };
  Kind kind = Kind::Fine;
  QString check;  ///< "integrity", "version", "layout", "orphans"
  QString table;  ///< empty when it is about the whole file
  QString finding;
};

/// Looks a file over without writing: SQLite's own check of pages and indexes, the version, missing
/// tables and columns, and rows that point at nothing. Throws Error only when the file cannot be
/// read at all.
QList<ClubFinding> CheckClub(Connection& connection);

}  // namespace tavrelin
