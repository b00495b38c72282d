#include "play/ResultsText.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "play/ResultsSheet.h"
#include "play/SampleResults.h"
#include "print/OutputTarget.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

ClassResults TwoLines() {
  ClassResults results = SampleSingles(0, 0);
  const StandingLine one = SampleLine();
  StandingLine two = one;
  two.place = 12;
  two.name = "Walt Carr";
  two.entryAverage = 5;
  two.handicap = 12;
  two.won = 12;
  two.loss = 0.5;
  two.points = 1234;
  two.overAverage = 11.5;
  results.standings = {one, two};
  return results;
}

QStringList Lines(const ClassResults& results, const ResultsChoice& choice) {
  return ExportTheClass(results, choice).split(u'\n');
}

TEST(ResultsText, TheFirstLineNamesTournamentAndClassAndNeitherNumberNorDate) {
  const QStringList lines = Lines(TwoLines(), StandingsAlone);
  EXPECT_EQ(lines[0], "Spring Open    Class A    ");
  EXPECT_EQ(lines[1], "");
  EXPECT_FALSE(ExportTheClass(TwoLines(), StandingsAlone).contains("2601007"));
}

TEST(ResultsText, BriefStandings) {
  const QStringList lines = Lines(TwoLines(), BriefStandings);
  EXPECT_EQ(lines[2],
            "Pos     Name                       Entry %    St     Won     Lost    Pts     Rgrs"
            "      Sh      R%");
  EXPECT_EQ(lines[3],
            "---  ----------------------      --------     --     ----    ----    ---     ----     "
            "---    -----");
  EXPECT_EQ(lines[4], QString("  1. Ann Baker") + QString(20 + 2, u' ') +
                          "65.43     NY     3       3.5    123      45    160    28.13");
  EXPECT_EQ(lines[5], QString(" 12. Walt Carr") + QString(20 + 2, u' ') +
                          " 5.00     NY    12       0.5   1234      45    160    28.13");
}

TEST(ResultsText, FullStandings) {
  const QStringList lines = Lines(TwoLines(), StandingsAlone);
  EXPECT_EQ(lines[2],
            "Pos    Name                    Entry %   Hcp  Card#   St  Won  Lost   Pts  Rgrs HToH  "
            "OvrAvg   Sh   R%");
  EXPECT_EQ(lines[3],
            "---    ------------------      -------   ---  -----   --  ---  ----   ---  ---- ----  "
            "-------  --   --");
  EXPECT_EQ(lines[4], QString(" 1. Ann Baker") + QString(20, u' ') +
                          "65.43    7  NY1234   NY   3    3.5  123   45  2  1.25- 160  28.13");
  EXPECT_EQ(lines[5], QString("12. Walt Carr") + QString(20, u' ') +
                          " 5.00   12  NY1234   NY  12    0.5 1234   45  2 11.50  160  28.13");
}

TEST(ResultsText, DoublesStandingsHaveNeitherCardNorStateNorABriefForm) {
  ClassResults results = TwoLines();
  results.doubles = true;
  for (const ResultsChoice& choice : {StandingsAlone, BriefStandings}) {
    const QStringList lines = Lines(results, choice);
    EXPECT_EQ(lines[2],
              "Pos   Team                             Entry %  Hcp   Won  Lost   Pts  Rgrs HToH  "
              "OvrAvg   Sh   R%");
    EXPECT_EQ(lines[3],
              "---   ------------------------         ------   ---   ---  ----   ---  ---- ----  "
              "------   --   --");
    EXPECT_EQ(lines[4], QString(" 1. Ann Baker") + QString(28, u' ') +
                            "65.43    7   3    3.5  123   45  2  1.25- 160  28.13");
  }
}

TEST(ResultsText, TwoBlocksStandBesideEachOtherInFixedColumns) {
  ClassResults results = SampleSingles(0, 0);
  results.boxScores = {
      Block(1, "Ann Baker",
            {GameLine("Walt Carr", 40, 12, {30}, 46), GameLine("PACER", 9, 10, {5}, 46, "F-")}),
      Block(2, "Walt Carr", {GameLine("Ann Baker", 12, 40, {19}, 46)})};
  const QStringList lines = Lines(results, BoxScoresAlone);
  EXPECT_EQ(lines[2], "");
  EXPECT_EQ(lines[3].left(58).trimmed(), "1. Ann Baker   1-1");
  EXPECT_EQ(lines[3].mid(58).trimmed(), "2. Walt Carr   0-1");
  EXPECT_EQ(lines[4],
            "     Opponent                 Score  Rgrs  Shs   %        "
            "     Opponent                 Score  Rgrs  Shs   %");
  EXPECT_EQ(lines[5],
            "     --------                 -----  ----  ---  ---       "
            "     --------                 -----  ----  ---  ---");
  EXPECT_EQ(lines[6],
            "  1. Walt Carr                40/12   30    46    65.22   "
            "  1. Ann Baker                12/40   19    46    41.30");
  EXPECT_EQ(lines[7].trimmed(), "2. PACER                 F- 9/10     5    46    10.87");
  EXPECT_EQ(lines[8].left(58), QString(30, u' ') + QString(22, u'-') + QString(6, u' '));
  EXPECT_EQ(lines[9],
            "                                49    35    92    38.04   "
            "                                12    19    46    41.30");
}

TEST(ResultsText, AnOddNumberOfEntrantsLeavesTheLastRightBlockEmpty) {
  const QStringList lines = Lines(SampleSingles(3, 2), BoxScoresAlone);
  const qsizetype third = lines.indexOf(QRegularExpression("^3\\. First3.*"));
  ASSERT_GT(third, 0);
  for (const QString& line : lines.mid(third)) EXPECT_EQ(line.mid(58).trimmed(), "");
  EXPECT_TRUE(lines.mid(0, third).filter("First2").first().indexOf("2. First2") == 58);
}

TEST(ResultsText, ANameLongerThanItsColumnStaysApartFromTheNextFigure) {
  ClassResults results = TwoLines();
  results.standings[0].name = "Bartholomew-Christopher Featherstonehaugh-Sme";
  EXPECT_TRUE(Lines(results, StandingsAlone)[4].startsWith(
      " 1. Bartholomew-Christopher Featherstonehaugh-Sme 65.43    7"));
}

TEST(ResultsText, NamesOf45CharactersAndHalfWinsLeaveTheSecondBlockInItsColumns) {
  const QString name = "Bartholomew-Christopher Featherstonehaugh-Sme";
  ClassResults results = SampleSingles(0, 0);
  for (int n = 1; n <= 12; ++n) {
    results.boxScores << Block(n, name, {GameLine(name, 120, 118, {99}, 200, "F+")});
    results.boxScores.last().won = 10.5;
    results.boxScores.last().loss = 12.5;
  }
  const QStringList lines = Lines(results, BoxScoresAlone);
  for (const QString& line : lines.mid(3)) {
    if (line.isEmpty()) continue;
    EXPECT_EQ(line[57], u' ') << line.toStdString();
    EXPECT_EQ(line.left(58).trimmed().isEmpty(), line.mid(58).trimmed().isEmpty());
  }
  const QString last = lines.filter("11. ").first();
  EXPECT_TRUE(last.startsWith("11. Bartholomew-Christopher Featherstone"));
  EXPECT_EQ(last.left(58).trimmed().right(12), "   10.5-12.5");
  EXPECT_EQ(last.mid(58, 4), "12. ");
}

TEST(ResultsText, AClassWithNoApprovedGameHasBlocksWithZerosAndNoGames) {
  const QStringList lines = Lines(SampleSingles(2, 0), BoxScoresAlone);
  EXPECT_EQ(lines[3].left(58).trimmed(), "1. First1 Last1   0-0");
  EXPECT_EQ(lines[6].simplified(), "---------------------- ----------------------");
  EXPECT_EQ(lines[7].simplified(), "0 0 0 0.00 0 0 0 0.00");
  EXPECT_FALSE(ExportTheClass(SampleDoubles(2, 0), BoxScoresAlone).contains("0.00"));
}

TEST(ResultsText, ABlockOnTheRightIsToldAsFarAsTheOneOnTheLeft) {
  ClassResults results = SampleSingles(2, 3);
  results.boxScores[1].lines.resize(1);
  EXPECT_TRUE(Lines(results, BoxScoresAlone)[8].mid(58).trimmed().isEmpty());
  results = SampleSingles(2, 3);
  results.boxScores[0].lines.resize(1);
  EXPECT_TRUE(Lines(results, BoxScoresAlone)[7].startsWith(QString(30, u' ') + "---"));
}

TEST(ResultsText, TotalsAreThoseOfTheGamesRead) {
  ClassResults results = SampleSingles(0, 0);
  results.boxScores = {Block(1, "Ann Baker", {GameLine("Walt Carr", 9, 40, {20}, 40, "F-")})};
  results.boxScores[0].totals = {0, 0, {0}, {0}};  // a forfeited game is empty in the standings
  const QStringList lines = Lines(results, BoxScoresAlone);
  EXPECT_EQ(lines[8].simplified(), "9 20 40 50.00");
}

TEST(ResultsText, TwentyFiveEntrantsFailWhileThePrintedSheetSucceeds) {
  const ClassResults results = SampleSingles(25, 2);
  try {
    ExportTheClass(results, {});
    ADD_FAILURE() << "the table has room for 24";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), errors::Subscript);
  }
  OutputTarget target(OutputTarget::Kind::Printer);
  PrintTheClass(target, results, {});
  EXPECT_GT(target.Written().pages.size(), 1);
  EXPECT_NO_THROW(ExportTheClass(SampleSingles(24, 24), {}));
  EXPECT_NO_THROW(ExportTheClass(results, StandingsAlone));
  EXPECT_THROW(ExportTheClass(SampleSingles(2, 25), {}), Error);
}

TEST(ResultsText, DoublesWriteOneBlockBelowTheOtherWithoutALimit) {
  const QString text = ExportTheClass(SampleDoubles(30, 30), {});
  EXPECT_TRUE(text.contains("\n30. Stakes30   30-0   (A. - Ada30 First;  B. - Bob30 Second)\n"));
  EXPECT_EQ(text.count("Opponent"), 30);
  const QStringList lines = text.split(u'\n');
  // 30 games of 21 points, 40 shoes, 10 and 20 ringers.
  EXPECT_EQ(lines[lines.size() - 2].simplified(), "630 1200 300 25.00 600 50.00");
}

TEST(ResultsText, TheSinglesFolderTakesItsBackslashAndTheDoublesFolderStaysAsItStands) {
  EXPECT_EQ(ResultsFolder(" C:\\TavrelinData ", false), "C:\\TavrelinData\\");
  EXPECT_EQ(ResultsFolder("C:\\TavrelinData\\", false), "C:\\TavrelinData\\");
  EXPECT_EQ(ResultsFolder("C:\\TavrelinData", true), "C:\\TavrelinData");
}

TEST(ResultsText, AFileThatCannotBeOpenedIsASentenceAndNothingIsWritten) {
  const QTemporaryDir folder;
  EXPECT_EQ(WriteResults(folder.filePath("none") + "/", " A.txt ", "text").sentence,
            "Unable to open file. No such file or directory");
  EXPECT_EQ(WriteResults(folder.path() + "/", "", "text").sentence,
            "Unable to open file. Filename refers to a directory");
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
  EXPECT_EQ(WriteResults(folder.path() + "/ ", " A.txt ", "one\ntwo\n").sentence, "");
  QFile file(folder.filePath("A.txt"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "one\r\ntwo\r\n");
}

TEST(ResultsText, ASlashInTheFileNameIsExplainedWhenItsFolderIsNotThere) {
  const QTemporaryDir folder;
  EXPECT_EQ(WriteResults(folder.path() + "/", "Spring/Fall-A.txt", "text").sentence,
            "Unable to open file. No such file or directory (the \"/\" in the file name stands for "
            "a folder)");
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

}  // namespace
}  // namespace tavrelin
