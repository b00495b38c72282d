#pragma once

#include <QApplication>
#include <QPointer>

#include "shell/CSError.h"

namespace tavrelin {

/// The application object: the program's look, and the net under everything that Qt calls. An
/// exception out of any event, timer or paint ends in the error dialog, and the program goes on.
///
/// While the dialog is up, the same failure is not shown a second time, and another one waits until
/// it is closed. A control whose painting fails in the same way again and again is told of once.
class Application : public QApplication {
  Q_OBJECT

 public:
  static constexpr double SmallestFont = 10.5;  ///< points

  Application(int& argc, char** argv);

  /// Where failures are shown; without one they go to standard error.
  void SetErrorDisplay(CSError::Display display) { display_ = std::move(display); }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  struct Failure {
    QPointer<QObject> receiver;
    bool painting = false;
    QString where;
    int number = 0;
    QString description;
    bool SameAs(const Failure& other) const;
  };

  void Report(const Failure& failure);
  void ShowNext();
  void ShowOne(const Failure& failure);

  CSError::Display display_;
  QList<Failure> waiting_;  ///< the first one is on the screen while showing_
  QList<Failure> painted_;  ///< painting failures already told
  bool showing_ = false;
};

/// Fusion, the platform's palette, no font under SmallestFont, the program's pictures and icon.
/// Also for programs with an application object of their own.
void UseTheLook();

}  // namespace tavrelin
