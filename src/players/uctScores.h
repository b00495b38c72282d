#pragma once

#include <memory>

#include "shell/Screen.h"

namespace tavrelin {

class TypedSearch;
struct GridColEdit;
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

  void GridEX1_KeyDown(GridKeyDown& event);
  void GridEX2_AfterColEdit(GridColEdit& event);
  void GridEX2_BeforeUpdate(GridUpdate& update);

  GridEX* GridEX1_;  ///< players
  GridEX* GridEX2_;  ///< history
  TypedSearch* search_;
  struct Data;  ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
