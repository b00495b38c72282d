#include "leagues/Season.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(Season, TheRateIsASingleAndItsProductsAreDoubles) {
  struct Case {
    double percent;
    int basis, average, handicap;
  };
  const Case cases[] = {
      {90, 15, 0, 13},   // a single's 0.9 is less than nine tenths: 13.4999996
      {80, 100, 90, 8},  // 8.0000001
      {50, 5, 0, 2},     // 2.5: to the even number
      {50, 7, 0, 4},     // 3.5
      {50, 0, 5, -2},    // above the basis
      {100, 50, 60, -10}, {100, 60, 60, 0}, {0, 100, 10, 0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(PointsHandicap(HandicapRate(c.percent), c.basis, c.average), c.handicap)
        << c.percent << " % of " << c.basis - c.average;
  }
}

TEST(Season, UnderCancellationTheHandicapIsThePointsOfTheMissingRingers) {
  struct Case {
    double percent;
    float best, own;
    int shoes, handicap;
  };
  const Case cases[] = {
      {100, 40, 30, 50, 15},   // five ringers less of 50 shoes, three points each
      {90, 40, 30, 50, 13},    // 13.4999996
      {50, 40, 35, 50, 4},     // 3.75
      {100, 30, 40, 50, -15},  // an inactive member above the best
      {100, 40, 40, 50, 0},   {100, 40, 30, 0, 0}, {50, 35, 30, 100, 8},  // 7.5
      {50, 33, 30, 100, 4},                                               // 4.5
  };
  for (const Case& c : cases) {
    EXPECT_EQ(RingersHandicap(HandicapRate(c.percent), c.best, c.own, c.shoes), c.handicap)
        << c.best << " against " << c.own;
  }
}

TEST(Season, ATieIsHalfAWinAndHalfALoss) {
  const Credit tie = CreditOf('T');
  EXPECT_EQ(tie.win, 0.5F);
  EXPECT_EQ(tie.loss, 0.5F);
  EXPECT_EQ(CreditOf('w').win, 1.0F);
  EXPECT_EQ(CreditOf('L').loss, 1.0F);
  EXPECT_EQ(CreditOf('L').win, 0.0F);
  EXPECT_EQ(CreditOf(QChar()).win + CreditOf(QChar()).loss, 0.0F);
}

/// A season of 40-shoe games with these points and half as many ringers.
Season Played(const QList<int>& points, int lastGames = 0, float rate = 0, int basis = 0,
              const SeasonStart& start = {}) {
  Season season(start, static_cast<int>(points.size()), lastGames, rate, basis);
  for (const int one : points) season.Add({40, one, one / 2, 'W'});
  return season;
}

TEST(Season, AveragesAreTakenOverTheLastGamesWhenThereAreMoreThanThose) {
  struct Case {
    QList<int> points;
    int last, average;
  };
  const Case cases[] = {
      {{10, 20, 30, 40}, 5, 25},                  // four games: all of them
      {{1, 1, 1, 1, 20, 30, 40, 50, 60}, 5, 40},  // nine: the fifth to the ninth
      {{10, 20, 30, 40, 50}, 5, 30},              // just five
      {{10, 20, 30}, 0, 20},                      // no last games: all
      {{10, 20, 31}, 1, 31},
      {{10, 21}, 0, 16},  // 15.5: to the even number
      {{10, 19}, 0, 14},  // 14.5
      {{}, 5, 0},
  };
  for (const Case& c : cases) EXPECT_EQ(Played(c.points, c.last).AveragePoints(), c.average);
}

TEST(Season, TotalsKeepAllGamesWhateverTheAveragesAreTakenOver) {
  const Season season = Played({2, 4, 6, 8, 10, 12, 14, 16, 18}, 5);
  EXPECT_EQ(season.TotalPoints(), 90);
  EXPECT_EQ(season.TotalShoes(), 360);
  EXPECT_EQ(season.TotalRingers(), 45);
  EXPECT_EQ(season.RingerPercent(), 17.5F);  // (5 + 6 + 7 + 8 + 9) of 200 shoes
}

TEST(Season, AGameWithoutShoesCountsForTheRecordButNotForTheAverage) {
  Season season({}, 3, 0, 0, 0);
  season.Add({0, 0, 0, 'W'});
  season.Add({40, 30, 8, 'L'});
  season.Add({40, 40, 12, 'T'});
  EXPECT_EQ(season.Wins(), 1.5);
  EXPECT_EQ(season.Losses(), 1.5);
  EXPECT_EQ(season.AveragePoints(), 35);
  EXPECT_EQ(season.RingerPercent(), 25.0F);
}

TEST(Season, LastGamesWithoutAnyShoeGiveWayToTheWholeSeason) {
  Season season({}, 3, 1, 0, 0);
  season.Add({40, 30, 8, 'L'});
  season.Add({40, 40, 12, 'W'});
  season.Add({0, 0, 0, 'W'});
  EXPECT_EQ(season.AveragePoints(), 35);
  EXPECT_EQ(season.RingerPercent(), 25.0F);
}

TEST(Season, HighsBeginAtThoseOfFormerSeasons) {
  const SeasonStart start{0, 70, 18};
  EXPECT_EQ(Played({60, 30}, 0, 0, 0, start).HighPoints(), 70);
  EXPECT_EQ(Played({60, 30}, 0, 0, 0, start).HighRingers(), 30);
  EXPECT_EQ(Played({30, 80}, 0, 0, 0, start).HighPoints(), 80);
  EXPECT_EQ(Played({}, 0, 0, 0, start).HighRingers(), 18);
}

TEST(Season, TheHighGameWithHandicapIsPlainForThreeGamesAndKnowsOnlyTheGamesBefore) {
  const float whole = HandicapRate(100);
  struct Case {
    QList<int> points;
    int high;
  };
  const Case cases[] = {
      {{30}, 30},
      {{30, 50, 40}, 50},
      {{30, 50, 40, 20}, 80},       // average 40 before it: 20 + (100 - 40)
      {{30, 50, 41, 10}, 70},       // 40.33 is 40
      {{30, 50, 90, 10, 95}, 150},  // 57: 53; then 45: 95 + 55
      {{99, 99, 99, 1}, 99},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Played(c.points, 0, whole, 100).HighWithHandicap(), c.high) << c.points.size();
  }
}

TEST(Season, TheHighGameWithHandicapIsOfThisSeasonAlone) {
  EXPECT_EQ(Played({30}, 0, 0, 0, {0, 70, 0}).HighWithHandicap(), 30);
}

TEST(Season, AFigureBeyondAllBoundsIsCut) {
  EXPECT_EQ(Rounded(1e300), 2147483647);
  EXPECT_EQ(Rounded(-1e300), -2147483647);
}

}  // namespace
}  // namespace tavrelin
