#include "basic/Progress.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/FakeSurroundings.h"

namespace tavrelin {
namespace {

TEST(LongWork, TellsWhatItDoesAndHowMuchIsDoneBeforeEachStep) {
  FakeProgress progress;
  {
    LongWork work(progress, "Posting the tournament.", 12, Progress::Cancel::Allowed);
    EXPECT_TRUE(work.Step());
    EXPECT_TRUE(work.Step(10));
    EXPECT_TRUE(work.Step());
    EXPECT_FALSE(progress.works[0].ended);
  }
  ASSERT_EQ(progress.works.size(), 1);
  const FakeProgress::Work& told = progress.works[0];
  EXPECT_EQ(told.doing, "Posting the tournament.");
  EXPECT_EQ(told.total, 12);
  EXPECT_EQ(told.cancel, Progress::Cancel::Allowed);
  EXPECT_EQ(told.steps, (QList<int>{0, 1, 11}));
  EXPECT_TRUE(told.ended);
}

TEST(LongWork, ItsStepSaysNoOnceTheOperatorHasCancelled) {
  FakeProgress progress;
  progress.cancelAt = 2;
  LongWork work(progress, "Reading the roster.", Progress::Unknown, Progress::Cancel::Allowed);
  int done = 0;
  while (done < 5 && work.Step()) ++done;
  EXPECT_EQ(done, 2);
}

TEST(LongWork, AFailureEndsIt) {
  FakeProgress progress;
  const auto fail = [&progress] {
    const LongWork work(progress, "Sending the results.");
    throw std::runtime_error("no answer");
  };
  EXPECT_THROW(fail(), std::runtime_error);
  EXPECT_TRUE(progress.works[0].ended);
}

TEST(LongWork, WhereNobodyLooksItGoesOn) {
  NoProgress nobody;
  LongWork work(nobody, "Reading the roster.", 2, Progress::Cancel::Allowed);
  EXPECT_TRUE(work.Step());
  EXPECT_TRUE(work.Step());
}

}  // namespace
}  // namespace tavrelin
