#include "tournament/Tournaments.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Schema.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct TournamentsTest : testing::Test {
  QTemporaryDir folder;
  Connection connection;

  void SetUp() override {
    const QString file = folder.filePath("club.mdb");
    DeliverClubFile(file);
    connection.Open(ConnectStringFor(file));
    Add("MN25A01", " Spring Open ", QDate(2025, 9, 20));
    Add("WI25B02", {}, QDate(2025, 10, 1));
    Add("MN24A01", "Spring Open", QDate(2024, 9, 21));
  }
  void Add(const char* sanctionID, const Value& name, const Value& date) {
    connection.Execute("INSERT INTO Tournaments (SanctionID, Name, Date) VALUES (?, ?, ?)",
                       {sanctionID, name, date});
  }
};

TEST_F(TournamentsTest, AreOfferedLatestFirstUnderTheirNumberAndName) {
  QStringList texts;
  for (const Tournament& tournament : AllTournaments(connection)) texts << tournament.BoxText();
  EXPECT_EQ(texts,
            (QStringList{"WI-25-B02", "MN-25-A01   Spring Open", "MN-24-A01   Spring Open"}));
}

TEST_F(TournamentsTest, OneIsFoundByItsNumberInWhateverCase) {
  for (const char* typed : {"MN25A01", "mn25a01", " MN25A01 "}) {
    const auto found = FindTournament(connection, typed);
    ASSERT_TRUE(found) << typed;
    EXPECT_EQ(found->sanctionID, "MN25A01");
    EXPECT_EQ(found->name, "Spring Open");
    EXPECT_EQ(found->date.date(), QDate(2025, 9, 20));
  }
  for (const char* typed : {"MN25A99", "MN25A0", "", "' OR ''='"})
    EXPECT_FALSE(FindTournament(connection, typed)) << typed;
}

TEST_F(TournamentsTest, OneWithoutNameOrDateIsFoundToo) {
  Add("IA25C03", {}, {});
  const auto found = FindTournament(connection, "IA25C03");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->name, "");
  EXPECT_FALSE(found->date.isValid());
  EXPECT_EQ(found->BoxText(), "IA-25-C03");
}

}  // namespace
}  // namespace tavrelin
