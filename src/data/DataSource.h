#pragma once

#include <QString>

namespace tavrelin {

/// The platform's path of the file that a connection text names, by "DBQ=" or by "dsn=" through
/// $ODBCINI (else ~/.odbc.ini) and /etc/odbc.ini. Throws Error when there is no such data source.
QString FileOfConnectString(const QString& connectString);

/// A connection text for the file at a path, whatever it ends in.
QString ConnectStringOfFile(const QString& path);

}  // namespace tavrelin
