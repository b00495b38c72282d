#include "players/PlayerTexts.h"

#include <algorithm>
#include <iterator>

namespace tavrelin {

namespace {

bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

bool IsCapital(QChar c) {
  return c >= u'A' && c <= u'Z';
}

}  // namespace

QString ShownZipCode(const Value& stored) {
  const QString zip = stored.ToText();
  const QString trimmed = zip.trimmed();
  if (trimmed.size() != 9) return zip;
  return trimmed.left(5) + u'-' + trimmed.right(4);
}

QChar ZipCodeCharacter(QChar typed) {
  if (typed >= u'a' && typed <= u'z') return typed.toUpper();
  return IsDigit(typed) || IsCapital(typed) ? typed : QChar();
}

QString StoredZipCode(const QString& typed) {
  QString stored;
  for (const QChar c : typed) {
    const QChar kept = ZipCodeCharacter(c);
    if (!kept.isNull()) stored += kept;
  }
  return stored;
}

QString StoredTelephone(const QString& typed) {
  QString digits;
  std::copy_if(typed.begin(), typed.end(), std::back_inserter(digits), IsDigit);
  return digits;
}

}  // namespace tavrelin
