#pragma once

#include <optional>
#include <QList>
#include <QString>
#include <vector>

#include "basic/Value.h"
#include "data/ColumnType.h"
#include "data/Recordset.h"
#include "data/RowStore.h"

namespace tavrelin {

/// All rows of a query, and what their fields are.
struct RowSourceResult {
  QList<Field> fields;
  std::vector<ColumnType> types;
  RowStore rows;
  std::vector<qint64> ids;  ///< each row's number in the file; empty when rows cannot be edited
};

/// What stands behind a recordset that came from a file: gives its rows and takes single rows back.
/// Every operation throws Error and has then written nothing.
class RowSource {
 public:
  /// One value a field; what is not set was not touched.
  using PendingRow = std::vector<std::optional<Value>>;

  virtual ~RowSource() = default;

  virtual RowSourceResult Fetch() = 0;
  /// The table that single rows are written to; empty when they cannot be.
  virtual QString Table() const = 0;
  /// Writes a new row; gives back its number, and all its cells as the file now has them.
  virtual qint64 Insert(const PendingRow& values, std::vector<Value>& stored) = 0;
  /// Writes what is set in `values`; refuses when the row has gone meanwhile. What is set in a
  /// computed field is not written; the computed fields that are not set are worked out anew and
  /// put into `values`.
  virtual void Update(qint64 id, PendingRow& values) = 0;
  virtual void Delete(qint64 id) = 0;
};

}  // namespace tavrelin
