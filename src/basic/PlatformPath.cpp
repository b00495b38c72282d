#include "basic/PlatformPath.h"

#include <QDir>

namespace tavrelin {

namespace {

bool HasDrive(const QString& path) {
  const auto isLetter = [](QChar c) { return c.toUpper() >= u'A' && c.toUpper() <= u'Z'; };
  return path.size() >= 2 && isLetter(path.at(0)) && path.at(1) == u':';
}

QString DataFolder() {
  const QString folder = qEnvironmentVariable("TAVRELIN_DATA");
  return folder.isEmpty() ? QDir::homePath() + QStringLiteral("/TavrelinData") : folder;
}

}  // namespace

QString PlatformPath(const QString& path) {
  QString rest = path;
  rest.replace(u'\\', u'/');
  if (!HasDrive(path)) return rest;
  const bool isFirstDrive = path.at(0).toUpper() == u'C';
  rest.remove(0, 2);
  while (rest.startsWith(u'/')) rest.remove(0, 1);
  const QString first = rest.section(u'/', 0, 0);
  if (isFirstDrive && first.compare(u"TavrelinData", Qt::CaseInsensitive) == 0) {
    return DataFolder() + rest.mid(first.size());
  }
  return QDir::homePath() + u'/' + rest;
}

}  // namespace tavrelin
