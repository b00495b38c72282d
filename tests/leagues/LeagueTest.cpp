#include "leagues/League.h"

#include "leagues/LeagueBench.h"

namespace tavrelin {
namespace {

class LeagueTest : public LeagueBench {
 protected:
  void AddLeague(const QString& sanction, const Value& name) {
    connection_.Execute("INSERT INTO Leagues (SanctionID, Name) VALUES (?, ?)", {sanction, name});
  }
  QStringList Texts() {
    QStringList texts;
    for (const LeagueChoice& choice : LeagueChoices(connection_)) texts << choice.text;
    return texts;
  }
};

TEST_F(LeagueTest, IsFoundByItsNumberWithHyphensOrWithout) {
  for (const char* number : {"2605001", "26-05-001", " 2605001 "}) {
    EXPECT_EQ(FindLeague(connection_, number).value().name, "Thursday League") << number;
  }
  EXPECT_FALSE(FindLeague(connection_, "2605002"));
  EXPECT_FALSE(FindLeague(connection_, ""));
}

TEST_F(LeagueTest, EmptyColumnsOfAnOldFileReadAsNothing) {
  AddLeague("2605002", Value());
  const League league = FindLeague(connection_, "2605002").value();
  EXPECT_EQ(league.name, "");
  EXPECT_EQ(league.shoes, 0);
  EXPECT_EQ(league.handicapPct, 0);
  EXPECT_FALSE(league.cancellation);
  EXPECT_FALSE(league.teams);
}

TEST_F(LeagueTest, SeasonsOfOneNameCarryTheirNumberAndTheNewestStandsFirst) {
  AddLeague("2505001", "thursday league ");
  AddLeague("2605003", "Seniors");
  EXPECT_EQ(Texts(),
            (QStringList{"Seniors", "Thursday League   26-05-001", "thursday league   25-05-001"}));
}

TEST_F(LeagueTest, ALeagueWithoutANameIsOfferedByItsNumber) {
  AddLeague("2605003", "");
  EXPECT_EQ(Texts(), (QStringList{"26-05-003", "Thursday League"}));
}

TEST_F(LeagueTest, TheBoxesOpenOnTheNewestLeagueOfTheRecentName) {
  AddLeague("2505001", "Thursday League");
  AddLeague("2605003", "Seniors");
  const QList<LeagueChoice> choices = LeagueChoices(connection_);
  EXPECT_EQ(choices[PlaceOfLeague(choices, "Thursday League ")].sanctionID, "2605001");
  EXPECT_EQ(PlaceOfLeague(choices, "seniors"), 0);
  EXPECT_EQ(PlaceOfLeague(choices, "Monday League"), -1);
  EXPECT_EQ(PlaceOfLeague({}, ""), -1);
}

}  // namespace
}  // namespace tavrelin
