#include "tournament/Classes.h"

#include "data/Connection.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

const QString Statement =
    u"SELECT SanctionID, ClassID, Name, HandicapPct, Shoes, RankMethod, PlayFormat, RankOverride "
    "FROM TournamentClasses WHERE SanctionID = ? "_s;

ClassRules RulesAt(const Recordset& rows) {
  return {rows.At(0).Trimmed(),
          rows.At(1).Trimmed(),
          rows.At(2).Trimmed(),
          rows.At(3).ToNumber(),
          static_cast<int>(rows.At(4).ToWhole()),
          rows.At(5).Trimmed(),
          rows.At(6).Trimmed(),
          rows.At(7).ToYesNo()};
}

QList<ClassRules> Read(Connection& connection, const QString& condition,
                       const QList<Value>& parameters) {
  Recordset rows;
  rows.Open(Statement + condition, connection, Recordset::Lock::ReadOnly, parameters);
  QList<ClassRules> classes;
  for (; !rows.AtEnd(); rows.MoveNext()) classes.append(RulesAt(rows));
  return classes;
}

}  // namespace

std::optional<ClassRules> FindClass(Connection& connection, const QString& sanctionID,
                                    const QString& classID) {
  const QList<ClassRules> found =
      Read(connection, u"AND ClassID = ?"_s, {sanctionID.trimmed(), classID.trimmed()});
  if (found.isEmpty()) return std::nullopt;
  return found.first();
}

QList<ClassRules> ClassesOf(Connection& connection, const QString& sanctionID) {
  return Read(connection, u"ORDER BY ClassID"_s, {sanctionID.trimmed()});
}

QList<ClassRules> ClassesOf(Connection& connection, const QString& sanctionID,
                            const QString& playFormat) {
  return Read(connection, u"AND PlayFormat = ? ORDER BY ClassID"_s,
              {sanctionID.trimmed(), playFormat});
}

Recordset OpenClasses(Connection& connection, const QString& sanctionID) {
  Recordset rows;
  rows.Open(u"SELECT * FROM TournamentClasses WHERE SanctionID = ?"_s, connection,
            Recordset::Lock::Optimistic, {sanctionID});
  return rows;
}

QList<CodeText> ClassChoices(const QList<ClassRules>& classes, const QString& between) {
  QList<CodeText> choices;
  for (const ClassRules& rules : classes) {
    const QString name = rules.name.isEmpty() ? QString() : between + rules.name;
    choices.append({rules.classID, rules.classID + name});
  }
  return choices;
}

}  // namespace tavrelin
