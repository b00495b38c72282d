#include "shell/Leaving.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(LeaveWithoutQuestion, NamesTheRowAndTheRefusalAsFarAsTheyAreKnown) {
  struct Case {
    QString row, refusal, question;
  };
  const QList<Case> cases = {
      {"Nils Oberg", "Invalid category",
       "Nils Oberg is not saved: Invalid category. Leave without it?"},
      {"Class A", "Invalid shoes per game. ",
       "Class A is not saved: Invalid shoes per game. Leave without it?"},
      {"100%1 Oberg", "Invalid %2", "100%1 Oberg is not saved: Invalid %2. Leave without it?"},
      {"Game 3", "", "Game 3 is not saved. Leave without it?"},
      {"", "Invalid category", "This row is not saved: Invalid category. Leave without it?"},
      {"", "", "This row is not saved. Leave without it?"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(LeaveWithoutQuestion(one.row, one.refusal), one.question);
  }
}

}  // namespace
}  // namespace tavrelin
