#pragma once

#include <memory>
#include <QTemporaryDir>
#include <QWidget>

#include "shell/Screen.h"
#include "shell/Store.h"
#include "support/FakePrinter.h"
#include "support/FakeSurroundings.h"

namespace tavrelin {

/// Where a test drives a screen as a person does: by keys and clicks on controls found by name,
/// with the outside world played by fakes. Everything is made anew for each bench: an empty store,
/// a club file as the program delivers it, and ConnectString pointing to that file.
/// At the end an error nobody took and an answer nobody asked for fail the test.
///
///     ScreenBench bench;
///     auto& screen = bench.Show<uctProfile>();
///     bench.Click("cmdDelete");
class ScreenBench {
 public:
  ScreenBench();
  /// The same on a club file that is there already and stays.
  explicit ScreenBench(const QString& clubFile);
  ~ScreenBench();
  ScreenBench(const ScreenBench&) = delete;
  ScreenBench& operator=(const ScreenBench&) = delete;

  FakeOperator person;
  FakeClock clock;
  FakeClipboard clipboard;
  FakeBrowser browser;
  FakePrinter printer;
  FakeProgress progress;
  ErrorRecorder errors;

  Store& store() { return *store_; }
  Surroundings around();
  /// A path in the bench's own folder, which goes when the bench ends.
  QString PathOf(const QString& name) const { return folder_.filePath(name); }
  /// The club file of ConnectString.
  const QString& ClubFile() const { return clubFile_; }

  /// Makes a screen, the size it has on a 1366 by 768 laptop, and shows it. The bench owns it.
  template <class ScreenClass>
  ScreenClass& Show() {
    auto* screen = new ScreenClass(around(), Host());
    ShowScreen(screen);
    return *screen;
  }
  /// Hides the screen and shows it again, as the button bar does.
  void LeaveAndReturn();
  /// Hides the screen, as the button bar does once the screen makes way.
  void Leave();

  /// The window that keys and clicks go to and names are looked up in; Show sets it to the bench's
  /// own window, a dialog or frmStartUp may be put in its place.
  void Drive(QWidget* window) { driven_ = window; }

  /// A control by its objectName, visible or not. Throws std::runtime_error when there is none (a
  /// test cannot go on).
  template <class Control = QWidget>
  Control& Find(const QString& name) {
    auto* control = qobject_cast<Control*>(&FindWidget(name));
    if (!control) Fail(name + QStringLiteral(" is another kind of control"));
    return *control;
  }
  bool Has(const QString& name) const;
  void Click(const QString& name);
  void Click(QWidget& control);
  /// Types into the control that has the focus.
  void Type(const QString& text);
  /// Types into a control, replacing what stands there.
  void Fill(const QString& name, const QString& text);
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Focus(const QString& name);
  /// Picks a row of a combo by its text, as a person does with the list open.
  void Pick(const QString& comboName, const QString& text);
  QString FocusName() const;
  /// The first panel of stsInfo.
  QString Message();
  /// True when that message is a refusal.
  bool Refused();
  void ProcessEvents();

  /// Saves a picture of the driven window as NAME.png in the folder that the environment variable
  /// TAVRELIN_SHOTS names; does nothing without it.
  void Shot(const QString& name);

 private:
  QWidget* Host();
  void ShowScreen(Screen* screen);
  QWidget& FindWidget(const QString& name);
  [[noreturn]] static void Fail(const QString& why);

  QTemporaryDir folder_;
  QString clubFile_;
  std::unique_ptr<Store> store_;
  std::unique_ptr<QWidget> host_;
  Screen* screen_ = nullptr;
  QWidget* driven_ = nullptr;
};

/// Texts of labels, buttons and tabs of a window that do not fit the room they have, as
/// "name: text"; empty when nothing is cut.
QStringList CutTexts(const QWidget& window);

/// Fusion's look in light and dark, for pictures and for tests of both.
void UseLightPalette();
void UseDarkPalette();

}  // namespace tavrelin
