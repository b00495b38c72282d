#include "players/uctProfile.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "basic/Conversions.h"
#include "basic/RowCheck.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "controls/LineIcon.h"
#include "controls/TypedSearch.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/CheckPlayer.h"
#include "players/clsUtility.h"
#include "players/PlayerRows.h"
#include "players/PlayerTexts.h"
#include "players/ProfileColumns.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"

namespace tavrelin {

/// The clone serves the search for duplicates, which must not move the grid's row.
struct uctProfile::Data {
  Connection connection;
  Recordset players, keys;
};

namespace {

constexpr int FirstNameColumn = 2;
constexpr int SearchPause = 1500;  // milliseconds

bool IsTelephone(const QString& column) {
  return column == "Telephone" || column == "CellPhone";
}

bool IsFigure(const QString& field) {
  static const QStringList figures = {"Longevity", "Average", "BirthDate"};
  return figures.contains(field, Qt::CaseInsensitive);
}

// December 31, 9999, the last day of the calendar: no date or number of a club lies behind it.
constexpr double LastDay = 2958465;

TypedSearch::Criteria CriteriaOf(const QString& field, const QString& typed) {
  if (!IsFigure(field)) return TypedSearch::ByStart(field, typed, {});
  if (!IsNumeric(typed) || Val(typed) > LastDay) return {};
  return TypedSearch::ByNumber(field, typed);
}

}  // namespace

uctProfile::uctProfile(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctProfile", "Player Profile", surroundings, parent),
      Check1_(new QCheckBox("Group by Box Visible", this)),
      cmdView_(new QPushButton(this)),
      grdProfile_(new GridEX("grdProfile", "Players", Guard(), this)),
      search_(new TypedSearch(*grdProfile_, SearchPause, [this](const QString& typed) {
        return CriteriaOf(sortColumn_, typed);
      })) {
  Check1_->setObjectName("Check1");
  cmdView_->setObjectName("cmdView");
  ConnectEvents();
  UserControl_Initialize();
  LayOut();
}

uctProfile::~uctProfile() = default;

void uctProfile::UserControl_Initialize() {
  grdProfile_->SetColumns(ProfileColumns());
  grdProfile_->SetRowName("{FirstName} {LastName}");
  grdProfile_->SetAllowAddNew(true);
  grdProfile_->SetAllowDelete(true);
  grdProfile_->SetRecordCounter(true);
  grdProfile_->SetRecordCaption("records");
  grdProfile_->SetGroupByBoxVisible(false);
  grdProfile_->SetEmptyText("No players yet. Type the first one in the top row.");
  clsUtility::LoadStateValueList(*grdProfile_, "State");
  NameView();
}

void uctProfile::ConnectEvents() {
  connect(cmdView_, &QPushButton::clicked, this,
          [this] { Event("cmdView_Click", [this] { cmdView_Click(); }); });
  connect(Check1_, &QCheckBox::toggled, this,
          [this] { Event("Check1_Click", [this] { Check1_Click(); }); });
  GridEvents& on = grdProfile_->on;
  on.KeyDown = [this](GridKeyDown& event) { grdProfile_KeyDown(event); };
  on.KeyPress = [this](GridKeyPress& event) { grdProfile_KeyPress(event); };
  on.RowColChange = [this](int row, int col) { grdProfile_RowColChange(row, col); };
  on.BeforeColEdit = [this](GridColEdit& event) { grdProfile_BeforeColEdit(event); };
  on.AfterColEdit = [this](GridColEdit& event) { grdProfile_AfterColEdit(event); };
  on.BeforeUpdate = [this](GridUpdate& update) { grdProfile_BeforeUpdate(update); };
  on.AfterUpdate = [this] { grdProfile_AfterUpdate(); };
  on.BeforeDelete = [this](GridDelete& event) { grdProfile_BeforeDelete(event); };
  on.ColumnHeaderClick = [this](const QString& column) { grdProfile_ColumnHeaderClick(column); };
  on.FetchData = [this](GridFetchData& event) { grdProfile_FetchData(event); };
}

void uctProfile::LayOut() {
  auto* top = new QHBoxLayout;
  top->setSpacing(16);
  top->addWidget(NewTitle("lblTitle", "Player Profile", this), 1);
  top->addWidget(Check1_);
  top->addWidget(cmdView_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addLayout(top);
  column->addWidget(grdProfile_, 1);
  column->addWidget(stsInfo());
}

void uctProfile::UserControl_Show() {
  data_ = std::make_unique<Data>();
  data_->connection.Open(ConnectString);
  data_->players = OpenRoster(data_->connection);
  data_->keys = data_->players.Clone();
  grdProfile_->SetRecordset(&data_->players);
  SortBy("LastName", true);
  grdProfile_->MoveToNewRow();
  grdProfile_->SetCol(FirstNameColumn);
  grdProfile_->setFocus();
}

void uctProfile::UserControl_Hide() {
  grdProfile_->MoveToNewRow();
  search_->Clear();
  grdProfile_->SetRecordset(nullptr);
  data_.reset();
}

void uctProfile::cmdView_Click() {
  const bool table = grdProfile_->CurrentView() == GridEX::View::Table;
  grdProfile_->SetView(table ? GridEX::View::Card : GridEX::View::Table);
  NameView();
}

// The button says where it leads.
void uctProfile::NameView() {
  const bool table = grdProfile_->CurrentView() == GridEX::View::Table;
  cmdView_->setText(table ? "Cards" : "Table");
  cmdView_->setIcon(LineIcon(table ? "view-cards" : "view-table"));
  cmdView_->setAccessibleName(table ? "Show the players as cards" : "Show the players as a table");
  cmdView_->setToolTip(cmdView_->accessibleName());
}

void uctProfile::Check1_Click() {
  grdProfile_->SetGroupByBoxVisible(Check1_->isChecked());
  if (!Check1_->isChecked()) grdProfile_->ClearGroups();
}

void uctProfile::grdProfile_KeyDown(GridKeyDown& event) {
  if (event.key == Qt::Key_Insert) {
    event.swallow = true;
    grdProfile_->MoveToNewRow();
  } else if (event.key == Qt::Key_Return || event.key == Qt::Key_Enter) {
    if (grdProfile_->IsNewRow()) grdProfile_->SetCol(FirstNameColumn);
  } else if (event.key == Qt::Key_Left && grdProfile_->Col() == FirstNameColumn) {
    event.swallow = true;
    grdProfile_->ClearCol();
  } else {
    search_->KeyDown(event);
  }
}

void uctProfile::grdProfile_KeyPress(GridKeyPress& event) {
  if (event.column != "ZipCode" || event.character == u'\b') return;
  event.character = ZipCodeCharacter(event.character);
  if (event.character.isNull()) {
    Refuse("Punctuation characters not allowed.  They are automatically provided");
  }
}

void uctProfile::grdProfile_RowColChange(int lastRow, int lastCol) {
  Q_UNUSED(lastCol);
  if (lastRow > 0) grdProfile_->Refetch(lastRow);
  const bool arrived = grdProfile_->IsNewRow() && (lastRow != -1 || added_);
  const bool left = !grdProfile_->IsNewRow() && lastRow == -1;
  added_ = false;
  if (arrived) grdProfile_->SetCol(FirstNameColumn);
  if (left) grdProfile_->ClearCol();
}

void uctProfile::grdProfile_BeforeColEdit(GridColEdit& event) {
  if (event.column == "ZipCode") Retype(event.column, Typed(event.column).remove(u'-'));
}

void uctProfile::grdProfile_AfterColEdit(GridColEdit& event) {
  if (IsTelephone(event.column)) Retype(event.column, StoredTelephone(Typed(event.column)));
  if (event.column == "ZipCode") Retype(event.column, StoredZipCode(Typed(event.column)));
}

QString uctProfile::Typed(const QString& column) const {
  return grdProfile_->Value(column).ToText();
}

// A cell that was empty and stays so is no change of the row.
void uctProfile::Retype(const QString& column, const QString& text) {
  if (text != Typed(column)) grdProfile_->SetValue(column, text);
}

void uctProfile::grdProfile_BeforeUpdate(GridUpdate& update) {
  const RowValues row = CurrentRow(*grdProfile_);
  RowCheck check = CheckPlayer(row, update.newRow, data_->keys);
  if (check.verdict == RowCheck::Verdict::Ask) {
    around().person.Beep();
    check = CheckPlayer(row, update.newRow, data_->keys, Ask(check));
  }
  Settle(check, *grdProfile_, update);
}

void uctProfile::grdProfile_AfterUpdate() {
  search_->Clear();
  if (!grdProfile_->IsNewRow()) return;
  added_ = true;
  grdProfile_->Rebind();
}

void uctProfile::grdProfile_BeforeDelete(GridDelete& event) {
  event.cancel = !around().person.Confirm("Confirm Deletion", "Delete selected player?");
}

void uctProfile::grdProfile_ColumnHeaderClick(const QString& column) {
  SortBy(column, grdProfile_->NextOrder(column) == SortOrder::Ascending);
}

void uctProfile::SortBy(const QString& field, bool ascending) {
  grdProfile_->ClearSortKeys();
  grdProfile_->AddSortKey(field, ascending ? SortOrder::Ascending : SortOrder::Descending);
  search_->Clear();
  sortColumn_ = field;
}

void uctProfile::grdProfile_FetchData(GridFetchData& event) {
  event.text = ShownZipCode(event.value);
}

}  // namespace tavrelin
