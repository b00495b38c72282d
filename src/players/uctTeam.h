#pragma once

#include <memory>

#include "shell/Screen.h"

namespace tavrelin {

class TypedSearch;

/// Players / Teams: the named teams, the members of the chosen one, and all players to draw from. A
/// double click (or Enter) on a team shows its members; one on a player puts him on the team.
class uctTeam : public Screen {
  Q_OBJECT

 public:
  uctTeam(const Surroundings& surroundings, QWidget* parent);
  ~uctTeam() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void BuildTeams();
  void BuildPool();
  void BuildMembers();
  void LayOut();
  TypedSearch* SearchOf(GridEX& grid, const QString& field);
  void LoadPool();

  void GridEX1_BeforeUpdate(GridUpdate& update);
  void GridEX1_AfterUpdate();
  bool ConfirmDeletion();
  void ListSelected();
  void PlayerSelected();
  bool IsMember(const QString& playerID) const;

  GridEX* GridEX1_;  ///< teams
  GridEX* GridEX2_;  ///< all players
  GridEX* GridEX3_;  ///< members of the chosen team
  QList<TypedSearch*> searches_;
  struct Data;  ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
