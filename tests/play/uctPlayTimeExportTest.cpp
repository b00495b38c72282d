#include "play/PlayOutputBench.h"

#include <QFile>

#include "basic/TextFile.h"

namespace tavrelin {
namespace {

class uctPlayTimeExportTest : public PlayOutputBench<uctPlayTime> {};

TEST_F(uctPlayTimeExportTest, AFolderOfTheProgramGivesWayToTheDataFolder) {
  MakePaired(4);
  Show();
  bench.Leave();
  bench.store().SaveRegistryString({}, "TournamentPath", "C:\\Program Files\\Club\\");
  bench.LeaveAndReturn();
  EXPECT_EQ(Text("txtPath"), "C:\\TavrelinData\\");
}

TEST_F(uctPlayTimeExportTest, TheFileIsNamedAfterTheTournamentAndThenAfterTheClass) {
  MakePaired(4);
  Show();
  EXPECT_EQ(Text("txtFile"), "26-01-007SpringOpen.txt");
  bench.Click("cmdLoad");
  EXPECT_EQ(Text("txtFile"), "SpringOpen-AClassA.txt");
}

TEST_F(uctPlayTimeExportTest, TheTextFileHoldsTheSectionsAndTheFolderGetsItsBackslash) {
  MakePaired(4);
  Play();
  ShowResults();
  Check("chkStandings");
  bench.Fill("txtPath", " " + folder_.path());
  bench.Fill("txtFile", "Final.txt ");
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "File has been created");
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_EQ(Text("txtPath"), folder_.path() + "\\");
  const QString text = ReadTextFile(folder_.filePath("Final.txt"));
  EXPECT_TRUE(text.startsWith("Spring Open    Class A    \n\nPos"));
  EXPECT_FALSE(text.contains("Opponent"));
}

TEST_F(uctPlayTimeExportTest, AFolderThatIsNotThereIsRefusedAndNothingIsWritten) {
  MakePaired(4);
  ShowResults();
  Check("chkStandings");
  bench.Fill("txtPath", folder_.path() + "/nowhere/");
  bench.Click("cmdExport");
  EXPECT_EQ(bench.Message(), "Unable to open file. No such file or directory");
  EXPECT_TRUE(bench.Refused());
  EXPECT_EQ(bench.person.beeps, 1);
  EXPECT_FALSE(QFile::exists(folder_.path() + "/nowhere"));
}

TEST_F(uctPlayTimeExportTest, TwentyFivePlayersFitOnPaperAndNotInTheTextFile) {
  MakeSingles(25);
  Store({1, 2, {30, 20}, {{16}, {12}}});
  ShowResults();
  Check("chkBoxScores");
  bench.Click("cmdPrintResults");
  EXPECT_EQ(Times("Opponent"), 25);
  bench.Click("cmdExport");
  EXPECT_EQ(bench.errors.Take().number, errors::Subscript);
  EXPECT_NE(bench.Message(), "File has been created");
  EXPECT_FALSE(QFile::exists(folder_.filePath("SpringOpen-AClassA.txt")));
}

}  // namespace
}  // namespace tavrelin
