#pragma once

#include <QList>
#include <QString>
#include <vector>

#include "data/Recordset.h"
#include "data/RowStore.h"

namespace tavrelin {

/// One key of a sort: a field and its direction.
struct SortTerm {
  int field = 0;
  bool descending = false;
};

/// "Field ASC, [Other] DESC" as keys; ascending where nothing is said. Throws Error: NoSuchField,
/// Syntax.
std::vector<SortTerm> ParseSortKeys(const QString& text, const QList<Field>& fields);

/// Orders row numbers by the keys: stable, null first, text by CompareText. Rows that already stand
/// in order are left alone.
void SortRows(std::vector<int>& order, const RowStore& rows, const QList<Field>& fields,
              const std::vector<SortTerm>& keys);

}  // namespace tavrelin
