#include "leagues/TeamTable.h"

#include "data/Connection.h"
#include "leagues/League.h"
#include "leagues/LeagueOptions.h"
#include "leagues/Season.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

double WinShare(double wins, double losses) {
  return wins + losses > 0 ? wins / (wins + losses) : 0;
}

TeamTable::TeamTable(Connection& connection, const League& league, CountedWins count)
    : countsGames_(count != CountedWins::Teams) {
  if (!league.teams) return;
  rows_.Open(
      u"SELECT l.TeamID, t.Team, 0.01 AS Win, 0.01 AS Loss, 0.01 AS WinPercent "
      "FROM LeagueTeams l, Teams t WHERE l.SanctionID = ? AND l.TeamID = t.TeamID "
      "ORDER BY l.TeamID"_s,
      connection, Recordset::Lock::ReadOnly, {league.sanctionID});
  rows_.Disconnect();
  const bool countsAdded = count != CountedWins::Players;
  const auto added =
      countsAdded ? AddedTeamWins(connection, league.sanctionID) : QHash<qint64, TeamRecord>();
  for (; !rows_.AtEnd(); rows_.MoveNext()) {
    const qint64 team = rows_.At(0).ToWhole();
    records_[team] = added.value(team);
  }
}

void TeamTable::Add(qint64 teamID, const Credit& credit) {
  const auto record = records_.find(teamID);
  if (!countsGames_ || record == records_.end()) return;
  record->wins += double{credit.win};
  record->losses += double{credit.loss};
}

Recordset TeamTable::Standings() {
  if (!rows_.IsOpen()) return std::move(rows_);
  for (rows_.MoveFirst(); !rows_.AtEnd(); rows_.MoveNext()) {
    const TeamRecord record = records_.value(rows_.At(0).ToWhole());
    rows_.Set(u"Win"_s, record.wins);
    rows_.Set(u"Loss"_s, record.losses);
    rows_.Set(u"WinPercent"_s, WinShare(record.wins, record.losses));
    rows_.Update();
  }
  rows_.MoveFirst();
  return std::move(rows_);
}

}  // namespace tavrelin
