#pragma once

#include <exception>
#include <functional>
#include <QList>
#include <QString>
#include <QStringList>

#include "basic/Refusal.h"
#include "basic/Value.h"

class QTextStream;

namespace tavrelin {

class Recordset;

/// What a command ends with.
namespace exits {
inline constexpr int Done = 0;
inline constexpr int Refused = 1;     ///< the system's message is on the error stream
inline constexpr int WrongUsage = 2;  ///< the command cannot be read; its usage is shown
}  // namespace exits

/// Thrown by a command whose arguments make no sense; the usage is shown.
class WrongUsage : public std::exception {};

/// Ends a command with a rule's No: throws Error with its sentence, which RunCommandLine writes to
/// the error stream.
[[noreturn]] void Refuse(const Refusal& refusal);

/// One command of tavrelinctl. A folder offers its own as a list, and main puts the lists together.
struct Command {
  QString name;
  QString usage;    ///< with the arguments: "check FILE"
  QString purpose;  ///< one line
  int least = 0;    ///< number of arguments
  int most = 0;
  /// Returns an exit code. An Error that it throws becomes its message and `exits::Refused`.
  std::function<int(const QStringList& arguments, QTextStream& out, QTextStream& err)> run;
};

/// Finds the command that the first argument names and runs it. "--help" alone lists all, behind a
/// command it tells that one's usage.
int RunCommandLine(const QList<Command>& commands, const QStringList& arguments, QTextStream& out,
                   QTextStream& err);

/// Rows for scripts: texts between tabs, a header line first.
class TextTable {
 public:
  TextTable(QTextStream& out, const QStringList& header);
  void Row(const QList<Value>& cells);

 private:
  QTextStream& out_;
};

/// A cell as scripts read it: null is empty, a number has all its digits and no exponent, a date is
/// "yyyy-mm-dd hh:mm:ss", yes/no "True" or "False"; tabs and line ends in a text become blanks.
QString PlainText(const Value& value);

/// All rows of a recordset under its present sort and filter, with its field names as header; or
/// only the fields named. A single has the seven or so digits that it holds. The cursor stays where
/// it is.
void WriteRecordset(QTextStream& out, const Recordset& rows, const QStringList& fields = {});

/// The connection text for a file named on the command line, whatever it ends in.
QString FileConnectString(const QString& file);

}  // namespace tavrelin
