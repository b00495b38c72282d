#pragma once

#include <QLine>
#include <QList>

namespace tavrelin {

class OutputTarget;

/// The lines of a ruled table: a band for the headings, and below it a box for each cell. Twips.
struct Ruling {
  QList<int> verticals;  ///< X from left to right, the outer edges included
  int bandHeight = 400;
  int drawWidth = 1;  ///< in pixels of 15 twips
  /// What the band has in place of the verticals and of its upper and lower edge; Y from its top.
  QList<QLine> bandLines = {};

  /// How much room a text at X has to the next vertical, the air before it taken off.
  int RoomFrom(int x) const;
};

/// Draws the band with its top at `y`, everything moved right by `left`.
void DrawBand(OutputTarget& target, const Ruling& ruling, int left, int y);
/// Draws rows of that height: their verticals, and a rule below each.
void DrawRows(OutputTarget& target, const Ruling& ruling, int left, int y, int height,
              int count = 1);

}  // namespace tavrelin
