#include "leagues/LeagueChecks.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "basic/SanctionNumber.h"
#include "data/Connection.h"
#include "data/Recordset.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int SanctionLength = 7;
constexpr double MostHandicap = 100;

bool IsBlank(const RowValues& row, const QString& field) {
  return row[field].Trimmed().isEmpty();
}

bool IsUntouched(const RowValues& row) {
  return IsBlank(row, u"Name"_s) && IsBlank(row, u"City"_s) && IsBlank(row, u"Director"_s);
}

bool HoldsNumber(Connection& connection, const QString& table, const QString& sanction) {
  Recordset rows;
  rows.Open(u"SELECT COUNT(*) AS Held FROM %1 WHERE SanctionID = ?"_s.arg(table), connection,
            Recordset::Lock::ReadOnly, {sanction});
  return rows.At(0).ToWhole() > 0;
}

/// What a deleted league left behind comes back to a new league of its number; a stored one that
/// is given the number would mix two seasons.
bool IsTaken(Connection& connection, const QString& sanction, const QString& storedNumber) {
  if (CompareText(sanction, storedNumber) == 0) return false;
  QStringList tables = {u"Leagues"_s};
  if (!storedNumber.isEmpty())
    tables << u"LeagueMembers"_s << u"LeagueTeams"_s << u"LeagueScores"_s;
  return std::any_of(tables.begin(), tables.end(), [&](const QString& table) {
    return HoldsNumber(connection, table, sanction);
  });
}

bool IsPercentage(const Value& value) {
  return IsNumeric(value) && CDbl(value) >= 0 && CDbl(value) <= MostHandicap;
}

bool IsCount(const Value& value) {
  return IsInt(value) && CInt(value) >= 0;
}

bool IsWholeCount(const Value& value) {
  return IsCount(value) && CDbl(value) == CInt(value);
}

/// What is wrong with a league's own columns, in the order in which it is told; empty when nothing.
QString WrongColumn(const RowValues& row) {
  if (IsBlank(row, u"Name"_s)) return u"League Name required"_s;
  if (IsBlank(row, u"State"_s)) return u"State required"_s;
  if (!IsPercentage(row[u"HandicapPct"_s])) return u"Invalid Handicap"_s;
  if (!IsCount(row[u"Shoes"_s])) return u"Invalid Shoes per game"_s;
  if (!QStringList{u"S"_s, u"T"_s}.contains(row[u"PlayFormat"_s].Trimmed())) {
    return u"Select either Singles or Teams for play format."_s;
  }
  return {};
}

}  // namespace

RowCheck CheckLeague(Connection& connection, const RowValues& row, const QString& storedNumber) {
  RowCheck check;
  const QString sanction = CleanSanction(row[u"SanctionID"_s].ToText()).trimmed();
  if (sanction.isEmpty()) return IsUntouched(row) ? check.Drop() : check.Refuse({});
  check.Fix(u"SanctionID"_s, sanction);
  if (sanction.size() != SanctionLength) return check.Refuse(u"Invalid sanction number"_s);
  if (IsTaken(connection, sanction, storedNumber)) {
    return check.Refuse(u"Duplicate sanction number"_s);
  }
  const QString wrong = WrongColumn(row);
  return wrong.isEmpty() ? check : check.Refuse(wrong);
}

RowCheck CheckLeagueMember(const RowValues& row) {
  RowCheck check;
  for (const QString& field : {u"StartingAverage"_s, u"HighGamePoints"_s, u"HighGameRingers"_s}) {
    if (IsBlank(row, field)) check.Fix(field, 0);
  }
  const auto isFilled = [&](const QString& field) { return !IsBlank(row, field); };
  if (isFilled(u"StartingAverage"_s) && !IsCount(row[u"StartingAverage"_s])) {
    return check.Refuse(u"Invalid Handicap"_s);
  }
  if (isFilled(u"HighGamePoints"_s) && !IsWholeCount(row[u"HighGamePoints"_s])) {
    return check.Refuse(u"Invalid high game points"_s);
  }
  if (isFilled(u"HighGameRingers"_s) && !IsWholeCount(row[u"HighGameRingers"_s])) {
    return check.Refuse(u"Invalid high game ringers"_s);
  }
  return check;
}

}  // namespace tavrelin
