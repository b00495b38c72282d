// The program's own start, from main to a window that is painted and takes keys.
//
//     tavrelin_start_window DATABASE

#include <cstdlib>
#include <QTimer>

#include "app/Screens.h"
#include "print/SystemPrinter.h"
#include "shell/Application.h"
#include "shell/Desktop.h"
#include "shell/DesktopProgress.h"
#include "shell/frmError.h"
#include "shell/frmStartUp.h"
#include "shell/StartUp.h"
#include "shell/Store.h"
#include "start/PeakOfMemory.h"

int main(int argc, char** argv) {
  using namespace tavrelin;
  Application application(argc, argv);
  DesktopOperator person;
  SystemClock clock;
  DesktopClipboard clipboard;
  DesktopBrowser browser;
  Store store;
  SystemPrinter printer(person, store);
  DesktopProgress progress;
  const CSError::Display showError = ErrorDialog(clipboard);
  StartUp startUp(store, showError);
  frmStartUp window({person, clock, clipboard, browser, store, printer, progress, showError},
                    startUp, AllScreens());
  window.Form_Load(application.arguments().value(1));
  window.ShowAsLeft();
  QTimer::singleShot(0, &application, [&] {
    window.grab();
    TellPeakOfMemory();
    std::_Exit(0);  // closing is not part of the start
  });
  return application.exec();
}
