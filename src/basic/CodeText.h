#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

/// A code as the file stores it and the text that people read for it: one entry of a box or of a
/// column's value list.
struct CodeText {
  QString code;
  QString text;
};

}  // namespace tavrelin
