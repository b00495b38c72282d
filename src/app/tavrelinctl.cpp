#include <cstdio>
#include <QGuiApplication>
#include <QTextStream>

#include "app/ClubCommands.h"
#include "play/Commands.h"
#include "play/ResultsCommand.h"

namespace {

// What the toolkit has to say about a session without a display is not for a script's error stream.
void KeepQuiet(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int main(int argc, char** argv) {
  // Reports are laid out with typefaces, which the toolkit has without any display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QtMessageHandler usual = qInstallMessageHandler(KeepQuiet);
  const QGuiApplication application(argc, argv);
  qInstallMessageHandler(usual);
  QTextStream out(stdout);
  QTextStream err(stderr);
  QList<tavrelin::Command> commands = tavrelin::ClubCommands() + tavrelin::PlayCommands();
  commands << tavrelin::ResultsCommand();
  const int code =
      tavrelin::RunCommandLine(commands, QCoreApplication::arguments().sliced(1), out, err);
  out.flush();
  if (out.status() == QTextStream::Ok) return code;
  err << "The output could not be written.\n";
  return tavrelin::exits::Refused;
}
