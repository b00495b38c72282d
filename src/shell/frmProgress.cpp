#include "shell/frmProgress.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "basic/Progress.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int WidthInCharacters = 56;

QLabel* NewLine(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

frmProgress::frmProgress(const QString& doing, int total, bool mayCancel, QWidget* parent)
    : QDialog(parent),
      total_(total),
      mayCancel_(mayCancel),
      lblDoing_(NewLine(u"lblDoing"_s, this)),
      prgDone_(new QProgressBar(this)),
      lblCount_(NewLine(u"lblCount"_s, this)),
      cmdCancel_(new QPushButton(u"Cancel"_s, this)) {
  setObjectName(u"frmProgress"_s);
  setWindowTitle(u"Please Wait"_s);
  setWindowModality(Qt::ApplicationModal);
  lblDoing_->setText(doing);
  lblDoing_->setWordWrap(true);
  prgDone_->setObjectName(u"prgDone"_s);
  prgDone_->setAccessibleName(doing);
  prgDone_->setTextVisible(false);
  prgDone_->setRange(0, total);  // from 0 to 0 it runs to and fro
  cmdCancel_->setObjectName(u"cmdCancel"_s);
  cmdCancel_->setAutoDefault(false);
  cmdCancel_->setVisible(mayCancel);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmProgress::reject);
  LayOut();
  ShowDone(0);
}

// The bar has the focus: an impatient Enter or Space must not cancel, and it is read out.
void frmProgress::LayOut() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(24, 24, 24, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(16);
  grid->addWidget(lblDoing_, 0, 0, 1, 2);
  grid->addWidget(prgDone_, 1, 0, 1, 2);
  grid->addWidget(lblCount_, 2, 0);
  grid->addWidget(cmdCancel_, 2, 1);
  grid->setColumnStretch(0, 1);
  setFixedWidth(fontMetrics().averageCharWidth() * WidthInCharacters);
  prgDone_->setFocusPolicy(Qt::StrongFocus);
  prgDone_->setFocus();
}

void frmProgress::ShowDone(int done) {
  if (total_ != Progress::Unknown) prgDone_->setValue(qMin(done, total_));
  if (!cancelled_) lblCount_->setText(CountText(done));
}

QString frmProgress::CountText(int done) const {
  if (total_ != Progress::Unknown) return u"%1 of %2"_s.arg(qMin(done, total_)).arg(total_);
  return done > 0 ? u"%1 so far"_s.arg(done) : QString();
}

void frmProgress::reject() {
  if (!mayCancel_) return;
  cancelled_ = true;
  cmdCancel_->setEnabled(false);
  lblCount_->setText(u"Stopping..."_s);
}

}  // namespace tavrelin
