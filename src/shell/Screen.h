#pragma once

#include <functional>
#include <optional>
#include <QWidget>

#include "shell/CSError.h"
#include "shell/Leaving.h"

class QStatusBar;

namespace tavrelin {

class Browser;
class Clipboard;
class Clock;
class GridEX;
class MessageBar;
class Operator;
class Printer;
class Progress;
class Store;
struct GridUpdate;
struct RowCheck;

/// Everything outside a screen that it may use, handed in by the window (or by a test). The window
/// owns all of it; it outlives the screens.
struct Surroundings {
  Operator& person;
  Clock& clock;
  Clipboard& clipboard;
  Browser& browser;
  Store& store;
  Printer& printer;
  Progress& progress;
  CSError::Display showError;
};

/// The base of the panels beside the button bar. Created once, hidden; shown and hidden by the
/// window; never destroyed before it. A screen opens its own connection in UserControl_Show and
/// drops it, with all its recordsets, in UserControl_Hide: nothing of the data survives in a hidden
/// screen.
///
/// Whatever takes a screen away asks MayLeave first.
///
/// A message stays in stsInfo until the next key or click in the screen that acts; the screens
/// clear nothing for that.
///
/// Its objectName is its name ("uctProfile"); every control in it carries its own name as
/// objectName too.
class Screen : public QWidget {
  Q_OBJECT

 public:
  Screen(const QString& name, const QString& title, const Surroundings& surroundings,
         QWidget* parent);
  ~Screen() override;

  const QString& Title() const { return title_; }

  /// Saves the typed rows of all grids in the screen. False, and the screen is to stay: a row was
  /// refused, the message says why, and the cursor is in its grid; or the screen has another reason
  /// (Holds). With Leaving::Window the operator may give the refused row up, and it is dropped.
  [[nodiscard]] bool MayLeave(Leaving why);

 Q_SIGNALS:
  /// Asks the window to show another screen in place of this one.
  void NextUserControl(const QString& screen);
  /// True locks the operator into this screen, false lets go.
  void ModalBehavior(bool modal);

 protected:
  /// Opens the connection, fills the controls. The busy pointer is taken back by the base
  /// afterwards.
  virtual void UserControl_Show() {}
  /// Stores what the operator left, drops recordsets and connection. The rows of the grids are
  /// saved by then.
  virtual void UserControl_Hide() {}
  /// True keeps the screen for a reason beyond its rows, which are saved by then but for
  /// Leaving::Aside; says why with Refuse, and asks before it lets typed work be lost.
  virtual bool Holds(Leaving why);

  /// Runs an event procedure under its name within this screen's CSError.
  bool Event(const char* procedure, const std::function<void()>& body) {
    return errors_.Run(procedure, body);
  }
  /// Event, to be handed to a control that raises events of its own (GridEX).
  std::function<bool(const char*, const std::function<void()>&)> Guard() {
    return [this](const char* procedure, const std::function<void()>& body) {
      return Event(procedure, body);
    };
  }

  /// A refusal in the first panel of stsInfo: beep, icon and text; it stays until the next action.
  void Refuse(const QString& message);
  /// News in the first panel: no beep.
  void Say(const QString& message);

  /// The question of a rule, put to the operator; true is Yes.
  bool Ask(const RowCheck& check);
  /// Carries a rule's answer out on the row that a grid is about to save: fixes, verdict, message.
  void Settle(const RowCheck& check, GridEX& grid, GridUpdate& update);

  const Surroundings& around() const { return surroundings_; }
  CSError& errors() { return errors_; }
  /// The status bar at the foot of the screen; the screen lays it out.
  MessageBar* stsInfo() const { return stsInfo_; }

  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  bool SaveRows(Leaving why);
  bool SaveRow(GridEX& grid, Leaving why);
  void BringForward(GridEX& grid);
  void ForgetMessage();

  QString title_;
  Surroundings surroundings_;
  CSError errors_;
  MessageBar* stsInfo_;
  std::optional<int> stale_;  ///< stamp of the message that a key or click found
};

/// Makes one screen; the parent owns it.
using MakeScreen = std::function<Screen*(const Surroundings&, QWidget* parent)>;

}  // namespace tavrelin
