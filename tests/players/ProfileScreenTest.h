#pragma once

#include "players/uctProfile.h"
#include "screens/ClubScreenTest.h"

namespace tavrelin {

/// The roster's screen on a bench.
struct ProfileScreenTest : ClubScreenTest {
  void Add(const QString& playerID, const QString& last, const QString& first,
           const QString& card = {}, const Value& years = 0) {
    file.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, CardNumber, Longevity, Category, "
        "State, MembershipType) VALUES (?, ?, ?, ?, ?, 'AM', 'MN', 'S')",
        {playerID, last, first, card, years});
  }
  void Set(const QString& playerID, const QString& field, const Value& value) {
    file.Execute("UPDATE Players SET " + field + " = ? WHERE PlayerID = ?", {value, playerID});
  }

  void Show() { bench.Show<uctProfile>(); }
  GridEX& Grid() { return bench.Find<GridEX>("grdProfile"); }

  Value Stored(const QString& field, const QString& playerID) {
    return Cell("SELECT " + field + " FROM Players WHERE PlayerID = ?", {playerID});
  }
  qint64 Count() { return CountOf("Players"); }

  // Types into cells of the row the cursor stands on.
  void Fill(const Cells& cells) {
    for (const auto& [column, text] : cells) {
      Grid().SetCol(column);
      if (Grid().Columns()[Grid().ColumnNumber(column) - 1].editor == CellEditor::List) {
        Grid().SetValue(column, text);
      } else {
        bench.Type(text);
      }
    }
  }
  // A new player with all a row needs, and the cells given besides; Enter takes the row over.
  void TypeNew(const QString& first, const QString& last, const Cells& more = {}) {
    bench.Press(Qt::Key_Insert);
    Fill({{"FirstName", first}, {"LastName", last}, {"Category", "AW"}, {"State", "MN"}});
    Fill(more);
    bench.Press(Qt::Key_Return);
  }
  void GoTo(const QString& playerID) { GoToPlayer(Grid(), playerID); }
  QString CurrentPlayer() { return Grid().Value("PlayerID").ToText(); }
  void OnRowSelector(const QString& playerID) {
    GoTo(playerID);
    Grid().ClearCol();
  }
};

}  // namespace tavrelin
