#pragma once

#include <QIcon>
#include <QList>
#include <QScrollArea>

namespace tavrelin {

class BarButton;

/// The groups of a ButtonBar as they stand from top to bottom, each with its items.
struct BarItem {
  QString caption;
  QIcon icon;
};
struct BarGroup {
  QString caption;
  QIcon icon;
  QList<BarItem> items;
};

/// A bar of groups, one of them open and showing its items. It reports what was pressed and changes
/// nothing by itself: whoever listens opens the group or marks the item, or refuses.
///
/// The bar is one stop of the Tab order; within it Up, Down, Home and End walk over headers and the
/// open group's items, Enter and Space press. Buttons carry "Group" and "Group/Item" as objectName.
class ButtonBar : public QScrollArea {
  Q_OBJECT

 public:
  explicit ButtonBar(QWidget* parent = nullptr);

  /// Fills the bar and opens the first group.
  void SetGroups(const QList<BarGroup>& groups);
  /// Shows a group's items and hides all others; an unknown caption changes nothing.
  void OpenGroup(const QString& group);
  const QString& OpenedGroup() const { return opened_; }
  /// Marks the one item whose screen is up; an empty item marks none.
  void MarkItem(const QString& group, const QString& item);
  /// Puts the keyboard on the marked item, or on the header of the open group.
  void FocusBar();

 Q_SIGNALS:
  void GroupClick(const QString& group);
  void ItemClick(const QString& group, const QString& item);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  BarButton* AddButton(const QString& group, const QString& item, const QIcon& icon);
  QList<BarButton*> Walkable() const;
  void Walk(int to);
  void MakeTabStop(BarButton* button);
  void FitWidth();

  QList<BarButton*> buttons_;
  QString opened_;
};

}  // namespace tavrelin
