#pragma once

#include <QDate>
#include <QString>

struct sqlite3;

namespace tavrelin {

/// Copies an open club file, as its last commit left it, to a new file at a platform path. The copy
/// is read back and compared before it takes its name. Throws Error, with nothing left behind, when
/// it cannot be made or a file of that name exists.
void CopyClubFile(sqlite3* from, const QString& path);

/// The copy that is kept beside a file before its layout is changed:
/// "Tavrelin.before-upgrade-2026-11-21.mdb", with "-2" and so on behind the date when there is one
/// already. Returns its path.
QString CopyBeforeUpgrade(sqlite3* from, const QString& file, const QDate& today);

}  // namespace tavrelin
