#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "support/BuiltProgram.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

QString RunProgram(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(BuiltProgram(program), arguments);
  EXPECT_TRUE(process.waitForFinished(120'000));
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

TEST(DemoTest, PlaysTheSampleTournamentToItsEndAndLeavesPicturesAndPapers) {
  QTemporaryDir folder;
  const QString club = folder.filePath("Demo.mdb");
  RunProgram("tavrelinctl", {"sample", club});
  const QString told = RunProgram("tavrelin-demo", {club, folder.path()});
  EXPECT_TRUE(told.contains("33 games typed")) << told.toStdString();
  EXPECT_TRUE(told.contains("\n  1. ")) << told.toStdString();
  EXPECT_TRUE(told.contains("\n 12. ")) << told.toStdString();
  EXPECT_FALSE(told.contains("\n 13. ")) << told.toStdString();
  for (const char* file :
       {"play-half-scored.png", "play-scored.png", "play-results.png", "results-preview.png",
        "results.pdf", "cards-front.pdf", "cards-back.pdf", "worksheet.pdf"})
    EXPECT_TRUE(QDir(folder.path()).exists(file)) << file;

  Connection file;
  file.Open(QStringLiteral("DBQ=") + club);
  Recordset games;
  games.Open(
      "SELECT COUNT(*) FROM TournamentSinglesRR WHERE SanctionID = 'OH26067' AND ClassID = "
      "'A' AND Approved = True",
      file);
  EXPECT_EQ(games.At(0).ToWhole(), 66);
}

}  // namespace
}  // namespace tavrelin
