#include <QDir>
#include <QFile>
#include <QTextStream>

#include <optional>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/DataSource.h"

namespace tavrelin {

QString ConnectString;
QString DatabasePath;

QString ConnectStringFor(const QString& databasePath) {
  if (databasePath.contains(QStringLiteral(".mdb"))) {
    return QStringLiteral("DBQ=%1;Driver={Microsoft Access Driver (*.mdb)};").arg(databasePath);
  }
  if (databasePath.contains(QStringLiteral(".accdb"))) {
    return QStringLiteral("DBQ=%1;Driver={Microsoft Access Driver (*.mdb, *.accdb)};")
        .arg(databasePath);
  }
  return QStringLiteral("uid=;pwd=;dsn=Tavrelin");
}

namespace {

// The value behind "key=": up to the driver's part, since a path may hold a semicolon, else up to
// the next semicolon.
QString ValueIn(const QString& text, const QString& key) {
  qsizetype start = -1;
  for (qsizetype at = 0; (at = text.indexOf(key, at, Qt::CaseInsensitive)) >= 0; ++at) {
    if (at == 0 || text[at - 1] == u';') {
      start = at + key.size();
      break;
    }
  }
  if (start < 0) return {};
  qsizetype end = text.indexOf(QStringLiteral(";Driver="), start, Qt::CaseInsensitive);
  if (end < 0) end = text.indexOf(u';', start);
  return text.mid(start, end < 0 ? -1 : end - start).trimmed();
}

QStringList SourceFiles() {
  const QString own = qEnvironmentVariable("ODBCINI");
  return {own.isEmpty() ? QDir::homePath() + QStringLiteral("/.odbc.ini") : own,
          QStringLiteral("/etc/odbc.ini")};
}

// What a file of data sources says of one: its settings, or nothing.
std::optional<QString> DatabaseIn(const QString& file, const QString& source) {
  QFile ini(file);
  if (!ini.open(QIODevice::ReadOnly | QIODevice::Text)) return std::nullopt;
  std::optional<QString> database;
  bool inSource = false;
  QTextStream lines(&ini);
  while (!lines.atEnd()) {
    const QString line = lines.readLine().trimmed();
    if (line.startsWith(u'[')) {
      inSource =
          line.mid(1).section(u']', 0, 0).trimmed().compare(source, Qt::CaseInsensitive) == 0;
      if (inSource && !database) database = QString();
    } else if (inSource &&
               line.section(u'=', 0, 0).trimmed().compare(u"Database", Qt::CaseInsensitive) == 0) {
      database = line.section(u'=', 1).trimmed();
    }
  }
  return database;
}

QString FileOfSource(const QString& source) {
  for (const QString& file : SourceFiles()) {
    const std::optional<QString> database = DatabaseIn(file, source);
    if (!database) continue;
    if (!database->isEmpty()) return *database;
    throw Error(
        errors::FileUnusable,
        QStringLiteral("The data source \"%1\" in %2 names no file: add a line \"Database = \" "
                       "and the file's path.")
            .arg(source, file));
  }
  throw Error(errors::FileUnusable,
              QStringLiteral("[IM002] Data source name not found and no default driver specified"));
}

}  // namespace

QString ConnectStringOfFile(const QString& path) {
  return QStringLiteral("DBQ=%1;Driver={Microsoft Access Driver (*.mdb)};").arg(path);
}

QString FileOfConnectString(const QString& connectString) {
  const QString path = ValueIn(connectString, QStringLiteral("DBQ="));
  if (!path.isEmpty()) return PlatformPath(path);
  const QString source = ValueIn(connectString, QStringLiteral("dsn="));
  if (!source.isEmpty()) return PlatformPath(FileOfSource(source));
  throw Error(
      errors::FileUnusable,
      QStringLiteral("No database is chosen. Choose the club's file under Setup, Database."));
}

}  // namespace tavrelin
