#pragma once

#include <QChar>
#include <QList>

namespace tavrelin {

/// The nearest whole number, halves to the even one. Cut at what an int holds: a file of another
/// program may hold any figure.
int Rounded(double number);

/// One game of a member as the statistics read it.
struct SeasonGame {
  qint64 shoes = 0;
  qint64 points = 0;
  qint64 ringers = 0;
  QChar result;  ///< W, L or T
};

/// What a game adds to a record of wins and losses. A tie is half a win and half a loss.
struct Credit {
  float win = 0;
  float loss = 0;
};
Credit CreditOf(QChar result);

/// What a member brings into the season, 0 where nothing is known.
struct SeasonStart {
  int average = 0;
  int highPoints = 0;
  int highRingers = 0;
};

/// A league's handicap percentage as a rate. It is a single, whose products are taken in doubles:
/// 90 % of 15 falls short of 13.5 and gives 13.
float HandicapRate(double percent);

/// Handicap points a game where every ringer counts: the rate of what the average lacks to the
/// basis, both in points; negative above the basis. Halves go to the even number.
int PointsHandicap(float rate, int basis, int average);

/// Handicap points a game under cancellation, where only ringers tell: the rate of the points that
/// are lost to the best by ringers, over the shoes of a game. Halves go to the even number.
int RingersHandicap(float rate, float best, float percent, int shoes);

/// A member's season, added up game by game in the order in which they were pitched.
class Season {
 public:
  /// `games` is how many will come; averages are taken over the last `lastGames` of them, or over
  /// all when there are no more than that or it is 0. `basis` is the handicap basis as it stands
  /// when the member's turn comes.
  Season(const SeasonStart& start, int games, int lastGames, float rate, int basis);

  void Add(const SeasonGame& game);

  double Wins() const { return double{wins_}; }
  double Losses() const { return double{losses_}; }
  qint64 TotalShoes() const { return all_.shoes; }
  qint64 TotalPoints() const { return all_.points; }
  qint64 TotalRingers() const { return all_.ringers; }
  /// The best of the season and of the seasons before.
  qint64 HighPoints() const { return highPoints_; }
  qint64 HighRingers() const { return highRingers_; }
  /// The best of this season with the handicap of its evening, which is nothing for the first three
  /// games.
  qint64 HighWithHandicap() const { return highWithHandicap_; }
  /// Points a game over the games with shoes, whole; 0 without any. Of the season's own games.
  int AveragePoints() const;
  /// Over the same games; 0 without shoes.
  float RingerPercent() const;

 private:
  struct Totals {
    qint64 shoes = 0;
    qint64 points = 0;
    qint64 ringers = 0;
    int counted = 0;  ///< games with shoes

    void Add(const SeasonGame& game);
  };

  int HandicapOfTheEvening() const;

  int skipped_;  ///< games before those that make the averages; 0: all make them
  float rate_;
  int basis_;
  int index_ = 0;  ///< of the latest game, from 1
  float wins_ = 0;
  float losses_ = 0;
  Totals all_, last_;
  qint64 highPoints_, highRingers_;
  qint64 highWithHandicap_ = 0;
};

}  // namespace tavrelin
