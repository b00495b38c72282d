#pragma once

#include <QList>
#include <QString>

#include "basic/Error.h"
#include "data/Recordset.h"

namespace tavrelin {

/// The place of a field by its name, case disregarded; -1 when there is none.
inline int IndexOfField(const QList<Field>& fields, const QString& name) {
  for (int i = 0; i < fields.size(); ++i) {
    const QString& own = fields[i].name;
    // Lengths first: this stands in the inner loop of every rule.
    if (own.size() == name.size() && own.compare(name, Qt::CaseInsensitive) == 0) return i;
  }
  return -1;
}

[[noreturn]] inline void RefuseField(const QString& name) {
  throw Error(errors::NoSuchField, QStringLiteral("There is no field \"%1\".").arg(name));
}

}  // namespace tavrelin
