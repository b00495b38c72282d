#include "app/ClubCommands.h"

#include <algorithm>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include "basic/PlatformPath.h"
#include "data/Backup.h"
#include "data/ClubCheck.h"
#include "data/Connection.h"
#include "data/Schema.h"

namespace tavrelin {
namespace {

const char* NameOf(ClubFinding::Kind kind) {
  switch (kind) {
    case ClubFinding::Kind::Fine:
      return "fine";
    case ClubFinding::Kind::Note:
      return "note";
    case ClubFinding::Kind::Wrong:
      return "wrong";
  }
  return "";
}

int New(const QStringList& arguments, QTextStream&, QTextStream&) {
  DeliverClubFile(arguments[0]);
  return exits::Done;
}

int Check(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  const QList<ClubFinding> findings = CheckClub(connection);
  TextTable table(out, {QStringLiteral("Check"), QStringLiteral("Result"), QStringLiteral("Table"),
                        QStringLiteral("Finding")});
  for (const ClubFinding& finding : findings) {
    table.Row({finding.check, NameOf(finding.kind), finding.table, finding.finding});
  }
  const auto wrong = std::count_if(
      findings.begin(), findings.end(),
      [](const ClubFinding& finding) { return finding.kind == ClubFinding::Kind::Wrong; });
  if (wrong == 0) return exits::Done;
  err << "The file is not in order: " << wrong << (wrong == 1 ? " finding.\n" : " findings.\n");
  return exits::Refused;
}

int BackUp(const QStringList& arguments, QTextStream& out, QTextStream&) {
  const QString file = QFileInfo(PlatformPath(arguments[0])).absoluteFilePath();
  out << QDir::toNativeSeparators(BackUpClub(file, QDateTime::currentDateTime())) << '\n';
  return exits::Done;
}

}  // namespace

QList<Command> ClubCommands() {
  return {
      {QStringLiteral("new"), QStringLiteral("new FILE"),
       QStringLiteral("Makes an empty club file; refused when the file exists."), 1, 1, New},
      {QStringLiteral("check"), QStringLiteral("check FILE"),
       QStringLiteral("Looks a club file over without changing it; 1 when anything is wrong."), 1,
       1, Check},
      {QStringLiteral("backup"), QStringLiteral("backup FILE"),
       QStringLiteral("Copies a club file, open or not, to the Backups folder beside it and writes "
                      "the copy's path; the last ten are kept."),
       1, 1, BackUp},
  };
}

}  // namespace tavrelin
