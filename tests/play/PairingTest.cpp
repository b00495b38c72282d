#include "play/Pairing.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include "basic/Error.h"
#include "play/ClassBench.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

using enum OddEntrant;

class PairingTest : public ClassBench {
 protected:
  /// Pairs class "A" on its default courts, unless others are given.
  QString Pair(OddEntrant odd, int rounds = 1, QStringList courts = {}) {
    const ClassRules rules = Rules();
    if (courts.isEmpty()) courts = LoadClass(connection_, rules).courts;
    return CreatePairing(connection_, rules, {courts, rounds, odd}).sentence;
  }

  QStringList Games(const QString& columns, const QString& where = QStringLiteral("1 = 1")) {
    return Rows(QStringLiteral("SELECT %1 FROM TournamentSinglesRR WHERE %2 ORDER BY Game, Court")
                    .arg(columns, where));
  }

  int Count(const QString& where = QStringLiteral("1 = 1")) {
    return static_cast<int>(Games(QStringLiteral("Game"), where).size());
  }
};

TEST_F(PairingTest, AClassOfOneOrTwentyOneCannotBePaired) {
  for (const int entrants : {1, 21}) {
    const QString id = QString::number(entrants);
    AddClass("P", 0, "S", id);
    for (int n = 1; n <= entrants; ++n) Enter(n, 0, 0, id);
    if (entrants == 1) AddPlayers(21);
    const Refusal refusal =
        CreatePairing(connection_, Rules(id), {QStringList(11, "1"), 1, OddEntrant::Bye});
    EXPECT_EQ(refusal.sentence, "Cannot auto create pairings for a class of this size");
  }
  EXPECT_EQ(Count(), 0);
}

TEST_F(PairingTest, AClassWithoutEntrantsIsRefused) {
  AddClass();
  EXPECT_EQ(Pair(Bye), "No players entered in class");
}

TEST_F(PairingTest, AnOddClassNeedsByeOrPacer) {
  MakeSingles(5);
  EXPECT_EQ(Pair(NotChosen), "Select Bye or Pacer");
  EXPECT_EQ(Count(), 0);
}

TEST_F(PairingTest, AnEvenClassNeedsNeither) {
  MakeSingles(4);
  EXPECT_EQ(Pair(NotChosen), "");
  EXPECT_EQ(
      Games("Game, Court, PlayerOneNumber, PlayerTwoNumber"),
      (QStringList{"1   1 1 4", "1   2 2 3", "2   1 2 4", "2   2 1 3", "3   1 1 2", "3   2 3 4"}));
}

TEST_F(PairingTest, APairedClassIsNotPairedAgain) {
  MakeSingles(4);
  Pair(NotChosen);
  EXPECT_EQ(CreatePairing(connection_, Rules(), {{"1", "2"}, 1, NotChosen}).sentence,
            "Class has already been paired");
  EXPECT_EQ(Count(), 6);
}

TEST_F(PairingTest, TheCourtsMustBeAsManyAsTheScheduleHas) {
  MakeSingles(4);
  EXPECT_EQ(Pair(NotChosen, 1, {"1"}), "The class plays on 2 courts, but 1 were given");
  EXPECT_EQ(Count(), 0);
}

TEST_F(PairingTest, ThreeWithAByeAndABlankSecondCourtAllPlayOnTheFirst) {
  MakeSingles(3);
  EXPECT_EQ(Pair(Bye, 1, {"9", " "}), "");
  EXPECT_EQ(Games("Game, Court, PlayerOneNumber, PlayerTwoNumber"),
            (QStringList{"1   9 2 3", "2   9 1 3", "3   9 1 2"}));
}

TEST_F(PairingTest, FiveWithAPacerPlayFifteenGamesWithThePacerOnTheLastCourt) {
  MakeSingles(5);
  EXPECT_EQ(Pair(Pacer), "");
  EXPECT_EQ(Count(), 15);
  EXPECT_EQ(Count("PlayerTwoID = 'PPPPPP' AND Court = '  3' AND PlayerTwoNumber = 6"), 5);
  EXPECT_EQ(Count("PlayerOneID = 'PPPPPP'"), 0);
}

TEST_F(PairingTest, FiveWithAByePlayTenGamesNumberedOneToFive) {
  MakeSingles(5);
  EXPECT_EQ(Pair(Bye), "");
  EXPECT_EQ(Count(), 10);
  EXPECT_EQ(Games("DISTINCT Game"), (QStringList{"1", "2", "3", "4", "5"}));
  EXPECT_EQ(Count("PlayerOneNumber > 5 OR PlayerTwoNumber > 5"), 0);
}

TEST_F(PairingTest, FourInTwoRoundsPlayTwelveGamesNumberedOneToSix) {
  MakeSingles(4);
  EXPECT_EQ(Pair(NotChosen, 2), "");
  EXPECT_EQ(Count(), 12);
  EXPECT_EQ(Games("Court, PlayerOneID, PlayerTwoID", "Game <= 3"),
            Games("Court, PlayerOneID, PlayerTwoID", "Game > 3"));
  EXPECT_EQ(Games("DISTINCT Game"), (QStringList{"1", "2", "3", "4", "5", "6"}));
}

TEST_F(PairingTest, AnElevenManByeFreesTheBlankedCourtInEveryGame) {
  MakeSingles(11);
  EXPECT_EQ(Pair(Bye, 1, {"11", "12", "13", "14", "15", ""}), "");
  EXPECT_EQ(Count(), 55);
  EXPECT_EQ(Count("Court = '   '"), 0);
  EXPECT_EQ(Games("DISTINCT Game, Court").size(), 55);
}

TEST_F(PairingTest, WithAPacerABlankCourtStaysInUse) {
  MakeSingles(3);
  EXPECT_EQ(Pair(Pacer, 1, {"1", ""}), "");
  EXPECT_EQ(Count("Court = '   '"), 3);
}

TEST_F(PairingTest, ANewGameCarriesTheClassAndZerosForRealPlayers) {
  MakeSingles(3);
  Pair(Pacer, 1, {"North", "2"});
  const QString columns =
      "SanctionID, ClassID, Court, Shoes, Approved, PlayerOneForfeit, PlayerOneID, "
      "PlayerOneRingers, "
      "PlayerOnePoints, PlayerOneSinglePoints, PlayerTwoID";
  EXPECT_EQ(Games(columns, "Game = 1 AND PlayerTwoNumber = 4"),
            QStringList{"2601007 A Nor 40 False False 000001 0 0 0 PPPPPP"});
  EXPECT_EQ(Count("PlayerTwoID = 'PPPPPP' AND PlayerTwoRingers IS NULL AND PlayerTwoPoints IS NULL "
                  "AND PlayerTwoSinglePoints IS NULL"),
            3);
}

TEST_F(PairingTest, DeletingThePairingLeavesEntriesAndOtherClasses) {
  MakeSingles(4);
  AddClass("P", 0, "S", "B");
  Store({.one = 1, .two = 2}, "B");
  Pair(NotChosen);
  DeletePairing(connection_, Rules());
  EXPECT_EQ(Count("ClassID = 'A'"), 0);
  EXPECT_EQ(Count("ClassID = 'B'"), 1);
  EXPECT_EQ(Cell("SELECT COUNT(*) FROM TournamentEntrants").ToWhole(), 4);
}

TEST_F(PairingTest, AFailedGameLeavesNoneOfThePairing) {
  MakeSingles(4);
  ASSERT_EQ(
      sqlite3_exec(connection_.Handle(),
                   "CREATE TRIGGER Full BEFORE INSERT ON TournamentSinglesRR WHEN NEW.Game = 3 "
                   "BEGIN SELECT RAISE(ABORT, 'disk is full'); END",
                   nullptr, nullptr, nullptr),
      SQLITE_OK);
  EXPECT_THROW(Pair(NotChosen), Error);
  EXPECT_EQ(Count(), 0);
}

TEST_F(PairingTest, SeedsNumberTheClassAndUnseededFollowByPercentage) {
  AddClass();
  AddPlayers(6);
  Enter(1, 40);
  Enter(2, 70);
  Enter(3, 30, 2);
  Enter(4, 20, 1);
  Enter(5, 35, 2);
  Enter(6, 40);
  const LoadedClass loaded = LoadClass(connection_, Rules());
  QStringList order;
  for (int n = 1; n <= 6; ++n) {
    order << QString::number(loaded.list.CellAt(n, 0).ToWhole());
    EXPECT_EQ(loaded.list.CellAt(n, loaded.list.FieldIndex("PlayerNumber")).ToWhole(), n);
  }
  // Equal seeds by percentage; 1 and 6 are level and keep the order of entry.
  EXPECT_EQ(order, (QStringList{"4", "5", "3", "2", "1", "6"}));
}

TEST_F(PairingTest, TwoPlayersWithEqualSeedAreNumberedByPercentageTheHigherFirst) {
  AddClass();
  AddPlayers(2);
  Enter(1, 30, 1);
  Enter(2, 40, 1);
  const LoadedClass loaded = LoadClass(connection_, Rules());
  EXPECT_EQ(loaded.list.CellAt(1, 0).ToText(), Player(2));
  EXPECT_EQ(loaded.list.CellAt(2, 0).ToText(), Player(1));
}

TEST_F(PairingTest, AClassWhereNobodyIsSeededIsNumberedByPercentageAlone) {
  AddClass();
  AddPlayers(3);
  Enter(1, 10);
  Enter(2, 30);
  Enter(3, 20);
  const LoadedClass loaded = LoadClass(connection_, Rules());
  EXPECT_EQ(loaded.list.CellAt(1, 0).ToText(), Player(2));
  EXPECT_EQ(loaded.list.CellAt(2, 0).ToText(), Player(3));
  EXPECT_EQ(loaded.list.CellAt(3, 0).ToText(), Player(1));
}

TEST_F(PairingTest, AnUnpairedClassOffersItsCourtsByNumber) {
  const QPair<int, int> cases[] = {{1, 1}, {2, 1}, {3, 2}, {5, 3}, {6, 3}};
  AddPlayers(6);
  for (const auto& [entrants, courts] : cases) {
    const QString id = QString::number(entrants);
    AddClass("P", 0, "S", id);
    for (int n = 1; n <= entrants; ++n) Enter(n, 0, 0, id);
    const LoadedClass loaded = LoadClass(connection_, Rules(id));
    EXPECT_EQ(loaded.courts.size(), courts) << entrants;
    EXPECT_EQ(loaded.courts.last(), QString::number(courts) + "  ");
    EXPECT_EQ(loaded.IsOdd(), entrants % 2 == 1);
    EXPECT_FALSE(loaded.isPaired);
  }
}

TEST_F(PairingTest, APacerClassIsRecognizedFromItsGamesAndAByeClassNeedsNothing) {
  MakeSingles(3);
  Pair(Pacer);
  LoadedClass loaded = LoadClass(connection_, Rules());
  EXPECT_TRUE(loaded.hasPacer);
  EXPECT_TRUE(loaded.isPaired);
  EXPECT_EQ(loaded.highestGame, 3);
  EXPECT_EQ(loaded.entrants, 3);
  ASSERT_EQ(loaded.list.RecordCount(), 4);
  loaded.list.MoveLast();
  EXPECT_EQ(loaded.list["PlayerID"].ToText(), "PPPPPP");
  EXPECT_EQ(loaded.list["FirstName"].ToText(), "PACER");
  EXPECT_EQ(loaded.list["LastName"].ToText(), " ");
  DeletePairing(connection_, Rules());
  Pair(Bye);
  loaded = LoadClass(connection_, Rules());
  EXPECT_FALSE(loaded.hasPacer);
  EXPECT_EQ(loaded.list.RecordCount(), 3);
}

TEST_F(PairingTest, AskingForAPacerPutsHimLast) {
  MakeSingles(3);
  const LoadedClass loaded = LoadClass(connection_, Rules(), true);
  EXPECT_EQ(loaded.list.RecordCount(), 4);
  EXPECT_EQ(loaded.list.CellAt(4, 0).ToText(), "PPPPPP");
  EXPECT_EQ(loaded.courts.size(), 2);
}

TEST_F(PairingTest, TheListShowsWinsByTheHalfWinRule) {
  MakeSingles(1);
  connection_.Execute("UPDATE TournamentEntrants SET TotalWins = 3.5, TotalLosses = 4");
  const LoadedClass loaded = LoadClass(connection_, Rules());
  EXPECT_EQ(loaded.list["TotalWins"].ToText(), "3.5");
  EXPECT_EQ(loaded.list["TotalLosses"].ToText(), "4");
}

TEST_F(PairingTest, AStoredGameCanBeEdited) {
  MakeSingles(2);
  Pair(NotChosen);
  LoadedClass loaded = LoadClass(connection_, Rules());
  loaded.games.Set("PlayerOnePoints", 31);
  loaded.games.Set("Approved", true);
  loaded.games.Update();
  EXPECT_EQ(Games("PlayerOnePoints, Approved"), QStringList{"31 True"});
}

TEST_F(PairingTest, AClassIsFoundByItsTrimmedID) {
  AddClass("H", 80, "D", "AB");
  const ClassRules rules = FindClass(connection_, " 2601007", "AB ").value();
  EXPECT_EQ(rules.classID, "AB");
  EXPECT_EQ(rules.rankMethod, "H");
  EXPECT_EQ(rules.handicapPct, 80);
  EXPECT_EQ(&FormatOf(rules), &DoublesFormat());
  EXPECT_FALSE(FindClass(connection_, Sanction, "X").has_value());
}

class TeamPairingTest : public PairingTest {
 protected:
  QStringList TeamGames(const QString& columns) {
    return Rows(
        QStringLiteral("SELECT %1 FROM TournamentDoublesRR ORDER BY Game, Court").arg(columns));
  }
};

TEST_F(TeamPairingTest, TeamsBringTheirPlayersAndThePacerIsTeamZero) {
  MakeDoubles(3);
  EXPECT_EQ(Pair(Pacer), "");
  EXPECT_EQ(
      TeamGames("Game, Court, TeamOneID, TeamOnePlayerOneID, TeamOnePlayerTwoID, TeamTwoID, "
                "TeamTwoPlayerOneID, TeamTwoPlayerTwoID, TeamOnePoints")
          .first(3),
      (QStringList{"1   1 1 10001 20001 0 PPPPP1 PPPPP2 0", "1   2 2 10002 20002 3 10003 20003 0",
                   "2   1 2 10002 20002 0 PPPPP1 PPPPP2 0"}));
  const LoadedClass loaded = LoadClass(connection_, Rules());
  EXPECT_TRUE(loaded.hasPacer);
  EXPECT_EQ(loaded.list.CellAt(4, loaded.list.FieldIndex("Team")).ToText(), "PACER");
  EXPECT_EQ(loaded.list.CellAt(4, loaded.list.FieldIndex("PlayerTwoFirstName")).ToText(),
            "PACER 2");
  EXPECT_EQ(loaded.list.CellAt(1, loaded.list.FieldIndex("PlayerTwoLastName")).ToText(), "Of1");
}

TEST_F(TeamPairingTest, AByeHasNoGamesAndTeamsAreLimitedLikePlayers) {
  MakeDoubles(3);
  EXPECT_EQ(Pair(NotChosen), "Select Bye or Pacer");
  EXPECT_EQ(Pair(Bye), "");
  EXPECT_EQ(TeamGames("Game").size(), 3);
  EXPECT_FALSE(LoadClass(connection_, Rules()).hasPacer);
}

}  // namespace
}  // namespace tavrelin
