#include "players/PlayerNames.h"

#include <gtest/gtest.h>

#include "support/ClubFixture.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

TEST(PersonName, IsShownInFullAndAsListsHaveIt) {
  const struct {
    PersonName name;
    QString full, listed;
  } cases[] = {{{u"Ann"_s, u"Stone"_s}, u"Ann Stone"_s, u"Stone, Ann"_s},
               {{u"Ann"_s, {}}, u"Ann"_s, u"Ann"_s},
               {{{}, u"Stone"_s}, u"Stone"_s, u"Stone"_s},
               {{}, u""_s, u""_s}};
  for (const auto& c : cases) {
    EXPECT_EQ(c.name.Full(), c.full);
    EXPECT_EQ(c.name.Listed(), c.listed);
  }
}

struct PlayerNamesTest : ClubFixture {
  PlayerNamesTest() {
    Run(u"CREATE TABLE Players (PlayerID TEXT(6), LastName TEXT(25), FirstName TEXT(20), "
        "City TEXT(30))"_s);
    AddPlayer(u"STOANN"_s, u"Stone"_s, u"Ann  "_s, u"Duluth"_s);
    AddPlayer(u"VANZOE"_s, u"Van"_s, u"Zoe"_s, u"Austin"_s);
    AddPlayer(u"VANAL0"_s, u"Van Horn"_s, u"Al"_s, {});
    Run(u"CREATE TABLE Teams (TeamID INTEGER, Team TEXT(50))"_s);
    Run(u"INSERT INTO Teams VALUES (7, ' Aces ')"_s);
  }

  void AddPlayer(const QString& id, const QString& last, const QString& first,
                 const QString& city) {
    Run(u"INSERT INTO Players VALUES (?, ?, ?, ?)"_s, {id, last, first, city});
  }
};

TEST_F(PlayerNamesTest, NamesAreFoundByNumberWhateverItsCase) {
  const ByID<PersonName> names =
      PlayerNames(connection, {u"stoann"_s, u"VANZOE"_s, u"GONE00"_s}, {u"City"_s});
  EXPECT_EQ(names.value(u" StoAnn"_s).Full(), u"Ann Stone"_s);
  EXPECT_EQ(names.value(u"STOANN"_s).values.value(u"City"_s), Value(u"Duluth"_s));
  EXPECT_FALSE(names.contains(u"VANAL0"_s));
  EXPECT_FALSE(names.contains(u"GONE00"_s));
}

TEST_F(PlayerNamesTest, WhoIsNotOnFileIsShownByHisNumber) {
  const ByID<PersonName> names = PlayerNames(connection, {u"STOANN"_s});
  EXPECT_EQ(NameOrNumber(names, u"STOANN"_s).Full(), u"Ann Stone"_s);
  EXPECT_EQ(NameOrNumber(names, u"GONE00 "_s).Full(), u"GONE00 (not on file)"_s);
  EXPECT_EQ(NameOrNumber(names, u"GONE00"_s).Listed(), u"GONE00 (not on file)"_s);
  EXPECT_EQ(NameOrNumber(names, u"  "_s).Full(), u""_s);
}

TEST_F(PlayerNamesTest, FullNamesAndTeamNamesLeaveOutWhoIsNotOnFile) {
  const ByID<QString> players = FullNames(connection, {u"vanal0"_s, u"GONE00"_s});
  EXPECT_EQ(players.value(u"VANAL0"_s), u"Al Van Horn"_s);
  EXPECT_FALSE(players.contains(u"GONE00"_s));
  const ByID<QString> teams = TeamNames(connection, {u"7"_s, u"8"_s});
  EXPECT_EQ(teams.value(u"7"_s), u"Aces"_s);
  EXPECT_FALSE(teams.contains(u"8"_s));
}

TEST_F(PlayerNamesTest, NobodyAskedForIsNobodyAnswered) {
  EXPECT_FALSE(PlayerNames(connection, {}).contains(u"STOANN"_s));
  EXPECT_FALSE(TeamNames(connection, {}).contains(u"7"_s));
}

// "Van Horn, Al" stands before "Van, Zoe": a blank comes before a comma.
TEST_F(PlayerNamesTest, TheRosterListIsInTheOrderOfWhatItShowsOrOfTheLastNames) {
  Recordset shown = RosterList(connection, {u"City"_s});
  EXPECT_EQ(Column(shown, u"PlayerID"_s), u"STOANN VANAL0 VANZOE"_s);
  Recordset lastNames = RosterList(connection, {}, RosterOrder::LastName);
  EXPECT_EQ(Column(lastNames, u"PlayerID"_s), u"STOANN VANZOE VANAL0"_s);
}

TEST_F(PlayerNamesTest, TheRosterListShowsNamesWithoutTheirTrailingBlanksAndFurtherColumns) {
  const Recordset list = RosterList(connection, {u"City"_s, u"LastName"_s});
  ASSERT_EQ(list.Fields().size(), 4);
  EXPECT_EQ(list.At(0), Value(u"STOANN"_s));
  EXPECT_EQ(list.At(1), Value(u"Stone, Ann"_s));
  EXPECT_EQ(list[u"City"_s], Value(u"Duluth"_s));
  EXPECT_EQ(list[u"LastName"_s], Value(u"Stone"_s));
}

}  // namespace
}  // namespace tavrelin
