#pragma once

#include <QMainWindow>
#include <QUrl>

#include "shell/Screen.h"

namespace tavrelin {

class Backdrop;
class ButtonBar;
class StartUp;

/// The main window: button bar at the left, opening picture, and over it one screen at a time. It
/// makes the screens once and hands them a place, visibility and nothing else; it knows nothing of
/// what a screen does. The window can be used before all of them stand: they are made one after the
/// other, hidden, while it waits for the operator, and one that is asked for before its turn at
/// once.
class frmStartUp : public QMainWindow {
  Q_OBJECT

 public:
  /// `screens` are made in their order. All of `surroundings` and `startUp` must outlive the
  /// window.
  frmStartUp(const Surroundings& surroundings, StartUp& startUp, const QList<MakeScreen>& screens,
             QWidget* parent = nullptr);
  ~frmStartUp() override;

  /// Starts the application up: chooses the database and brings it up to date. `commandLine` is a
  /// database path for this run, or empty. No failure gets out of it.
  void Form_Load(const QString& commandLine);

  /// Opens at the size and place it was left with, if that place is still on a screen.
  void ShowAsLeft();

  /// The screen now shown, or the last one shown while a group header hides it; null before the
  /// first button.
  Screen* uctControls() const { return uctControls_; }
  bool ModalActive() const { return modalActive_; }
  /// Whether the shown screen makes way (Screen::MayLeave). All that takes it away asks here: the
  /// bar, the menu, NextUserControl, closing the window, the end of the session.
  [[nodiscard]] bool MayLeave(Leaving why);
  /// False while screens are still being made behind the open window.
  bool AllScreensMade() const { return toMake_.isEmpty(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void bbMenu_GroupClick(const QString& group);
  void bbMenu_ItemClick(const QString& group, const QString& item);
  void uctControls_ModalBehavior(const Screen* sender, bool modal);
  void uctControls_NextUserControl(const Screen* sender, const QString& name);
  void Form_Resize();
  void mnuExit_Click();
  void mnuAbout_Click();
  void mnuHelp_Click();
  void mnuHelpDesk_Click();

  void MakeMenu();
  void MakeBar();
  void MakeNextScreen();
  Screen* FindScreen(const QString& name);
  void Listen(Screen* screen);
  void SizePicture();
  void HidePresentScreen();
  void ShowScreen(const QString& name);
  /// F1: the application's help file, or the manual in its place.
  void ShowHelpFile();
  void FocusScreen();
  void SwitchFocus();
  void OpenDocument(const QUrl& address, const QString& sentence);

  Surroundings surroundings_;
  StartUp& startUp_;
  QList<MakeScreen> toMake_;  ///< the screens that are not made yet, in their order
  CSError errors_;
  QUrl helpFile_;
  QWidget* inner_;
  Backdrop* image1_;
  ButtonBar* bbMenu_;
  Screen* uctControls_ = nullptr;
  bool modalActive_ = false;
};

}  // namespace tavrelin
