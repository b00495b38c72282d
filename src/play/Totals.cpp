#include "play/Totals.h"

#include <algorithm>

#include "basic/Figures.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "play/ClassLoad.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

void AddResult(Totals& totals, Outcome outcome) {
  const bool tie = outcome == Outcome::Tie;
  totals.wins += tie ? 0.5F : outcome == Outcome::Win ? 1.0F : 0.0F;
  totals.losses += tie ? 0.5F : outcome == Outcome::Loss ? 1.0F : 0.0F;
}

void AddFigures(Totals& totals, const GameSide& side, int shoes) {
  totals.shoes += shoes * static_cast<int>(side.pitchers.size());
  totals.ringers += side.Ringers();
  totals.points += side.points;
  totals.pitcherShoes += shoes;
  for (qsizetype i = 0; i < side.ringers.size(); ++i) totals.pitcherRingers[i] += side.ringers[i];
}

/// The columns to set in an entry, with their values, in the order of the statement.
struct Assignments {
  QStringList columns;
  QList<Value> values;

  void Set(const QString& column, const Value& value) {
    if (column.isEmpty()) return;
    columns << column + " = ?";
    values << value;
  }
};

Assignments TotalsOf(const Totals& totals) {
  Assignments set;
  set.Set(QStringLiteral("TotalShoes"), totals.shoes);
  set.Set(QStringLiteral("TotalRingers"), totals.ringers);
  set.Set(QStringLiteral("TotalPoints"), totals.points);
  set.Set(QStringLiteral("TotalWins"), double{totals.wins});
  set.Set(QStringLiteral("TotalLosses"), double{totals.losses});
  return set;
}

Recordset OpenEntries(Connection& connection, const ClassRules& rules) {
  const PlayFormat& format = FormatOf(rules);
  QStringList columns = {format.entrantID};
  for (const PitcherColumns& pitcher : format.pitchers) {
    if (pitcher.id != format.entrantID) columns << pitcher.id;
    columns << pitcher.hiGame;
  }
  Recordset rows;
  rows.Open(QStringLiteral("SELECT %1 FROM %2 WHERE SanctionID = ? AND ClassID = ?")
                .arg(columns.join(u", "), format.entrantTable),
            connection, Recordset::Lock::ReadOnly, {rules.sanctionID, rules.classID});
  return rows;
}

}  // namespace

ByID<Totals> AddUp(const QList<Game>& games, const PlayFormat& format) {
  ByID<Totals> all;
  for (const Game& game : games) {
    if (!game.approved) continue;
    for (int i = 0; i < 2; ++i) {
      const GameSide& side = game.sides[static_cast<size_t>(i)];
      if (format.IsPacer(side.id)) continue;
      Totals& totals = all[side.id];
      totals.pitcherRingers.resize(side.ringers.size());
      AddResult(totals, OutcomeOf(game, i, format));
      if (!side.forfeit) AddFigures(totals, side, game.shoes);
    }
  }
  return all;
}

ByID<float> HighGames(const QList<Game>& games, qsizetype pitcher) {
  ByID<float> best;
  for (const Game& game : games) {
    if (!game.approved || game.shoes <= 0) continue;
    for (const GameSide& side : game.sides) {
      const double percent = RingerPercentage(side.ringers[pitcher], game.shoes);
      float& high = best[side.pitchers[pitcher]];
      if (percent > double{high}) high = static_cast<float>(percent);
    }
  }
  return best;
}

void WriteTotals(Connection& connection, const ClassRules& rules, const QList<Game>& games) {
  const PlayFormat& format = FormatOf(rules);
  const ByID<Totals> all = AddUp(games, format);
  QList<ByID<float>> high;
  for (qsizetype i = 0; i < format.pitchers.size(); ++i) high << HighGames(games, i);

  for (Recordset rows = OpenEntries(connection, rules); !rows.AtEnd(); rows.MoveNext()) {
    const Value id = rows[format.entrantID];
    const Totals totals = all.value(id.Trimmed());
    Assignments set = TotalsOf(totals);
    for (qsizetype i = 0; i < format.pitchers.size(); ++i) {
      const PitcherColumns& pitcher = format.pitchers[i];
      set.Set(pitcher.ringers, totals.pitcherRingers.value(i));
      set.Set(pitcher.shoes, totals.pitcherShoes);
      const auto best = double{high[i].value(rows[pitcher.id].Trimmed())};
      const Value stored = rows[pitcher.hiGame];
      set.Set(pitcher.hiGame, best > stored.ToNumber() ? Value(best) : stored);
    }
    connection.Execute(
        QStringLiteral("UPDATE %1 SET %2 WHERE SanctionID = ? AND ClassID = ? AND %3 = ?")
            .arg(format.entrantTable, set.columns.join(u", "), format.entrantID),
        set.values + QList<Value>{rules.sanctionID, rules.classID, id});
  }
}

}  // namespace tavrelin
