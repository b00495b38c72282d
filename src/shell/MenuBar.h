#pragma once

#include <QMenuBar>

namespace tavrelin {

/// A menu bar on which two commands may share a letter: the letter then walks from one to the
/// other, and Enter runs the one that is marked.
class MenuBar : public QMenuBar {
  Q_OBJECT

 public:
  using QMenuBar::QMenuBar;

 protected:
  bool event(QEvent* event) override;

 private:
  void MarkNext(QChar letter);
};

}  // namespace tavrelin
