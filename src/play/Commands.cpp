#include "play/Commands.h"

#include <QTextStream>

#include "command/OptionReader.h"
#include "data/Connection.h"
#include "play/Pairing.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"

namespace tavrelin {
namespace {

constexpr int MostRounds = 4;

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
    if (const Refusal refusal = CheckByeCourts(courts)) Refuse(refusal);
    const QString advice = ByeCourtAdvice(courts);
    if (!advice.isEmpty()) err << advice << '\n';
  }
  const PairingChoice choice = {courts, chosen.rounds, chosen.odd};
  if (const Refusal refusal = CreatePairing(connection, rules, choice)) Refuse(refusal);
  return exits::Done;
}

/// What is shown of each pitcher beside the entrant's own columns.
QStringList PitcherFields(const PlayFormat& format) {
  QStringList fields;
  for (const PitcherColumns& pitcher : format.pitchers) {
    for (const QString& field : {pitcher.id, pitcher.ringers, pitcher.shoes, pitcher.hiGame}) {
      if (!field.isEmpty() && field != format.entrantID) fields << field;
    }
  }
  return fields;
}

void WriteStandings(const Standings& standings, QTextStream& out) {
  const PlayFormat& format = FormatOf(standings.rules);
  const QStringList fields = {"Rank",        format.entrantID, format.standingsName,
                              "Won",         "Loss",           "Shoes",
                              "Ringers",     "RingerPercent",  "Points",
                              "OverAverage", "HeadToHead"};
  WriteRecordset(out, standings.rows, fields + PitcherFields(format));
}

int ShowStandings(const QStringList& arguments, QTextStream& out, QTextStream&) {
  const QStringList options = arguments.sliced(3);
  if (!options.isEmpty() && options != QStringList{"--override"}) throw WrongUsage();
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  const ClassRules rules = NamedClass(connection, arguments);
  const auto order = options.isEmpty() ? StandingOrder::Computed : StandingOrder::Directed;
  const Standings standings = RankTheClass(connection, rules, order);
  if (standings.refusal) Refuse(standings.refusal);
  WriteStandings(standings, out);
  return exits::Done;
}

}  // namespace

ClassRules NamedClass(Connection& connection, const QStringList& arguments) {
  const QString sanctionID = QString(arguments[1]).remove(u'-');
  const std::optional<ClassRules> rules = FindClass(connection, sanctionID, arguments[2]);
  if (rules) return *rules;
  Refuse({QStringLiteral("Tournament %1 has no class \"%2\"").arg(arguments[1], arguments[2])});
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
