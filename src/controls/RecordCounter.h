#pragma once

#include <QLabel>

namespace tavrelin {

/// The foot of a grid: "Record 5 of 120 records".
class RecordCounter : public QLabel {
  Q_OBJECT

 public:
  explicit RecordCounter(QWidget* parent);

  void SetCaption(const QString& caption);
  /// Row as GridEX counts: -1 the new-record row, 0 none.
  void Show(int row, int records);

 private:
  QString caption_;
  int row_ = 0, records_ = 0;
};

}  // namespace tavrelin
