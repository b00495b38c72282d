#include "play/Commands.h"

#include <gtest/gtest.h>

#include "play/ClassBench.h"
#include "support/CommandAnswer.h"

namespace tavrelin {
namespace {

class PlayCommandsTest : public ClassBench {
 protected:
  CommandAnswer Run(const QString& command, const QStringList& more) {
    connection_.Close();
    CommandAnswer ran = Ask(PlayCommands(), QStringList{command, path_, Sanction, "A"} + more);
    connection_.Open("DBQ=" + path_);
    return ran;
  }

  QStringList Games() {
    return Rows(
        "SELECT Game, Court, PlayerOneNumber, PlayerTwoNumber FROM TournamentSinglesRR "
        "ORDER BY Game, Court");
  }
};

TEST_F(PlayCommandsTest, PairStoresTheRoundRobin) {
  MakeSingles(3);
  const CommandAnswer ran = Run("pair", {"--bye", "--rounds", "2", "--courts", "N1,"});
  EXPECT_EQ(ran.code, exits::Done) << ran.err.toStdString();
  EXPECT_EQ(ran.err, "");
  EXPECT_EQ(Games(), (QStringList{"1  N1 2 3", "2  N1 1 3", "3  N1 1 2", "4  N1 2 3", "5  N1 1 3",
                                  "6  N1 1 2"}));
}

TEST_F(PlayCommandsTest, PairAdvisesToBlankTheLastCourtAndGoesOn) {
  MakeSingles(3);
  const CommandAnswer ran = Run("pair", {"--bye"});
  EXPECT_EQ(ran.code, exits::Done);
  EXPECT_EQ(ran.err, "Blank out last court to optimize court use\n");
  EXPECT_EQ(Games().size(), 3);
}

TEST_F(PlayCommandsTest, PairRefusesInTheWordsOfTheScreen) {
  MakeSingles(3);
  const QPair<QStringList, const char*> cases[] = {
      {{}, "Select Bye or Pacer\n"},
      {{"--bye", "--courts", ",2"}, "Invalid court\n"},
      {{"--pacer", "--courts", "1"}, "The class plays on 2 courts, but 1 were given\n"},
  };
  for (const auto& [options, message] : cases) {
    const CommandAnswer ran = Run("pair", options);
    EXPECT_EQ(ran.code, exits::Refused);
    EXPECT_EQ(ran.err.toStdString(), message);
    EXPECT_TRUE(Games().isEmpty());
  }
}

TEST_F(PlayCommandsTest, OptionsThatMakeNoSenseShowTheUsage) {
  MakeSingles(3);
  const QStringList cases[] = {{"--rounds"},      {"--rounds", "0"},    {"--rounds", "five"},
                               {"--rounds", "5"}, {"--bye", "--pacer"}, {"--court", "1"},
                               {"--courts"}};
  for (const QStringList& options : cases) {
    const CommandAnswer ran = Run("pair", options);
    EXPECT_EQ(ran.code, exits::WrongUsage) << options.join(u' ').toStdString();
    EXPECT_TRUE(ran.err.startsWith("Usage: tavrelinctl pair"));
  }
  EXPECT_EQ(Run("standings", {"--bye"}).code, exits::WrongUsage);
  EXPECT_TRUE(Games().isEmpty());
}

TEST_F(PlayCommandsTest, AClassThatIsNotThereIsRefused) {
  const CommandAnswer ran = Run("standings", {});
  EXPECT_EQ(ran.code, exits::Refused);
  EXPECT_EQ(ran.err, "Tournament 2601007 has no class \"A\"\n");
}

TEST_F(PlayCommandsTest, StandingsPrintUnroundedFiguresAndWriteNothing) {
  MakeSingles(2);
  Store({1, 2, {30, 20}, {{20}, {5}}, 60});
  Store({1, 2, {20, 20}, {{0}, {5}}, 60});
  const CommandAnswer ran = Run("standings", {});
  EXPECT_EQ(ran.code, exits::Done) << ran.err.toStdString();
  const QStringList lines = ran.out.split('\n');
  EXPECT_EQ(lines[0].split('\t').join(u' '),
            "Rank PlayerID PlayerName Won Loss Shoes Ringers RingerPercent Points OverAverage "
            "HeadToHead HiGame");
  const QStringList first = lines[1].split('\t');
  ASSERT_EQ(first.size(), 12);
  EXPECT_EQ(first.mid(0, 7).join(u'|'), "1|000001|P1 Stone|1.5|0.5|120|20");
  EXPECT_EQ(first[7].toDouble(), 2000 / 120.0);
  EXPECT_EQ(first[11].toFloat(), static_cast<float>(2000 / 60.0));
  EXPECT_EQ(Cell("SELECT TotalShoes FROM TournamentEntrants").ToWhole(), 0);
}

TEST_F(PlayCommandsTest, StandingsOfADoublesClassShowBothPartners) {
  MakeDoubles(2);
  StoreTeams({1, 2, {30, 20}, {{10, 20}, {5, 8}}, 40});
  const QStringList lines = Run("standings", {}).out.split('\n');
  EXPECT_EQ(lines[0].split('\t').join(u' '),
            "Rank TeamID Team Won Loss Shoes Ringers RingerPercent Points OverAverage HeadToHead "
            "PlayerOneID PlayerOneRingers PlayerOneShoes PlayerOneHiGame PlayerTwoID "
            "PlayerTwoRingers PlayerTwoShoes PlayerTwoHiGame");
  EXPECT_EQ(lines[1].split('\t').join(u'|'),
            "1|1|Team 1|1|0|80|30|37.5|30|37.5|0|10001|10|40|25|20001|20|40|50");
}

TEST_F(PlayCommandsTest, StandingsFollowTheDirectorsPlacesWhenAsked) {
  MakeSingles(2);
  Store({1, 2, {30, 20}});
  connection_.Execute("UPDATE TournamentClasses SET RankOverride = True");
  connection_.Execute("UPDATE TournamentEntrants SET RankOverride = 2 WHERE PlayerID = '000001'");
  connection_.Execute("UPDATE TournamentEntrants SET RankOverride = 1 WHERE PlayerID = '000002'");
  EXPECT_TRUE(Run("standings", {}).out.contains("\n1\t000001\t"));
  EXPECT_TRUE(Run("standings", {"--override"}).out.contains("\n1\t000002\t"));
}

TEST_F(PlayCommandsTest, StandingsWorkBesideAnOpenWindow) {
  MakeSingles(2);
  Store({1, 2, {30, 20}});
  QString text;
  QTextStream out(&text);
  QTextStream err(&text);
  EXPECT_EQ(RunCommandLine(PlayCommands(), {"standings", path_, "26-01-007", "A"}, out, err), 0);
  out.flush();
  EXPECT_TRUE(text.contains("\n1\t000001\t"));
}

}  // namespace
}  // namespace tavrelin
