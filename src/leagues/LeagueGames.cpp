#include "leagues/LeagueGames.h"

#include "basic/Conversions.h"
#include "basic/Dates.h"
#include "data/Connection.h"
#include "leagues/League.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// Walks the checks of a row; what is wrong first is told.
class GameChecker {
 public:
  GameChecker(const RowValues& row, const League& league)
      : row_(row), cancellation_(league.cancellation) {}

  /// The row's verdict, without the fixes of a good one.
  RowCheck Run() const {
    RowCheck check;
    for (const auto* needed : {u"PlayerID", u"SanctionID", u"Date", u"Points"}) {
      if (Blank(needed)) return check.Refuse({});
    }
    if (!LeagueDay(row_[u"Date"_s])) return check.Refuse(u"Invalid date."_s);
    if (!IsNumeric(row_[u"Shoes"_s])) return check.Refuse({});
    const QString wrong = WrongFigure();
    return wrong.isEmpty() ? check : check.Refuse(wrong);
  }

 private:
  bool Blank(const char16_t* field) const {
    return row_[QString::fromUtf16(field)].Trimmed().isEmpty();
  }

  /// A figure as it will be stored; nothing for what is none, or too large.
  std::optional<int> FigureOf(const QString& field) const {
    const Value value = row_[field];
    return IsInt(value) ? std::optional<int>(CInt(value)) : std::nullopt;
  }

  QString WrongFigure() const {
    const auto shoes = FigureOf(u"Shoes"_s);
    const auto points = FigureOf(u"Points"_s);
    const auto ringers = FigureOf(u"Ringers"_s);
    if (!shoes || *shoes < 0) return u"Invalid shoes."_s;
    if (!points || *points < 0 || *points > *shoes * 3) return u"Invalid points."_s;
    if (!ringers || *ringers < 0 || *ringers > *shoes) return u"Invalid ringers."_s;
    if (!cancellation_ && *points < *ringers * 3) {
      return u"Invalid ringers or invalid points."_s;
    }
    if (*points > *shoes - *ringers + *ringers * 3) {
      return u"Point total is too high based on Shoes and Ringers"_s;
    }
    if (!QStringList{u"W"_s, u"L"_s, u"T"_s}.contains(row_[u"WinLoss"_s].Trimmed().toUpper())) {
      return u"Invalid win loss."_s;
    }
    return Blank(u"Handicap") || FigureOf(u"Handicap"_s) ? QString() : u"Invalid Handicap"_s;
  }

  const RowValues& row_;
  bool cancellation_;
};

ByID<int> CountGames(Connection& connection, const QString& sanctionID, const QDate& evening) {
  Recordset rows;
  rows.Open(
      u"SELECT PlayerID, COUNT(*) AS Games FROM LeagueScores WHERE SanctionID = ? "
      "AND [Date] >= ? AND [Date] < ? GROUP BY PlayerID"_s,
      connection, Recordset::Lock::ReadOnly, {sanctionID, evening, evening.addDays(1)});
  ByID<int> games;
  for (; !rows.AtEnd(); rows.MoveNext())
    games[rows.At(0).ToText()] += static_cast<int>(rows.At(1).ToWhole());
  return games;
}

}  // namespace

std::optional<QDate> LeagueDay(const Value& typed) {
  if (!IsDate(typed)) return std::nullopt;
  const QDate day = CDate(typed).date();
  return day == ZeroDay() ? std::nullopt : std::optional(day);
}

Recordset OpenLeagueGames(Connection& connection, const QString& sanctionID,
                          const QString& playerID) {
  Recordset games;
  games.Open(
      u"SELECT SanctionID, PlayerID, TeamID, Date, Shoes, Points, Ringers, WinLoss, ID, Handicap "
      "FROM LeagueScores WHERE PlayerID = ? AND SanctionID = ? ORDER BY [Date], ID"_s,
      connection, Recordset::Lock::Optimistic, {playerID, sanctionID});
  return games;
}

ByID<qint64> LeagueTeamsOfPlayers(Connection& connection, const QString& sanctionID) {
  Recordset rows;
  rows.Open(
      u"SELECT t.TeamID, t.PlayerID FROM TeamPlayers t, LeagueTeams l "
      "WHERE t.TeamID = l.TeamID AND l.SanctionID = ?"_s,
      connection, Recordset::Lock::ReadOnly, {sanctionID});
  ByID<qint64> teams;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const QString player = rows.At(1).ToText();
    if (!teams.contains(player)) teams[player] = rows.At(0).ToWhole();
  }
  return teams;
}

RowValues NewLeagueGame(const League& league, const QString& playerID, const ByID<qint64>& teams,
                        const Recordset& games, const QDate& evening, bool weeklyHandicaps) {
  RowValues row{{u"SanctionID"_s, league.sanctionID},
                {u"PlayerID"_s, playerID},
                {u"Shoes"_s, league.shoes},
                {u"Date"_s, evening}};
  if (league.teams && teams.contains(playerID)) row[u"TeamID"_s] = teams.value(playerID);
  if (!weeklyHandicaps) return row;
  const int latest = games.RecordCount();
  const int field = games.FieldIndex(u"Handicap"_s);
  row[u"Handicap"_s] = latest > 0 ? games.CellAt(latest, field).ToWhole() : 0;
  return row;
}

RowCheck CheckLeagueGame(const RowValues& row, const League& league, const ByID<qint64>& teams) {
  RowCheck check = GameChecker(row, league).Run();
  if (check.verdict != RowCheck::Verdict::Save) return check;
  check.Fix(u"WinLoss"_s, row[u"WinLoss"_s].Trimmed().toUpper());
  if (row[u"Handicap"_s].Trimmed().isEmpty()) check.Fix(u"Handicap"_s, 0);
  const QString player = row[u"PlayerID"_s].Trimmed();
  const bool needsTeam = league.teams && row[u"TeamID"_s].Trimmed().isEmpty();
  if (needsTeam && teams.contains(player)) check.Fix(u"TeamID"_s, teams.value(player));
  return check;
}

Recordset EveningMembers(Connection& connection, const QString& sanctionID, const QDate& evening) {
  Recordset members;
  members.Open(
      u"SELECT m.PlayerID, m.SanctionID, p.LastName, p.FirstName, 0 AS Games "
      "FROM LeagueMembers m, Players p WHERE m.SanctionID = ? AND m.PlayerID = p.PlayerID "
      "AND m.Active = True ORDER BY LastName, FirstName, m.PlayerID"_s,
      connection, Recordset::Lock::ReadOnly, {sanctionID});
  members.Disconnect();
  CountEveningGames(connection, sanctionID, evening, members);
  return members;
}

void CountEveningGames(Connection& connection, const QString& sanctionID, const QDate& evening,
                       Recordset& members) {
  const ByID<int> games = CountGames(connection, sanctionID, evening);
  Recordset rows = members.Clone();
  for (; !rows.AtEnd(); rows.MoveNext()) {
    rows.Set(u"Games"_s, games.value(rows[u"PlayerID"_s].ToText()));
    rows.Update();
  }
}

}  // namespace tavrelin
