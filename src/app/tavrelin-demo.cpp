// Plays on the real window where there is no display, and leaves pictures of it.
//
//     tavrelin-demo DATABASE FOLDER

#include <cstdio>
#include <QAbstractButton>
#include <QDir>

#include "print/SystemPrinter.h"
#include "shell/Application.h"
#include "shell/Desktop.h"
#include "shell/frmAbout.h"
#include "shell/frmError.h"
#include "shell/frmStartUp.h"
#include "shell/Routes.h"
#include "shell/StartUp.h"
#include "shell/Store.h"

namespace tavrelin {
namespace {

/// Drives a window by the names of its buttons.
class Player {
 public:
  Player(const Surroundings& surroundings, frmStartUp& window, QDir folder)
      : surroundings_(surroundings), window_(window), folder_(std::move(folder)) {}

  bool AllSaved() const { return saved_; }

  void ShowTheWindow() {
    window_.resize(1366, 700);
    window_.show();
    Shot(window_, "window");
    for (const QString& group : Groups()) {
      Press(window_, group);
      Shot(window_, QLatin1String("window-") + group.toLower());
    }
  }

  void ShowTheDialogs() {
    frmAbout about(surroundings_);
    about.show();
    Shot(about, "about");
    frmError error({{},
                    "The disk is full. Free some space and try again.",
                    "The disk is full. Free some space and try again.",
                    "cmdSample_Click",
                    75},
                   surroundings_.clipboard);
    error.show();
    Shot(error, "error");
    Press(error, "cmdDetails");
    Shot(error, "error-details");
  }

 private:
  void Press(QWidget& window, const QString& button) {
    window.findChild<QAbstractButton*>(button)->click();
    QCoreApplication::processEvents();
  }

  void Shot(QWidget& window, const QString& name) {
    QCoreApplication::processEvents();
    const QString file = folder_.filePath(name + QLatin1String(".png"));
    const bool saved = window.grab().save(file);
    saved_ = saved_ && saved;
    std::printf("%s %s\n", saved ? "picture" : "cannot write", qPrintable(file));
  }

  const Surroundings& surroundings_;
  frmStartUp& window_;
  QDir folder_;
  bool saved_ = true;
};

int Play(const QString& database, const QDir& folder) {
  DesktopOperator person;
  SystemClock clock;
  DesktopClipboard clipboard;
  DesktopBrowser browser;
  Store store(folder.filePath(QStringLiteral("demo-settings.ini")));
  SystemPrinter printer(person, store);
  int failures = 0;
  const CSError::Display showError = [&failures](const ErrorReport& report) {
    ++failures;
    std::fprintf(stderr, "%s\n", qPrintable(report.description));
  };
  static_cast<Application*>(qApp)->SetErrorDisplay(showError);
  const Surroundings surroundings{person, clock, clipboard, browser, store, printer, showError};
  StartUp startUp(store, showError);
  frmStartUp window(surroundings, startUp);
  window.Form_Load(database);
  Player player(surroundings, window, folder);
  player.ShowTheWindow();
  player.ShowTheDialogs();
  window.close();
  return failures == 0 && player.AllSaved() ? 0 : 1;
}

}  // namespace
}  // namespace tavrelin

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  tavrelin::Application application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 3 || !QDir().mkpath(arguments[2])) {
    std::fputs("Usage: tavrelin-demo DATABASE FOLDER\n", stderr);
    return 2;
  }
  return tavrelin::Play(arguments[1], QDir(arguments[2]));
}
