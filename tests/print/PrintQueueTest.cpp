// Printing through a real print server, and what the operator is told when it fails.

#include "support/PrintQueue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <QProcess>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "print/CRotate.h"
#include "print/SystemPrinter.h"
#include "shell/Store.h"
#include "support/FakeSurroundings.h"
#include "support/FaultBench.h"
#include "support/PdfPages.h"

namespace tavrelin {
namespace {

/// A shell command that is run while the report is being written.
constexpr const char* Meanwhile = "TAVRELIN_MEANWHILE";
/// How many copies are printed.
constexpr const char* Copies = "TAVRELIN_COPIES";

void CourtSheets(OutputTarget& target) {
  target.MoveTo(200, 350);
  target.Print("Portrait");
  target.SetOrientation(Orientation::Landscape);
  target.NewPage();
  target.Font().name = "Tahoma";
  target.Font().size = 48;
  target.PrintAt(9000, "Landscape");
  CRotate rotate;
  rotate.SetDevice(target);
  rotate.SetAngle(180);
  target.MoveTo(11000, 9300);
  rotate.PrintText("Walter");
  const QString command = qEnvironmentVariable(Meanwhile);
  if (!command.isEmpty()) QProcess::execute("sh", {"-c", command});
}

/// Saves nothing.
struct Secretary : FakeOperator {
  QString SaveFile(const QString& title, const QString& proposal, const QString&) override {
    std::printf("%s|%s\n", qPrintable(title), qPrintable(proposal));
    return {};
  }
};

// A report printed by a window of its own.
TEST(PrintQueueWorker, DISABLED_Prints) {
  const QTemporaryDir folder;
  Store store(folder.filePath("store.ini"));
  Secretary person;
  SystemPrinter printer(person, store);
  try {
    const Printed printed =
        printer.Print("Court sheets", CourtSheets, qEnvironmentVariableIntValue(Copies));
    std::printf("%s\n", qPrintable(PrintedText(printed)));
  } catch (const Error& error) {
    std::printf("%s\n", error.what());
  }
  EXPECT_FALSE(person.busy);
}

struct PrintQueueTest : testing::Test {
  PrintQueue queue;

  void SetUp() override {
    if (!queue.IsRunning()) GTEST_SKIP() << "no print server can be started here";
  }
  /// What the operator is told.
  QString Print(const QString& meanwhile = {}, int copies = 1) const {
    return PrintBehind({}, meanwhile, copies);
  }
  /// The same with a command before the window's own.
  QString PrintBehind(const QStringList& before, const QString& meanwhile, int copies) const {
    QProcess window;
    QProcessEnvironment environment = queue.Environment();
    environment.insert(Meanwhile, meanwhile);
    environment.insert(Copies, QString::number(copies));
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    window.setProcessEnvironment(environment);
    const QStringList worker = FaultBench::Worker("PrintQueueWorker.DISABLED_Prints");
    window.start("env", before + QStringList(QFile::symLinkTarget(worker[0])) + worker.mid(1));
    EXPECT_TRUE(window.waitForFinished(30000)) << "the window hangs";
    EXPECT_EQ(window.exitCode(), 0) << window.readAllStandardError().toStdString();
    return QString::fromUtf8(window.readAllStandardOutput());
  }
};

TEST_F(PrintQueueTest, AllCopiesReachThePrinterAsOneJobWithTheTextsWhereThePdfHasThem) {
  EXPECT_THAT(Print({}, 3).toStdString(),
              testing::StartsWith("Document has been sent to printer\n"));
  const QStringList documents = queue.Documents(1);
  ASSERT_EQ(documents.size(), 1);
  const PdfPages paper(documents[0]);
  const PdfPages file(Record(OutputTarget::Kind::Printer, "Court sheets", CourtSheets));
  EXPECT_EQ(paper.PageCount(), 6);
  EXPECT_EQ(paper.PageSize(1), QSizeF(12240, 15840));
  EXPECT_EQ(paper.PageSize(2), QSizeF(15840, 12240));
  for (const PdfWord& word : file.Words()) {
    for (int copy = 1; copy <= 3; ++copy) {
      const PdfWord printed = paper.Find(word.text, copy);
      EXPECT_EQ(printed.page, word.page + 2 * (copy - 1)) << word.text.toStdString();
      EXPECT_NEAR(printed.x, word.x, 2) << word.text.toStdString();
      EXPECT_NEAR(printed.y, word.y, 2) << word.text.toStdString();
      EXPECT_NEAR(printed.right, word.right, 2) << word.text.toStdString();
    }
  }
}

TEST_F(PrintQueueTest, TheOnlyPrinterIsUsedWhereNoneIsTheDefault) {
  queue.Run("lpadmin", {"-x", "Club"});
  queue.Run("lpadmin", {"-p", "Office", "-v", "court:/out", "-E"});
  EXPECT_THAT(Print().toStdString(), testing::StartsWith("Document has been sent to printer\n"));
  EXPECT_EQ(queue.Documents(1).size(), 1);
}

TEST_F(PrintQueueTest, OfSeveralPrintersWithoutADefaultNoneIsPickedAndAFileIsOffered) {
  queue.Run("lpadmin", {"-x", "Club"});
  for (const char* name : {"Office", "Court"}) {
    queue.Run("lpadmin", {"-p", name, "-v", "court:/out", "-E"});
  }
  EXPECT_THAT(Print().toStdString(),
              testing::HasSubstr("No printer is the default one: save as PDF|Court sheets.pdf"));
}

TEST_F(PrintQueueTest, WithoutAPrinterAFileIsOffered) {
  queue.Run("lpadmin", {"-x", "Club"});
  EXPECT_THAT(Print().toStdString(),
              testing::HasSubstr("No printer is set up: save as PDF|Court sheets.pdf"));
}

TEST_F(PrintQueueTest, AQueueThatIsGoneMeanwhileIsTold) {
  const QString told = Print("lpadmin -x Club");
  EXPECT_THAT(told.toStdString(),
              testing::StartsWith("The printer Club did not take the document."));
}

TEST_F(PrintQueueTest, AQueueThatTakesNoJobsIsTold) {
  queue.Run("cupsreject", {"Club"});
  const QString told = Print();
  EXPECT_THAT(told.toStdString(),
              testing::StartsWith("The printer Club did not take the document. "));
  EXPECT_THAT(told.toStdString(), testing::HasSubstr("not accepting jobs"));
}

TEST_F(PrintQueueTest, AStoppedPrinterIsToldAndNothingWaitsInItsQueue) {
  queue.Run("cupsdisable", {"Club"});
  const QString told = Print();
  EXPECT_THAT(told.toStdString(),
              testing::StartsWith("The printer Club is stopped. Nothing was printed."));
  EXPECT_EQ(queue.Run("lpstat", {"-o"}), "");
}

TEST_F(PrintQueueTest, AfterAPrinterFailedInTheMiddleOfADocumentTheNextOneIsNotLost) {
  queue.BreakPrinter();
  Print();
  ASSERT_TRUE(queue.WaitFor("disabled"));
  const QString told = Print();
  EXPECT_THAT(told.toStdString(), testing::StartsWith("The printer Club is stopped."));
}

TEST_F(PrintQueueTest, AServerThatEndsMeanwhileIsTold) {
  const QString told = Print(queue.EndServer());
  EXPECT_THAT(told.toStdString(),
              testing::StartsWith("The printer Club did not take the document."));
}

TEST_F(PrintQueueTest, AServerThatNoLongerAnswersIsToldAndNothingHangs) {
  QProcess::execute("sh", {"-c", queue.StopServer()});
  const QString told = Print();
  EXPECT_THAT(told.toStdString(),
              testing::StartsWith("The print system of this computer does not answer."));
}

TEST_F(PrintQueueTest, AServerThatStopsAnsweringMeanwhileIsToldAndNothingHangs) {
  const QString told = Print(queue.StopServer());
  EXPECT_THAT(told.toStdString(),
              testing::StartsWith("The print system of this computer does not answer."));
}

TEST_F(PrintQueueTest, AFullDiskIsToldAndNoHalfDocumentIsPrinted) {
  const QString script =
      "mount -t tmpfs -o size=12k tmpfs \"$HOME\" && TMPDIR=\"$HOME\" exec \"$@\"";
  if (QProcess::execute("unshare", {"-m", "sh", "-c", "mount -t tmpfs tmpfs /mnt"}) != 0) {
    GTEST_SKIP() << "mounting is not allowed here";
  }
  const QString told = PrintBehind({"unshare", "-m", "sh", "-c", script, "sh"}, {}, 1);
  EXPECT_THAT(told.toStdString(), testing::StartsWith("There is no room in "));
  EXPECT_EQ(queue.Run("lpstat", {"-W", "all", "-o"}), "");
}

}  // namespace
}  // namespace tavrelin
