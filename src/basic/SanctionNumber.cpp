#include "basic/SanctionNumber.h"

#include "basic/Picture.h"

namespace tavrelin {

namespace {

constexpr QLatin1String ThreeBlanks("   ");

bool MayStand(QChar c) {
  return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || c == u' ';
}

bool BeginsWritten(const QString& text) {
  return text.size() >= 9 && text.at(2) == u'-' && text.at(5) == u'-';
}

}  // namespace

QChar SanctionKey(QChar typed) {
  return typed >= u'a' && typed <= u'z' ? typed.toUpper() : typed;
}

QString CleanSanction(const QString& typed) {
  QString clean;
  for (const QChar c : typed) {
    if (MayStand(SanctionKey(c))) clean += SanctionKey(c);
  }
  return clean;
}

QString SanctionComboText(const QString& sanctionID, const QString& name) {
  const QString trimmed = name.trimmed();
  const QString number = FormatSanction(sanctionID);
  return trimmed.isEmpty() ? number : number + ThreeBlanks + trimmed;
}

QString SanctionOfComboText(const QString& text) {
  if (BeginsWritten(text)) return (text.left(2) + text.mid(3, 2) + text.mid(6, 3)).trimmed();
  return text.left(text.indexOf(ThreeBlanks)).trimmed();
}

}  // namespace tavrelin
