#include "tournament/TournamentBox.h"

#include <QLineEdit>
#include <QWheelEvent>
#include <utility>

#include "basic/SanctionNumber.h"
#include "tournament/Entries.h"

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

void TournamentBox::Offer(const QList<TournamentChoice>& choices, const QString& preset) {
  clear();
  for (const TournamentChoice& choice : choices) addItem(choice.text);
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
  return SanctionOfComboText(currentText());
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
