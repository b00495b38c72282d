#include "basic/Error.h"

namespace tavrelin {

Error::Error(int number, QString description, QString source)
    : number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      utf8_(description_.toUtf8()) {}

}  // namespace tavrelin
