#pragma once

#include <QList>
#include <QString>

#include "data/Connection.h"
#include "data/Dialect.h"
#include "data/RowSource.h"

struct sqlite3_stmt;

namespace tavrelin {

/// A query on a connection as the source of a recordset.
class QuerySource : public RowSource {
 public:
  QuerySource(const QString& sql, Connection& connection, const QList<Value>& parameters,
              bool editable);

  RowSourceResult Fetch() override;
  QString Table() const override { return table_; }
  qint64 Insert(const PendingRow& values, std::vector<Value>& stored) override;
  void Update(qint64 id, PendingRow& values) override;
  void Delete(qint64 id) override;

 private:
  void Describe(const Translation& translation, sqlite3_stmt* statement, int columns,
                RowSourceResult& result);
  /// The open connection; throws Error when it was closed.
  Connection::Private& Link() const;
  bool IsWritten(size_t field, const PendingRow& values) const;
  std::vector<Value> ReadBack(qint64 id) const;

  QString sql_;
  Connection& connection_;
  QList<Value> parameters_;
  bool editable_;
  QString table_;
  QString rowSql_;
  QStringList columns_;  ///< the table's column behind each field; empty for a computed one
  QList<Field> fields_;
  std::vector<ColumnType> types_;
};

}  // namespace tavrelin
