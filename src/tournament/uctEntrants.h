#pragma once

#include <memory>
#include <QDateTime>

#include "shell/Screen.h"

class QPushButton;
class QTabWidget;

namespace tavrelin {

class Connection;
class EntrySide;
class TournamentBox;

/// Tournaments / Entries: players from the roster, or teams, into a tournament, with entry average,
/// payment, seed and class. One tab for each; Enter or a double click in the list at the left
/// enters, the cursor then stands on the payment at the right.
class uctEntrants : public Screen {
  Q_OBJECT

 public:
  uctEntrants(const Surroundings& surroundings, QWidget* parent);
  ~uctEntrants() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void WireUp();
  void LayOut();
  EntrySide& OpenSide();
  bool CommitEntries();
  bool MayEnter();

  void cboTournaments_LostFocus();
  void SSTab1_Click();
  void cmdSetAverage_Click();
  void PlayerSelected();
  void TeamSelected();
  void GridEX2_BeforeUpdate(GridUpdate& event);
  void GridEX4_BeforeUpdate(GridUpdate& event);

  TournamentBox* cboTournaments_;
  QPushButton* cmdSetAverage_;
  QTabWidget* SSTab1_;
  EntrySide* singles_;
  EntrySide* doubles_;
  QString sanctionID_;
  bool onFile_ = false;       ///< there is a tournament of that number
  QDateTime tournamentDate_;  ///< today when the tournament is not on file
  std::unique_ptr<Connection> connection_;
};

}  // namespace tavrelin
