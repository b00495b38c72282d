#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include "command/CommandLine.h"

namespace tavrelin {

/// What a command of tavrelinctl ended with and wrote.
struct CommandAnswer {
  int code = -1;
  QString out;
  QString err;
};

inline CommandAnswer Ask(const QList<Command>& commands, const QStringList& arguments) {
  CommandAnswer answer;
  QTextStream out(&answer.out);
  QTextStream err(&answer.err);
  answer.code = RunCommandLine(commands, arguments, out, err);
  return answer;
}

}  // namespace tavrelin
