// The window. One optional argument, the path of a club's file for this run.

#include <cstdio>
#include <cstring>

#include "app/Screens.h"
#include "print/SystemPrinter.h"
#include "shell/Application.h"
#include "shell/Desktop.h"
#include "shell/DesktopProgress.h"
#include "shell/frmError.h"
#include "shell/frmStartUp.h"
#include "shell/SessionEnd.h"
#include "shell/StartUp.h"
#include "shell/Store.h"
#include "shell/SystemInfo.h"

namespace {

constexpr char Usage[] = "Usage: tavrelin [DATABASE]\n";

int OpenWindow(tavrelin::Application& application, const QString& database) {
  using namespace tavrelin;
  DesktopOperator person;
  SystemClock clock;
  DesktopClipboard clipboard;
  DesktopBrowser browser;
  Store store;
  SystemPrinter printer(person, store);
  DesktopProgress progress;
  const CSError::Display showError = ErrorDialog(clipboard);
  application.SetErrorDisplay(showError);
  StartUp startUp(store, showError);
  frmStartUp window({person, clock, clipboard, browser, store, printer, progress, showError},
                    startUp, AllScreens());
  window.Form_Load(database);
  window.ShowAsLeft();
  const SessionEnd sessionEnd(window);
  const int result = application.exec();
  application.SetErrorDisplay({});
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
    std::fputs(Usage, stdout);
    return 0;
  }
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("Tavrelin %s\n", qPrintable(tavrelin::ProgramVersion()));
    return 0;
  }
  if (argc > 2 || (argc == 2 && argv[1][0] == '-')) {
    std::fputs(Usage, stderr);
    return 2;
  }
  tavrelin::Application application(argc, argv);
  return OpenWindow(application, application.arguments().value(1));
}
