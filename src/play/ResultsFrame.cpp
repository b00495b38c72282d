#include "play/ResultsFrame.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "play/ClassResults.h"
#include "play/PlayFormat.h"
#include "shell/Labels.h"
#include "shell/NewControl.h"

namespace tavrelin {

namespace {

QHBoxLayout* NewRow(const QWidgetList& parts, int spacing) {
  auto* row = new QHBoxLayout;
  row->setSpacing(spacing);
  for (QWidget* part : parts)
    if (part) row->addWidget(part);
  row->addStretch();
  return row;
}

}  // namespace

ResultsFrame::ResultsFrame(const PlayFormat& format, QWidget* parent)
    : QGroupBox("Class Results", parent) {
  setObjectName("Frame3");
  BuildControls(!format.IsDoubles());
  LayOut();
  connect(cmdPrintResults_, &QPushButton::clicked, this, &ResultsFrame::PrintWanted);
  connect(cmdPreviewResults_, &QPushButton::clicked, this, &ResultsFrame::PreviewWanted);
  setEnabled(false);
}

void ResultsFrame::BuildControls(bool singles) {
  chkStandings_ = NewControl<QCheckBox>("chkStandings", "Standings", this);
  chkBoxScores_ = NewControl<QCheckBox>("chkBoxScores", "Box Scores", this);
  if (singles) {
    chkBrief_ = NewControl<QCheckBox>("chkBrief", "Brief", this);
    txtCopies_ = new QLineEdit("1", this);
    txtCopies_->setObjectName("txtCopies");
    txtCopies_->setAccessibleName("Copies");
    txtCopies_->setMaxLength(2);
    txtCopies_->setMaximumWidth(txtCopies_->fontMetrics().averageCharWidth() * 7);
  }
  cmdPrintResults_ = NewControl<QPushButton>("cmdPrintResults", "Print ", this);
  cmdPreviewResults_ = NewControl<QPushButton>("cmdPreviewResults", "Preview", this);
}

void ResultsFrame::LayOut() {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(16, 8, 16, 8);
  rows->setSpacing(8);
  rows->addLayout(NewRow({chkStandings_, chkBoxScores_, chkBrief_}, 16));
  if (txtCopies_)
    rows->addLayout(NewRow({NewHeading("lblCopies", "Copies", txtCopies_, this), txtCopies_}, 8));
  rows->addStretch();
  rows->addLayout(NewRow({cmdPrintResults_, cmdPreviewResults_}, 8));
}

ResultsChoice ResultsFrame::Choice() const {
  return {chkStandings_->isChecked(), chkBoxScores_->isChecked(), IsBrief()};
}

bool ResultsFrame::IsBrief() const {
  return chkBrief_ && chkBrief_->isChecked();
}

void ResultsFrame::SetBrief(bool brief) {
  if (chkBrief_) chkBrief_->setChecked(brief);
}

int ResultsFrame::Copies() const {
  return txtCopies_ ? CopiesOf(txtCopies_->text()) : 1;
}

void ResultsFrame::ResetCopies() {
  if (txtCopies_) txtCopies_->setText("1");
}

void ResultsFrame::FocusStandings() {
  chkStandings_->setFocus();
}

}  // namespace tavrelin
