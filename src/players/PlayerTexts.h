#pragma once

#include <QString>

#include "basic/Value.h"

namespace tavrelin {

/// A postal code as people read it: nine characters with a hyphen behind the fifth, anything else
/// as stored, null empty.
QString ShownZipCode(const Value& stored);
/// A postal code as the file keeps it: letters and digits alone, in upper case.
QString StoredZipCode(const QString& typed);
/// What a typed character becomes in a postal code: a capital letter or a digit; null for one that
/// has no place in it.
QChar ZipCodeCharacter(QChar typed);

/// A telephone number as the file keeps it: its digits alone, however it was typed.
QString StoredTelephone(const QString& typed);

}  // namespace tavrelin
