#include "print/Fonts.h"

#include <algorithm>
#include <cmath>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>

namespace tavrelin {

namespace {

constexpr int TwipsPerPoint = 20;

void AddFontFile(const QString& path) {
  if (QFile::exists(path)) QFontDatabase::addApplicationFont(path);
}

bool AddMissingFonts() {
  if (!QFontDatabase::hasFamily(QStringLiteral("Tahoma"))) {
    AddFontFile(QStringLiteral("/usr/share/wine/fonts/tahoma.ttf"));
    AddFontFile(QStringLiteral("/usr/share/wine/fonts/tahomabd.ttf"));
  }
  QFont::insertSubstitutions(
      QStringLiteral("Arial"),
      {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Helvetica")});
  return true;
}

}  // namespace

void LoadFonts() {
  [[maybe_unused]] static const bool done = AddMissingFonts();
}

QFont TwipFont(const PageFont& font) {
  LoadFonts();
  QFont drawn(font.name);
  drawn.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * TwipsPerPoint))));
  drawn.setWeight(static_cast<QFont::Weight>(std::clamp(font.weight, 1, 1000)));
  drawn.setItalic(font.italic);
  drawn.setUnderline(font.underline);
  drawn.setStrikeOut(font.strikethrough);
  drawn.setHintingPreference(QFont::PreferNoHinting);
  return drawn;
}

int LineHeight(const PageFont& font) {
  return static_cast<int>(std::lround(QFontMetricsF(TwipFont(font)).height()));
}

int Ascent(const PageFont& font) {
  return static_cast<int>(std::lround(QFontMetricsF(TwipFont(font)).ascent()));
}

int TextWidth(const PageFont& font, const QString& text) {
  return static_cast<int>(std::lround(QFontMetricsF(TwipFont(font)).horizontalAdvance(text)));
}

}  // namespace tavrelin
