#pragma once

#include <memory>

#include "shell/Screen.h"

class QLabel;

namespace tavrelin {

class TypedSearch;
struct GridDelete;
struct GridFetchData;
struct GridKeyDown;

/// Players / Teams: the named teams, all players to draw from, and who plays on the chosen team. A
/// double click (or Enter) on a team shows its players; one on a player puts him on the team.
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

  void GridEX1_KeyDown(GridKeyDown& event, TypedSearch& search);
  void GridEX1_BeforeUpdate(GridUpdate& update);
  void GridEX1_AfterUpdate();
  void GridEX1_BeforeDelete(GridDelete& event);
  void GridEX2_KeyDown(GridKeyDown& event, TypedSearch& search);
  void GridEX3_KeyDown(GridKeyDown& event, TypedSearch& search);
  void GridEX3_FetchData(GridFetchData& event);
  void ListSelected();
  void PlayerSelected();
  void ForgetTeam();
  void NameTeam(const QString& team);

  GridEX* GridEX1_;  ///< teams
  GridEX* GridEX2_;  ///< all players
  GridEX* GridEX3_;  ///< players of the chosen team
  QLabel* Label3_;   ///< says which team that is
  QList<TypedSearch*> searches_;
  struct Data;  ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
