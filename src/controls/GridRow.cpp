#include "controls/GridRow.h"

#include "controls/GridEX.h"

namespace tavrelin {

RowValues CurrentRow(const GridEX& grid) {
  RowValues row;
  for (const GridColumn& column : grid.Columns()) {
    const Value value = grid.Value(column.Key());
    row.insert(column.field, value);
    row.insert(column.Key(), value);
  }
  return row;
}

}  // namespace tavrelin
