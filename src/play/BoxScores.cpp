#include "play/BoxScores.h"

#include "basic/Figures.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"

namespace tavrelin {
namespace {

void FillPercents(BoxFigures& figures) {
  figures.percents.clear();
  for (const int ringers : figures.ringers) {
    figures.percents << RingerPercentage(ringers, figures.shoes);
  }
}

BoxLine LineOf(const Game& game, int side, const ByID<QString>& names) {
  const GameSide& own = game.sides[static_cast<size_t>(side)];
  const GameSide& other = game.sides[static_cast<size_t>(1 - side)];
  BoxLine line;
  line.opponent = names.value(other.id, QStringLiteral("PACER"));
  if (other.forfeit) line.forfeitMark = QStringLiteral("F+");
  if (own.forfeit) line.forfeitMark = QStringLiteral("F-");
  line.opposingPoints = other.points;
  line.own = {own.points, game.shoes, own.ringers, {}};
  FillPercents(line.own);
  return line;
}

BoxFigures TotalsOf(const Recordset& row, const PlayFormat& format) {
  BoxFigures totals;
  totals.points = static_cast<int>(row[QStringLiteral("Points")].ToWhole());
  totals.shoes = static_cast<int>(row[QStringLiteral("Shoes")].ToWhole()) / format.Pitchers();
  for (const QString& field : format.standingsRingers) {
    totals.ringers << static_cast<int>(row[field].ToWhole());
  }
  FillPercents(totals);
  return totals;
}

void Add(BoxFigures& sum, const BoxFigures& line) {
  sum.points += line.points;
  sum.shoes += line.shoes;
  sum.ringers.resize(line.ringers.size());
  for (qsizetype i = 0; i < line.ringers.size(); ++i) sum.ringers[i] += line.ringers[i];
  FillPercents(sum);
}

BoxScore BlockOf(const Recordset& row, const PlayFormat& format) {
  BoxScore block;
  block.name = row[format.standingsName].Trimmed();
  for (const PitcherColumns& pitcher : format.pitchers) {
    block.pitchers << row[pitcher.fullName].Trimmed();
  }
  block.won = row[QStringLiteral("Won")].ToNumber();
  block.loss = row[QStringLiteral("Loss")].ToNumber();
  block.totals = TotalsOf(row, format);
  return block;
}

}  // namespace

QList<BoxScore> BoxScores(Connection& connection, Standings& standings) {
  const PlayFormat& format = FormatOf(standings.rules);
  const ByID<QString> names = format.entrantNames(connection, EntrantsIn(standings.games));
  QList<BoxScore> blocks;
  Recordset& rows = standings.rows;
  if (rows.RecordCount() == 0) return blocks;
  for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) {
    const QString id = rows[format.entrantID].Trimmed();
    BoxScore block = BlockOf(rows, format);
    block.place = static_cast<int>(blocks.size()) + 1;
    for (const Game& game : standings.games) {
      const int side = game.SideOf(id);
      if (side < 0 || !game.approved) continue;
      block.lines << LineOf(game, side, names);
      Add(block.played, block.lines.last().own);
    }
    blocks << block;
  }
  rows.MoveFirst();
  return blocks;
}

}  // namespace tavrelin
