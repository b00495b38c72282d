#pragma once

#include <array>
#include <QObject>
#include <QSocketNotifier>

class QSessionManager;

namespace tavrelin {

class frmStartUp;

/// Brings the end of the operator's session to the window, so that no typed row is lost without a
/// word: the desktop's own announcement, and the signals by which a session (SIGTERM, SIGHUP) or a
/// terminal (SIGINT) ends a program. A signal closes the window as the operator would; dialogs are
/// answered as Esc answers them first. A second signal before the window has answered ends the
/// program at once: what was saved is safe on disk.
///
/// One at a time; it gives the signals back when it ends.
class SessionEnd : public QObject {
  Q_OBJECT

 public:
  /// The window must outlive it.
  explicit SessionEnd(frmStartUp& window);
  ~SessionEnd() override;

  /// Whether the session may end: rows are saved, and where the desktop lets the program ask, the
  /// operator is asked about one that cannot be.
  [[nodiscard]] bool MayEnd(bool mayAsk);

 private:
  void Answer(QSessionManager& manager);
  void SignalArrived();
  void CloseWindow();

  frmStartUp& window_;
  std::array<int, 2> pipe_;  ///< the event loop reads the first end, the handler writes
  QSocketNotifier notifier_;
};

}  // namespace tavrelin
