#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "data/ColumnType.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tavrelin {

/// One column of a table in the file.
struct TableColumn {
  QString name;
  QString declared;
  ColumnType type;
};

/// What tables the file has and what their columns hold, in physical order. Remembered until the
/// layout changes, whichever connection changed it.
class Catalogue {
 public:
  explicit Catalogue(sqlite3* handle);
  ~Catalogue();
  Catalogue(const Catalogue&) = delete;
  Catalogue& operator=(const Catalogue&) = delete;

  /// Grows with every change of the layout.
  int Version();
  /// The columns of a table; empty when there is no such table. Case of the name is disregarded.
  const QList<TableColumn>& Columns(const QString& table);

 private:
  QList<TableColumn> Read(const QString& table) const;

  sqlite3* handle_;
  sqlite3_stmt* version_ = nullptr;
  int known_ = -1;
  QHash<QString, QList<TableColumn>> tables_;
};

}  // namespace tavrelin
