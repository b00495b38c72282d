#pragma once

#include <QList>

#include "play/BoxScores.h"
#include "print/ReportTable.h"

namespace tavrelin {

/// A column of the box scores: what a game shows in it, and what all games together. X are from the
/// block's left edge.
struct BoxColumn {
  ReportColumn<BoxLine> game;
  int totalX = 0;
  CellOf<BoxScore> total = {};  ///< nothing where nothing is added up
};

/// Where a block's parts stand.
struct BoxLayout {
  int placeX;
  int nameX;
  int nameRoom;
  int ruleFrom;
  int ruleTo;
  int across;        ///< blocks side by side
  int blockOffset;   ///< from one block to its right neighbor
  int printerLimit;  ///< a page is full when a block would end beyond it...
  int previewLimit;  ///< ...in the preview when it would reach it
  QList<BoxColumn> columns;
};

const BoxLayout& SinglesBox();
const BoxLayout& DoublesBox();

/// The line over a block after its place: name, wins and losses, and a team's two players.
QString BoxTitle(const BoxScore& block);

QList<ColumnPlace> PlacesOf(const BoxLayout& layout);
QList<TextForm> TextFormsOf(const BoxLayout& layout);
/// One cell a column; an empty one where the column adds nothing up.
QList<Cell> GameCells(const BoxLayout& layout, const BoxLine& game);
QList<Cell> TotalCells(const BoxLayout& layout, const BoxScore& block);

}  // namespace tavrelin
