#include "leagues/Season.h"

#include <algorithm>
#include <limits>

#include "basic/Conversions.h"

namespace tavrelin {
namespace {

/// The first evening's games, for which there is no average yet to give a handicap by.
constexpr int GamesWithoutHandicap = 3;

}  // namespace

int Rounded(double number) {
  constexpr double Most = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(RoundHalfEven(number), -Most, Most));
}

Credit CreditOf(QChar result) {
  switch (result.toUpper().unicode()) {
    case u'W':
      return {1, 0};
    case u'L':
      return {0, 1};
    case u'T':
      return {0.5F, 0.5F};
    default:
      return {};
  }
}

float HandicapRate(double percent) {
  return static_cast<float>(percent / 100);
}

int PointsHandicap(float rate, int basis, int average) {
  return Rounded(double{rate} * (static_cast<double>(basis) - average));
}

int RingersHandicap(float rate, float best, float percent, int shoes) {
  return Rounded((double{best} - double{percent}) * (static_cast<double>(shoes) * 3) *
                 (double{rate} / 100));
}

Season::Season(const SeasonStart& start, int games, int lastGames, float rate, int basis)
    : skipped_(std::max(0, games - lastGames)),
      rate_(rate),
      basis_(basis),
      highPoints_(start.highPoints),
      highRingers_(start.highRingers) {}

void Season::Totals::Add(const SeasonGame& game) {
  shoes += game.shoes;
  points += game.points;
  ringers += game.ringers;
  if (game.shoes != 0) ++counted;
}

int Season::HandicapOfTheEvening() const {
  if (index_ <= GamesWithoutHandicap) return 0;
  const double average = static_cast<double>(all_.points) / (index_ - 1);
  return PointsHandicap(rate_, basis_, Rounded(average));
}

void Season::Add(const SeasonGame& game) {
  ++index_;
  const Credit credit = CreditOf(game.result);
  wins_ += credit.win;
  losses_ += credit.loss;
  highWithHandicap_ = std::max(highWithHandicap_, game.points + HandicapOfTheEvening());
  highPoints_ = std::max(highPoints_, game.points);
  highRingers_ = std::max(highRingers_, game.ringers);
  all_.Add(game);
  if (skipped_ > 0 && index_ > skipped_) last_.Add(game);
}

int Season::AveragePoints() const {
  const Totals& games = last_.counted > 0 ? last_ : all_;
  if (games.counted == 0) return 0;
  return Rounded(static_cast<double>(games.points) / games.counted);
}

float Season::RingerPercent() const {
  const Totals& games = last_.shoes > 0 ? last_ : all_;
  if (games.shoes == 0) return 0;
  return static_cast<float>(static_cast<double>(games.ringers) * 100 /
                            static_cast<double>(games.shoes));
}

}  // namespace tavrelin
