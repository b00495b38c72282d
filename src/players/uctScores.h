#pragma once

#include <memory>

#include "shell/Screen.h"

class QLabel;

namespace tavrelin {

class TypedSearch;
struct GridColEdit;
struct GridDelete;
struct GridKeyDown;

/// Players / Stats: the players at the left, and the tournament history of the chosen one at the
/// right, to be mended or added to by hand. A double click (or Enter) chooses a player.
class uctScores : public Screen {
  Q_OBJECT

 public:
  uctScores(const Surroundings& surroundings, QWidget* parent);
  ~uctScores() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void UserControl_Initialize();
  void ConnectEvents();
  void LayOut();
  void LoadPlayers();
  void LoadSanctions();
  void PlayerSelected();
  void FillInPlayer();

  void GridEX1_KeyDown(GridKeyDown& event);
  void GridEX1_ColumnHeaderClick(const QString& column);
  void GridEX2_KeyDown(GridKeyDown& event);
  void GridEX2_ColumnHeaderClick(const QString& column);
  void GridEX2_RowColChange(int lastRow, int lastCol);
  void GridEX2_AfterColEdit(GridColEdit& event);
  void GridEX2_BeforeUpdate(GridUpdate& update);
  void GridEX2_BeforeDelete(GridDelete& event);

  GridEX* GridEX1_;  ///< players
  GridEX* GridEX2_;  ///< history
  QLabel* Label2_;   ///< says whose history that is
  TypedSearch* search_;
  struct Data;  ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
