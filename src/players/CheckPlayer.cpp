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

void NullBecomesEmpty(RowCheck& check, const char* field, const Value& value) {
  if (value.IsNull()) check.Fix(QLatin1String(field), QString());
}

/// The verdict on the names; Save when they stand.
RowCheck CheckNames(const PlayerRow& row) {
  RowCheck check;
  const QString last = row.lastName.Trimmed();
  const QString first = row.firstName.Trimmed();
  if (last.isEmpty() && first.isEmpty()) return check.Drop();
  if (last.isEmpty()) return check.Drop("Invalid last name changes not committed.");
  if (first.isEmpty()) return check.Drop("Invalid first name changes not committed.");
  if (last.contains(u'"')) return check.Refuse("Double Quotes are not allowed in Last Name");
  if (first.contains(u'"')) return check.Refuse("Double Quotes are not allowed in First Name");
  return check;
}

/// Moves to another player with the same card; false when there is none.
bool FindSameCard(const PlayerRow& row, Recordset& players) {
  const QString card = row.cardNumber.Trimmed();
  if (card.isEmpty() || card == QLatin1String("000000") || players.RecordCount() == 0) return false;
  const QString criterion = QStringLiteral("CardNumber = '%1'").arg(EscapeQuotes(card));
  players.MoveFirst();
  players.Find(criterion);
  while (!players.AtEnd() && !row.isNew &&
         players["PlayerID"].Trimmed() == row.playerID.Trimmed()) {
    players.Find(criterion, 1);
  }
  return !players.AtEnd();
}

/// What is said of these does not end the check: the operator hears of the last one.
void CheckFigures(const PlayerRow& row, RowCheck& check) {
  NullBecomesEmpty(check, "CardYear", row.cardYear);
  const double year = Val(row.cardYear.Trimmed());
  if (!IsBlank(row.cardYear) && (year < FirstCardYear || year > LastCardYear)) {
    check.Refuse("Invalid card year");
  }
  if (IsBlank(row.longevity)) check.Fix("Longevity", 0);
  if (!IsBlank(row.birthDate) && !IsDate(row.birthDate)) check.Refuse("Invalid birth date");
}

void CheckLength(RowCheck& check, const char* field, const Value& value, qsizetype length,
                 qsizetype limit, const char* message) {
  NullBecomesEmpty(check, field, value);
  if (length > limit) check.Refuse(QLatin1String(message));
}

void CheckContacts(const PlayerRow& row, RowCheck& check) {
  CheckLength(check, "ZipCode", row.zipCode, row.zipCode.Trimmed().remove(u'-').size(),
              ZipCodeLength, "Invalid zipcode");
  CheckLength(check, "Telephone", row.telephone, row.telephone.Trimmed().size(), TelephoneLength,
              "Invalid phone number");
  CheckLength(check, "CellPhone", row.cellPhone, row.cellPhone.Trimmed().size(), TelephoneLength,
              "Invalid Cell Phone number");
}

}  // namespace

RowCheck CheckPlayer(const PlayerRow& row, Recordset& players,
                     std::optional<bool> sameCardConfirmed) {
  RowCheck check = CheckNames(row);
  if (check.verdict != RowCheck::Verdict::Save) return check;
  if (row.isNew) {
    check.Fix("PlayerID",
              AllocatePlayerID(players, row.lastName.Trimmed(), row.firstName.Trimmed()));
  }
  NullBecomesEmpty(check, "CardNumber", row.cardNumber);
  if (sameCardConfirmed != true && FindSameCard(row, players)) {
    if (sameCardConfirmed.has_value()) return check.Drop();
    return check.AskFirst(
        "Confirm Card Number",
        QStringLiteral("That Card Number is already assigned to %1 %2.  Do you wish to continue "
                       "anyway?")
            .arg(players["FirstName"].ToText(), players["LastName"].ToText()));
  }
  if (IsBlank(row.category)) return check.Refuse("Invalid category");
  if (IsBlank(row.state)) return check.Refuse("Invalid State");
  CheckFigures(row, check);
  CheckContacts(row, check);
  return check;
}

}  // namespace tavrelin
