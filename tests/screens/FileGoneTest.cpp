// The club's file goes from under an open screen.

#include <gtest/gtest.h>

#include <cstdio>
#include <QFile>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Schema.h"
#include "players/uctProfile.h"
#include "support/ScreenBench.h"

namespace tavrelin {
namespace {

struct FileGoneTest : testing::Test {
  ScreenBench bench;
  QString aside = bench.PathOf("aside.mdb");

  void SetUp() override {
    Connection file;
    file.Open(ConnectString);
    file.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, Category, State, MembershipType) "
        "VALUES ('BERPIA', 'Berg', 'Pia', 'AW', 'MN', 'S')");
    file.Close();
    bench.Show<uctProfile>();
  }
  GridEX& Grid() { return bench.Find<GridEX>("grdProfile"); }
  /// A city typed over the only player's, and what the operator is told then.
  QString Refusal() {
    Grid().SetRow(1);
    Grid().SetCol("City");
    bench.Type("Duluth");
    bench.Press(Qt::Key_Return);
    return bench.errors.Take().generalMessage;
  }
};

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(FileGoneTest, AFileThatAnotherTookTheNameOfIsToldAndNeitherIsChanged) {
  const QString other = bench.PathOf("other.mdb");
  DeliverClubFile(other);
  ASSERT_TRUE(QFile::copy(bench.ClubFile(), aside));
  const QByteArray mine = BytesOf(aside), theirs = BytesOf(other);
  ASSERT_EQ(std::rename(qPrintable(other), qPrintable(bench.ClubFile())), 0);
  EXPECT_EQ(Refusal(), "The file " + bench.ClubFile() +
                           " was replaced, moved, deleted or cut short while it was open, and "
                           "nothing was written. Leave the screen and open the file again.");
  EXPECT_EQ(BytesOf(bench.ClubFile()), theirs);
  EXPECT_EQ(BytesOf(aside), mine);
  EXPECT_EQ(Grid().Value("City"), Value("Duluth"));
  bench.Press(Qt::Key_Escape);
  bench.Press(Qt::Key_Escape);
  bench.LeaveAndReturn();
  EXPECT_EQ(Grid().RowCount(), 0);
}

TEST_F(FileGoneTest, ADeletedFileIsToldAndTheScreenSaysSoWhenItIsOpenedAgain) {
  ASSERT_TRUE(QFile::remove(bench.ClubFile()));
  EXPECT_TRUE(Refusal().contains("was replaced, moved, deleted or cut short while it was open"));
  bench.Press(Qt::Key_Escape);
  bench.Press(Qt::Key_Escape);
  bench.LeaveAndReturn();
  EXPECT_EQ(
      bench.errors.Take().generalMessage,
      "The file " + bench.ClubFile() + " does not exist. Check the path under Setup, Database.");
  EXPECT_FALSE(QFile::exists(bench.ClubFile()));
}

}  // namespace
}  // namespace tavrelin
