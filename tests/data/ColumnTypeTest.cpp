#include "data/ColumnType.h"

#include <gtest/gtest.h>

#include <optional>
#include <QDateTime>
#include <vector>

#include "basic/Error.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(ColumnType, ReadsTheAccessNamesInAnyForm) {
  struct Case {
    const char* declared;
    FieldType type;
    int size;
    bool fixed;
  };
  const std::vector<Case> cases = {
      {"VARCHAR(60)", FieldType::Text, 60, false},
      {"char(7)", FieldType::Text, 7, true},
      {"STRING (40)", FieldType::Text, 40, false},
      {"TEXT", FieldType::Text, 0, false},
      {"MEMO", FieldType::Memo, 0, false},
      {"LONGTEXT", FieldType::Memo, 0, false},
      {"Short", FieldType::Short, 0, false},
      {"SMALLINT", FieldType::Short, 0, false},
      {"Byte", FieldType::Short, 0, false},
      {"Long", FieldType::Long, 0, false},
      {"INT", FieldType::Long, 0, false},
      {"INTEGER", FieldType::Long, 0, false},
      {"SINGLE", FieldType::Single, 0, false},
      {"DOUBLE", FieldType::Double, 0, false},
      {"NUMBER", FieldType::Double, 0, false},
      {"YESNO", FieldType::YesNo, 0, false},
      {"DATETIME", FieldType::Date, 0, false},
      {"AUTOINCREMENT", FieldType::AutoNumber, 0, false},
  };
  for (const Case& c : cases) {
    const ColumnType type = ParseColumnType(QString::fromLatin1(c.declared));
    EXPECT_TRUE(type.known) << c.declared;
    EXPECT_EQ(type.type, c.type) << c.declared;
    EXPECT_EQ(type.size, c.size) << c.declared;
    EXPECT_EQ(type.fixed, c.fixed) << c.declared;
  }
  EXPECT_FALSE(ParseColumnType(u"BLOB").known);
}

TEST(ColumnType, KeepsTheNamesExceptWhereATextWouldBeTakenForANumber) {
  EXPECT_EQ(StoredDeclaration(u"Varchar(60)"), "VARCHAR(60)");
  EXPECT_EQ(StoredDeclaration(u"STRING (40)"), "TEXT(40)");
  EXPECT_EQ(StoredDeclaration(u"MEMO"), "LONGTEXT");
}

TEST(ColumnType, TakesWhatFits) {
  struct Case {
    const char* declared;
    Value given;
    Value kept;
  };
  const std::vector<Case> cases = {
      {"TEXT(4)", "Anna", "Anna"},
      {"TEXT(4)", 12, "12"},
      {"TEXT(4)", "", ""},
      {"CHAR(5)", "ab     ", "ab"},
      {"MEMO", QString(70000, u'x'), QString(70000, u'x')},
      {"INTEGER", 2.5, qint64{2}},
      {"INTEGER", 3.5, qint64{4}},
      {"INTEGER", " 17 ", qint64{17}},
      {"INTEGER", true, qint64{-1}},
      {"SMALLINT", -32768, qint64{-32768}},
      {"BYTE", 255, qint64{255}},
      {"DOUBLE", "61.27", 61.27},
      {"SINGLE", 0.1, static_cast<double>(0.1F)},
      {"YESNO", 1, true},
      {"YESNO", -1, true},
      {"YESNO", 0, false},
      {"YESNO", "Yes", true},
      {"YESNO", "false", false},
      {"YESNO", Value(), false},
      {"INTEGER", Value(), Value()},
      {"DATETIME", "7/4/2024", QDate(2024, 7, 4)},
      {"DATETIME", "2024-07-04", QDate(2024, 7, 4)},
      {"DATETIME", "7/4/2024 6:30 PM", QDateTime(QDate(2024, 7, 4), QTime(18, 30))},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ConvertToColumn(ParseColumnType(QString::fromLatin1(c.declared)), "Seed", c.given),
              c.kept)
        << c.declared << " " << c.given.ToText().left(20).toStdString();
  }
}

TEST(ColumnType, RefusesWhatDoesNotFitAndNamesTheColumn) {
  struct Case {
    const char* declared;
    Value given;
    int number;
  };
  const std::vector<Case> cases = {
      {"TEXT(4)", "Annab", errors::FieldTooSmall},
      {"CHAR(5)", "abcdef", errors::FieldTooSmall},
      {"BYTE", 256, errors::FieldTooSmall},
      {"BYTE", -1, errors::FieldTooSmall},
      {"SHORT", 32768, errors::FieldTooSmall},
      {"SMALLINT", "-32769", errors::FieldTooSmall},
      {"LONG", 2147483648.0, errors::FieldTooSmall},
      {"SINGLE", 1e39, errors::FieldTooSmall},
      {"LONG", "abc", errors::DataTypeMismatch},
      {"LONG", "", errors::DataTypeMismatch},
      {"DOUBLE", "1/2/24", errors::DataTypeMismatch},
      {"YESNO", "maybe", errors::DataTypeMismatch},
      {"DATETIME", "31/31/2024", errors::DataTypeMismatch},
      {"DATETIME", "soon", errors::DataTypeMismatch},
  };
  for (const Case& c : cases) {
    try {
      ConvertToColumn(ParseColumnType(QString::fromLatin1(c.declared)), "Seed", c.given);
      ADD_FAILURE() << c.declared << " took " << c.given.ToText().toStdString();
    } catch (const Error& error) {
      EXPECT_EQ(error.number(), c.number) << c.declared;
      EXPECT_TRUE(error.description().startsWith(u"Seed: ")) << error.what();
    }
  }
}

}  // namespace
}  // namespace tavrelin
