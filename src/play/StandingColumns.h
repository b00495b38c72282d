#pragma once

#include <QList>

#include "print/Layout.h"

namespace tavrelin {

struct StandingLine;

/// What a column of the standings shows.
enum class StandingFigure {
  Place,
  Name,
  EntryAverage,
  Handicap,
  Category,
  Card,
  State,
  Won,
  Lost,
  Points,
  Ringers,
  HeadToHead,
  OverAverage,
  Shoes,
  Percent,
};

/// The figure as it stands in its cell, on paper and in a text file alike.
Cell StandingCell(const StandingLine& line, StandingFigure figure);

/// A column of the standings: what it shows, and where.
struct StandingColumn {
  StandingFigure figure;
  Column place;
};

/// The standings of the two singles sheets and of the doubles sheet.
const QList<StandingColumn>& SinglesColumns();
const QList<StandingColumn>& BriefColumns();
const QList<StandingColumn>& DoublesColumns();

/// Steps by which figures on a sheet move right, twips a character.
inline constexpr int StandingStep = 125;
inline constexpr int BoxStep = 100;

/// The headings underlined on the present line.
void PrintStandingHeadings(OutputTarget& target, const QList<StandingColumn>& columns, int y);
/// One line for each entrant, downward from the present line.
void PrintStandings(OutputTarget& target, const QList<StandingColumn>& columns,
                    const QList<StandingLine>& lines);

}  // namespace tavrelin
