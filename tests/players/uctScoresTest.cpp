#include "players/uctScores.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "screens/ClubScreenTest.h"
#include "screens/GridClicks.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

struct uctScoresTest : ClubScreenTest {
  void SetUp() override {
    AddPlayer("OLSKAR", "Olson", "Karen", "AW");
    AddPlayer("SMIJOH", "Smith", "John", "AM");
    AddTournament("MN25A01", "5/1/2025");
    AddTournament("MN25B02", "6/1/2025");
    AddScore("OLSKAR", "MN25A01", 200, 91);
  }
  void AddPlayer(const QString& id, const QString& last, const QString& first,
                 const QString& category = "AM") {
    file.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, Category) VALUES (?, ?, ?, ?)",
        {id, last, first, category});
  }
  void AddTournament(const QString& id, const char* date) {
    file.Execute("INSERT INTO Tournaments (SanctionID, [Date]) VALUES (?, ?)", {id, date});
  }
  void AddScore(const QString& player, const QString& tournament, int shoes, int ringers) {
    file.Execute(
        "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category, Wins, Losses, "
        "Place, HiGame) VALUES (?, ?, ?, ?, 'AW', 5.5, 1.5, 2, 60)",
        {tournament, player, shoes, ringers});
  }

  void Show() { bench.Show<uctScores>(); }
  GridEX& Players() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Scores() { return bench.Find<GridEX>("GridEX2"); }
  void Choose(const QString& playerID) {
    bench.Focus("GridEX1");
    GoToPlayer(Players(), playerID);
    bench.Press(Qt::Key_Return);
  }
  void ShowOlson() {
    Show();
    Choose("OLSKAR");
    bench.Focus("GridEX2");
  }
  // Types into cells of the row the cursor stands on.
  void Fill(const Cells& cells) {
    for (const auto& [column, text] : cells) {
      Scores().SetCol(column);
      bench.Type(text);
    }
  }
  void TypeNew(const Cells& cells) {
    bench.Press(Qt::Key_Insert);
    Fill(cells);
    bench.Press(Qt::Key_Return);
  }
  Value Stored(const QString& field, const QString& tournament) {
    return Cell("SELECT " + field + " FROM PlayerScores WHERE SanctionID = ?", {tournament});
  }
  qint64 Count() { return CountOf("PlayerScores"); }
  QString Message() { return bench.Message(); }
};

TEST_F(uctScoresTest, OpensOnThePlayersByLastNameWithNobodyChosen) {
  AddPlayer("AASALX", "aas", "Al");
  Show();
  EXPECT_EQ(TextsOf(Players(), "LastName"), QStringList({"aas", "Olson", "Smith"}));
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
  EXPECT_EQ(Scores().BoundRecordset(), nullptr);
  EXPECT_EQ(Scores().RowCount(), 0);
  EXPECT_FALSE(bench.person.busy);
}

TEST_F(uctScoresTest, TheListShowsLastNamesBeforeFirstNamesAndNoNumbers) {
  Show();
  const auto& columns = Players().Columns();
  EXPECT_FALSE(columns[0].visible);
  EXPECT_FALSE(columns[1].visible);
  EXPECT_EQ(columns[2].caption + columns[3].caption, "FirstLast");
  EXPECT_GT(columns[2].position, columns[3].position);
  bench.Type("Olson");
  EXPECT_FALSE(Players().IsEditing()) << "the list is not typed into";
}

TEST_F(uctScoresTest, TheHistoryHasItsCaptions) {
  Show();
  QStringList captions;
  for (const GridColumn& column : Scores().Columns()) captions.append(column.caption);
  EXPECT_EQ(captions.join(' '), "Name Cat Sanction Shs Rgrs % W L Pl HiGm");
}

TEST_F(uctScoresTest, ADoubleClickShowsTheHistoryThroughItsPictures) {
  Show();
  DoubleClickCell(Players(), 1, "FirstName");
  ASSERT_EQ(Scores().RowCount(), 1);
  QStringList texts;
  for (const GridColumn& column : Scores().Columns())
    texts.append(Scores().TextAt(1, column.field));
  EXPECT_EQ(texts.join('|'), "Olson Karen|Women|MN-25-A01|200|91|45.50|5.5|1.5|2|60.00");
  EXPECT_EQ(bench.Find<QLabel>("Label2").text(), "Tournament Scores: Olson Karen");
}

TEST_F(uctScoresTest, EnterShowsTheHistoryAndAnotherPlayersAfterIt) {
  AddScore("SMIJOH", "MN25B02", 100, 20);
  ShowOlson();
  EXPECT_EQ(Scores().TextAt(1, "SanctionID"), "MN-25-A01");
  Choose("SMIJOH");
  ASSERT_EQ(Scores().RowCount(), 1);
  EXPECT_EQ(Scores().TextAt(1, "SanctionID"), "MN-25-B02");
  EXPECT_EQ(Scores().TextAt(1, "PlayerID"), "Smith John");
}

TEST_F(uctScoresTest, TournamentsAreOfferedTheLatestFirst) {
  AddTournament("MN24X99", "7/4/2024");
  ShowOlson();
  Scores().SetRow(1);
  Scores().SetCol("SanctionID");
  bench.Press(Qt::Key_F2);
  auto* combo = Scores().findChild<QComboBox*>("CellEditor");
  ASSERT_NE(combo, nullptr);
  QStringList offered;
  for (int i = 0; i < combo->count(); ++i) offered.append(combo->itemText(i));
  EXPECT_EQ(offered, QStringList({"MN-25-B02", "MN-25-A01", "MN-24-X99"}));
  bench.Press(Qt::Key_Escape);
}

TEST_F(uctScoresTest, ANewRowTypedFromTheKeyboardNeedsOnlyTheTournamentAndNumbers) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  EXPECT_TRUE(Scores().IsNewRow());
  EXPECT_EQ(Scores().TextAt(-1, "PlayerID"), "Olson Karen");
  EXPECT_EQ(Scores().TextAt(-1, "Category"), "Women");
  for (const char* cell : {"mn-25-b02", "100", "30", "4.5", "2.5", "3", "52.5"}) {
    bench.Type(cell);
    bench.Press(Qt::Key_Tab);
  }
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Stored("PlayerID", "MN25B02"), Value("OLSKAR"));
  EXPECT_EQ(Stored("Category", "MN25B02"), Value("AW"));
  EXPECT_EQ(Stored("Shoes", "MN25B02"), Value(100));
  EXPECT_EQ(Stored("Ringers", "MN25B02"), Value(30));
  EXPECT_EQ(Stored("Wins", "MN25B02"), Value(4.5));
  EXPECT_EQ(Stored("Losses", "MN25B02"), Value(2.5));
  EXPECT_EQ(Stored("Place", "MN25B02"), Value(3));
  EXPECT_EQ(Stored("HiGame", "MN25B02"), Value(52.5));
  EXPECT_TRUE(Scores().IsNewRow()) << "the next row can be typed at once";
  EXPECT_EQ(Scores().TextAt(2, "Pct"), "30.00");
}

TEST_F(uctScoresTest, ARowTypedUpToTheLastFigureIsSavedOnLeavingIt) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  for (const char* cell : {"mn25b02", "100", "30"}) {
    bench.Type(cell);
    bench.Press(Qt::Key_Tab);
  }
  bench.Press(Qt::Key_Down);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Stored("Shoes", "MN25B02"), Value(100));
  EXPECT_EQ(Stored("Ringers", "MN25B02"), Value(30));
}

TEST_F(uctScoresTest, ASanctionNumberIsItsLettersAndDigitsHoweverItIsTyped) {
  ShowOlson();
  for (const char* typed : {"mn 25 b02", "mn-25-b02", "MN25B02", "mn/25.b02"}) {
    TypeNew({{"SanctionID", typed}, {"Shoes", "100"}, {"Ringers", "30"}});
    EXPECT_EQ(Message(), "") << typed;
    EXPECT_EQ(Stored("Shoes", "MN25B02"), Value(100)) << typed;
    file.Execute("DELETE FROM PlayerScores WHERE SanctionID = 'MN25B02'");
    Choose("OLSKAR");
    bench.Focus("GridEX2");
  }
}

TEST_F(uctScoresTest, ASanctionNumberArrivesInCapitalsAndEndsAtNineCharacters) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  bench.Type("mn-25-b029");
  EXPECT_EQ(Scores().findChild<QComboBox*>("CellEditor")->currentText(), "MN-25-B02");
  bench.Press(Qt::Key_Escape);
}

TEST_F(uctScoresTest, WinsLossesPlaceAndHighGameAreZeroUnlessTyped) {
  ShowOlson();
  TypeNew({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  for (const char* field : {"Wins", "Losses", "Place", "HiGame"}) {
    EXPECT_EQ(Stored(field, "MN25B02").ToNumber(), 0) << field;
  }
  EXPECT_EQ(Scores().TextAt(2, "Wins"), "0.0");
  EXPECT_EQ(Scores().TextAt(2, "Place"), "0");
}

TEST_F(uctScoresTest, AnotherDivisionStandsAndAnEmptiedOneIsThePlayersAgain) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  Scores().SetValue("Category", "EM");
  Fill({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Stored("Category", "MN25B02"), Value("EM"));
  bench.Press(Qt::Key_Insert);
  Fill({{"SanctionID", "WI25C03"}, {"Shoes", "100"}, {"Ringers", "30"}});
  Scores().SetCol("Category");
  bench.Press(Qt::Key_Delete);
  ASSERT_TRUE(Scores().CommitRow());
  EXPECT_EQ(Stored("Category", "WI25C03"), Value("AW"));
}

TEST_F(uctScoresTest, AfterASavedRowTheNextBeginsWithItsTournament) {
  ShowOlson();
  TypeNew({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  EXPECT_TRUE(Scores().IsNewRow());
  EXPECT_EQ(Scores().ColumnKey(Scores().Col()), "SanctionID");
  EXPECT_EQ(Scores().Value("SanctionID").ToText(), "");
  EXPECT_EQ(Scores().TextAt(-1, "PlayerID"), "Olson Karen");
}

TEST_F(uctScoresTest, RowsThatLackAnEssentialAreThrownAwaySilently) {
  const Cells cases[] = {{{"Shoes", "100"}, {"Ringers", "30"}},
                         {{"SanctionID", "MN25B02"}, {"Ringers", "30"}},
                         {{"SanctionID", "MN25B02"}, {"Shoes", "0"}, {"Ringers", "30"}},
                         {{"SanctionID", "MN25B02"}, {"Shoes", "100"}},
                         {{"SanctionID", "MN25B02"}, {"Shoes", "x"}, {"Ringers", "30"}}};
  ShowOlson();
  for (const Cells& cells : cases) {
    TypeNew(cells);
    EXPECT_EQ(Message(), "");
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Scores().Value("SanctionID").ToText(), "") << "what was typed is gone";
  }
  EXPECT_EQ(bench.person.beeps, 0);
}

TEST_F(uctScoresTest, AStoredRowWhoseShoesAreEmptiedComesBackAsItWas) {
  ShowOlson();
  Scores().SetRow(1);
  Fill({{"Shoes", "0"}});
  EXPECT_TRUE(Scores().CommitRow());
  EXPECT_EQ(Scores().TextAt(1, "Shoes"), "200");
  EXPECT_EQ(Scores().TextAt(1, "Pct"), "45.50");
  EXPECT_EQ(Stored("Shoes", "MN25A01"), Value(200));
}

TEST_F(uctScoresTest, ARefusedRowStaysOpenWithABeepUntilItIsMended) {
  struct {
    const char *column, *wrong, *message, *right;
  } const cases[] = {{"Wins", "4.3", "Invalid Wins.", "4.5"},
                     {"Losses", "x", "Invalid Losses.", "2"},
                     {"Place", "first", "Invalid Place.", "1"},
                     {"HiGame", "?", "Invalid High Game.", "70"}};
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  Fill({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  for (const auto& c : cases) Fill({{c.column, c.wrong}});
  int beeps = 0;
  for (const auto& c : cases) {
    bench.Press(Qt::Key_Return);
    EXPECT_EQ(Message(), c.message);
    EXPECT_TRUE(bench.Refused());
    EXPECT_EQ(bench.person.beeps, ++beeps);
    EXPECT_EQ(Scores().Value("SanctionID"), Value("MN25B02"));
    Fill({{c.column, c.right}});
    EXPECT_EQ(Message(), "") << "the refusal goes with the next key";
  }
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Stored("Wins", "MN25B02"), Value(4.5));
}

TEST_F(uctScoresTest, ASecondRowForATournamentIsRefused) {
  ShowOlson();
  TypeNew({{"SanctionID", "MN25A01"}, {"Shoes", "100"}, {"Ringers", "30"}});
  EXPECT_EQ(Message(), "Duplicate sanction number for given player");
  EXPECT_EQ(Count(), 1);
  Fill({{"SanctionID", "MN25B02"}});
  bench.Press(Qt::Key_Return);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Count(), 2);
  TypeNew({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  EXPECT_EQ(Message(), "Duplicate sanction number for given player")
      << "rows typed a moment ago count, too";
  Scores().SetDataChanged(false);
}

TEST_F(uctScoresTest, ThePercentFollowsTheFiguresAndSortsByThem) {
  AddScore("OLSKAR", "MN25B02", 100, 50);
  ShowOlson();
  Scores().SetRow(1);
  Fill({{"Ringers", "120"}});
  bench.Press(Qt::Key_Tab);
  EXPECT_EQ(Scores().TextAt(1, "Pct"), "60.00");
  ASSERT_TRUE(Scores().CommitRow());
  EXPECT_EQ(Stored("Ringers", "MN25A01"), Value(120));
  ClickHeading(Scores(), "Pct");
  EXPECT_EQ(TextsOf(Scores(), "Pct"), QStringList({"50.00", "60.00"}));
  ClickHeading(Scores(), "Pct");
  EXPECT_EQ(TextsOf(Scores(), "Pct"), QStringList({"60.00", "50.00"}));
}

TEST_F(uctScoresTest, ThePercentAndTheNameAreNotTyped) {
  ShowOlson();
  Scores().SetRow(1);
  for (const char* column : {"Pct", "PlayerID"}) {
    Scores().SetCol(column);
    EXPECT_NE(Scores().ColumnKey(Scores().Col()), column);
  }
}

TEST_F(uctScoresTest, ATournamentThatIsNotOnFileShowsItsNumber) {
  AddScore("OLSKAR", "WI19Z77", 100, 50);
  ShowOlson();
  EXPECT_EQ(Scores().TextAt(2, "SanctionID"), "WI-19-Z77");
  Scores().SetRow(2);
  Fill({{"Ringers", "60"}});
  ASSERT_TRUE(Scores().CommitRow());
  EXPECT_EQ(Stored("Ringers", "WI19Z77"), Value(60));
}

TEST_F(uctScoresTest, ANumberThatIsTooLongForTheFileIsToldAndStays) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  Fill({{"SanctionID", "MN25B0234"}, {"Shoes", "100"}, {"Ringers", "30"}});
  EXPECT_FALSE(Scores().CommitRow());
  EXPECT_NE(bench.errors.Take().description, "");
  EXPECT_EQ(Scores().Value("Shoes").ToText(), "100");
  Scores().SetDataChanged(false);
}

TEST_F(uctScoresTest, DeletionIsConfirmed) {
  ShowOlson();
  Scores().SetRow(1);
  Scores().ClearCol();
  bench.person.WillAnswer(false);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 1);
  bench.person.WillAnswer(true);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 0);
  ASSERT_EQ(bench.person.questions.size(), 2);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected tournament score?");
}

TEST_F(uctScoresTest, TypingJumpsToALastNameOrTheNextAndBehindTheLastNothingMoves) {
  AddPlayer("SANABE", "Sandberg", "Abe");
  Show();
  bench.Type("s");
  EXPECT_EQ(Players().Value("PlayerID"), Value("SANABE"));
  bench.Type("m");
  EXPECT_EQ(Players().Value("PlayerID"), Value("SMIJOH"));
  QTest::qWait(1700);
  bench.Type("k");
  EXPECT_EQ(Players().Value("PlayerID"), Value("OLSKAR")) << "a pause begins a new word";
  QTest::qWait(1700);
  bench.Type("z");
  EXPECT_EQ(Players().Value("PlayerID"), Value("OLSKAR"));
}

TEST_F(uctScoresTest, ABufferLivesForASecondAndAHalfAfterTheLastKey) {
  Show();
  const auto* timer = bench.Find("GridEX1").findChild<QTimer*>("Timer1");
  ASSERT_NE(timer, nullptr);
  EXPECT_EQ(timer->interval(), 1500);
}

TEST_F(uctScoresTest, AHeadingSortsUpAndTheNextClickDown) {
  AddPlayer("BERZOE", "Berg", "Zoe");
  AddScore("OLSKAR", "MN25B02", 90, 50);
  ShowOlson();
  ClickHeading(Players(), "FirstName");
  EXPECT_EQ(TextsOf(Players(), "FirstName"), QStringList({"John", "Karen", "Zoe"}));
  ClickHeading(Players(), "FirstName");
  EXPECT_EQ(TextsOf(Players(), "FirstName"), QStringList({"Zoe", "Karen", "John"}));
  ClickHeading(Players(), "LastName");
  EXPECT_EQ(TextsOf(Players(), "LastName"), QStringList({"Berg", "Olson", "Smith"}));
  ClickHeading(Scores(), "Shoes");
  EXPECT_EQ(TextsOf(Scores(), "Shoes"), QStringList({"90", "200"})) << "as numbers";
}

TEST_F(uctScoresTest, EscGoesBackToThePlayers) {
  ShowOlson();
  bench.Press(Qt::Key_Escape);
  EXPECT_EQ(bench.FocusName(), "GridEX1_Table");
}

TEST_F(uctScoresTest, ARefusedRowIsNotLostToAnotherPlayersHistory) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  Fill({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}, {"Wins", "4.3"}});
  DoubleClickCell(Players(), 2, "FirstName");
  EXPECT_EQ(Message(), "Invalid Wins.");
  EXPECT_EQ(Scores().TextAt(-1, "PlayerID"), "Olson Karen");
  EXPECT_EQ(Scores().Value("Shoes").ToText(), "100");
  Scores().SetDataChanged(false);
}

TEST_F(uctScoresTest, LeavingSavesAnOpenRowAndReturningStartsWithNobodyChosen) {
  ShowOlson();
  bench.Press(Qt::Key_Insert);
  Fill({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  bench.Leave();
  EXPECT_EQ(Stored("Shoes", "MN25B02"), Value(100));
  file.Execute("DELETE FROM Players WHERE PlayerID = 'SMIJOH'");
  bench.LeaveAndReturn();
  EXPECT_EQ(TextsOf(Players(), "LastName"), QStringList("Olson"));
  EXPECT_EQ(Scores().BoundRecordset(), nullptr);
  EXPECT_EQ(bench.Find<QLabel>("Label2").text(), "Tournament Scores");
}

TEST_F(uctScoresTest, WithoutPlayersOrTournamentsNothingBreaks) {
  for (const char* table : {"Players", "Tournaments"}) {
    file.Execute(QString("DELETE FROM ") + table);
  }
  Show();
  bench.Press(Qt::Key_Return);
  bench.Type("s");
  EXPECT_EQ(Scores().BoundRecordset(), nullptr);
  bench.Focus("GridEX2");
  bench.Press(Qt::Key_Insert);
  bench.Press(Qt::Key_Delete);
  ClickHeading(Scores(), "Pct");
  EXPECT_EQ(bench.errors.Count(), 0);
}

TEST_F(uctScoresTest, NamesThatWouldBreakAStatementAreJustNames) {
  AddPlayer("O'B%_0", "O'Brien; --", "\"Al\"");
  AddScore("O'B%_0", "MN25B02", 100, 40);
  Show();
  Choose("O'B%_0");
  ASSERT_EQ(Scores().RowCount(), 1);
  EXPECT_EQ(Scores().TextAt(1, "PlayerID"), "O'Brien; -- \"Al\"");
  bench.Focus("GridEX2");
  TypeNew({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}});
  EXPECT_EQ(Message(), "Duplicate sanction number for given player");
  Scores().SetDataChanged(false);
}

TEST_F(uctScoresTest, LooksRightInLightAndDark) {
  const char* const names[][2] = {{"Aasgaard", "Al"},   {"Berg", "Pia"},
                                  {"Carlson", "Ruth"},  {"Dahl", "Kristin"},
                                  {"O'Brien", "Maeve"}, {"Svensson", "Inga"},
                                  {"Thompson", "Ray"},  {"Zimmermannsdottir", "Walburga"}};
  for (const auto& [last, first] : names) {
    AddPlayer(QString(last).left(3).toUpper() + QString(first).left(3).toUpper(), last, first);
  }
  for (int number = 0; number < 9; ++number) {
    const QString id = QString("MN24C%1").arg(number, 2, 10, QLatin1Char('0'));
    AddTournament(id, "8/2/2024");
    AddScore("OLSKAR", id, 150 + 50 * (number % 3), 60 + 11 * number);
  }
  const auto shots = [this](const QString& palette) {
    Show();
    bench.Shot("scores-nobody-" + palette);
    Choose("OLSKAR");
    bench.Shot("scores-history-" + palette);
    bench.Focus("GridEX2");
    bench.Press(Qt::Key_Insert);
    bench.Press(Qt::Key_F2);
    bench.Shot("scores-sanction-" + palette);
    bench.Press(Qt::Key_Escape);
    Fill({{"SanctionID", "MN25B02"}, {"Shoes", "100"}, {"Ringers", "30"}, {"Wins", "4.3"}});
    bench.Press(Qt::Key_Return);
    bench.Shot("scores-refusal-" + palette);
    EXPECT_EQ(CutTexts(bench.Find("uctScores")), QStringList()) << palette.toStdString();
    Scores().SetDataChanged(false);
  };
  UseLightPalette();
  shots("light");
  UseDarkPalette();
  shots("dark");
  UseLightPalette();
}

}  // namespace
}  // namespace tavrelin
