#include "shell/uctDatabase.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "data/Backup.h"
#include "shell/BackupTexts.h"
#include "shell/ClubDatabase.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"
#include "shell/Operator.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"

namespace tavrelin {

namespace {

constexpr int LongestPath = 255;  // what the store reads back

QLabel* NewLine(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

uctDatabase::uctDatabase(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctDatabase", "Setup Database", surroundings, parent),
      txtPath_(new QLineEdit(this)),
      Command1_(NewButton("Command1", "Browse", "Command1_Click", &uctDatabase::Command1_Click)),
      lblInUse_(NewLine("lblInUse", this)),
      lblBackups_(NewLine("lblBackups", this)),
      cmdBackup_(
          NewButton("cmdBackup", "Back Up Now", "cmdBackup_Click", &uctDatabase::cmdBackup_Click)),
      cmdRestore_(NewButton("cmdRestore", "Restore...", "cmdRestore_Click",
                            &uctDatabase::cmdRestore_Click)) {
  txtPath_->setObjectName("txtPath");
  txtPath_->setAccessibleName("Database Path and Name");
  txtPath_->setMaxLength(LongestPath);
  LayOut();
}

QPushButton* uctDatabase::NewButton(const char* name, const QString& caption, const char* procedure,
                                    void (uctDatabase::*click)()) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
  connect(button, &QPushButton::clicked, this,
          [this, procedure, click] { Event(procedure, [this, click] { (this->*click)(); }); });
  return button;
}

void uctDatabase::LayOut() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(NewTitle("lblTitle", "Setup Database", this));
  column->addSpacing(8);
  column->addWidget(NewHeading("lblPath", "Database Path and Name", txtPath_, this));
  column->addLayout(PathRow());
  column->addSpacing(24);
  column->addWidget(NewHeading("lblBackup", "Backups", cmdBackup_, this));
  column->addWidget(lblInUse_);
  column->addWidget(lblBackups_);
  column->addLayout(BackupRow());
  column->addStretch();
  column->addWidget(stsInfo());
}

QBoxLayout* uctDatabase::PathRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addWidget(txtPath_, 1);
  row->addWidget(Command1_);
  return row;
}

QBoxLayout* uctDatabase::BackupRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addWidget(cmdBackup_);
  row->addWidget(cmdRestore_);
  row->addStretch();
  return row;
}

void uctDatabase::UserControl_Show() {
  txtPath_->setText(around().store.Get(stored::CurrentDatabase));
  ShowBackups();
  txtPath_->setFocus();
}

// Each step tells of its own failure and the next one goes on: the operator has left.
void uctDatabase::UserControl_Hide() {
  const QString path = txtPath_->text().trimmed();
  around().person.SetBusy(true);
  Event("BackUpFileThatIsLeft", [&] { BackUpFileThatIsLeft(path); });
  UseDatabase(path);
  Event("StoreDatabasePath", [&] { StoreDatabasePath(around().store, path); });
  Event("UpdateDB", [&] { UpdateDatabaseInUse(around().showError, around().clock.Today()); });
  around().person.SetBusy(false);
}

void uctDatabase::BackUpFileThatIsLeft(const QString& next) {
  const QString present = DatabaseInUse();
  const bool isOther = present != DatabaseAt(next);
  if (!isOther || !QFileInfo(present).isFile()) return;
  try {
    BackUpClub(present, around().clock.Now());
  } catch (const Error& error) {
    throw Error(
        error.number(),
        "The file that is left could not be backed up; it stays as it is. " + error.description());
  }
}

void uctDatabase::Command1_Click() {
  const QString file =
      around().person.OpenFile("Open", "C:\\TavrelinData", "Access Files (*.mdb *.accdb)");
  if (file.isEmpty()) return;
  if (file.size() > LongestPath) {
    return Refuse("The path is too long to be kept. Choose a file in a folder nearer the top.");
  }
  txtPath_->setText(file);
}

// A large file takes a second or two, in which nothing else is painted.
void uctDatabase::SayNow(const QString& message) {
  around().person.SetBusy(true);
  Say(message);
  stsInfo()->repaint();
}

void uctDatabase::cmdBackup_Click() {
  SayNow("The club file is being backed up...");
  const bool done = Event("BackUpClub", [this] {
    const QString made = BackUpClub(DatabaseInUse(), around().clock.Now());
    Say("Backed up as " + QDir::toNativeSeparators(made));
  });
  if (!done) stsInfo()->ClearMessage();
  around().person.SetBusy(false);
  ShowBackups();
}

void uctDatabase::cmdRestore_Click() {
  const QString file = DatabaseInUse();
  const QList<ClubBackup> backups = BackupsOf(file);
  const int chosen = around().person.ChooseBackup(file, backups);
  if (chosen < 0) return;
  SayNow("The club file is being restored...");
  const bool done = Event("RestoreClub", [&] {
    const QString kept = RestoreClub(file, backups[chosen].path, around().clock.Now());
    UpdateDatabaseInUse(around().showError, around().clock.Today());
    Say(RestoredText(backups[chosen], kept));
  });
  if (!done) stsInfo()->ClearMessage();
  around().person.SetBusy(false);
  ShowBackups();
}

void uctDatabase::ShowBackups() {
  const QString file = DatabaseInUse();
  const QList<ClubBackup> backups = BackupsOf(file);
  lblInUse_->setText(file.isEmpty() ? "No club file is in use."
                                    : "Club file in use: " + QDir::toNativeSeparators(file));
  lblBackups_->setText(BackupsText(backups));
  cmdBackup_->setEnabled(!file.isEmpty());
  cmdRestore_->setEnabled(!backups.isEmpty());
}

}  // namespace tavrelin
