#include "basic/ScoreTexts.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(ScoreTexts, HalfWinsShowOneDecimalAndWholeOnesNone) {
  const QPair<double, const char*> cases[] = {
      {0, "0"}, {3, "3"}, {3.5, "3.5"}, {0.5, "0.5"}, {12, "12"}};
  for (const auto& [games, text] : cases) EXPECT_EQ(HalfWinText(games).toStdString(), text);
}

TEST(ScoreTexts, OverAverageCarriesItsMinusBehind) {
  EXPECT_EQ(OverAverageText(-1.25), "1.25-");
  EXPECT_EQ(OverAverageText(1.25), "1.25");
  EXPECT_EQ(OverAverageText(0), "0.00");
}

}  // namespace
}  // namespace tavrelin
