#include "data/Dialect.h"

#include <vector>

#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct DialectTest : ClubFixture {
  DialectTest() {
    Run("CREATE TABLE Players (PlayerID TEXT(6), FirstName TEXT(20), LastName TEXT(25), City "
        "TEXT(30), State TEXT(2), Longevity INTEGER, Average SINGLE, BirthDate DATETIME, Active "
        "YESNO, Card CHAR(6), Remarks MEMO, [Date] DATETIME)");
    Run("INSERT INTO Players VALUES('000001', 'Ann', 'Smith', 'Erie', 'PA', 3, 61.5, #1/2/1950#, "
        "True, 'PA1  ', Null, #7/4/2024 6:30 PM#)");
    Run("INSERT INTO Players VALUES('000002', 'bob', 'O''Brien', 'erie', 'OH', 1, 0, #1961-12-31#, "
        "0, '', '', Null)");
    Run("INSERT INTO Players VALUES('000003', 'Carl', 'adams', '', 'oh', Null, Null, Null, 1, "
        "Null, "
        "'x', Null)");
  }
};

TEST_F(DialectTest, TextComparesWithoutRegardToCase) {
  struct Case {
    const char* where;
    const char* ids;
  };
  const std::vector<Case> cases = {
      {"City = 'ERIE'", "000001 000002"},
      {"'ERIE' = City", "000001 000002"},
      {"City <> 'erie'", "000003"},
      {"LastName < 'B'", "000003"},
      {"LastName LIKE 'sm%'", "000001"},
      {"LastName LIKE '_DAMS'", "000003"},
      {"LastName NOT LIKE '%a%'", "000001 000002"},
      {"State IN ('OH', 'in')", "000002 000003"},
      {"State NOT IN ('OH')", "000001"},
      {"UCASE(City) = 'erie'", "000001 000002"},
      {"RTRIM(State) IN ('OH')", "000002 000003"},
      {"LastName BETWEEN 'A' AND 'o'", "000003"},
      {"'a' = 'A'", "000001 000002 000003"},
      {"Card = 'pa1'", "000001"},
      {"Card = 'PA1   '", "000001"},
      {"LastName = 'O''Brien'", "000002"},
      {"LastName = \"O'Brien\"", "000002"},
      {"Active = True", "000001 000003"},
      {"Active = -1", "000001 000003"},
      {"Active = False", "000002"},
      {"NOT Active = False", "000001 000003"},
      {"BirthDate = #1/2/1950#", "000001"},
      {"BirthDate = '1/2/1950'", "000001"},
      {"BirthDate > #1950-01-02#", "000002"},
      {"BirthDate IN (#12/31/1961#, #1/2/1950#)", "000001 000002"},
      {"[Date] = #7/4/2024 18:30:00#", "000001"},
      {"Players.[Date] >= #7/4/2024#", "000001"},
      {"Longevity IS NULL", "000003"},
      {"Longevity IS NOT NULL AND (Longevity = 3 OR Longevity = 2)", "000001"},
      {"1 = 2", ""},
      {"PlayerID IN (SELECT PlayerID FROM Players WHERE Active = 0)", "000002"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(List(QStringLiteral("SELECT PlayerID FROM Players WHERE %1 ORDER BY PlayerID")
                       .arg(QString::fromUtf8(c.where))),
              c.ids)
        << c.where;
  }
}

TEST_F(DialectTest, OrderDisregardsCaseAndPutsNullFirst) {
  struct Case {
    const char* order;
    const char* ids;
  };
  const std::vector<Case> cases = {
      {"LastName", "000003 000002 000001"},
      {"FirstName DESC", "000003 000002 000001"},
      {"Longevity", "000003 000002 000001"},
      {"Longevity DESC", "000001 000002 000003"},
      {"State, LastName DESC", "000002 000003 000001"},
      {"2", "000003 000002 000001"},
      {"Whole", "000003 000002 000001"},
      {"RTRIM(FirstName)", "000001 000002 000003"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(
        List(QStringLiteral("SELECT PlayerID, RTRIM(LastName) + ', ' + FirstName AS Whole FROM "
                            "Players ORDER BY %1")
                 .arg(QString::fromUtf8(c.order))),
        c.ids)
        << c.order;
  }
}

TEST_F(DialectTest, LettersBeyondAsciiFoldToo) {
  Run("UPDATE Players SET LastName = '\u00c9mile' WHERE PlayerID = '000002'");
  EXPECT_EQ(List("SELECT PlayerID FROM Players WHERE LastName = '\u00e9MILE'"), "000002");
  EXPECT_EQ(List("SELECT PlayerID FROM Players WHERE LastName LIKE '\u00e9%'"), "000002");
  EXPECT_EQ(List("SELECT PlayerID FROM Players ORDER BY LastName"), "000003 000002 000001");
}

TEST_F(DialectTest, ExpressionsGiveWhatAccessGives) {
  struct Case {
    const char* expression;
    Value value;
  };
  const std::vector<Case> cases = {
      {"1 / 2", 0.5},
      {"Longevity / 2", 1.5},
      {"Longevity / 2 * 100", 150.0},
      {"100 * Longevity / 2", 150.0},
      {"Longevity / 0", Value()},
      {"Longevity / Null", Value()},
      {"1 + 2", qint64{3}},
      {"1 + 2 * 3", qint64{7}},
      {"(1 + 2) * 3", qint64{9}},
      {"7 - 2 - 1", qint64{4}},
      {"-Longevity + 1", qint64{-2}},
      {"7 MOD 4", qint64{3}},
      {"Longevity + 1", qint64{4}},
      {"Average + 0.5", 62.0},
      {"FirstName + LastName", "AnnSmith"},
      {"RTRIM('ab  ') + '.'", "ab."},
      {"'a' + 'b' + 'c'", "abc"},
      {"'a''b'", "a'b"},
      {"\"a\"\"b\"", "a\"b"},
      {"FirstName + Null", Value()},
      {"FirstName & Null & 1", "Ann1"},
      {"True", qint64{-1}},
      {"FALSE", qint64{0}},
      {"COUNT(*)", qint64{1}},
      {"UCASE(FirstName)", "ANN"},
      {"#2/29/2024#", QDate(2024, 2, 29)},
      {"'1' + 1", 2.0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Ask(QStringLiteral("SELECT %1 AS X FROM Players WHERE PlayerID = '000001'")
                      .arg(QString::fromUtf8(c.expression))),
              c.value)
        << c.expression;
  }
  EXPECT_EQ(Ask("SELECT ? + ? AS X FROM Players", {Value("a"), Value("b")}), Value("ab"));
  EXPECT_EQ(Ask("SELECT ? + ? AS X FROM Players", {Value(1), Value(2)}), Value(3));
}

TEST_F(DialectTest, WhatCannotBeReadIsRefusedWithoutTouchingAnything) {
  struct Case {
    const char* sql;
    int number;
  };
  const std::vector<Case> cases = {
      {"", errors::Syntax},
      {"SELEKT * FROM Players", errors::Syntax},
      {"SELECT FROM Players", errors::Syntax},
      {"SELECT * FROM Players WHERE", errors::Syntax},
      {"SELECT * FROM Players WHERE City = 'Erie", errors::Syntax},
      {"SELECT * FROM Players WHERE BirthDate = #soon#", errors::Syntax},
      {"SELECT * FROM Players; DELETE FROM Players", errors::Syntax},
      {"DELETE FROM Players WHERE City = 'Erie' City", errors::Syntax},
      {"SELECT Nickname FROM Players", errors::NoSuchField},
      {"SELECT * FROM Nobody", errors::Database + SQLITE_ERROR},
      {"DELETE FROM Nobody", errors::Database + SQLITE_ERROR},
      {"UPDATE Players SET Nickname = 'Bud'", errors::NoSuchField},
      {"INSERT INTO Players (PlayerID, Nickname) VALUES ('1', 'Bud')", errors::NoSuchField},
      {"PRAGMA user_version = 9", errors::Syntax},
      {"ATTACH 'x.db' AS y", errors::Syntax},
  };
  for (const Case& c : cases) EXPECT_EQ(Refusal(QString::fromUtf8(c.sql)), c.number) << c.sql;
  EXPECT_EQ(Refusal("DELETE FROM Players WHERE PlayerID = ?"), errors::Syntax);
  EXPECT_EQ(Refusal("DELETE FROM Players", {Value("1")}), errors::Syntax);
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM Players"), Value(3));
}

TEST_F(DialectTest, LiteralColumnsGiveTheirFieldATypeAndAWidth) {
  Recordset rows;
  rows.Open(
      "SELECT PlayerID, 0.0111 AS RingerPercent, 'xxxxxxxxxx' AS PlayerOneName, ' ' AS "
      "PlayerOneWL, 0 AS Rank, Average / 2 AS Half, RTRIM(City) AS Town FROM Players ORDER BY "
      "PlayerID",
      connection);
  rows.Disconnect();
  const auto field = [&rows](const char* name) {
    return rows.Fields()[rows.FieldIndex(QString::fromLatin1(name))];
  };
  EXPECT_EQ(field("PlayerID").size, 6);
  EXPECT_EQ(field("RingerPercent").type, FieldType::Double);
  EXPECT_EQ(field("PlayerOneName").type, FieldType::Text);
  EXPECT_EQ(field("PlayerOneName").size, 10);
  EXPECT_EQ(field("PlayerOneWL").size, 1);
  EXPECT_EQ(field("Rank").type, FieldType::Long);
  EXPECT_EQ(field("Half").type, FieldType::Double);
  EXPECT_EQ(field("Town").type, FieldType::Text);
  rows.Set("RingerPercent", 61.25);
  rows.Set("PlayerOneName", "Ann Smith");
  rows.Set("Rank", 1);
  EXPECT_THROW(rows.Set("PlayerOneWL", "WW"), Error);
  EXPECT_THROW(rows.Set("PlayerOneName", "Annabel Smith"), Error);
  rows.Update();
  EXPECT_EQ(rows["RingerPercent"], Value(61.25));
  EXPECT_EQ(rows["PlayerOneName"], Value("Ann Smith"));
  EXPECT_EQ(Ask("SELECT FirstName FROM Players WHERE PlayerID = '000001'"), Value("Ann"));
}

TEST_F(DialectTest, TablesAreJoinedInEveryForm) {
  Run("CREATE TABLE Scores (PlayerID TEXT(6), Shoes INTEGER, Ringers INTEGER)");
  Run("INSERT INTO Scores VALUES('000001', 40, 10)");
  Run("INSERT INTO Scores VALUES('000001', 0, 0)");
  Run("INSERT INTO Scores VALUES('000003', 30, 15)");
  EXPECT_EQ(List("SELECT (s.Ringers / s.Shoes * 100) AS Pct, p.LastName FROM Scores s, Players p "
                 "WHERE s.PlayerID = p.PlayerID ORDER BY Pct"),
            "- 25 50");
  EXPECT_EQ(List("SELECT p.* FROM Players p INNER JOIN Scores s ON s.PlayerID = p.PlayerID AND "
                 "s.Shoes = 30"),
            "000003");
  EXPECT_EQ(
      List("SELECT p.PlayerID FROM ((Players p INNER JOIN Scores s ON s.PlayerID = p.PlayerID) "
           "INNER JOIN Scores t ON t.PlayerID = p.PlayerID) WHERE t.Shoes = 40 ORDER BY "
           "s.Shoes DESC"),
      "000001 000001");
  EXPECT_EQ(List("SELECT p.PlayerID FROM Players p LEFT JOIN Scores s ON s.PlayerID = p.PlayerID "
                 "WHERE s.PlayerID IS NULL"),
            "000002");
  EXPECT_EQ(List("SELECT s.PlayerID, SUM(s.Shoes) As Total FROM Scores s GROUP BY s.PlayerID ORDER "
                 "BY s.PlayerID"),
            "000001 000003");
  EXPECT_EQ(
      Ask("SELECT SUM(s.Shoes) As Total FROM Scores s GROUP BY s.PlayerID HAVING COUNT(*) > 1"),
      Value(40));
  EXPECT_EQ(List("SELECT DISTINCT RTRIM(City) AS C FROM Players ORDER BY 1"), " Erie");
  EXPECT_EQ(List("SELECT City FROM Players GROUP BY City ORDER BY City DESC"), "Erie ");
  EXPECT_EQ(List("SELECT TOP 2 PlayerID FROM Players ORDER BY PlayerID DESC"), "000003 000002");
  EXPECT_EQ(List("SELECT PlayerID FROM Players WHERE Active = 0 UNION ALL SELECT PlayerID FROM "
                 "Scores WHERE Shoes = 30"),
            "000002 000003");
}

}  // namespace
}  // namespace tavrelin
