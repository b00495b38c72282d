#include "players/clsUtility.h"

#include <QComboBox>

#include "controls/GridEX.h"
#include "players/Vocabulary.h"

namespace tavrelin {

ValueList AsValueList(const QList<CodeText>& codes) {
  ValueList values;
  for (const CodeText& entry : codes) values.Add(entry.code, entry.text);
  return values;
}

void clsUtility::LoadStateValueList(GridEX& grid, const QString& column) {
  ValueList values;
  for (const QString& code : StateCodes()) values.Add(code, code);
  grid.SetValueList(column, values);
}

void clsUtility::LoadStateCombo(QComboBox& combo) {
  combo.clear();
  for (const QString& code : StateFilterCodes()) combo.addItem(code, code);
}

}  // namespace tavrelin
