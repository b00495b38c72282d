#include "play/CardFrame.h"

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "play/CardJob.h"
#include "play/PlayFormat.h"
#include "shell/Labels.h"
#include "shell/NewControl.h"

namespace tavrelin {

namespace {

QLineEdit* NewGameBox(const QString& name, const QString& spoken, QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setAccessibleName(spoken);
  box->setMaxLength(4);
  box->setMaximumWidth(box->fontMetrics().averageCharWidth() * 9);
  return box;
}

}  // namespace

CardFrame::CardFrame(const PlayFormat& format, QWidget* parent)
    : QGroupBox("Round Robin Cards", parent) {
  setObjectName("Frame2");
  BuildControls(format);
  LayOut();
  connect(cmdPrintPair_, &QPushButton::clicked, this, &CardFrame::PrintWanted);
  SelectFace(CardFace::Front);
  Clear();
}

void CardFrame::BuildControls(const PlayFormat& format) {
  const bool teams = format.IsDoubles();
  optFront_ = NewControl<QRadioButton>("optFront", "Front", this);
  optBack_ = NewControl<QRadioButton>("optBack", "Back", this);
  if (format.hasTwoUpCards)
    chkRRWorksheet_ = NewControl<QCheckBox>("chkRRWorksheet", "Round Robin Worksheet", this);
  txtFrom_ = NewGameBox("txtFrom", "First game", this);
  txtTo_ = NewGameBox("txtTo", "Last game", this);
  entrants_ = new QComboBox(this);
  entrants_->setObjectName(teams ? "cboTeams" : "cboPlayers");
  entrants_->setAccessibleName(teams ? "Teams" : "Players");
  entrants_->setMinimumContentsLength(18);
  entrants_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cmdPrintPair_ = NewControl<QPushButton>("cmdPrintPair", "Print ", this);
}

void CardFrame::LayOut() {
  auto* faces = new QHBoxLayout;
  faces->setSpacing(16);
  faces->addWidget(optFront_);
  faces->addWidget(optBack_);
  if (chkRRWorksheet_) faces->addWidget(chkRRWorksheet_);
  faces->addStretch();
  auto* games = new QHBoxLayout;
  games->setSpacing(8);
  games->addWidget(NewHeading("lblFrom", "Games", txtFrom_, this));
  games->addWidget(txtFrom_);
  games->addWidget(NewHeading("lblTo", "thru", txtTo_, this));
  games->addWidget(txtTo_);
  games->addStretch();
  auto* run = new QHBoxLayout;
  run->setSpacing(8);
  run->addWidget(NewHeading("lblEntrants", entrants_->accessibleName(), entrants_, this));
  run->addWidget(entrants_, 1);
  run->addWidget(cmdPrintPair_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(16, 8, 16, 8);
  rows->setSpacing(8);
  for (QHBoxLayout* row : {faces, games, run}) rows->addLayout(row);
}

void CardFrame::OfferEntrants(const QStringList& names) {
  entrants_->clear();
  entrants_->addItem("All " + entrants_->accessibleName().toLower());
  for (qsizetype i = 0; i < names.size(); ++i)
    entrants_->addItem(QString("%1. %2").arg(i + 1).arg(names[i]));
}

void CardFrame::Open(int highestGame) {
  txtTo_->setText(QString::number(highestGame));
  setEnabled(true);
}

void CardFrame::Clear() {
  txtFrom_->clear();
  txtTo_->clear();
  entrants_->clear();
  setEnabled(false);
}

CardChoice CardFrame::Choice() const {
  CardChoice choice;
  choice.face = optFront_->isChecked()  ? CardFace::Front
                : optBack_->isChecked() ? CardFace::Back
                                        : CardFace::None;
  choice.from = txtFrom_->text();
  choice.to = txtTo_->text();
  choice.entrant = std::max(entrants_->currentIndex(), 0);
  choice.worksheet = chkRRWorksheet_ && chkRRWorksheet_->isChecked();
  return choice;
}

void CardFrame::SelectFace(CardFace face) {
  if (face == CardFace::Front) optFront_->setChecked(true);
  if (face == CardFace::Back) optBack_->setChecked(true);
}

void CardFrame::FocusTo() {
  txtTo_->setFocus();
  txtTo_->selectAll();
}

}  // namespace tavrelin
