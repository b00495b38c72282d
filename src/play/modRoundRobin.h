#pragma once

#include <QList>

namespace tavrelin {

/// One game of a schedule: where it stands and which two player numbers meet.
struct PairingCell {
  quint8 court = 0;   ///< court position, from 1: an index into the class's court list
  quint8 first = 0;   ///< player one of the game
  quint8 second = 0;  ///< player two of the game
};

/// The games of one round of a round robin, by game and court position, both from 1. The caller
/// sizes it; a fill operation writes its own shape and leaves the rest alone. A game or a court
/// outside the size throws Error (Subscript).
class Schedule {
 public:
  Schedule() = default;
  Schedule(int games, int courts);

  int Games() const { return games_; }
  int Courts() const { return courts_; }
  bool IsEmpty() const { return cells_.isEmpty(); }

  PairingCell& At(int game, int court);
  const PairingCell& At(int game, int court) const;

 private:
  qsizetype Index(int game, int court) const;

  int games_ = 0;
  int courts_ = 0;
  QList<PairingCell> cells_;
};

// The thirteen printed schedules. They are data, not a formula: cards already printed and game
// numbers already called out must agree with them. Each pair meets once, and the courts are laid
// out by hand so that a player seldom stays on one. The tables for 5, 7 and 9 entrants hold one
// number more than they have entrants; that number, the bye or the pacer, never leaves the last
// court.
void FillPairings2(Schedule& schedule);
void FillPairings4(Schedule& schedule);
void FillPairings5(Schedule& schedule);
void FillPairings6(Schedule& schedule);
void FillPairings7(Schedule& schedule);
void FillPairings8(Schedule& schedule);
void FillPairings9(Schedule& schedule);
void FillPairings10(Schedule& schedule);
void FillPairings12(Schedule& schedule);
void FillPairings14(Schedule& schedule);
void FillPairings16(Schedule& schedule);
void FillPairings18(Schedule& schedule);
void FillPairings20(Schedule& schedule);

/// The schedule on which a class of so many entrants plays (a pacer not counted). An odd class gets
/// a table with the number `entrants` + 1, its bye or pacer. Empty when a class of this size has no
/// table: fewer than 2 or more than 20 entrants.
Schedule ScheduleFor(int entrants);

}  // namespace tavrelin
