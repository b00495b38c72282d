#include "play/PlayScreen.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "basic/ScoreTexts.h"
#include "controls/Choices.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "play/CardFrame.h"
#include "play/CheckGame.h"
#include "play/CourtBox.h"
#include "play/ExportFrame.h"
#include "play/Pairing.h"
#include "play/PlayColumns.h"
#include "play/PlayFormat.h"
#include "play/PlayScreenData.h"
#include "play/RankOverride.h"
#include "play/ResultsFrame.h"
#include "play/ResultsText.h"
#include "play/ScoreNames.h"
#include "shell/Operator.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"
#include "tournament/TournamentBox.h"
#include "tournament/Tournaments.h"

namespace tavrelin {

PlayScreen::PlayScreen(const QString& name, const QString& title, const PlayFormat& format,
                       const Surroundings& surroundings, QWidget* parent)
    : Screen(name, title, surroundings, parent), format_(format) {
  BuildControls();
  BuildScores();
  BuildStandings();
  WireUp();
  LayOut();
  ShowNothing();
}

PlayScreen::~PlayScreen() = default;

void PlayScreen::BuildScores() {
  GridEX1_->SetColumns(ScoreColumns(format_));
  GridEX1_->SetRowName("Game {Game}");
  GridEX1_->SetIcons(ScoreIcons());
  GridEX1_->SetAllowAddNew(true);
  GridEX1_->SetAllowDelete(true);
  GridEX1_->SetRecordCaption("games");
  GridEX1_->SetEmptyText(
      "Choose a tournament and a class and press Load; then Create Pair makes its games.");
  GridEX1_->on.KeyDown = [this](GridKeyDown& event) { GridEX1_KeyDown(event); };
  GridEX1_->on.RowColChange = [this](int lastRow, int) { GridEX1_RowColChange(lastRow); };
  GridEX1_->on.AfterColEdit = [this](GridColEdit& event) { GridEX1_AfterColEdit(event); };
  GridEX1_->on.BeforeUpdate = [this](GridUpdate& event) { GridEX1_BeforeUpdate(event); };
  GridEX1_->on.FetchIcon = [this](GridFetchIcon& event) { GridEX1_FetchIcon(event); };
  GridEX1_->on.BeforeDelete = [this](GridDelete& event) {
    event.cancel = !around().person.Confirm("Confirm Deletion", "Delete selected pair?");
  };
}

void PlayScreen::BuildStandings() {
  GridEX2_->SetColumns(StandingsColumns(format_));
  GridEX2_->SetEmptyText("Load a class to see its standing.");
  GridEX2_->on.FetchData = [this](GridFetchData& event) { GridEX2_FetchData(event); };
  // The order of the list is the standing itself.
  GridEX2_->on.ColumnHeaderClick = [](const QString&) {};
}

void PlayScreen::WireUp() {
  const auto onClick = [this](QAbstractButton* button, const char* procedure,
                              void (PlayScreen::*handler)()) {
    connect(button, &QAbstractButton::clicked, this,
            [=, this] { Event(procedure, [=, this] { (this->*handler)(); }); });
  };
  onClick(cmdLoad_, "cboLoad_Click", &PlayScreen::cboLoad_Click);
  onClick(optBye_, "optBye_Click", &PlayScreen::optBye_Click);
  onClick(cmdCreatePair_, "cmdCreatePair_Click", &PlayScreen::cmdCreatePair_Click);
  onClick(cmdDeletePair_, "cmdDeletePair_Click", &PlayScreen::cmdDeletePair_Click);
  onClick(chkChecker_, "chkChecker_Click", &PlayScreen::chkChecker_Click);
  onClick(chkForfeit_, "chkForfeit_Click", &PlayScreen::chkForfeit_Click);
  onClick(cmdView_, "cmdView_Click", &PlayScreen::cmdView_Click);
  onClick(chkExport_, "chkExport_Click", &PlayScreen::chkExport_Click);
  onClick(cmdOverride_, "cmdOverride_Click", &PlayScreen::cmdOverride_Click);
  connect(cboTournaments_, &TournamentBox::Chosen, this,
          [this] { Event("cboTournaments_LostFocus", [this] { cboTournaments_LostFocus(); }); });
  connect(Frame2_, &CardFrame::PrintWanted, this,
          [this] { Event("cmdPrintPair_Click", [this] { cmdPrintPair_Click(); }); });
  connect(Frame3_, &ResultsFrame::PrintWanted, this,
          [this] { Event("cmdPrintResults_Click", [this] { cmdPrintResults_Click(); }); });
  connect(Frame3_, &ResultsFrame::PreviewWanted, this,
          [this] { Event("cmdPreviewResults_Click", [this] { cmdPreviewResults_Click(); }); });
  connect(Frame4_, &ExportFrame::ExportWanted, this,
          [this] { Event("cmdExport_Click", [this] { cmdExport_Click(); }); });
  connect(SSTab1_, &QTabWidget::currentChanged, this,
          [this] { Event("SSTab1_Click", [this] { SSTab1_Click(); }); });
}

void PlayScreen::UserControl_Show() {
  RestoreChoices();
  data_ = std::make_unique<Data>();
  data_->connection.Open(ConnectString);
  ReadPaperSettings();
  SSTab1_->setCurrentIndex(0);
  cboTournaments_->Offer(AllTournaments(data_->connection),
                         around().store.Get(stored::RecentTournament));
  cboTournaments_LostFocus();
  (cboClasses_->count() > 0 ? static_cast<QWidget*>(cboClasses_) : cboTournaments_)->setFocus();
}

void PlayScreen::UserControl_Hide() {
  GridEX1_->SetRecordset(nullptr);
  GridEX2_->SetRecordset(nullptr);
  data_.reset();
  ShowNothing();
  StoreChoices();
}

void PlayScreen::RestoreChoices() {
  const Store& store = around().store;
  chkChecker_->setChecked(store.Get(stored::ScoreCheck) == "1");
  chkForfeit_->setChecked(store.Get(stored::Forfeit) == "1");
  chkChecker_Click();
  chkForfeit_Click();
  Frame3_->SetBrief(store.Get(stored::BriefReport) == "1");
  Frame4_->SetPath(store.Get(stored::TournamentPath));
}

void PlayScreen::StoreChoices() {
  Store& store = around().store;
  store.Save(stored::RecentTournament, cboTournaments_->currentText().trimmed());
  store.Save(stored::TournamentPath, Frame4_->Path().trimmed());
  if (format_.IsDoubles()) return;
  store.Save(stored::ScoreCheck, chkChecker_->isChecked() ? "1" : "0");
  store.Save(stored::Forfeit, chkForfeit_->isChecked() ? "1" : "0");
  store.Save(stored::BriefReport, Frame3_->IsBrief() ? "1" : "0");
}

// Choosing a class

void PlayScreen::cboTournaments_LostFocus() {
  if (!DropClass()) return;
  sanctionID_ = cboTournaments_->SanctionID();
  Frame4_->SetFile(ResultsFile(cboTournaments_->currentText()));
  const std::optional<Tournament> tournament = FindTournament(data_->connection, sanctionID_);
  data_->tournamentName = tournament ? tournament->name : QString();
  const QList<ClassRules> classes = ClassesOf(data_->connection, sanctionID_, format_.code);
  Offer(*cboClasses_, ClassChoices(classes, "  "));
}

void PlayScreen::cboLoad_Click() {
  const QString classID = ChosenCode(*cboClasses_);
  if (classID.isEmpty() || !DropClass()) return;
  if (!ReadClass(classID)) return;
  Frame4_->SetFile(ResultsFile(data_->tournamentName + "-" + cboClasses_->currentText()));
  NameEntrants();
  if (data_->loaded.isPaired) {
    ShowPaired();
  } else {
    ShowUnpaired();
  }
  if (SSTab1_->currentIndex() == 1) ShowStandings();
}

bool PlayScreen::DropClass() {
  if (!GridEX1_->CommitRow()) return false;
  GridEX1_->SetRecordset(nullptr);
  GridEX2_->SetRecordset(nullptr);
  data_->loaded = {};
  data_->standings = {};
  ShowNothing();
  return true;
}

bool PlayScreen::ReadClass(const QString& classID) {
  const std::optional<ClassRules> rules = FindClass(data_->connection, sanctionID_, classID);
  if (!rules) return false;
  data_->loaded = LoadClass(data_->connection, *rules);
  if (!data_->loaded.refusal) return true;
  Refuse(data_->loaded.refusal.sentence);
  return false;
}

// The three states of the screen: nothing loaded, a class without games, a class with games

void PlayScreen::ShowNothing() {
  SetPairingEnabled(false);
  cmdDeletePair_->setEnabled(false);
  GridEX1_->setEnabled(false);
  cmdView_->setEnabled(false);
  Frame2_->Clear();
  Frame3_->setEnabled(false);
  Frame4_->setEnabled(false);
  cmdOverride_->setEnabled(false);
  lblOverride_->clear();
}

void PlayScreen::ShowUnpaired() {
  SetPairingEnabled(true);
  courts_->Offer(data_->loaded.courts);
  cboRounds_->setCurrentText("1");
  courts_->TakeFocus();
}

void PlayScreen::ShowPaired() {
  cmdDeletePair_->setEnabled(true);
  cmdView_->setEnabled(true);
  GridEX1_->setEnabled(true);
  Frame2_->Open(data_->loaded.highestGame);
  Frame3_->setEnabled(true);
  Frame4_->setEnabled(true);
  data_->reader.emplace(data_->loaded.games, format_);
  GridEX1_->SetRecordset(&data_->loaded.games);
  GridEX1_->AddSortKey("Game");
  GridEX1_->AddSortKey("Court");
  GridEX1_->SetRow(1);
  GridEX1_->setFocus();
}

void PlayScreen::SetPairingEnabled(bool enabled) {
  const bool odd = enabled && data_->loaded.IsOdd();
  courts_->Clear();
  cboRounds_->setCurrentIndex(0);
  cboRounds_->setEnabled(enabled);
  cmdCreatePair_->setEnabled(enabled);
  for (QRadioButton* choice : {optBye_, optPacer_}) {
    choice->group()->setExclusive(false);
    choice->setChecked(false);
    choice->group()->setExclusive(true);
    choice->setEnabled(odd);
  }
}

void PlayScreen::NameEntrants() {
  const EntrantLists lists = NamesForScores(data_->connection, data_->loaded);
  for (const SideColumns& side : format_.sides) {
    GridEX1_->SetValueList(side.id, lists.entrants);
    if (!side.IsTeam()) continue;
    for (const QString& pitcher : side.pitchers) GridEX1_->SetValueList(pitcher, lists.pitchers);
  }
  QStringList names;
  for (int i = 0; i < data_->loaded.list.RecordCount(); ++i)
    names << lists.entrants.Items()[i].text;
  Frame2_->OfferEntrants(names);
}

// Pairing

void PlayScreen::optBye_Click() {
  if (const Refusal refusal = CheckByeCourts(courts_->Courts())) {
    Refuse(refusal.sentence);
    return courts_->TakeFocus();
  }
  const QString advice = ByeCourtAdvice(courts_->Courts());
  if (!advice.isEmpty()) Refuse(advice);
}

void PlayScreen::cmdCreatePair_Click() {
  PairingChoice choice;
  choice.courts = courts_->Courts();
  choice.rounds = RoundsOf(cboRounds_->currentText());
  if (optBye_->isChecked()) choice.odd = OddEntrant::Bye;
  if (optPacer_->isChecked()) choice.odd = OddEntrant::Pacer;
  const Refusal refusal = CreatePairing(data_->connection, data_->loaded.rules, choice);
  if (!refusal) return cboLoad_Click();
  Refuse(refusal.sentence);
  if (refusal.about == "Bye") optBye_->setFocus();
}

void PlayScreen::cmdDeletePair_Click() {
  if (!around().person.Confirm("Confirm Deletion", "Delete entire class pairing?")) return;
  GridEX1_->SetDataChanged(false);
  DeletePairing(data_->connection, data_->loaded.rules);
  DropClass();
}

// Scores

void PlayScreen::chkChecker_Click() {
  for (const char* key : {"POneSinglePts", "PTwoSinglePts"}) {
    GridEX1_->SetColumnVisible(key, chkChecker_->isChecked());
    GridEX1_->SetSelectable(key, chkChecker_->isChecked());
  }
}

void PlayScreen::chkForfeit_Click() {
  for (const SideColumns& side : format_.sides)
    GridEX1_->SetColumnVisible(side.forfeit, chkForfeit_->isChecked());
}

void PlayScreen::cmdView_Click() {
  if (GridEX1_->isVisible()) FlipScoreView(*GridEX1_, format_);
}

void PlayScreen::GridEX1_KeyDown(GridKeyDown& event) {
  const bool enter = event.key == Qt::Key_Return || event.key == Qt::Key_Enter;
  const int game = GridEX1_->ColumnNumber("Game");
  if (enter && GridEX1_->IsNewRow() && !GridEX1_->DataChanged()) {
    event.swallow = GridEX1_->SetCol(game);
  } else if (event.key == Qt::Key_Left && GridEX1_->Col() == game) {
    event.swallow = GridEX1_->ClearCol();
  }
}

// A game that has no shoes yet starts there.
void PlayScreen::GridEX1_RowColChange(int lastRow) {
  const Value shoes = GridEX1_->Value("Shoes");
  if (GridEX1_->Row() != lastRow && !shoes.IsNull() && shoes.ToNumber() == 0)
    GridEX1_->SetCol("Shoes");
}

void PlayScreen::GridEX1_AfterColEdit(GridColEdit& event) {
  if (event.column != "Court") return;
  GridEX1_->SetValue("Court", RightJustifyCourt(GridEX1_->Value("Court").ToText()));
}

void PlayScreen::GridEX1_BeforeUpdate(GridUpdate& event) {
  const RowValues row = CurrentRow(*GridEX1_);
  GameContext context{data_->loaded.rules, data_->loaded.games, data_->loaded.list};
  context.newRow = event.newRow;
  context.scoreChecker = chkChecker_->isChecked();
  RowCheck check = CheckGame(row, context);
  if (check.verdict == RowCheck::Verdict::Ask) {
    context.manyShoes = Ask(check);
    check = CheckGame(row, context);
  }
  Settle(check, *GridEX1_, event);
}

void PlayScreen::GridEX1_FetchIcon(GridFetchIcon& event) {
  if (event.position < 1) return;
  const Game game = data_->reader->Read(data_->loaded.games, event.position);
  const int side = format_.sides[0].result == event.column ? 0 : 1;
  event.icon = 1 + static_cast<int>(GameIcon(game, side, format_));
}

// Results

void PlayScreen::SSTab1_Click() {
  if (!data_ || SSTab1_->currentIndex() == 0) return;
  if (!GridEX1_->CommitRow()) return SSTab1_->setCurrentIndex(0);
  ShowStandings();
}

void PlayScreen::ShowStandings() {
  GridEX2_->SetRecordset(nullptr);
  if (data_->loaded.rules.classID.isEmpty()) return;
  data_->standings = RankTheClass(data_->connection, data_->loaded.rules);
  if (data_->standings.refusal) return Refuse(data_->standings.refusal.sentence);
  GridEX2_->SetRecordset(&data_->standings.rows);
  ShowOverride();
}

void PlayScreen::ShowOverride() {
  const bool stands = data_->standings.rules.rankOverride;
  lblOverride_->setText(stands ? "Rank Override is in affect for this Class"
                               : "No Rank Override has been applied to this Class");
  cmdOverride_->setText(stands ? "Remove Override" : "Apply Override");
  cmdOverride_->setEnabled(true);
  GridEX2_->SetEditable("Override", !stands);
}

void PlayScreen::cmdOverride_Click() {
  if (!GridEX2_->CommitRow()) return;
  Standings& standings = data_->standings;
  Refusal refusal;
  if (standings.rules.rankOverride) {
    RemoveOverride(data_->connection, standings.rules, standings.rows);
  } else {
    refusal = ApplyOverride(data_->connection, standings.rules, standings.rows);
  }
  data_->loaded.rules.rankOverride = standings.rules.rankOverride;
  GridEX2_->Rebind();
  if (refusal) return Refuse(refusal.sentence);
  ShowOverride();
}

void PlayScreen::GridEX2_FetchData(GridFetchData& event) {
  event.text = HalfWinText(event.value.ToNumber());
}

}  // namespace tavrelin
