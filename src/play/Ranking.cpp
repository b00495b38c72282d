#include "play/Ranking.h"

#include "data/Connection.h"
#include "play/PlayFormat.h"
#include "play/StandingRows.h"
#include "play/Totals.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// A place in the order by wins, with the figure on which the rank method first compares.
struct Level {
  QString id;
  float wins;
  double figure;
};

/// On which figure players must be equal, besides their wins, to count as tied. Method R ties on
/// ringers, not on the percentage; method O on the over-average of single precision; H on the wins.
double TieFigure(const Recordset& rows, const QString& method) {
  if (method == u"H") return 0;
  if (method == u"R") return rows[u"Ringers"_s].ToNumber();
  if (method == u"O") {
    return double{static_cast<float>(rows[u"OverAverage"_s].ToNumber())};
  }
  return rows[u"Points"_s].ToNumber();
}

QPair<QString, QString> PairOf(const QString& winner, const QString& loser) {
  return {IDKey(winner), IDKey(loser)};
}

/// Games won, by winner and loser: on the points as they stand, approved or not, whatever forfeits.
QHash<QPair<QString, QString>, int> Wins(const QList<Game>& games) {
  QHash<QPair<QString, QString>, int> wins;
  for (const Game& game : games) {
    const auto& [one, two] = game.sides;
    if (one.points == two.points) continue;
    const bool first = one.points > two.points;
    ++wins[first ? PairOf(one.id, two.id) : PairOf(two.id, one.id)];
  }
  return wins;
}

/// The games won against the players one is tied with. Who has no win is in no tie.
ByID<int> HeadToHead(const QList<Level>& levels, const QList<Game>& games) {
  const QHash<QPair<QString, QString>, int> wins = Wins(games);
  ByID<int> counts;
  for (const Level& me : levels) {
    if (me.wins == 0) continue;
    for (const Level& other : levels) {
      const bool tied = me.wins == other.wins && me.figure == other.figure;
      if (tied && me.id != other.id) counts[me.id] += wins.value(PairOf(me.id, other.id));
    }
  }
  return counts;
}

/// The stored figure is the player's in the whole tournament: the class is not asked for, so that
/// the class ranked last leaves its figure in all his entries.
void WriteHeadToHead(Connection& connection, Standings& standings) {
  const ClassRules& rules = standings.rules;
  const PlayFormat& format = FormatOf(rules);
  Recordset& rows = standings.rows;
  QList<Level> levels;
  EachRow(rows, [&] {
    levels.append({rows[format.entrantID].Trimmed(), static_cast<float>(rows[u"Won"_s].ToNumber()),
                   TieFigure(rows, rules.rankMethod)});
  });
  const ByID<int> counts = HeadToHead(levels, standings.games);
  const QString update = u"UPDATE %1 SET HeadToHead = ? WHERE %2 = ? AND SanctionID = ?"_s.arg(
      format.entrantTable, format.entrantID);
  EachRow(rows, [&] {
    const int count = counts.value(rows[format.entrantID].Trimmed());
    rows.Set(u"HeadToHead"_s, count);
    connection.Execute(update, {count, rows[format.entrantID], rules.sanctionID});
  });
}

void PutInOrder(Standings& standings, StandingOrder order) {
  const RankOrder by = OrderOf(standings.rules, order);
  standings.rankBasis = by.basis;
  standings.rows.SetSort(by.sort);
  NumberPlaces(standings.rows, standings.rules.rankOverride);
}

}  // namespace

Standings RankTheClass(Connection& connection, const ClassRules& rules, StandingOrder order) {
  Standings standings;
  standings.rules = rules;
  Batch batch(connection);
  standings.games = ReadClassGames(connection, rules);
  WriteTotals(connection, rules, standings.games);
  standings.rows = ReadStandingRows(connection, rules);
  if (standings.rows.RecordCount() == 0) {
    standings.refusal = {u"Nothing to report"_s};
  } else {
    WriteHeadToHead(connection, standings);
    PutInOrder(standings, order);
  }
  batch.Commit();
  return standings;
}

}  // namespace tavrelin
