#include "play/ExportFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "play/PlayFormat.h"
#include "shell/Labels.h"
#include "shell/NewControl.h"

namespace tavrelin {

namespace {

QLineEdit* NewBox(const QString& name, const QString& spoken, QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setAccessibleName(spoken);
  return box;
}

}  // namespace

ExportFrame::ExportFrame(const PlayFormat& format, QWidget* parent)
    : QGroupBox("Text File", parent),
      txtPath_(NewBox("txtPath", "Path", this)),
      txtFile_(NewBox("txtFile", "File", this)) {
  setObjectName("Frame4");
  auto* cmdExport =
      NewControl<QPushButton>("cmdExport", format.IsDoubles() ? "Export Results" : "Export", this);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 8, 16, 8);
  grid->setSpacing(8);
  grid->addWidget(NewHeading("lblPath", "Path", txtPath_, this), 0, 0);
  grid->addWidget(txtPath_, 0, 1);
  grid->addWidget(NewHeading("lblFile", "File", txtFile_, this), 1, 0);
  grid->addWidget(txtFile_, 1, 1);
  grid->addWidget(cmdExport, 2, 1, Qt::AlignLeft);
  connect(cmdExport, &QPushButton::clicked, this, &ExportFrame::ExportWanted);
  setEnabled(false);
}

QString ExportFrame::Path() const {
  return txtPath_->text();
}

void ExportFrame::SetPath(const QString& path) {
  txtPath_->setText(path);
}

QString ExportFrame::File() const {
  return txtFile_->text();
}

// Long names show their beginning.
void ExportFrame::SetFile(const QString& file) {
  txtFile_->setText(file);
  txtFile_->setCursorPosition(0);
}

}  // namespace tavrelin
