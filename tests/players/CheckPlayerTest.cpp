#include "players/CheckPlayer.h"

#include <gtest/gtest.h>

#include "players/Roster.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

/// A row against which nothing stands.
PlayerRow GoodRow() {
  PlayerRow row;
  row.playerID = "OLSKAR";
  row.firstName = "Karen";
  row.lastName = "Olson";
  row.category = "AW";
  row.state = "MN";
  row.cardNumber = "123456";
  row.cardYear = "2025";
  row.longevity = 3;
  row.birthDate = QDate(1950, 2, 28);
  row.zipCode = "551011234";
  row.telephone = "6515550123";
  row.cellPhone = "6515550124";
  return row;
}

Recordset Roster() {
  Recordset players = RosterInMemory();
  AddToRoster(players, "OLSKAR", "Karen", "Olson", "123456");
  AddToRoster(players, "SMIJOH", "John", "Smith", "777");
  return players;
}

RowCheck Check(const PlayerRow& row, std::optional<bool> answer = std::nullopt) {
  Recordset players = Roster();
  return CheckPlayer(row, players, answer);
}

QStringList FixedFields(const RowCheck& check) {
  QStringList fields;
  for (const auto& [field, value] : check.fixes) fields.append(field);
  return fields;
}

TEST(CheckPlayer, AGoodRowIsSavedAsItStands) {
  const RowCheck check = Check(GoodRow());
  EXPECT_EQ(check.verdict, Verdict::Save);
  EXPECT_EQ(check.message, "");
  EXPECT_EQ(FixedFields(check), QStringList());
}

TEST(CheckPlayer, ARowWithoutAnyNameIsDroppedSilently) {
  PlayerRow row = GoodRow();
  row.isNew = true;
  for (const Value& blank : {Value(), Value(""), Value("   ")}) {
    row.firstName = row.lastName = blank;
    const RowCheck check = Check(row);
    EXPECT_EQ(check.verdict, Verdict::Discard);
    EXPECT_EQ(check.message, "");
  }
}

struct Refusal {
  const char* name;
  void (*spoil)(PlayerRow&);
  Verdict verdict;
  const char* message;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
  *out << refusal.name;
}

class CheckPlayerRefuses : public testing::TestWithParam<Refusal> {};

TEST_P(CheckPlayerRefuses, WithTheMessage) {
  PlayerRow row = GoodRow();
  GetParam().spoil(row);
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, GetParam().verdict);
  EXPECT_EQ(check.message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CheckPlayerRefuses,
    testing::Values(Refusal{"NoLastName", [](PlayerRow& r) { r.lastName = " "; }, Verdict::Discard,
                            "Invalid last name changes not committed."},
                    Refusal{"NoFirstName", [](PlayerRow& r) { r.firstName = Value(); },
                            Verdict::Discard, "Invalid first name changes not committed."},
                    Refusal{"QuoteInLastName", [](PlayerRow& r) { r.lastName = "Ol\"son"; },
                            Verdict::Cancel, "Double Quotes are not allowed in Last Name"},
                    Refusal{"QuoteInFirstName", [](PlayerRow& r) { r.firstName = "\"Kay\""; },
                            Verdict::Cancel, "Double Quotes are not allowed in First Name"},
                    Refusal{"NoDivision", [](PlayerRow& r) { r.category = Value(); },
                            Verdict::Cancel, "Invalid category"},
                    Refusal{"NoState", [](PlayerRow& r) { r.state = " "; }, Verdict::Cancel,
                            "Invalid State"},
                    Refusal{"Year1949", [](PlayerRow& r) { r.cardYear = "1949"; }, Verdict::Cancel,
                            "Invalid card year"},
                    Refusal{"Year2101", [](PlayerRow& r) { r.cardYear = "2101"; }, Verdict::Cancel,
                            "Invalid card year"},
                    Refusal{"YearInWords", [](PlayerRow& r) { r.cardYear = "last"; },
                            Verdict::Cancel, "Invalid card year"},
                    Refusal{"BirthDate", [](PlayerRow& r) { r.birthDate = "2/30/1950"; },
                            Verdict::Cancel, "Invalid birth date"},
                    Refusal{"ZipCode", [](PlayerRow& r) { r.zipCode = "55101-12345"; },
                            Verdict::Cancel, "Invalid zipcode"},
                    Refusal{"Telephone", [](PlayerRow& r) { r.telephone = "16515550123"; },
                            Verdict::Cancel, "Invalid phone number"},
                    Refusal{"CellPhone", [](PlayerRow& r) { r.cellPhone = "16515550123"; },
                            Verdict::Cancel, "Invalid Cell Phone number"}),
    [](const auto& refusal) { return std::string(refusal.param.name); });

TEST(CheckPlayer, TheFirstFailureOfTheNamesEndsTheCheck) {
  PlayerRow row = GoodRow();
  row.isNew = true;
  row.lastName = row.firstName = "\"";
  row.category = row.state = "";
  const RowCheck check = Check(row);
  EXPECT_EQ(check.message, "Double Quotes are not allowed in Last Name");
  EXPECT_EQ(FixedFields(check), QStringList()) << "no number is allocated yet";
}

TEST(CheckPlayer, DivisionAndStateEndTheCheckButTheLastOfTheOthersIsTold) {
  PlayerRow row = GoodRow();
  row.cardYear = "1";
  row.birthDate = "yesterday";
  row.zipCode = "1234567890";
  row.telephone = "12345678901";
  EXPECT_EQ(Check(row).message, "Invalid phone number");
  row.cellPhone = "12345678901";
  EXPECT_EQ(Check(row).message, "Invalid Cell Phone number");
  row.state = "";
  EXPECT_EQ(Check(row).message, "Invalid State");
  row.category = "";
  EXPECT_EQ(Check(row).message, "Invalid category");
}

TEST(CheckPlayer, CardYears1950And2100Pass) {
  PlayerRow row = GoodRow();
  for (const char* year : {"1950", "2100", "", "  "}) {
    row.cardYear = year;
    EXPECT_EQ(Check(row).verdict, Verdict::Save) << year;
  }
}

TEST(CheckPlayer, NullsBecomeEmptyTextsAndNoYearsZero) {
  PlayerRow row = GoodRow();
  row.cardNumber = row.cardYear = row.longevity = row.birthDate = Value();
  row.zipCode = row.telephone = row.cellPhone = Value();
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, Verdict::Save);
  EXPECT_EQ(FixedFields(check), QStringList({"CardNumber", "CardYear", "Longevity", "ZipCode",
                                             "Telephone", "CellPhone"}));
  for (const auto& [field, value] : check.fixes) {
    EXPECT_EQ(value, field == "Longevity" ? Value(0) : Value(QString())) << field.toStdString();
  }
}

TEST(CheckPlayer, ANewPlayerIsGivenANumberAlsoWhenTheRowIsRefusedLater) {
  PlayerRow row = GoodRow();
  row.isNew = true;
  row.playerID = Value();
  row.cardNumber = "";
  row.category = "";
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, Verdict::Cancel);
  ASSERT_EQ(FixedFields(check), QStringList("PlayerID"));
  EXPECT_EQ(check.fixes[0].second, Value("OLSK01"));
}

TEST(CheckPlayer, ACardOfAnotherPlayerIsAskedAbout) {
  PlayerRow row = GoodRow();
  row.cardNumber = "777";
  const RowCheck asks = Check(row);
  EXPECT_EQ(asks.verdict, Verdict::Ask);
  EXPECT_EQ(asks.title, "Confirm Card Number");
  EXPECT_EQ(asks.question,
            "That Card Number is already assigned to John Smith.  "
            "Do you wish to continue anyway?");
}

TEST(CheckPlayer, NoThrowsTheRowAwayUncheckedAndYesGoesOn) {
  PlayerRow row = GoodRow();
  row.cardNumber = "777";
  row.category = "";
  const RowCheck no = Check(row, false);
  EXPECT_EQ(no.verdict, Verdict::Discard);
  EXPECT_EQ(no.message, "");
  EXPECT_EQ(Check(row, true).message, "Invalid category");
  row.category = "AW";
  EXPECT_EQ(Check(row, true).verdict, Verdict::Save);
}

TEST(CheckPlayer, OnesOwnCardIsNoQuestionYetANewPlayerWithItIs) {
  PlayerRow row = GoodRow();
  EXPECT_EQ(Check(row).verdict, Verdict::Save);
  row.isNew = true;
  EXPECT_EQ(Check(row).verdict, Verdict::Ask);
}

TEST(CheckPlayer, TheOtherHolderIsFoundBehindOnesOwnRow) {
  Recordset players = Roster();
  AddToRoster(players, "BERPIA", "Pia", "O'Berg", "123456");
  const RowCheck check = CheckPlayer(GoodRow(), players);
  EXPECT_EQ(check.verdict, Verdict::Ask);
  EXPECT_TRUE(check.question.contains("Pia O'Berg")) << check.question.toStdString();
}

TEST(CheckPlayer, CardNumber000000OnManyPlayersRaisesNoQuestion) {
  for (const char* none : {"000000", "", "   "}) {
    Recordset players = Roster();
    AddToRoster(players, "BERPIA", "Pia", "Berg", none);
    PlayerRow row = GoodRow();
    row.cardNumber = none;
    EXPECT_EQ(CheckPlayer(row, players).verdict, Verdict::Save) << none;
  }
}

TEST(CheckPlayer, NamesThatWouldBreakAStatementAreJustNames) {
  for (const char* name : {"O'Brien", "%", "'); DROP TABLE Players; --", "Παπάς", "😀 Jo"}) {
    PlayerRow row = GoodRow();
    row.isNew = true;
    row.lastName = row.firstName = name;
    row.cardNumber = "' OR '1' = '1";
    EXPECT_EQ(Check(row).verdict, Verdict::Save) << name;
  }
}

}  // namespace
}  // namespace tavrelin
