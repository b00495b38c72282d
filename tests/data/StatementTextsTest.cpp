// The program's own statements, each as its screens and rules send it, with sample values filled
// in.

#include <vector>

#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

constexpr const char* Tables[] = {
    "CREATE TABLE Players (PlayerID TEXT(6), FirstName TEXT(20), LastName TEXT(25), Category "
    "VARCHAR(1), CardNumber TEXT(6), CardYear TEXT(4), Telephone TEXT(10), AddressOne TEXT(40), "
    "City "
    "TEXT(30), State TEXT(2), ZipCode TEXT(10), BirthDate DATETIME, Longevity INTEGER, Remarks "
    "TEXT(255), Average DOUBLE)",
    "CREATE TABLE PlayerScores (SanctionID CHAR(7), PlayerID TEXT(6), Shoes INTEGER, Ringers "
    "INTEGER, Category VARCHAR(1))",
    "CREATE TABLE Tournaments (SanctionID CHAR(7), Name TEXT(40), Date DATETIME, City TEXT(30), "
    "State TEXT(2), Director TEXT(40))",
    "CREATE TABLE TournamentClasses (SanctionID CHAR(7), ClassID TEXT(3), Name TEXT(30), "
    "HandicapPct "
    "DOUBLE, DateTime DATETIME, Shoes INTEGER, RankMethod TEXT(1), PlayFormat TEXT(1), "
    "ChampionshipClass YESNO, PlacesPaidOut INTEGER)",
    "CREATE TABLE TournamentEntrants (SanctionID CHAR(7), PlayerID TEXT(6), Paid DOUBLE, Seed "
    "INTEGER, RingerPercent DOUBLE, ClassID TEXT(3), TotalShoes INTEGER, TotalRingers INTEGER, "
    "TotalPoints INTEGER, TotalWins DOUBLE, TotalLosses DOUBLE, HeadToHead INTEGER)",
    "CREATE TABLE TournamentTeamEntrants (SanctionID CHAR(7), TeamID INTEGER, Paid DOUBLE, Seed "
    "INTEGER, RingerPercent DOUBLE, ClassID TEXT(3), PlayerOneID TEXT(6), PlayerTwoID TEXT(6), "
    "TotalShoes INTEGER, TotalRingers INTEGER, TotalPoints INTEGER, TotalWins DOUBLE, TotalLosses "
    "DOUBLE, PlayerOneRingers INTEGER, PlayerOneShoes INTEGER, PlayerTwoRingers INTEGER, "
    "PlayerTwoShoes INTEGER)",
    "CREATE TABLE TournamentSinglesRR (SanctionID CHAR(7), ClassID TEXT(3), Game INTEGER, Court "
    "TEXT(3), Shoes INTEGER, PlayerOneID TEXT(6), PlayerTwoID TEXT(6), PlayerOnePoints INTEGER, "
    "PlayerTwoPoints INTEGER, PlayerOneRingers INTEGER, PlayerTwoRingers INTEGER, Approved YESNO)",
    "CREATE TABLE TournamentDoublesRR (SanctionID CHAR(7), ClassID TEXT(3), Game INTEGER, Court "
    "TEXT(3), Shoes INTEGER, TeamOneID INTEGER, TeamTwoID INTEGER, TeamOnePoints INTEGER, "
    "TeamTwoPoints INTEGER, TeamOnePlayerOneID TEXT(6), TeamOnePlayerTwoID TEXT(6), "
    "TeamTwoPlayerOneID TEXT(6), TeamTwoPlayerTwoID TEXT(6), TeamOnePlayerOneRingers INTEGER, "
    "TeamOnePlayerTwoRingers INTEGER, TeamTwoPlayerOneRingers INTEGER, TeamTwoPlayerTwoRingers "
    "INTEGER, Approved YESNO)",
    "CREATE TABLE Teams (TeamID AUTOINCREMENT, Team TEXT(50))",
    "CREATE TABLE TeamPlayers (TeamID INTEGER, PlayerID TEXT(6))",
    "CREATE TABLE Leagues (SanctionID CHAR(7), Name TEXT(40), City TEXT(30), State TEXT(2), "
    "Director "
    "TEXT(40), HandicapPct DOUBLE, Shoes INTEGER, Cancellation YESNO, PlayFormat TEXT(1))",
    "CREATE TABLE LeagueMembers (SanctionID CHAR(7), PlayerID TEXT(6), Active YESNO, "
    "StartingAverage "
    "DOUBLE, HighGamePoints DOUBLE, HighGameRingers DOUBLE)",
    "CREATE TABLE LeagueTeams (SanctionID CHAR(7), TeamID INTEGER)",
    "CREATE TABLE LeagueScores (SanctionID CHAR(7), PlayerID TEXT(6), TeamID INTEGER, Date "
    "DATETIME, "
    "Shoes INTEGER, Points INTEGER, Ringers INTEGER, WinLoss TEXT(1), ID AUTOINCREMENT)",
    "CREATE TABLE StateMembershipReport (SanctionID TEXT(7), Year TEXT(4), ReportNumber INTEGER, "
    "ReportDate TEXT(10), CharterName TEXT(40), OfficerName TEXT(40), AdultCount INTEGER, "
    "AdultAmount DOUBLE, JuniorCount INTEGER)",
};

// In the order in which a file of the oldest layout meets them; how many rows each changes.
struct Change {
  const char* sql;
  int rows = 0;
};

constexpr Change UpgradeSteps[] = {
    {"CREATE TABLE SystemSettings ( SettingID INT, PromptValue CHAR(50), SettingValue CHAR(20)) "},
    {"INSERT INTO SystemSettings VALUES(1, 'Round Robin Cards Vertical Adjustment', 0)", 1},
    {"INSERT INTO SystemSettings VALUES(2, 'Round Robin Cards Horizontal Adjustment', 0)", 1},
    {"INSERT INTO SystemSettings VALUES(3, 'Print Round Robin Cards on 8 1/2 X 11 Paper', 'N')", 1},
    {"UPDATE SystemSettings SET PromptValue = 'Round Robin Card Style: 1=Card; 2=Folded; 3=2up' "
     "WHERE SettingID = 3 AND PromptValue LIKE 'Print Round Robin%'",
     1},
    {"INSERT INTO SystemSettings VALUES(9, 'Tournament Results Vertical Offset', '0')", 1},
    {"INSERT INTO SystemSettings VALUES(0, 'Database Version', '11.1')", 1},
    {"UPDATE SystemSettings SET SettingValue = '11.2' WHERE SettingID = 0", 1},
    {"ALTER TABLE PlayerScores ADD COLUMN Wins SINGLE"},
    {"UPDATE PlayerScores SET Wins = 0", 1},
    {"ALTER TABLE PlayerScores ADD COLUMN Losses SINGLE"},
    {"ALTER TABLE PlayerScores ADD COLUMN Place INTEGER"},
    {"ALTER TABLE PlayerScores ADD COLUMN HiGame SINGLE"},
    {"ALTER TABLE TournamentEntrants ADD COLUMN HiGame SINGLE"},
    {"UPDATE TournamentEntrants SET HiGame = 0", 1},
    {"ALTER TABLE TournamentTeamEntrants ADD COLUMN PlayerOneHiGame SINGLE"},
    {"ALTER TABLE TournamentTeamEntrants ADD COLUMN PlayerTwoHiGame SINGLE"},
    {"ALTER TABLE LeagueScores ADD COLUMN Handicap INTEGER"},
    {"CREATE TABLE ScoreSheet (GameID Long, Frame Short, PlayerNumber Byte, CalledScore Byte, "
     "Constraint ScoreSheet_PK Primary Key (GameID, Frame))"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN GameID AUTOINCREMENT"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN ScorekeeperName STRING (40)"},
    {"ALTER TABLE TournamentClasses ADD COLUMN Report YESNO"},
    {"UPDATE TournamentClasses SET Report = 0", 1},
    {"ALTER TABLE TournamentTeamEntrants ADD COLUMN HeadToHead INTEGER"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN PlayerOneNumber INTEGER"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN PlayerTwoNumber INTEGER"},
    {"ALTER TABLE LeagueScores ADD COLUMN GameID INTEGER"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN PlayerOneSinglePoints INTEGER"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN PlayerTwoSinglePoints INTEGER"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN PlayerOneForfeit YESNO"},
    {"ALTER TABLE TournamentSinglesRR ADD COLUMN PlayerTwoForfeit YESNO"},
    {"ALTER TABLE TournamentClasses ADD COLUMN RankOverride YESNO"},
    {"ALTER TABLE TournamentEntrants ADD COLUMN RankOverride INTEGER"},
    {"ALTER TABLE Players ADD COLUMN CellPhone CHAR(10)"},
    {"ALTER TABLE Players ADD COLUMN Email VARCHAR(60)"},
    {"ALTER TABLE Players ADD COLUMN EmergencyInfo VARCHAR(255)"},
    {"ALTER TABLE Players ADD COLUMN Awards VARCHAR(255)"},
    {"CREATE TABLE ReportGroup (GroupID AUTOINCREMENT, SanctionID CHAR(7), GroupName VARCHAR(40))"},
    {"CREATE TABLE ReportGroupClass (GroupID INT, SanctionID CHAR(7), ClassID CHAR(3))"},
    {"ALTER TABLE Players ADD COLUMN MembershipType CHAR(1)"},
    {"UPDATE Players SET MembershipType = 'S'", 1},
    {"ALTER TABLE StateMembershipReport DROP COLUMN AdultAmount"},
    {"ALTER TABLE StateMembershipReport ADD COLUMN LifetimeCount INT"},
    {"ALTER TABLE StateMembershipReport ADD COLUMN DirectCount INT"},
    {"ALTER TABLE StateMembershipReport ADD COLUMN ProvisionalCount INT"},
    {"UPDATE StateMembershipReport SET LifetimeCount = 0, DirectCount = 0, ProvisionalCount = 0",
     1},
    {"ALTER TABLE PlayerScores ADD COLUMN Points INTEGER"},
    {"ALTER TABLE PlayerScores ADD COLUMN HiGamePoints INTEGER"},
    {"ALTER TABLE PlayerScores ADD COLUMN ClassID VARCHAR(5)"},
    {"UPDATE PlayerScores SET ClassID = ''", 1},
    {"ALTER TABLE Players ALTER COLUMN Category VARCHAR(2)"},
    {"UPDATE Players SET Category = 'AM' WHERE Category = 'M' ", 1},
    {"ALTER TABLE PlayerScores ALTER COLUMN Category VARCHAR(2)"},
    {"UPDATE PlayerScores SET Category = 'AM' WHERE Category = 'M' ", 1},
    {"UPDATE Players SET City = '' WHERE City IS NULL", 1},
    {"UPDATE Players SET State = 'US' WHERE State IS NULL", 1},
    {"UPDATE Players SET ZipCode = '00000' WHERE ZipCode IS NULL", 1},
    {"UPDATE Players SET Telephone = '' WHERE Telephone IS NULL", 1},
    {"UPDATE Players SET CellPhone = '' WHERE CellPhone IS NULL", 1},
    {"UPDATE Players SET Email = '' WHERE Email IS NULL", 1},
};

constexpr Change Changes[] = {
    {"UPDATE TournamentEntrants SET TotalShoes = 0, TotalRingers = 0, TotalPoints = 0, TotalWins = "
     "0, TotalLosses = 0 WHERE SanctionID = 'PA24001' AND ClassID = 'A' ",
     1},
    {"UPDATE TournamentEntrants SET HiGame = 72.5 WHERE SanctionID = 'PA24001' AND ClassID = 'A' "
     "AND "
     "PlayerID = '000001' ",
     1},
    {"UPDATE TournamentEntrants SET TotalShoes = TotalShoes + 40, TotalRingers = TotalRingers + "
     "29, "
     "TotalPoints = TotalPoints + 31, TotalWins = TotalWins + 0.5, TotalLosses = TotalLosses + 0.5 "
     "WHERE SanctionID = 'PA24001' AND ClassID = 'A' AND PlayerID = '000001' ",
     1},
    {" UPDATE TournamentEntrants SET HeadToHead = 2 WHERE PlayerID = '000001' AND SanctionID = "
     "'PA24001'",
     1},
    {"UPDATE TournamentEntrants SET RankOverride = 1 WHERE PlayerID = '000001' AND SanctionID = "
     "'PA24001' AND ClassID = 'A' ",
     1},
    {"UPDATE TournamentClasses SET RankOverride = 1 WHERE SanctionID = 'PA24001' AND ClassID = "
     "'A' ",
     1},
    {"UPDATE TournamentTeamEntrants SET TotalShoes = 0, TotalRingers = 0, TotalPoints = 0, "
     "TotalWins "
     "= 0, TotalLosses = 0, PlayerOneRingers = 0, PlayerOneShoes = 0, PlayerTwoRingers = 0, "
     "PlayerTwoShoes = 0 WHERE SanctionID = 'PA24001' AND ClassID = 'B' ",
     1},
    {"INSERT INTO LeagueScores "
     "(SanctionID,PlayerID,TeamID,[Date],Points,Shoes,Ringers,WinLoss,Handicap,GameID) VALUES "
     "('PA24L01','000001',1,'7/9/2024',31,40,29,'W',0,1)",
     1},
    {"UPDATE LeagueScores SET Points = 30, Shoes = 40, Ringers = 28, WinLoss = 'L' WHERE GameID = "
     "1 "
     "AND PlayerID = '000001'",
     1},
    {"INSERT INTO PlayerScores VALUES('PA24002', '000001', 40, 20, 'AM',0,0,0,0,0,0,'') ", 1},
    {"UPDATE PlayerScores SET  Shoes = Shoes + 10,  Ringers = Ringers + 5 WHERE SanctionID = "
     "'PA24002' AND PlayerID = '000001'",
     1},
    {"INSERT INTO ReportGroup (GroupName, SanctionID) VALUES('Men''s','PA24001')", 1},
    {"DELETE FROM TournamentSinglesRR WHERE SanctionID = 'PA24001' AND ClassID = 'A' ", 2},
    {"DELETE FROM TournamentDoublesRR WHERE SanctionID = 'PA24001' AND ClassID = 'B' ", 0},
    {"DELETE FROM LeagueScores WHERE SanctionID = 'PA24L01'", 1},
    {"DELETE FROM Tournaments WHERE Date < #7/5/2024# ", 1},
};

struct Query {
  const char* sql;
  int fields;
  int rows;
};

const std::vector<Query> Queries = {
    {"SELECT * FROM SystemSettings WHERE SettingID = 0", 3, 1},
    {"SELECT COUNT(*) FROM ScoreSheet WHERE 1 = 2", 1, 1},
    {"SELECT Wins FROM PlayerScores WHERE 1 = 2", 1, 0},
    {"SELECT * FROM ReportGroup", 3, 0},
    {"SELECT * FROM Players WHERE Category = 'AM' ", 20, 1},
    {"SELECT * FROM SystemSettings ORDER BY SettingID", 3, 5},
    {"SELECT * FROM SystemSettings WHERE SettingID NOT IN (0, 8) ORDER BY SettingID", 3, 4},
    {"SELECT * FROM Players ORDER BY LastName", 20, 1},
    {"SELECT PlayerID, LastName, FirstName, Category FROM Players ORDER BY LastName", 4, 1},
    {"SELECT SanctionID FROM Tournaments ORDER BY Date DESC", 1, 1},
    {"SELECT ps.Shoes, ps.Ringers, (ps.Ringers / ps.Shoes * 100) AS Pct, t.Date FROM PlayerScores "
     "ps, Tournaments t WHERE ps.PlayerID = '000001' AND ps.Category = 'AM' AND ps.SanctionID = "
     "t.SanctionID AND t.Date > #7/4/2023# ",
     4, 1},
    {"SELECT PlayerID, Category, SanctionID, Shoes, Ringers, (Ringers / Shoes * 100) AS Pct, Wins, "
     "Losses, Place, HiGame FROM PlayerScores WHERE PlayerID = '000001'",
     10, 1},
    {"SELECT * FROM Teams ORDER BY Team", 2, 1},
    {"SELECT PlayerID, RTRIM(LastName) + ', ' + RTRIM(FirstName) AS PlayerName, City, State FROM "
     "Players ORDER BY 2",
     4, 1},
    {"SELECT TeamID, PlayerID FROM TeamPlayers WHERE TeamID = 1 ORDER BY PlayerID", 2, 1},
    {"SELECT * FROM Tournaments ORDER BY Date DESC", 6, 1},
    {"SELECT * FROM TournamentClasses WHERE SanctionID = 'PA24001'", 12, 1},
    {"SELECT PlayerID, RTRIM(LastName) + ', ' + FirstName AS PlayerName, LastName, FirstName, "
     "Category, Average, CardNumber, State, CardYear FROM Players ORDER BY LastName, FirstName",
     9, 1},
    {"SELECT TeamID, Team FROM Teams ORDER BY Team", 2, 1},
    {"SELECT e.SanctionID, e.PlayerID, e.Paid, e.Seed, e.RingerPercent, e.ClassID, e.TotalShoes, "
     "e.TotalRingers, e.RankOverride FROM TournamentEntrants e WHERE e.SanctionID = 'PA24001' ",
     9, 1},
    {"SELECT e.SanctionID, e.TeamID, e.Paid, e.Seed, e.RingerPercent, e.ClassID, e.PlayerOneID, "
     "e.PlayerTwoID FROM TournamentTeamEntrants e WHERE e.SanctionID = 'PA24001' ",
     8, 1},
    {"SELECT t.TeamID, t.PlayerID, p.Category FROM TeamPlayers t, Players p WHERE t.PlayerID = "
     "p.PlayerID",
     3, 1},
    {"SELECT SanctionID, Name, Date FROM Tournaments ORDER BY Date DESC", 3, 1},
    {"SELECT ClassID, Name, PlayFormat FROM TournamentClasses WHERE SanctionID = 'PA24001' ", 3, 1},
    {"SELECT ClassID, Name, HandicapPct, Shoes, RankMethod, PlayFormat, RankOverride, DateTime "
     "FROM "
     "TournamentClasses WHERE SanctionID = 'PA24001' AND PlayFormat = 'S' ORDER BY ClassID",
     8, 1},
    {"SELECT SanctionID, ClassID, Game, Court, Shoes, PlayerOneID, ' ' AS PlayerOneWL, "
     "PlayerOnePoints, PlayerOneRingers, PlayerTwoID, ' ' AS PlayerTwoWL, PlayerTwoPoints, "
     "PlayerTwoRingers, PlayerOneNumber, PlayerTwoNumber, PlayerOneSinglePoints, "
     "PlayerTwoSinglePoints, PlayerOneForfeit, PlayerTwoForfeit, Approved, GameID FROM "
     "TournamentSinglesRR WHERE SanctionID = 'PA24001' AND ClassID = 'A' ORDER BY Game, Court",
     21, 2},
    {"SELECT e.PlayerID, e.Seed, e.RingerPercent, p.FirstName, p.LastName, State, e.TotalWins, "
     "e.TotalLosses, 0 AS PlayerNumber From TournamentEntrants e, Players p WHERE e.SanctionID = "
     "'PA24001' AND e.ClassID = 'A' AND e.PlayerID = p.PlayerID",
     9, 1},
    {"SELECT RTRIM(p.FirstName) + ' ' + RTRIM(p.LastName) AS PlayerName, p.PlayerID, p.State, "
     "p.Category, e.RingerPercent AS EntryAvg, e.TotalWins AS Won, e.TotalLosses AS Loss, "
     "e.TotalRingers AS Ringers, e.TotalShoes AS Shoes, 0.0111 AS RingerPercent, 0.0111 AS "
     "OverAverage, 0 AS HeadToHead, e.TotalPoints AS Points, p.CardNumber as Card, Seed, 0 As "
     "Rank, "
     "RankOverride AS Override FROM TournamentEntrants e, Players p WHERE e.SanctionID = 'PA24001' "
     "AND e.ClassID = 'A' AND e.PlayerID = p.PlayerID ",
     17, 1},
    {"SELECT HiGame FROM TournamentEntrants WHERE SanctionID = 'PA24001' AND ClassID = 'A' AND "
     "PlayerID = '000001' ",
     1, 1},
    {"SELECT SanctionID, ClassID, Game, Court, Shoes, TeamOneID, ' ' AS TeamOneWL, TeamOnePoints, "
     "TeamOnePlayerOneID, TeamOnePlayerOneRingers, TeamOnePlayerTwoID, TeamOnePlayerTwoRingers, "
     "TeamTwoID, ' ' AS TeamTwoWL, TeamTwoPoints, TeamTwoPlayerOneID, TeamTwoPlayerOneRingers, "
     "TeamTwoPlayerTwoID, TeamTwoPlayerTwoRingers, Approved FROM TournamentDoublesRR WHERE "
     "SanctionID = 'PA24001' AND ClassID = 'B' ORDER BY Game, Court",
     20, 0},
    {"SELECT e.TeamID, e.Seed, e.RingerPercent, t.Team, PlayerOneID, 'xxxxxxxxxxxxxxxxxxxx' AS "
     "PlayerOneFirstName, 'xxxxxxxxxxxxxxxxxxxxxxxxx' AS PlayerOneLastName, PlayerTwoID, "
     "'xxxxxxxxxxxxxxxxxxxx' AS PlayerTwoFirstName, 'xxxxxxxxxxxxxxxxxxxxxxxxx' AS "
     "PlayerTwoLastName From TournamentTeamEntrants e, Teams t WHERE e.SanctionID = 'PA24001' AND "
     "e.ClassID = 'B' AND e.TeamID = t.TeamID ",
     10, 1},
    {"SELECT e.PlayerOneID, e.PlayerOneRingers, 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' AS "
     "PlayerOneName, e.PlayerTwoID, e.PlayerTwoRingers, "
     "'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' AS PlayerTwoName, e.TeamID, t.Team, "
     "e.RingerPercent AS EntryAvg, e.TotalWins AS Won, e.TotalLosses AS Loss, e.TotalRingers AS "
     "Ringers, e.TotalShoes AS Shoes, e.TotalPoints AS Points, Seed, 0.01 AS RingerPercent, 0.01 "
     "AS "
     "OverAverage, 0 AS HeadToHead FROM TournamentTeamEntrants e, Teams t WHERE e.SanctionID = "
     "'PA24001' AND e.ClassID = 'B' AND t.TeamID = e.TeamID",
     18, 1},
    {"SELECT SanctionID, Name, Shoes, PlayFormat, Cancellation FROM Leagues ORDER BY SanctionID "
     "DESC",
     5, 1},
    {"SELECT tp.TeamID FROM ((Leagues l INNER JOIN LeagueTeams lt ON lt.SanctionID = l.SanctionID) "
     "INNER JOIN TeamPlayers tp ON tp.TeamID = lt.TeamID) WHERE l.SanctionID = 'PA24L01' AND "
     "tp.PlayerID = '000001'",
     1, 1},
    {"SELECT * FROM LeagueScores WHERE GameID = 1 AND PlayerID = '000001'", 11, 0},
    {"SELECT tc.* FROM TournamentClasses tc  INNER JOIN ReportGroupClass rgc ON rgc.SanctionID = "
     "tc.SanctionID  AND rgc.ClassID = tc.ClassID  WHERE tc.SanctionID = 'PA24001' AND rgc.GroupID "
     "= "
     "1",
     12, 0},
    {"SELECT m.PlayerID, m.SanctionID, p.LastName, p.FirstName FROM LeagueMembers m, Players p "
     "WHERE "
     "m.SanctionID = 'PA24L01' AND m.PlayerID = p.PlayerID AND m.Active = True ORDER BY LastName",
     4, 1},
};

struct StatementTexts : ClubFixture {
  StatementTexts() {
    Batch all(connection);
    for (const char* table : Tables) Run(QString::fromUtf8(table));
    Run("INSERT INTO PLAYERS VALUES('000001', 'Ann', 'O''Brien', 'M', 'PA0001', '2024', Null, '', "
        "Null, Null, Null, #1/2/1950#, 3, '', 61.5)");
    Run("INSERT INTO PlayerScores VALUES('PA24001', '000001', 40, 25, 'M')");
    Run("INSERT INTO Tournaments VALUES('PA24001', 'Erie Open', #7/4/2024#, 'Erie', 'PA', 'Bob')");
    Run("INSERT INTO TournamentClasses VALUES('PA24001', 'A', 'Class A', 0, #7/4/2024 9:00 AM#, "
        "40, "
        "'P', 'S', False, 3)");
    Run("INSERT INTO TournamentEntrants VALUES('PA24001', '000001', 12.5, 1, 61.5, 'A', 0, 0, 0, "
        "0, "
        "0, 0)");
    Run("INSERT INTO TournamentTeamEntrants VALUES('PA24001', 1, 25, 1, 55, 'B', '000001', "
        "'000002', "
        "0, 0, 0, 0, 0, 0, 0, 0, 0)");
    for (const char* court : {"  2", "  1"}) {
      Run("INSERT INTO TournamentSinglesRR VALUES('PA24001', 'A', 1, ?, 40, '000001', 'PPPPPP', 0, "
          "0, "
          "0, 0, False)",
          {Value(court)});
    }
    Run("INSERT INTO Teams (Team) VALUES ('Cedars')");
    Run("INSERT INTO TeamPlayers VALUES(1, '000001')");
    Run("INSERT INTO Leagues VALUES('PA24L01', 'Monday', 'Erie', 'PA', 'Bob', 0, 40, True, 'S')");
    Run("INSERT INTO LeagueMembers VALUES('PA24L01', '000001', True, 20, 0, 0)");
    Run("INSERT INTO LeagueTeams VALUES('PA24L01', 1)");
    Run("INSERT INTO StateMembershipReport VALUES( 'PA24000', '2024', 1, '7/4/2024', 'PA', 'Bob', "
        "3, "
        "30, 2)");
  }
  void Upgrade() {
    for (const Change& change : UpgradeSteps) {
      EXPECT_EQ(Run(QString::fromUtf8(change.sql)), change.rows) << change.sql;
    }
  }
};

TEST_F(StatementTexts, AnOldFileIsBroughtUpToDateByTheStatementsAsTheyStand) {
  Upgrade();
  EXPECT_EQ(Ask("SELECT Category FROM Players"), Value("AM"));
  EXPECT_EQ(Ask("SELECT SettingValue FROM SystemSettings WHERE SettingID = 1"), Value("0"));
  EXPECT_EQ(List("SELECT GameID FROM TournamentSinglesRR ORDER BY GameID"), "1 2");
  EXPECT_EQ(Ask("SELECT PlayerOneForfeit FROM TournamentSinglesRR"), Value(false));
  EXPECT_EQ(Raw("PRAGMA integrity_check"), "ok");
}

TEST_F(StatementTexts, EveryQueryRunsAsItStands) {
  {
    Batch all(connection);
    Upgrade();
  }
  for (const Query& query : Queries) {
    Recordset rows;
    rows.Open(QString::fromUtf8(query.sql), connection);
    EXPECT_EQ(rows.Fields().size(), query.fields) << query.sql;
    EXPECT_EQ(rows.RecordCount(), query.rows) << query.sql;
    Recordset editable;
    editable.Open(QString::fromUtf8(query.sql), connection, Recordset::Lock::Optimistic);
    EXPECT_EQ(editable.Fields().size(), query.fields) << query.sql;
  }
}

TEST_F(StatementTexts, EveryChangeRunsAsItStands) {
  {
    Batch all(connection);
    Upgrade();
  }
  for (const Change& change : Changes) {
    EXPECT_EQ(Run(QString::fromUtf8(change.sql)), change.rows) << change.sql;
  }
  EXPECT_EQ(Raw("SELECT RankOverride FROM TournamentClasses"), "-1");
  EXPECT_EQ(Ask("SELECT TotalWins FROM TournamentEntrants"), Value(0.5));
  EXPECT_EQ(Ask("SELECT Shoes FROM PlayerScores WHERE SanctionID = 'PA24002'"), Value(50));
  EXPECT_EQ(Ask("SELECT GroupName FROM ReportGroup"), Value("Men's"));
}

}  // namespace
}  // namespace tavrelin
