#pragma once

#include <memory>
#include <QList>
#include <QString>

#include "basic/PlatformPath.h"
#include "basic/Value.h"

struct sqlite3;

namespace tavrelin {

/// The connection text with which every screen opens its own connection, and the path of the club's
/// file. Written by start-up and by the Database screen alone. The only two process-wide values of
/// the program.
extern QString ConnectString;
extern QString DatabasePath;

/// One open club file, spoken to in the Access dialect of SQL.
///
/// Opening and every statement throw Error: a sentence for the operator, never SQLite's bare words.
/// A statement that is refused has written nothing. Every statement outside a Batch is one commit,
/// on disk when the call returns. Not shared between screens; not copied; closing is the
/// destructor's work.
class Connection {
 public:
  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// "DBQ=path;..." opens the file at that path; "...dsn=NAME" opens the file that the data source
  /// NAME names and fails at once when none is defined. Refuses: a file that is missing, no club
  /// file, damaged, from a newer program, an Access file, or open in another copy of the program.
  void Open(const QString& connectString);

  /// A snapshot for reports beside an open window: the file's present content in memory. Nothing
  /// that is written to it reaches the file.
  void OpenSnapshot(const QString& connectString);

  void Close();
  bool IsOpen() const;
  /// The platform path of the open file; empty when closed.
  QString FilePath() const;

  /// Runs one statement that returns no rows; each `?` in it takes the next parameter. Returns the
  /// number of rows changed. Values are converted to their column's type, or refused, as
  /// Recordset::Update does.
  qint64 Execute(const QString& sql, const QList<Value>& parameters = {});

  /// For the data layer alone (Recordset, Schema, backup). Null when closed. Owned by the
  /// connection.
  sqlite3* Handle() const;

  struct Private;
  Private* d() const { return d_.get(); }

 private:
  std::unique_ptr<Private> d_;
};

/// Many rows, one commit. Commits what was written when the scope ends, also when a statement
/// failed half way: rows written before a failure stay. After a crash the file holds all of a batch
/// or none of it. A Batch inside a Batch joins the outer one.
class Batch {
 public:
  explicit Batch(Connection& connection);
  /// Commits. Swallows a failed commit only while another error is on its way; Commit() reports it.
  ~Batch() noexcept(false);
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;

  /// Commits now and throws Error when that fails; nothing of the batch is in the file then.
  void Commit();
  /// Gives the whole batch up, for work that must be there whole or not at all.
  void Rollback();

 private:
  Connection& connection_;
  bool outermost_;
  bool open_ = true;
  int exceptions_;
};

/// The rule that turns a club file's path into a connection text: ".mdb" anywhere, else ".accdb",
/// else the data source "Tavrelin". Case counts.
QString ConnectStringFor(const QString& databasePath);

}  // namespace tavrelin
