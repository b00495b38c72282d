#pragma once

#include <QStatusBar>

class QLabel;

namespace tavrelin {

/// The status bar of a screen (`stsInfo`). Its first panel is where the program speaks: news
/// plainly, refusals with an icon and in bold, so that no meaning rests on color alone. Screen
/// readers are told of both.
class MessageBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit MessageBar(QWidget* parent = nullptr);

  void ShowRefusal(const QString& message);
  void ShowNews(const QString& message);
  void ClearMessage();
  /// The text of the first panel; empty when there is none.
  QString Message() const;
  bool IsRefusal() const { return refusal_; }
  /// Tells one message from the next, also from one of the same text.
  int Stamp() const { return stamp_; }

 private:
  void Put(const QString& message, bool refusal);

  QLabel* icon_;
  QLabel* text_;
  bool refusal_ = false;
  int stamp_ = 0;
};

}  // namespace tavrelin
