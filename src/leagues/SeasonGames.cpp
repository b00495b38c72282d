#include "leagues/SeasonGames.h"

#include "data/Connection.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// Columns of the statement.
enum Column { PlayerID, TeamID, Date, Shoes, Points, Ringers, WinLoss };

}  // namespace

SeasonGames::SeasonGames(Connection& connection, const QString& sanctionID) {
  rows_.Open(
      u"SELECT PlayerID, TeamID, [Date], Shoes, Points, Ringers, WinLoss FROM LeagueScores "
      "WHERE SanctionID = ? ORDER BY PlayerID, [Date], ID"_s,
      connection, Recordset::Lock::ReadOnly, {sanctionID});
  QString player;
  for (int position = 1; position <= rows_.RecordCount(); ++position) {
    const QString next = rows_.CellAt(position, PlayerID).ToText();
    const bool another = next != player && CompareText(next, player) != 0;
    if (position == 1 || another) ranges_[next].first = position;
    ++ranges_[next].count;
    player = next;
  }
}

SeasonGame SeasonGames::At(int position) const {
  const auto figure = [&](Column column) { return rows_.CellAt(position, column).ToWhole(); };
  const QString result = rows_.CellAt(position, WinLoss).Trimmed();
  return {figure(Shoes), figure(Points), figure(Ringers),
          result.isEmpty() ? QChar() : result.front()};
}

qint64 SeasonGames::TeamAt(int position) const {
  return rows_.CellAt(position, TeamID).ToWhole();
}

QDate SeasonGames::DateAt(int position) const {
  return rows_.CellAt(position, Date).ToDate().date();
}

// The games lie by date; those that an older program left without one stand first.
void SeasonGames::Include(Range games) {
  const int end = games.first + games.count;
  int from = games.first;
  while (from < end && !DateAt(from).isValid()) ++from;
  if (from == end) return;
  const QDate first = DateAt(from);
  const QDate last = DateAt(end - 1);
  first_ = first_.isValid() ? std::min(first_, first) : first;
  last_ = last_.isValid() ? std::max(last_, last) : last;
}

}  // namespace tavrelin
