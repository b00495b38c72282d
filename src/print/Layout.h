#pragma once

#include <QList>
#include <QString>

#include "basic/Value.h"

namespace tavrelin {

class OutputTarget;

// The pieces that the sheets share. Figures are right-justified by counting characters, not by
// measuring: a cell of W characters whose text is shorter moves right by one step for each
// character that is missing. Positions are twips.

/// What stands in a cell and how many characters wide the cell is; a width of 0 leaves the text at
/// its X.
struct Cell {
  QString text;
  int width = 0;
  bool shrinks = false;  ///< made smaller where it would run into the next column
};

Cell TextCell(const QString& text);
/// A name: people's names can be longer than the room a sheet has for them.
Cell NameCell(const QString& name);
/// A number through a picture; the picture's length is the cell's width. Null leaves it empty.
Cell NumberCell(const Value& number, const QString& picture);
/// Games won or lost: "3" in 2 characters, "3.5" in 4, as a tie is half a win.
Cell HalfWinCell(double games);
/// A figure over average: "1.25", and "1.25-" below it, in the characters of the bare figure.
Cell OverAverageCell(double figure);

/// The cell's X: base + (width - length) * step.
int CellX(int base, const Cell& cell, int step);
/// The cell with the blanks in front that bring it to its width, for text files.
QString Padded(const Cell& cell);

/// Prints a cell on the present line.
void PrintCell(OutputTarget& target, int base, const Cell& cell, int step);

/// One column of a table: its heading, where the heading begins, and where its cells have their
/// base.
struct Column {
  QString heading;
  int headingX = 0;
  int cellX = 0;
};

/// The headings underlined on the present line, all X moved by `offset`; the line is not ended.
void PrintHeadings(OutputTarget& target, const QList<Column>& columns, int offset = 0);
/// One row on the present line, a cell a column; the line is not ended.
void PrintRow(OutputTarget& target, const QList<Column>& columns, const QList<Cell>& cells,
              int step, int offset = 0);

/// A line of a page's head.
struct HeadLine {
  int x = 0;
  int y = 0;
  QString text;
  double size = 12;
  bool bold = true;
};

/// Prints the lines where they say; leaves font as it was and the position below the last one.
void PrintHead(OutputTarget& target, const QList<HeadLine>& lines);

/// Where a report ends its pages. The printer's page is full when something reaches beyond its
/// limit, the preview's as soon as something reaches its limit.
struct PageBreak {
  int printerLimit = 14800;
  int previewLimit = 14800;

  /// True when what ends at `bottom` has no room on the present page.
  bool Exceeded(const OutputTarget& target, int bottom) const;
};

}  // namespace tavrelin
