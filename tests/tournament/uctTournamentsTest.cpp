#include "tournament/uctTournaments.h"

#include <gtest/gtest.h>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "screens/GridClicks.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct uctTournamentsTest : testing::Test {
  ScreenBench bench;
  Connection file;

  void SetUp() override { file.Open(ConnectString); }

  void Show() { bench.Show<uctTournaments>(); }
  GridEX& Tournaments() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Classes() { return bench.Find<GridEX>("GridEX2"); }

  void AddTournament(const QString& id, const char* date = "6/20/2025") {
    file.Execute("INSERT INTO Tournaments (SanctionID, Name, Date) VALUES (?, 'Spring Open', ?)",
                 {id, date});
  }

  Value Ask(const QString& sql) {
    Recordset rows;
    rows.Open(sql, file);
    return rows.AtEnd() ? Value() : rows.At(0);
  }
  qint64 Count(const QString& table) { return Ask("SELECT COUNT(*) FROM " + table).ToWhole(); }

  // What a person types into a new row of a grid, one cell after the other, and then leaves the
  // row.
  void TypeRow(const QStringList& cells) {
    for (const QString& cell : cells) {
      bench.Type(cell);
      bench.Press(Qt::Key_Tab);
    }
  }

  void ChooseFirstTournament() {
    Tournaments().setFocus();
    Tournaments().SetRow(1);
    bench.Press(Qt::Key_Return);
  }
};

TEST_F(uctTournamentsTest, OpensOnTheNewRowReadyForASanctionNumber) {
  AddTournament("MN25A01");
  Show();
  EXPECT_TRUE(Tournaments().IsNewRow());
  EXPECT_EQ(Tournaments().Col(), 1);
  EXPECT_FALSE(Classes().isEnabled());
  EXPECT_EQ(Classes().RowCount(), 0);
}

TEST_F(uctTournamentsTest, LowerCaseAndDashesTypedArriveAsSevenCapitals) {
  Show();
  TypeRow({"mn-25-a01", "Spring Open", "6/20/2025"});
  ASSERT_TRUE(Tournaments().CommitRow());
  EXPECT_EQ(Ask("SELECT SanctionID FROM Tournaments"), Value("MN25A01"));
  EXPECT_EQ(Ask("SELECT Date FROM Tournaments").ToDate().date(), QDate(2025, 6, 20));
  EXPECT_EQ(bench.store().GetRegistryString({}, "RecentTournament"), "MN-25-A01   Spring Open");
}

TEST_F(uctTournamentsTest, ASixCharacterNumberIsRefusedAndWhatWasTypedStays) {
  Show();
  TypeRow({"MN25A0", "Spring Open", "6/20/2025"});
  EXPECT_FALSE(Tournaments().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid sanction number");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(Tournaments().Value("Name"), Value("Spring Open"));
  EXPECT_EQ(Count("Tournaments"), 0);
}

TEST_F(uctTournamentsTest, ANewTournamentWithAStoredNumberIsRefused) {
  AddTournament("MN25A01");
  Show();
  TypeRow({"MN25A01", "Again", "6/20/2025"});
  EXPECT_FALSE(Tournaments().CommitRow());
  EXPECT_EQ(bench.Message(), "Duplicate sanction number");
  EXPECT_EQ(Count("Tournaments"), 1);
}

TEST_F(uctTournamentsTest, AStoredTournamentKeepsItsNumberWhenItsNameIsMended) {
  AddTournament("MN25A01");
  Show();
  Tournaments().SetRow(1);
  Tournaments().SetCol("Name");
  bench.Type("Fall Open");
  EXPECT_TRUE(Tournaments().CommitRow());
  EXPECT_EQ(Ask("SELECT Name FROM Tournaments"), Value("Fall Open"));
  EXPECT_EQ(bench.store().GetRegistryString({}, "RecentTournament"), "MN-25-A01   Fall Open");
}

TEST_F(uctTournamentsTest, AMendedNumberKeepsItsClassesAndEntries) {
  AddTournament("MN25A01");
  file.Execute("INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('MN25A01', 'A')");
  file.Execute("INSERT INTO TournamentEntrants (SanctionID, PlayerID) VALUES ('MN25A01', 'X')");
  Show();
  Tournaments().SetRow(1);
  Tournaments().SetCol("SanctionID");
  bench.Type("MN-25-A02");
  EXPECT_TRUE(Tournaments().CommitRow()) << bench.Message().toStdString();
  EXPECT_EQ(Ask("SELECT SanctionID FROM TournamentClasses"), Value("MN25A02"));
  EXPECT_EQ(Ask("SELECT SanctionID FROM TournamentEntrants"), Value("MN25A02"));
  ChooseFirstTournament();
  EXPECT_EQ(Classes().RowCount(), 1);
}

TEST_F(uctTournamentsTest, AMendedNumberIsNotThatOfAnotherTournament) {
  AddTournament("MN25A01", "6/20/2025");
  AddTournament("WI25B02", "6/1/2025");
  Show();
  Tournaments().SetRow(1);
  Tournaments().SetCol("SanctionID");
  bench.Type("WI25B02");
  EXPECT_FALSE(Tournaments().CommitRow());
  EXPECT_EQ(bench.Message(), "Duplicate sanction number");
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM Tournaments WHERE SanctionID = 'WI25B02'").ToWhole(), 1);
}

TEST_F(uctTournamentsTest, ARowWithoutANumberVanishesWithoutAWord) {
  AddTournament("WI25B02");
  Show();
  Tournaments().SetCol("Name");
  bench.Type("Nameless");
  Tournaments().SetRow(1);
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(bench.person.beeps, 0);
  EXPECT_EQ(Count("Tournaments"), 1);
}

TEST_F(uctTournamentsTest, ATournamentWithoutADateIsToldAndUndoneAndTheOperatorStays) {
  Show();
  TypeRow({"MN25A01", "Spring Open", "someday"});
  EXPECT_FALSE(Tournaments().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid tournament date");
  EXPECT_TRUE(bench.Refused());
  EXPECT_TRUE(Tournaments().IsNewRow());
  EXPECT_FALSE(Tournaments().DataChanged());
  EXPECT_TRUE(Tournaments().Value("Name").IsNull());
  EXPECT_EQ(Count("Tournaments"), 0);
  EXPECT_EQ(bench.store().GetRegistryString({}, "RecentTournament"), "");
}

TEST_F(uctTournamentsTest, AStoredTournamentGivenABadDateShowsItsStoredRowAgain) {
  AddTournament("MN25A01");
  Show();
  Tournaments().SetRow(1);
  Tournaments().SetCol("Date");
  bench.Type("13/45/2025");
  EXPECT_FALSE(Tournaments().CommitRow());
  EXPECT_EQ(Tournaments().Row(), 1);
  EXPECT_EQ(Tournaments().TextAt(1, "Date"), "06/20/2025");
}

TEST_F(uctTournamentsTest, ASavedTournamentLeavesTheCursorReadyForTheNextNumber) {
  Show();
  for (const char* cell : {"MN25A01", "Spring Open"}) {
    bench.Type(cell);
    bench.Press(Qt::Key_Tab);
  }
  bench.Type("6/20/2025");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Count("Tournaments"), 1);
  EXPECT_TRUE(Tournaments().IsNewRow());
  EXPECT_EQ(Tournaments().ColumnKey(Tournaments().Col()), "SanctionID");
}

TEST_F(uctTournamentsTest, ATournamentWithoutANameIsRememberedByItsNumberAlone) {
  Show();
  TypeRow({"MN25A01", "", "6/20/2025"});
  ASSERT_TRUE(Tournaments().CommitRow());
  EXPECT_EQ(bench.store().GetRegistryString({}, "RecentTournament"), "MN-25-A01");
}

TEST_F(uctTournamentsTest, TheTournamentsStandLatestFirstAndAClickOnAHeadingFlips) {
  AddTournament("MN25A01", "6/1/2025");
  AddTournament("WI25B02", "6/20/2025");
  Show();
  EXPECT_EQ(TextsOf(Tournaments(), "SanctionID"), (QStringList{"WI-25-B02", "MN-25-A01"}));
  ClickHeading(Tournaments(), "Date");
  EXPECT_EQ(TextsOf(Tournaments(), "SanctionID"), (QStringList{"MN-25-A01", "WI-25-B02"}));
  ClickHeading(Tournaments(), "Date");
  EXPECT_EQ(TextsOf(Tournaments(), "SanctionID"), (QStringList{"WI-25-B02", "MN-25-A01"}));
}

TEST_F(uctTournamentsTest, LeftInTheFirstColumnAndLeavingTheNewRowGoToTheRowSelector) {
  AddTournament("MN25A01");
  Show();
  bench.Press(Qt::Key_Left);
  EXPECT_EQ(Tournaments().Col(), -1);
  Tournaments().SetCol("Name");
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(Tournaments().Row(), 1);
  EXPECT_EQ(Tournaments().Col(), -1);
}

TEST_F(uctTournamentsTest, ADoubleClickChoosesATournamentToo) {
  AddTournament("MN25A01");
  Show();
  DoubleClickCell(Tournaments(), 1, "Name");
  EXPECT_TRUE(Classes().isEnabled());
  EXPECT_EQ(bench.FocusName(), "GridEX2_Table");
}

TEST_F(uctTournamentsTest, AClassThatIsRefusedStaysWhenAnotherTournamentIsDoubleClicked) {
  AddTournament("MN25A01");
  AddTournament("WI25B02", "6/1/2025");
  Show();
  ChooseFirstTournament();
  TypeRow({"a", "Men"});
  DoubleClickCell(Tournaments(), 2, "Name");
  EXPECT_EQ(bench.Message(), "Invalid rank method");
  EXPECT_EQ(Classes().Value("Name"), Value("Men"));
  EXPECT_EQ(bench.FocusName(), "GridEX2_Table");
}

TEST_F(uctTournamentsTest, AClassRowWithoutALetterVanishesWithoutAWord) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  Classes().SetCol("Name");
  bench.Type("Nameless");
  EXPECT_TRUE(Classes().CommitRow());
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(bench.person.beeps, 0);
  EXPECT_EQ(Count("TournamentClasses"), 0);
}

TEST_F(uctTournamentsTest, RingerPercentIsRefusedAtHandicap80AndTakenAt0AndWhenEmpty) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  for (const auto& [field, value] :
       QList<QPair<QString, Value>>{{"ClassID", "A"}, {"RankMethod", "R"}, {"PlayFormat", "S"}})
    Classes().SetValue(field, value);
  Classes().SetCol("HandicapPct");
  bench.Type("80");
  EXPECT_FALSE(Classes().CommitRow());
  EXPECT_EQ(bench.Message(), "QLTA does not allow Ringer Percent Tie-breaker for Handicap Class");
  bench.Press(Qt::Key_Delete);
  EXPECT_TRUE(Classes().CommitRow()) << bench.Message().toStdString();
  EXPECT_EQ(Ask("SELECT HandicapPct FROM TournamentClasses"), Value(0.0));
  Classes().SetRow(1);
  Classes().SetCol("HandicapPct");
  bench.Type("0");
  EXPECT_TRUE(Classes().CommitRow());
}

TEST_F(uctTournamentsTest, ASavedClassLeavesTheCursorOnTheLetterOfTheNext) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  for (const auto& [field, value] :
       QList<QPair<QString, Value>>{{"RankMethod", "P"}, {"PlayFormat", "S"}})
    Classes().SetValue(field, value);
  bench.Type("a");
  bench.Press(Qt::Key_Tab);
  bench.Type("Men");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Ask("SELECT ClassID FROM TournamentClasses"), Value("A"));
  EXPECT_TRUE(Classes().IsNewRow());
  EXPECT_EQ(Classes().ColumnKey(Classes().Col()), "ClassID");
  bench.Type("B");
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Count("TournamentClasses"), 2);
}

TEST_F(uctTournamentsTest, ADuplicateLetterIsRefused) {
  AddTournament("MN25A01");
  file.Execute("INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('MN25A01', 'A')");
  Show();
  ChooseFirstTournament();
  bench.Type("a");
  EXPECT_FALSE(Classes().CommitRow());
  EXPECT_EQ(bench.Message(), "Duplicate Class ID");
  EXPECT_EQ(Count("TournamentClasses"), 1);
}

TEST_F(uctTournamentsTest, AClassStartsAtEightOnTheTournamentsDay) {
  AddTournament("MN25A01", "3/9/2025");
  Show();
  ChooseFirstTournament();
  EXPECT_EQ(Classes().TextAt(-1, "DateTime"), "03/09/2025 8:00 AM");
}

TEST_F(uctTournamentsTest, TheColumnsOfBothGridsStandInTheirOrder) {
  Show();
  const auto captions = [](const GridEX& grid) {
    QStringList texts;
    for (const GridColumn& column : grid.Columns())
      if (column.visible) texts << column.caption;
    return texts;
  };
  EXPECT_EQ(captions(Tournaments()),
            (QStringList{"Sanction", "Name", "Date", "City", "St", "Director"}));
  EXPECT_EQ(captions(Classes()), (QStringList{"Class", "Name", "Hcp", "Date/Time", "ShPG",
                                              "TieBreaker", "Format", "Chmp", "NoPA", "Report"}));
}

TEST_F(uctTournamentsTest, EnterOnATournamentOpensItsClassesOnANewRowWithItsDefaults) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  EXPECT_TRUE(Classes().isEnabled());
  EXPECT_TRUE(Classes().IsNewRow());
  EXPECT_EQ(Classes().ColumnKey(Classes().Col()), "ClassID");
  EXPECT_EQ(Classes().Value("DateTime").ToDate(), QDateTime(QDate(2025, 6, 20), QTime(8, 0)));
  for (const char* number : {"Shoes", "PlacesPaidOut", "HandicapPct"})
    EXPECT_EQ(Classes().Value(number).ToNumber(), 0) << number;
}

TEST_F(uctTournamentsTest, TheSecondNewClassShowsWhatTheFirstWasGiven) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  Classes().SetValue("ClassID", "A");
  Classes().SetValue("Shoes", 40);
  Classes().SetValue("HandicapPct", 80);
  Classes().SetValue("RankMethod", "H");
  Classes().SetValue("PlayFormat", "S");
  Classes().SetValue("PlacesPaidOut", 3);
  Classes().SetValue("DateTime", QDateTime(QDate(2025, 6, 20), QTime(13, 30)));
  ASSERT_TRUE(Classes().CommitRow()) << bench.Message().toStdString();
  Classes().MoveToNewRow();
  EXPECT_EQ(Classes().Value("Shoes").ToNumber(), 40);
  EXPECT_EQ(Classes().Value("HandicapPct").ToNumber(), 80);
  EXPECT_EQ(Classes().Value("RankMethod"), Value("H"));
  EXPECT_EQ(Classes().Value("PlayFormat"), Value("S"));
  EXPECT_EQ(Classes().Value("PlacesPaidOut").ToNumber(), 3);
  EXPECT_EQ(Classes().Value("DateTime").ToDate().time(), QTime(13, 30));
  EXPECT_EQ(Ask("SELECT SanctionID FROM TournamentClasses"), Value("MN25A01"));
}

TEST_F(uctTournamentsTest, TwoTournamentsMayHoldAClassOfTheSameLetter) {
  AddTournament("MN25A01");
  AddTournament("WI25B02", "6/1/2025");
  file.Execute("INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('WI25B02', 'A')");
  Show();
  ChooseFirstTournament();
  for (const auto& [field, value] :
       QList<QPair<QString, Value>>{{"ClassID", "A"}, {"RankMethod", "P"}, {"PlayFormat", "S"}})
    Classes().SetValue(field, value);
  EXPECT_TRUE(Classes().CommitRow()) << bench.Message().toStdString();
  EXPECT_EQ(Count("TournamentClasses"), 2);
}

TEST_F(uctTournamentsTest, AStoredClassKeepsItsLetter) {
  AddTournament("MN25A01");
  file.Execute("INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('MN25A01', 'A')");
  Show();
  ChooseFirstTournament();
  Classes().SetRow(1);
  EXPECT_EQ(Classes().Col(), -1);
  Classes().SetCol("ClassID");
  EXPECT_NE(Classes().ColumnKey(Classes().Col()), "ClassID");
}

TEST_F(uctTournamentsTest, EscapeReturnsToTheTournamentsAndEmptiesTheClasses) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  bench.Press(Qt::Key_Escape);
  EXPECT_FALSE(Classes().isEnabled());
  EXPECT_EQ(Classes().BoundRecordset(), nullptr);
  EXPECT_TRUE(Tournaments().isAncestorOf(bench.Find("GridEX1").window()->focusWidget()) ||
              bench.FocusName() == "GridEX1");
}

TEST_F(uctTournamentsTest, DeletingATournamentIsAskedAndTakesItsClassesAlong) {
  AddTournament("MN25A01");
  file.Execute("INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('MN25A01', 'A')");
  Show();
  Tournaments().SetRow(1);
  bench.person.WillAnswer(false);
  EXPECT_FALSE(Tournaments().DeleteRow());
  EXPECT_EQ(Count("Tournaments"), 1);
  bench.person.WillAnswer(true);
  EXPECT_TRUE(Tournaments().DeleteRow());
  ASSERT_EQ(bench.person.questions.size(), 2);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected tournament?");
  EXPECT_EQ(Count("Tournaments"), 0);
  EXPECT_EQ(Count("TournamentClasses"), 0);
}

TEST_F(uctTournamentsTest, DeletingAClassIsAsked) {
  AddTournament("MN25A01");
  file.Execute("INSERT INTO TournamentClasses (SanctionID, ClassID) VALUES ('MN25A01', 'A')");
  Show();
  ChooseFirstTournament();
  Classes().SetRow(1);
  bench.person.WillAnswer(true);
  EXPECT_TRUE(Classes().DeleteRow());
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected class?");
  EXPECT_EQ(Count("TournamentClasses"), 0);
}

TEST_F(uctTournamentsTest, NothingIsKeptBetweenTwoVisits) {
  AddTournament("MN25A01");
  Show();
  ChooseFirstTournament();
  AddTournament("WI25B02");
  bench.LeaveAndReturn();
  EXPECT_EQ(Tournaments().RowCount(), 2);
  EXPECT_FALSE(Classes().isEnabled());
}

TEST_F(uctTournamentsTest, NothingIsCutAndPictures) {
  AddTournament("MN25A01", "6/1/2025");
  AddTournament("WI25B02");
  file.Execute(
      "UPDATE Tournaments SET City = 'Saint-Élan', State = 'OH', Director = 'Clémence Vérendelle'");
  file.Execute(
      "INSERT INTO TournamentClasses (SanctionID, ClassID, Name, Shoes, RankMethod, PlayFormat, "
      "DateTime, HandicapPct, PlacesPaidOut) "
      "VALUES ('WI25B02', 'A', 'Men Championship', 40, 'H', 'S', #6/20/2025 10:00 AM#, 0, 3)");
  for (const bool dark : {false, true}) {
    dark ? UseDarkPalette() : UseLightPalette();
    const QString look = dark ? "-dark" : "";
    Show();
    bench.Shot("uctTournaments" + look);
    ChooseFirstTournament();
    bench.Shot("uctTournaments-classes" + look);
    EXPECT_EQ(CutTexts(*bench.Find("GridEX1").window()), QStringList());
    bench.Type("a");
    EXPECT_FALSE(Classes().CommitRow());
    bench.Shot("uctTournaments-refusal" + look);
  }
  UseLightPalette();
}

}  // namespace
}  // namespace tavrelin
