#include "shell/DesktopProgress.h"

#include <QApplication>

#include "shell/frmProgress.h"

namespace tavrelin {

namespace {

constexpr int EventsEvery = 50;  // milliseconds

}  // namespace

DesktopProgress::DesktopProgress() = default;

DesktopProgress::~DesktopProgress() = default;

void DesktopProgress::Begin(const QString& doing, int total, Cancel cancel) {
  if (depth_++ > 0) return;
  doing_ = doing;
  total_ = total;
  cancel_ = cancel;
  clock_.start();
  due_ = ShownAfter;
  done_ = 0;
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

bool DesktopProgress::Step(int done) {
  if (depth_ == 1) done_ = done;
  if (clock_.elapsed() >= due_) KeepAlive();
  return !dialog_ || !dialog_->IsCancelled();
}

void DesktopProgress::Open() {
  dialog_ = std::make_unique<frmProgress>(doing_, total_, cancel_ == Cancel::Allowed,
                                          QApplication::activeWindow());
  dialog_->show();
  QApplication::changeOverrideCursor(Qt::BusyCursor);
}

// With the dialog up the rest of the program is barred, so that no event can start other work.
void DesktopProgress::KeepAlive() {
  if (!dialog_) Open();
  dialog_->ShowDone(done_);
  QCoreApplication::processEvents();
  due_ = clock_.elapsed() + EventsEvery;
}

void DesktopProgress::End() {
  if (--depth_ > 0) return;
  dialog_.reset();
  QApplication::restoreOverrideCursor();
}

}  // namespace tavrelin
