#include "leagues/Commands.h"

#include "data/Backup.h"
#include "leagues/LeagueBench.h"
#include "support/CommandAnswer.h"

namespace tavrelin {
namespace {

class LeagueCommandsTest : public LeagueBench {
 protected:
  void SetUp() override {
    SetLeague("HandicapPct", 90);
    AddPlayer("BERIDA", "Berg", "Ida");
    AddPlayer("ABEZOE", "Abel", "Zoe");
    AddMemberRow("BERIDA", {.start = 61.5});
    AddMemberRow("ABEZOE", {.active = false});
    AddGame("BERIDA", {.points = 60, .ringers = 10, .result = "W"});
    AddGame("BERIDA", {.points = 65, .ringers = 15, .result = "W"});
    AddGame("BERIDA", {.points = 70, .ringers = 20, .result = "L"});
    AddGame("ABEZOE", {.points = 40, .ringers = 7, .result = "T"});
  }

  CommandAnswer Run(const QString& command, const QStringList& more = {},
                    const QString& league = "26-05-001") {
    connection_.Close();
    CommandAnswer ran = Ask(LeagueCommands(), QStringList{command, path_, league} + more);
    connection_.Open("DBQ=" + path_);
    return ran;
  }
  static QStringList Lines(const CommandAnswer& ran) { return ran.out.split('\n'); }
};

TEST_F(LeagueCommandsTest, LeagueWritesTheMemberTableByName) {
  const CommandAnswer ran = Run("league");
  EXPECT_EQ(ran.code, exits::Done) << ran.err.toStdString();
  EXPECT_EQ(ran.err, "");
  EXPECT_EQ(
      Lines(ran),
      (QStringList{
          "PlayerID\tPlayerName\tCategory\tCardNumber\tAddressOne\tCity\tState\tZipCode\tActive\t"
          "AveragePoints\tStartingAverage\tRingerPercent\tHandicap\tWin\tLoss\tWinPercent\t"
          "TotalPoints\tTotalRingers\tTotalShoes\tHighGamePoints\tHighGameRingers\t"
          "HighRingerPercent\tPreviousHighRingerPercent\tElgible\tHighGamePointsWH\t"
          "HighGamePointsOA\tHighRingerPercentOA",
          // 0.9 of the 25 that he lacks to the best active average, 65; a tie
          "ABEZOE\tAbel, Zoe\tAW\t301234\t12 Elm St\tErie\tPA\t165011234\tFalse\t40\t0\t14\t22\t"
          "0.5\t0.5\t0.5\t40\t7\t50\t40\t7\t14\t0\tYes\t40\t0\t0",
          "BERIDA\tBerg, Ida\tAW\t301234\t12 Elm St\tErie\tPA\t165011234\tTrue\t65\t62\t30\t0\t2\t"
          "1\t0.6666667\t195\t45\t150\t70\t20\t40\t0\tYes\t70\t5\t10",
          ""}));
}

TEST_F(LeagueCommandsTest, OptionsAreTheTextsOfTheBoxes) {
  const auto cell = [&](const QStringList& options, int line, int field) {
    return Lines(Run("league", options))[line].split('\t')[field];
  };
  EXPECT_EQ(cell({"--basis", "100 Points"}, 2, 12), "31");  // 0.9 of 35: 31.4999992
  EXPECT_EQ(cell({"--last", "1"}, 2, 9), "70");
  EXPECT_EQ(cell({"--last", "0"}, 2, 9), "65");
  EXPECT_EQ(cell({"--sort", "Average Points"}, 1, 0), "BERIDA");
  EXPECT_EQ(cell({"--sort", "Winning Percent", "--last", "2", "--basis", "Best Player"}, 1, 9),
            "68");  // 67.5
}

TEST_F(LeagueCommandsTest, TheTeamsOfASinglesLeagueAreAHeaderAlone) {
  EXPECT_EQ(Run("league", {"--teams"}).out, "TeamID\tTeam\tWin\tLoss\tWinPercent\n");
}

TEST_F(LeagueCommandsTest, TeamsAreCountedAsChosenAndStandByWins) {
  SetLeague("PlayFormat", "T");
  const int riders = AddTeam("Riders");
  const int hawks = AddTeam("Hawks");
  for (const int team : {riders, hawks}) AddLeagueTeamRow(team);
  AddTeamWins(hawks, 2, 1);
  connection_.Execute("UPDATE LeagueScores SET TeamID = ? WHERE PlayerID = 'BERIDA'", {riders});
  const auto teams = [&](const QStringList& options) {
    return Lines(Run("league", QStringList{"--teams"} + options)).mid(1, 2);
  };
  EXPECT_EQ(teams({}), (QStringList{"1\tRiders\t2\t1\t0.6666666666666666", "2\tHawks\t0\t0\t0"}));
  EXPECT_EQ(teams({"--count", "players"}), teams({}));
  EXPECT_EQ(teams({"--count", "teams"}),
            (QStringList{"2\tHawks\t2\t1\t0.6666666666666666", "1\tRiders\t0\t0\t0"}));
  EXPECT_EQ(
      teams({"--count", "both", "--sort", "Winning Percent"}),
      (QStringList{"2\tHawks\t2\t1\t0.6666666666666666", "1\tRiders\t2\t1\t0.6666666666666666"}));
}

TEST_F(LeagueCommandsTest, UnknownValuesAndLeaguesAreRefused) {
  const QPair<QStringList, const char*> cases[] = {
      {{"--basis", "55 Points"}, "There is no handicap basis \"55 Points\".  Choose from: Best "},
      {{"--sort", "wins"}, "There is no standings sort \"wins\".  Choose from: Wins, Average "},
      {{"--count", "all"}, "There is no count \"all\".  Choose from: players, teams, both"},
      {{"--last", "-1"}, "\"-1\" is not a number of games"},
      {{"--last", "five"}, "\"five\" is not a number of games"},
  };
  for (const auto& [options, message] : cases) {
    for (const char* command : {"league", "league-archive"}) {
      const CommandAnswer ran = Run(command, options);
      EXPECT_EQ(ran.code, exits::Refused);
      EXPECT_TRUE(ran.err.startsWith(message)) << ran.err.toStdString();
      EXPECT_EQ(ran.out, "");
    }
  }
  EXPECT_EQ(Run("league", {}, "26-05-002").err, "There is no league \"26-05-002\"\n");
  EXPECT_EQ(AskFor("SELECT COUNT(*) FROM LeagueScores"), "4");
}

TEST_F(LeagueCommandsTest, OptionsThatMakeNoSenseShowTheUsage) {
  for (const QStringList& options :
       {QStringList{"--basis"}, QStringList{"--first", "3"}, QStringList{"Wins"}}) {
    EXPECT_EQ(Run("league", options).code, exits::WrongUsage) << options[0].toStdString();
    EXPECT_EQ(Run("league-archive", options).code, exits::WrongUsage) << options[0].toStdString();
  }
}

TEST_F(LeagueCommandsTest, ALeagueWithoutMembersIsRefused) {
  connection_.Execute("DELETE FROM LeagueMembers");
  for (const char* command : {"league", "league-archive"}) {
    const CommandAnswer ran = Run(command);
    EXPECT_EQ(ran.code, exits::Refused);
    EXPECT_EQ(ran.err, "No members in selected club\n");
  }
  EXPECT_TRUE(BackupsOf(path_).isEmpty());
}

TEST_F(LeagueCommandsTest, LeagueWritesNothingIntoTheFile) {
  connection_.Close();
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray before = file.readAll();
  EXPECT_EQ(Ask(LeagueCommands(), {"league", path_, Sanction, "--teams"}).code, exits::Done);
  file.seek(0);
  EXPECT_EQ(file.readAll(), before);
}

TEST_F(LeagueCommandsTest, LeagueArchiveClosesTheSeasonByThePresentChoice) {
  const CommandAnswer ran = Run("league-archive", {"--last", "1"});
  EXPECT_EQ(ran.code, exits::Done) << ran.err.toStdString();
  EXPECT_TRUE(ran.err.startsWith("Data has been archived.")) << ran.err.toStdString();
  EXPECT_EQ(ran.out, "");
  EXPECT_EQ(Rows("SELECT PlayerID, StartingAverage, HighGamePoints, HighGameRingers "
                 "FROM LeagueMembers ORDER BY PlayerID"),
            (QStringList{"ABEZOE 40 40 7", "BERIDA 70 70 20"}));
  EXPECT_EQ(AskFor("SELECT COUNT(*) FROM LeagueScores"), "0");
  EXPECT_EQ(BackupsOf(path_).size(), 1);
}

}  // namespace
}  // namespace tavrelin
