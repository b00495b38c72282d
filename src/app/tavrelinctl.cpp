#include <cstdio>
#include <QGuiApplication>
#include <QTextStream>

#include "app/ClubCommands.h"
#include "leagues/Commands.h"
#include "play/CardCommands.h"
#include "play/Commands.h"
#include "play/LeagueSendCommand.h"
#include "play/ResultsCommand.h"
#include "players/Commands.h"
#include "sample/Commands.h"

namespace {

// What the toolkit has to say about a session without a display is not for a script's error stream.
void KeepQuiet(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int main(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  // Reports are laid out with typefaces, which the toolkit has without any display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QtMessageHandler usual = qInstallMessageHandler(KeepQuiet);
  int nameAlone = 1;  // the toolkit would take an option like --style for its own
  const QGuiApplication application(nameAlone, argv);
  qInstallMessageHandler(usual);
  QTextStream out(stdout);
  QTextStream err(stderr);
  QList<tavrelin::Command> commands =
      tavrelin::ClubCommands() + tavrelin::PlayCommands() + tavrelin::CardCommands();
  commands << tavrelin::ResultsCommand() << tavrelin::LeagueSendCommand();
  commands += tavrelin::LeagueCommands();
  commands += tavrelin::PlayerCommands();
  commands += tavrelin::SampleCommands();
  const int code = tavrelin::RunCommandLine(commands, arguments, out, err);
  out.flush();
  if (out.status() == QTextStream::Ok) return code;
  err << "The output could not be written.\n";
  return tavrelin::exits::Refused;
}
