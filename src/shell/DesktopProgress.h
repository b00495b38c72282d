#pragma once

#include <memory>
#include <QElapsedTimer>

#include "basic/Progress.h"

namespace tavrelin {

class frmProgress;

/// Progress shown by frmProgress, once the work has lasted half a second; the pointer is the
/// hourglass from the start. The window stays alive behind the dialog: its events are run between
/// the steps, so that steps should not take longer than a moment.
class DesktopProgress : public Progress {
 public:
  static constexpr int ShownAfter = 500;  ///< milliseconds

  DesktopProgress();
  ~DesktopProgress() override;

  void Begin(const QString& doing, int total, Cancel cancel) override;
  bool Step(int done) override;
  void End() override;

 private:
  void Open();
  void KeepAlive();

  std::unique_ptr<frmProgress> dialog_;  ///< once it is due
  QString doing_;
  int total_ = Unknown;
  Cancel cancel_ = Cancel::Never;
  QElapsedTimer clock_;
  qint64 due_ = 0;  ///< when the window's events are to be run next
  int depth_ = 0;   ///< pieces of work within each other; the outermost is shown
  int done_ = 0;
};

}  // namespace tavrelin
