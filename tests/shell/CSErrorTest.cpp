#include "shell/CSError.h"

#include <gtest/gtest.h>

#include <QList>
#include <stdexcept>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct CSErrorTest : testing::Test {
  QList<ErrorReport> shown;
  CSError errors{[this](const ErrorReport& report) { shown.append(report); }};
};

TEST_F(CSErrorTest, AnErrorWithNoGeneralMessageShowsItsDescriptionInBothBoxes) {
  errors.DisplayError(Error(75, "The disk is full."));
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(shown[0].generalMessage, "The disk is full.");
  EXPECT_EQ(shown[0].description, "The disk is full.");
  EXPECT_EQ(shown[0].number, 75);
}

TEST_F(CSErrorTest, ADescriptionThatHoldsATildeIsSplitThere) {
  errors.DisplayError(Error(5, "General~Details~more"));
  EXPECT_EQ(shown[0].generalMessage, "General");
  EXPECT_EQ(shown[0].description, "Details~more");
}

TEST_F(CSErrorTest, ClearMethodOnOneNameLeavesItEmptyAndOnAnEmptyStackDoesNothing) {
  errors.SetMethodName("Form_Load");
  errors.ClearMethod();
  EXPECT_EQ(errors.CallStack(), "");
  errors.ClearMethod();
  EXPECT_EQ(errors.CallStack(), "");
  EXPECT_EQ(errors.MethodName(), "Form_Load");
}

TEST_F(CSErrorTest, ThreeNestedProceduresAndOneClearMethodLeaveTwoNames) {
  errors.SetMethodName("outer");
  errors.SetMethodName("middle");
  errors.SetMethodName("inner");
  errors.ClearMethod();
  EXPECT_EQ(errors.CallStack(), "middle~outer");
}

TEST_F(CSErrorTest, ClearDuringARaiseDoesNothing) {
  errors.SetGeneralMessage("Posting failed");
  errors.SetMethodName("cmdPost_Click");
  EXPECT_THROW(errors.Raise(Error(6, "Overflow")), Error);
  errors.Clear();
  EXPECT_EQ(errors.GeneralMessage(), "Posting failed");
  EXPECT_EQ(errors.MethodName(), "cmdPost_Click");
}

TEST_F(CSErrorTest, ARaisedErrorArrivesWithItsGeneralMessageAndTheTrailOfBothObjects) {
  CSError lower({});
  lower.SetGeneralMessage("Ranking failed");
  lower.SetMethodName("RankTheClass");
  errors.SetMethodName("cmdPrint_Click");
  try {
    try {
      lower.Raise(Error(11, "Division by zero"));
    } catch (const Error& error) {
      EXPECT_EQ(error.description(), "[CSError]Ranking failed~Division by zero");
      errors.Raise(error);
    }
  } catch (const Error& error) {
    errors.DisplayError(error, "Print");
  }
  ASSERT_EQ(shown.size(), 1);
  EXPECT_EQ(shown[0].title, "Print");
  EXPECT_EQ(shown[0].generalMessage, "Ranking failed");
  EXPECT_EQ(shown[0].description, "Division by zero");
  EXPECT_EQ(shown[0].callStack, "RankTheClass\r\ncmdPrint_Click");
}

TEST_F(CSErrorTest, AnErrorRaisedThroughTwoProceduresOfOneObjectKeepsItsTrail) {
  errors.SetMethodName("outer");
  errors.SetMethodName("inner");
  try {
    try {
      errors.Raise(Error(6, "Overflow"));
    } catch (const Error& error) {
      errors.Raise(error);
    }
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), 6);
    EXPECT_EQ(error.description(), "[CSError]Overflow~Overflow");
    EXPECT_EQ(error.source(), "inner~outer");
  }
}

TEST_F(CSErrorTest, ASecondErrorAfterTheDialogStartsWithAnEmptyStack) {
  errors.Run("first", [] { throw Error(1, "one"); });
  errors.Run("second", [] { throw std::runtime_error("two"); });
  ASSERT_EQ(shown.size(), 2);
  EXPECT_EQ(shown[0].callStack, "first");
  EXPECT_EQ(shown[1].callStack, "second");
  EXPECT_EQ(shown[1].description, "two");
}

TEST_F(CSErrorTest, AProcedureThatEndsWellLeavesNoNameBehind) {
  EXPECT_TRUE(errors.Run("outer", [this] {
    EXPECT_TRUE(errors.Run("inner", [] {}));
    EXPECT_EQ(errors.CallStack(), "outer");
  }));
  EXPECT_EQ(errors.CallStack(), "");
  EXPECT_TRUE(shown.isEmpty());
}

}  // namespace
}  // namespace tavrelin
