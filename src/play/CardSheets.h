#pragma once

namespace tavrelin {

class OutputTarget;
struct CardJob;

// The sheets of a round robin, one procedure each. A job whose question was answered with No is
// simply not printed. Names too long for their room are made smaller, never cut.

/// Writes what the job names by one of the four below.
void PrintCards(OutputTarget& target, const CardJob& job);

/// Cards of their own: the fronts, in doubles one for each partner, or the backs; a page each.
void PrintPairOldMethod(OutputTarget& target, const CardJob& job);

/// A sheet an entrant, both faces on it, the front upside down above the back.
void PrintPairNewMethod(OutputTarget& target, const CardJob& job);

/// The backs, two on a sheet.
void PrintPairWorld(OutputTarget& target, const CardJob& job);

/// A line for each game of the class, for a scorekeeper at a table. The club's adjustments are for
/// cards and do not move it.
void PrintPairWorksheet(OutputTarget& target, const CardJob& job);

}  // namespace tavrelin
