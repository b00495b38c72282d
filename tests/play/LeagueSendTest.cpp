#include "play/LeagueSend.h"

#include "leagues/League.h"
#include "play/ClassBench.h"
#include "play/LeagueSendCommand.h"
#include "support/CommandAnswer.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

const QDate Evening(2026, 4, 7);

class LeagueSendTest : public ClassBench {
 protected:
  void SetUp() override {
    MakeSingles(4);
    AddLeague("2605001");
  }

  void AddLeague(const QString& sanction, const QString& format = "S") {
    connection_.Execute("INSERT INTO Leagues (SanctionID, Name, PlayFormat) VALUES (?, 'L', ?)",
                        {sanction, format});
  }
  void AddLeagueTeam(int team, const QList<int>& players) {
    connection_.Execute("INSERT INTO LeagueTeams VALUES('2605001', ?)", {team});
    for (const int player : players) {
      connection_.Execute("INSERT INTO TeamPlayers VALUES(?, ?)", {team, Player(player)});
    }
  }
  SentToLeague Send(const QString& league = "2605001", const QDate& evening = Evening) {
    return SendClassToLeague(connection_, Rules(), FindLeague(connection_, league).value(),
                             evening);
  }
  /// "player team points shoes ringers result", in the order written.
  QStringList Sent() {
    return Rows(
        "SELECT PlayerID, TeamID, Points, Shoes, Ringers, WinLoss FROM LeagueScores ORDER BY ID");
  }
};

TEST_F(LeagueSendTest, AnApprovedGameIsARowForEachPlayer) {
  Store({1, 2, {30, 24}, {{8}, {6}}, 40});
  EXPECT_EQ(Send().Message(),
            "Class information has been sent to league: 2 new, 0 updated, 0 left in another "
            "league");
  EXPECT_EQ(Sent(), (QStringList{"000001 0 30 40 8 W", "000002 0 24 40 6 L"}));
  EXPECT_EQ(Rows("SELECT SanctionID, [Date], Handicap, GameID FROM LeagueScores"),
            (QStringList{"2605001 4/7/2026 0 1", "2605001 4/7/2026 0 1"}));
}

TEST_F(LeagueSendTest, GamesGoInTheOrderOfGameAndCourt) {
  Store({1, 2, {3, 0}, {{1}, {0}}, 40, true, {false, false}, 2});
  Store({3, 4, {3, 0}, {{1}, {0}}, 40, true, {false, false}, 1});
  EXPECT_GT(Send().added, 0);
  EXPECT_EQ(Rows("SELECT PlayerID FROM LeagueScores ORDER BY ID"),
            (QStringList{"000003", "000004", "000001", "000002"}));
}

TEST_F(LeagueSendTest, ResultsFollowForfeitPacerAndPoints) {
  struct Case {
    Played game;
    QStringList results;
  };
  const Case cases[] = {
      {{1, 2, {30, 24}}, {"W", "L"}},
      {{1, 2, {24, 30}}, {"L", "W"}},
      {{1, 2, {30, 30}}, {"T", "T"}},
      {{1, 2, {30, 24}, {{}, {}}, 40, true, {true, false}}, {"L", "W"}},
      {{1, 2, {30, 24}, {{}, {}}, 40, true, {false, true}}, {"W", "L"}},
      {{1, 2, {30, 24}, {{}, {}}, 40, true, {true, true}}, {"L", "L"}},
      {{1, 0, {10, 24}}, {"W"}},
      {{0, 2, {30, 24}}, {"W"}},
      {{1, 0, {10, 24}, {{}, {}}, 40, true, {true, false}}, {"L"}},
  };
  for (const Case& c : cases) {
    connection_.Execute("DELETE FROM TournamentSinglesRR");
    connection_.Execute("DELETE FROM LeagueScores");
    Store(c.game);
    EXPECT_GT(Send().added, 0);
    EXPECT_EQ(Rows("SELECT WinLoss FROM LeagueScores ORDER BY ID"), c.results);
  }
}

TEST_F(LeagueSendTest, AForfeitIsSentWithTheFiguresAsTheyStand) {
  Store({1, 2, {12, 24}, {{2}, {6}}, 40, true, {true, false}});
  EXPECT_GT(Send().added, 0);
  EXPECT_EQ(Sent(), (QStringList{"000001 0 12 40 2 L", "000002 0 24 40 6 W"}));
}

TEST_F(LeagueSendTest, AGameAgainstThePacerIsARowOfTheRealPlayerWhoWins) {
  Store({3, 0, {12, 0}, {{2}, {0}}});
  EXPECT_EQ(Send().added, 1);
  EXPECT_EQ(Sent(), QStringList{"000003 0 12 40 2 W"});
}

TEST_F(LeagueSendTest, AClassSentTwiceLeavesOneRowAPlayerAndGameWithTheNewScores) {
  Store({1, 2, {30, 24}, {{8}, {6}}});
  EXPECT_GT(Send().added, 0);
  connection_.Execute(
      "UPDATE TournamentSinglesRR SET PlayerOnePoints = 20, PlayerOneRingers = 5, Shoes = 30");
  Store({3, 4, {3, 0}, {{1}, {0}}, 40, true, {false, false}, 2});
  EXPECT_EQ(Send("2605001", Evening.addDays(7)).Message(),
            "Class information has been sent to league: 2 new, 2 updated, 0 left in another "
            "league");
  EXPECT_EQ(Sent(), (QStringList{"000001 0 20 30 5 L", "000002 0 24 30 6 W", "000003 0 3 40 1 W",
                                 "000004 0 0 40 0 L"}));
  EXPECT_EQ(Rows("SELECT [Date] FROM LeagueScores ORDER BY ID"),
            (QStringList{"4/7/2026", "4/7/2026", "4/14/2026", "4/14/2026"}));
}

TEST_F(LeagueSendTest, AGameNotApprovedIsNotSentButOneThatWasSentBeforeStays) {
  Store({1, 2, {30, 24}});
  Store({3, 4, {30, 24}, {{8}, {6}}, 40, false, {false, false}, 2});
  EXPECT_EQ(Send().added, 2);
  connection_.Execute("UPDATE TournamentSinglesRR SET Approved = False, PlayerOnePoints = 1");
  EXPECT_EQ(Send().Message(),
            "Class information has been sent to league: 0 new, 0 updated, 0 left in another "
            "league");
  EXPECT_EQ(Sent().first(), "000001 0 30 40 0 W");
}

TEST_F(LeagueSendTest, ASecondLeagueReceivesNothingAndTheClosingMessageSaysSo) {
  AddLeague("2605002");
  Store({1, 2, {30, 24}, {{8}, {6}}});
  EXPECT_GT(Send().added, 0);
  connection_.Execute("UPDATE TournamentSinglesRR SET PlayerOnePoints = 33");
  EXPECT_EQ(Send("2605002").Message(),
            "Class information has been sent to league: 0 new, 0 updated, 2 left in another "
            "league");
  EXPECT_EQ(Rows("SELECT SanctionID, Points FROM LeagueScores ORDER BY ID"),
            (QStringList{"2605001 33", "2605001 24"}));
}

TEST_F(LeagueSendTest, APlayerWithoutATeamTakesThatOfTheOneBeforeHim) {
  AddLeague("2605003", "T");
  connection_.Execute("UPDATE Leagues SET PlayFormat = 'T' WHERE SanctionID = '2605001'");
  AddLeagueTeam(7, {2});
  AddLeagueTeam(8, {4});
  Store({1, 2, {30, 24}});                                           // 1 has none: 0
  Store({3, 4, {30, 24}, {{8}, {6}}, 40, true, {false, false}, 2});  // 3 has none: 7
  Store({1, 3, {30, 24}, {{8}, {6}}, 40, true, {false, false}, 3});  // both: 8
  EXPECT_EQ(Send().Message(),
            "Class information has been sent to league: 6 new, 0 updated, 0 left in another "
            "league, 2 players without a team");
  EXPECT_EQ(Rows("SELECT PlayerID, TeamID FROM LeagueScores ORDER BY ID"),
            (QStringList{"000001 0", "000002 7", "000003 7", "000004 8", "000001 8", "000003 8"}));
}

TEST_F(LeagueSendTest, AClassWithoutGamesSendsNothingAndSaysSo) {
  EXPECT_EQ(Send().added, 0);
  EXPECT_TRUE(Sent().isEmpty());
}

TEST_F(LeagueSendTest, RowsThatWereSentAreCountedByClass) {
  AddClass("P", 0, "S", "B");
  Store({1, 2, {30, 24}});
  Store({3, 4, {30, 24}}, "B");
  EXPECT_GT(Send().added, 0);
  EXPECT_EQ(RowsSentToLeagues(connection_, Rules()), 2);
  EXPECT_EQ(RowsSentToLeagues(connection_, Rules("B")), 0);
}

TEST_F(LeagueSendTest, TheCommandSendsAndTellsWhatBecameOfTheGames) {
  Store({1, 2, {30, 24}, {{8}, {6}}});
  connection_.Close();
  const CommandAnswer ran = Ask(
      {LeagueSendCommand()}, {"league-send", path_, "26-01-007", "A", "26-05-001", "2026-04-07"});
  EXPECT_EQ(ran.code, exits::Done);
  EXPECT_EQ(ran.err,
            "Class information has been sent to league: 2 new, 0 updated, 0 left in another "
            "league\n");
  EXPECT_EQ(ran.out, "");
  connection_.Open("DBQ=" + path_);
  EXPECT_EQ(Rows("SELECT [Date] FROM LeagueScores").first(), "4/7/2026");
}

TEST_F(LeagueSendTest, TheCommandWritesNothingWhenItIsRefused) {
  Store({1, 2, {30, 24}});
  AddClass("P", 0, "D", "D1");
  connection_.Close();
  const QPair<QStringList, const char*> cases[] = {
      {{"26-01-007", "A", "26-05-001", "4/7/2026"},
       "\"4/7/2026\" is not a date; write it as yyyy-mm-dd\n"},
      {{"26-01-007", "A", "26-05-001", "2026-02-30"},
       "\"2026-02-30\" is not a date; write it as yyyy-mm-dd\n"},
      {{"26-01-007", "A", "26-05-009", "2026-04-07"}, "There is no league \"26-05-009\"\n"},
      {{"26-01-007", "X", "26-05-001", "2026-04-07"}, "Tournament 26-01-007 has no class \"X\"\n"},
      {{"26-01-007", "D1", "26-05-001", "2026-04-07"},
       "Class \"D1\" plays doubles; a league counts singles games\n"},
  };
  for (const auto& [arguments, message] : cases) {
    const CommandAnswer ran =
        Ask({LeagueSendCommand()}, QStringList{"league-send", path_} + arguments);
    EXPECT_EQ(ran.code, exits::Refused);
    EXPECT_EQ(ran.err.toStdString(), message);
  }
  connection_.Open("DBQ=" + path_);
  EXPECT_TRUE(Sent().isEmpty());
}

}  // namespace
}  // namespace tavrelin
