#include "players/Commands.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTextStream>

#include "data/Connection.h"
#include "data/Schema.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct PlayerCommandsTest : testing::Test {
  QTemporaryDir folder;
  QString file, out, err;

  void SetUp() override {
    file = folder.filePath("club.mdb");
    DeliverClubFile(file);
    Connection connection;
    connection.Open(FileConnectString(file));
    connection.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, Category, Average) "
        "VALUES ('OLSKAR', 'Olson', 'Karen', 'AW', 0)");
    connection.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES ('MN25A01', ?)",
                       {QDate::currentDate().addDays(-30)});
    connection.Execute(
        "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category) "
        "VALUES ('MN25A01', 'OLSKAR', 200, 91, 'AW')");
  }
  int Run(const QStringList& arguments) {
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    return RunCommandLine(PlayerCommands(), arguments, outStream, errStream);
  }
};

TEST_F(PlayerCommandsTest, AverageTellsTheEntryAverageInThePresentDivision) {
  EXPECT_EQ(Run({"average", file, "olskar"}), exits::Done);
  EXPECT_EQ(out,
            "PlayerID\tLastName\tFirstName\tCategory\tAverage\n"
            "OLSKAR\tOlson\tKaren\tAW\t45.5\n");
  EXPECT_EQ(err, "");
}

TEST_F(PlayerCommandsTest, AnUnknownPlayerIsRefusedWithASentence) {
  EXPECT_EQ(Run({"average", file, "NOBODY"}), exits::Refused);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "There is no player with the number NOBODY.\n");
}

TEST_F(PlayerCommandsTest, WithoutAPlayerTheUsageIsShown) {
  EXPECT_EQ(Run({"average", file}), exits::WrongUsage);
}

}  // namespace
}  // namespace tavrelin
