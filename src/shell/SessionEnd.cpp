#include "shell/SessionEnd.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <QApplication>
#include <QSessionManager>
#include <QTimer>

#include "basic/Error.h"
#include "shell/frmStartUp.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Signals = {SIGTERM, SIGHUP, SIGINT};
constexpr int DialogPause = 50;  // milliseconds, in which a closed dialog gives its answer

// A signal handler can reach nothing but a variable of the program.
std::atomic<int> SignalEnd = -1;

void WriteSignal(int) {
  const int error = errno;
  const char arrived = 1;
  [[maybe_unused]] const auto written = write(SignalEnd, &arrived, 1);
  errno = error;
}

// Each signal is caught once: the next one ends the program.
void CatchSignals() {
  struct sigaction action = {};
  action.sa_handler = WriteSignal;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  for (const int number : Signals) sigaction(number, &action, nullptr);
}

void ReleaseSignals() {
  for (const int number : Signals) std::signal(number, SIG_DFL);
}

// Programs that this one starts must not inherit it.
std::array<int, 2> OpenPipe() {
  std::array<int, 2> ends = {};
  if (pipe(ends.data()) != 0) {
    throw Error(errors::File, u"The end of the session cannot be noticed: no file is free."_s);
  }
  for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
  return ends;
}

}  // namespace

SessionEnd::SessionEnd(frmStartUp& window)
    : window_(window), pipe_(OpenPipe()), notifier_(pipe_[0], QSocketNotifier::Read) {
  connect(qApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::Answer,
          Qt::DirectConnection);
  connect(&notifier_, &QSocketNotifier::activated, this, [this] { SignalArrived(); });
  SignalEnd = pipe_[1];
  CatchSignals();
}

SessionEnd::~SessionEnd() {
  ReleaseSignals();
  notifier_.setEnabled(false);
  for (const int end : pipe_) close(end);
}

// An open dialog keeps the session until it is answered: what it asks about is not settled.
bool SessionEnd::MayEnd(bool mayAsk) {
  if (QApplication::activeModalWidget()) return false;
  return window_.MayLeave(mayAsk ? Leaving::Window : Leaving::Screen);
}

void SessionEnd::Answer(QSessionManager& manager) {
  const bool mayAsk = manager.allowsInteraction();
  if (!MayEnd(mayAsk) && mayAsk) manager.cancel();
  if (mayAsk) manager.release();
}

void SessionEnd::SignalArrived() {
  char arrived = 0;
  [[maybe_unused]] const auto count = read(pipe_[0], &arrived, 1);
  CloseWindow();
}

// The pause lets the procedure that asked come to its end before the window is closed over it.
void SessionEnd::CloseWindow() {
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog) {
    dialog->close();
    QTimer::singleShot(DialogPause, this, &SessionEnd::CloseWindow);
  } else if (!window_.close()) {
    CatchSignals();  // the operator stays, and the next end of a session asks again
  }
}

}  // namespace tavrelin
