#include "players/CheckPlayer.h"

#include "basic/Conversions.h"
#include "data/Recordset.h"
#include "players/AllocatePlayerID.h"

namespace tavrelin {

namespace {

constexpr int FirstCardYear = 1950;
constexpr int LastCardYear = 2100;
constexpr int ZipCodeLength = 9;
constexpr int TelephoneLength = 10;

bool IsBlank(const Value& value) {
  return value.Trimmed().isEmpty();
}

void NullBecomesEmpty(RowCheck& check, const char* field, const RowValues& row) {
  if (row.value(field).IsNull()) check.Fix(field, QString());
}

/// The verdict on the names; Save when they stand.
RowCheck CheckNames(const RowValues& row) {
  RowCheck check;
  const QString last = row.value("LastName").Trimmed();
  const QString first = row.value("FirstName").Trimmed();
  if (last.isEmpty() && first.isEmpty()) return check.Drop();
  if (last.isEmpty()) return check.Drop("Invalid last name changes not committed.");
  if (first.isEmpty()) return check.Drop("Invalid first name changes not committed.");
  if (last.contains(u'"')) return check.Refuse("Double Quotes are not allowed in Last Name");
  if (first.contains(u'"')) return check.Refuse("Double Quotes are not allowed in First Name");
  return check;
}

/// Moves to another player with the same card; false when there is none.
bool FindSameCard(const RowValues& row, bool newRow, Recordset& players) {
  const QString card = row.value("CardNumber").Trimmed();
  if (card.isEmpty() || card == QLatin1String("000000") || players.RecordCount() == 0) return false;
  const QString criterion = QStringLiteral("CardNumber = '%1'").arg(EscapeQuotes(card));
  players.MoveFirst();
  players.Find(criterion);
  while (!players.AtEnd() && !newRow &&
         players["PlayerID"].Trimmed() == row.value("PlayerID").Trimmed()) {
    players.Find(criterion, 1);
  }
  return !players.AtEnd();
}

// The grid would hand these to the file as they were typed.
void CheckNumbers(const RowValues& row, RowCheck& check) {
  const Value years = row.value("Longevity"), average = row.value("Average");
  if (IsBlank(years)) check.Fix("Longevity", 0);
  if (!IsBlank(years) && !IsInt(years)) check.Refuse("Invalid years");
  if (!IsBlank(average) && !IsNumeric(average)) check.Refuse("Invalid ringer percent");
}

/// What is said of these does not end the check: the operator hears of the last one.
void CheckFigures(const RowValues& row, RowCheck& check) {
  NullBecomesEmpty(check, "CardYear", row);
  const double year = Val(row.value("CardYear").Trimmed());
  if (!IsBlank(row.value("CardYear")) && (year < FirstCardYear || year > LastCardYear)) {
    check.Refuse("Invalid card year");
  }
  CheckNumbers(row, check);
  if (!IsBlank(row.value("BirthDate")) && !IsDate(row.value("BirthDate")))
    check.Refuse("Invalid birth date");
}

void CheckLength(RowCheck& check, const RowValues& row, const char* field, qsizetype limit,
                 const char* message) {
  NullBecomesEmpty(check, field, row);
  if (row.value(field).Trimmed().size() > limit) check.Refuse(message);
}

void CheckContacts(const RowValues& row, RowCheck& check) {
  NullBecomesEmpty(check, "ZipCode", row);
  if (row.value("ZipCode").Trimmed().remove(u'-').size() > ZipCodeLength) {
    check.Refuse("Invalid zipcode");
  }
  CheckLength(check, row, "Telephone", TelephoneLength, "Invalid phone number");
  CheckLength(check, row, "CellPhone", TelephoneLength, "Invalid Cell Phone number");
}

}  // namespace

RowCheck CheckPlayer(const RowValues& row, bool newRow, Recordset& players,
                     std::optional<bool> sameCardConfirmed) {
  RowCheck check = CheckNames(row);
  if (check.verdict != RowCheck::Verdict::Save) return check;
  if (newRow) {
    check.Fix("PlayerID", AllocatePlayerID(players, row.value("LastName").Trimmed(),
                                           row.value("FirstName").Trimmed()));
  }
  NullBecomesEmpty(check, "CardNumber", row);
  if (sameCardConfirmed != true && FindSameCard(row, newRow, players)) {
    if (sameCardConfirmed.has_value()) return check.Drop();
    return check.AskFirst(
        "Confirm Card Number",
        QStringLiteral("That Card Number is already assigned to %1 %2.  Do you wish to continue "
                       "anyway?")
            .arg(players["FirstName"].ToText(), players["LastName"].ToText()));
  }
  if (IsBlank(row.value("Category"))) return check.Refuse("Invalid category");
  if (IsBlank(row.value("State"))) return check.Refuse("Invalid State");
  CheckFigures(row, check);
  CheckContacts(row, check);
  return check;
}

}  // namespace tavrelin
