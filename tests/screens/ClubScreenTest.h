#pragma once

#include <gtest/gtest.h>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "support/ScreenBench.h"

namespace tavrelin {

/// Texts typed into the cells of a row, by column.
using Cells = QList<QPair<QString, QString>>;

/// A screen on a bench, and its club's file seen beside it.
struct ClubScreenTest : testing::Test {
  ScreenBench bench;
  Connection file;

  ClubScreenTest() { file.Open(ConnectString); }

  /// The first cell of what a query finds.
  Value Cell(const QString& query, const QList<Value>& parameters = {}) {
    Recordset rows;
    rows.Open(query, file, Recordset::Lock::ReadOnly, parameters);
    return rows.AtEnd() ? Value("no such row") : rows.At(0);
  }
  qint64 CountOf(const QString& table) { return Cell("SELECT COUNT(*) FROM " + table).ToWhole(); }
  /// Goes to the row of a player as a search would.
  static void GoToPlayer(GridEX& grid, const QString& playerID) {
    for (int row = 1; row <= grid.RowCount(); ++row) {
      if (grid.ValueAt(row, "PlayerID").ToText() == playerID) grid.SetRow(row);
    }
    ASSERT_EQ(grid.Value("PlayerID").ToText(), playerID);
  }
};

}  // namespace tavrelin
