#pragma once

#include <QList>
#include <QString>
#include <vector>

#include "controls/GridColumn.h"

namespace tavrelin {

class Recordset;

enum class SortOrder { Ascending = 1, Descending = -1 };

struct GridSortKey {
  QString column;  ///< key of a column
  SortOrder order = SortOrder::Ascending;
};

/// A sort key with its column looked up.
struct ColumnOrder {
  GridColumn column;
  SortOrder order = SortOrder::Ascending;
};

/// The recordset's own sort for these keys, "Field ASC, Other DESC"; fields that it does not have
/// are passed over.
QString SortText(const Recordset& recordset, const QList<ColumnOrder>& keys);

/// The positions of a recordset in the order to show, where a column sorts as number or date while
/// its field is text, or by its shown text, so that the recordset's own sort cannot serve; empty
/// otherwise.
std::vector<int> OrderBeyondFields(const Recordset& recordset, const QList<ColumnOrder>& keys);

}  // namespace tavrelin
