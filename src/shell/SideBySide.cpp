#include "shell/SideBySide.h"

#include <QHBoxLayout>
#include <QLabel>

namespace tavrelin {

QHBoxLayout* SideBySide(const QList<HeadedPart>& parts) {
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  for (const HeadedPart& part : parts) {
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(part.heading);
    column->addWidget(part.content, 1);
    row->addLayout(column, part.share);
  }
  return row;
}

void LayOutSideBySide(QWidget* screen, QLabel* title, const QList<HeadedPart>& parts,
                      QWidget* messages) {
  auto* column = new QVBoxLayout(screen);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(title);
  column->addLayout(SideBySide(parts), 1);
  column->addWidget(messages);
}

}  // namespace tavrelin
