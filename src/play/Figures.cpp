#include "play/Figures.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "data/Recordset.h"

namespace tavrelin {

double RingerPercentage(double ringers, double shoes) {
  return shoes > 0 ? ringers * 100 / shoes : 0;
}

int HandicapFigure(double best, double average, int shoes, double percent, int pitchers) {
  if (shoes == 0 || percent == 0) return 0;
  const double points = (best - average) * (shoes * 0.0003 * percent);
  return static_cast<int>(RoundHalfEven(points * pitchers));
}

double LargestFigure(const Recordset& rows, const QString& field) {
  const int index = rows.FieldIndex(field);
  double largest = 0;
  for (int position = 1; position <= rows.RecordCount(); ++position) {
    largest = std::max(largest, rows.CellAt(position, index).ToNumber());
  }
  return largest;
}

}  // namespace tavrelin
