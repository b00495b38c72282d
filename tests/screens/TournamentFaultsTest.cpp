// Tournaments, classes and entries that are typed and mended on a disk that fails: the file holds a
// row as it was or as it is to be, whole, and all that stood beside it.

#include <gtest/gtest.h>

#include <QTabWidget>

#include "screens/RowFaults.h"
#include "tournament/uctEntrants.h"
#include "tournament/uctTournaments.h"

namespace tavrelin {
namespace {

struct TournamentFaultsChild : RowFaultsChild {
  GridEX& Classes() {
    bench.Show<uctTournaments>();
    Enter("GridEX1");
    return Grid("GridEX2");
  }
  GridEX& Entered(const char* grid) {
    bench.store().SaveRegistryString({}, "RecentTournament", "MN-25-C03");
    bench.Show<uctEntrants>();
    bench.Focus(grid);
    return Grid(grid);
  }
};

TEST_F(TournamentFaultsChild, DISABLED_TypesATournament) {
  bench.Show<uctTournaments>();
  Type(Grid("GridEX1"), -1,
       {{"SanctionID", "WI-25-B02"}, {"Name", "Fall Open"}, {"Date", "09/13/2025"}});
}

TEST_F(TournamentFaultsChild, DISABLED_MendsATournament) {
  bench.Show<uctTournaments>();
  Type(Grid("GridEX1"), 1, {{"Name", "Spring Thaw"}, {"City", "Ely"}, {"Director", "Pia Berg"}});
}

TEST_F(TournamentFaultsChild, DISABLED_MendsANumber) {
  bench.Show<uctTournaments>();
  Type(Grid("GridEX1"), 1, {{"SanctionID", "MN-25-C04"}});
}

TEST_F(TournamentFaultsChild, DISABLED_UpdatesAverages) {
  GridEX& entries = Entered("GridEX2");
  bench.Click("cmdSetAverage");
  if (bench.errors.Count() > 0) {
    TakeFullDisk();
    EXPECT_EQ(entries.RowCount(), 2);
    bench.Click("cmdSetAverage");
  }
  EXPECT_EQ(bench.Message(), "Team must have two players");
  EXPECT_EQ(entries.TextAt(1, "RingerPercent"), "55.00");
}

TEST_F(TournamentFaultsChild, DISABLED_TypesAClass) {
  GridEX& classes = Classes();
  classes.SetDefault("RankMethod", "P");
  classes.SetDefault("PlayFormat", "S");
  Type(classes, -1, {{"ClassID", "B"}, {"Name", "Women"}, {"Shoes", "50"}});
}

TEST_F(TournamentFaultsChild, DISABLED_MendsAClass) {
  Type(Classes(), 1, {{"Name", "Elders"}, {"HandicapPct", "80"}, {"PlacesPaidOut", "3"}});
}

TEST_F(TournamentFaultsChild, DISABLED_MendsAnEntry) {
  Type(Entered("GridEX2"), 1, {{"Paid", "12.50"}, {"Seed", "4"}, {"Shoes", "100"}});
}

TEST_F(TournamentFaultsChild, DISABLED_MendsATeamEntry) {
  GridEX& teams = Entered("GridEX4");
  bench.Find<QTabWidget>("SSTab1").setCurrentIndex(1);
  bench.Focus("GridEX4");
  Type(teams, 1, {{"Paid", "25.00"}, {"Seed", "2"}});
}

class TournamentFaults : public RowFaults {
 protected:
  TournamentFaults() : RowFaults("TournamentFaultsChild") {
    Connection file;
    file.Open(ConnectString);
    file.Execute("UPDATE TournamentEntrants SET RingerPercent = 40 WHERE PlayerID = 'YOUWIL'");
    file.Execute("UPDATE Players SET Average = 55 WHERE PlayerID = 'YOUWIL'");
    file.Execute(
        "UPDATE TournamentClasses SET Name = 'Men', Shoes = 40, HandicapPct = 0, "
        "PlacesPaidOut = 0, DateTime = #6/20/2025 8:00 AM#");
    file.Execute("INSERT INTO TournamentTeamEntrants (SanctionID, TeamID) VALUES ('MN25C03', 1)");
  }
};

TEST_P(TournamentFaults, KilledAtAnyWriteTheFileHoldsTheOldRowOrTheNewOne) {
  ExpectOldOrNewWhenKilled({"pwrite64"});
}

TEST_P(TournamentFaults, AFullDiskIsToldTheInputStaysAndTheNextTrySavesIt) {
  ExpectToldAndSavedAtTheNextTry();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TournamentFaults,
    testing::Values(
        RowWork{"TypesATournament",
                "SELECT Name, Date FROM Tournaments WHERE SanctionID = 'WI25B02'", "",
                "Fall Open 2025-09-13 00:00:00"},
        RowWork{"MendsATournament",
                "SELECT Name, City, Director FROM Tournaments WHERE SanctionID = 'MN25C03'",
                "(null) (null) (null)", "Spring Thaw Ely Pia Berg"},
        // One tournament with its class, two entries, a team's entry and a game: all or none.
        RowWork{
            "MendsANumber",
            "SELECT t.SanctionID, (SELECT count(*) FROM TournamentEntrants e WHERE e.SanctionID = "
            "t.SanctionID) FROM Tournaments t",
            "MN25C03 2", "MN25C04 2", 6},
        RowWork{"UpdatesAverages",
                "SELECT RingerPercent FROM TournamentEntrants WHERE PlayerID = 'YOUWIL'", "40.0",
                "55.0"},
        RowWork{
            "TypesAClass",
            "SELECT SanctionID, Name, Shoes, DateTime FROM TournamentClasses WHERE ClassID = 'B'",
            "", "MN25C03 Women 50 2025-06-20 08:00:00"},
        RowWork{
            "MendsAClass",
            "SELECT Name, HandicapPct, PlacesPaidOut FROM TournamentClasses WHERE ClassID = 'A'",
            "Men 0.0 0", "Elders 80.0 3"},
        RowWork{"MendsAnEntry",
                "SELECT Paid, Seed, TotalShoes FROM TournamentEntrants WHERE PlayerID = 'YOUWIL'",
                "0.0 0 0", "12.5 4 100"},
        RowWork{"MendsATeamEntry", "SELECT Paid, Seed FROM TournamentTeamEntrants WHERE TeamID = 1",
                "0.0 0", "25.0 2"}),
    NameOf);

}  // namespace
}  // namespace tavrelin
