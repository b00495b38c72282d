#include <gtest/gtest.h>

#include <algorithm>
#include <QMap>
#include <QSet>

#include "basic/Error.h"
#include "play/modRoundRobin.h"

namespace tavrelin {
namespace {

struct Table {
  int numbers;  ///< player numbers in the table, the bye's included
  int games;
  int courts;
  void (*fill)(Schedule&);
  int checksum;          ///< over game, court and both numbers, from the printed tables
  bool bothOrders;       ///< the smaller number need not stand first
  bool highestStays;     ///< the highest number keeps to the last court
  const char* lastGame;  ///< the last line as printed
};

const Table Tables[] = {
    {2, 1, 1, FillPairings2, 17, false, true, "1-2"},
    {4, 3, 2, FillPairings4, 857485, false, false, "1-2 3-4"},
    {6, 5, 3, FillPairings5, 840909, false, true, "3-5 1-2 4-6"},
    {6, 5, 3, FillPairings6, 119922, false, false, "1-2 4-6 3-5"},
    {8, 7, 4, FillPairings7, 420512, false, true, "1-2 3-4 5-6 7-8"},
    {8, 7, 4, FillPairings8, 917733, false, false, "1-2 3-4 5-6 7-8"},
    {10, 9, 5, FillPairings9, 59114, false, true, "7-9 1-2 3-4 5-8 6-10"},
    {10, 9, 5, FillPairings10, 426160, false, false, "1-2 3-4 7-9 6-10 5-8"},
    {12, 11, 6, FillPairings12, 991013, false, false, "1-2 3-6 4-5 10-11 7-8 9-12"},
    {14, 13, 7, FillPairings14, 959438, true, false, "1-2 3-4 5-6 7-8 9-10 11-12 13-14"},
    {16, 15, 8, FillPairings16, 974382, false, false, "1-2 3-4 11-12 5-6 13-14 15-16 7-8 9-10"},
    {18, 17, 9, FillPairings18, 502653, false, false,
     "1-2 9-10 3-4 11-12 5-6 13-14 7-8 15-16 17-18"},
    {20, 19, 10, FillPairings20, 683293, false, false,
     "1-2 3-4 5-6 7-8 9-10 11-12 13-14 15-16 17-18 19-20"},
};

Schedule Filled(const Table& table) {
  Schedule schedule(table.games, table.courts);
  table.fill(schedule);
  return schedule;
}

template <typename Visit>
void EachCell(const Schedule& schedule, Visit visit) {
  for (int game = 1; game <= schedule.Games(); ++game) {
    for (int court = 1; court <= schedule.Courts(); ++court)
      visit(game, court, schedule.At(game, court));
  }
}

TEST(RoundRobin, EveryNumberStandsOnceInEveryGame) {
  for (const Table& table : Tables) {
    const Schedule schedule = Filled(table);
    for (int game = 1; game <= table.games; ++game) {
      QSet<int> seen;
      for (int court = 1; court <= table.courts; ++court) {
        seen << schedule.At(game, court).first << schedule.At(game, court).second;
      }
      EXPECT_EQ(seen.size(), table.numbers) << table.numbers << ", game " << game;
      EXPECT_EQ(*std::max_element(seen.begin(), seen.end()), table.numbers);
      EXPECT_EQ(*std::min_element(seen.begin(), seen.end()), 1);
    }
  }
}

TEST(RoundRobin, EveryPairMeetsExactlyOnce) {
  for (const Table& table : Tables) {
    QSet<QPair<int, int>> pairs;
    int cells = 0;
    EachCell(Filled(table), [&](int, int, const PairingCell& cell) {
      pairs.insert(std::minmax<int>(cell.first, cell.second));
      ++cells;
    });
    EXPECT_EQ(pairs.size(), table.numbers * (table.numbers - 1) / 2) << table.numbers;
    EXPECT_EQ(cells, pairs.size()) << table.numbers;
  }
}

TEST(RoundRobin, TheCourtPositionIsTheSecondIndex) {
  for (const Table& table : Tables) {
    EachCell(Filled(table),
             [](int, int court, const PairingCell& cell) { EXPECT_EQ(cell.court, court); });
  }
}

TEST(RoundRobin, TheSmallerNumberStandsFirstExceptForFourteen) {
  for (const Table& table : Tables) {
    int reversed = 0;
    EachCell(Filled(table), [&](int, int, const PairingCell& cell) {
      reversed += cell.first > cell.second ? 1 : 0;
    });
    EXPECT_EQ(reversed, table.bothOrders ? 1 : 0) << table.numbers;
  }
}

TEST(RoundRobin, TheByeOfFiveSevenAndNineKeepsToTheLastCourt) {
  for (const Table& table : Tables) {
    int elsewhere = 0;
    EachCell(Filled(table), [&](int, int court, const PairingCell& cell) {
      const bool highest = cell.first == table.numbers || cell.second == table.numbers;
      elsewhere += highest && court != table.courts ? 1 : 0;
    });
    EXPECT_EQ(elsewhere == 0, table.highestStays) << table.numbers;
  }
}

TEST(RoundRobin, FourAndSixKeepOneSumInEachGame) {
  for (const int entrants : {4, 6}) {
    const Schedule schedule = ScheduleFor(entrants);
    for (int game = 1; game <= schedule.Games(); ++game) {
      QSet<int> sums;
      for (int court = 1; court <= schedule.Courts(); ++court) {
        const PairingCell& cell = schedule.At(game, court);
        if (cell.second != entrants) sums << (cell.first + cell.second) % (entrants - 1);
      }
      EXPECT_EQ(sums.size(), 1) << entrants << ", game " << game;
    }
  }
}

TEST(RoundRobin, EachTableAgreesWithThePrintedOne) {
  for (const Table& table : Tables) {
    int sum = 0;
    QStringList last;
    EachCell(Filled(table), [&](int game, int court, const PairingCell& cell) {
      sum = (sum * 31 + game * 7 + court * 5 + cell.first * 3 + cell.second) % 1000003;
      if (game == table.games) last << QStringLiteral("%1-%2").arg(cell.first).arg(cell.second);
    });
    EXPECT_EQ(sum, table.checksum) << table.numbers;
    EXPECT_EQ(last.join(u' ').toStdString(), table.lastGame);
  }
}

TEST(RoundRobin, AFillOperationWritesItsShapeAndNothingElse) {
  Schedule schedule(4, 3);
  schedule.At(4, 1) = {9, 9, 9};
  schedule.At(1, 3) = {8, 8, 8};
  FillPairings4(schedule);
  EXPECT_EQ(schedule.At(4, 1).first, 9);
  EXPECT_EQ(schedule.At(1, 3).first, 8);
  EXPECT_EQ(schedule.At(3, 2).second, 4);
}

TEST(RoundRobin, ATooSmallScheduleIsRefused) {
  Schedule schedule(2, 2);
  EXPECT_THROW(FillPairings4(schedule), Error);
  EXPECT_THROW(schedule.At(0, 1), Error);
  EXPECT_THROW(schedule.At(1, 3), Error);
}

TEST(RoundRobin, TheTableIsChosenByTheNumberOfEntrants) {
  const int shapes[][3] = {{2, 1, 1},   {3, 3, 2},   {4, 3, 2},    {5, 5, 3},   {6, 5, 3},
                           {7, 7, 4},   {8, 7, 4},   {9, 9, 5},    {10, 9, 5},  {11, 11, 6},
                           {12, 11, 6}, {13, 13, 7}, {14, 13, 7},  {15, 15, 8}, {16, 15, 8},
                           {17, 17, 9}, {18, 17, 9}, {19, 19, 10}, {20, 19, 10}};
  for (const auto& [entrants, games, courts] : shapes) {
    const Schedule schedule = ScheduleFor(entrants);
    EXPECT_EQ(schedule.Games(), games) << entrants;
    EXPECT_EQ(schedule.Courts(), courts) << entrants;
  }
  for (const int entrants : {-1, 0, 1, 21, 100}) EXPECT_TRUE(ScheduleFor(entrants).IsEmpty());
}

TEST(RoundRobin, AClassOfThreeUsesTheFourPlayerTable) {
  QSet<int> courts;
  EachCell(ScheduleFor(3), [&](int, int court, const PairingCell& cell) {
    if (cell.second == 4) courts << court;
  });
  EXPECT_EQ(courts, (QSet<int>{1, 2}));
}

TEST(RoundRobin, TheByeOfLargeOddClassesMovesBetweenCourts) {
  for (const int entrants : {11, 13, 15, 17, 19}) {
    QSet<int> courts;
    EachCell(ScheduleFor(entrants), [&](int, int court, const PairingCell& cell) {
      if (cell.first == entrants + 1 || cell.second == entrants + 1) courts << court;
    });
    EXPECT_GT(courts.size(), 1) << entrants;
  }
}

}  // namespace
}  // namespace tavrelin
