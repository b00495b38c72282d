#include "shell/Desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "basic/PlatformPath.h"
#include "data/Backup.h"
#include "shell/frmRestore.h"

namespace tavrelin {

namespace {

int ShowBox(QMessageBox::Icon icon, const QString& title, const QString& text,
            QMessageBox::StandardButtons buttons, QMessageBox::StandardButton standard) {
  QMessageBox box(icon, title, text, buttons, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(standard);
  box.setEscapeButton(standard);
  return box.exec();
}

}  // namespace

bool DesktopOperator::Confirm(const QString& title, const QString& text) {
  return ShowBox(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                 QMessageBox::No) == QMessageBox::Yes;
}

void DesktopOperator::Tell(const QString& title, const QString& text) {
  ShowBox(QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

QString DesktopOperator::OpenFile(const QString& title, const QString& folder,
                                  const QString& filter) {
  return QFileDialog::getOpenFileName(QApplication::activeWindow(), title, PlatformPath(folder),
                                      filter);
}

QString DesktopOperator::SaveFile(const QString& title, const QString& proposal,
                                  const QString& filter) {
  return QFileDialog::getSaveFileName(QApplication::activeWindow(), title, PlatformPath(proposal),
                                      filter);
}

int DesktopOperator::ChooseBackup(const QString& file, const QList<ClubBackup>& backups) {
  frmRestore dialog(file, backups, QApplication::activeWindow());
  return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : -1;
}

void DesktopOperator::Beep() {
  QApplication::beep();
}

void DesktopOperator::SetBusy(bool busy) {
  if (busy == busy_) return;
  busy_ = busy;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

QDateTime SystemClock::Now() const {
  return QDateTime::currentDateTime();
}

QString DesktopClipboard::Text() const {
  return QApplication::clipboard()->text();
}

void DesktopClipboard::SetText(const QString& text) {
  QApplication::clipboard()->setText(text);
}

bool DesktopBrowser::Open(const QUrl& address) {
  if (address.isLocalFile() && !QFileInfo::exists(address.toLocalFile())) return false;
  return QDesktopServices::openUrl(address);
}

}  // namespace tavrelin
