#pragma once

#include <QList>
#include <QString>
#include <vector>

#include "controls/GridColumn.h"

namespace tavrelin {

class Recordset;

enum class SortOrder { Ascending = 1, Descending = -1 };

struct SortKey {
  QString column;  ///< key of a column
  SortOrder order = SortOrder::Ascending;
};

/// A sort key with its column looked up.
struct ColumnOrder {
  GridColumn column;
  SortOrder order = SortOrder::Ascending;
};

/// Sorts a recordset by its fields, in the order of the keys; keys on fields it does not have are
/// passed over, and without any key its order stays. Where a column sorts as number or date while
/// its field is text, the recordset's own sort cannot serve: then the answer lists its positions in
/// the order to show; empty means the recordset's order.
std::vector<int> SortRecordset(Recordset& recordset, const QList<ColumnOrder>& keys);

}  // namespace tavrelin
