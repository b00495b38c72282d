#include "leagues/TeamWins.h"

#include <cmath>
#include <optional>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "leagues/LeagueGames.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// The number of "no such table".
constexpr int NoTable = errors::Database + 1;

/// Nothing typed counts for none.
double Figure(const Value& value) {
  return IsNumeric(value) ? CDbl(value) : 0;
}

/// Empty, or a whole or half number that is not below 0.
bool IsWinCount(const Value& value) {
  if (value.Trimmed().isEmpty()) return true;
  if (!IsNumeric(value)) return false;
  const double count = CDbl(value);
  return count >= 0 && std::fmod(count * 2, 1) == 0;
}

bool IsTakenDay(const QDate& day, const Recordset& others, qint64 own) {
  const int field = others.FieldIndex(u"PlayDate"_s);
  for (int position = 1; position <= others.RecordCount(); ++position) {
    if (others.BookmarkAt(position) == own) continue;
    if (others.CellAt(position, field).ToDate().date() == day) return true;
  }
  return false;
}

}  // namespace

bool HasTeamWins(Connection& connection) {
  try {
    Recordset probe;
    probe.Open(u"Select TeamID from LeagueTeamScores WHERE 1 = 2"_s, connection);
    return true;
  } catch (const Error& error) {
    if (error.number() != NoTable) throw;
    return false;
  }
}

void EnsureTeamWins(Connection& connection) {
  if (HasTeamWins(connection)) return;
  connection.Execute(
      u"CREATE TABLE LeagueTeamScores (SanctionID Text(7), TeamID Integer, PlayDate DateTime, "
      "Wins Number, Losses Number, CONSTRAINT MyPK PRIMARY KEY(SanctionID, TeamID, PlayDate))"_s);
}

QHash<qint64, TeamRecord> AddedTeamWins(Connection& connection, const QString& sanctionID) {
  QHash<qint64, TeamRecord> added;
  if (!HasTeamWins(connection)) return added;
  Recordset rows;
  rows.Open(
      u"SELECT s.TeamID, SUM(s.Wins) As Win, SUM(s.Losses) AS Loss FROM LeagueTeamScores s "
      "WHERE s.SanctionID = ? GROUP BY s.TeamID"_s,
      connection, Recordset::Lock::ReadOnly, {sanctionID});
  for (; !rows.AtEnd(); rows.MoveNext()) {
    added[rows.At(0).ToWhole()] = {rows.At(1).ToNumber(), rows.At(2).ToNumber()};
  }
  return added;
}

Recordset OpenTeamWins(Connection& connection, const QString& sanctionID, qint64 teamID) {
  Recordset rows;
  rows.Open(
      u"Select * from LeagueTeamScores WHERE SanctionID = ? AND TeamID = ? ORDER BY PlayDate"_s,
      connection, Recordset::Lock::Optimistic, {sanctionID, teamID});
  return rows;
}

RowCheck CheckTeamWins(const RowValues& row, const QString& sanctionID, qint64 teamID,
                       const Recordset& others, qint64 own) {
  RowCheck check;
  check.Fix(u"SanctionID"_s, sanctionID);
  check.Fix(u"TeamID"_s, teamID);
  const Value wins = row.value(u"Wins"_s);
  const Value losses = row.value(u"Losses"_s);
  if (row.value(u"PlayDate"_s).Trimmed().isEmpty()) return check.Refuse({});
  const std::optional<QDate> day = LeagueDay(row.value(u"PlayDate"_s));
  if (!day) return check.Refuse(u"Invalid date."_s);
  if (Figure(wins) == 0 && Figure(losses) == 0) return check.Drop();
  if (!IsWinCount(wins)) return check.Refuse(u"Invalid Wins."_s);
  if (!IsWinCount(losses)) return check.Refuse(u"Invalid Losses."_s);
  if (IsTakenDay(*day, others, own)) {
    return check.Refuse(u"This team has wins on that date already.  Add them up in one row."_s);
  }
  check.Fix(u"PlayDate"_s, *day);
  check.Fix(u"Wins"_s, Figure(wins));
  check.Fix(u"Losses"_s, Figure(losses));
  return check;
}

}  // namespace tavrelin
