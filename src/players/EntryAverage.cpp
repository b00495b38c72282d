#include "players/EntryAverage.h"

#include <algorithm>

#include "basic/Figures.h"
#include "data/Connection.h"
#include "data/Recordset.h"

namespace tavrelin {

namespace {

constexpr int DaysThatCount = 365;
constexpr size_t LatestThatCount = 10;
constexpr size_t BestThatCount = 3;

/// The first rows by an order, the others dropped; ties keep the order they came in.
template <class Before>
void KeepFirst(std::vector<HistoryRow>& rows, size_t count, Before before) {
  std::stable_sort(rows.begin(), rows.end(), before);
  if (rows.size() > count) rows.resize(count);
}

QString CutOff(QDate today) {
  return today.addDays(-DaysThatCount).toString(QStringLiteral("M/d/yyyy"));
}

HistoryRow RowOf(const Recordset& rows) {
  return {rows["Date"].ToDate(), rows["Shoes"].ToNumber(), rows["Ringers"].ToNumber()};
}

/// 0 stands for a player without an average of the roster's own, and for one who is not there.
double RosterAverage(Connection& connection, const QString& playerID) {
  Recordset player;
  player.Open("SELECT Average FROM Players WHERE PlayerID = ?", connection,
              Recordset::Lock::ReadOnly, {playerID});
  return player.AtEnd() ? 0 : player["Average"].ToNumber();
}

}  // namespace

double AverageOfHistory(std::vector<HistoryRow> history) {
  KeepFirst(history, LatestThatCount,
            [](const HistoryRow& a, const HistoryRow& b) { return a.date > b.date; });
  KeepFirst(history, BestThatCount, [](const HistoryRow& a, const HistoryRow& b) {
    return RingerPercentage(a.ringers, a.shoes) > RingerPercentage(b.ringers, b.shoes);
  });
  double shoes = 0;
  double ringers = 0;
  for (const HistoryRow& row : history) {
    shoes += row.shoes;
    ringers += row.ringers;
  }
  return RingerPercentage(ringers, shoes);
}

double EntryAverage(Connection& connection, const QString& playerID, const QString& category,
                    QDate today) {
  const double roster = RosterAverage(connection, playerID);
  if (roster != 0) return roster;
  Recordset rows;
  rows.Open(
      "SELECT ps.Shoes, ps.Ringers, t.Date FROM PlayerScores ps, Tournaments t "
      "WHERE ps.PlayerID = ? AND ps.Category = ? AND ps.SanctionID = t.SanctionID "
      "AND t.Date > #" +
          CutOff(today) + "#",
      connection, Recordset::Lock::ReadOnly, {playerID, category});
  std::vector<HistoryRow> history;
  for (; !rows.AtEnd(); rows.MoveNext()) history.push_back(RowOf(rows));
  return AverageOfHistory(std::move(history));
}

QHash<QString, double> EntryAverages(Connection& connection, QDate today) {
  Recordset rows;
  rows.Open(
      "SELECT p.PlayerID, ps.Shoes, ps.Ringers, t.Date "
      "FROM PlayerScores ps, Tournaments t, Players p "
      "WHERE ps.PlayerID = p.PlayerID AND ps.Category = p.Category "
      "AND ps.SanctionID = t.SanctionID AND t.Date > #" +
          CutOff(today) + "#",
      connection);
  QHash<QString, std::vector<HistoryRow>> histories;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    histories[rows["PlayerID"].ToText()].push_back(RowOf(rows));
  }
  Recordset players;
  players.Open("SELECT PlayerID, Average FROM Players", connection);
  QHash<QString, double> averages;
  for (; !players.AtEnd(); players.MoveNext()) {
    const QString playerID = players["PlayerID"].ToText();
    const double roster = players["Average"].ToNumber();
    averages[playerID] = roster != 0 ? roster : AverageOfHistory(histories.take(playerID));
  }
  return averages;
}

}  // namespace tavrelin
