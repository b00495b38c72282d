#include "play/CourtBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace tavrelin {

namespace {

constexpr int CourtWidth = 3;

}  // namespace

CourtBox::CourtBox(QWidget* parent)
    : QWidget(parent), txtCourts_(new QLineEdit(this)), lblCourtOf_(new QLabel(this)) {
  txtCourts_->setObjectName("txtCourts");
  txtCourts_->setAccessibleName("Court");
  txtCourts_->setMaxLength(CourtWidth);
  txtCourts_->setMaximumWidth(txtCourts_->fontMetrics().averageCharWidth() * 9);
  txtCourts_->installEventFilter(this);
  lblCourtOf_->setObjectName("lblCourtOf");
  lblCourtOf_->setMinimumWidth(lblCourtOf_->fontMetrics().horizontalAdvance("00 of 00"));
  down_ = AddButton("UpDown1_Down", Qt::DownArrow, "Next court");
  up_ = AddButton("UpDown1_Up", Qt::UpArrow, "Previous court");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->setSpacing(4);
  for (QWidget* part : QWidgetList{txtCourts_, up_, down_, lblCourtOf_}) row->addWidget(part);
  connect(down_, &QToolButton::clicked, this, [this] { UpDown1_DownClick(); });
  connect(up_, &QToolButton::clicked, this, [this] { UpDown1_UpClick(); });
  connect(txtCourts_, &QLineEdit::textEdited, this,
          [this](const QString& text) { txtCourts_Change(text); });
  Clear();
}

QToolButton* CourtBox::AddButton(const QString& name, Qt::ArrowType arrow, const QString& spoken) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setArrowType(arrow);
  button->setAccessibleName(spoken);
  button->setToolTip(spoken);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void CourtBox::Offer(const QStringList& courts) {
  courts_ = courts;
  setEnabled(true);
  ShowCourt(0);
}

void CourtBox::Clear() {
  courts_.clear();
  index_ = 0;
  txtCourts_->clear();
  lblCourtOf_->clear();
  setEnabled(false);
}

void CourtBox::TakeFocus() {
  txtCourts_->setFocus();
  txtCourts_->selectAll();
}

QWidget* CourtBox::Box() const {
  return txtCourts_;
}

bool CourtBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    QMetaObject::invokeMethod(txtCourts_, &QLineEdit::selectAll, Qt::QueuedConnection);
  } else if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down) UpDown1_DownClick();
    if (key == Qt::Key_Up) UpDown1_UpClick();
    if (key == Qt::Key_Down || key == Qt::Key_Up) return true;
  }
  return QWidget::eventFilter(watched, event);
}

void CourtBox::UpDown1_DownClick() {
  if (index_ + 1 < courts_.size()) ShowCourt(index_ + 1);
}

void CourtBox::UpDown1_UpClick() {
  if (index_ > 0) ShowCourt(index_ - 1);
}

void CourtBox::txtCourts_Change(const QString& text) {
  if (index_ < courts_.size()) courts_[index_] = text.left(CourtWidth).leftJustified(CourtWidth);
}

void CourtBox::ShowCourt(qsizetype index) {
  if (index >= courts_.size()) return;
  index_ = index;
  txtCourts_->setText(courts_[index].trimmed());
  txtCourts_->selectAll();
  lblCourtOf_->setText(QString("%1 of %2").arg(index + 1).arg(courts_.size()));
}

}  // namespace tavrelin
