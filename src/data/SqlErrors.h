#pragma once

#include <QByteArray>

#include "basic/Error.h"

struct sqlite3;

namespace tavrelin {

/// Throws the Error that tells the operator what the file's last failure was and what to do.
[[noreturn]] void ThrowDatabaseError(sqlite3* handle);

/// An Error as the text that an SQL function may fail with; ThrowDatabaseError reads it back.
QByteArray EncodeError(const Error& error);

}  // namespace tavrelin
