#include "players/uctScores.h"

#include <gtest/gtest.h>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct uctScoresTest : testing::Test {
  ScreenBench bench;
  Connection file;

  void SetUp() override {
    file.Open(ConnectString);
    for (const char* player :
         {"'OLSKAR', 'Olson', 'Karen', 'AW'", "'SMIJOH', 'Smith', 'John', 'AM'"}) {
      file.Execute(QStringLiteral("INSERT INTO Players (PlayerID, LastName, FirstName, Category) "
                                  "VALUES (%1)")
                       .arg(player));
    }
    file.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES ('MN25A01', #5/1/2025#)");
    file.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES ('MN25B02', #6/1/2025#)");
    file.Execute(
        "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category, Wins, Losses, "
        "Place) VALUES ('MN25A01', 'OLSKAR', 200, 91, 'AW', 5.5, 1.5, 2)");
    bench.Show<uctScores>();
  }
  GridEX& Players() { return bench.Find<GridEX>("GridEX1"); }
  GridEX& Scores() { return bench.Find<GridEX>("GridEX2"); }
  void ChooseOlson() {
    Players().setFocus();
    Players().SetRow(1);
    bench.Press(Qt::Key_Return);
  }
  void TypeScore(const QString& sanction, const QString& shoes, const QString& ringers,
                 const QString& wins = "4.5") {
    Scores().setFocus();
    Scores().MoveToNewRow();
    Scores().SetValue("SanctionID", sanction);
    for (const auto& [column, text] :
         QList<QPair<QString, QString>>{{"Shoes", shoes}, {"Ringers", ringers}, {"Wins", wins}}) {
      Scores().SetCol(column);
      bench.Type(text);
    }
  }
  qint64 Count() {
    Recordset rows;
    rows.Open("SELECT COUNT(*) FROM PlayerScores", file);
    return rows.At(0).ToWhole();
  }
};

TEST_F(uctScoresTest, AChosenPlayersHistoryShowsItsPercent) {
  EXPECT_EQ(Scores().RowCount(), 0) << "no player is selected yet";
  ChooseOlson();
  ASSERT_EQ(Scores().RowCount(), 1);
  EXPECT_EQ(Scores().TextAt(1, "PlayerID"), "Olson Karen");
  EXPECT_EQ(Scores().TextAt(1, "SanctionID"), "MN-25-A01");
  EXPECT_EQ(Scores().TextAt(1, "Pct"), "45.50");
  EXPECT_EQ(Scores().TextAt(1, "Wins"), "5.5");
  bench.Shot("scores");
  EXPECT_EQ(CutTexts(bench.Find("uctScores")), QStringList());
}

TEST_F(uctScoresTest, ANewRowNeedsOnlyTheTournamentAndNumbers) {
  ChooseOlson();
  TypeScore("MN25B02", "100", "30");
  ASSERT_TRUE(Scores().CommitRow()) << bench.Message().toStdString();
  Recordset row;
  row.Open("SELECT * FROM PlayerScores WHERE SanctionID = 'MN25B02'", file);
  EXPECT_EQ(row["PlayerID"], Value("OLSKAR"));
  EXPECT_EQ(row["Category"], Value("AW"));
  EXPECT_EQ(row["Ringers"].ToWhole(), 30);
  EXPECT_EQ(row["Losses"].ToNumber(), 0);
}

TEST_F(uctScoresTest, ARowWithoutShoesIsThrownAwaySilently) {
  ChooseOlson();
  TypeScore("MN25B02", "0", "30");
  Scores().CommitRow();
  EXPECT_EQ(bench.Message(), "");
  EXPECT_EQ(Count(), 1);
}

TEST_F(uctScoresTest, WinsThatAreNoHalvesAreRefused) {
  ChooseOlson();
  TypeScore("MN25B02", "100", "30", "4.3");
  EXPECT_FALSE(Scores().CommitRow());
  EXPECT_EQ(bench.Message(), "Invalid Wins.");
  EXPECT_EQ(bench.person.beeps, 1);
  Scores().SetDataChanged(false);
}

TEST_F(uctScoresTest, ASecondRowForATournamentIsRefused) {
  ChooseOlson();
  TypeScore("MN25A01", "100", "30");
  EXPECT_FALSE(Scores().CommitRow());
  EXPECT_EQ(bench.Message(), "Duplicate sanction number for given player");
  Scores().SetDataChanged(false);
}

TEST_F(uctScoresTest, DeletionIsConfirmed) {
  ChooseOlson();
  Scores().setFocus();
  Scores().SetRow(1);
  Scores().ClearCol();
  bench.person.WillAnswer(true);
  bench.Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(bench.person.questions[0].title, "Confirm Deletion");
  EXPECT_EQ(bench.person.questions[0].text, "Delete selected tournament score?");
}

TEST_F(uctScoresTest, TypingJumpsToALastName) {
  Players().setFocus();
  bench.Type("sm");
  EXPECT_EQ(Players().Value("PlayerID"), Value("SMIJOH"));
}

}  // namespace
}  // namespace tavrelin
