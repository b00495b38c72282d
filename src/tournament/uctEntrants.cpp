#include "tournament/uctEntrants.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "basic/Picture.h"
#include "controls/Columns.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "data/Connection.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"
#include "tournament/Entries.h"
#include "tournament/EntrySide.h"
#include "tournament/TournamentBox.h"
#include "tournament/Tournaments.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

EntrySideKind SinglesKind() {
  EntrySideKind kind;
  kind.listName = "GridEX1";
  kind.listLabel = "Label2";
  kind.listCaption = "Player List";
  kind.entriesName = "GridEX2";
  kind.entriesLabel = "Label3";
  kind.entriesCaption = "Players Entered";
  kind.listColumns = {
      HiddenColumn(u"PlayerID"_s),
      HiddenColumn(u"Category"_s),
      TextColumn(u"Name"_s, u"PlayerName"_s, 1400).Filling(),
      TextColumn(u"Card"_s, u"CardNumber"_s, 700).SortedBy(SortKind::Numeric),
      TextColumn(u"St"_s, u"State"_s, 450),
      TextColumn(u"Year"_s, u"CardYear"_s, 550),
  };
  kind.entryColumns = {
      HiddenColumn(u"SanctionID"_s),
      NamesColumn(u"Name"_s, u"PlayerID"_s, 1500).Filling(),
      NamesColumn(u"Cat"_s, u"PlayerID"_s, 900).Keyed(u"Category"_s),
      NumberColumn(u"Paid"_s, u"Paid"_s, 650).Pictured(u"##0.00"_s),
      NumberColumn(u"Seed"_s, u"Seed"_s, 550),
      PercentColumn(u"%"_s, u"RingerPercent"_s, 650).Pictured(u"##0.00"_s),
      ListColumn(u"Class"_s, u"ClassID"_s, 750),
      NumberColumn(u"Shoes"_s, u"TotalShoes"_s, 550).Keyed(u"Shoes"_s),
      NumberColumn(u"Rgrs"_s, u"TotalRingers"_s, 550).Keyed(u"Ringers"_s),
      HiddenColumn(u"RankOverride"_s).Defaulted(0),
  };
  kind.searchField = "LastName";
  kind.listEmptyText = "No players on the roster yet. Add them under Players / Profile.";
  kind.entriesEmptyText = "Choose a tournament, then press Enter on a player to enter that player.";
  return kind;
}

EntrySideKind DoublesKind() {
  EntrySideKind kind;
  kind.kind = EntryKind::Teams;
  kind.listName = "GridEX3";
  kind.listLabel = "Label5";
  kind.listCaption = "Team List";
  kind.entriesName = "GridEX4";
  kind.entriesLabel = "Label4";
  kind.entriesCaption = "Teams Entered";
  kind.listColumns = {
      TextColumn(u"TeamID"_s, u"TeamID"_s, 900).Skipped().SortedBy(SortKind::Numeric),
      TextColumn(u"Team"_s, u"Team"_s, 2000).Filling(),
  };
  kind.entryColumns = {
      HiddenColumn(u"SanctionID"_s),
      NamesColumn(u"Team"_s, u"TeamID"_s, 3000).Filling(),
      NumberColumn(u"Paid"_s, u"Paid"_s, 650).Pictured(u"##0.00"_s),
      NumberColumn(u"Seed"_s, u"Seed"_s, 550),
      PercentColumn(u"%"_s, u"RingerPercent"_s, 650).Pictured(u"##0.00"_s),
      ListColumn(u"Class"_s, u"ClassID"_s, 1600),
  };
  kind.searchField = "Team";
  kind.listEmptyText = "No teams yet. Add them under Players / Teams.";
  kind.entriesEmptyText = "Choose a tournament, then press Enter on a team to enter it.";
  return kind;
}

}  // namespace

uctEntrants::uctEntrants(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctEntrants", " Tournament Entries", surroundings, parent),
      cboTournaments_(new TournamentBox(this)),
      cmdSetAverage_(new QPushButton("Update % from Profile", this)),
      SSTab1_(new QTabWidget(this)),
      singles_(new EntrySide(SinglesKind(), Guard(), this)),
      doubles_(new EntrySide(DoublesKind(), Guard(), this)) {
  cmdSetAverage_->setObjectName("cmdSetAverage");
  SSTab1_->setObjectName("SSTab1");
  SSTab1_->addTab(singles_, "Singles");
  SSTab1_->addTab(doubles_, "Doubles");
  WireUp();
  LayOut();
}

uctEntrants::~uctEntrants() = default;

void uctEntrants::WireUp() {
  connect(cboTournaments_, &TournamentBox::Chosen, this,
          [this] { Event("cboTournaments_LostFocus", [this] { cboTournaments_LostFocus(); }); });
  connect(cboTournaments_, &TournamentBox::ChosenAgain, this,
          [this] { Event("cboTournaments_LostFocus", [this] { cboTournaments_LostFocus(); }); });
  connect(cmdSetAverage_, &QPushButton::clicked, this,
          [this] { Event("cmdSetAverage_Click", [this] { cmdSetAverage_Click(); }); });
  connect(SSTab1_, &QTabWidget::currentChanged, this,
          [this] { Event("SSTab1_Click", [this] { SSTab1_Click(); }); });
  singles_->Selected = [this] { PlayerSelected(); };
  doubles_->Selected = [this] { TeamSelected(); };
  singles_->entries().on.BeforeUpdate = [this](GridUpdate& event) { GridEX2_BeforeUpdate(event); };
  doubles_->entries().on.BeforeUpdate = [this](GridUpdate& event) { GridEX4_BeforeUpdate(event); };
  for (EntrySide* side : {singles_, doubles_}) {
    side->entries().on.BeforeDelete = [this](GridDelete& event) {
      event.cancel = !around().person.Confirm("Confirm Deletion", "Delete selected entry?");
    };
  }
}

void uctEntrants::LayOut() {
  auto* top = new QHBoxLayout;
  top->setSpacing(8);
  top->addWidget(NewHeading("lblTournament", "Tournament", cboTournaments_, this));
  top->addWidget(cboTournaments_, 1);
  cmdSetAverage_->setMinimumWidth(cmdSetAverage_->sizeHint().width() + 24);
  top->addWidget(cmdSetAverage_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(NewTitle("lblTitle", " Tournament Entries", this));
  column->addLayout(top);
  column->addWidget(SSTab1_, 1);
  column->addWidget(stsInfo());
}

EntrySide& uctEntrants::OpenSide() {
  return SSTab1_->currentWidget() == doubles_ ? *doubles_ : *singles_;
}

void uctEntrants::UserControl_Show() {
  connection_ = std::make_unique<Connection>();
  connection_->Open(ConnectString);
  singles_->ShowList(*connection_);
  doubles_->ShowList(*connection_);
  cboTournaments_->Offer(AllTournaments(*connection_),
                         around().store.Get(stored::RecentTournament));
  cboTournaments_LostFocus();
  if (sanctionID_.isEmpty()) cboTournaments_->setFocus();
}

void uctEntrants::UserControl_Hide() {
  singles_->Release();
  doubles_->Release();
  connection_.reset();
  around().store.Save(stored::RecentTournament, cboTournaments_->currentText().trimmed());
}

// What is typed in both tabs goes into the file; one that is refused comes to the front.
bool uctEntrants::CommitEntries() {
  for (EntrySide* side : {singles_, doubles_}) {
    if (side->entries().CommitRow()) continue;
    SSTab1_->setCurrentWidget(side);
    side->entries().setFocus();
    return false;
  }
  return true;
}

void uctEntrants::cboTournaments_LostFocus() {
  if (!CommitEntries()) return cboTournaments_->GoBack();
  sanctionID_ = cboTournaments_->SanctionID();
  const std::optional<Tournament> found = FindTournament(*connection_, sanctionID_);
  onFile_ = found.has_value();
  if (found) sanctionID_ = found->sanctionID;
  tournamentDate_ = found ? found->date : around().clock.Now();
  const bool chosen = !sanctionID_.isEmpty();
  for (EntrySide* side : {singles_, doubles_}) {
    side->SetEntriesEnabled(chosen);
    if (!chosen) continue;
    side->ShowEntries(*connection_, sanctionID_);
    side->OfferClasses(*connection_, sanctionID_);
  }
  if (chosen) OpenSide().list().setFocus();
}

void uctEntrants::SSTab1_Click() {
  OpenSide().list().setFocus();
}

// Entries under a number that no tournament has would be seen by nobody.
bool uctEntrants::MayEnter() {
  if (!CommitEntries()) return false;
  if (!onFile_)
    Refuse("Tournament " + FormatSanction(sanctionID_) +
           " is not on file. Add it under Tournaments / Setup.");
  return onFile_;
}

void uctEntrants::PlayerSelected() {
  if (!MayEnter()) return;
  const GridEX& list = singles_->list();
  const QString playerID = list.Value("PlayerID").Trimmed();
  const QString category = list.Value("Category").Trimmed();
  const RowCheck check = CheckSecondEntry(singles_->EntryKeys(), playerID);
  if (!check.message.isEmpty()) Refuse(check.message);
  if (check.verdict == RowCheck::Verdict::Cancel) return;
  if (check.verdict == RowCheck::Verdict::Ask && !Ask(check)) return;
  stsInfo()->ClearMessage();
  EnterPlayer(*connection_, sanctionID_, playerID, category, around().clock.Today());
  singles_->ShowEntries(*connection_, sanctionID_);
  singles_->GoToPayment(playerID);
}

void uctEntrants::TeamSelected() {
  if (!MayEnter()) return;
  const QString team = doubles_->list().Value("TeamID").Trimmed();
  const QDate today = around().clock.Today();
  const Refusal refusal = EnterTeam(*connection_, sanctionID_, team.toInt(), today);
  if (refusal) return Refuse(refusal.sentence);
  doubles_->ShowEntries(*connection_, sanctionID_);
  doubles_->GoToPayment(team);
}

void uctEntrants::cmdSetAverage_Click() {
  if (sanctionID_.isEmpty()) return Refuse("Choose a tournament first");
  if (IsPast(tournamentDate_, around().clock.Today())) {
    around().person.Beep();
    if (!around().person.Confirm("Confirm update", "Tournament occurs in the past.  Continue?"))
      return;
  }
  if (!CommitEntries()) return;
  UpdatePlayerAverages(*connection_, sanctionID_);
  // Shoes and ringers stand empty until the tournament is chosen once more.
  singles_->ShowEntries(*connection_, sanctionID_, EntryFields::WithoutShoes);
  const Refusal refusal = UpdateTeamAverages(*connection_, sanctionID_);
  doubles_->ShowEntries(*connection_, sanctionID_);
  if (refusal) return Refuse(refusal.sentence);
  Say("Choose the tournament again to see and type shoes and ringers.");
}

void uctEntrants::GridEX2_BeforeUpdate(GridUpdate& event) {
  GridEX& grid = singles_->entries();
  RowCheck check = CheckEntry(CurrentRow(grid));
  if (check.verdict == RowCheck::Verdict::Save)
    check = CheckClassChange(singles_->EntryKeys(), grid.CurrentBookmark(), CurrentRow(grid));
  Settle(check, grid, event);
}

void uctEntrants::GridEX4_BeforeUpdate(GridUpdate& event) {
  GridEX& grid = doubles_->entries();
  Settle(CheckTeamEntry(CurrentRow(grid)), grid, event);
}

}  // namespace tavrelin
