// CREATE and ALTER TABLE.

#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct LayoutTest : ClubFixture {
  LayoutTest() {
    Run("CREATE TABLE Games (Court TEXT(3), Code VARCHAR(1), Points INTEGER)");
    Run("CREATE INDEX GamesByCourt ON Games (Court)");
    Run("CREATE TABLE Log (Text TEXT(20))");
    Raw("CREATE TRIGGER GameGone AFTER DELETE ON Games BEGIN INSERT INTO Log VALUES (old.Court); "
        "END");
    for (const char* court : {"c", "a", "b"}) {
      Run("INSERT INTO Games VALUES(?, 'M', 1)", {Value(court)});
    }
  }
  QString Columns(const char* table) {
    return Raw(qPrintable(QStringLiteral("SELECT group_concat(name || ' ' || type, ', ') FROM "
                                         "pragma_table_info('%1')")
                              .arg(QLatin1String(table))));
  }
};

TEST_F(LayoutTest, TheFileKeepsTheAccessNamesOfTypes) {
  Run("CREATE TABLE Many (A Text(7), B Integer, C DateTime, D Number, E Byte, F Short, G Long, H "
      "Single, I Double, J YesNo, K Memo, L String (40), CONSTRAINT MyPK PRIMARY KEY(A, B))");
  EXPECT_EQ(Columns("Many"),
            "A TEXT(7), B INTEGER, C DATETIME, D NUMBER, E BYTE, F SHORT, G LONG, H SINGLE, I "
            "DOUBLE, J YESNO, K LONGTEXT, L TEXT(40)");
  Run("INSERT INTO Many (A, B) VALUES ('x', 1)");
  EXPECT_EQ(Refusal("INSERT INTO Many (A, B) VALUES ('X', 1)"),
            errors::Database + SQLITE_CONSTRAINT_PRIMARYKEY);
  EXPECT_EQ(Refusal("CREATE TABLE Bad (A Wide(7))"), errors::Syntax);
  EXPECT_EQ(Refusal("CREATE TABLE Many (A Text(7))"), errors::Database + SQLITE_ERROR);
}

TEST_F(LayoutTest, AddedColumnsStandBehindTheOlderOnes) {
  Run("ALTER TABLE Games ADD COLUMN ScorekeeperName STRING (40)");
  Run("ALTER TABLE Games ADD COLUMN Approved YESNO");
  Run("ALTER TABLE Games ADD HiGame SINGLE");
  EXPECT_EQ(Columns("Games"),
            "Court TEXT(3), Code VARCHAR(1), Points INTEGER, ScorekeeperName TEXT(40), Approved "
            "YESNO, HiGame SINGLE");
  EXPECT_EQ(List("SELECT Court FROM Games WHERE Approved = False ORDER BY Court"), "a b c");
  EXPECT_EQ(Refusal("ALTER TABLE Games ADD COLUMN points LONG"), errors::Database + SQLITE_ERROR);
  EXPECT_EQ(Refusal("ALTER TABLE Nobody ADD COLUMN Points LONG"), errors::Database + SQLITE_ERROR);
}

TEST_F(LayoutTest, ANumberingColumnNumbersTheRowsThatAreThere) {
  Run("ALTER TABLE Games ADD COLUMN GameID AUTOINCREMENT");
  EXPECT_EQ(Columns("Games"), "Court TEXT(3), Code VARCHAR(1), Points INTEGER, GameID INTEGER");
  EXPECT_EQ(List("SELECT Court FROM Games ORDER BY GameID"), "c a b");
  Run("INSERT INTO Games (Court) VALUES ('d')");
  EXPECT_EQ(Ask("SELECT GameID FROM Games WHERE Court = 'd'"), Value(4));
  Run("DELETE FROM Games WHERE Court = 'd'");
  Run("INSERT INTO Games (Court) VALUES ('e')");
  EXPECT_EQ(Ask("SELECT GameID FROM Games WHERE Court = 'e'"), Value(5));
  Recordset rows;
  rows.Open("SELECT GameID FROM Games", connection);
  EXPECT_EQ(rows.Fields()[0].type, FieldType::AutoNumber);
}

TEST_F(LayoutTest, AColumnChangesItsTypeInItsPlace) {
  Run("ALTER TABLE Games ALTER COLUMN Code VARCHAR(2)");
  EXPECT_EQ(Columns("Games"), "Court TEXT(3), Code VARCHAR(2), Points INTEGER");
  EXPECT_EQ(Run("UPDATE Games SET Code = 'AM' WHERE Code = 'm'"), 3);
  EXPECT_EQ(List("SELECT Court, Code FROM Games"), "c a b");
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM sqlite_schema WHERE name = 'GamesByCourt'"), "1");
  Run("DELETE FROM Games WHERE Court = 'a'");
  EXPECT_EQ(Ask("SELECT Text FROM Log"), Value("a"));
  EXPECT_EQ(Raw("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Log"), "1");
}

TEST_F(LayoutTest, AChangeThatAValueDoesNotFitIsRefusedWhole) {
  Run("UPDATE Games SET Court = 'abc' WHERE Court = 'a'");
  EXPECT_EQ(Refusal("ALTER TABLE Games ALTER COLUMN Court TEXT(2)"), errors::FieldTooSmall);
  EXPECT_EQ(Refusal("ALTER TABLE Games ALTER COLUMN Code INTEGER"), errors::DataTypeMismatch);
  EXPECT_EQ(Columns("Games"), "Court TEXT(3), Code VARCHAR(1), Points INTEGER");
  EXPECT_EQ(List("SELECT Court, Code FROM Games"), "c abc b");
  EXPECT_EQ(Refusal("ALTER TABLE Games ALTER COLUMN Nothing TEXT(2)"), errors::NoSuchField);
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM sqlite_schema WHERE name = 'table_being_rebuilt'"), "0");
}

TEST_F(LayoutTest, ADroppedColumnLeavesTheOthers) {
  Run("ALTER TABLE Games DROP COLUMN Code");
  EXPECT_EQ(Columns("Games"), "Court TEXT(3), Points INTEGER");
  EXPECT_EQ(Ask("SELECT SUM(Points) FROM Games"), Value(3));
  EXPECT_EQ(Refusal("ALTER TABLE Games DROP COLUMN Code"), errors::NoSuchField);
}

TEST_F(LayoutTest, ARebuiltTableKeepsTheRowsThatPointToIt) {
  Raw("CREATE TABLE Parent (ID INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT(5)); CREATE TABLE "
      "Child "
      "(ParentID INTEGER REFERENCES Parent (ID) ON DELETE CASCADE)");
  Run("INSERT INTO Parent (Name) VALUES ('one')");
  Run("INSERT INTO Child VALUES(1)");
  {
    const Batch batch(connection);
    EXPECT_EQ(Refusal("ALTER TABLE Parent ALTER COLUMN Name TEXT(9)"), errors::Database);
  }
  Run("ALTER TABLE Parent ALTER COLUMN Name TEXT(9)");
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Child"), "1");
  Run("DELETE FROM Parent");
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Child"), "0");
}

TEST_F(LayoutTest, ATableIsRebuiltWithinABatchAndGivenUpWithIt) {
  {
    Batch batch(connection);
    Run("ALTER TABLE Games ALTER COLUMN Code VARCHAR(2)");
    Run("UPDATE Games SET Code = 'AM'");
    batch.Rollback();
  }
  EXPECT_EQ(Columns("Games"), "Court TEXT(3), Code VARCHAR(1), Points INTEGER");
  EXPECT_EQ(Raw("SELECT group_concat(Code, '') FROM Games"), "MMM");
}

TEST_F(LayoutTest, TablesAndIndexesGoByDrop) {
  Run("DROP INDEX GamesByCourt ON Games");
  Run("DROP TABLE Games");
  EXPECT_EQ(Refusal("SELECT * FROM Games"), errors::Database + SQLITE_ERROR);
}

}  // namespace
}  // namespace tavrelin
