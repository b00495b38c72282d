#include "play/LeagueSendCommand.h"

#include <QDate>
#include <QTextStream>

#include "basic/Error.h"
#include "data/Connection.h"
#include "leagues/Commands.h"
#include "leagues/League.h"
#include "play/ClassLoad.h"
#include "play/Commands.h"
#include "play/LeagueSend.h"
#include "play/PlayFormat.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

QDate DateFrom(const QString& typed) {
  const QDate date = QDate::fromString(typed, u"yyyy-MM-dd"_s);
  if (date.isValid()) return date;
  throw Error(errors::TypeMismatch, u"\"%1\" is not a date; write it as yyyy-mm-dd"_s.arg(typed));
}

int Send(const QStringList& arguments, QTextStream&, QTextStream& err) {
  const QDate evening = DateFrom(arguments[4]);
  Connection connection;
  connection.Open(FileConnectString(arguments[0]));
  const ClassRules rules = NamedClass(connection, arguments);
  if (FormatOf(rules).IsDoubles()) {
    throw Error(errors::RecordState,
                u"Class \"%1\" plays doubles; a league counts singles games"_s.arg(rules.classID));
  }
  const League league = NamedLeague(connection, arguments[3]);
  err << SendClassToLeague(connection, rules, league, evening).Message() << '\n';
  return exits::Done;
}

}  // namespace

Command LeagueSendCommand() {
  return {u"league-send"_s,
          u"league-send FILE SANCTION CLASS LEAGUE DATE"_s,
          u"Sends the approved games of a singles class to a league, as its evening of DATE "
          "(yyyy-mm-dd)."_s,
          5,
          5,
          Send};
}

}  // namespace tavrelin
