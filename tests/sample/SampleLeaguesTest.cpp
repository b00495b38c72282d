#include "sample/SampleLeagues.h"

#include <gtest/gtest.h>

#include <memory>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "leagues/League.h"
#include "leagues/LeagueGames.h"
#include "leagues/LeagueOptions.h"
#include "leagues/LeagueStats.h"
#include "sample/SampleClub.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

constexpr const char* Leagues[] = {"OH26501", "OH26502", "OH26503"};

/// One sample for all tests: it is only read.
struct SampleLeaguesTest : testing::Test {
  static void SetUpTestSuite() {
    folder = std::make_unique<QTemporaryDir>();
    MakeSampleClub(folder->filePath("sample.mdb"));
    db = std::make_unique<PlainDatabase>(folder->filePath("sample.mdb"));
  }
  static void TearDownTestSuite() {
    db.reset();
    folder.reset();
  }
  static int Count(const QString& tableAndCondition, const char* league) {
    const QString joint = tableAndCondition.contains("WHERE") ? " AND" : " WHERE";
    return db->Count(tableAndCondition + joint + " SanctionID = '" + league + "'");
  }
  static QString Open() { return "DBQ=" + folder->filePath("sample.mdb"); }

  static std::unique_ptr<QTemporaryDir> folder;
  static std::unique_ptr<PlainDatabase> db;
};
std::unique_ptr<QTemporaryDir> SampleLeaguesTest::folder;
std::unique_ptr<PlainDatabase> SampleLeaguesTest::db;

TEST_F(SampleLeaguesTest, ThereIsOneOfEachKind) {
  const QList<QStringList> expected = {{"OH26501", "90.0", "50", "0", "S"},
                                       {"OH26502", "0.0", "40", "-1", "S"},
                                       {"OH26503", "80.0", "30", "0", "T"}};
  EXPECT_EQ(db->Rows("SELECT SanctionID, HandicapPct, Shoes, Cancellation, PlayFormat "
                     "FROM Leagues ORDER BY SanctionID"),
            expected);
  EXPECT_EQ(Count("LeagueTeams", "OH26503"), 8);
}

TEST_F(SampleLeaguesTest, EverybodyHasTwelveNightsOfThreeGamesBeforeTheDayOfTheSample) {
  for (const char* league : Leagues) {
    EXPECT_EQ(Count("LeagueScores", league), 12 * 16 * 3) << league;
    const QString nights =
        db->Cell(QString("SELECT count(DISTINCT Date) FROM LeagueScores WHERE SanctionID = '%1'")
                     .arg(league));
    EXPECT_EQ(nights, "12");
    const QString last =
        db->Cell(QString("SELECT max(Date) FROM LeagueScores WHERE SanctionID = '%1'").arg(league));
    EXPECT_LT(last, SampleDay().toString(Qt::ISODate));
  }
}

TEST_F(SampleLeaguesTest, AMemberLeftAfterFourNightsAndAnotherTookHisPlace) {
  for (const char* league : {"OH26501", "OH26502"}) {
    EXPECT_EQ(Count("LeagueMembers", league), 17) << league;
    EXPECT_EQ(Count("LeagueMembers WHERE Active = 0", league), 1);
    const QList<QStringList> games =
        db->Rows(QString("SELECT count(*) FROM LeagueScores WHERE SanctionID = '%1' GROUP BY "
                         "PlayerID ORDER BY 1 LIMIT 2")
                     .arg(league));
    EXPECT_EQ(games, (QList<QStringList>{{"12"}, {"24"}}));
  }
}

TEST_F(SampleLeaguesTest, ThereAreTiesAndHandicapsAndAddedWinsOfEveryTeam) {
  for (const char* league : Leagues) {
    EXPECT_GT(Count("LeagueScores WHERE WinLoss = 'T'", league), 0) << league;
    EXPECT_EQ(Count("LeagueScores WHERE WinLoss = 'W'", league),
              Count("LeagueScores WHERE WinLoss = 'L'", league));
  }
  EXPECT_GT(Count("LeagueScores WHERE Handicap > 0", "OH26501"), 100);
  EXPECT_EQ(Count("LeagueTeamScores", "OH26503"), 12 * 8);
}

TEST_F(SampleLeaguesTest, EveryGameIsOneThatTheScoreScreenTakes) {
  Connection connection;
  connection.OpenSnapshot(Open());
  for (const char* number : Leagues) {
    const League league = FindLeague(connection, number).value();
    const ByID<qint64> teams = LeagueTeamsOfPlayers(connection, number);
    Recordset games;
    games.Open("SELECT * FROM LeagueScores WHERE SanctionID = ?", connection,
               Recordset::Lock::ReadOnly, {number});
    for (; !games.AtEnd(); games.MoveNext()) {
      RowValues row;
      for (const Field& field : games.Fields()) row[field.name] = games[field.name];
      const RowCheck check = CheckLeagueGame(row, league, teams);
      ASSERT_EQ(check.verdict, RowCheck::Verdict::Save) << check.message.toStdString();
    }
  }
}

TEST_F(SampleLeaguesTest, TheStatisticsHaveHandicapsHighsAndStandings) {
  Connection connection;
  connection.OpenSnapshot(Open());
  LeagueStats stats = LoadStats(connection, FindLeague(connection, "OH26503").value(),
                                {.count = CountedWins::Both});
  EXPECT_EQ(stats.members.RecordCount(), 16);
  EXPECT_EQ(stats.teams.RecordCount(), 8);
  double wins = 0;
  for (; !stats.teams.AtEnd(); stats.teams.MoveNext()) wins += stats.teams["Win"].ToNumber();
  EXPECT_EQ(wins, 12 * 8 * 3 + 12 * 4);  // every game and every added win has one winner
}

}  // namespace
}  // namespace tavrelin
