#pragma once

#include <QHeaderView>
#include <QTableView>
#include <QTest>

#include "controls/GridEX.h"

namespace tavrelin {

// What a person does to a grid with the mouse.

inline QTableView& TableOf(GridEX& grid) {
  return *grid.findChild<QTableView*>(grid.objectName() + "_Table");
}

inline QPoint PlaceOf(GridEX& grid, int row, const QString& column) {
  const int line = grid.AllowAddNew() ? row : row - 1;
  QTableView& table = TableOf(grid);
  return table.visualRect(table.model()->index(line, grid.ColumnNumber(column))).center();
}

inline void ClickCell(GridEX& grid, int row, const QString& column) {
  QTest::mouseClick(TableOf(grid).viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
}

inline void DoubleClickCell(GridEX& grid, int row, const QString& column) {
  ClickCell(grid, row, column);
  QTest::mouseDClick(TableOf(grid).viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
}

inline void ClickHeading(GridEX& grid, const QString& column) {
  QHeaderView& header = *TableOf(grid).horizontalHeader();
  const int left = header.sectionViewportPosition(grid.ColumnNumber(column));
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(left + 12, header.height() / 2));
}

/// All rows on show, by the text of one column.
inline QStringList TextsOf(const GridEX& grid, const QString& column) {
  QStringList texts;
  for (int row = 1; row <= grid.RowCount(); ++row) texts.append(grid.TextAt(row, column));
  return texts;
}

}  // namespace tavrelin
