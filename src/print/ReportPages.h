#pragma once

#include <QList>
#include <QString>

#include "print/Document.h"
#include "print/PageFlow.h"

namespace tavrelin {

class OutputTarget;

/// A line of text at a place of its own, twips from the page's, or from its group's, top left.
struct HeadLine {
  int x = 0;
  int y = 0;
  QString text;
  double size = 12;  ///< points
  bool bold = true;
  int room = 0;  ///< made smaller where it is wider than that; 0: as wide as it is
};

/// Prints the lines, all of them moved by the same distance. Leaves the font as it was and the
/// position below the last line.
void PrintLines(OutputTarget& target, const QList<HeadLine>& lines, int right = 0, int down = 0);

/// What all pages of a report, or of a part of one, have in common.
struct PageForm {
  Orientation orientation = Orientation::Portrait;
  QList<HeadLine> head = {};   ///< a form's captions and what is filled in over them, too
  bool repeatsHead = true;     ///< false: on the first page alone
  QList<LineMark> rules = {};  ///< on every page
  PageRoom room = {};
};

/// The pages of a report while it is written: begins each with its head, and only when something
/// comes to stand on it. A report whose parts have different heads makes one after the other on the
/// same target; each begins a page of its own.
class ReportPages {
 public:
  /// Prints the first page's head. The target must outlive it.
  ReportPages(OutputTarget& target, const PageForm& form);

  OutputTarget& Target() { return target_; }
  const PageFlow& Flow() const { return flow_; }

  /// Goes on to the next column or page unless so much room is left. True when it did: what stands
  /// over the rows must be printed again.
  bool MakeRoom(int height);
  /// Moves down past a heading, or past a row, and returns its Y.
  int Skip(int height) { return flow_.Skip(height); }
  int Take(int height) { return flow_.Take(height); }

  /// One line below the last row, a count for example. It never begins a page: a limit leaves room
  /// for it.
  void PrintClosing(int x, const QString& text, double size);

 private:
  void StartPage();

  OutputTarget& target_;
  PageForm form_;
  PageFlow flow_;
};

}  // namespace tavrelin
