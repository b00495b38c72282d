#include "tournament/TournamentBox.h"

#include <QLineEdit>

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
  connect(this, &QComboBox::activated, this, [this] { TextSettled(); });
  connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { TextSettled(); });
}

void TournamentBox::Offer(const QList<TournamentChoice>& choices, const QString& preset) {
  clear();
  for (const TournamentChoice& choice : choices) addItem(choice.text);
  setCurrentIndex(findText(preset, Qt::MatchFixedString));
  setEditText(preset);
  settled_ = preset;
}

QString TournamentBox::SanctionID() const {
  return SanctionOfComboText(currentText());
}

void TournamentBox::TextSettled() {
  if (currentText() == settled_) return;
  settled_ = currentText();
  Q_EMIT Chosen();
}

}  // namespace tavrelin
