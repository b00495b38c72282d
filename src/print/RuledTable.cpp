#include "print/RuledTable.h"

#include <limits>

#include "print/OutputTarget.h"

namespace tavrelin {

namespace {

constexpr int Gap = 40;  // between a text and the vertical to its right

void DrawRule(OutputTarget& target, const Ruling& ruling, int left, int y) {
  target.Line(left + ruling.verticals.first(), y, left + ruling.verticals.last(), y);
}

}  // namespace

int Ruling::RoomFrom(int x) const {
  for (const int vertical : verticals) {
    if (vertical > x) return vertical - x - Gap;
  }
  return std::numeric_limits<int>::max();
}

void DrawBand(OutputTarget& target, const Ruling& ruling, int left, int y) {
  target.SetDrawWidth(ruling.drawWidth);
  for (const QLine& line : ruling.bandLines) {
    target.Line(left + line.x1(), y + line.y1(), left + line.x2(), y + line.y2());
  }
  if (!ruling.bandLines.isEmpty()) return;
  DrawRule(target, ruling, left, y);
  DrawRows(target, ruling, left, y, ruling.bandHeight);
}

void DrawRows(OutputTarget& target, const Ruling& ruling, int left, int y, int height, int count) {
  target.SetDrawWidth(ruling.drawWidth);
  for (const int x : ruling.verticals) target.Line(left + x, y, left + x, y + count * height);
  for (int row = 1; row <= count; ++row) DrawRule(target, ruling, left, y + row * height);
}

}  // namespace tavrelin
