#pragma once

#include "shell/Screen.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tavrelin {

/// Setup / Database: which file is the club's. What stands in the box when the screen is left is
/// the choice: stored, in force for all screens, and brought up to date at once. The file that is
/// left for another one is backed up first. Backups of the file in use are made and restored here.
///
/// Opens no connection of its own, so that the file can be replaced.
class uctDatabase : public Screen {
  Q_OBJECT

 public:
  uctDatabase(const Surroundings& surroundings, QWidget* parent);

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void LayOut();
  QBoxLayout* PathRow();
  QBoxLayout* BackupRow();
  QPushButton* NewButton(const char* name, const QString& caption, const char* procedure,
                         void (uctDatabase::*click)());

  void Command1_Click();
  void cmdBackup_Click();
  void cmdRestore_Click();
  void BackUpFileThatIsLeft(const QString& next);
  void ShowBackups();
  void SayNow(const QString& message);

  QLineEdit* txtPath_;
  QPushButton* Command1_;
  QLabel* lblInUse_;
  QLabel* lblBackups_;
  QPushButton* cmdBackup_;
  QPushButton* cmdRestore_;
};

}  // namespace tavrelin
