#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

#include "basic/Value.h"
#include "data/SqlErrors.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tavrelin {

/// One prepared statement in SQLite's own dialect; finalized, or given back to its owner, by scope.
class Statement {
 public:
  Statement(sqlite3* handle, const QString& sql);
  /// Borrows a statement that is kept elsewhere: reset at the scope's end, not finalized.
  Statement(sqlite3* handle, sqlite3_stmt* kept)
      : handle_(handle), statement_(kept), owned_(false) {}
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Parameters count from 1. Dates are bound as they are stored, yes as -1.
  void Bind(int parameter, const Value& value);
  /// All parameters at once; refuses a missing or surplus one.
  void BindAll(const QList<Value>& values);
  /// True when there is a row; throws Error on a failure.
  bool Step();

  QString Text(int column) const;
  qint64 Whole(int column) const;
  sqlite3_stmt* Handle() const { return statement_; }

 private:
  sqlite3* handle_;
  sqlite3_stmt* statement_ = nullptr;
  bool owned_ = true;
};

/// Runs SQLite statements that need no parameters.
void RunSql(sqlite3* handle, const QString& sql);

}  // namespace tavrelin
