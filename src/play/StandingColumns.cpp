#include "play/StandingColumns.h"

#include "play/ClassResults.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

using Figure = StandingFigure;

QList<Column> PlacesOf(const QList<StandingColumn>& columns) {
  QList<Column> places;
  for (const StandingColumn& column : columns) places << column.place;
  return places;
}

}  // namespace

Cell StandingCell(const StandingLine& line, StandingFigure figure) {
  switch (figure) {
    case Figure::Place:
      return TextCell(QStringLiteral("%1.").arg(line.place));
    case Figure::Name:
      return NameCell(line.name);
    case Figure::EntryAverage:
      return NumberCell(line.entryAverage, QStringLiteral("#0.00"));
    case Figure::Handicap:
      return NumberCell(line.handicap, QStringLiteral("#0"));
    case Figure::Category:
      return TextCell(line.category);
    case Figure::Card:
      return TextCell(line.card);
    case Figure::State:
      return TextCell(line.state);
    case Figure::Won:
      return HalfWinCell(line.won);
    case Figure::Lost:
      return HalfWinCell(line.loss);
    case Figure::Points:
      return NumberCell(line.points, QStringLiteral("###0"));
    case Figure::Ringers:
      return NumberCell(line.ringers, QStringLiteral("###0"));
    case Figure::HeadToHead:
      return TextCell(QString::number(line.headToHead));
    case Figure::OverAverage:
      return OverAverageCell(line.overAverage);
    case Figure::Shoes:
      return NumberCell(line.shoes, QStringLiteral("###0"));
    case Figure::Percent:
      return NumberCell(line.percent, QStringLiteral("#0.00"));
  }
  return {};
}

const QList<StandingColumn>& BriefColumns() {
  static const QList<StandingColumn> columns = {
      {Figure::Place, {"Pos", 200, 200}},
      {Figure::Name, {"Name", 800, 500}},
      {Figure::EntryAverage, {"Entry Avg", 3100, 3400}},
      {Figure::Category, {"Div", 4300, 4400}},
      {Figure::State, {"St", 4900, 4900}},
      {Figure::Won, {"Won", 5700, 5700}},
      {Figure::Lost, {"Lost", 6600, 6600}},
      {Figure::Points, {"Pts", 7600, 7500}},
      {Figure::Ringers, {"Rgrs", 8500, 8400}},
      {Figure::Shoes, {"Sh", 9400, 9300}},
      {Figure::Percent, {"R%", 10300, 10200}},
  };
  return columns;
}

const QList<StandingColumn>& SinglesColumns() {
  static const QList<StandingColumn> columns = {
      {Figure::Place, {"Pos", 200, 200}},
      {Figure::Name, {"Name", 800, 500}},
      {Figure::EntryAverage, {"Entry %", 3250, 3450}},
      {Figure::Handicap, {"Hcp", 4150, 4150}},
      {Figure::Card, {"Card#", 4750, 4650}},
      {Figure::State, {"St", 5600, 5600}},
      {Figure::Won, {"Won", 6150, 6150}},
      {Figure::Lost, {"Lost", 6700, 6700}},
      {Figure::Points, {"Pts", 7350, 7250}},
      {Figure::Ringers, {"Rgrs", 8000, 8000}},
      {Figure::HeadToHead, {"HtH", 8650, 8700}},
      {Figure::OverAverage, {"Ovr%", 9200, 9150}},
      {Figure::Shoes, {"Sh", 10000, 9800}},
      {Figure::Percent, {"R%", 10700, 10600}},
  };
  return columns;
}

const QList<StandingColumn>& DoublesColumns() {
  static const QList<StandingColumn> columns = {
      {Figure::Place, {"Pos", 700, 700}},
      {Figure::Name, {"Team", 1300, 1200}},
      {Figure::EntryAverage, {"Entry %", 4600, 4800}},
      {Figure::Handicap, {"Hcp", 5500, 5600}},
      {Figure::Won, {"Won", 6150, 6200}},
      {Figure::Lost, {"Lost", 6700, 6700}},
      {Figure::Points, {"Pts", 7350, 7200}},
      {Figure::Ringers, {"Rgrs", 8000, 7950}},
      {Figure::HeadToHead, {"HtH", 8650, 8700}},
      {Figure::OverAverage, {"Ovr%", 9200, 9150}},
      {Figure::Shoes, {"Sh", 10000, 9800}},
      {Figure::Percent, {"R%", 10700, 10600}},
  };
  return columns;
}

void PrintStandingHeadings(OutputTarget& target, const QList<StandingColumn>& columns, int y) {
  target.SetCurrentY(y);
  PrintHeadings(target, PlacesOf(columns));
}

void PrintStandings(OutputTarget& target, const QList<StandingColumn>& columns,
                    const QList<StandingLine>& lines) {
  const QList<Column> places = PlacesOf(columns);
  for (const StandingLine& line : lines) {
    QList<Cell> cells;
    for (const StandingColumn& column : columns) cells << StandingCell(line, column.figure);
    PrintRow(target, places, cells, StandingStep);
    target.Print();
  }
}

}  // namespace tavrelin
