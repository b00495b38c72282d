#pragma once

#include <functional>
#include <list>
#include <memory>
#include <QString>

#include "data/Catalogue.h"
#include "data/Connection.h"
#include "data/Dialect.h"
#include "data/FileClaim.h"
#include "data/Statement.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tavrelin {

/// What an open connection consists of.
struct Connection::Private {
  Private() = default;
  ~Private();
  Private(const Private&) = delete;
  Private& operator=(const Private&) = delete;

  /// A statement with parameters, kept for the next time the same text comes.
  struct Kept {
    QString sql;
    bool withRowNumber = false;
    int layout = 0;
    Translation translation;
    sqlite3_stmt* statement = nullptr;
  };

  void OpenFile(const QString& path);
  void OpenCopy(const QString& path);
  /// Translates and prepares a statement, binds its parameters and hands it to `work`. A statement
  /// with parameters is kept prepared for the next time. A Rebuild has no statement of its own.
  using Work = std::function<void(const Translation&, Statement*)>;
  void Run(const QString& sql, bool withRowNumber, const QList<Value>& parameters,
           const Work& work);
  /// Refuses when SQLite has given up the open batch by itself, as it does on a full disk: what
  /// follows must not be written row by row.
  void CheckBatch() const;
  const Kept& Keep(const QString& sql, bool withRowNumber);

  QString file;
  FileClaim claim;
  sqlite3* handle = nullptr;
  std::unique_ptr<Catalogue> catalogue;
  std::list<Kept> kept;  ///< the latest first
  int batches = 0;       ///< how deep Batches stand in each other
};

}  // namespace tavrelin
