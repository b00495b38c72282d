#include "support/BuiltProgram.h"

namespace tavrelin {

QString BuiltProgram(const QString& name) {
  return QStringLiteral(TAVRELIN_BINARY_DIR "/src/app/") + name;
}

QString SourceFolder() {
  return QStringLiteral(TAVRELIN_SOURCE_DIR);
}

}  // namespace tavrelin
