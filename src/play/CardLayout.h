#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

struct Card;
struct CardJob;

// Where everything stands on a card: twips, before the card is moved to its place on the sheet.

/// A piece of a line.
struct CardText {
  int x;
  QString text;
};

/// The grid of a card's back. Its rows stand `CardGrid::RowHeight` apart.
struct CardGrid {
  static constexpr int Left = 200;
  static constexpr int Top = 6200;
  static constexpr int Bottom = 11400;
  static constexpr int TotalsTop = 11000;
  static constexpr int RowHeight = 400;
  static constexpr int HeadingY = 6300;
  static constexpr int TotalsY = 11100;
  static constexpr int GameX = 400;
  static constexpr int OpponentX = 1200;
  static constexpr int GameRule = 1000;  ///< ends above the totals, which have no game number

  int right;
  QList<int> rules;  ///< verticals over the whole grid
  QList<CardText> headings;
  int courtX;
  QList<int> slashX;  ///< between score and score, and ringers and ringers
  QList<int> byeX;    ///< one "X" a cell
};

const CardGrid& SinglesGrid();
const CardGrid& DoublesGrid();

/// "3.Ann Stone"; for a team "3A.Ann Stone  B.Bob Hill".
QString CardHeading(const Card& card);

/// The line over the grid, as the standard and folded cards have it, and as two-up cards have it.
QList<CardText> CardInformation(const CardJob& job, const Card& card);
QList<CardText> TwoUpInformation(const CardJob& job, const Card& card);

}  // namespace tavrelin
