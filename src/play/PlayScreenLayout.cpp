#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "controls/GridEX.h"
#include "play/CardFrame.h"
#include "play/CourtBox.h"
#include "play/ExportFrame.h"
#include "play/PlayFormat.h"
#include "play/PlayScreen.h"
#include "play/ResultsFrame.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/NewControl.h"
#include "tournament/TournamentBox.h"

namespace tavrelin {

namespace {

QComboBox* NewCombo(const QString& name, const QString& spoken, int characters, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setAccessibleName(spoken);
  combo->setMinimumContentsLength(characters);
  return combo;
}

}  // namespace

void PlayScreen::BuildControls() {
  cboTournaments_ = new TournamentBox(this);
  cboClasses_ = NewCombo("cboClasses", "Class", 18, this);
  cmdLoad_ = NewControl<QPushButton>("cmdLoad", "Load", this);
  courts_ = new CourtBox(this);
  cboRounds_ = NewCombo("cboRounds", "Rounds", 2, this);
  cboRounds_->addItems({" ", "1", "2", "3", "4"});
  optBye_ = NewControl<QRadioButton>("optBye", "Bye", this);
  optPacer_ = NewControl<QRadioButton>("optPacer", "Pacer", this);
  auto* oddEntrant = new QButtonGroup(this);
  oddEntrant->addButton(optBye_);
  oddEntrant->addButton(optPacer_);
  cmdCreatePair_ = NewControl<QPushButton>("cmdCreatePair", "Create Pair", this);
  cmdDeletePair_ = NewControl<QPushButton>("cmdDeletePair", "Delete Pair", this);
  SSTab1_ = new QTabWidget(this);
  SSTab1_->setObjectName("SSTab1");
  GridEX1_ = new GridEX("GridEX1", "Games", Guard(), this);
  GridEX2_ = new GridEX("GridEX2", format_.IsDoubles() ? "Standings of the teams" : "Standings",
                        Guard(), this);
  chkChecker_ = NewControl<QCheckBox>("chkChecker", "Score Checker", this);
  chkForfeit_ = NewControl<QCheckBox>("chkForfeit", "Forfeits Visible", this);
  cmdView_ = NewControl<QPushButton>("cmdView", "View", this);
  Frame3_ = new ResultsFrame(format_, this);
  Frame2_ = new CardFrame(format_, this);
  Frame4_ = new ExportFrame(format_, this);
  chkExport_ = NewControl<QCheckBox>("chkExport", "Export Option", this);
  lblOverride_ = NewControl<QLabel>("lblOverride", "", this);
  cmdOverride_ = NewControl<QPushButton>("cmdOverride", "Apply Override", this);
}

void PlayScreen::LayOut() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(NewTitle("lblTitle", Title(), this));
  column->addWidget(PairingBand());
  column->addWidget(SSTab1_, 1);
  column->addWidget(stsInfo());
  SSTab1_->addTab(ScoresPage(), "Scores");
  SSTab1_->addTab(ResultsPage(), "Results");
  chkChecker_->setVisible(format_.checksScores);
  chkForfeit_->setVisible(format_.hasForfeits);
}

// Two rows: which class, and how it is paired.
QWidget* PlayScreen::PairingBand() {
  auto* band = new QWidget(this);
  auto* rows = new QVBoxLayout(band);
  rows->setContentsMargins({});
  rows->setSpacing(8);
  const auto addRow = [&](const QWidgetList& parts) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (QWidget* part : parts) row->addWidget(part);
    row->addStretch();
    rows->addLayout(row);
  };
  addRow({NewHeading("lblTournament", "Tournament", cboTournaments_, band), cboTournaments_,
          NewHeading("lblClass", "Class", cboClasses_, band), cboClasses_, cmdLoad_});
  addRow({NewHeading("lblCourts", "Courts", courts_->Box(), band), courts_,
          NewHeading("lblRounds", "Rounds", cboRounds_, band), cboRounds_, optBye_, optPacer_,
          cmdCreatePair_, cmdDeletePair_});
  courts_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return band;
}

QWidget* PlayScreen::ScoresPage() {
  auto* page = new QWidget(this);
  auto* choices = new QHBoxLayout;
  choices->setSpacing(16);
  choices->addWidget(chkChecker_);
  choices->addWidget(chkForfeit_);
  choices->addStretch();
  choices->addWidget(cmdView_);
  auto* column = new QVBoxLayout(page);
  column->setSpacing(8);
  column->addLayout(choices);
  column->addWidget(GridEX1_, 1);
  return page;
}

QWidget* PlayScreen::ResultsPage() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setSpacing(8);
  column->addWidget(GridEX2_, 1);
  column->addWidget(OutputFrames());
  column->addWidget(OverrideFrame());
  return page;
}

// In doubles cards and text file share one place.
QWidget* PlayScreen::OutputFrames() {
  auto* band = new QWidget(this);
  auto* row = new QHBoxLayout(band);
  row->setContentsMargins({});
  row->setSpacing(8);
  row->addWidget(Frame3_, 3);
  row->addWidget(Frame2_, 4);
  row->addWidget(Frame4_, 4);
  row->addWidget(chkExport_);
  chkExport_->setVisible(format_.IsDoubles());
  if (format_.IsDoubles()) chkExport_Click();
  return band;
}

QWidget* PlayScreen::OverrideFrame() {
  auto* Frame5 = NewControl<QGroupBox>("Frame5", "Override Class Rank", this);
  auto* row = new QHBoxLayout(Frame5);
  row->setSpacing(16);
  row->addWidget(lblOverride_, 1);
  row->addWidget(cmdOverride_);
  Frame5->setVisible(format_.hasOverride);
  return Frame5;
}

}  // namespace tavrelin
