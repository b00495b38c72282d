#include "sample/PitchedGame.h"

#include <algorithm>

#include "sample/Dice.h"

namespace tavrelin {
namespace {

/// How often a shoe that is no ringer lies within a shoe's width of the stake.
constexpr double InCount = 0.55;

int Ringers(Dice& dice, double skill) {
  const int first = dice.Happens(skill) ? 1 : 0;
  return first + (dice.Happens(skill) ? 1 : 0);
}

/// The side whose single shoe lies nearest and counts; -1 when none does.
int NearestSingle(Dice& dice, int singlesOne, int singlesTwo) {
  const int singles = singlesOne + singlesTwo;
  bool counts = false;
  for (int shoe = 0; shoe < singles; ++shoe) counts |= dice.Happens(InCount);
  if (!counts) return -1;
  return dice.Below(singles) < singlesOne ? 0 : 1;
}

void PitchInning(Dice& dice, const std::array<double, 2>& skill,
                 std::array<PitchedSide, 2>& sides) {
  const std::array<int, 2> ringers{Ringers(dice, skill[0]), Ringers(dice, skill[1])};
  for (size_t side = 0; side < 2; ++side) {
    sides[side].ringers += ringers[side];
    sides[side].points += 3 * std::max(0, ringers[side] - ringers[1 - side]);
  }
  const int nearest = NearestSingle(dice, 2 - ringers[0], 2 - ringers[1]);
  if (nearest < 0) return;
  PitchedSide& scorer = sides[static_cast<size_t>(nearest)];
  ++scorer.singlePoints;
  ++scorer.points;
}

}  // namespace

std::array<PitchedSide, 2> PitchGame(Dice& dice, const std::array<double, 2>& skill, int shoes) {
  std::array<PitchedSide, 2> sides;
  for (int pitched = 0; pitched < shoes; pitched += 2) PitchInning(dice, skill, sides);
  return sides;
}

PitchedSide PitchAlone(Dice& dice, double skill, int shoes) {
  PitchedSide side;
  for (int shoe = 0; shoe < shoes; ++shoe) {
    if (dice.Happens(skill)) {
      ++side.ringers;
    } else if (dice.Happens(InCount)) {
      ++side.singlePoints;
    }
  }
  side.points = 3 * side.ringers + side.singlePoints;
  return side;
}

}  // namespace tavrelin
