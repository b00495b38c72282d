#include "basic/ScoreTexts.h"

#include <cmath>

#include "basic/Picture.h"

namespace tavrelin {

QString HalfWinText(double games) {
  const bool whole = games == std::floor(games);
  return Format(games, whole ? QStringLiteral("#0") : QStringLiteral("#0.0"));
}

QString OverAverageText(double overAverage) {
  const bool below = overAverage < 0;
  return Format(std::abs(overAverage), below ? QStringLiteral("#0.00-") : QStringLiteral("#0.00"));
}

}  // namespace tavrelin
