#include "players/CheckPlayerScore.h"

#include <cmath>

#include "basic/Conversions.h"
#include "basic/Figures.h"
#include "data/Recordset.h"

namespace tavrelin {

namespace {

bool IsBlank(const Value& value) {
  return value.Trimmed().isEmpty();
}

// Shoes are counted whole: a third of a shoe would be stored as none.
bool HasShoesAndRingers(const RowValues& row) {
  const Value shoes = row.value("Shoes");
  return IsNumeric(shoes) && RoundHalfEven(CDbl(shoes)) != 0 && IsNumeric(row.value("Ringers"));
}

bool IsInHalves(const Value& value) {
  if (!IsInt(value)) return false;
  const double tenths = std::fmod(RoundHalfEven(CDbl(value) * 10), 10);
  return tenths == 0 || tenths == 5;
}

bool IsDuplicate(const RowValues& row, Recordset& scores) {
  if (scores.RecordCount() == 0) return false;
  scores.MoveFirst();
  scores.Find(QStringLiteral("PlayerID = '%1' AND SanctionID = '%2'")
                  .arg(EscapeQuotes(row.value("PlayerID").Trimmed()),
                       EscapeQuotes(row.value("SanctionID").Trimmed())));
  return !scores.AtEnd();
}

}  // namespace

Value RingerPercent(const Value& ringers, const Value& shoes) {
  if (!IsNumeric(ringers) || !IsNumeric(shoes) || CDbl(shoes) == 0) return {};
  return RingerPercentage(CDbl(ringers), CDbl(shoes));
}

RowCheck CheckPlayerScore(const RowValues& row, bool newRow, Recordset& scores) {
  RowCheck check;
  if (IsBlank(row.value("PlayerID")) || IsBlank(row.value("SanctionID"))) return check.Drop();
  if (!HasShoesAndRingers(row)) return check.Drop();
  if (!IsInHalves(row.value("Wins"))) return check.Refuse("Invalid Wins.");
  if (!IsInHalves(row.value("Losses"))) return check.Refuse("Invalid Losses.");
  if (!IsInt(row.value("Place"))) return check.Refuse("Invalid Place.");
  if (!IsInt(row.value("HiGame"))) return check.Refuse("Invalid High Game.");
  if (newRow && IsDuplicate(row, scores)) {
    return check.Refuse("Duplicate sanction number for given player");
  }
  check.Fix("Pct", RingerPercent(row.value("Ringers"), row.value("Shoes")));
  return check;
}

}  // namespace tavrelin
