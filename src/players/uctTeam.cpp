#include "players/uctTeam.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "controls/GridEX.h"
#include "controls/TypedSearch.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"

namespace tavrelin {

struct uctTeam::Data {
  Connection connection;
  Recordset teams, pool, members;
  Value teamID;  ///< of the chosen team; null before the first choice
};

namespace {

constexpr int SearchPause = 1000;  // milliseconds

QList<GridColumn> TeamColumns() {
  return {
      {.caption = "TeamID", .field = "TeamID", .width = 0, .selectable = false, .editable = false},
      {.caption = "Team", .field = "Team", .width = 3000, .maxLength = 50, .fill = true}};
}

QList<GridColumn> PoolColumns() {
  return {{.caption = "PlayerID", .field = "PlayerID", .visible = false},
          {.caption = "Name", .field = "PlayerName", .width = 2700, .fill = true},
          {.caption = "City", .field = "City", .width = 1800},
          {.caption = "St", .field = "State", .width = 600, .spokenCaption = "State"}};
}

QList<GridColumn> MemberColumns() {
  return {{.caption = "TeamID", .field = "TeamID", .width = 0, .selectable = false},
          {.caption = "Team Player", .field = "PlayerID", .width = 2700, .fill = true}};
}

bool IsEnter(const GridKeyDown& event) {
  return event.key == Qt::Key_Return || event.key == Qt::Key_Enter;
}

}  // namespace

uctTeam::uctTeam(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctTeam", " Setup Teams", surroundings, parent),
      GridEX1_(new GridEX("GridEX1", "Teams", Guard(), this)),
      GridEX2_(new GridEX("GridEX2", "Player List", Guard(), this)),
      GridEX3_(new GridEX("GridEX3", "Team Players", Guard(), this)) {
  BuildTeams();
  BuildPool();
  BuildMembers();
  LayOut();
}

uctTeam::~uctTeam() = default;

TypedSearch* uctTeam::SearchOf(GridEX& grid, const QString& field) {
  searches_.append(new TypedSearch(grid, SearchPause, [field](const QString& typed) {
    return TypedSearch::ByStart(field, typed);
  }));
  return searches_.last();
}

void uctTeam::BuildTeams() {
  GridEX1_->SetColumns(TeamColumns());
  GridEX1_->SetAllowAddNew(true);
  GridEX1_->SetAllowDelete(true);
  GridEX1_->SetEmptyText("No teams yet. Type the name of the first one in the top row.");
  TypedSearch* search = SearchOf(*GridEX1_, "Team");
  GridEX1_->on.KeyDown = [this, search](GridKeyDown& event) {
    stsInfo()->ClearMessage();
    if (IsEnter(event) && GridEX1_->Col() < 1 && GridEX1_->Row() > 0) {
      event.swallow = true;
      ListSelected();
    } else {
      search->KeyDown(event);
    }
  };
  GridEX1_->on.DblClick = [this] { ListSelected(); };
  GridEX1_->on.BeforeUpdate = [this](GridUpdate& update) { GridEX1_BeforeUpdate(update); };
  GridEX1_->on.AfterUpdate = [this] { GridEX1_AfterUpdate(); };
  GridEX1_->on.BeforeDelete = [this](GridDelete& event) { event.cancel = !ConfirmDeletion(); };
}

void uctTeam::BuildPool() {
  GridEX2_->SetColumns(PoolColumns());
  GridEX2_->SetAllowEdit(false);
  GridEX2_->SetRowMode(true);
  GridEX2_->SetEmptyText("No players yet. They are entered on the Profile page.");
  TypedSearch* search = SearchOf(*GridEX2_, "PlayerName");
  GridEX2_->on.KeyDown = [this, search](GridKeyDown& event) {
    stsInfo()->ClearMessage();
    if (IsEnter(event)) {
      event.swallow = true;
      PlayerSelected();
    } else {
      search->KeyDown(event);
    }
  };
  GridEX2_->on.DblClick = [this] { PlayerSelected(); };
}

void uctTeam::BuildMembers() {
  GridEX3_->SetColumns(MemberColumns());
  GridEX3_->SetAllowEdit(false);
  GridEX3_->SetAllowDelete(true);
  GridEX3_->SetRowMode(true);
  GridEX3_->SetEmptyText("Double-click a team to see its players, then a player to add him.");
  TypedSearch* search = SearchOf(*GridEX3_, "PlayerID");
  GridEX3_->on.KeyDown = [this, search](GridKeyDown& event) {
    stsInfo()->ClearMessage();
    search->KeyDown(event);
  };
}

void uctTeam::LayOut() {
  auto* grids = new QGridLayout;
  grids->setHorizontalSpacing(16);
  grids->setVerticalSpacing(8);
  grids->addWidget(NewHeading("Label2", "Teams", GridEX1_, this), 0, 0);
  grids->addWidget(GridEX1_, 1, 0);
  grids->addWidget(NewHeading("Label3", "Team Players", GridEX3_, this), 2, 0);
  grids->addWidget(GridEX3_, 3, 0);
  grids->addWidget(NewHeading("Label1", "Player List", GridEX2_, this), 0, 1);
  grids->addWidget(GridEX2_, 1, 1, 3, 1);
  grids->setColumnStretch(0, 1);
  grids->setColumnStretch(1, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(NewTitle("lblTitle", Title(), this));
  column->addLayout(grids, 1);
  column->addWidget(stsInfo());
}

void uctTeam::UserControl_Show() {
  data_ = std::make_unique<Data>();
  data_->connection.Open(ConnectString);
  LoadPool();
  data_->teams.Open("SELECT * FROM Teams ORDER BY Team", data_->connection,
                    Recordset::Lock::Optimistic);
  GridEX1_->SetRecordset(&data_->teams);
  GridEX1_->setFocus();
}

void uctTeam::LoadPool() {
  data_->pool.Open(
      "SELECT PlayerID, RTRIM(LastName) + ', ' + RTRIM(FirstName) AS PlayerName, City, State "
      "FROM Players ORDER BY 2",
      data_->connection);
  ValueList names;
  for (int position = 1; position <= data_->pool.RecordCount(); ++position) {
    names.Add(data_->pool.CellAt(position, 0), data_->pool.CellAt(position, 1).ToText());
  }
  GridEX3_->SetValueList("PlayerID", names);
  GridEX2_->SetRecordset(&data_->pool);
}

void uctTeam::UserControl_Hide() {
  GridEX1_->CommitRow();
  for (TypedSearch* search : searches_) search->Clear();
  for (GridEX* grid : {GridEX1_, GridEX2_, GridEX3_}) grid->SetRecordset(nullptr);
  data_.reset();
}

// A team without a name is not worth a word.
void uctTeam::GridEX1_BeforeUpdate(GridUpdate& update) {
  if (GridEX1_->Value("Team").Trimmed().isEmpty()) update.dataChanged = false;
}

// The rows are read again, so that the number the file gave is known and the team takes its place.
void uctTeam::GridEX1_AfterUpdate() {
  data_->teams.Requery();
  GridEX1_->Rebind();
}

bool uctTeam::ConfirmDeletion() {
  return around().person.Confirm(
      "Confirm Deletion",
      "Deleting teams is not recommended.  It may result in invalid \r\nleague scores and "
      "tournament results.  Continue? ");
}

void uctTeam::ListSelected() {
  if (GridEX1_->Row() < 1) return;
  GridEX3_->SetRecordset(nullptr);
  data_->teamID = GridEX1_->Value("TeamID");
  data_->members.Open("SELECT TeamID, PlayerID FROM TeamPlayers WHERE TeamID = ? ORDER BY PlayerID",
                      data_->connection, Recordset::Lock::Optimistic, {data_->teamID});
  GridEX3_->SetRecordset(&data_->members);
}

bool uctTeam::IsMember(const QString& playerID) const {
  Recordset members = data_->members.Clone();
  for (; !members.AtEnd(); members.MoveNext()) {
    if (members["PlayerID"].Trimmed() == playerID) return true;
  }
  return false;
}

void uctTeam::PlayerSelected() {
  if (GridEX2_->Row() < 1 || !data_->members.IsOpen()) return;
  const Value playerID = GridEX2_->Value("PlayerID");
  if (IsMember(playerID.Trimmed())) return Refuse("Player already in list");
  data_->members.AddNew();
  data_->members.Set("TeamID", data_->teamID);
  data_->members.Set("PlayerID", playerID);
  data_->members.Update();
  data_->members.Requery();
  GridEX3_->Rebind();
}

}  // namespace tavrelin
