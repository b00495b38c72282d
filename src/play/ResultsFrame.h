#pragma once

#include <QGroupBox>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace tavrelin {

struct PlayFormat;
struct ResultsChoice;

/// The frame "Class Results" (`Frame3`): which sections are told, and their way to paper.
class ResultsFrame : public QGroupBox {
  Q_OBJECT

 public:
  ResultsFrame(const PlayFormat& format, QWidget* parent);

  /// A doubles class has no brief standings.
  ResultsChoice Choice() const;
  bool IsBrief() const;
  void SetBrief(bool brief);
  /// As they stand in the box; doubles prints once.
  int Copies() const;
  void ResetCopies();
  /// A section has to be chosen.
  void FocusStandings();

 Q_SIGNALS:
  void PrintWanted();
  void PreviewWanted();

 private:
  void BuildControls(bool singles);
  void LayOut();

  QCheckBox* chkStandings_;
  QCheckBox* chkBoxScores_;
  QCheckBox* chkBrief_ = nullptr;  ///< singles only, as is the next one
  QLineEdit* txtCopies_ = nullptr;
  QPushButton* cmdPrintResults_;
  QPushButton* cmdPreviewResults_;
};

}  // namespace tavrelin
