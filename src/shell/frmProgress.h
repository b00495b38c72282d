#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tavrelin {

/// How far long work is, over the window and in its way: nothing else can be started until it is
/// hidden. Esc, its button and its close button alike ask for the end of the work, where the work
/// allows it; it stays up until the work has stopped.
class frmProgress : public QDialog {
  Q_OBJECT

 public:
  /// `doing` is a sentence; `total` as in Progress.
  frmProgress(const QString& doing, int total, bool mayCancel, QWidget* parent = nullptr);

  void ShowDone(int done);
  bool IsCancelled() const { return cancelled_; }

 public Q_SLOTS:
  void reject() override;

 private:
  void LayOut();
  QString CountText(int done) const;

  int total_;
  bool mayCancel_;
  bool cancelled_ = false;
  QLabel* lblDoing_;
  QProgressBar* prgDone_;
  QLabel* lblCount_;
  QPushButton* cmdCancel_;
};

}  // namespace tavrelin
