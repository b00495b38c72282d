#pragma once

#include <QLineEdit>

namespace tavrelin {

/// A date that is typed, in US form, or picked from a calendar that drops down. What is typed and
/// is no date is left as it is: the row's checks tell the operator.
class DateEdit : public QLineEdit {
  Q_OBJECT

 public:
  /// `keepsTime`: picking a day keeps the time that stands in the text. `picture` writes a picked
  /// date; empty for "m/d/yyyy" with its time.
  DateEdit(bool keepsTime, const QString& picture, QWidget* parent);

  /// Opens the calendar at the date typed, or at today.
  void DropDown();

 private:
  void Pick(const QDate& day);

  bool keepsTime_;
  QString picture_;
};

}  // namespace tavrelin
