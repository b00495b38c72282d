#include "leagues/TeamWins.h"

#include "basic/Error.h"
#include "leagues/LeagueBench.h"

namespace tavrelin {
namespace {

using Verdict = RowCheck::Verdict;

class TeamWinsTest : public LeagueBench {
 protected:
  RowCheck Check(const Value& wins, const Value& losses, const Value& date = "4/14/2026",
                 qint64 own = 0) {
    const Recordset others = OpenTeamWins(connection_, Sanction, 3);
    return CheckTeamWins({{"PlayDate", date}, {"Wins", wins}, {"Losses", losses}}, Sanction, 3,
                         others, own);
  }
};

TEST_F(TeamWinsTest, WinsAreWholeOrHalfAndNotBelowNone) {
  struct Case {
    Value wins, losses;
    const char* message;
  };
  const Case cases[] = {
      {1.5, 0, ""},
      {1.3, 0, "Invalid Wins."},
      {1.55, 0, "Invalid Wins."},
      {-1, 0, "Invalid Wins."},
      {"x", 1, "Invalid Wins."},
      {"", "0.5", ""},
      {2, "1.2", "Invalid Losses."},
      {2, -0.5, "Invalid Losses."},
      {2, "x", "Invalid Losses."},
      {2, Value(), ""},
      {"1.3", "x", "Invalid Wins."},
  };
  for (const Case& c : cases) {
    const RowCheck check = Check(c.wins, c.losses);
    EXPECT_EQ(check.message, c.message)
        << c.wins.ToText().toStdString() << ' ' << c.losses.ToText().toStdString();
    EXPECT_EQ(check.verdict, check.message.isEmpty() ? Verdict::Save : Verdict::Cancel);
  }
}

TEST_F(TeamWinsTest, ARowWithoutWinsAndLossesIsDroppedWithoutAWord) {
  for (const Value& none : {Value(0), Value(), Value(""), Value("x")}) {
    const RowCheck check = Check(none, 0);
    EXPECT_EQ(check.verdict, Verdict::Discard);
    EXPECT_EQ(check.message, "");
  }
}

TEST_F(TeamWinsTest, ADateIsNeeded) {
  EXPECT_EQ(Check(1, 0, Value()).verdict, Verdict::Cancel);
  EXPECT_EQ(Check(1, 0, Value()).message, "");
  EXPECT_EQ(Check(1, 0, "soon").message, "Invalid date.");
}

TEST_F(TeamWinsTest, TheRowTakesLeagueTeamAndNoneForWhatIsEmpty) {
  const RowCheck check = Check(1.5, "");
  const QList<QPair<QString, Value>> fixes = {{"SanctionID", Sanction},
                                              {"TeamID", qint64{3}},
                                              {"PlayDate", QDate(2026, 4, 14)},
                                              {"Wins", 1.5},
                                              {"Losses", 0.0}};
  EXPECT_EQ(check.fixes, fixes);
}

TEST_F(TeamWinsTest, ATeamHasOneRowADay) {
  AddTeamWins(3, 1, 0, QDate(2026, 4, 14));
  AddTeamWins(4, 1, 0, QDate(2026, 4, 21));
  EXPECT_EQ(Check(1, 0).message,
            "This team has wins on that date already.  Add them up in one row.");
  EXPECT_EQ(Check(1, 0, "4/21/2026").verdict, Verdict::Save);
  const qint64 own = OpenTeamWins(connection_, Sanction, 3).CurrentBookmark();
  EXPECT_EQ(Check(2, 0, "4/14/2026", own).verdict, Verdict::Save);
}

TEST_F(TeamWinsTest, AddedWinsAreSummedByTeam) {
  AddTeamWins(3, 1.5, 2);
  AddTeamWins(3, 1, 0.5, FirstNight.addDays(7));
  connection_.Execute(
      "INSERT INTO LeagueTeamScores (SanctionID, TeamID, PlayDate) VALUES ('2605001', 4, "
      "#4/7/2026#)");
  const auto added = AddedTeamWins(connection_, Sanction);
  EXPECT_EQ(added.size(), 2);
  EXPECT_EQ(added[3].wins, 2.5);
  EXPECT_EQ(added[3].losses, 2.5);
  EXPECT_EQ(added[4].wins, 0);
  EXPECT_TRUE(AddedTeamWins(connection_, "2605002").isEmpty());
}

TEST_F(TeamWinsTest, TheTableIsMadeWhereAnOldFileHasNone) {
  connection_.Execute("DROP TABLE LeagueTeamScores");
  EXPECT_FALSE(HasTeamWins(connection_));
  EXPECT_TRUE(AddedTeamWins(connection_, Sanction).isEmpty());
  EnsureTeamWins(connection_);
  EXPECT_TRUE(HasTeamWins(connection_));
  AddTeamWins(3, 1.5, 2);
  EXPECT_THROW(AddTeamWins(3, 1, 0), Error);  // the same day
  EnsureTeamWins(connection_);
  EXPECT_EQ(AddedTeamWins(connection_, Sanction)[3].wins, 1.5);
}

TEST_F(TeamWinsTest, AFailureToReadIsNotTakenForAMissingTable) {
  connection_.Close();
  EXPECT_THROW(HasTeamWins(connection_), Error);
}

}  // namespace
}  // namespace tavrelin
