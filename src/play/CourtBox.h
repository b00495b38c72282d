#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace tavrelin {

/// The courts of a class, named one at a time: `txtCourts` shows one, `UpDown1` (or the Up and Down
/// keys) goes to the others. A court's name is free text of up to three characters; 12 stays a
/// name.
class CourtBox : public QWidget {
  Q_OBJECT

 public:
  explicit CourtBox(QWidget* parent);

  /// Shows the first of these courts, to be edited.
  void Offer(const QStringList& courts);
  /// Empty and disabled.
  void Clear();
  /// Left-justified in three characters.
  const QStringList& Courts() const { return courts_; }
  void TakeFocus();
  /// The field itself, for its label.
  QWidget* Box() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void UpDown1_DownClick();
  void UpDown1_UpClick();
  void txtCourts_Change(const QString& text);
  void ShowCourt(qsizetype index);
  QToolButton* AddButton(const QString& name, Qt::ArrowType arrow, const QString& spoken);

  QLineEdit* txtCourts_;
  QLabel* lblCourtOf_;
  QToolButton* up_;
  QToolButton* down_;
  QStringList courts_;
  qsizetype index_ = 0;  ///< from 0
};

}  // namespace tavrelin
