#include "players/CheckPlayer.h"

#include <gtest/gtest.h>

#include "players/Roster.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

/// A row against which nothing stands.
RowValues GoodRow() {
  RowValues row;
  row["PlayerID"] = "OLSKAR";
  row["FirstName"] = "Karen";
  row["LastName"] = "Olson";
  row["Category"] = "AW";
  row["State"] = "MN";
  row["CardNumber"] = "123456";
  row["CardYear"] = "2025";
  row["Longevity"] = 3;
  row["BirthDate"] = QDate(1950, 2, 28);
  row["ZipCode"] = "551011234";
  row["Telephone"] = "6515550123";
  row["CellPhone"] = "6515550124";
  return row;
}

Recordset Roster() {
  Recordset players = RosterInMemory();
  AddToRoster(players, "OLSKAR", "Karen", "Olson", "123456");
  AddToRoster(players, "SMIJOH", "John", "Smith", "777");
  return players;
}

RowCheck Check(const RowValues& row, std::optional<bool> answer = std::nullopt) {
  Recordset players = Roster();
  return CheckPlayer(row, false, players, answer);
}

RowCheck CheckNew(const RowValues& row) {
  Recordset players = Roster();
  return CheckPlayer(row, true, players);
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
  RowValues row = GoodRow();
  for (const Value& blank : {Value(), Value(""), Value("   ")}) {
    row["FirstName"] = row["LastName"] = blank;
    const RowCheck check = CheckNew(row);
    EXPECT_EQ(check.verdict, Verdict::Discard);
    EXPECT_EQ(check.message, "");
  }
}

struct Refusal {
  const char* name;
  void (*spoil)(RowValues&);
  Verdict verdict;
  const char* message;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
  *out << refusal.name;
}

class CheckPlayerRefuses : public testing::TestWithParam<Refusal> {};

TEST_P(CheckPlayerRefuses, WithTheMessage) {
  RowValues row = GoodRow();
  GetParam().spoil(row);
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, GetParam().verdict);
  EXPECT_EQ(check.message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CheckPlayerRefuses,
    testing::Values(Refusal{"NoLastName", [](RowValues& r) { r["LastName"] = " "; },
                            Verdict::Discard, "Invalid last name changes not committed."},
                    Refusal{"NoFirstName", [](RowValues& r) { r["FirstName"] = Value(); },
                            Verdict::Discard, "Invalid first name changes not committed."},
                    Refusal{"QuoteInLastName", [](RowValues& r) { r["LastName"] = "Ol\"son"; },
                            Verdict::Cancel, "Double Quotes are not allowed in Last Name"},
                    Refusal{"QuoteInFirstName", [](RowValues& r) { r["FirstName"] = "\"Kay\""; },
                            Verdict::Cancel, "Double Quotes are not allowed in First Name"},
                    Refusal{"NoDivision", [](RowValues& r) { r["Category"] = Value(); },
                            Verdict::Cancel, "Invalid category"},
                    Refusal{"NoState", [](RowValues& r) { r["State"] = " "; }, Verdict::Cancel,
                            "Invalid State"},
                    Refusal{"Year1949", [](RowValues& r) { r["CardYear"] = "1949"; },
                            Verdict::Cancel, "Invalid card year"},
                    Refusal{"Year2101", [](RowValues& r) { r["CardYear"] = "2101"; },
                            Verdict::Cancel, "Invalid card year"},
                    Refusal{"YearInWords", [](RowValues& r) { r["CardYear"] = "last"; },
                            Verdict::Cancel, "Invalid card year"},
                    Refusal{"Years", [](RowValues& r) { r["Longevity"] = "ten"; }, Verdict::Cancel,
                            "Invalid years"},
                    Refusal{"YearsOfAThousandLives", [](RowValues& r) { r["Longevity"] = "99999"; },
                            Verdict::Cancel, "Invalid years"},
                    Refusal{"Average", [](RowValues& r) { r["Average"] = "45,5 %"; },
                            Verdict::Cancel, "Invalid ringer percent"},
                    Refusal{"BirthDate", [](RowValues& r) { r["BirthDate"] = "2/30/1950"; },
                            Verdict::Cancel, "Invalid birth date"},
                    Refusal{"ZipCode", [](RowValues& r) { r["ZipCode"] = "55101-12345"; },
                            Verdict::Cancel, "Invalid zipcode"},
                    Refusal{"Telephone", [](RowValues& r) { r["Telephone"] = "16515550123"; },
                            Verdict::Cancel, "Invalid phone number"},
                    Refusal{"CellPhone", [](RowValues& r) { r["CellPhone"] = "16515550123"; },
                            Verdict::Cancel, "Invalid Cell Phone number"}),
    [](const auto& refusal) { return std::string(refusal.param.name); });

TEST(CheckPlayer, TheFirstFailureOfTheNamesEndsTheCheck) {
  RowValues row = GoodRow();
  row["LastName"] = row["FirstName"] = "\"";
  row["Category"] = row["State"] = "";
  const RowCheck check = CheckNew(row);
  EXPECT_EQ(check.message, "Double Quotes are not allowed in Last Name");
  EXPECT_EQ(FixedFields(check), QStringList()) << "no number is allocated yet";
}

TEST(CheckPlayer, DivisionAndStateEndTheCheckButTheLastOfTheOthersIsTold) {
  RowValues row = GoodRow();
  row["CardYear"] = "1";
  row["BirthDate"] = "yesterday";
  row["ZipCode"] = "1234567890";
  row["Telephone"] = "12345678901";
  EXPECT_EQ(Check(row).message, "Invalid phone number");
  row["CellPhone"] = "12345678901";
  EXPECT_EQ(Check(row).message, "Invalid Cell Phone number");
  row["State"] = "";
  EXPECT_EQ(Check(row).message, "Invalid State");
  row["Category"] = "";
  EXPECT_EQ(Check(row).message, "Invalid category");
}

TEST(CheckPlayer, CardYears1950And2100Pass) {
  RowValues row = GoodRow();
  for (const char* year : {"1950", "2100", "", "  "}) {
    row["CardYear"] = year;
    EXPECT_EQ(Check(row).verdict, Verdict::Save) << year;
  }
}

TEST(CheckPlayer, NullsBecomeEmptyTextsAndNoYearsZero) {
  RowValues row = GoodRow();
  row["CardNumber"] = row["CardYear"] = row["Longevity"] = row["BirthDate"] = Value();
  row["ZipCode"] = row["Telephone"] = row["CellPhone"] = Value();
  const RowCheck check = Check(row);
  EXPECT_EQ(check.verdict, Verdict::Save);
  EXPECT_EQ(FixedFields(check), QStringList({"CardNumber", "CardYear", "Longevity", "ZipCode",
                                             "Telephone", "CellPhone"}));
  for (const auto& [field, value] : check.fixes) {
    EXPECT_EQ(value, field == "Longevity" ? Value(0) : Value(QString())) << field.toStdString();
  }
}

TEST(CheckPlayer, ANewPlayerIsGivenANumberAlsoWhenTheRowIsRefusedLater) {
  RowValues row = GoodRow();
  row["PlayerID"] = Value();
  row["CardNumber"] = "";
  row["Category"] = "";
  const RowCheck check = CheckNew(row);
  EXPECT_EQ(check.verdict, Verdict::Cancel);
  ASSERT_EQ(FixedFields(check), QStringList("PlayerID"));
  EXPECT_EQ(check.fixes[0].second, Value("OLSK01"));
}

TEST(CheckPlayer, ACardOfAnotherPlayerIsAskedAbout) {
  RowValues row = GoodRow();
  row["CardNumber"] = "777";
  const RowCheck asks = Check(row);
  EXPECT_EQ(asks.verdict, Verdict::Ask);
  EXPECT_EQ(asks.title, "Confirm Card Number");
  EXPECT_EQ(asks.question,
            "That Card Number is already assigned to John Smith.  "
            "Do you wish to continue anyway?");
}

TEST(CheckPlayer, NoThrowsTheRowAwayUncheckedAndYesGoesOn) {
  RowValues row = GoodRow();
  row["CardNumber"] = "777";
  row["Category"] = "";
  const RowCheck no = Check(row, false);
  EXPECT_EQ(no.verdict, Verdict::Discard);
  EXPECT_EQ(no.message, "");
  EXPECT_EQ(Check(row, true).message, "Invalid category");
  row["Category"] = "AW";
  EXPECT_EQ(Check(row, true).verdict, Verdict::Save);
}

TEST(CheckPlayer, OnesOwnCardIsNoQuestionYetANewPlayerWithItIs) {
  RowValues row = GoodRow();
  EXPECT_EQ(Check(row).verdict, Verdict::Save);
  EXPECT_EQ(CheckNew(row).verdict, Verdict::Ask);
}

TEST(CheckPlayer, TheOtherHolderIsFoundBehindOnesOwnRow) {
  Recordset players = Roster();
  AddToRoster(players, "BERPIA", "Pia", "O'Berg", "123456");
  const RowCheck check = CheckPlayer(GoodRow(), false, players);
  EXPECT_EQ(check.verdict, Verdict::Ask);
  EXPECT_TRUE(check.question.contains("Pia O'Berg")) << check.question.toStdString();
}

TEST(CheckPlayer, CardNumber000000OnManyPlayersRaisesNoQuestion) {
  for (const char* none : {"000000", "", "   "}) {
    Recordset players = Roster();
    AddToRoster(players, "BERPIA", "Pia", "Berg", none);
    RowValues row = GoodRow();
    row["CardNumber"] = none;
    EXPECT_EQ(CheckPlayer(row, false, players).verdict, Verdict::Save) << none;
  }
}

TEST(CheckPlayer, NamesThatWouldBreakAStatementAreJustNames) {
  for (const char* name : {"O'Brien", "%", "'); DROP TABLE Players; --", "Παπάς", "😀 Jo"}) {
    RowValues row = GoodRow();
    row["LastName"] = row["FirstName"] = name;
    row["CardNumber"] = "' OR '1' = '1";
    EXPECT_EQ(CheckNew(row).verdict, Verdict::Save) << name;
  }
}

}  // namespace
}  // namespace tavrelin
