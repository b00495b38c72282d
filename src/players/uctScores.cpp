#include "players/uctScores.h"

#include <QLabel>

#include "basic/RowCheck.h"
#include "basic/SanctionNumber.h"
#include "controls/Columns.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "controls/TypedSearch.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/CheckPlayerScore.h"
#include "players/PlayerRows.h"
#include "players/Vocabulary.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"
#include "shell/SideBySide.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

/// The clone serves the search for duplicates, which must not move the grid's row.
struct uctScores::Data {
  Connection connection;
  Recordset players, scores, keys;
};

namespace {

constexpr int SearchPause = 1500;  // milliseconds

QList<GridColumn> PlayerColumns() {
  return {HiddenColumn(u"PlayerID"_s), HiddenColumn(u"Category"_s),
          TextColumn(u"First"_s, u"FirstName"_s, 950).Placed(4).Filling().Spoken(u"First name"_s),
          TextColumn(u"Last"_s, u"LastName"_s, 1100).Placed(3).Filling().Spoken(u"Last name"_s)};
}

GridColumn OfferedSanctionColumn() {
  GridColumn column = SanctionColumn(1200);
  column.editor = CellEditor::Combo;
  return column;
}

QList<GridColumn> ScoreColumns() {
  return {
      NamesColumn(u"Name"_s, u"PlayerID"_s, 1350).Filling(),
      ListColumn(u"Cat"_s, u"Category"_s, 950, Divisions()).Spoken(u"Division"_s),
      OfferedSanctionColumn(),
      NumberColumn(u"Shs"_s, u"Shoes"_s, 600).Spoken(u"Shoes"_s),
      NumberColumn(u"Rgrs"_s, u"Ringers"_s, 600).Spoken(u"Ringers"_s),
      PercentColumn(u"%"_s, u"Pct"_s, 680).Spoken(u"Ringer percent"_s).Skipped(),
      NumberColumn(u"W"_s, u"Wins"_s, 530).Pictured(u"0.0"_s).Defaulted(0).Spoken(u"Wins"_s),
      NumberColumn(u"L"_s, u"Losses"_s, 530).Pictured(u"0.0"_s).Defaulted(0).Spoken(u"Losses"_s),
      NumberColumn(u"Pl"_s, u"Place"_s, 480).Pictured(u"0"_s).Defaulted(0).Spoken(u"Place"_s),
      PercentColumn(u"HiGm"_s, u"HiGame"_s, 680).Defaulted(0).Spoken(u"High game"_s),
  };
}

}  // namespace

uctScores::uctScores(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctScores", "Player Stats", surroundings, parent),
      GridEX1_(new GridEX("GridEX1", "Players", Guard(), this)),
      GridEX2_(new GridEX("GridEX2", "Tournament Scores", Guard(), this)),
      Label2_(NewHeading("Label2", "Tournament Scores", GridEX2_, this)),
      search_(new TypedSearch(*GridEX1_, SearchPause, [](const QString& typed) {
        return TypedSearch::ByStart("LastName", typed);
      })) {
  UserControl_Initialize();
  ConnectEvents();
  LayOut();
}

uctScores::~uctScores() = default;

void uctScores::UserControl_Initialize() {
  GridEX1_->SetColumns(PlayerColumns());
  GridEX1_->SetAllowEdit(false);
  GridEX1_->SetRowMode(true);
  GridEX1_->SetEmptyText("No players on the roster yet. Add them under Players / Profile.");
  GridEX2_->SetColumns(ScoreColumns());
  GridEX2_->SetRowName("{PlayerID} {SanctionID}");
  GridEX2_->SetAllowAddNew(true);
  GridEX2_->SetAllowDelete(true);
}

void uctScores::ConnectEvents() {
  GridEX1_->on.KeyDown = [this](GridKeyDown& event) { GridEX1_KeyDown(event); };
  GridEX1_->on.DblClick = [this] { PlayerSelected(); };
  GridEX1_->on.ColumnHeaderClick = [this](const QString& column) {
    GridEX1_ColumnHeaderClick(column);
  };
  GridEX2_->on.KeyDown = [this](GridKeyDown& event) { GridEX2_KeyDown(event); };
  GridEX2_->on.ColumnHeaderClick = [this](const QString& column) {
    GridEX2_ColumnHeaderClick(column);
  };
  GridEX2_->on.RowColChange = [this](int row, int col) { GridEX2_RowColChange(row, col); };
  GridEX2_->on.AfterColEdit = [this](GridColEdit& event) { GridEX2_AfterColEdit(event); };
  GridEX2_->on.BeforeUpdate = [this](GridUpdate& update) { GridEX2_BeforeUpdate(update); };
  GridEX2_->on.BeforeDelete = [this](GridDelete& event) { GridEX2_BeforeDelete(event); };
}

void uctScores::LayOut() {
  LayOutSideBySide(
      this, NewTitle("lblTitle", Title(), this),
      {{NewHeading("Label1", "Players", GridEX1_, this), GridEX1_, 3}, {Label2_, GridEX2_, 9}},
      stsInfo());
}

void uctScores::UserControl_Show() {
  data_ = std::make_unique<Data>();
  data_->connection.Open(ConnectString);
  Label2_->setText("Tournament Scores");
  GridEX2_->SetEmptyText("Press Enter on a player, or double-click one, to see the tournaments.");
  LoadPlayers();
  LoadSanctions();
  GridEX1_->setFocus();
}

void uctScores::LoadPlayers() {
  data_->players = PlayersByLastName(data_->connection);
  GridEX1_->SetRecordset(&data_->players);
}

void uctScores::LoadSanctions() {
  GridEX2_->SetValueList("SanctionID", SanctionChoices(data_->connection));
}

void uctScores::UserControl_Hide() {
  search_->Clear();
  for (GridEX* grid : {GridEX1_, GridEX2_}) grid->SetRecordset(nullptr);
  for (const char* list : {"PlayerID", "SanctionID"}) GridEX2_->ClearValueList(list);
  data_.reset();
}

// All rows are the player's own: one name is all that the grid needs. A new row starts in the
// present division, so that it needs only the tournament and the figures.
void uctScores::PlayerSelected() {
  if (GridEX1_->Row() < 1 || !GridEX2_->CommitRow()) return;
  const Value playerID = GridEX1_->Value("PlayerID");
  GridEX2_->SetRecordset(nullptr);
  data_->scores = OpenHistory(data_->connection, playerID);
  data_->keys = data_->scores.Clone();
  const QString name =
      GridEX1_->Value("LastName").ToText() + u' ' + GridEX1_->Value("FirstName").ToText();
  GridEX2_->SetValueList("PlayerID", {{playerID, name}});
  GridEX2_->SetDefault("PlayerID", playerID);
  GridEX2_->SetDefault("Category", GridEX1_->Value("Category"));
  GridEX2_->SetEmptyText("No tournaments yet. Type the first one in the top row.");
  GridEX2_->SetRecordset(&data_->scores);
  Label2_->setText("Tournament Scores: " + name);
}

void uctScores::GridEX1_KeyDown(GridKeyDown& event) {
  if (event.key == Qt::Key_Return || event.key == Qt::Key_Enter) {
    event.swallow = true;
    PlayerSelected();
  } else {
    search_->KeyDown(event);
  }
}

void uctScores::GridEX1_ColumnHeaderClick(const QString& column) {
  search_->Clear();
  GridEX1_->SetSortKeys({{column, GridEX1_->NextOrder(column)}});
}

void uctScores::GridEX2_KeyDown(GridKeyDown& event) {
  if (event.key == Qt::Key_Insert) {
    event.swallow = true;
    if (GridEX2_->MoveToNewRow()) GridEX2_->SetCol("SanctionID");
  } else if (event.key == Qt::Key_Escape) {
    event.swallow = true;
    GridEX1_->setFocus();
  }
}

// The percent is the query's own figure: rows typed since are read again before they are sorted.
void uctScores::GridEX2_ColumnHeaderClick(const QString& column) {
  if (data_->scores.IsOpen()) data_->scores.Requery();
  GridEX2_->SetSortKeys({{column, GridEX2_->NextOrder(column)}});
}

// A new row begins with its tournament, also the one that follows on a row just saved.
void uctScores::GridEX2_RowColChange(int lastRow, int lastCol) {
  if (!GridEX2_->IsNewRow()) return;
  FillInPlayer();
  const bool arrived = lastRow != -1 && GridEX2_->Col() < 1;
  const bool fresh = lastRow == -1 && lastCol == GridEX2_->Col();
  if (arrived || fresh) GridEX2_->SetCol("SanctionID");
}

// What was emptied on a new row is the chosen player's again.
void uctScores::FillInPlayer() {
  for (const char* column : {"PlayerID", "Category"}) {
    if (!GridEX2_->Value(column).Trimmed().isEmpty()) continue;
    GridEX2_->SetValue(column, GridEX2_->Default(column));
  }
}

void uctScores::GridEX2_AfterColEdit(GridColEdit& event) {
  if (event.column == "SanctionID") {
    const QString typed = GridEX2_->Value("SanctionID").ToText();
    GridEX2_->SetValue("SanctionID", CleanSanction(typed).remove(u' '));
  } else if (event.column == "Shoes" || event.column == "Ringers") {
    GridEX2_->SetValue("Pct", RingerPercent(GridEX2_->Value("Ringers"), GridEX2_->Value("Shoes")));
  }
}

void uctScores::GridEX2_BeforeUpdate(GridUpdate& update) {
  if (update.newRow) FillInPlayer();
  Settle(CheckPlayerScore(CurrentRow(*GridEX2_), update.newRow, data_->keys), *GridEX2_, update);
}

void uctScores::GridEX2_BeforeDelete(GridDelete& event) {
  event.cancel = !around().person.Confirm("Confirm Deletion", "Delete selected tournament score?");
}

}  // namespace tavrelin
