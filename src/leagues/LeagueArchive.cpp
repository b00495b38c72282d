#include "leagues/LeagueArchive.h"

#include "data/Backup.h"
#include "data/WholeBatch.h"
#include "leagues/LeagueRoster.h"
#include "leagues/LeagueStats.h"
#include "leagues/TeamWins.h"
#include "players/ByID.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// A member's high marks as they are stored.
struct Marks {
  double points = 0;
  double ringers = 0;
};

ByID<Marks> StoredMarks(Connection& connection, const QString& sanctionID) {
  ByID<Marks> marks;
  for (Recordset rows = OpenLeagueMembers(connection, sanctionID); !rows.AtEnd(); rows.MoveNext()) {
    marks[rows[u"PlayerID"_s].ToText()] = {rows[u"HighGamePoints"_s].ToNumber(),
                                           rows[u"HighGameRingers"_s].ToNumber()};
  }
  return marks;
}

/// A season carries a mark on only where it is higher.
Value Higher(const Value& reached, double stored) {
  return reached.ToNumber() > stored ? reached : Value(stored);
}

void CarryOn(Connection& connection, const QString& sanctionID, const Recordset& member,
             const Marks& stored) {
  connection.Execute(
      u"UPDATE LeagueMembers SET StartingAverage = ?, HighGamePoints = ?, HighGameRingers = ? "
      "WHERE SanctionID = ? AND PlayerID = ?"_s,
      {member[u"AveragePoints"_s], Higher(member[u"HighGamePoints"_s], stored.points),
       Higher(member[u"HighGameRingers"_s], stored.ringers), sanctionID, member[u"PlayerID"_s]});
}

void Archive(Connection& connection, const LeagueStats& stats) {
  const QString& sanctionID = stats.league.sanctionID;
  const ByID<Marks> stored = StoredMarks(connection, sanctionID);
  for (Recordset rows = stats.members.Clone(); !rows.AtEnd(); rows.MoveNext()) {
    CarryOn(connection, sanctionID, rows, stored.value(rows[u"PlayerID"_s].ToText()));
  }
  connection.Execute(u"DELETE FROM LeagueScores WHERE SanctionID = ?"_s, {sanctionID});
  if (!HasTeamWins(connection)) return;
  connection.Execute(u"DELETE FROM LeagueTeamScores WHERE SanctionID = ?"_s, {sanctionID});
}

}  // namespace

QString ArchiveLeague(Connection& connection, const LeagueStats& stats, const QDateTime& now) {
  if (stats.members.RecordCount() == 0) return {};
  const QString backup = BackUpBefore(u"archiving scores"_s, connection.FilePath(), now);
  InWholeBatch(connection, [&] { Archive(connection, stats); });
  return u"Data has been archived.  "_s + KeptBefore(backup);
}

}  // namespace tavrelin
