#include "play/CardCommands.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QTextStream>

#include "play/ClassBench.h"
#include "play/Pairing.h"
#include "play/PdfSpots.h"
#include "support/BuiltProgram.h"

namespace tavrelin {
namespace {

class CardCommandsTest : public ClassBench {
 protected:
  void Pair(OddEntrant odd = OddEntrant::NotChosen) {
    const ClassRules rules = Rules();
    ASSERT_FALSE(CreatePairing(connection_, rules, {LoadClass(connection_, rules).courts, 1, odd}));
  }

  void Set(int setting, const QString& value) {
    connection_.Execute("UPDATE SystemSettings SET SettingValue = ? WHERE SettingID = ?",
                        {value, setting});
  }

  int Run(const QString& command, const QStringList& options) {
    QString output;
    QTextStream out(&output);
    message_.clear();
    QTextStream err(&message_);
    return RunCommandLine(CardCommands(), QStringList{command, path_, "26-01-007", "A"} + options,
                          out, err);
  }

  PdfPages Pages(const QString& command, const QStringList& options) {
    EXPECT_EQ(Run(command, options + QStringList{"--pdf", pdf_}), exits::Done)
        << message_.toStdString();
    return PdfPages(pdf_);
  }

  void ExpectRefusal(const QString& command, const QStringList& options, const char* message) {
    EXPECT_EQ(Run(command, options + QStringList{"--pdf", pdf_}), exits::Refused);
    EXPECT_EQ(message_.toStdString(), std::string(message) + "\n");
    EXPECT_FALSE(QFile::exists(pdf_));
  }

  QString pdf_ = folder_.filePath("cards.pdf");
  QString message_;
};

TEST_F(CardCommandsTest, CardsOfAClassStandInItsPdfWhileTheWindowHasTheFileOpen) {
  MakeSingles(4);
  Pair();
  ASSERT_TRUE(connection_.IsOpen());
  const PdfPages pdf = Pages("cards", {});
  EXPECT_EQ(pdf.PageCount(), 4);
  ExpectSpots(pdf, {{"1.P1", 200, 4600}, {"1", 400, 6700}, {"4.", 1200, 6700}});
  EXPECT_TRUE(pdf.Text().contains("Class: Class A"));
}

TEST_F(CardCommandsTest, TheStyleIsTheClubsUnlessItIsNamed) {
  MakeSingles(4);
  Pair();
  Set(3, "3");
  EXPECT_EQ(Pages("cards", {}).PageCount(), 2);
  EXPECT_EQ(Pages("cards", {"--style", "1"}).PageCount(), 4);
  ExpectSpots(Pages("cards", {"--style", "2"}), {{"1.P1", 300, 7800}});
}

TEST_F(CardCommandsTest, AdjustmentsOfTheClubMoveTheCards) {
  MakeSingles(2);
  Pair();
  Set(1, "-120");
  Set(2, "60");
  ExpectSpots(Pages("cards", {}), {{"1.P1", 260, 4480}});
}

TEST_F(CardCommandsTest, FrontGamesAndPlayerNarrowTheCards) {
  MakeSingles(4);
  Pair();
  EXPECT_TRUE(Pages("cards", {"--front"}).Has("Stone"));
  EXPECT_FALSE(Pages("cards", {"--front"}).Has("Game"));
  const PdfPages one = Pages("cards", {"--player", "000003", "--from", "2", "--to", "3"});
  EXPECT_EQ(one.PageCount(), 1);
  ExpectSpots(one, {{"3.P3", 200, 4600}, {"2", 400, 6700}, {"3", 400, 7100}});
}

TEST_F(CardCommandsTest, APlayerIsFoundWhateverTheCaseOfHisNumber) {
  MakeSingles(2);
  for (const char* table : {"Players", "TournamentEntrants"}) {
    connection_.Execute(
        QStringLiteral("UPDATE %1 SET PlayerID = 'AB0002' WHERE PlayerID = '000002'").arg(table));
  }
  Pair();
  const PdfPages one = Pages("cards", {"--player", "ab0002"});
  EXPECT_EQ(one.PageCount(), 1);
  EXPECT_TRUE(one.Has("2.P2"));
}

TEST_F(CardCommandsTest, AClassWithAPacerPrintsHimToo) {
  MakeSingles(3);
  Pair(OddEntrant::Pacer);
  const PdfPages pdf = Pages("cards", {"--style", "3"});
  EXPECT_EQ(pdf.PageCount(), 2);
  ExpectSpots(pdf, {{"4.PACER", 300, 7800}}, 2);
  EXPECT_TRUE(pdf.Has("PACER"));
}

TEST_F(CardCommandsTest, AClassWithByesShowsThem) {
  MakeSingles(5);
  Pair(OddEntrant::Bye);
  const PdfPages pdf = Pages("cards", {"--player", "000001"});
  ExpectSpots(pdf, {{"X.", 1200, 6700}, {"X", 4600, 6700}, {"X", 10450, 6700}});
}

TEST_F(CardCommandsTest, DoublesHaveStandardAndFoldedCards) {
  MakeDoubles(4);
  Pair();
  EXPECT_EQ(Pages("cards", {"--front"}).PageCount(), 8);
  ExpectSpots(Pages("cards", {"--player", "2"}), {{"2A.Ann", 200, 4600}});
  ExpectSpots(Pages("cards", {"--style", "2"}), {{"1A.Ann", 300, 7800}});
}

TEST_F(CardCommandsTest, TheWorksheetListsTheGames) {
  MakeSingles(3);
  Pair(OddEntrant::Pacer);
  const PdfPages pdf = Pages("worksheet", {});
  EXPECT_EQ(pdf.PageCount(), 1);
  ExpectSpots(pdf, {{"1", 250, 1100}, {"P1", 2350, 1100}});
  EXPECT_FALSE(pdf.Has("PACER"));
}

TEST_F(CardCommandsTest, APdfCanGoToTheOutput) {
  MakeSingles(2);
  Pair();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QTextStream out(&buffer);
  QTextStream err(&message_);
  const QStringList words = {"cards", path_, Sanction, "A", "--pdf", "-"};
  EXPECT_EQ(RunCommandLine(CardCommands(), words, out, err), exits::Done);
  EXPECT_TRUE(buffer.data().startsWith("%PDF-"));
  EXPECT_TRUE(buffer.data().trimmed().endsWith("%%EOF"));
}

// The program runs with fonts but without a display, and Qt has a --style of its own.
TEST_F(CardCommandsTest, TheProgramWritesTheStyleAskedForAndSaysNothing) {
  MakeSingles(2);
  Pair();
  QProcess program;
  program.start(BuiltProgram("tavrelinctl"),
                {"cards", path_, Sanction, "A", "--style", "2", "--pdf", "-"});
  ASSERT_TRUE(program.waitForFinished(60000));
  EXPECT_EQ(program.exitCode(), exits::Done);
  EXPECT_EQ(program.readAllStandardError().toStdString(), "");
  QFile file(pdf_);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(program.readAllStandardOutput());
  file.close();
  ExpectSpots(PdfPages(pdf_), {{"1.P1", 300, 7800}});
}

TEST_F(CardCommandsTest, RefusalsAreSentencesAndLeaveNoFile) {
  MakeSingles(13);
  ExpectRefusal("cards", {}, "The class has no games yet; pair it first");
  ExpectRefusal("worksheet", {}, "No players to report");
  Pair(OddEntrant::Bye);
  ExpectRefusal("cards", {}, "Cannot print more than 11 games on card");
  ExpectRefusal("cards", {"--player", "999999"}, "\"999999\" is not entered in the class");
}

TEST_F(CardCommandsTest, DoublesHaveNeitherTwoUpCardsNorAWorksheet) {
  MakeDoubles(2);
  Pair();
  ExpectRefusal("cards", {"--style", "3"}, "A doubles class has no cards of style 3");
  ExpectRefusal("worksheet", {}, "A doubles class has no worksheet");
}

TEST_F(CardCommandsTest, OptionsThatMakeNoSenseShowTheUsage) {
  MakeSingles(2);
  Pair();
  const QStringList cases[] = {{"--front", "--to"},
                               {"--pdf", pdf_, "--style", "4"},
                               {"--pdf", pdf_, "--from", "0"},
                               {"--pdf", pdf_, "--to", "x"},
                               {"--pdf", pdf_, "--back"},
                               {"--style", "1"},
                               {"--pdf", ""}};
  for (const QStringList& options : cases) {
    EXPECT_EQ(Run("cards", options), exits::WrongUsage) << options.join(' ').toStdString();
    EXPECT_TRUE(message_.startsWith("Usage: tavrelinctl cards"));
  }
  EXPECT_EQ(Run("worksheet", {"--file", pdf_}), exits::WrongUsage);
  EXPECT_FALSE(QFile::exists(pdf_));
}

}  // namespace
}  // namespace tavrelin
