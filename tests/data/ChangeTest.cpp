// What a column keeps, and what INSERT and UPDATE refuse.

#include <vector>

#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct ChangeTest : ClubFixture {
  ChangeTest() {
    Run("CREATE TABLE Things (ID AUTOINCREMENT, Name TEXT(5), Code CHAR(4), Small SHORT, Tiny "
        "BYTE, "
        "Whole LONG, Part SINGLE, Yes YESNO, [Date] DATETIME, Notes MEMO)");
    Run("INSERT INTO Things (Name, Small) VALUES ('first', 1)");
  }
  QString Stored(const char* column) {
    return Raw(
        qPrintable(QStringLiteral("SELECT quote(\"%1\") FROM Things ORDER BY ID DESC LIMIT 1")
                       .arg(QLatin1String(column))));
  }
};

TEST_F(ChangeTest, EveryWayOfWritingKeepsTheColumnsForm) {
  struct Case {
    const char* column;
    const char* literal;
    const char* stored;
  };
  const std::vector<Case> cases = {
      {"Yes", "1", "-1"},
      {"Yes", "True", "-1"},
      {"Yes", "-1", "-1"},
      {"Yes", "25", "-1"},
      {"Yes", "0", "0"},
      {"Yes", "Null", "0"},
      {"Date", "#7/4/2024#", "'2024-07-04 00:00:00'"},
      {"Date", "#2024-07-04 18:30:05#", "'2024-07-04 18:30:05'"},
      {"Date", "'7/4/2024 6:30 PM'", "'2024-07-04 18:30:00'"},
      {"Date", "Null", "NULL"},
      {"Code", "'ab  '", "'ab'"},
      {"Name", "12", "'12'"},
      {"Name", "'007'", "'007'"},
      {"Notes", "'007'", "'007'"},
      {"Whole", "'12'", "12"},
      {"Whole", "2.5", "2"},
      {"Whole", "1 / 2 + 3", "4"},
      {"Part", "0.5", "0.5"},
      {"Tiny", "255", "255"},
  };
  for (const Case& c : cases) {
    const QString column = QLatin1String(c.column);
    const QString literal = QLatin1String(c.literal);
    Run(QStringLiteral("UPDATE Things SET [%1] = %2").arg(column, literal));
    EXPECT_EQ(Stored(c.column), c.stored) << "UPDATE " << c.column << " = " << c.literal;
    Run(QStringLiteral("INSERT INTO Things ([%1]) VALUES (%2)").arg(column, literal));
    EXPECT_EQ(Stored(c.column), c.stored) << "INSERT " << c.column << " = " << c.literal;
    Run(QStringLiteral("INSERT INTO Things ([%1]) SELECT %2 FROM Things WHERE ID = 1")
            .arg(column, literal));
    EXPECT_EQ(Stored(c.column), c.stored) << "SELECT " << c.column << " = " << c.literal;
    Run("DELETE FROM Things WHERE ID > 1");
  }
}

TEST_F(ChangeTest, WhatAColumnCannotHoldIsRefusedInEveryWayAndNothingIsWritten) {
  struct Case {
    const char* column;
    const char* literal;
    int number;
  };
  const std::vector<Case> cases = {
      {"Name", "'sixsix'", errors::FieldTooSmall},
      {"Code", "'abcde'", errors::FieldTooSmall},
      {"Small", "32768", errors::FieldTooSmall},
      {"Tiny", "-1", errors::FieldTooSmall},
      {"Whole", "2147483648", errors::FieldTooSmall},
      {"Part", "1e39", errors::FieldTooSmall},
      {"Whole", "'abc'", errors::DataTypeMismatch},
      {"Date", "'abc'", errors::DataTypeMismatch},
      {"Date", "'2/30/2024'", errors::DataTypeMismatch},
      {"Yes", "'abc'", errors::DataTypeMismatch},
  };
  for (const Case& c : cases) {
    const QString column = QLatin1String(c.column);
    const QString literal = QLatin1String(c.literal);
    EXPECT_EQ(
        Refusal(QStringLiteral("UPDATE Things SET Notes = 'x', [%1] = %2").arg(column, literal)),
        c.number)
        << c.column;
    EXPECT_EQ(Refusal(QStringLiteral("INSERT INTO Things ([%1]) VALUES (%2)").arg(column, literal)),
              c.number)
        << c.column;
    EXPECT_EQ(
        Refusal(
            QStringLiteral("INSERT INTO Things ([%1]) SELECT %2 FROM Things").arg(column, literal)),
        c.number)
        << c.column;
  }
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Things WHERE Notes IS NULL"), "1");
}

TEST_F(ChangeTest, TheRefusalNamesTheColumn) {
  try {
    Run("UPDATE Things SET Name = 'sixsix'");
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.description(), "Name: the text has 6 characters, and there is room for 5.");
  }
}

TEST_F(ChangeTest, OneRowThatDoesNotFitRefusesAllRowsOfItsStatement) {
  Run("INSERT INTO Things (Name, Small) VALUES ('last', 32767)");
  EXPECT_EQ(Refusal("UPDATE Things SET Small = Small + 1"), errors::FieldTooSmall);
  EXPECT_EQ(List("SELECT Small FROM Things ORDER BY ID"), "1 32767");
}

TEST_F(ChangeTest, InsertWithoutAListGoesByPhysicalOrder) {
  Run("CREATE TABLE Pairs (One TEXT(3), Two INTEGER)");
  Run("ALTER TABLE Pairs ADD COLUMN Three YESNO");
  Run("INSERT INTO Pairs VALUES('a', 2, 1)");
  EXPECT_EQ(Raw("SELECT One || Two || Three FROM Pairs"), "a2-1");
  EXPECT_EQ(Refusal("INSERT INTO Pairs VALUES('a', 2)"), errors::Syntax);
  EXPECT_EQ(Refusal("INSERT INTO Pairs VALUES('a', 2, 1, 0)"), errors::Syntax);
  EXPECT_EQ(Refusal("INSERT INTO Pairs (One, Two) VALUES('a')"), errors::Syntax);
  EXPECT_EQ(Refusal("INSERT INTO Pairs (One, Two) SELECT Name FROM Things"), errors::Syntax);
  EXPECT_EQ(Raw("SELECT COUNT(*) FROM Pairs"), "1");
}

TEST_F(ChangeTest, ParametersAreHeldToTheirColumnsToo) {
  const QString insert = "INSERT INTO Things (Name, Yes, [Date]) VALUES (?, ?, ?)";
  EXPECT_EQ(Run(insert, {Value("it's"), Value(true), Value(QDate(2024, 7, 4))}), 1);
  EXPECT_EQ(Stored("Name"), "'it''s'");
  EXPECT_EQ(Stored("Yes"), "-1");
  EXPECT_EQ(Stored("Date"), "'2024-07-04 00:00:00'");
  EXPECT_EQ(Refusal(insert, {Value("sixsix"), Value(true), Value()}), errors::FieldTooSmall);
  EXPECT_EQ(Run(insert, {Value("again"), Value(0), Value()}), 1);
}

TEST_F(ChangeTest, AStatementWithParametersFollowsAChangeOfTheLayout) {
  const QString update = "UPDATE Things SET Name = ?";
  EXPECT_EQ(Refusal(update, {Value("sixsix")}), errors::FieldTooSmall);
  Run("ALTER TABLE Things ALTER COLUMN Name TEXT(6)");
  EXPECT_EQ(Run(update, {Value("sixsix")}), 1);
}

TEST_F(ChangeTest, SinglesKeepA32BitValue) {
  Run("UPDATE Things SET Part = 61.3");
  EXPECT_EQ(Ask("SELECT Part FROM Things"), Value(static_cast<double>(61.3F)));
}

}  // namespace
}  // namespace tavrelin
