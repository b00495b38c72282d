#include "shell/frmRestore.h"

#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "data/Backup.h"
#include "shell/BackupTexts.h"
#include "shell/Labels.h"

namespace tavrelin {

namespace {

constexpr int RowsInSight = BackupsKept;

QPushButton* NewButton(const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  return button;
}

}  // namespace

frmRestore::frmRestore(const QString& file, const QList<ClubBackup>& backups, QWidget* parent)
    : QDialog(parent), lstBackups_(new QTreeWidget(this)) {
  setObjectName("frmRestore");
  setWindowTitle("Restore a Backup");
  lstBackups_->setObjectName("lstBackups");
  lstBackups_->setAccessibleName("Backups");
  Fill(backups);
  LayOut(file);
  lstBackups_->setFocus();
}

void frmRestore::Fill(const QList<ClubBackup>& backups) {
  lstBackups_->setHeaderLabels({"Date", "Size"});
  lstBackups_->setRootIsDecorated(false);
  lstBackups_->setUniformRowHeights(true);
  for (const ClubBackup& backup : backups) {
    auto* row = new QTreeWidgetItem(lstBackups_, {BackupDate(backup), BackupSize(backup)});
    row->setSizeHint(0, QSize(0, fontMetrics().height() * 3 / 2));
    row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    row->setToolTip(0, QDir::toNativeSeparators(backup.path));
  }
  lstBackups_->setCurrentItem(lstBackups_->topLevelItem(0));
  lstBackups_->header()->setStretchLastSection(false);
  lstBackups_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  lstBackups_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
}

void frmRestore::LayOut(const QString& file) {
  auto* lblText = new QLabel(
      "The club file is put back as it was at the time you choose. As it is now, it is backed up "
      "first, so that you can return to it.\n\n" +
          QDir::toNativeSeparators(file),
      this);
  lblText->setObjectName("lblText");
  lblText->setTextFormat(Qt::PlainText);
  lblText->setWordWrap(true);
  auto* cmdRestore = NewButton("cmdRestore", "Restore", this);
  auto* cmdCancel = NewButton("cmdCancel", "Cancel", this);
  cmdRestore->setEnabled(Chosen() >= 0);
  cmdCancel->setDefault(true);
  connect(cmdRestore, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  buttons->addWidget(cmdRestore);
  buttons->addWidget(cmdCancel);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 24);
  column->setSpacing(16);
  column->addWidget(lblText);
  column->addWidget(NewHeading("lblBackups", "Backups", lstBackups_, this));
  column->addWidget(lstBackups_, 1);
  column->addLayout(buttons);
  resize(fontMetrics().averageCharWidth() * 76,
         fontMetrics().height() * (RowsInSight * 3 / 2 + 15));
}

int frmRestore::Chosen() const {
  return lstBackups_->indexOfTopLevelItem(lstBackups_->currentItem());
}

}  // namespace tavrelin
