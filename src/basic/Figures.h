#pragma once

namespace tavrelin {

/// Ringers of 100 shoes; 0 when no shoe was pitched. Unrounded.
double RingerPercentage(double ringers, double shoes);

/// Handicap points a game: what an entrant of average `average` gets against the strongest of the
/// class. A ringer counts three points, so each percent below `best` is worth three hundredths of a
/// point a shoe, of which `percent` hundredths are given; for each of `pitchers` players. Halves
/// go to the even number. A class without a fixed number of shoes gives none.
int HandicapFigure(double best, double average, int shoes, double percent, int pitchers = 1);

}  // namespace tavrelin
