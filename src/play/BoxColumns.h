#pragma once

#include <QList>

#include "print/Layout.h"

namespace tavrelin {

struct BoxLine;
struct BoxScore;

/// What a column of a box score shows. Thrower counts from 0.
enum class BoxFigure { Opponent, Forfeit, Score, Shoes, Ringers, Percent };

/// A column of the box scores. X are from the block's left edge; `totalPicture` is empty where
/// nothing is added up.
struct BoxColumn {
  BoxFigure figure;
  int thrower = 0;
  Column place;  ///< heading, and the base of a game's cell
  QString picture;
  int totalX = 0;
  QString totalPicture;
};

/// Where a block's parts stand.
struct BoxLayout {
  int placeX;
  int nameX;
  int nameRoom;
  int ruleFrom;
  int ruleTo;
  int across;       ///< blocks side by side
  int blockOffset;  ///< from one block to its right neighbor
  PageBreak page;
  QList<BoxColumn> columns;
};

const BoxLayout& SinglesBox();
const BoxLayout& DoublesBox();

/// The line over a block behind its place: name, wins and losses, and a team's two players.
QString BoxTitle(const BoxScore& block);
Cell BoxCell(const BoxLine& line, const BoxColumn& column);
/// Empty where the column adds nothing up.
Cell BoxTotalCell(const BoxScore& block, const BoxColumn& column);

}  // namespace tavrelin
