#include "tournament/TournamentBox.h"

#include <QLineEdit>
#include <QWheelEvent>
#include <utility>

#include "basic/SanctionNumber.h"
#include "tournament/Tournaments.h"

namespace tavrelin {

TournamentBox::TournamentBox(QWidget* parent) : QComboBox(parent) {
  setObjectName("cboTournaments");
  setAccessibleName("Tournament");
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setMinimumContentsLength(36);
  setMaxVisibleItems(16);
  connect(this, &QComboBox::activated, this,
          [this] { currentText() == settled_ ? Q_EMIT ChosenAgain() : TextSettled(); });
  connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { TextSettled(); });
}

void TournamentBox::Offer(const QList<Tournament>& tournaments, const QString& preset) {
  clear();
  for (const Tournament& tournament : tournaments)
    addItem(tournament.BoxText(), tournament.sanctionID);
  setCurrentIndex(findText(preset, Qt::MatchFixedString));
  setEditText(preset);
  settled_ = before_ = preset;
}

void TournamentBox::GoBack() {
  settled_ = before_;
  setCurrentIndex(findText(settled_, Qt::MatchFixedString));
  setEditText(settled_);
}

QString TournamentBox::SanctionID() const {
  const int offered = findText(currentText(), Qt::MatchFixedString);
  return offered < 0 ? SanctionOfComboText(currentText()) : itemData(offered).toString();
}

void TournamentBox::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

void TournamentBox::TextSettled() {
  if (currentText() == settled_) return;
  before_ = std::exchange(settled_, currentText());
  Q_EMIT Chosen();
}

}  // namespace tavrelin
