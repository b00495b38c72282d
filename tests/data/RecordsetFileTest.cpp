#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct RecordsetFile : ClubFixture {
  RecordsetFile() {
    Run("CREATE TABLE Teams (TeamID AUTOINCREMENT, Team TEXT(10), Founded DATETIME, Active YESNO, "
        "Average SINGLE, Wins SHORT, Losses SHORT)");
    for (const char* team : {"Cedars", "alders", "Birches"}) {
      Run("INSERT INTO Teams (Team, Wins, Losses) VALUES (?, 1, 4)", {Value(team)});
    }
  }
  void OpenTeams(const QString& sql = "SELECT * FROM Teams ORDER BY Team") {
    rows.Open(sql, connection, Recordset::Lock::Optimistic);
  }
  Recordset rows;
};

TEST_F(RecordsetFile, FieldsTellWhatTheColumnsHold) {
  OpenTeams();
  EXPECT_EQ(rows.TableName(), "Teams");
  EXPECT_EQ(rows.RecordCount(), 3);
  ASSERT_EQ(rows.Fields().size(), 7);
  EXPECT_EQ(rows.Fields()[0].type, FieldType::AutoNumber);
  EXPECT_FALSE(rows.Fields()[0].updatable);
  EXPECT_EQ(rows.Fields()[1].type, FieldType::Text);
  EXPECT_EQ(rows.Fields()[1].size, 10);
  EXPECT_TRUE(rows.Fields()[1].updatable);
  EXPECT_EQ(rows.Fields()[2].type, FieldType::Date);
  EXPECT_EQ(rows.Fields()[3].type, FieldType::YesNo);
  EXPECT_EQ(rows.Fields()[4].type, FieldType::Single);
  EXPECT_EQ(rows.Fields()[5].type, FieldType::Short);
  EXPECT_EQ(Column(rows, "Team"), "alders Birches Cedars");
  EXPECT_EQ(rows["Active"], Value(false));
}

TEST_F(RecordsetFile, UpdateWritesTheRowAtOnce) {
  OpenTeams();
  rows.Set("Team", "Ashes");
  rows.Set("Founded", QDate(1999, 5, 1));
  rows.Set("Active", 1);
  rows.Set("Average", 0.1);
  EXPECT_EQ(Raw("SELECT Team FROM Teams WHERE TeamID = 2"), "alders");
  rows.Update();
  EXPECT_EQ(Raw("SELECT Team || ' ' || Founded || ' ' || Active FROM Teams WHERE TeamID = 2"),
            "Ashes 1999-05-01 00:00:00 -1");
  EXPECT_EQ(rows["Average"], Value(static_cast<double>(0.1F)));
  rows.Requery();
  EXPECT_EQ(rows["Founded"], Value(QDate(1999, 5, 1)));
  EXPECT_EQ(rows["Active"], Value(true));
  EXPECT_EQ(rows["Average"], Value(static_cast<double>(0.1F)));
}

TEST_F(RecordsetFile, ANewRowComesBackWithWhatTheEngineGave) {
  OpenTeams();
  rows.AddNew();
  rows.Set("Team", "Dogwoods");
  rows.Update();
  EXPECT_EQ(rows["TeamID"], Value(4));
  EXPECT_EQ(rows["Active"], Value(false));
  EXPECT_TRUE(rows["Wins"].IsNull());
  rows.Set("Wins", 7);
  rows.Update();
  EXPECT_EQ(Raw("SELECT Wins FROM Teams WHERE TeamID = 4"), "7");
  rows.Delete();
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Teams"), "3");
  EXPECT_THROW(rows.Set("TeamID", 9), Error);
}

TEST_F(RecordsetFile, AnEmptyNewRowTakesTheDefaults) {
  OpenTeams();
  rows.AddNew();
  rows.Update();
  EXPECT_EQ(rows["TeamID"], Value(4));
  EXPECT_TRUE(rows["Team"].IsNull());
}

TEST_F(RecordsetFile, AValueThatDoesNotFitIsRefusedAndNothingIsWritten) {
  OpenTeams();
  EXPECT_THROW(rows.Set("Team", "Dogwood trees"), Error);
  EXPECT_THROW(rows.Set("Wins", 32768), Error);
  EXPECT_THROW(rows.Set("Founded", "13/13/2020"), Error);
  EXPECT_FALSE(rows.IsEditing());
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Teams WHERE Team = 'alders' AND Wins = 1"), "1");
}

TEST_F(RecordsetFile, ComputedFieldsFollowTheRowAndWhatIsSetInThemOnlyShows) {
  OpenTeams(
      "SELECT TeamID, Wins, Losses, (Wins / Losses * 100) AS Pct, ' ' AS Mark FROM Teams "
      "ORDER BY TeamID");
  EXPECT_EQ(rows.TableName(), "Teams");
  EXPECT_FALSE(rows.Fields()[3].updatable);
  EXPECT_EQ(rows["Pct"], Value(25.0));
  rows.Set("Wins", 3);
  rows.Set("Mark", "W");
  rows.Update();
  EXPECT_EQ(rows["Pct"], Value(75.0));
  EXPECT_EQ(rows["Mark"], Value("W"));
}

TEST_F(RecordsetFile, ARenamedColumnIsWrittenUnderItsOwnName) {
  OpenTeams("SELECT t.Wins AS Won, t.TeamID FROM Teams t WHERE t.Team = 'CEDARS'");
  rows.Set("Won", 9);
  rows.Update();
  EXPECT_EQ(Raw("SELECT Wins FROM Teams WHERE Team = 'Cedars'"), "9");
}

TEST_F(RecordsetFile, QueriesThatAreNotOneTableCanOnlyBeRead) {
  for (const char* sql : {"SELECT t.Team, u.Wins FROM Teams t, Teams u WHERE t.TeamID = u.TeamID",
                          "SELECT DISTINCT Team FROM Teams", "SELECT Team FROM Teams GROUP BY Team",
                          "SELECT MAX(Wins) AS W FROM Teams"}) {
    OpenTeams(QString::fromLatin1(sql));
    EXPECT_EQ(rows.TableName(), "") << sql;
    EXPECT_THROW(rows.Set(0, "x"), Error) << sql;
    EXPECT_THROW(rows.AddNew(), Error) << sql;
    EXPECT_THROW(rows.Delete(), Error) << sql;
  }
  rows.Open("SELECT * FROM Teams", connection);
  EXPECT_THROW(rows.Set("Team", "x"), Error);
}

TEST_F(RecordsetFile, ADisconnectedOneIsEditedInMemoryAlone) {
  rows.Open("SELECT t.Team, u.Wins FROM Teams t, Teams u WHERE t.TeamID = u.TeamID ORDER BY t.Team",
            connection);
  rows.Disconnect();
  rows.Set("Team", "Elms");
  rows.MoveNext();
  rows.Delete();
  rows.AddNew();
  rows.Set("Team", "Firs");
  rows.Update();
  EXPECT_EQ(Column(rows, "Team"), "Elms Cedars Firs");
  EXPECT_EQ(List("SELECT Team FROM Teams ORDER BY Team"), "alders Birches Cedars");
  EXPECT_THROW(rows.Requery(), Error);
}

TEST_F(RecordsetFile, BookmarksSurviveARequery) {
  OpenTeams();
  rows.SetAbsolutePosition(3);
  const Recordset::Bookmark cedars = rows.CurrentBookmark();
  rows.SetAbsolutePosition(2);
  const Recordset::Bookmark birches = rows.CurrentBookmark();
  rows.Delete();
  Run("INSERT INTO Teams (Team) VALUES ('Aspens')");
  rows.SetSort("Team DESC");
  rows.Requery();
  EXPECT_EQ(rows.Sort(), "Team DESC");
  EXPECT_EQ(Column(rows, "Team"), "Cedars Aspens alders");
  EXPECT_TRUE(rows.GoTo(cedars));
  EXPECT_EQ(rows["Team"], Value("Cedars"));
  EXPECT_FALSE(rows.GoTo(birches));
}

TEST_F(RecordsetFile, ARowThatWentMeanwhileIsToldAndTheEditStays) {
  OpenTeams();
  Raw("DELETE FROM Teams WHERE TeamID = 2");
  rows.Set("Wins", 5);
  EXPECT_THROW(rows.Update(), Error);
  EXPECT_TRUE(rows.IsEditing());
  EXPECT_EQ(rows["Wins"], Value(5));
  rows.CancelUpdate();
  EXPECT_THROW(rows.Delete(), Error);
}

TEST_F(RecordsetFile, AFailedUpdateCanBeMendedAndTriedAgain) {
  Run("CREATE UNIQUE INDEX OneName ON Teams (Team)");
  OpenTeams();
  rows.Set("Team", "CEDARS");
  EXPECT_THROW(rows.Update(), Error);
  EXPECT_TRUE(rows.IsEditing());
  rows.Set("Team", "Elms");
  rows.Update();
  EXPECT_FALSE(rows.IsEditing());
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Teams WHERE Team = 'Elms'"), "1");
}

TEST_F(RecordsetFile, AQueryThatFailsLeavesTheOpenRecordsetAsItWas) {
  OpenTeams();
  EXPECT_THROW(rows.Open("SELECT * FROM Nobody", connection), Error);
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_THROW(rows.Open("DELETE FROM Teams", connection), Error);
  EXPECT_EQ(List("SELECT Team FROM Teams ORDER BY TeamID"), "Cedars alders Birches");
}

TEST_F(RecordsetFile, WordsAgainstTheTypeComeAsTheyAre) {
  Raw("UPDATE Teams SET Founded = 'long ago', Wins = 'many' WHERE TeamID = 2");
  OpenTeams("SELECT Founded, Wins FROM Teams WHERE TeamID = 2");
  EXPECT_EQ(rows["Founded"], Value("long ago"));
  EXPECT_EQ(rows["Wins"], Value("many"));
}

TEST_F(RecordsetFile, APaddedTextOfAnotherProgramReadsAndComparesWithoutItsBlanks) {
  Run("CREATE TABLE Settings (ID INTEGER, Setting CHAR(20))");
  Raw("INSERT INTO Settings VALUES (0, '11.17               ')");
  OpenTeams("SELECT * FROM Settings WHERE Setting = '11.17'");
  EXPECT_EQ(rows["Setting"], Value("11.17"));
  rows.Find("Setting = '11.17'");
  EXPECT_FALSE(rows.AtEnd());
}

TEST_F(RecordsetFile, WritingAfterTheConnectionWasClosedIsRefused) {
  OpenTeams();
  rows.Set("Team", "Elms");
  connection.Close();
  EXPECT_THROW(rows.Update(), Error);
  EXPECT_THROW(rows.Delete(), Error);
  EXPECT_TRUE(rows.IsEditing());
  rows.CancelUpdate();
  EXPECT_THROW(rows.Requery(), Error);
  EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(RecordsetFile, AClosedOneRefusesAndCanBeOpenedAgain) {
  OpenTeams();
  rows.Close();
  EXPECT_FALSE(rows.IsOpen());
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_THROW(rows.AddNew(), Error);
  OpenTeams();
  EXPECT_EQ(rows.RecordCount(), 3);
}

}  // namespace
}  // namespace tavrelin
