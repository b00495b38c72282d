#include "players/clsUtility.h"

#include "controls/Choices.h"
#include "controls/GridEX.h"
#include "players/Vocabulary.h"

namespace tavrelin {

namespace {

QList<CodeText> AsChoices(const QStringList& codes) {
  QList<CodeText> choices;
  for (const QString& code : codes) choices.append({code, code});
  return choices;
}

}  // namespace

void clsUtility::LoadStateValueList(GridEX& grid, const QString& column) {
  grid.SetValueList(column, AsChoices(StateCodes()));
}

void clsUtility::LoadStateCombo(QComboBox& combo) {
  Offer(combo, AsChoices(StateFilterCodes()));
}

}  // namespace tavrelin
