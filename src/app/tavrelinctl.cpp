#include <cstdio>
#include <QCoreApplication>
#include <QTextStream>

#include "app/ClubCommands.h"
#include "play/Commands.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  const QList<tavrelin::Command> commands = tavrelin::ClubCommands() + tavrelin::PlayCommands();
  const int code =
      tavrelin::RunCommandLine(commands, QCoreApplication::arguments().sliced(1), out, err);
  out.flush();
  if (out.status() == QTextStream::Ok) return code;
  err << "The output could not be written.\n";
  return tavrelin::exits::Refused;
}
