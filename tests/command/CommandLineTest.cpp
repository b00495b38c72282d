#include "command/CommandLine.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include "basic/Error.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "support/CommandAnswer.h"
#include "support/PlainDatabase.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

QList<Command> TestCommands() {
  return {{"greet", "greet NAME", "Says hello.", 1, 1,
           [](const QStringList& arguments, QTextStream& out, QTextStream&) {
             out << "hello " << arguments[0] << '\n';
             return exits::Done;
           }},
          {"refuse", "refuse", "Refuses.", 0, 0,
           [](const QStringList&, QTextStream&, QTextStream&) -> int {
             throw Error(errors::File, "The disk is full.");
           }},
          {"puzzle", "puzzle NUMBER", "Wants a number.", 1, 1,
           [](const QStringList&, QTextStream&, QTextStream&) -> int { throw WrongUsage(); }}};
}

TEST(CommandLineTest, ACommandRunsWithItsArguments) {
  const CommandAnswer answer = Ask(TestCommands(), {"greet", "Ann"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "hello Ann\n");
  EXPECT_EQ(answer.err, "");
}

TEST(CommandLineTest, ARefusalEndsWithOneAndTheMessageOnTheErrorStream) {
  const CommandAnswer answer = Ask(TestCommands(), {"refuse"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "The disk is full.\n");
}

struct WrongUsageTest : testing::TestWithParam<QStringList> {};

TEST_P(WrongUsageTest, EndsWithTwoAndTellsTheUsage) {
  const CommandAnswer answer = Ask(TestCommands(), GetParam());
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_TRUE(answer.err.contains("Usage: tavrelinctl"));
}

INSTANTIATE_TEST_SUITE_P(CommandLine, WrongUsageTest,
                         testing::Values(QStringList{}, QStringList{"dance"}, QStringList{"greet"},
                                         QStringList{"greet", "Ann", "Bob"},
                                         QStringList{"puzzle", "x"}, QStringList{"GREET", "Ann"}));

TEST(CommandLineTest, HelpListsAllCommandsOrTellsOne) {
  const CommandAnswer all = Ask(TestCommands(), {"--help"});
  EXPECT_EQ(all.code, 0);
  EXPECT_EQ(all.err, "");
  for (const char* usage : {"greet NAME", "refuse", "puzzle NUMBER"}) {
    EXPECT_TRUE(all.out.contains(usage)) << usage;
  }
  const CommandAnswer one = Ask(TestCommands(), {"greet", "--help"});
  EXPECT_EQ(one.code, 0);
  EXPECT_EQ(one.out, "Usage: tavrelinctl greet NAME\nSays hello.\n");
}

struct PlainCase {
  Value value;
  const char* text;
};
struct PlainTextTest : testing::TestWithParam<PlainCase> {};

TEST_P(PlainTextTest, WritesAValueAsScriptsReadIt) {
  EXPECT_EQ(PlainText(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, PlainTextTest,
    testing::Values(PlainCase{Value(), ""}, PlainCase{200.0 / 3, "66.66666666666667"},
                    PlainCase{0.1, "0.1"}, PlainCase{1e-7, "0.0000001"}, PlainCase{50.0, "50"},
                    PlainCase{1e21, "1000000000000000000000"}, PlainCase{-7, "-7"},
                    PlainCase{true, "True"}, PlainCase{"É O'Brien", "É O'Brien"},
                    PlainCase{"a\tb\r\nc", "a b  c"},
                    PlainCase{QDateTime(QDate(2026, 6, 6), QTime(8, 0)), "2026-06-06 08:00:00"}));

TEST(CommandLineTest, ARecordsetIsWrittenWithAHeaderLineUnderItsFilter) {
  Recordset rows;
  rows.Append("Name", FieldType::Text, 20);
  rows.Append("Percent", FieldType::Double);
  rows.OpenInMemory();
  for (const double percent : {66.5, 12.25, 80.0}) {
    rows.AddNew();
    rows.Set("Name", QStringLiteral("P%1").arg(percent));
    rows.Set("Percent", percent);
    rows.Update();
  }
  rows.SetFilter("Percent > 20");
  QString all;
  QTextStream out(&all);
  WriteRecordset(out, rows);
  EXPECT_EQ(all, "Name\tPercent\nP66.5\t66.5\nP80\t80\n");
  QString some;
  QTextStream outSome(&some);
  WriteRecordset(outSome, rows, {"Percent"});
  EXPECT_EQ(some, "Percent\n66.5\n80\n");
  EXPECT_THROW(WriteRecordset(outSome, rows, {"Nonsense"}), Error);
}

TEST(CommandLineTest, ASingleIsWrittenWithTheDigitsThatItHolds) {
  Recordset rows;
  rows.Append("Share", FieldType::Single);
  rows.OpenInMemory();
  for (const Value& share : {Value(2.0 / 3), Value(0.5), Value(1e-4), Value(-66.6), Value()}) {
    rows.AddNew();
    rows.Set("Share", share);
    rows.Update();
  }
  QString all;
  QTextStream out(&all);
  WriteRecordset(out, rows);
  EXPECT_EQ(all, "Share\n0.6666667\n0.5\n0.0001\n-66.6\n\n");
}

}  // namespace
}  // namespace tavrelin
