#include "controls/Choices.h"

#include <QComboBox>

namespace tavrelin {

void Offer(QComboBox& box, const QList<CodeText>& choices) {
  box.clear();
  for (const CodeText& choice : choices) box.addItem(choice.text, choice.code);
}

QString ChosenCode(const QComboBox& box) {
  return box.currentData().toString();
}

}  // namespace tavrelin
