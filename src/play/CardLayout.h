#pragma once

#include <QList>
#include <QString>

#include "print/ReportTable.h"

namespace tavrelin {

struct Card;
struct CardJob;
struct CardLine;

// Where everything stands on a card: twips, before the card is moved to its place on the sheet.

/// A piece of a line.
struct CardText {
  int x;
  QString text;
};

/// The grid of a card's back: a band of headings, a row for each game that a card has room for, and
/// the totals.
struct CardGrid {
  static constexpr int Top = 6200;
  static constexpr int Games = 11;
  static constexpr int TotalsY = 11100;

  TableForm form;
  Ruling totals;  ///< of the last row, which has no game number
  QList<ColumnPlace> games;
  QList<ColumnPlace> byes;  ///< the same columns in the row of a bye
};

const CardGrid& SinglesGrid();
const CardGrid& DoublesGrid();

/// The row of a game, or of a bye.
QList<Cell> CardCells(const CardLine& line);

/// "3.Ann Stone"; for a team "3A.Ann Stone  B.Bob Hill".
QString CardHeading(const Card& card);

/// The line over the grid, as the standard and folded cards have it, and as two-up cards have it.
QList<CardText> CardInformation(const CardJob& job, const Card& card);
QList<CardText> TwoUpInformation(const CardJob& job, const Card& card);

}  // namespace tavrelin
