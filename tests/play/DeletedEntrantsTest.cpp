// Players and teams that were deleted while they stand in an entry or a game.

#include "play/PlayOutputBench.h"

#include <QComboBox>

#include "basic/TextFile.h"

namespace tavrelin {
namespace {

template <class ScreenClass>
class DeletedEntrants : public PlayOutputBench<ScreenClass> {
 protected:
  using Base = PlayOutputBench<ScreenClass>;
  using Base::bench;

  /// Opens both tabs and makes everything that can be made from the class.
  void MakeEverything() {
    Base::ShowResults();
    EXPECT_EQ(bench.Message(), "");
    Base::Check("chkStandings");
    Base::Check("chkBoxScores");
    for (const char* button :
         {"cmdPrintPair", "cmdPrintPair", "cmdPrintResults", "cmdExport", "cmdPreviewResults"}) {
      bench.template Find<QAbstractButton>(button).click();
      EXPECT_FALSE(bench.Refused()) << button << ": " << bench.Message().toStdString();
    }
    text = ReadTextFile(Base::folder_.filePath("SpringOpen-AClassA.txt"));
  }
  /// What the score grid shows of a column.
  QStringList Shown(const QString& column) {
    QStringList shown;
    for (int row = 1; row <= Base::Scores().RowCount(); ++row) {
      shown << Base::Scores().TextAt(row, column);
    }
    return shown;
  }
  void Delete(const QString& table, const QString& column, const Value& id) {
    Base::connection_.Execute(QString("DELETE FROM %1 WHERE %2 = ?").arg(table, column), {id});
  }

  QString text;  ///< the exported file
};

class DeletedPlayers : public DeletedEntrants<uctPlayTime> {};

TEST_F(DeletedPlayers, AGameTellsThePlayerByHisNumberAndTheOthersStandings) {
  MakePaired(4);
  Play();
  Delete("Players", "PlayerID", Player(1));
  MakeEverything();
  EXPECT_TRUE(Shown("PlayerOneID").contains("000001 (not on file)"));
  EXPECT_EQ(bench.Find<GridEX>("GridEX2").RowCount(), 3);
  EXPECT_EQ(bench.Find<QComboBox>("cboPlayers").count(), 1 + 3);
  EXPECT_EQ(text.count("PACER"), 3);  // an opponent who is not on the roster
  EXPECT_TRUE(text.contains("1. P2 Stone") || text.contains("1. P3 Stone"));
}

TEST_F(DeletedPlayers, EveryStyleOfCardAndTheWorksheetAreMade) {
  MakePaired(5);
  Delete("Players", "PlayerID", Player(2));
  for (const char* style : {"1", "2", "3"}) {
    Set(3, style);
    ShowResults();
    bench.Click("optBack");
    bench.Click("cmdPrintPair");
    EXPECT_EQ(Times("Totals"), 5) << style;
  }
  Check("chkRRWorksheet");
  bench.Click("cmdPrintPair");
  EXPECT_EQ(Times("P1 Stone"), 5);
}

TEST_F(DeletedPlayers, AClassWhoseRosterIsGoneSaysSo) {
  MakePaired(4);
  connection_.Execute("DELETE FROM Players");
  Show();
  bench.Click("cmdLoad");
  EXPECT_EQ(bench.Message(), "No players entered in class");
  EXPECT_TRUE(bench.Refused());
}

TEST_F(DeletedPlayers, AnEntryThatWasDeletedLeavesItsGamesUnderThePlayersName) {
  MakePaired(4);
  Play();
  Delete("TournamentEntrants", "PlayerID", Player(1));
  MakeEverything();
  EXPECT_TRUE(Shown("PlayerOneID").contains("P1 Stone"));
  EXPECT_EQ(text.count("P1 Stone"), 3);
}

class DeletedTeams : public DeletedEntrants<uctPlayTimeTeams> {};

TEST_F(DeletedTeams, AGameTellsTheTeamByItsNumberAndTheOthersStandings) {
  MakePaired(4);
  Play();
  Delete("Teams", "TeamID", 1);
  MakeEverything();
  EXPECT_TRUE(Shown("TeamOneID").contains("1 (not on file)"));
  EXPECT_EQ(bench.Find<GridEX>("GridEX2").RowCount(), 3);
  EXPECT_EQ(text.count("PACER"), 3);
}

TEST_F(DeletedTeams, APartnerIsToldByHisNumberInTheGameOnHisCardAndInTheResults) {
  MakePaired(4);
  Play();
  Delete("Players", "PlayerID", Partner(2, 1));
  MakeEverything();
  EXPECT_TRUE(Shown("TeamOnePlayerTwoID").contains("20002 (not on file)") ||
              Shown("TeamTwoPlayerTwoID").contains("20002 (not on file)"));
  EXPECT_TRUE(text.contains("(A. - Ann Of2;  B. - 20002 (not on file))")) << text.toStdString();
  bench.Click("optBack");
  bench.Pick("cboTeams", "2. Team 2");
  bench.Click("cmdPrintPair");
  EXPECT_TRUE(PrintedTexts().contains("2A.Ann Of2  B.20002 (not on file)"));
}

TEST_F(DeletedTeams, AClassWhoseTeamsAreGoneSaysSo) {
  MakePaired(4);
  connection_.Execute("DELETE FROM Teams");
  Show();
  bench.Click("cmdLoad");
  EXPECT_EQ(bench.Message(), "No players entered in class");
}

}  // namespace
}  // namespace tavrelin
