#include "controls/RecordCounter.h"

namespace tavrelin {

RecordCounter::RecordCounter(QWidget* parent) : QLabel(parent), caption_(tr("records")) {
  setObjectName(QStringLiteral("RecordCounter"));
  setTextFormat(Qt::PlainText);
  setMargin(4);
}

void RecordCounter::SetCaption(const QString& caption) {
  caption_ = caption;
  Show(row_, records_);
}

void RecordCounter::Show(int row, int records) {
  row_ = row;
  records_ = records;
  if (row > 0) {
    setText(tr("Record %1 of %2 %3").arg(row).arg(records).arg(caption_));
  } else if (row == -1) {
    setText(tr("New record, %1 %2").arg(records).arg(caption_));
  } else {
    setText(QStringLiteral("%1 %2").arg(records).arg(caption_));
  }
}

}  // namespace tavrelin
