#include "tournament/uctTournaments.h"

#include <QLabel>
#include <QVBoxLayout>

#include "basic/SanctionNumber.h"
#include "controls/Columns.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/clsUtility.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"
#include "tournament/Classes.h"
#include "tournament/TournamentChecks.h"
#include "tournament/Tournaments.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

/// Each grid has its connection, its rows, and a clone of them for the search for duplicates, which
/// must not move the grid's row.
struct uctTournaments::Data {
  Connection tournamentFile, classFile;
  Recordset tournaments, tournamentKeys, classes, classKeys;
};

namespace {

constexpr const char* ChooseFirst = "Press Enter on a tournament above to see its classes.";
constexpr const char* NoClasses =
    "No classes yet. Type the letter of the first one in the top row.";

// What the next class of a tournament takes over from the one before it.
const QStringList& InheritedColumns() {
  static const QStringList columns = {"DateTime", "RankMethod",    "PlayFormat",
                                      "Shoes",    "PlacesPaidOut", "HandicapPct"};
  return columns;
}

QList<GridColumn> TournamentColumns() {
  return {
      SanctionColumn(1300),
      TextColumn(u"Name"_s, u"Name"_s, 3000, 40).Filling(),
      DateColumn(u"Date"_s, u"Date"_s, 1300),
      TextColumn(u"City"_s, u"City"_s, 1900, 30),
      StateColumn(700),
      TextColumn(u"Director"_s, u"Director"_s, 2300, 40),
  };
}

QList<GridColumn> ClassColumns() {
  return {
      HiddenColumn(u"SanctionID"_s),
      TextColumn(u"Class"_s, u"ClassID"_s, 750, 3).Skipped().UpperCased(),
      TextColumn(u"Name"_s, u"Name"_s, 1700, 30).Filling(),
      NumberColumn(u"Hcp"_s, u"HandicapPct"_s, 600).Spoken(u"Handicap percent"_s),
      DateTimeColumn(u"Date/Time"_s, u"DateTime"_s, 2050),
      NumberColumn(u"ShPG"_s, u"Shoes"_s, 700).Spoken(u"Shoes per game"_s),
      ListColumn(u"TieBreaker"_s, u"RankMethod"_s, 1350,
                 {{"P", "Points"}, {"R", "Rgr Percent"}, {"H", "HeadToHead"}, {"O", "Over Avg"}}),
      ListColumn(u"Format"_s, u"PlayFormat"_s, 1050, {{"S", "Singles"}, {"D", "Doubles"}}),
      CheckColumn(u"Chmp"_s, u"ChampionshipClass"_s, 700).Spoken(u"Championship class"_s),
      NumberColumn(u"NoPA"_s, u"PlacesPaidOut"_s, 700).Spoken(u"Number of players awarded"_s),
      CheckColumn(u"Report"_s, u"Report"_s, 850),
      HiddenColumn(u"RankOverride"_s),
  };
}

// One new row was saved, or thrown away, and another stands in its place.
bool IsFreshNewRow(const GridEX& grid, int lastRow, int lastCol) {
  return lastRow == -1 && grid.IsNewRow() && lastCol == grid.Col();
}

}  // namespace

uctTournaments::uctTournaments(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctTournaments", "Tournaments", surroundings, parent),
      GridEX1_(new GridEX("GridEX1", "Tournaments", Guard(), this)),
      GridEX2_(new GridEX("GridEX2", "Classes", Guard(), this)) {
  BuildTournaments();
  BuildClasses();
  UserControl_Initialize();
  LayOut();
}

uctTournaments::~uctTournaments() = default;

void uctTournaments::UserControl_Initialize() {
  clsUtility::LoadStateValueList(*GridEX1_, "State");
}

void uctTournaments::BuildTournaments() {
  GridEX1_->SetColumns(TournamentColumns());
  GridEX1_->SetRowName("Tournament {SanctionID} {Name}");
  GridEX1_->SetAllowAddNew(true);
  GridEX1_->SetAllowDelete(true);
  GridEX1_->SetEmptyText(
      "No tournaments yet. Type the sanction number of the first one in the top row.");
  GridEX1_->on.KeyDown = [this](GridKeyDown& event) { GridEX1_KeyDown(event); };
  GridEX1_->on.AfterColEdit = [this](GridColEdit& event) {
    if (event.column != "SanctionID") return;
    GridEX1_->SetValue("SanctionID", CleanSanction(GridEX1_->Value("SanctionID").ToText()));
  };
  GridEX1_->on.DblClick = [this] {
    if (!GridEX1_->IsNewRow()) TournamentSelected();
  };
  GridEX1_->on.RowColChange = [this](int row, int col) { GridEX1_RowColChange(row, col); };
  GridEX1_->on.BeforeUpdate = [this](GridUpdate& event) { GridEX1_BeforeUpdate(event); };
  GridEX1_->on.BeforeDelete = [this](GridDelete& event) {
    event.cancel = !around().person.Confirm("Confirm Deletion", "Delete selected tournament?");
  };
}

void uctTournaments::BuildClasses() {
  GridEX2_->SetColumns(ClassColumns());
  GridEX2_->SetRowName("Class {ClassID}");
  GridEX2_->SetAllowAddNew(true);
  GridEX2_->SetAllowDelete(true);
  GridEX2_->SetEmptyText(ChooseFirst);
  GridEX2_->setEnabled(false);
  GridEX2_->on.KeyDown = [this](GridKeyDown& event) { GridEX2_KeyDown(event); };
  GridEX2_->on.RowColChange = [this](int row, int col) { GridEX2_RowColChange(row, col); };
  GridEX2_->on.BeforeUpdate = [this](GridUpdate& event) { GridEX2_BeforeUpdate(event); };
  GridEX2_->on.LostFocus = [this] { GridEX2_LostFocus(); };
  GridEX2_->on.BeforeDelete = [this](GridDelete& event) {
    event.cancel = !around().person.Confirm("Confirm Deletion", "Delete selected class?");
  };
}

void uctTournaments::LayOut() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(NewTitle("lblTitle", "Tournaments", this));
  column->addWidget(NewHeading("Label1", " Tournaments", GridEX1_, this));
  column->addWidget(GridEX1_, 1);
  column->addWidget(NewHeading("Label2", "Optional Class Definitions", GridEX2_, this));
  column->addWidget(GridEX2_, 1);
  column->addWidget(stsInfo());
}

void uctTournaments::UserControl_Show() {
  data_ = std::make_unique<Data>();
  data_->tournamentFile.Open(ConnectString);
  data_->tournaments = OpenTournaments(data_->tournamentFile);
  data_->tournamentKeys = data_->tournaments.Clone();
  GridEX1_->SetRecordset(&data_->tournaments);
  GridEX1_->AddSortKey("Date", SortOrder::Descending);
  GridEX1_->MoveToNewRow();
  GridEX1_->SetCol(1);
  GridEX1_->setFocus();
}

void uctTournaments::UserControl_Hide() {
  GridEX1_->SetRecordset(nullptr);
  GridEX2_->SetRecordset(nullptr);
  GridEX2_->setEnabled(false);
  data_.reset();
}

void uctTournaments::GridEX1_KeyDown(GridKeyDown& event) {
  const bool enter = event.key == Qt::Key_Return || event.key == Qt::Key_Enter;
  if (enter && GridEX1_->Col() != 0 && GridEX1_->Row() > 0) {
    event.swallow = true;
    TournamentSelected();
  } else if (event.key == Qt::Key_Left && GridEX1_->Col() == 1) {
    event.swallow = GridEX1_->ClearCol();
  }
}

void uctTournaments::GridEX1_RowColChange(int lastRow, int lastCol) {
  if (IsFreshNewRow(*GridEX1_, lastRow, lastCol)) {
    GridEX1_->SetCol("SanctionID");
  } else if (lastRow == -1 && GridEX1_->Row() != lastRow) {
    GridEX1_->ClearCol();
  }
}

void uctTournaments::GridEX1_BeforeUpdate(GridUpdate& event) {
  const QString stored = event.newRow ? QString() : data_->tournaments["SanctionID"].Trimmed();
  const RowCheck check =
      CheckTournament(CurrentRow(*GridEX1_), event.newRow, data_->tournamentKeys, stored);
  Settle(check, *GridEX1_, event);
  if (check.verdict != RowCheck::Verdict::Save) return;
  // The other screens offer first the tournament that was worked on last.
  around().store.Save(
      stored::RecentTournament,
      SanctionComboText(GridEX1_->Value("SanctionID").Trimmed(), GridEX1_->Value("Name").ToText()));
}

void uctTournaments::GridEX2_KeyDown(GridKeyDown& event) {
  if (event.key == Qt::Key_Escape) {
    event.swallow = true;
    GridEX1_->setFocus();
    GridEX2_->setEnabled(false);
  } else if (event.key == Qt::Key_Left && GridEX2_->Col() == 2) {
    event.swallow = GridEX2_->ClearCol();
  }
}

// A stored class keeps its letter: games and entries go by it.
void uctTournaments::GridEX2_RowColChange(int lastRow, int lastCol) {
  const bool fresh = IsFreshNewRow(*GridEX2_, lastRow, lastCol);
  if (GridEX2_->Row() == lastRow && !fresh) return;
  if (GridEX2_->IsNewRow()) {
    GridEX2_->SetSelectable("ClassID", true);
    GridEX2_->SetCol("ClassID");
  } else if (lastRow == -1) {
    GridEX2_->SetSelectable("ClassID", false);
    GridEX2_->ClearCol();
  }
}

void uctTournaments::GridEX2_BeforeUpdate(GridUpdate& event) {
  GridEX2_->SetValue("SanctionID", sanctionID_);
  const RowCheck check =
      CheckTournamentClass(CurrentRow(*GridEX2_), event.newRow, data_->classKeys);
  Settle(check, *GridEX2_, event);
  if (check.verdict == RowCheck::Verdict::Save && event.newRow) NextClassStartsFromThisOne();
}

void uctTournaments::GridEX2_LostFocus() {
  GridEX2_->setEnabled(false);
  GridEX2_->SetEmptyText(ChooseFirst);
  GridEX2_->SetRecordset(nullptr);
}

// A class that is refused keeps its row, also from a double click on another tournament.
void uctTournaments::TournamentSelected() {
  if (!GridEX2_->CommitRow() || !GridEX1_->CommitRow()) return;
  sanctionID_ = GridEX1_->Value("SanctionID").Trimmed();
  const QDateTime start = DefaultClassStart(GridEX1_->Value("Date").ToDate());
  BindClasses();
  GridEX2_->setEnabled(true);
  SetClassDefaults(start);
  GridEX2_->MoveToNewRow();
  GridEX2_->setFocus();
}

void uctTournaments::BindClasses() {
  GridEX2_->SetRecordset(nullptr);
  data_->classFile.Close();
  data_->classFile.Open(ConnectString);
  data_->classes = OpenClasses(data_->classFile, sanctionID_);
  data_->classKeys = data_->classes.Clone();
  GridEX2_->SetEmptyText(NoClasses);
  GridEX2_->SetRecordset(&data_->classes);
  GridEX2_->AddSortKey("ClassID", SortOrder::Ascending);
}

void uctTournaments::SetClassDefaults(const QDateTime& start) {
  for (const char* number : {"Shoes", "PlacesPaidOut", "HandicapPct"})
    GridEX2_->SetDefault(number, 0);
  for (const char* code : {"RankMethod", "PlayFormat"}) GridEX2_->SetDefault(code, {});
  GridEX2_->SetDefault("DateTime", start);
}

void uctTournaments::NextClassStartsFromThisOne() {
  for (const QString& column : InheritedColumns())
    GridEX2_->SetDefault(column, GridEX2_->Value(column));
}

}  // namespace tavrelin
