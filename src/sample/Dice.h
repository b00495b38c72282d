#pragma once

#include <random>

namespace tavrelin {

/// Chance that falls the same way on every machine: the same seed gives the same throws.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}

  /// From 0 to below 1.
  double Next() { return static_cast<double>(engine_() >> 11) * 0x1.0p-53; }
  /// From 0 to below `count`.
  int Below(int count) { return static_cast<int>(Next() * count); }
  bool Happens(double probability) { return Next() < probability; }

 private:
  std::mt19937_64 engine_;
};

}  // namespace tavrelin
