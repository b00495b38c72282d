#pragma once

#include <array>

namespace tavrelin {

class Dice;

/// What the scorekeeper writes down for one side.
struct PitchedSide {
  int points = 0;
  int ringers = 0;
  int singlePoints = 0;  ///< points from shoes in count that are no ringers
};

/// Two players pitch `shoes` shoes each, two an inning, with cancellation: a ringer cancels one of
/// the other side, an uncancelled one is three points, and the nearest single shoe in count is one.
/// `skill` is each one's probability of a ringer, 0 to 1.
std::array<PitchedSide, 2> PitchGame(Dice& dice, const std::array<double, 2>& skill, int shoes);

/// A player pitches against the pacer: nothing cancels, every ringer and every single counts.
PitchedSide PitchAlone(Dice& dice, double skill, int shoes);

}  // namespace tavrelin
