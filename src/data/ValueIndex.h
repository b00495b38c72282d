#pragma once

#include <QByteArray>
#include <QHash>
#include <vector>

#include "data/Recordset.h"
#include "data/RowStore.h"

namespace tavrelin {

/// Which rows may hold a value in one field. It answers with candidates: a row that was changed
/// stays under its old value too, so whoever asks tests each row again.
class ValueIndex {
 public:
  explicit ValueIndex(int field = 0) : field_(field) {}

  /// Takes in the rows that came since the last time.
  void CatchUp(const RowStore& rows);
  /// Takes in a row whose field was changed.
  void Add(const RowStore& rows, int row);
  std::vector<int> Candidates(const Value& wanted) const;

 private:
  int field_;
  int known_ = 0;
  QHash<QByteArray, std::vector<int>> rows_;
};

}  // namespace tavrelin
