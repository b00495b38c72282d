#include "leagues/LeagueDeletion.h"

#include <array>

#include "basic/Picture.h"
#include "basic/SanctionNumber.h"
#include "data/Backup.h"
#include "data/Recordset.h"
#include "data/WholeBatch.h"
#include "leagues/League.h"
#include "leagues/TeamWins.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

int CountRows(Connection& connection, const QString& table, const QString& sanctionID) {
  Recordset rows;
  rows.Open(u"SELECT COUNT(*) AS Held FROM %1 WHERE SanctionID = ?"_s.arg(table), connection,
            Recordset::Lock::ReadOnly, {sanctionID});
  return static_cast<int>(rows.At(0).ToWhole());
}

QString Counted(int count, const QString& one) {
  const QString number = Format(count, u"#,##0"_s);
  return u"%1 %2"_s.arg(number, count == 1 ? one : one + u's');
}

void DeleteHoldings(Connection& connection, const QString& sanctionID) {
  QStringList tables = {u"LeagueMembers"_s, u"LeagueTeams"_s, u"LeagueScores"_s};
  if (HasTeamWins(connection)) tables << u"LeagueTeamScores"_s;
  for (const QString& table : tables) {
    connection.Execute(u"DELETE FROM %1 WHERE SanctionID = ?"_s.arg(table), {sanctionID});
  }
}

}  // namespace

QString LeagueHoldings::Text() const {
  QStringList parts;
  if (members > 0) parts << Counted(members, u"member"_s);
  if (teams > 0) parts << Counted(teams, u"team"_s);
  if (games > 0) parts << Counted(games, u"game"_s);
  if (teamWins > 0) parts << Counted(teamWins, u"row"_s) + u" of team wins"_s;
  if (parts.size() < 2) return parts.join(QString());
  const QString last = parts.takeLast();
  return parts.join(u", "_s) + u" and "_s + last;
}

LeagueHoldings HoldingsOfLeague(Connection& connection, const QString& sanctionID) {
  LeagueHoldings held{.members = CountRows(connection, u"LeagueMembers"_s, sanctionID),
                      .teams = CountRows(connection, u"LeagueTeams"_s, sanctionID),
                      .games = CountRows(connection, u"LeagueScores"_s, sanctionID)};
  if (HasTeamWins(connection)) {
    held.teamWins = CountRows(connection, u"LeagueTeamScores"_s, sanctionID);
  }
  return held;
}

QString DeleteLeague(Connection& connection, Recordset& leagues, Holdings holdings,
                     const QDateTime& now) {
  const QString sanctionID = leagues[u"SanctionID"_s].ToText();
  const QString backup = BackUpBefore(u"deleting a league"_s, connection.FilePath(), now);
  try {
    InWholeBatch(connection, [&] {
      leagues.Delete();
      const bool isLast = !FindLeague(connection, sanctionID);
      if (holdings == Holdings::GoAlong && isLast) DeleteHoldings(connection, sanctionID);
    });
  } catch (...) {
    leagues.Requery();
    throw;
  }
  leagues.Requery();
  return u"League %1 has been deleted.  "_s.arg(FormatSanction(sanctionID)) + KeptBefore(backup);
}

}  // namespace tavrelin
