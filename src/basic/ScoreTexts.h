#pragma once

#include <QString>

namespace tavrelin {

/// Wins or losses as every sheet and export shows them: "3" when whole, "3.5" when a tied game left
/// half a win.
QString HalfWinText(double games);

/// A figure over average with two decimals and its minus sign behind it: "1.25", "1.25-".
QString OverAverageText(double overAverage);

}  // namespace tavrelin
