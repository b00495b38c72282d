#include "basic/Refusal.h"

#include <gtest/gtest.h>

#include "basic/RowCheck.h"
#include "support/QtPrinters.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

TEST(Refusal, IsANoOnlyWithASentence) {
  EXPECT_FALSE(Refusal());
  EXPECT_TRUE((Refusal{u"Invalid court"_s, u"Court"_s}));
}

TEST(RowCheck, TakesOverTheNoOfARuleAndOtherwiseStaysAsItIs) {
  RowCheck check;
  check.Fix(u"Seed"_s, 0);
  check.RefuseIf({});
  EXPECT_EQ(check.verdict, RowCheck::Verdict::Save);
  check.RefuseIf({u"Invalid seed"_s});
  EXPECT_EQ(check.verdict, RowCheck::Verdict::Cancel);
  EXPECT_EQ(check.message, u"Invalid seed"_s);
  EXPECT_EQ(check.fixes.size(), 1);
}

}  // namespace
}  // namespace tavrelin
