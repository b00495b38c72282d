#include "shell/frmAbout.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>

#include "shell/HelpDesk.h"
#include "shell/Operator.h"
#include "shell/Store.h"
#include "shell/SystemInfo.h"

namespace tavrelin {

namespace {

constexpr int PictureSide = 96;

QLabel* NewLabel(QWidget* parent, const char* name, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  return label;
}

QPushButton* NewButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QLatin1String(name));
  return button;
}

}  // namespace

frmAbout::frmAbout(const Surroundings& surroundings, QWidget* parent)
    : QDialog(parent), surroundings_(surroundings), errors_(surroundings.showError) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(tr("About this Software"));
  auto* picture = NewLabel(this, "picIcon", {});
  picture->setPixmap(QIcon(QStringLiteral(":/pictures/tavrelin.svg"))
                         .pixmap(QSize(PictureSide, PictureSide), devicePixelRatio()));
  auto* title = NewLabel(this, "lblTitle", QStringLiteral("Tavrelin"));
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 2);
  title->setFont(large);
  auto* trademark = NewLabel(this, "lblTrademark", QLatin1String(HelpDeskNotice));
  trademark->setWordWrap(true);
  trademark->setMinimumWidth(trademark->fontMetrics().averageCharWidth() * 48);
  auto* line = new QFrame(this);
  line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  auto* cmdOK = NewButton(this, "cmdOK", tr("OK"));
  auto* cmdSysInfo = NewButton(this, "cmdSysInfo", tr("&System Info..."));
  cmdOK->setDefault(true);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(24, 24, 24, 24);
  grid->setHorizontalSpacing(24);
  grid->setVerticalSpacing(8);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  grid->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);
  grid->addWidget(title, 0, 1, 1, 3);
  grid->addWidget(NewLabel(this, "lblVersion", tr("Version ") + ProgramVersion()), 1, 1, 1, 3);
  grid->addWidget(trademark, 2, 1, 1, 3);
  grid->addWidget(line, 3, 0, 1, 4);
  grid->setColumnStretch(1, 1);
  grid->addWidget(cmdSysInfo, 4, 2);
  grid->addWidget(cmdOK, 4, 3);
  setTabOrder(cmdOK, cmdSysInfo);
  cmdOK->setFocus();
  connect(cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
  connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
}

void frmAbout::cmdSysInfo_Click() {
  errors_.Run("cmdSysInfo_Click", [this] { StartSysInfo(); });
}

void frmAbout::StartSysInfo() {
  const QString tool = SystemInfoTool(surroundings_.store);
  if (!tool.isEmpty() && QProcess::startDetached(tool, {})) return;
  surroundings_.person.Tell(tr("System Information Unavailable"),
                            tr("System Information Is Unavailable At This Time"));
}

}  // namespace tavrelin
