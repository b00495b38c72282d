#include "leagues/Commands.h"

#include <QDateTime>
#include <QTextStream>

#include "basic/Error.h"
#include "command/OptionReader.h"
#include "data/Connection.h"
#include "leagues/LeagueArchive.h"
#include "leagues/LeagueOptions.h"
#include "leagues/LeagueStats.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// What the statistics of a command are reckoned on and how they are shown. What is left out is as
/// a new operator finds it on the screen, whatever this one has chosen there.
struct StatsChoice {
  LeagueOptions options;
  QString memberOrder = MemberNameOrder();
  QString teamOrder = TeamOrder(StandingsSort::Wins);
  bool teams = false;
};

[[noreturn]] void Refuse(const QString& sentence) {
  throw Error(errors::RecordState, sentence);
}

/// A text of a box, or a refusal that lists them.
QString OneOf(const QStringList& texts, const QString& typed, const QString& what) {
  if (texts.contains(typed)) return typed;
  Refuse(u"There is no %1 \"%2\".  Choose from: %3"_s.arg(what, typed, texts.join(u", ")));
}

int LastGamesFrom(const QString& typed) {
  bool whole = false;
  const int games = typed.toInt(&whole);
  if (whole && games >= 0) return games;
  Refuse(u"\"%1\" is not a number of games"_s.arg(typed));
}

CountedWins CountFrom(const QString& typed) {
  const QStringList texts = {u"players"_s, u"teams"_s, u"both"_s};
  return static_cast<CountedWins>(texts.indexOf(OneOf(texts, typed, u"count"_s)) + 1);
}

void SortBy(StatsChoice& choice, const QString& typed) {
  const StandingsSort sort =
      StandingsSortOf(OneOf(StandingsSortTexts(), typed, u"standings sort"_s));
  choice.memberOrder = MemberOrder(sort);
  choice.teamOrder = TeamOrder(sort);
}

StatsChoice ReadChoice(const QStringList& arguments) {
  StatsChoice choice;
  for (OptionReader reader(arguments); !reader.AtEnd();) {
    const QString option = reader.Next();
    if (option == u"--basis") {
      choice.options.basis =
          HandicapBasis(OneOf(HandicapBasisTexts(), reader.Next(), u"handicap basis"_s));
    } else if (option == u"--last") {
      choice.options.lastGames = LastGamesFrom(reader.Next());
    } else if (option == u"--count") {
      choice.options.count = CountFrom(reader.Next());
    } else if (option == u"--sort") {
      SortBy(choice, reader.Next());
    } else if (option == u"--teams") {
      choice.teams = true;
    } else {
      throw WrongUsage();
    }
  }
  return choice;
}

LeagueStats StatsOf(Connection& connection, const QString& league, const StatsChoice& choice) {
  LeagueStats stats = LoadStats(connection, NamedLeague(connection, league), choice.options);
  if (stats.refusal) Refuse(stats.refusal.sentence);
  return stats;
}

void WriteTeams(QTextStream& out, LeagueStats& stats, const StatsChoice& choice) {
  if (!stats.league.teams) {
    TextTable(out, {u"TeamID"_s, u"Team"_s, u"Win"_s, u"Loss"_s, u"WinPercent"_s});
    return;
  }
  stats.teams.SetSort(choice.teamOrder);
  WriteRecordset(out, stats.teams);
}

int ShowLeague(const QStringList& arguments, QTextStream& out, QTextStream&) {
  const StatsChoice choice = ReadChoice(arguments.sliced(2));
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  LeagueStats stats = StatsOf(connection, arguments[1], choice);
  if (choice.teams) {
    WriteTeams(out, stats, choice);
  } else {
    stats.members.SetSort(choice.memberOrder);
    WriteRecordset(out, stats.members);
  }
  return exits::Done;
}

int Archive(const QStringList& arguments, QTextStream&, QTextStream& err) {
  const StatsChoice choice = ReadChoice(arguments.sliced(2));
  Connection connection;
  connection.Open(FileConnectString(arguments[0]));
  const LeagueStats stats = StatsOf(connection, arguments[1], choice);
  err << ArchiveLeague(connection, stats, QDateTime::currentDateTime()) << '\n';
  return exits::Done;
}

}  // namespace

League NamedLeague(Connection& connection, const QString& argument) {
  const std::optional<League> league = FindLeague(connection, argument);
  if (league) return *league;
  Refuse(u"There is no league \"%1\""_s.arg(argument));
}

QList<Command> LeagueCommands() {
  const QString options =
      u" FILE LEAGUE [--basis BASIS] [--last N] [--count players|teams|both] [--sort SORT]"_s;
  return {
      {u"league"_s, u"league"_s + options + u" [--teams]"_s,
       u"The statistics of a league's members, inactive ones too, by name; --teams: its teams. "
       "BASIS and SORT are texts of the boxes: \"Best Player\", \"90 Points\"; \"Winning "
       "Percent\"."_s,
       2, 11, ShowLeague},
      {u"league-archive"_s, u"league-archive"_s + options,
       u"Carries averages and highs of the season into the members and deletes its scores, after a "
       "backup."_s,
       2, 11, Archive},
  };
}

}  // namespace tavrelin
