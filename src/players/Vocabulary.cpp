#include "players/Vocabulary.h"

namespace tavrelin {

namespace {

QString TextOf(const QList<CodeText>& list, const QString& code) {
  const QString wanted = code.trimmed();
  for (const CodeText& entry : list) {
    if (entry.code.compare(wanted, Qt::CaseInsensitive) == 0) return entry.text;
  }
  return wanted;
}

QStringList WithoutForeignCodes(QStringList codes) {
  codes.removeOne(QStringLiteral("NA"));
  codes.removeOne(QStringLiteral("ZA"));
  return codes;
}

}  // namespace

const QList<CodeText>& Divisions() {
  static const QList<CodeText> divisions = {
      {"AM", "Men"},    {"AW", "Women"},    {"JB", "Jr Boys"},   {"JG", "Jr Girls"},
      {"EM", "Elder"},  {"CA", "Cadet"},    {"CB", "Cadet Boy"}, {"CG", "Cadet Girl"},
      {"SM", "Sr Men"}, {"SW", "Sr Women"}, {"UK", "Unknown"},   {"AX", "Exempt"},
  };
  return divisions;
}

const QList<CodeText>& MembershipTypes() {
  static const QList<CodeText> types = {
      {"S", "Standard"}, {"P", "Provisional"}, {"L", "Lifetime"}, {"D", "Director"}, {"T", "Trial"},
  };
  return types;
}

QString DefaultMembershipType() {
  return QStringLiteral("S");
}

QString DivisionText(const QString& code) {
  return TextOf(Divisions(), code);
}

QString MembershipTypeText(const QString& code) {
  return TextOf(MembershipTypes(), code);
}

const QStringList& StateCodes() {
  static const QStringList codes =
      QStringLiteral(
          "AB AK AL AR AZ BC CA CO CT DC DE FL GA HI IA ID IL IN JP KS KY LA MA MB MD ME MI MN MO "
          "MS MT NA NB NC ND NE NH NJ NM NO NS NV NY OH OK ON OR PA PI PQ RI SC SD SK TN TX UT VA "
          "VT WA WI WV WY YK ZA US")
          .split(u' ');
  return codes;
}

const QStringList& StateFilterCodes() {
  static const QStringList codes = WithoutForeignCodes(StateCodes());
  return codes;
}

}  // namespace tavrelin
