#pragma once

#include <memory>
#include <optional>
#include <QDateTime>

#include "print/OutputTarget.h"
#include "shell/Screen.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace tavrelin {

class CardFrame;
class CourtBox;
class ExportFrame;
class ResultsFrame;
class TournamentBox;
struct ClassResults;
struct GridColEdit;
struct GridFetchData;
struct GridFetchIcon;
struct GridKeyDown;
struct PlayFormat;

/// Where a class is played, singles or doubles: loaded and paired in the upper band, its scores
/// typed on the first tab, its standing and all that follows from it on the second.
///
/// A class is unpaired (courts, rounds, bye or pacer can be chosen) or paired (games can be typed).
/// Only Create Pair and Delete Pair lead from one to the other.
class PlayScreen : public Screen {
  Q_OBJECT

 public:
  PlayScreen(const QString& name, const QString& title, const PlayFormat& format,
             const Surroundings& surroundings, QWidget* parent);
  ~PlayScreen() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void BuildControls();
  void BuildScores();
  void BuildStandings();
  void WireUp();
  void LayOut();
  QWidget* PairingBand();
  QWidget* ScoresPage();
  QWidget* ResultsPage();
  QWidget* OutputFrames();
  QWidget* OverrideFrame();

  void cboTournaments_LostFocus();
  void cboLoad_Click();
  void optBye_Click();
  void cmdCreatePair_Click();
  void cmdDeletePair_Click();
  void chkChecker_Click();
  void chkForfeit_Click();
  void cmdView_Click();
  void cmdOverride_Click();
  void cmdPrintPair_Click();
  void cmdPrintResults_Click();
  void cmdPreviewResults_Click();
  void cmdExport_Click();
  void chkExport_Click();
  void SSTab1_Click();
  void GridEX1_KeyDown(GridKeyDown& event);
  void GridEX1_RowColChange(int lastRow);
  void GridEX1_AfterColEdit(GridColEdit& event);
  void GridEX1_BeforeUpdate(GridUpdate& event);
  void GridEX1_FetchIcon(GridFetchIcon& event);
  void GridEX2_FetchData(GridFetchData& event);

  /// Reads the class into the screen; false, and said why, when it has no entrants.
  bool ReadClass(const QString& classID);
  void ShowUnpaired();
  void ShowPaired();
  void ShowNothing();
  void SetPairingEnabled(bool enabled);
  /// Lets go of the class; false when a row of scores was refused and must be mended first.
  bool DropClass();
  void NameEntrants();
  void ShowStandings();
  void ShowOverride();
  void RestoreChoices();
  void StoreChoices();

  /// What the club set for its cards and sheets.
  void ReadPaperSettings();
  /// The way that all buttons for results have in common: checks, then the ranking as the director
  /// left it. Nothing when it was barred, and said why.
  std::optional<ClassResults> RankForOutput();
  /// The same, and the operator was asked about results that seem to be missing.
  std::optional<ClassResults> ResultsForPaper();
  bool SheetWouldHaveGaps() const;
  /// `results` must outlive the report.
  Report SheetOf(const ClassResults& results) const;
  void ReturnToGames();

  const PlayFormat& format_;
  TournamentBox* cboTournaments_;
  QComboBox* cboClasses_;
  QPushButton* cmdLoad_;
  CourtBox* courts_;
  QComboBox* cboRounds_;
  QRadioButton* optBye_;
  QRadioButton* optPacer_;
  QPushButton* cmdCreatePair_;
  QPushButton* cmdDeletePair_;
  QTabWidget* SSTab1_;
  GridEX* GridEX1_;
  GridEX* GridEX2_;
  QCheckBox* chkChecker_;
  QCheckBox* chkForfeit_;
  QPushButton* cmdView_;
  CardFrame* Frame2_;
  ResultsFrame* Frame3_;
  ExportFrame* Frame4_;
  QCheckBox* chkExport_;
  QLabel* lblOverride_;
  QPushButton* cmdOverride_;

  QString sanctionID_;
  struct Data;  ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
