// What leaves a play screen on paper and as a text file.

#include <QCheckBox>

#include "controls/GridEX.h"
#include "data/SystemSettings.h"
#include "play/CardFrame.h"
#include "play/CardJob.h"
#include "play/CardSheets.h"
#include "play/ClassResults.h"
#include "play/ExportFrame.h"
#include "play/PlayFormat.h"
#include "play/PlayScreen.h"
#include "play/PlayScreenData.h"
#include "play/ResultsFrame.h"
#include "play/ResultsSheet.h"
#include "play/ResultsText.h"
#include "print/Printer.h"
#include "shell/Operator.h"

namespace tavrelin {

namespace {

QString TitleOf(const ClassResults& results) {
  return results.tournament + " - " + results.className;
}

}  // namespace

void PlayScreen::ReadPaperSettings() {
  const SystemSettings settings(data_->connection);
  data_->cardSettings = ReadCardSettings(settings, format_);
  data_->verticalOffset = settings.Twips(Setting::ResultsVertical);
  if (data_->cardSettings.backOnly) Frame2_->SelectFace(CardFace::Back);
}

// Cards

void PlayScreen::cmdPrintPair_Click() {
  const CardJob job =
      MakeCardJob(data_->connection, data_->loaded, data_->cardSettings, Frame2_->Choice());
  if (job.refusal) {
    Refuse(job.refusal.sentence);
    if (job.refusal.about == "To") Frame2_->FocusTo();
    return;
  }
  if (!job.question.isEmpty() && !around().person.Confirm(job.title, job.question)) return;
  if (!job.Prints()) return;
  const Report report = [&job](OutputTarget& target) { PrintCards(target, job); };
  const Printed printed = around().printer.Print(job.name, report);
  if (printed == Printed::Nowhere) return;
  Frame2_->SelectFace(job.nextFace);
  Say(PrintedText(printed));
  ReturnToGames();
}

// Results

void PlayScreen::cmdPrintResults_Click() {
  const std::optional<ClassResults> results = ResultsForPaper();
  if (!results) return;
  const Printed printed =
      around().printer.Print(TitleOf(*results), SheetOf(*results), Frame3_->Copies());
  if (printed == Printed::Nowhere) return;
  Frame3_->ResetCopies();
  around().person.Beep();
  Say(PrintedText(printed));
  ReturnToGames();
}

void PlayScreen::cmdPreviewResults_Click() {
  const std::optional<ClassResults> results = ResultsForPaper();
  if (!results) return;
  around().printer.Preview(TitleOf(*results), SheetOf(*results));
  ReturnToGames();
}

void PlayScreen::cmdExport_Click() {
  const std::optional<ClassResults> results = RankForOutput();
  if (!results) return;
  Frame4_->SetPath(ResultsFolder(Frame4_->Path(), results->doubles));
  const QString text = ExportTheClass(*results, Frame3_->Choice());
  const Refusal refusal = WriteResults(Frame4_->Path(), Frame4_->File(), text);
  if (refusal) return Refuse(refusal.sentence);
  around().person.Beep();
  Say("File has been created");
  ReturnToGames();
}

void PlayScreen::chkExport_Click() {
  Frame4_->setVisible(chkExport_->isChecked());
  Frame2_->setVisible(!chkExport_->isChecked());
}

std::optional<ClassResults> PlayScreen::RankForOutput() {
  const ResultsChoice choice = Frame3_->Choice();
  if (!choice.standings && !choice.boxScores) {
    Refuse("Check either Standings or Box Scores or both");
    Frame3_->FocusStandings();
    return {};
  }
  if (!GridEX1_->CommitRow()) return {};
  if (!format_.IsDoubles() && data_->loaded.games.RecordCount() == 0) {
    Refuse("Round robin has not been created");
    return {};
  }
  Standings standings =
      RankTheClass(data_->connection, data_->loaded.rules, StandingOrder::Directed);
  if (!standings.refusal) return ReadResults(data_->connection, standings);
  Refuse(standings.refusal.sentence);
  return {};
}

// The warning is for the sheet alone; a text file is quickly written again.
std::optional<ClassResults> PlayScreen::ResultsForPaper() {
  std::optional<ClassResults> results = RankForOutput();
  if (results && SheetWouldHaveGaps() &&
      !around().person.Confirm("Confirm Results Print",
                               "Results appear to be missing.  Do you wish to continue?")) {
    return {};
  }
  return results;
}

bool PlayScreen::SheetWouldHaveGaps() const {
  return !format_.IsDoubles() && data_->cardSettings.confirms &&
         ResultsMissing(ReadGames(data_->loaded.games, format_));
}

Report PlayScreen::SheetOf(const ClassResults& results) const {
  return [&results, choice = Frame3_->Choice(), offset = data_->verticalOffset](
             OutputTarget& target) { PrintTheClass(target, results, choice, offset); };
}

// From the Results tab the games cannot be seen; the focus stays on the button then.
void PlayScreen::ReturnToGames() {
  if (!GridEX1_->isVisible()) return;
  GridEX1_->SetRow(1);
  GridEX1_->setFocus();
}

}  // namespace tavrelin
