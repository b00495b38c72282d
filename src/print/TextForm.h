#pragma once

#include <functional>
#include <QList>
#include <QString>

#include "print/Cell.h"

namespace tavrelin {

/// How a column stands in a text file. Widths are characters.
struct TextForm {
  QString heading;  ///< one to three lines, "\n" between them, the last one lowest; with the blanks
                    ///< that lead to the next column
  QString dashes;   ///< the line under the headings, likewise
  std::function<QString(const Cell&)> cell = Padded;
  int blanks = 0;  ///< after the cell
  int tab = 0;     ///< where the column begins, from 1; 0: right after the column before it

  /// A column without a heading is for paper alone.
  bool IsLeftOut() const { return heading.isEmpty(); }
};

/// A column of texts: heading, dashes and cells begin at its left edge. A text longer than `width`
/// pushes the line along and keeps a blank after it.
TextForm LeftText(const QString& heading, int width);
/// A column of figures, which end with their heading at its right edge, and two blanks.
TextForm RightText(const QString& heading, int width);

/// A text through a picture of @ that holds its column ("!@@@@  "); a longer one keeps a blank
/// after it.
std::function<QString(const Cell&)> Through(const QString& picture);
/// Right-justified in so many characters, and what follows it.
std::function<QString(const Cell&)> EndingAt(int width, const QString& after = {});

/// The lines of headings and the line of dashes, each ending in "\n".
QString TextHeadings(const QList<TextForm>& columns);
/// One row, a cell a column, ending in "\n".
QString TextRow(const QList<TextForm>& columns, const QList<Cell>& cells);

}  // namespace tavrelin
