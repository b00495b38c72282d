#pragma once

#include <QString>
#include <QStringList>

#include "data/Recordset.h"

namespace tavrelin {

/// One field of all rows shown, in their order, joined by blanks: the shape of a recordset at a
/// glance. Null shows as "-".
inline QString Column(const Recordset& rows, const QString& field) {
  QStringList texts;
  const int index = rows.FieldIndex(field);
  for (int position = 1; position <= rows.RecordCount(); ++position) {
    const Value cell = rows.CellAt(position, index);
    texts.append(cell.IsNull() ? QStringLiteral("-") : cell.ToText());
  }
  return texts.join(u' ');
}

}  // namespace tavrelin
