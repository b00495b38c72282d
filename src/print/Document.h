#pragma once

#include <QList>
#include <QPageLayout>
#include <QString>
#include <variant>

#include "print/PageFont.h"

class QPainter;

namespace tavrelin {

enum class Orientation { Portrait = 1, Landscape = 2 };

/// A text whose cell begins at (x, y), twips from the page's top left; turned counter-clockwise
/// about that point when it has an angle.
struct TextMark {
  int x = 0;
  int y = 0;
  QString text;
  PageFont font;
  int angle = 0;  ///< degrees

  friend bool operator==(const TextMark&, const TextMark&) = default;
};

/// A rule between two points, or the box that has them as opposite corners.
struct LineMark {
  int x1 = 0;
  int y1 = 0;
  int x2 = 0;
  int y2 = 0;
  int width = 15;  ///< twips
  bool box = false;

  friend bool operator==(const LineMark&, const LineMark&) = default;
};

using Mark = std::variant<TextMark, LineMark>;

struct Page {
  Orientation orientation = Orientation::Portrait;
  QList<Mark> marks;

  friend bool operator==(const Page&, const Page&) = default;
};

/// What a report wrote: pages of marks in twips, tied to no device. The printer, the PDF file and
/// the preview all draw from it, so that they cannot differ.
struct Document {
  QString title;  ///< the job's name in the print queue and the title of a file; may be empty
  QList<Page> pages;

  friend bool operator==(const Document&, const Document&) = default;
};

/// The paper that a page is printed on: Letter, without margins.
QPageLayout LetterPage(Orientation orientation);

/// Draws one page. The painter's unit must be the twip, its origin the page's top left; its pen,
/// font and transformation are as before when the call returns.
void PaintPage(QPainter& painter, const Page& page);

}  // namespace tavrelin
