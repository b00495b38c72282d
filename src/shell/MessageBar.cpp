#include "shell/MessageBar.h"

#include <QAccessible>
#include <QLabel>
#include <QStyle>

namespace tavrelin {

MessageBar::MessageBar(QWidget* parent)
    : QStatusBar(parent), icon_(new QLabel(this)), text_(new QLabel(this)) {
  setObjectName(QStringLiteral("stsInfo"));
  setAccessibleName(tr("Messages"));
  setSizeGripEnabled(false);
  text_->setObjectName(QStringLiteral("Panel1"));
  text_->setTextFormat(Qt::PlainText);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  addWidget(icon_);
  addWidget(text_, 1);
  icon_->hide();
}

void MessageBar::ShowRefusal(const QString& message) {
  Put(message, true);
}

void MessageBar::ShowNews(const QString& message) {
  Put(message, false);
}

void MessageBar::ClearMessage() {
  Put({}, false);
}

QString MessageBar::Message() const {
  return text_->text();
}

void MessageBar::Put(const QString& message, bool refusal) {
  refusal_ = refusal;
  ++stamp_;
  const int side = fontMetrics().height();
  icon_->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
  icon_->setVisible(refusal);
  QFont font = this->font();
  font.setBold(refusal);
  text_->setFont(font);
  text_->setText(message);
  text_->setAccessibleName(message);
  QAccessibleEvent alert(text_, QAccessible::Alert);
  if (!message.isEmpty()) QAccessible::updateAccessibility(&alert);
}

}  // namespace tavrelin
