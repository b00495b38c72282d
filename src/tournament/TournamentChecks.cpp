#include "tournament/TournamentChecks.h"

#include "basic/Conversions.h"
#include "data/Recordset.h"

namespace tavrelin {

namespace {

bool IsTaken(Recordset& others, const QString& field, const QString& key) {
  if (others.RecordCount() == 0) return false;
  others.MoveFirst();
  others.Find(field + " = '" + EscapeQuotes(key) + "'");
  return !others.AtEnd();
}

bool IsBlank(const Value& value) {
  return value.Trimmed().isEmpty();
}

// A date may be left blank, which is not the same as having none.
bool IsClassDate(const Value& value) {
  return !value.IsNull() && (IsBlank(value) || IsDate(value));
}

Refusal CheckRules(const RowValues& row, const Value& handicap) {
  const Value method = row.value("RankMethod");
  if (!IsClassDate(row.value("DateTime"))) return {"Invalid date or time"};
  if (!IsNumeric(handicap)) return {"Invalid Handicap"};
  if (!IsNumeric(row.value("Shoes"))) return {"Invalid Shoes per game"};
  if (IsBlank(method)) return {"Invalid rank method"};
  if (CDbl(handicap) > 0 && method.Trimmed() == "R")
    return {"QLTA does not allow Ringer Percent Tie-breaker for Handicap Class"};
  if (IsBlank(row.value("PlayFormat"))) return {"Invalid play format"};
  if (!IsNumeric(row.value("PlacesPaidOut")))
    return {"Invalid NoPA.  NoPA is the number of players that will be awarded in the class"};
  return {};
}

}  // namespace

RowCheck CheckTournament(const RowValues& row, bool newRow, Recordset& others,
                         const QString& storedNumber) {
  RowCheck check;
  const QString sanction = row.value("SanctionID").Trimmed();
  if (sanction.isEmpty()) return check.Drop();
  if (sanction.size() != 7) return check.Refuse("Invalid sanction number");
  const bool changed = !storedNumber.isEmpty() && CompareText(storedNumber, sanction) != 0;
  if ((newRow || changed) && IsTaken(others, "SanctionID", sanction))
    return check.Refuse("Duplicate sanction number");
  if (!IsDate(row.value("Date"))) return check.UndoAndStay("Invalid tournament date");
  check.Fix("SanctionID", sanction);
  return check;
}

RowCheck CheckTournamentClass(const RowValues& row, bool newRow, Recordset& others) {
  RowCheck check;
  const QString classID = row.value("ClassID").Trimmed();
  if (classID.isEmpty()) return check.Drop();
  if (newRow && IsTaken(others, "ClassID", classID)) return check.Refuse("Duplicate Class ID");
  // Later screens look a class up by its bare letter. That of a stored one stays: games go by it.
  if (newRow && row.value("ClassID").ToText() != classID) check.Fix("ClassID", classID);
  Value handicap = row.value("HandicapPct");
  if (IsBlank(handicap)) {
    handicap = 0;
    check.Fix("HandicapPct", handicap);
  }
  return check.RefuseIf(CheckRules(row, handicap));
}

QDateTime DefaultClassStart(const QDateTime& tournamentDate) {
  // By the clock on the wall: on the day it is changed, too, eight is not eight hours past
  // midnight.
  const QDateTime wall(tournamentDate.date(), tournamentDate.time(), Qt::UTC);
  const QDateTime start = wall.addSecs(8 * 60 * 60);
  return {start.date(), start.time()};
}

}  // namespace tavrelin
