#include "print/Fonts.h"

#include <QFile>
#include <QFontDatabase>

namespace tavrelin {

namespace {

void AddFontFile(const QString& path) {
  if (QFile::exists(path)) QFontDatabase::addApplicationFont(path);
}

}  // namespace

void LoadFonts() {
  const QStringList families = QFontDatabase::families();
  if (!families.contains(QStringLiteral("Tahoma"))) {
    AddFontFile(QStringLiteral("/usr/share/wine/fonts/tahoma.ttf"));
    AddFontFile(QStringLiteral("/usr/share/wine/fonts/tahomabd.ttf"));
  }
  if (!families.contains(QStringLiteral("Arial"))) {
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
  }
}

QFont PaperFont(const QString& family, double points) {
  QFont font(family);
  font.setPointSizeF(points);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace tavrelin
