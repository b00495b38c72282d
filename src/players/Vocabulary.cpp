#include "players/Vocabulary.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// A division with its words: in lists to choose from, and beside an entry (empty: "Unknown").
struct Division {
  QString code;
  QString text;
  QString entryText;
};

const QList<Division>& DivisionWords() {
  static const QList<Division> divisions = {
      {u"AM"_s, u"Men"_s, u"Men"_s},
      {u"AW"_s, u"Women"_s, u"Women"_s},
      {u"JB"_s, u"Jr Boys"_s, u"Jr Boy"_s},
      {u"JG"_s, u"Jr Girls"_s, u"Jr Girl"_s},
      {u"EM"_s, u"Elder"_s, u"Elder"_s},
      {u"CA"_s, u"Cadet"_s, u"Cadet"_s},
      {u"CB"_s, u"Cadet Boy"_s, u"Cadet Boy"_s},
      {u"CG"_s, u"Cadet Girl"_s, u"Cadet Girl"_s},
      {u"SM"_s, u"Sr Men"_s, {}},
      {u"SW"_s, u"Sr Women"_s, {}},
      {u"UK"_s, u"Unknown"_s, {}},
      {u"AX"_s, u"Exempt"_s, u"Exempt"_s},
  };
  return divisions;
}

/// The entry of a code in a list; null where the list has none.
template <typename Entry>
const Entry* Find(const QList<Entry>& list, const QString& code) {
  const QString wanted = code.trimmed();
  for (const Entry& entry : list) {
    if (entry.code.compare(wanted, Qt::CaseInsensitive) == 0) return &entry;
  }
  return nullptr;
}

QList<CodeText> MakeDivisions() {
  QList<CodeText> list;
  for (const Division& division : DivisionWords()) list.append({division.code, division.text});
  return list;
}

QStringList WithoutForeignCodes(QStringList codes) {
  codes.removeOne(QStringLiteral("NA"));
  codes.removeOne(QStringLiteral("ZA"));
  return codes;
}

}  // namespace

const QList<CodeText>& Divisions() {
  static const QList<CodeText> divisions = MakeDivisions();
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
  const Division* division = Find(DivisionWords(), code);
  return division ? division->text : code.trimmed();
}

QString EntryDivisionText(const QString& code) {
  const Division* division = Find(DivisionWords(), code);
  return division && !division->entryText.isEmpty() ? division->entryText : u"Unknown"_s;
}

QString MembershipTypeText(const QString& code) {
  const CodeText* type = Find(MembershipTypes(), code);
  return type ? type->text : code.trimmed();
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
