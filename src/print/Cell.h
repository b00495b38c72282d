#pragma once

#include <QString>

#include "basic/Value.h"

namespace tavrelin {

class OutputTarget;

// Figures are right-justified by counting characters, not by measuring: a cell of W characters
// whose text is shorter moves right by one step for each character that is missing. A text file
// pads the same cells with blanks to the same W.

/// What a row shows in one column, and how many characters wide the cell is; a width of 0 leaves
/// the text at its X.
struct Cell {
  QString text;
  int width = 0;
  bool shrinks = false;  ///< made smaller where it would run into the next column
};

Cell TextCell(const QString& text);
/// A name, or any text that can be longer than the room a sheet has for it.
Cell NameCell(const QString& name);
/// A number through a picture; the picture's length is the cell's width. Null leaves it empty.
Cell NumberCell(const Value& number, const QString& picture);
/// Games won or lost, as a tie is half a win: "3" in the characters of the picture, "3.5" in two
/// more.
Cell HalfWinCell(double games, const QString& wholePicture = QStringLiteral("#0"));
/// A figure over average: "1.25", and "1.25-" below it, in the characters of the bare figure.
Cell OverAverageCell(double figure);

/// The cell's X: base + (width - length) * step.
int CellX(int base, const Cell& cell, int step);
/// The cell with the blanks in front that bring it to its width, for text files.
QString Padded(const Cell& cell);

/// Prints a cell on the present line.
void PrintCell(OutputTarget& target, int base, const Cell& cell, int step);

}  // namespace tavrelin
