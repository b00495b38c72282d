#pragma once

#include <QStringList>

#include "command/CommandLine.h"

namespace tavrelin {

/// Takes a command's arguments off their list one by one.
class OptionReader {
 public:
  explicit OptionReader(const QStringList& arguments) : left_(arguments) {}

  bool AtEnd() const { return left_.isEmpty(); }
  /// The next one; throws WrongUsage when there is none.
  QString Next() {
    if (left_.isEmpty()) throw WrongUsage();
    return left_.takeFirst();
  }

 private:
  QStringList left_;
};

}  // namespace tavrelin
