#include "sample/SampleClub.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/ClubCommands.h"
#include "basic/Error.h"
#include "sample/Dice.h"
#include "sample/PitchedGame.h"
#include "support/CommandAnswer.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct PitchCase {
  double one;
  double two;
};
struct PitchedGameTest : testing::TestWithParam<PitchCase> {};

TEST_P(PitchedGameTest, CancelsRingersAndCountsEachShoeOnce) {
  Dice dice(7);
  for (int game = 0; game < 500; ++game) {
    const auto [one, two] = PitchGame(dice, {GetParam().one, GetParam().two}, 40);
    EXPECT_EQ(one.points - two.points,
              3 * (one.ringers - two.ringers) + one.singlePoints - two.singlePoints);
    for (const PitchedSide& side : {one, two}) {
      EXPECT_LE(side.points, 3 * side.ringers + side.singlePoints);
      EXPECT_LE(side.ringers + side.singlePoints, 40);
      EXPECT_GE(side.points, side.singlePoints);
    }
    EXPECT_LE(one.singlePoints + two.singlePoints, 20);
  }
}

INSTANTIATE_TEST_SUITE_P(Skills, PitchedGameTest,
                         testing::Values(PitchCase{0.0, 0.0}, PitchCase{0.1, 0.8},
                                         PitchCase{0.5, 0.5}, PitchCase{0.9, 0.85},
                                         PitchCase{1.0, 1.0}, PitchCase{1.0, 0.0}));

TEST(PitchedGame, RingersFollowTheSkillOfThePlayer) {
  Dice dice(11);
  int ringers = 0;
  for (int game = 0; game < 1000; ++game) ringers += PitchGame(dice, {0.6, 0.3}, 40)[0].ringers;
  EXPECT_NEAR(ringers / 40000.0, 0.6, 0.012);  // five standard deviations of 40,000 shoes
}

TEST(PitchedGame, AgainstThePacerEveryRingerAndSingleCounts) {
  Dice dice(3);
  for (int game = 0; game < 500; ++game) {
    const PitchedSide side = PitchAlone(dice, 0.5, 40);
    EXPECT_EQ(side.points, 3 * side.ringers + side.singlePoints);
    EXPECT_LE(side.ringers + side.singlePoints, 40);
  }
}

/// One sample for all tests: it is only read.
struct SampleClubTest : testing::Test {
  static void SetUpTestSuite() {
    folder = std::make_unique<QTemporaryDir>();
    MakeSampleClub(folder->filePath("sample.mdb"));
    db = std::make_unique<PlainDatabase>(folder->filePath("sample.mdb"));
  }
  static void TearDownTestSuite() {
    db.reset();
    folder.reset();
  }
  static std::unique_ptr<QTemporaryDir> folder;
  static std::unique_ptr<PlainDatabase> db;
};
std::unique_ptr<QTemporaryDir> SampleClubTest::folder;
std::unique_ptr<PlainDatabase> SampleClubTest::db;

TEST_F(SampleClubTest, HasPlayersOfAllDivisionsMembershipsAndSeveralStates) {
  EXPECT_EQ(db->Count("Players"), 120);
  EXPECT_EQ(db->Cell("SELECT count(DISTINCT PlayerID) FROM Players"), "120");
  EXPECT_EQ(db->Cell("SELECT count(DISTINCT FirstName || LastName) FROM Players"), "120");
  EXPECT_EQ(db->Cell("SELECT count(DISTINCT Category) FROM Players"), "12");
  EXPECT_EQ(db->Cell("SELECT count(DISTINCT MembershipType) FROM Players"), "5");
  EXPECT_EQ(db->Cell("SELECT count(DISTINCT State) FROM Players"), "8");
  EXPECT_GT(db->Count("Players WHERE LastName LIKE '%''%'"), 0);
  EXPECT_GT(db->Count("Players WHERE length(LastName) <> length(CAST(LastName AS BLOB))"), 0);
  EXPECT_EQ(db->Count("Players WHERE length(PlayerID) <> 6 OR length(LastName) > 25 OR "
                      "length(CardNumber) > 6 OR State IS NULL OR Email IS NULL"),
            0);
}

TEST_F(SampleClubTest, HasSixteenTeamsOfTwo) {
  EXPECT_EQ(db->Count("Teams"), 16);
  EXPECT_EQ(db->Count("(SELECT TeamID FROM TeamPlayers GROUP BY TeamID HAVING count(*) = 2)"), 16);
}

struct ClassCase {
  const char* sanction;
  const char* id;
  const char* games;
  int entrants;
  int paired;
  int approved;
};

TEST_F(SampleClubTest, HasTwoPlayedTournamentsAndOneHalfPlayed) {
  // A round robin of n has n (n - 1) / 2 games; with a pacer one for each player more.
  const ClassCase classes[] = {
      {"OH26041", "A", "Singles", 8, 28, 28},  {"OH26041", "B", "Singles", 6, 15, 15},
      {"OH26041", "C", "Singles", 7, 28, 28},  {"OH26041", "D1", "Doubles", 6, 15, 15},
      {"ON26052", "A", "Singles", 10, 45, 45}, {"ON26052", "B", "Singles", 5, 10, 10},
      {"OH26067", "A", "Singles", 12, 66, 33}, {"OH26067", "B", "Singles", 7, 0, 0}};
  EXPECT_EQ(db->Count("Tournaments"), 3);
  EXPECT_EQ(db->Count("TournamentClasses"), 8);
  for (const ClassCase& one : classes) {
    const QString where = QStringLiteral(" WHERE SanctionID = '%1' AND ClassID = '%2'")
                              .arg(QLatin1String(one.sanction), QLatin1String(one.id));
    const bool singles = QLatin1String(one.games) == QLatin1String("Singles");
    const QString games = QStringLiteral("Tournament%1RR").arg(QLatin1String(one.games));
    EXPECT_EQ(db->Count((singles ? "TournamentEntrants" : "TournamentTeamEntrants") + where),
              one.entrants);
    EXPECT_EQ(db->Count(games + where), one.paired);
    EXPECT_EQ(db->Count(games + where + " AND Approved"), one.approved);
  }
}

TEST_F(SampleClubTest, EverySinglesGameIsAScoreThatCanBePitched) {
  EXPECT_EQ(db->Count("TournamentSinglesRR WHERE Approved AND PlayerOneRingers > 0"),
            db->Count("TournamentSinglesRR WHERE Approved AND PlayerOneID <> 'PPPPPP' AND "
                      "PlayerOneRingers > 0"));
  EXPECT_EQ(
      db->Count(
          "(SELECT coalesce(PlayerOnePoints, 0) p1, coalesce(PlayerOneRingers, 0) r1, "
          "coalesce(PlayerOneSinglePoints, 0) s1, coalesce(PlayerTwoPoints, 0) p2, "
          "coalesce(PlayerTwoRingers, 0) r2, coalesce(PlayerTwoSinglePoints, 0) s2, Shoes FROM "
          "TournamentSinglesRR) WHERE p1 > 3 * r1 + s1 OR p2 > 3 * r2 + s2 OR p1 - p2 <> 3 * "
          "(r1 - r2) + s1 - s2 OR r1 + s1 > Shoes OR r2 + s2 > Shoes"),
      0);
}

TEST_F(SampleClubTest, DoublesPointsLieWithinTheRingersAndShoesOfBothPartners) {
  EXPECT_EQ(db->Count("TournamentDoublesRR WHERE TeamOnePoints > 3 * (TeamOnePlayerOneRingers + "
                      "TeamOnePlayerTwoRingers) + 2 * Shoes OR TeamOnePlayerOneRingers > Shoes OR "
                      "TeamTwoPlayerTwoRingers > Shoes"),
            0);
}

TEST_F(SampleClubTest, TotalsOfTheEntriesAreTheSumsOfTheirGames) {
  const QString sides =
      "(SELECT SanctionID, ClassID, PlayerOneID AS Player, Shoes, PlayerOneRingers AS Ringers, "
      "PlayerOnePoints AS Points FROM TournamentSinglesRR WHERE Approved UNION ALL SELECT "
      "SanctionID,"
      " ClassID, PlayerTwoID, Shoes, PlayerTwoRingers, PlayerTwoPoints FROM TournamentSinglesRR "
      "WHERE Approved)";
  EXPECT_EQ(db->Count("TournamentEntrants e WHERE TotalShoes <> (SELECT coalesce(sum(Shoes), 0) "
                      "FROM " +
                      sides +
                      " s WHERE s.SanctionID = e.SanctionID AND s.ClassID = "
                      "e.ClassID AND s.Player = e.PlayerID)"),
            0);
  EXPECT_EQ(
      db->Count("TournamentEntrants e WHERE (TotalRingers || ' ' || TotalPoints) <> (SELECT "
                "coalesce(sum(Ringers), 0) || ' ' || coalesce(sum(Points), 0) FROM " +
                sides +
                " s WHERE s.SanctionID = e.SanctionID AND s.ClassID = e.ClassID AND s.Player = "
                "e.PlayerID)"),
      0);
  EXPECT_EQ(db->Cell("SELECT sum(TotalWins) = sum(TotalLosses) FROM TournamentEntrants WHERE "
                     "SanctionID = 'ON26052'"),
            "1");
}

TEST_F(SampleClubTest, EverybodyEntersWithAnAverageHePitchesNear) {
  // 160 shoes at least, thrown at the skill that the average stands for: four standard deviations
  // of their percent are 4 * sqrt(0.25 / 160) = 16 points.
  const QString off =
      " WHERE SanctionID <> 'OH26067' AND abs(100.0 * TotalRingers / TotalShoes - "
      "RingerPercent) > 16";
  for (const QString table : {"TournamentEntrants", "TournamentTeamEntrants"}) {
    EXPECT_EQ(db->Count(table + " WHERE RingerPercent < 5 OR RingerPercent > 90"), 0);
    EXPECT_EQ(db->Count(table + off), 0) << table.toStdString();
    EXPECT_EQ(db->Count(table + " WHERE Paid <> 12.5 OR ClassID = '' OR ClassID IS NULL"), 0);
  }
}

TEST_F(SampleClubTest, SomeEnterTheOpenTournamentByTheirResults) {
  // At most two results each, so that the rule pools them all.
  const QString results =
      "(SELECT PlayerID, 100.0 * sum(Ringers) / sum(Shoes) AS Pooled FROM PlayerScores GROUP BY "
      "PlayerID)";
  const QString withoutAverage =
      "TournamentEntrants e JOIN Players p ON p.PlayerID = e.PlayerID JOIN " + results +
      " r ON r.PlayerID = e.PlayerID WHERE e.SanctionID = 'OH26067' AND p.Average = 0";
  EXPECT_GT(db->Count(withoutAverage), 0);
  EXPECT_EQ(db->Count(withoutAverage + " AND abs(e.RingerPercent - r.Pooled) > 0.000001"), 0);
  EXPECT_EQ(db->Count("TournamentEntrants e JOIN Players p ON p.PlayerID = e.PlayerID WHERE "
                      "p.Average <> 0 AND e.RingerPercent <> p.Average"),
            0);
}

TEST_F(SampleClubTest, TheStrongerPartnerOfEveryTeamStandsFirst) {
  EXPECT_EQ(db->Count("TournamentTeamEntrants e JOIN Players one ON one.PlayerID = e.PlayerOneID "
                      "JOIN Players two ON two.PlayerID = e.PlayerTwoID WHERE one.Average <> 0 AND "
                      "one.Average < two.Average"),
            0);
}

TEST_F(SampleClubTest, EveryPlayerOfThePastTournamentsHasOneResult) {
  // 8 + 6 + 7 in singles, 6 teams of two, 10 + 5.
  EXPECT_EQ(db->Count("PlayerScores"), 21 + 12 + 15);
  EXPECT_EQ(db->Count("(SELECT DISTINCT SanctionID, PlayerID FROM PlayerScores)"), 48);
  EXPECT_EQ(db->Count("PlayerScores WHERE SanctionID = 'OH26067'"), 0);
  EXPECT_EQ(
      db->Count("PlayerScores s JOIN TournamentEntrants e ON s.SanctionID = e.SanctionID AND "
                "s.PlayerID = e.PlayerID WHERE s.Ringers = e.TotalRingers AND s.Shoes = "
                "e.TotalShoes AND s.Wins = e.TotalWins AND s.HiGame = e.HiGame AND s.ClassID = "
                "e.ClassID"),
      36);
  EXPECT_EQ(db->Cell("SELECT group_concat(Place) FROM (SELECT Place FROM PlayerScores WHERE "
                     "SanctionID = 'ON26052' AND ClassID = 'B' ORDER BY Place)"),
            "1,2,3,4,5");
  EXPECT_EQ(db->Count("PlayerScores WHERE Ringers > Shoes OR Shoes = 0 OR HiGame = 0"), 0);
}

TEST_F(SampleClubTest, IsInOrder) {
  const CommandAnswer check = Ask(ClubCommands(), {"check", folder->filePath("sample.mdb")});
  EXPECT_EQ(check.code, exits::Done) << check.out.toStdString();
  EXPECT_FALSE(check.out.contains("orphans"));
}

TEST_F(SampleClubTest, TheSameSeedGivesTheSameFileAndAnotherSeedAnotherClub) {
  const auto bytes = [](const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
  };
  MakeSampleClub(folder->filePath("again.mdb"));
  EXPECT_EQ(bytes(folder->filePath("again.mdb")), bytes(folder->filePath("sample.mdb")));
  MakeSampleClub(folder->filePath("other.mdb"), 41);
  EXPECT_NE(PlainDatabase(folder->filePath("other.mdb")).Content(), db->Content());
}

TEST_F(SampleClubTest, NeverTakesThePlaceOfAFile) {
  EXPECT_THROW(MakeSampleClub(folder->filePath("sample.mdb")), Error);
  EXPECT_EQ(db->Count("Players"), 120);
}

TEST_F(SampleClubTest, LeavesNothingBesideTheFile) {
  MakeSampleClub(folder->filePath("alone/sample.mdb"));
  EXPECT_EQ(QDir(folder->filePath("alone")).entryList(QDir::Files | QDir::Hidden),
            QStringList{"sample.mdb"});
}

}  // namespace
}  // namespace tavrelin
