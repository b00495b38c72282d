#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QPointer>

class QListWidget;

namespace tavrelin {

/// The drop-down of a cell. A choice from the open list is a decision, told by Chosen; walking the
/// codes with the keys is not. Typing goes to the text that begins so, however slowly, blanks
/// included; the same letter again goes to the next text with it.
///
/// Made editable, it suggests the texts that begin with what is typed, hyphens and blanks left
/// aside. The suggestions lie in the same window and never take the keys: Up and Down bring one
/// into the cell, a click chooses it, typing on disregards them.
class ListEdit : public QComboBox {
  Q_OBJECT

 public:
  ListEdit(bool editable, QWidget* parent);
  ~ListEdit() override;

 Q_SIGNALS:
  void Chosen();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  // The wheel scrolls the grid; it must not change a code under the pointer.
  void wheelEvent(QWheelEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  bool Search(const QString& typed);
  int NextAfter(const QString& start) const;
  void Suggest(const QString& typed);
  QStringList Matches(const QString& typed) const;
  void PlaceSuggestions();
  bool Walk(int key);

  // A child of the window, which may end first.
  QPointer<QListWidget> suggestions_;
  QString searched_;
  QElapsedTimer pause_;
  bool byKey_ = false;
};

}  // namespace tavrelin
