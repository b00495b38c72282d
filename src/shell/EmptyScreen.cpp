#include "shell/EmptyScreen.h"

#include <QLabel>
#include <QVBoxLayout>

#include "shell/MessageBar.h"

namespace tavrelin {

EmptyScreen::EmptyScreen(const QString& name, const QString& title,
                         const Surroundings& surroundings, QWidget* parent)
    : Screen(name, title, surroundings, parent) {
  auto* lblTitle = new QLabel(title, this);
  lblTitle->setObjectName(QStringLiteral("lblTitle"));
  QFont large = lblTitle->font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  large.setBold(true);
  lblTitle->setFont(large);
  auto* lblLine = new QLabel(tr("This page is not part of this program yet. Your records are safe; "
                                "please choose another page at the left."),
                             this);
  lblLine->setObjectName(QStringLiteral("lblLine"));
  lblLine->setWordWrap(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 0);
  column->setSpacing(16);
  column->addWidget(lblTitle);
  column->addWidget(lblLine);
  column->addStretch();
  column->addWidget(stsInfo());
}

}  // namespace tavrelin
