#include "players/uctTeam.h"

#include <QLabel>

#include "controls/Columns.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "controls/TypedSearch.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/PlayerList.h"
#include "players/PlayerNames.h"
#include "players/PlayerRows.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"
#include "shell/SideBySide.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

struct uctTeam::Data {
  Connection connection;
  Recordset teams, pool, members;
  ValueList names;  ///< of all players, by their numbers
  Value teamID;     ///< of the chosen team; null before the first choice
};

namespace {

constexpr int SearchPause = 1000;  // milliseconds

QList<GridColumn> TeamColumns() {
  return {TextColumn(u"TeamID"_s, u"TeamID"_s, 0).Skipped(),
          TextColumn(u"Team"_s, u"Team"_s, 2700, 50).Filling()};
}

QList<GridColumn> PoolColumns() {
  return {HiddenColumn(u"PlayerID"_s), TextColumn(u"Name"_s, u"PlayerName"_s, 2000).Filling(),
          TextColumn(u"City"_s, u"City"_s, 1300),
          TextColumn(u"St"_s, u"State"_s, 500).Spoken(u"State"_s)};
}

QList<GridColumn> MemberColumns() {
  GridColumn names = NamesColumn(u"Team Player"_s, u"PlayerID"_s, 2700).SortedBy(SortKind::Text);
  names.fetchData = true;
  return {TextColumn(u"TeamID"_s, u"TeamID"_s, 0).Skipped(), names.Filling()};
}

bool IsEnter(const GridKeyDown& event) {
  return event.key == Qt::Key_Return || event.key == Qt::Key_Enter;
}

}  // namespace

uctTeam::uctTeam(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctTeam", " Setup Teams", surroundings, parent),
      GridEX1_(new GridEX("GridEX1", "Teams", Guard(), this)),
      GridEX2_(new GridEX("GridEX2", "Player List", Guard(), this)),
      GridEX3_(new GridEX("GridEX3", "Team Players", Guard(), this)),
      Label3_(NewHeading("Label3", "Team Players", GridEX3_, this)) {
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
  GridEX1_->on.KeyDown = [this, search](GridKeyDown& event) { GridEX1_KeyDown(event, *search); };
  GridEX1_->on.DblClick = [this] { ListSelected(); };
  GridEX1_->on.BeforeUpdate = [this](GridUpdate& update) { GridEX1_BeforeUpdate(update); };
  GridEX1_->on.AfterUpdate = [this] { GridEX1_AfterUpdate(); };
  GridEX1_->on.BeforeDelete = [this](GridDelete& event) { GridEX1_BeforeDelete(event); };
}

void uctTeam::BuildPool() {
  GridEX2_->SetColumns(PoolColumns());
  GridEX2_->SetAllowEdit(false);
  GridEX2_->SetRowMode(true);
  GridEX2_->SetEmptyText("No players on the roster yet. Add them under Players / Profile.");
  TypedSearch* search = SearchOf(*GridEX2_, "PlayerName");
  GridEX2_->on.KeyDown = [this, search](GridKeyDown& event) { GridEX2_KeyDown(event, *search); };
  GridEX2_->on.DblClick = [this] { PlayerSelected(); };
}

void uctTeam::BuildMembers() {
  GridEX3_->SetColumns(MemberColumns());
  GridEX3_->SetAllowEdit(false);
  GridEX3_->SetAllowDelete(true);
  GridEX3_->SetRowMode(true);
  TypedSearch* search = SearchOf(*GridEX3_, "PlayerID");
  GridEX3_->on.KeyDown = [this, search](GridKeyDown& event) { GridEX3_KeyDown(event, *search); };
  GridEX3_->on.FetchData = [this](GridFetchData& event) { GridEX3_FetchData(event); };
}

void uctTeam::LayOut() {
  LayOutSideBySide(this, NewTitle("lblTitle", Title(), this),
                   {{NewHeading("Label2", "Teams", GridEX1_, this), GridEX1_, 3},
                    {NewHeading("Label1", "Player List", GridEX2_, this), GridEX2_, 4},
                    {Label3_, GridEX3_, 3}},
                   stsInfo());
  // A long name of a team must not push the grids about.
  Label3_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void uctTeam::UserControl_Show() {
  data_ = std::make_unique<Data>();
  data_->connection.Open(ConnectString);
  ForgetTeam();
  LoadPool();
  data_->teams = OpenTeams(data_->connection);
  GridEX1_->SetRecordset(&data_->teams);
  GridEX1_->setFocus();
}

void uctTeam::LoadPool() {
  data_->pool = RosterList(data_->connection, {u"City"_s, u"State"_s});
  data_->names = NamesIn(data_->pool, u"PlayerID"_s, u"PlayerName"_s);
  GridEX3_->SetValueList("PlayerID", data_->names);
  GridEX2_->SetRecordset(&data_->pool);
}

void uctTeam::UserControl_Hide() {
  for (TypedSearch* search : searches_) search->Clear();
  for (GridEX* grid : {GridEX1_, GridEX2_, GridEX3_}) grid->SetRecordset(nullptr);
  GridEX3_->ClearValueList("PlayerID");
  data_.reset();
}

// Enter goes on to the players: whoever names a team wants to fill it.
void uctTeam::GridEX1_KeyDown(GridKeyDown& event, TypedSearch& search) {
  if (IsEnter(event) && GridEX1_->Row() > 0) {
    event.swallow = true;
    ListSelected();
    if (!GridEX1_->DataChanged()) GridEX2_->setFocus();
  } else {
    search.KeyDown(event);
  }
}

void uctTeam::GridEX1_BeforeUpdate(GridUpdate& update) {
  Settle(CheckTeam(CurrentRow(*GridEX1_)), *GridEX1_, update);
}

// The rows are read again, so that the number the file gave is known and the team takes its place.
void uctTeam::GridEX1_AfterUpdate() {
  const bool chosen = !data_->teamID.IsNull() && GridEX1_->Value("TeamID") == data_->teamID;
  if (chosen) NameTeam(GridEX1_->Value("Team").ToText());
  data_->teams.Requery();
  GridEX1_->Rebind();
}

void uctTeam::GridEX1_BeforeDelete(GridDelete& event) {
  event.cancel = !around().person.Confirm(
      "Confirm Deletion",
      "Deleting teams is not recommended.  It may result in invalid \r\nleague scores and "
      "tournament results.  Continue? ");
  if (!event.cancel && GridEX1_->Value("TeamID") == data_->teamID) ForgetTeam();
}

void uctTeam::GridEX2_KeyDown(GridKeyDown& event, TypedSearch& search) {
  if (IsEnter(event)) {
    event.swallow = true;
    PlayerSelected();
  } else if (event.key == Qt::Key_Escape) {
    event.swallow = true;
    GridEX1_->setFocus();
  } else {
    search.KeyDown(event);
  }
}

void uctTeam::GridEX3_KeyDown(GridKeyDown& event, TypedSearch& search) {
  if (event.key == Qt::Key_Escape) {
    event.swallow = true;
    GridEX1_->setFocus();
  } else {
    search.KeyDown(event);
  }
}

void uctTeam::GridEX3_FetchData(GridFetchData& event) {
  if (data_->names.IndexOf(event.value) < 0) event.text = NotOnFile(event.text);
}

void uctTeam::ListSelected() {
  if (GridEX1_->Row() < 1 || !GridEX1_->CommitRow()) return;
  ForgetTeam();
  const Value teamID = GridEX1_->Value("TeamID");
  data_->members = OpenTeamPlayers(data_->connection, teamID);
  data_->teamID = teamID;
  GridEX3_->SetEmptyText(
      "Nobody plays on this team yet. Press Enter in the player list to add a player.");
  GridEX3_->SetRecordset(&data_->members);
  NameTeam(GridEX1_->Value("Team").ToText());
}

void uctTeam::PlayerSelected() {
  if (GridEX2_->Row() < 1) return;
  if (data_->teamID.IsNull()) return Refuse("Choose a team first: press Enter on it.");
  const Refusal refusal =
      AddToPlayerList(data_->members, "TeamID", data_->teamID, GridEX2_->Value("PlayerID"));
  if (refusal) return Refuse(refusal.sentence);
  const auto added = data_->members.CurrentBookmark();
  GridEX3_->Rebind();
  GridEX3_->MoveToBookmark(added);
}

void uctTeam::ForgetTeam() {
  GridEX3_->SetRecordset(nullptr);
  GridEX3_->SetEmptyText("Press Enter on a team, or double-click it, to see its players.");
  data_->members.Close();
  data_->teamID = {};
  NameTeam({});
}

void uctTeam::NameTeam(const QString& team) {
  const QString heading =
      team.isEmpty() ? QString("Team Players") : "Team Players: " + team.simplified();
  Label3_->setText(Label3_->fontMetrics().elidedText(heading, Qt::ElideRight, GridEX3_->width()));
  Label3_->setToolTip(team);
}

}  // namespace tavrelin
