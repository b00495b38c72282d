#pragma once

#include <QDate>

#include "data/Recordset.h"
#include "leagues/Season.h"
#include "players/ByID.h"

namespace tavrelin {

class Connection;

/// All games of a league, read at once: by player, and each one's by date and as they were typed.
class SeasonGames {
 public:
  /// Where the games of one player lie.
  struct Range {
    int first = 1;
    int count = 0;
  };

  SeasonGames(Connection& connection, const QString& sanctionID);

  /// No games for a player who has none.
  Range Of(const QString& playerID) const { return ranges_.value(playerID); }
  SeasonGame At(int position) const;
  /// The team that the game counts for; 0 for none.
  qint64 TeamAt(int position) const;

  /// The dates of the earliest and the latest game so far asked for by Include; not valid at first.
  void Include(Range games);
  QDate FirstDate() const { return first_; }
  QDate LastDate() const { return last_; }

 private:
  QDate DateAt(int position) const;

  Recordset rows_;
  ByID<Range> ranges_;
  QDate first_, last_;
};

}  // namespace tavrelin
