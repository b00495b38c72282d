#include "shell/frmError.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "basic/Twips.h"
#include "shell/Operator.h"

namespace tavrelin {

namespace {

constexpr int DialogWidth = 8400;  // twips
constexpr int IconSide = 40;
constexpr int LinesOfMessage = 3;
constexpr int LinesOfDetail = 3;

int HeightOf(const QPlainTextEdit& box, int lines) {
  return box.fontMetrics().lineSpacing() * lines + 16;
}

}  // namespace

frmError::frmError(const ErrorReport& report, Clipboard& clipboard, QWidget* parent)
    : QDialog(parent), report_(report), clipboard_(clipboard) {
  setObjectName(QStringLiteral("frmError"));
  setWindowTitle(report.title.isEmpty() ? tr("Error") : report.title);
  setAccessibleDescription(report.generalMessage);
  txtGeneralMessage_ = AddText("txtGeneralMessage", tr("What happened"), report.generalMessage);
  txtGeneralMessage_->setMinimumHeight(HeightOf(*txtGeneralMessage_, LinesOfMessage));
  cmdDetails_ = AddButton("cmdDetails", tr("Details"));
  cmdCopy_ = AddButton("cmdCopy", tr("Copy To Clipboard"));
  cmdOk_ = AddButton("cmdOk", tr("Ok"));
  details_ = MakeDetails();
  details_->hide();

  auto* icon = new QLabel(this);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(IconSide, IconSide));
  auto* message = new QHBoxLayout;
  message->setSpacing(16);
  message->addWidget(icon, 0, Qt::AlignTop);
  message->addWidget(txtGeneralMessage_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addWidget(cmdDetails_);
  buttons->addWidget(cmdCopy_);
  buttons->addStretch();
  buttons->addWidget(cmdOk_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(8);
  column->addLayout(message, 1);
  column->addLayout(buttons);
  column->addWidget(details_, 3);

  cmdOk_->setDefault(true);
  connect(cmdDetails_, &QPushButton::clicked, this, &frmError::cmdDetails_Click);
  connect(cmdCopy_, &QPushButton::clicked, this, &frmError::cmdCopy_Click);
  connect(cmdOk_, &QPushButton::clicked, this, &frmError::accept);
  txtGeneralMessage_->installEventFilter(this);
  txtDescription_->installEventFilter(this);
  setFixedWidth(PixelsOf(DialogWidth));
  SetHeight(ShortHeight);
}

QPlainTextEdit* frmError::AddText(const char* name, const QString& accessibleName,
                                  const QString& text) {
  auto* box = new QPlainTextEdit(text, this);
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(accessibleName);
  box->setReadOnly(true);
  box->setTabChangesFocus(true);
  return box;
}

QPushButton* frmError::AddButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(QLatin1String(name));
  return button;
}

QLabel* frmError::AddLabel(const char* name, const QString& caption) {
  auto* label = new QLabel(caption, this);
  label->setObjectName(QLatin1String(name));
  return label;
}

QWidget* frmError::MakeDetails() {
  auto* panel = new QWidget(this);
  txtDescription_ = AddText("txtDescription", tr("Error Description"), report_.description);
  txtCallStack_ = AddText("txtCallStack", tr("Call Stack"), report_.callStack);
  for (QPlainTextEdit* box : {txtDescription_, txtCallStack_}) {
    box->setMinimumHeight(HeightOf(*box, LinesOfDetail));
  }
  auto* number = new QHBoxLayout;
  number->setSpacing(8);
  number->addWidget(AddLabel("lblNumberCaption", tr("Error Number:")));
  number->addWidget(AddLabel("lblNumber", QString::number(report_.number)), 1);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 8, 0, 0);
  column->setSpacing(4);
  column->addLayout(number);
  column->addSpacing(4);
  column->addWidget(AddLabel("lblDescriptionCaption", tr("Error Description:")));
  column->addWidget(txtDescription_, 1);
  column->addSpacing(4);
  column->addWidget(AddLabel("lblCallStackCaption", tr("Call Stack:")));
  column->addWidget(txtCallStack_, 1);
  return panel;
}

int frmError::TopOf(int top, int height, int screenHeight) {
  if (top + height <= screenHeight) return top;
  return qMax(0, (screenHeight - height) / 2);
}

void frmError::SetHeight(int twips) {
  layout()->activate();
  setFixedHeight(qMax(PixelsOf(twips), layout()->minimumSize().height()));
}

void frmError::cmdDetails_Click() {
  const bool open = cmdDetails_->text() == tr("Details");
  cmdDetails_->setText(open ? tr("No Details") : tr("Details"));
  details_->setVisible(open);
  SetHeight(open ? FullHeight : ShortHeight);
  if (open) move(x(), TopOf(y(), height(), screen()->size().height()));
}

QString frmError::CopyText(const ErrorReport& report) {
  const QStringList parts = {report.generalMessage,
                             QStringLiteral("Error Number: ") + QString::number(report.number),
                             QStringLiteral("Description: "),
                             report.description,
                             QStringLiteral("Call Stack: "),
                             report.callStack};
  return parts.join(QLatin1String("\r\n\r\n"));
}

void frmError::cmdCopy_Click() {
  clipboard_.SetText(CopyText(report_));
}

bool frmError::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) cmdOk_->setFocus();
  return QDialog::event(event);
}

bool frmError::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) cmdOk_->setFocus();
  return QDialog::eventFilter(watched, event);
}

// A failure while the program was busy: the hourglass would tell the reader to wait.
CSError::Display ErrorDialog(Clipboard& clipboard) {
  return [&clipboard](const ErrorReport& report) {
    frmError dialog(report, clipboard, QApplication::activeWindow());
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    dialog.exec();
    QApplication::restoreOverrideCursor();
  };
}

}  // namespace tavrelin
