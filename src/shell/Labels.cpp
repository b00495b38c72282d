#include "shell/Labels.h"

#include <QLabel>

namespace tavrelin {

namespace {

QLabel* NewLabel(const QString& name, const QString& text, double size, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  QFont font = label->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * size);
  label->setFont(font);
  return label;
}

}  // namespace

QLabel* NewTitle(const QString& name, const QString& text, QWidget* parent) {
  return NewLabel(name, text, 1.4, parent);
}

QLabel* NewHeading(const QString& name, const QString& text, QWidget* buddy, QWidget* parent) {
  QLabel* label = NewLabel(name, text, 1.0, parent);
  label->setBuddy(buddy);
  return label;
}

}  // namespace tavrelin
