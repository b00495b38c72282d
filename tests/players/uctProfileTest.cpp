#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "players/ProfileScreenTest.h"

namespace tavrelin {
namespace {

struct uctProfileTest : ProfileScreenTest {};

TEST_F(uctProfileTest, OpensOnTheNewRowReadyForAFirstName) {
  Add("SMIJOH", "Smith", "John");
  Add("BERPIA", "Berg", "Pia");
  Show();
  EXPECT_TRUE(Grid().IsNewRow());
  EXPECT_EQ(Grid().ColumnKey(Grid().Col()), "FirstName");
  EXPECT_EQ(Grid().TextAt(1, "LastName"), "Berg");
  EXPECT_EQ(Grid().TextAt(2, "LastName"), "Smith");
  EXPECT_EQ(Grid().TextAt(1, "Category"), "Men");
  EXPECT_EQ(Grid().TextAt(1, "MembershipType"), "Standard");
  EXPECT_FALSE(bench.person.busy);
}

TEST_F(uctProfileTest, ColumnsStandInTheirPlacesWithTheirCaptions) {
  Show();
  QMap<int, QString> byPlace;
  const QList<GridColumn>& columns = Grid().Columns();
  for (int i = 0; i < columns.size(); ++i) {
    byPlace[columns[i].position ? columns[i].position : i + 1] = columns[i].caption;
  }
  EXPECT_EQ(QStringList(byPlace.values()),
            QStringList(
                {"ID",         "First",   "Last",       "Type",   "Division",       "Card",  "Year",
                 "Yrs",        "Rgr %",   "Birth Date", "Phone",  "Address",        "City",  "St",
                 "Zip-Postal", "Remarks", "Cell Phone", "E-Mail", "Emergency Info", "Awards"}));
}

TEST_F(uctProfileTest, ColumnsHaveTheirWidthsAndLengths) {
  Show();
  QStringList columns;
  for (const GridColumn& column : Grid().Columns().mid(1)) {
    columns << QString("%1 %2").arg(column.field).arg(column.width);
  }
  EXPECT_EQ(columns.join(", "),
            "FirstName 1005, LastName 1200, MembershipType 1005, Category 1005, CardNumber 705, "
            "CardYear 645, AddressOne 1860, City 1395, State 600, ZipCode 1050, Longevity 525, "
            "BirthDate 1140, Telephone 1200, Remarks 2805, Average 705, CellPhone 1200, "
            "Email 2505, EmergencyInfo 2805, Awards 2805");
  EXPECT_FALSE(Grid().Columns()[0].visible);
  const QMap<QString, int> lengths = {{"PlayerID", 6},   {"FirstName", 20}, {"LastName", 25},
                                      {"CardNumber", 6}, {"CardYear", 4},   {"AddressOne", 40},
                                      {"City", 30}};
  for (auto length = lengths.begin(); length != lengths.end(); ++length) {
    EXPECT_EQ(Grid().Columns()[Grid().ColumnNumber(length.key()) - 1].maxLength, length.value());
  }
}

TEST_F(uctProfileTest, TheFooterCountsTheRecordsAndABufferLivesForASecondAndAHalf) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  EXPECT_EQ(bench.Find<QLabel>("RecordCounter").text(), "New record, 1 records");
  OnRowSelector("BERPIA");
  EXPECT_EQ(bench.Find<QLabel>("RecordCounter").text(), "Record 1 of 1 records");
  EXPECT_EQ(Grid().findChild<QTimer*>("Timer1")->interval(), 1500);
}

TEST_F(uctProfileTest, DivisionAndStateAreTypedByTheirLettersHoweverSlowly) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Grid().SetCol("Category");
  bench.Type("sr w");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(Grid().Value("Category"), Value("SW"));
  Grid().SetCol("State");
  bench.Type("w");
  QTest::qWait(900);
  bench.Type("i");
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(Grid().Value("State"), Value("WI"));
  ASSERT_TRUE(Grid().CommitRow());
}

TEST_F(uctProfileTest, WhatIsNoNumberIsRefusedInTheFirstPanelNotByAnError) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"Longevity", "many"}});
  EXPECT_FALSE(Grid().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid years");
  Fill({{"Longevity", "12"}, {"Average", "45.x"}});
  EXPECT_FALSE(Grid().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid ringer percent");
  Fill({{"Average", "45.5"}});
  EXPECT_TRUE(Grid().CommitRow());
  EXPECT_EQ(Stored("Longevity", "BERPIA"), Value(12));
  EXPECT_EQ(Stored("Average", "BERPIA"), Value(45.5));
}

TEST_F(uctProfileTest, ANewPlayerTypedFromTheKeyboardIsSavedWithItsNumber) {
  Show();
  for (const char* cell : {"Karen", "Olson"}) {
    bench.Type(cell);
    bench.Press(Qt::Key_Tab);
  }
  EXPECT_EQ(Grid().ColumnKey(Grid().Col()), "MembershipType");
  Fill({{"Category", "AW"},
        {"CardNumber", "4711"},
        {"CardYear", "2025"},
        {"State", "MN"},
        {"Average", "45.5"},
        {"BirthDate", "2/28/1950"}});
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Stored("LastName", "OLSKAR"), Value("Olson"));
  EXPECT_EQ(Stored("MembershipType", "OLSKAR"), Value("S"));
  EXPECT_EQ(Stored("Average", "OLSKAR"), Value(45.5));
  EXPECT_EQ(Stored("BirthDate", "OLSKAR").ToDate().date(), QDate(1950, 2, 28));
  EXPECT_EQ(Stored("Longevity", "OLSKAR"), Value(0));
  EXPECT_EQ(Stored("ZipCode", "OLSKAR"), Value(""));
}

TEST_F(uctProfileTest, ASavedRowTakesItsSortedPlaceAndTheNextCanBeTypedAtOnce) {
  Add("BERPIA", "Berg", "Pia");
  Add("SMIJOH", "Smith", "John");
  Show();
  TypeNew("Karen", "Olson");
  EXPECT_EQ(Grid().TextAt(2, "LastName"), "Olson");
  EXPECT_TRUE(Grid().IsNewRow());
  EXPECT_EQ(Grid().ColumnKey(Grid().Col()), "FirstName");
  EXPECT_EQ(Grid().Value("LastName").ToText(), "");
  TypeNew("Al", "Aas");
  EXPECT_EQ(Grid().TextAt(1, "LastName"), "Aas");
}

TEST_F(uctProfileTest, ANewRowWithoutNamesIsDroppedSilently) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  Fill({{"City", "Duluth"}});
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(bench.person.beeps, 0);
  EXPECT_EQ(Count(), 1);
  bench.Press(Qt::Key_Insert);
  EXPECT_EQ(Grid().Value("City").ToText(), "");
}

TEST_F(uctProfileTest, ANewRowWithOnlyAFirstNameIsDroppedWithAMessage) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  Fill({{"FirstName", "Karen"}});
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(bench.Message(), "Invalid last name changes not committed.");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(Count(), 1);
}

TEST_F(uctProfileTest, AChangeThatBlanksANameIsThrownAway) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"City", "Duluth"}});
  Grid().SetValue("FirstName", " ");
  Grid().CommitRow();
  EXPECT_EQ(bench.Message(), "Invalid first name changes not committed.");
  EXPECT_EQ(Grid().Value("FirstName"), Value("Pia"));
  EXPECT_EQ(Stored("City", "BERPIA"), Value());
}

TEST_F(uctProfileTest, ARefusedRowKeepsTheOperatorAndAllHeTyped) {
  Show();
  TypeNew("Karen", "Olson", {{"CardYear", "1949"}});
  EXPECT_EQ(bench.Message(), "Invalid card year");
  EXPECT_EQ(Grid().Value("LastName"), Value("Olson"));
  EXPECT_EQ(Count(), 0);
  Grid().SetCol("CardYear");
  bench.Type("1950");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Stored("CardYear", "OLSKAR"), Value("1950"));
}

TEST_F(uctProfileTest, CardYears1949And2101AreRefused1950And2100Pass) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  for (const char* year : {"1949", "2101"}) {
    Fill({{"CardYear", year}});
    EXPECT_FALSE(Grid().CommitRow()) << year;
    EXPECT_EQ(bench.Message(), "Invalid card year") << year;
  }
  for (const char* year : {"1950", "2100"}) {
    Fill({{"CardYear", year}});
    EXPECT_TRUE(Grid().CommitRow()) << year;
    EXPECT_EQ(Stored("CardYear", "BERPIA"), Value(year));
  }
}

TEST_F(uctProfileTest, LastNameOBrienWithAnApostropheGivesOBRAL0) {
  Show();
  TypeNew("Al", "O'Brien");
  EXPECT_EQ(Stored("LastName", "OBRAL0"), Value("O'Brien"));
}

TEST_F(uctProfileTest, NamesAreStoredAndShownAsTyped) {
  const QStringList names = {
      "O'Brien",       "50% off", "'); DROP TABLE", QStringLiteral("Παπάς"), QStringLiteral("Jo 😀"),
      QString(25, 'x')};
  Show();
  for (const QString& name : names) {
    TypeNew("Al", name);
    EXPECT_EQ(bench.Message(), "") << name.toStdString();
    Recordset rows;
    rows.Open("SELECT LastName FROM Players WHERE LastName = ?", file, Recordset::Lock::ReadOnly,
              {name});
    EXPECT_EQ(rows.RecordCount(), 1) << name.toStdString();
  }
  EXPECT_EQ(Grid().RowCount(), names.size());
  QStringList shown;
  for (int row = 1; row <= Grid().RowCount(); ++row) shown.append(Grid().TextAt(row, "LastName"));
  shown.sort();
  QStringList expected = names;
  expected.sort();
  EXPECT_EQ(shown, expected);
}

TEST_F(uctProfileTest, ANameOfFortyCharactersEndsAtItsLimitWhileItIsTyped) {
  Show();
  TypeNew(QString(40, 'a'), QString(40, 'b'));
  EXPECT_EQ(Stored("FirstName", "BBBAAA"), Value(QString(20, 'a')));
  EXPECT_EQ(Stored("LastName", "BBBAAA"), Value(QString(25, 'b')));
}

TEST_F(uctProfileTest, DoubleQuotesInANameAreRefused) {
  Show();
  TypeNew("Al", "\"Red\" Olson");
  EXPECT_EQ(bench.Message(), "Double Quotes are not allowed in Last Name");
  Grid().SetCol("LastName");
  bench.Type("Olson");
  Grid().SetCol("FirstName");
  bench.Type("\"Al\"");
  EXPECT_FALSE(Grid().CommitRow());
  EXPECT_EQ(bench.Message(), "Double Quotes are not allowed in First Name");
  EXPECT_EQ(Count(), 0);
}

TEST_F(uctProfileTest, AHundredthPlayerOfTheSameLettersIsRefusedByTheFile) {
  Add("SMIJOH", "Smith", "John");
  for (int number = 1; number <= 99; ++number) {
    Add(QStringLiteral("SMIJ%1").arg(number, 2, 10, QLatin1Char('0')), "Smith", "John");
  }
  Show();
  TypeNew("John", "Smith");
  EXPECT_NE(bench.errors.Take().description, "");
  EXPECT_EQ(Count(), 100);
  EXPECT_EQ(Grid().Value("LastName"), Value("Smith")) << "what was typed is still there";
  Grid().SetDataChanged(false);
}

TEST_F(uctProfileTest, ACardOfAnotherPlayerIsConfirmedByTheOperator) {
  Add("SMIJOH", "Smith", "John", "777");
  Show();
  bench.person.WillAnswer(false);
  TypeNew("Karen", "Olson", {{"CardNumber", "777"}});
  ASSERT_EQ(bench.person.questions.size(), 1);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Card Number");
  EXPECT_EQ(bench.person.questions[0].text,
            "That Card Number is already assigned to John Smith.  "
            "Do you wish to continue anyway?");
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(Count(), 1);
  bench.person.WillAnswer(true);
  TypeNew("Karen", "Olson", {{"CardNumber", "777"}});
  EXPECT_EQ(Stored("CardNumber", "OLSKAR"), Value("777"));
}

TEST_F(uctProfileTest, CardNumber000000OnManyPlayersRaisesNoQuestion) {
  Add("SMIJOH", "Smith", "John", "000000");
  Show();
  TypeNew("Karen", "Olson", {{"CardNumber", "000000"}});
  TypeNew("Al", "Berg", {{"CardNumber", "000000"}});
  EXPECT_EQ(Count(), 3);
  EXPECT_TRUE(bench.person.questions.isEmpty());
}

TEST_F(uctProfileTest, AZipCodeOfFiveShowsAsItIsOfNineWithAHyphenOfSixAsItIs) {
  struct {
    const char *typed, *stored, *shown;
  } const cases[] = {{"55101", "55101", "55101"},
                     {"551011234", "551011234", "55101-1234"},
                     {"k1a0b6", "K1A0B6", "K1A0B6"}};
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  for (const auto& c : cases) {
    Fill({{"ZipCode", c.typed}});
    ASSERT_TRUE(Grid().CommitRow());
    EXPECT_EQ(Stored("ZipCode", "BERPIA"), Value(c.stored));
    EXPECT_EQ(Grid().TextAt(1, "ZipCode"), c.shown);
  }
}

TEST_F(uctProfileTest, PunctuationInAZipCodeIsSwallowedWithAMessage) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"ZipCode", "55101-"}});
  EXPECT_EQ(bench.Message(),
            "Punctuation characters not allowed.  They are automatically provided");
  EXPECT_EQ(bench.person.beeps, 1);
  bench.Type("1234");
  EXPECT_EQ(bench.Message(), "");
  Grid().CommitRow();
  EXPECT_EQ(Stored("ZipCode", "BERPIA"), Value("551011234"));
}

TEST_F(uctProfileTest, AZipCodeOfTenIsRefused) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"ZipCode", "5510112345"}});
  EXPECT_FALSE(Grid().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid zipcode");
  Grid().SetDataChanged(false);
}

TEST_F(uctProfileTest, AHyphenInAStoredZipCodeGoesWhenTheCellIsEdited) {
  Add("BERPIA", "Berg", "Pia");
  Set("BERPIA", "ZipCode", "55101-1234");
  Show();
  GoTo("BERPIA");
  Grid().SetCol("ZipCode");
  bench.Press(Qt::Key_F2);
  bench.Press(Qt::Key_Return);
  Grid().CommitRow();
  EXPECT_EQ(Stored("ZipCode", "BERPIA"), Value("551011234"));
}

TEST_F(uctProfileTest, APhoneTypedWithBracketsBlanksAndHyphensIsStoredAsItsTenDigits) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"Telephone", "(651) 555-0123"}, {"CellPhone", "651.555.0124"}});
  ASSERT_TRUE(Grid().CommitRow());
  EXPECT_EQ(Stored("Telephone", "BERPIA"), Value("6515550123"));
  EXPECT_EQ(Stored("CellPhone", "BERPIA"), Value("6515550124"));
  EXPECT_EQ(Grid().TextAt(1, "Telephone"), "(651)555-0123");
}

TEST_F(uctProfileTest, AnElevenDigitPhoneIsRefused) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"Telephone", "1-651-555-0123"}});
  EXPECT_FALSE(Grid().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid phone number");
  Grid().SetDataChanged(false);
}

TEST_F(uctProfileTest, AWrongBirthDateIsRefusedInTheFirstPanelNotByAnError) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  Fill({{"BirthDate", "2/30/1950"}});
  EXPECT_FALSE(Grid().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid birth date");
  Grid().SetDataChanged(false);
}

TEST_F(uctProfileTest, APlayerInStateNACanBeKept) {
  Show();
  TypeNew("Karen", "Olson", {{"State", "NA"}});
  EXPECT_EQ(Stored("State", "OLSKAR"), Value("NA"));
}

TEST_F(uctProfileTest, DeletionIsConfirmed) {
  Add("BERPIA", "Berg", "Pia");
  file.Execute("INSERT INTO TeamPlayers (TeamID, PlayerID) VALUES (1, 'BERPIA')");
  Show();
  OnRowSelector("BERPIA");
  bench.person.WillAnswer(false);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 1);
  bench.person.WillAnswer(true);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 0);
  ASSERT_EQ(bench.person.questions.size(), 2);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected player?");
  Recordset team;
  team.Open("SELECT * FROM TeamPlayers", file);
  EXPECT_EQ(team.RecordCount(), 1) << "a team keeps its row";
}

TEST_F(uctProfileTest, InsertGoesToTheNewRowAndLeftToTheRowSelector) {
  Add("BERPIA", "Berg", "Pia");
  Show();
  GoTo("BERPIA");
  EXPECT_EQ(Grid().Col(), -1) << "leaving the new row";
  bench.Press(Qt::Key_Insert);
  EXPECT_TRUE(Grid().IsNewRow());
  EXPECT_EQ(Grid().ColumnKey(Grid().Col()), "FirstName");
  bench.Press(Qt::Key_Left);
  EXPECT_EQ(Grid().Col(), -1);
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Grid().ColumnKey(Grid().Col()), "FirstName");
}

TEST_F(uctProfileTest, TheViewButtonChangesBetweenTableAndCards) {
  Add("AASALX", "Aas", "Al");
  Show();
  bench.Click("cmdView");
  EXPECT_EQ(Grid().CurrentView(), GridEX::View::Card);
  bench.Click("cmdView");
  EXPECT_EQ(Grid().CurrentView(), GridEX::View::Table);
}

TEST_F(uctProfileTest, ClearingTheCheckHidesTheGroupByBoxAndEndsTheGrouping) {
  Add("AASALX", "Aas", "Al");
  Show();
  EXPECT_FALSE(Grid().GroupByBoxVisible());
  bench.Click("Check1");
  EXPECT_TRUE(Grid().GroupByBoxVisible());
  Grid().AddGroup("Category");
  bench.Click("Check1");
  EXPECT_FALSE(Grid().GroupByBoxVisible());
  EXPECT_TRUE(Grid().Groups().isEmpty());
}

TEST_F(uctProfileTest, LeavingTheScreenSavesAnOpenEditAndReturningShowsWhatOthersWrote) {
  Add("AASALX", "Aas", "Al");
  Show();
  GoTo("AASALX");
  Fill({{"City", "Duluth"}});
  bench.Leave();
  EXPECT_EQ(Stored("City", "AASALX"), Value("Duluth"));
  Add("BERPIA", "Berg", "Pia");
  bench.LeaveAndReturn();
  EXPECT_EQ(Grid().RowCount(), 2);
  EXPECT_TRUE(Grid().IsNewRow());
}

TEST_F(uctProfileTest, LooksRightInLightAndDark) {
  const char* const names[][2] = {{"Aasgaard", "Al"},   {"Berg", "Pia"},     {"Carlson", "Ruth"},
                                  {"Dahl", "Kristin"},  {"Eide", "Thor"},    {"O'Brien", "Maeve"},
                                  {"Lindstrom", "Ole"}, {"Olson", "Karen"},  {"Smith", "John"},
                                  {"Svensson", "Inga"}, {"Thompson", "Ray"}, {"Zimmer", "Walt"}};
  int number = 0;
  for (const auto& [last, first] : names) {
    const QString id = QStringLiteral("P%1").arg(++number, 5, 10, QLatin1Char('0'));
    Add(id, last, first, QString::number(700 + number), number * 3);
    Set(id, "Category", number % 3 ? (number % 2 ? "AM" : "EM") : "AW");
    Set(id, "Average", 21.35 + number * 4);
    Set(id, "CardYear", "2025");
    Set(id, "BirthDate", QDate(1940 + number, 1 + number % 12, 14));
    Set(id, "Telephone", QStringLiteral("65155501%1").arg(number, 2, 10, QLatin1Char('0')));
    Set(id, "AddressOne", QStringLiteral("%1 Maple Street").arg(100 + number));
    Set(id, "City", "Duluth");
    Set(id, "ZipCode", "551011234");
  }
  const auto shots = [this](const QString& palette) {
    Show();
    bench.Shot("profile-new-row-" + palette);
    GoTo("P00003");
    Grid().SetCol("Category");
    bench.Press(Qt::Key_F2);
    bench.Shot("profile-division-" + palette);
    bench.Press(Qt::Key_Escape);
    Fill({{"CardYear", "1949"}});
    Grid().CommitRow();
    bench.Shot("profile-refusal-" + palette);
    Grid().SetDataChanged(false);
    bench.Click("cmdView");
    bench.Shot("profile-cards-" + palette);
    bench.Click("cmdView");
    bench.Click("Check1");
    Grid().AddGroup("Category");
    bench.Shot("profile-groups-" + palette);
    EXPECT_EQ(CutTexts(bench.Find("uctProfile")), QStringList()) << palette.toStdString();
  };
  UseLightPalette();
  shots("light");
  UseDarkPalette();
  shots("dark");
  UseLightPalette();
}

TEST_F(uctProfileTest, NoTextIsCut) {
  Show();
  EXPECT_EQ(CutTexts(bench.Find("uctProfile")), QStringList());
}

}  // namespace
}  // namespace tavrelin
