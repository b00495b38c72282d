#include "play/Commands.h"

#include <QTextStream>

#include "basic/Error.h"
#include "command/OptionReader.h"
#include "data/Connection.h"
#include "play/Pairing.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"

namespace tavrelin {
namespace {

constexpr int MostRounds = 4;

int Refuse(QTextStream& err, const QString& message) {
  err << message << '\n';
  return exits::Refused;
}

struct PairOptions {
  OddEntrant odd = OddEntrant::NotChosen;
  int rounds = 1;
  std::optional<QStringList> courts;
};

int RoundsFrom(const QString& text) {
  bool whole = false;
  const int rounds = text.toInt(&whole);
  if (!whole || rounds < 1 || rounds > MostRounds) throw WrongUsage();
  return rounds;
}

void Choose(PairOptions& chosen, OddEntrant odd) {
  if (chosen.odd != OddEntrant::NotChosen && chosen.odd != odd) throw WrongUsage();
  chosen.odd = odd;
}

PairOptions ReadPairOptions(const QStringList& options) {
  PairOptions chosen;
  for (OptionReader reader(options); !reader.AtEnd();) {
    const QString option = reader.Next();
    if (option == u"--bye") {
      Choose(chosen, OddEntrant::Bye);
    } else if (option == u"--pacer") {
      Choose(chosen, OddEntrant::Pacer);
    } else if (option == u"--rounds") {
      chosen.rounds = RoundsFrom(reader.Next());
    } else if (option == u"--courts") {
      chosen.courts = reader.Next().split(u',');
    } else {
      throw WrongUsage();
    }
  }
  return chosen;
}

int Pair(const QStringList& arguments, QTextStream&, QTextStream& err) {
  const PairOptions chosen = ReadPairOptions(arguments.sliced(3));
  Connection connection;
  connection.Open(FileConnectString(arguments[0]));
  const ClassRules rules = NamedClass(connection, arguments);
  const LoadedClass loaded = LoadClass(connection, rules);
  const QStringList courts = chosen.courts.value_or(loaded.courts);
  if (loaded.IsOdd() && chosen.odd == OddEntrant::Bye) {
    const CourtRemark remark = CheckByeCourts(courts);
    if (!remark.text.isEmpty() && !remark.isAdvice) return Refuse(err, remark.text);
    if (remark.isAdvice) err << remark.text << '\n';
  }
  const QString refusal = CreatePairing(connection, rules, {courts, chosen.rounds, chosen.odd});
  return refusal.isEmpty() ? exits::Done : Refuse(err, refusal);
}

/// The columns that only the entry holds, by pitcher.
QStringList EntryColumns(const PlayFormat& format) {
  QStringList columns;
  for (const PitcherColumns& pitcher : format.pitchers) {
    for (const QString& column : {pitcher.id, pitcher.ringers, pitcher.shoes, pitcher.hiGame}) {
      if (!column.isEmpty() && column != format.entrantID) columns << column;
    }
  }
  return columns;
}

ByID<QList<Value>> ReadEntryColumns(Connection& connection, const ClassRules& rules) {
  const PlayFormat& format = FormatOf(rules);
  ByID<QList<Value>> entries;
  Recordset rows;
  rows.Open(QStringLiteral("SELECT %1, %2 FROM %3 WHERE SanctionID = ? AND ClassID = ?")
                .arg(format.entrantID, EntryColumns(format).join(u", "), format.entrantTable),
            connection, Recordset::Lock::ReadOnly, {rules.sanctionID, rules.classID});
  for (; !rows.AtEnd(); rows.MoveNext()) {
    QList<Value>& cells = entries[rows.At(0).ToText()];
    for (int i = 1; i < rows.Fields().size(); ++i) cells << rows.At(i);
  }
  return entries;
}

void WriteStandings(Connection& connection, Standings& standings, QTextStream& out) {
  const PlayFormat& format = FormatOf(standings.rules);
  const QStringList shown = {
      format.entrantID, format.standingsName, "Won",    "Loss",        "Shoes",
      "Ringers",        "RingerPercent",      "Points", "OverAverage", "HeadToHead"};
  const ByID<QList<Value>> entries = ReadEntryColumns(connection, standings.rules);
  TextTable table(out, QStringList{"Rank"} + shown + EntryColumns(format));
  int place = 0;
  for (Recordset& rows = standings.rows; !rows.AtEnd(); rows.MoveNext()) {
    QList<Value> cells = {++place};
    for (const QString& field : shown) cells << rows[field];
    table.Row(cells + entries.value(rows[format.entrantID].ToText()));
  }
}

int ShowStandings(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  const QStringList options = arguments.sliced(3);
  if (!options.isEmpty() && options != QStringList{"--override"}) throw WrongUsage();
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  const ClassRules rules = NamedClass(connection, arguments);
  Standings standings = RankTheClass(connection, rules, {.honourOverride = !options.isEmpty()});
  if (!standings.refusal.isEmpty()) return Refuse(err, standings.refusal);
  WriteStandings(connection, standings, out);
  return exits::Done;
}

}  // namespace

ClassRules NamedClass(Connection& connection, const QStringList& arguments) {
  const QString sanctionID = QString(arguments[1]).remove(u'-');
  const std::optional<ClassRules> rules = FindClass(connection, sanctionID, arguments[2]);
  if (rules) return *rules;
  throw Error(errors::RecordState,
              QStringLiteral("Tournament %1 has no class \"%2\"").arg(arguments[1], arguments[2]));
}

QList<Command> PlayCommands() {
  return {
      {QStringLiteral("pair"),
       QStringLiteral("pair FILE SANCTION CLASS [--bye|--pacer] [--rounds N] [--courts A,B,...]"),
       QStringLiteral("Stores the round robin of a class; a court left blank stays unused."), 3, 8,
       Pair},
      {QStringLiteral("standings"), QStringLiteral("standings FILE SANCTION CLASS [--override]"),
       QStringLiteral("Ranks a class; --override: as the director set the places."), 3, 4,
       ShowStandings},
  };
}

}  // namespace tavrelin
