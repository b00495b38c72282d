#include "play/BoxColumns.h"

#include "basic/ScoreTexts.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

const QString Three = u"##0"_s;
const QString Four = u"###0"_s;
const QString Hundredths = u"#0.00"_s;

using Figure = CellOf<BoxFigures>;

Figure Points(const QString& picture) {
  return FigureOf(&BoxFigures::points, picture);
}

Figure Shoes(const QString& picture) {
  return FigureOf(&BoxFigures::shoes, picture);
}

/// Of the first or the second player of a side.
Figure Ringers(qsizetype player, const QString& picture) {
  return [=](const BoxFigures& all) { return NumberCell(all.ringers.value(player), picture); };
}

Figure Percent(qsizetype player) {
  return [=](const BoxFigures& all) { return NumberCell(all.percents.value(player), Hundredths); };
}

CellOf<BoxLine> Own(const Figure& figure) {
  return [figure](const BoxLine& game) { return figure(game.own); };
}

CellOf<BoxScore> Total(const Figure& figure) {
  return [figure](const BoxScore& block) { return figure(block.totals); };
}

Cell Score(const BoxLine& game) {
  return TextCell(u"%1/%2"_s.arg(game.own.points).arg(game.opposingPoints));
}

/// A column of a text file that is as wide as that, whatever stands in it; the last one ends with
/// its text.
TextForm Wide(const QString& heading, int width, int tab = 0) {
  return {heading.leftJustified(width), QString(heading.size(), u'-').leftJustified(width),
          [width](const Cell& cell) { return Padded(cell).leftJustified(width); }, 0, tab};
}

BoxLayout MakeSinglesBox() {
  return {200,
          450,
          5200,
          2900,
          5400,
          2,
          5700,
          14800,
          14800,
          {{{{u"Opponent"_s, 700, 600}, NameOf(&BoxLine::opponent)}},
           {{{{}, 2700, 2700}, TextOf(&BoxLine::forfeitMark)}},
           {{{u"Score"_s, 3100, 3100}, Score}, 3100, Total(Points(Four))},
           {{{u"R"_s, 4000, 3850}, Own(Ringers(0, Three))}, 3750, Total(Ringers(0, Four))},
           {{{u"Sh"_s, 4500, 4400}, Own(Shoes(Three))}, 4300, Total(Shoes(Four))},
           {{{u"%"_s, 5100, 4900}, Own(Percent(0))}, 4900, Total(Percent(0))}}};
}

BoxColumn TeamColumn(const ColumnPlace& place, const Figure& figure, int textWidth) {
  return {{place, Own(figure), Wide(place.heading, textWidth)}, place.cellX, Total(figure)};
}

BoxLayout MakeDoublesBox() {
  return {700,
          950,
          10200,
          4600,
          10100,
          1,
          0,
          15200,
          14800,
          {{{{u"Opponent"_s, 1200, 1100}, NameOf(&BoxLine::opponent), Wide(u"Opponent"_s, 40, 6)}},
           {{{u"Score"_s, 4600, 4600}, Score, Wide(u"Score"_s, 10)}, 4600, Total(Points(Four))},
           TeamColumn({u"Sh"_s, 5700, 5600}, Shoes(Three), 6),
           TeamColumn({u"A-Rgr"_s, 6600, 6600}, Ringers(0, Three), 8),
           TeamColumn({u"A-%"_s, 7700, 7600}, Percent(0), 9),
           TeamColumn({u"B-Rgr"_s, 8600, 8600}, Ringers(1, Three), 8),
           TeamColumn({u"B-%"_s, 9700, 9600}, Percent(1), 0)}};
}

}  // namespace

const BoxLayout& SinglesBox() {
  static const BoxLayout layout = MakeSinglesBox();
  return layout;
}

const BoxLayout& DoublesBox() {
  static const BoxLayout layout = MakeDoublesBox();
  return layout;
}

QString BoxTitle(const BoxScore& block) {
  QString title = block.name + u"   "_s + HalfWinText(block.won) + u'-' + HalfWinText(block.loss);
  if (block.pitchers.size() > 1) {
    title += u"   (A. - %1;  B. - %2)"_s.arg(block.pitchers[0], block.pitchers[1]);
  }
  return title;
}

QList<ColumnPlace> PlacesOf(const BoxLayout& layout) {
  QList<ColumnPlace> places;
  for (const BoxColumn& column : layout.columns) places << column.game.place;
  return places;
}

QList<TextForm> TextFormsOf(const BoxLayout& layout) {
  QList<TextForm> forms;
  for (const BoxColumn& column : layout.columns) forms << column.game.text;
  return forms;
}

QList<Cell> GameCells(const BoxLayout& layout, const BoxLine& game) {
  QList<Cell> cells;
  for (const BoxColumn& column : layout.columns) cells << column.game.cell(game);
  return cells;
}

QList<Cell> TotalCells(const BoxLayout& layout, const BoxScore& block) {
  QList<Cell> cells;
  for (const BoxColumn& column : layout.columns) {
    cells << (column.total ? column.total(block) : Cell());
  }
  return cells;
}

}  // namespace tavrelin
