#include "basic/Figures.h"

#include <gtest/gtest.h>

namespace tavrelin {
namespace {

TEST(Figures, APercentageIsRingersOfAHundredShoesAndNothingWithoutShoes) {
  EXPECT_DOUBLE_EQ(RingerPercentage(33, 120), 27.5);
  EXPECT_EQ(RingerPercentage(120, 120), 100);
  EXPECT_EQ(RingerPercentage(5, 0), 0);
}

TEST(Figures, HandicapGivesThreeHundredthsAShoeForEachPercent) {
  const struct {
    double best, average;
    int shoes;
    double percent;
    int pitchers, points;
  } cases[] = {
      {60, 40, 40, 100, 1, 24},  // 20 percent of 40 shoes are 8 ringers of 3 points
      {60, 40, 40, 80, 1, 19},   // 19.2
      {60, 40, 40, 80, 2, 38},   // 38.4: doubled before rounding
      {60, 40, 0, 80, 1, 0},     // no fixed number of shoes
      {60, 40, 40, 0, 1, 0},     // no handicap
      {60, 60, 40, 100, 1, 0},   // the best gives, and gets none
      {50, 25, 50, 20, 1, 8},    // 7.5 goes to the even 8
      {50, 25, 50, 12, 1, 4},    // 4.5 goes to the even 4
  };
  for (const auto& c : cases) {
    EXPECT_EQ(HandicapFigure(c.best, c.average, c.shoes, c.percent, c.pitchers), c.points)
        << c.best << '-' << c.average << ' ' << c.shoes << ' ' << c.percent;
  }
}

}  // namespace
}  // namespace tavrelin
