#include "tournament/Classes.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Schema.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct ClassesTest : testing::Test {
  QTemporaryDir folder;
  Connection connection;

  void SetUp() override {
    const QString file = folder.filePath("club.mdb");
    DeliverClubFile(file);
    connection.Open(ConnectStringFor(file));
    for (const char* tournament : {"MN25A01", "WI25B02"}) {
      connection.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES (?, #9/20/2025#)",
                         {tournament});
    }
    Add("MN25A01", "D1", "Pairs", "D");
    Add("MN25A01", "B", {}, "S");
    Add("MN25A01", "A", " Men ", "S");
    Add("WI25B02", "C", "Elders", "S");
  }
  void Add(const char* sanctionID, const char* classID, const Value& name, const char* format) {
    connection.Execute(
        "INSERT INTO TournamentClasses (SanctionID, ClassID, Name, HandicapPct, Shoes, RankMethod, "
        "PlayFormat, RankOverride) VALUES (?, ?, ?, 80, 40, 'H', ?, True)",
        {sanctionID, classID, name, format});
  }
  static QStringList Ids(const QList<ClassRules>& classes) {
    QStringList ids;
    for (const ClassRules& rules : classes) ids << rules.classID;
    return ids;
  }
};

TEST_F(ClassesTest, OfATournamentAreListedByTheirIDsOfOneFormatOrOfAll) {
  EXPECT_EQ(Ids(ClassesOf(connection, "MN25A01")), (QStringList{"A", "B", "D1"}));
  EXPECT_EQ(Ids(ClassesOf(connection, "mn25a01 ", "S")), (QStringList{"A", "B"}));
  EXPECT_EQ(Ids(ClassesOf(connection, "MN25A01", "D")), QStringList{"D1"});
  EXPECT_EQ(Ids(ClassesOf(connection, "MN25A99")), QStringList());
}

TEST_F(ClassesTest, OneIsFoundInItsTournamentWithAllItsRules) {
  const auto found = FindClass(connection, " MN25A01", "d1 ");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->sanctionID, "MN25A01");
  EXPECT_EQ(found->classID, "D1");
  EXPECT_EQ(found->name, "Pairs");
  EXPECT_EQ(found->handicapPct, 80);
  EXPECT_EQ(found->shoes, 40);
  EXPECT_EQ(found->rankMethod, "H");
  EXPECT_EQ(found->playFormat, "D");
  EXPECT_TRUE(found->rankOverride);
  EXPECT_FALSE(FindClass(connection, "WI25B02", "D1"));
}

TEST_F(ClassesTest, AreChosenByIDWhateverTheirTextSays) {
  const QList<CodeText> choices = ClassChoices(ClassesOf(connection, "MN25A01"), "   ");
  ASSERT_EQ(choices.size(), 3);
  const QStringList codes = {"A", "B", "D1"}, texts = {"A   Men", "B", "D1   Pairs"};
  for (qsizetype i = 0; i < choices.size(); ++i) {
    EXPECT_EQ(choices[i].code, codes[i]);
    EXPECT_EQ(choices[i].text, texts[i]);
  }
}

}  // namespace
}  // namespace tavrelin
