#pragma once

namespace tavrelin {

class OutputTarget;
struct ClassResults;
struct ResultsChoice;

/// Writes the results of a class, singles or doubles: a heading, the standings in place order, and
/// the box scores, a block an entrant. `verticalOffset` (twips, may be negative) moves the whole
/// singles sheet down, on every page; the doubles sheet ignores it.
///
/// The standings are one page, however long. A block of box scores that has no room starts a new
/// page, two across with the longer one deciding; a block longer than a page goes on, with its
/// heading repeated, on the next.
void PrintTheClass(OutputTarget& target, const ClassResults& results, const ResultsChoice& choice,
                   int verticalOffset = 0);

}  // namespace tavrelin
