#pragma once

#include <memory>

#include "shell/Screen.h"

namespace tavrelin {

class Connection;
class Recordset;
struct GridDelete;
struct GridKeyDown;

/// Tournaments / Setup: sanctioned tournaments above, the classes of the chosen one below. Enter or
/// a double click chooses a tournament; the lower grid is empty and disabled until then, and again
/// when it is left.
class uctTournaments : public Screen {
  Q_OBJECT

 public:
  uctTournaments(const Surroundings& surroundings, QWidget* parent);
  ~uctTournaments() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void UserControl_Initialize();
  void BuildTournaments();
  void BuildClasses();
  void LayOut();

  void GridEX1_KeyDown(GridKeyDown& event);
  void GridEX1_RowColChange(int lastRow, int lastCol);
  void GridEX1_BeforeUpdate(GridUpdate& event);
  void GridEX2_KeyDown(GridKeyDown& event);
  void GridEX2_RowColChange(int lastRow, int lastCol);
  void GridEX2_BeforeUpdate(GridUpdate& event);
  void GridEX2_LostFocus();
  void TournamentSelected();
  void BindClasses();
  void SetClassDefaults(const QDateTime& start);
  void NextClassStartsFromThisOne();

  GridEX* GridEX1_;
  GridEX* GridEX2_;
  QString sanctionID_;  ///< of the tournament chosen last
  struct Data;          ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
