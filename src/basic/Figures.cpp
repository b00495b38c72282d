#include "basic/Figures.h"

#include "basic/Conversions.h"

namespace tavrelin {

double RingerPercentage(double ringers, double shoes) {
  return shoes > 0 ? ringers * 100 / shoes : 0;
}

int HandicapFigure(double best, double average, int shoes, double percent, int pitchers) {
  if (shoes == 0 || percent == 0) return 0;
  const double points = (best - average) * (shoes * 0.0003 * percent);
  return static_cast<int>(RoundHalfEven(points * pitchers));
}

}  // namespace tavrelin
