#include "sample/SampleClub.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include "basic/PlatformPath.h"
#include "data/Connection.h"
#include "data/NewFile.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "sample/Dice.h"
#include "sample/SampleLeagues.h"
#include "sample/SampleRoster.h"
#include "sample/SampleTournaments.h"

namespace tavrelin {
namespace {

using Method = SampleClass::Scores;

/// Doubles entrants count in teams, singles entrants in players; nobody plays twice.
QList<SampleTournament> Plans() {
  const QDate day = SampleDay();
  return {
      {"OH26041",
       "Spring Thaw Open",
       day.addDays(-35),
       "Maple Creek",
       "OH",
       "Orville Kettlewick",
       {{"A", "Men and Women A", 0, "P", "S", 8, OddEntrant::NotChosen, Method::All},
        {"B", "Men and Women B", 0, "H", "S", 6, OddEntrant::NotChosen, Method::All},
        {"C", "Class C", 80, "P", "S", 7, OddEntrant::Pacer, Method::All},
        {"D1", "Doubles", 0, "R", "D", 6, OddEntrant::NotChosen, Method::All}}},
      {"ON26052",
       "Saint-Élan Invitational",
       day.addDays(-21),
       "Port Ansel",
       "ON",
       "Clémence Vérendelle",
       {{"A", "Championship", 0, "R", "S", 10, OddEntrant::NotChosen, Method::All},
        {"B", "Class B", 0, "O", "S", 5, OddEntrant::Bye, Method::All}}},
      {"OH26067",
       "Summer Solstice Classic",
       day,
       "Maple Creek",
       "OH",
       "Hazel O'Tavish",
       {{"A", "Class A", 0, "P", "S", 12, OddEntrant::NotChosen, Method::Half},
        {"B", "Class B", 80, "P", "S", 7, OddEntrant::NotChosen, Method::Unpaired}}},
  };
}

/// Every fifth player with results loses the average of the roster: they enter the open tournament
/// by what they pitched.
void LetResultsDecide(Connection& connection) {
  Recordset rows;
  rows.Open("SELECT DISTINCT PlayerID FROM PlayerScores ORDER BY PlayerID", connection);
  for (int i = 0; !rows.AtEnd(); rows.MoveNext(), ++i) {
    if (i % 5 != 0) continue;
    connection.Execute("UPDATE Players SET Average = 0 WHERE PlayerID = ?", {rows["PlayerID"]});
  }
}

void FillClub(Connection& connection, unsigned seed) {
  Batch batch(connection);
  Dice dice(seed);
  const QList<SamplePlayer> players = AddSamplePlayers(connection, dice);
  const QList<SampleTeam> teams = AddSampleTeams(connection, players);
  for (const SampleTournament& plan : Plans()) {
    if (plan.date == SampleDay()) LetResultsDecide(connection);
    AddSampleTournament(connection, dice, plan, players, teams);
  }
  AddSampleLeagues(connection, dice, players, teams, SampleDay().addDays(-2));
  batch.Commit();
}

}  // namespace

QDate SampleDay() {
  return {SampleYear, 6, 6};
}

void MakeSampleClub(const QString& path, unsigned seed) {
  NewFile file(QFileInfo(PlatformPath(path)).absoluteFilePath());
  DeliverClubFile(file.WorkPath());
  {
    Connection connection;
    connection.Open(QStringLiteral("DBQ=%1;").arg(file.WorkPath()));
    FillClub(connection, seed);
  }
  file.TakePlace();
}

}  // namespace tavrelin
