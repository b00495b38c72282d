#pragma once

#include <QDialog>

#include "shell/Screen.h"

namespace tavrelin {

/// "About this Software": name, version, whom to ask, and the way to the system information tool.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(const Surroundings& surroundings, QWidget* parent = nullptr);

 private:
  void cmdSysInfo_Click();
  void StartSysInfo();

  Surroundings surroundings_;
  CSError errors_;
};

}  // namespace tavrelin
