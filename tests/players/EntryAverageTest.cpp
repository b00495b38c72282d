#include "players/EntryAverage.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Schema.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

HistoryRow Row(int daysAgo, double ringers, double shoes = 100) {
  return {QDate(2025, 6, 14).addDays(-daysAgo).startOfDay(), shoes, ringers};
}

TEST(AverageOfHistory, NoRowIsZeroAndOneRowItsOwnPercent) {
  EXPECT_EQ(AverageOfHistory({}), 0);
  EXPECT_DOUBLE_EQ(AverageOfHistory({Row(1, 33, 120)}), 27.5);
}

TEST(AverageOfHistory, TwoRowsArePooledByShoesNotAveraged) {
  EXPECT_DOUBLE_EQ(AverageOfHistory({Row(1, 50, 50), Row(2, 0, 150)}), 25.0);
}

TEST(AverageOfHistory, TheBestThreeOfFourRowsOfAHundredShoesAre60) {
  EXPECT_DOUBLE_EQ(AverageOfHistory({Row(1, 20), Row(2, 40), Row(3, 60), Row(4, 80)}), 60.0);
}

TEST(AverageOfHistory, BestIsByPercentNotByRingers) {
  // 50 % of 10 shoes, 40 % of 20, 30 % of 30 beat 20 % of 500: (5 + 8 + 9) / 60.
  EXPECT_DOUBLE_EQ(
      AverageOfHistory({Row(1, 100, 500), Row(2, 5, 10), Row(3, 8, 20), Row(4, 9, 30)}),
      22.0 / 60 * 100);
}

TEST(AverageOfHistory, OfTwelveTournamentsTheTwoOldestAreDroppedFirst) {
  std::vector<HistoryRow> history;
  for (int number = 1; number <= 10; ++number) history.push_back(Row(number * 10, 30));
  history.push_back(Row(200, 90));
  history.insert(history.begin(), Row(300, 95));
  EXPECT_DOUBLE_EQ(AverageOfHistory(history), 30.0);
}

TEST(AverageOfHistory, RowsWithoutShoesCountAsNothing) {
  EXPECT_EQ(AverageOfHistory({Row(1, 5, 0)}), 0);
  EXPECT_DOUBLE_EQ(AverageOfHistory({Row(1, 0, 0), Row(2, 40)}), 40.0);
}

struct EntryAverageTest : testing::Test {
  QTemporaryDir folder;
  Connection file;
  const QDate today{2025, 6, 14};
  int tournaments = 0;

  void SetUp() override {
    const QString path = folder.filePath("club.mdb");
    DeliverClubFile(path);
    file.Open(ConnectStringFor(path));
    Add("OLSKAR", Value());
  }
  void Add(const QString& playerID, const Value& average, const char* category = "AW") {
    file.Execute("INSERT INTO Players (PlayerID, Category, Average) VALUES (?, ?, ?)",
                 {playerID, category, average});
  }
  void Score(int daysAgo, int ringers, const char* category = "AW",
             const QString& playerID = "OLSKAR") {
    const QString sanction = QStringLiteral("MN%1").arg(++tournaments, 5, 10, QLatin1Char('0'));
    file.Execute("INSERT INTO Tournaments (SanctionID, Date) VALUES (?, ?)",
                 {sanction, today.addDays(-daysAgo)});
    file.Execute(
        "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category) "
        "VALUES (?, ?, 100, ?, ?)",
        {sanction, playerID, ringers, category});
  }
  double Average(const QString& playerID = "OLSKAR", const char* category = "AW") {
    return EntryAverage(file, playerID, category, today);
  }
};

TEST_F(EntryAverageTest, APlayerWithAverage45AndAHalfInTheRosterEntersAtThat) {
  Add("BERPIA", 45.5);
  Score(10, 80, "AW", "BERPIA");
  EXPECT_EQ(Average("BERPIA"), 45.5);
}

TEST_F(EntryAverageTest, APlayerWithAverage0AndNoScoresWithinAYearEntersAt0) {
  Add("BERPIA", 0);
  Score(400, 80, "AW", "BERPIA");
  EXPECT_EQ(Average("BERPIA"), 0);
  EXPECT_EQ(Average("OLSKAR"), 0);
  EXPECT_EQ(Average("NOBODY"), 0);
}

TEST_F(EntryAverageTest, Scores20And40And60And80InOneYearGive60) {
  for (const int ringers : {20, 40, 60, 80}) Score(ringers, ringers);
  EXPECT_DOUBLE_EQ(Average(), 60.0);
}

TEST_F(EntryAverageTest, APlayerWhoIsNotInTheRosterHasHisHistory) {
  Score(3, 44, "AW", "GONE00");
  EXPECT_DOUBLE_EQ(Average("GONE00"), 44.0);
}

TEST_F(EntryAverageTest, TwelveTournamentsInTheLastYearTheTwoOldestAreDropped) {
  Score(360, 99);
  Score(350, 98);
  for (int number = 1; number <= 10; ++number) Score(number, 10 * number);
  EXPECT_DOUBLE_EQ(Average(), 90.0);
}

TEST_F(EntryAverageTest, ScoresUnderAFormerDivisionDoNotCount) {
  Score(10, 80, "JG");
  Score(20, 30, "AW");
  EXPECT_DOUBLE_EQ(Average(), 30.0);
  EXPECT_DOUBLE_EQ(Average("OLSKAR", "JG"), 80.0);
}

TEST_F(EntryAverageTest, ATournament365DaysBackIsOutAndOneAt364DaysCounts) {
  Score(365, 80);
  EXPECT_EQ(Average(), 0);
  Score(364, 30);
  EXPECT_DOUBLE_EQ(Average(), 30.0);
}

TEST_F(EntryAverageTest, ScoresOfATournamentThatIsGoneDoNotCount) {
  file.Execute(
      "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category) "
      "VALUES ('MN99999', 'OLSKAR', 100, 80, 'AW')");
  EXPECT_EQ(Average(), 0);
}

TEST_F(EntryAverageTest, AnIdentityWithAnApostropheIsOnlyAnIdentity) {
  Score(3, 44, "AW", "O'B%00");
  EXPECT_DOUBLE_EQ(Average("O'B%00"), 44.0);
}

TEST_F(EntryAverageTest, AllPlayersAtOnceGetWhatEachWouldGetAlone) {
  Add("BERPIA", 45.5);
  Add("NEWONE", 0);
  Add("YOUTHX", Value(), "JB");
  for (const int ringers : {20, 40, 60, 80}) Score(ringers, ringers);
  Score(5, 70, "JB", "YOUTHX");
  Score(6, 90, "AM", "YOUTHX");
  Score(7, 12, "AW", "BERPIA");
  const QHash<QString, double> averages = EntryAverages(file, today);
  EXPECT_EQ(averages.size(), 4);
  EXPECT_DOUBLE_EQ(averages["OLSKAR"], 60.0);
  EXPECT_DOUBLE_EQ(averages["BERPIA"], 45.5);
  EXPECT_DOUBLE_EQ(averages["NEWONE"], 0.0);
  EXPECT_DOUBLE_EQ(averages["YOUTHX"], 70.0);
}

}  // namespace
}  // namespace tavrelin
