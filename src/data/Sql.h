#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "data/Statement.h"

namespace tavrelin {

/// The rows of a short query in SQLite's own dialect as texts; null is an empty one. Each `?` takes
/// the next parameter. For work on the layout of a file, which the Access dialect does not reach.
QList<QStringList> AskSql(sqlite3* db, const QString& query, const QStringList& parameters = {});

}  // namespace tavrelin
