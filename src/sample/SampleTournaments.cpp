#include "sample/SampleTournaments.h"

#include <QHash>
#include <QSet>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "play/ClassLoad.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"
#include "sample/Dice.h"
#include "sample/PitchedGame.h"
#include "sample/SampleRoster.h"
#include "tournament/Entries.h"

namespace tavrelin {
namespace {

constexpr int ShoesAGame = 40;
constexpr double Fee = 12.5;

/// Everything that one tournament is made with.
struct Work {
  Connection& connection;
  Dice& dice;
  const SampleTournament& plan;
  const QList<SamplePlayer>& players;
  const QList<SampleTeam>& teams;
  QHash<QString, const SamplePlayer*> byID;
  QSet<QString> entered;
};

bool IsDoubles(const SampleClass& plan) {
  return *plan.playFormat == 'D';
}

void AddClass(Work& work, const SampleClass& plan) {
  work.connection.Execute(
      "INSERT INTO TournamentClasses VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
      {work.plan.sanctionID, plan.id, plan.name, plan.handicapPct,
       QDateTime(work.plan.date, QTime(8, 0)), ShoesAGame, plan.rankMethod, plan.playFormat,
       *plan.id == 'A', 3, true, false});
}

/// What the director types beside an entry that was just made.
void PlaceEntry(Work& work, const SampleClass& plan, const char* table, const char* entrant,
                const Value& id) {
  work.connection.Execute(
      QStringLiteral("UPDATE %1 SET Paid = ?, ClassID = ? WHERE SanctionID = ? AND %2 = ?")
          .arg(QLatin1String(table), QLatin1String(entrant)),
      {Fee, plan.id, work.plan.sanctionID, id});
}

void EnterTeams(Work& work, const SampleClass& plan) {
  for (int i = 0; i < plan.entrants; ++i) {
    const SampleTeam& team = work.teams[i];
    const Refusal refusal =
        EnterTeam(work.connection, work.plan.sanctionID, team.id, work.plan.date);
    if (refusal) throw Error(errors::RecordState, refusal.sentence);
    PlaceEntry(work, plan, "TournamentTeamEntrants", "TeamID", team.id);
    work.entered << team.one.id << team.two.id;
  }
}

/// About every third player who is not in yet: a tournament draws from the whole field.
void EnterPlayers(Work& work, const SampleClass& plan) {
  int missing = plan.entrants;
  for (const SamplePlayer& player : work.players) {
    if (missing == 0) return;
    if (work.entered.contains(player.id) || work.dice.Below(3) != 0) continue;
    EnterPlayer(work.connection, work.plan.sanctionID, player.id, player.category, work.plan.date);
    PlaceEntry(work, plan, "TournamentEntrants", "PlayerID", player.id);
    work.entered << player.id;
    --missing;
  }
}

double SkillOf(const Work& work, const Recordset& games, const QString& pitcher) {
  const SamplePlayer* player = work.byID.value(games[pitcher].ToText());
  return player == nullptr ? 0 : player->skill;
}

void WriteSide(Recordset& games, const SideColumns& columns, int pitcher,
               const PitchedSide& pitched) {
  games.Set(columns.points, games[columns.points].ToWhole() + pitched.points);
  games.Set(columns.ringers[pitcher], pitched.ringers);
  if (!columns.singlePoints.isEmpty()) games.Set(columns.singlePoints, pitched.singlePoints);
}

/// Partners pitch from opposite ends, each against the opponent at his end; their points add up.
void ScoreGame(Work& work, Recordset& games, const PlayFormat& format) {
  const auto& [one, two] = format.sides;
  for (int pitcher = 0; pitcher < one.pitchers.size(); ++pitcher) {
    const double skillOne = SkillOf(work, games, one.pitchers[pitcher]);
    const double skillTwo = SkillOf(work, games, two.pitchers[pitcher]);
    if (format.IsPacer(games[two.id].ToText())) {
      WriteSide(games, one, pitcher, PitchAlone(work.dice, skillOne, ShoesAGame));
    } else if (format.IsPacer(games[one.id].ToText())) {
      WriteSide(games, two, pitcher, PitchAlone(work.dice, skillTwo, ShoesAGame));
    } else {
      const auto pitched = PitchGame(work.dice, {skillOne, skillTwo}, ShoesAGame);
      WriteSide(games, one, pitcher, pitched[0]);
      WriteSide(games, two, pitcher, pitched[1]);
    }
  }
  games.Set("Approved", true);
  games.Update();
}

void PlayClass(Work& work, const SampleClass& plan, const ClassRules& rules) {
  const PairingChoice choice{LoadClass(work.connection, rules).courts, 1, plan.odd};
  const Refusal refusal = CreatePairing(work.connection, rules, choice);
  if (refusal) throw Error(errors::RecordState, refusal.sentence);
  LoadedClass loaded = LoadClass(work.connection, rules);
  const int games = loaded.games.RecordCount();
  int left = plan.scores == SampleClass::Scores::Half ? games / 2 : games;
  for (; left > 0; --left, loaded.games.MoveNext()) ScoreGame(work, loaded.games, FormatOf(rules));
}

/// High games by pitcher, which the standings do not carry.
QHash<QString, double> HighGames(Work& work, const ClassRules& rules) {
  const PlayFormat& format = FormatOf(rules);
  Recordset entries;
  entries.Open(QStringLiteral("SELECT * FROM %1 WHERE SanctionID = ? AND ClassID = ?")
                   .arg(format.entrantTable),
               work.connection, Recordset::Lock::ReadOnly, {rules.sanctionID, rules.classID});
  QHash<QString, double> high;
  for (; !entries.AtEnd(); entries.MoveNext()) {
    for (const PitcherColumns& pitcher : format.pitchers) {
      high[entries[pitcher.id].ToText()] = entries[pitcher.hiGame].ToNumber();
    }
  }
  return high;
}

/// The results of a ranked class as they stand in the players' statistics.
void PostClass(Work& work, const ClassRules& rules, Standings& standings) {
  const QHash<QString, double> high = HighGames(work, rules);
  const QList<PitcherColumns>& pitchers = FormatOf(rules).pitchers;
  Recordset& rows = standings.rows;
  for (int place = 1; !rows.AtEnd(); rows.MoveNext(), ++place) {
    for (const PitcherColumns& pitcher : pitchers) {
      const QString id = rows[pitcher.id].ToText();
      const QString ringers =
          pitcher.ringers.isEmpty() ? QStringLiteral("Ringers") : pitcher.ringers;
      work.connection.Execute(
          "INSERT INTO PlayerScores VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
          {rules.sanctionID, id, rows["Shoes"].ToWhole() / pitchers.size(), rows[ringers],
           work.byID.value(id)->category, rows["Won"], rows["Loss"], place, high.value(id),
           rows["Points"], 0, rules.classID});
    }
  }
}

void RunClass(Work& work, const SampleClass& plan) {
  AddClass(work, plan);
  IsDoubles(plan) ? EnterTeams(work, plan) : EnterPlayers(work, plan);
  if (plan.scores == SampleClass::Scores::Unpaired) return;
  const auto rules = FindClass(work.connection, work.plan.sanctionID, plan.id);
  PlayClass(work, plan, *rules);
  Standings standings = RankTheClass(work.connection, *rules);
  if (plan.scores == SampleClass::Scores::All) PostClass(work, *rules, standings);
}

}  // namespace

void AddSampleTournament(Connection& connection, Dice& dice, const SampleTournament& plan,
                         const QList<SamplePlayer>& players, const QList<SampleTeam>& teams) {
  Work work{connection, dice, plan, players, teams, {}, {}};
  for (const SamplePlayer& player : players) work.byID[player.id] = &player;
  connection.Execute("INSERT INTO Tournaments VALUES(?, ?, ?, ?, ?, ?)",
                     {plan.sanctionID, plan.name, plan.date, plan.city, plan.state, plan.director});
  // Teams first: their players do not pitch singles as well.
  for (const SampleClass& one : plan.classes) {
    if (IsDoubles(one)) RunClass(work, one);
  }
  for (const SampleClass& one : plan.classes) {
    if (!IsDoubles(one)) RunClass(work, one);
  }
}

}  // namespace tavrelin
