#include "play/BoxColumns.h"

#include "basic/ScoreTexts.h"
#include "play/BoxScores.h"

namespace tavrelin {
namespace {

using Figure = BoxFigure;

const QString Three = QStringLiteral("##0");
const QString Four = QStringLiteral("###0");
const QString Percent = QStringLiteral("#0.00");

Cell FigureCell(const BoxFigures& figures, const BoxColumn& column, const QString& picture) {
  switch (column.figure) {
    case Figure::Score:
      return NumberCell(figures.points, picture);
    case Figure::Shoes:
      return NumberCell(figures.shoes, picture);
    case Figure::Ringers:
      return NumberCell(figures.ringers.value(column.thrower), picture);
    case Figure::Percent:
      return NumberCell(figures.percents.value(column.thrower), picture);
    case Figure::Opponent:
    case Figure::Forfeit:
      break;
  }
  return {};
}

}  // namespace

const BoxLayout& SinglesBox() {
  static const BoxLayout layout = {
      200,
      450,
      5200,
      2900,
      5400,
      2,
      5700,
      {14800, 14800},
      {{Figure::Opponent, 0, {"Opponent", 700, 600}, {}, 0, {}},
       {Figure::Forfeit, 0, {{}, 2700, 2700}, {}, 0, {}},
       {Figure::Score, 0, {"Score", 3100, 3100}, {}, 3100, Four},
       {Figure::Ringers, 0, {"R", 4000, 3850}, Three, 3750, Four},
       {Figure::Shoes, 0, {"Sh", 4500, 4400}, Three, 4300, Four},
       {Figure::Percent, 0, {"%", 5100, 4900}, Percent, 4900, Percent}}};
  return layout;
}

const BoxLayout& DoublesBox() {
  static const BoxLayout layout = {
      700,
      950,
      10200,
      4600,
      10100,
      1,
      0,
      {15200, 14800},
      {{Figure::Opponent, 0, {"Opponent", 1200, 1100}, {}, 0, {}},
       {Figure::Score, 0, {"Score", 4600, 4600}, {}, 4600, Four},
       {Figure::Shoes, 0, {"Sh", 5700, 5600}, Three, 5600, Three},
       {Figure::Ringers, 0, {"A-Rgr", 6600, 6600}, Three, 6600, Three},
       {Figure::Percent, 0, {"A-%", 7700, 7600}, Percent, 7600, Percent},
       {Figure::Ringers, 1, {"B-Rgr", 8600, 8600}, Three, 8600, Three},
       {Figure::Percent, 1, {"B-%", 9700, 9600}, Percent, 9600, Percent}}};
  return layout;
}

QString BoxTitle(const BoxScore& block) {
  QString title =
      block.name + QStringLiteral("   ") + HalfWinText(block.won) + u'-' + HalfWinText(block.loss);
  if (block.throwers.size() > 1) {
    title += QStringLiteral("   (A. - %1;  B. - %2)").arg(block.throwers[0], block.throwers[1]);
  }
  return title;
}

Cell BoxCell(const BoxLine& line, const BoxColumn& column) {
  switch (column.figure) {
    case Figure::Opponent:
      return NameCell(line.opponent);
    case Figure::Forfeit:
      return TextCell(line.forfeitMark);
    case Figure::Score:
      return TextCell(QStringLiteral("%1/%2").arg(line.own.points).arg(line.opposingPoints));
    default:
      return FigureCell(line.own, column, column.picture);
  }
}

Cell BoxTotalCell(const BoxScore& block, const BoxColumn& column) {
  if (column.totalPicture.isEmpty()) return {};
  return FigureCell(block.totals, column, column.totalPicture);
}

}  // namespace tavrelin
