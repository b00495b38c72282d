#include "play/ResultsCommand.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTextStream>

#include "play/ClassBench.h"
#include "play/ClassResults.h"
#include "play/Pairing.h"
#include "play/Ranking.h"
#include "play/ResultsText.h"
#include "support/PdfPages.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct Ended {
  int code = 0;
  QByteArray out;
  QString err;
};

class ResultsCommandTest : public ClassBench {
 protected:
  Ended Results(const QStringList& options, const QString& classID = QStringLiteral("A")) {
    Ended run;
    QBuffer buffer(&run.out);
    buffer.open(QIODevice::WriteOnly);
    QTextStream out(&buffer), err(&run.err);
    run.code =
        RunCommandLine({ResultsCommand()},
                       QStringList{"results", path_, "26-01-007", classID} + options, out, err);
    out.flush();
    return run;
  }

  /// Three players and the pacer; P1 beats P2, ties with P3, who forfeits to P2.
  void PlaySingles() {
    MakeSingles(3, QStringLiteral("P"), 80);
    connection_.Execute(QStringLiteral(
        "UPDATE TournamentEntrants SET RingerPercent = 50 WHERE PlayerID = '000001'"));
    Store({.one = 1, .two = 2, .points = {40, 12}, .ringers = {{20}, {10}}, .game = 1});
    Store({.one = 3, .two = 0, .points = {30, 0}, .ringers = {{8}, {0}}, .game = 1});
    Store({.one = 1, .two = 3, .points = {20, 20}, .ringers = {{9}, {9}}, .game = 2});
    Store({.one = 2,
           .two = 3,
           .points = {9, 5},
           .ringers = {{4}, {2}},
           .forfeit = {false, true},
           .game = 3});
    Store({.one = 2, .two = 0, .points = {33, 0}, .approved = false, .game = 2});
  }

  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
};

TEST_F(ResultsCommandTest, TextGoesToTheStandardOutput) {
  PlaySingles();
  const Ended run = Results({});
  EXPECT_EQ(run.code, exits::Done) << run.err.toStdString();
  const QStringList lines = QString::fromUtf8(run.out).split(u'\n');
  EXPECT_EQ(lines[0], "Spring Open    Class A    ");
  // P1 won 1.5, lost 0.5; 60 points, 29 ringers of 80 shoes: 36.25, 13.75 below his 50.
  EXPECT_EQ(lines[4].simplified(), "1. P1 Stone 50.00 0 C1 IA 1.5 0.5 60 29 0 13.75- 80 36.25");
  // The others entered with 0: 50 * 40 * 0.0003 * 80 is a handicap of 48.
  EXPECT_EQ(lines[5].simplified(), "2. P3 Stone 0.00 48 C3 IA 1.5 1.5 50 17 0 21.25 80 21.25");
  EXPECT_EQ(Results({"--text", "-"}).out, run.out);
}

TEST_F(ResultsCommandTest, APdfHoldsPacerForfeitsAndHalfWins) {
  PlaySingles();
  const Ended run = Results({"--pdf", Path("sheet.pdf")});
  EXPECT_EQ(run.code, exits::Done) << run.err.toStdString();
  const PdfPages pdf(Path("sheet.pdf"));
  EXPECT_TRUE(pdf.Has("PACER"));
  EXPECT_TRUE(pdf.Has("F-"));
  EXPECT_TRUE(pdf.Has("F+"));
  EXPECT_TRUE(pdf.Has("1.5-0.5"));
  EXPECT_NEAR(pdf.Find("Spring").y, 350, 2);
}

TEST_F(ResultsCommandTest, ThePdfGoesToTheStandardOutputByteForByte) {
  PlaySingles();
  const Ended run = Results({"--pdf", "-", "--no-box-scores"});
  EXPECT_EQ(run.code, exits::Done);
  QFile file(Path("out.pdf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(run.out);
  file.close();
  const PdfPages pdf(Path("out.pdf"));
  EXPECT_TRUE(pdf.Has("Card#"));
  EXPECT_FALSE(pdf.Has("Opponent"));
}

TEST_F(ResultsCommandTest, TheSheetStandsLowerByTheClubsOffset) {
  PlaySingles();
  connection_.Execute(
      QStringLiteral("UPDATE SystemSettings SET SettingValue = '300' WHERE SettingID = 9"));
  ASSERT_EQ(Results({"--pdf", Path("sheet.pdf"), "--brief"}).code, exits::Done);
  EXPECT_NEAR(PdfPages(Path("sheet.pdf")).Find("Spring").y, 650, 2);
  EXPECT_TRUE(PdfPages(Path("sheet.pdf")).Has("Div"));
}

TEST_F(ResultsCommandTest, AClassWithNoApprovedGameShowsItsEntrantsWithZeros) {
  MakeSingles(2);
  const Ended run = Results({"--brief"});
  EXPECT_EQ(run.code, exits::Done);
  EXPECT_TRUE(QString::fromUtf8(run.out).contains("P2 Stone"));
  EXPECT_EQ(Results({"--pdf", Path("sheet.pdf")}).code, exits::Done);
}

TEST_F(ResultsCommandTest, TwentyPlayersInFourRoundsAreWholeOnPaperAndRefusedAsText) {
  MakeSingles(20);
  const QStringList courts = LoadClass(connection_, Rules()).courts;
  ASSERT_EQ(CreatePairing(connection_, Rules(), {courts, 4, OddEntrant::NotChosen}).sentence, "");
  connection_.Execute("UPDATE TournamentSinglesRR SET Approved = True, PlayerOnePoints = 40");
  ASSERT_EQ(Results({"--pdf", Path("sheet.pdf")}).code, exits::Done);
  const PdfPages pdf(Path("sheet.pdf"));
  qsizetype scores = 0;
  for (const PdfWord& word : pdf.Words()) scores += word.text == u"40/0" || word.text == u"0/40";
  EXPECT_EQ(scores, 20 * 76);
  const Ended run = Results({"--text", Path("sheet.txt")});
  EXPECT_EQ(run.code, exits::Refused);
  EXPECT_TRUE(run.err.contains("24 entrants with 24 games each")) << run.err.toStdString();
  EXPECT_FALSE(QFile::exists(Path("sheet.txt")));
}

TEST_F(ResultsCommandTest, AClassOfForfeitsAloneHasEmptyLossesAndShowsItsGames) {
  MakeSingles(3);
  for (const auto& [one, two] : QList<QPair<int, int>>{{1, 2}, {2, 3}, {3, 1}}) {
    Store({one, two, {21, 15}, {{10}, {7}}, 40, true, {true, true}});
  }
  const QString text = QString::fromUtf8(Results({}).out);
  EXPECT_TRUE(text.contains("P1 Stone   0-2")) << text.toStdString();
  EXPECT_EQ(text.count("F- 21/15"), 3);
  ASSERT_EQ(Results({"--pdf", Path("sheet.pdf")}).code, exits::Done);
  const PdfPages pdf(Path("sheet.pdf"));
  qsizetype marks = 0, zeros = 0;
  for (const PdfWord& word : pdf.Words()) {
    marks += word.text == u"F-";
    zeros += word.text == u"0.00";
  }
  EXPECT_EQ(marks, 6);
  EXPECT_EQ(zeros, 3 * 3 + 3);  // average, over average and percentage; and the totals of a block
}

TEST_F(ResultsCommandTest, AClassOfTwoIsOneRowOfBlocks) {
  MakeSingles(2);
  Store({1, 2, {21, 15}, {{10}, {7}}, 40});
  ASSERT_EQ(Results({"--pdf", Path("sheet.pdf")}).code, exits::Done);
  const PdfPages pdf(Path("sheet.pdf"));
  EXPECT_EQ(pdf.PageCount(), 1);
  EXPECT_NEAR(pdf.Find("21/15").x, 3100, 2);
  EXPECT_NEAR(pdf.Find("15/21").x, 3100 + 5700, 2);
  EXPECT_NEAR(pdf.Find("15/21").y, pdf.Find("21/15").y, 2);
}

TEST_F(ResultsCommandTest, DoublesHaveTheirOwnSheet) {
  MakeDoubles(2);
  StoreTeams({.one = 1, .two = 2, .points = {50, 30}, .ringers = {{29, 7}, {3, 4}}});
  ASSERT_EQ(Results({"--pdf", Path("sheet.pdf")}).code, exits::Done);
  const PdfPages pdf(Path("sheet.pdf"));
  EXPECT_NEAR(pdf.Find("Spring").x, 700, 2);
  EXPECT_TRUE(pdf.Has("50/30"));
  EXPECT_TRUE(pdf.Has("72.50"));
  EXPECT_TRUE(pdf.Has("(A."));
}

TEST_F(ResultsCommandTest, AnEntrantWithASeedOfZeroHas99StoredInTheRecordsetAfterOutput) {
  PlaySingles();
  Standings standings = RankTheClass(connection_, Rules(), StandingOrder::Directed);
  ExportTheClass(ReadResults(connection_, standings), {});
  for (int position = 1; position <= 3; ++position) {
    EXPECT_EQ(standings.rows.CellAt(position, standings.rows.FieldIndex("Seed")).ToWhole(), 99);
  }
}

TEST_F(ResultsCommandTest, TheFileIsLeftAsItWas) {
  PlaySingles();
  Results({});
  EXPECT_EQ(Cell("SELECT SUM(TotalPoints) FROM TournamentEntrants").ToWhole(), 0);
}

TEST_F(ResultsCommandTest, RefusalsAndWrongUsage) {
  AddClass();
  EXPECT_EQ(Results({}).code, exits::Refused);
  EXPECT_EQ(Results({}).err, "Nothing to report\n");
  EXPECT_EQ(Results({}, "Z").code, exits::Refused);
  EXPECT_EQ(Results({"--no-standings", "--no-box-scores"}).err,
            "Check either Standings or Box Scores or both\n");
  EXPECT_EQ(Results({"--nonsense"}).code, exits::WrongUsage);
  EXPECT_EQ(Results({"--pdf"}).code, exits::WrongUsage);
  EXPECT_EQ(Results({"--pdf", "a", "--text", "b"}).code, exits::WrongUsage);
  AddPlayers(1);
  Enter(1);
  const Ended run = Results({"--text", Path("nowhere/a.txt")});
  EXPECT_EQ(run.code, exits::Refused);
  EXPECT_EQ(run.err, "Unable to open file. No such file or directory\n");
}

}  // namespace
}  // namespace tavrelin
