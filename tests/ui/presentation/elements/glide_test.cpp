#include "ui/presentation/elements/glide.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(Glide, BeginsWithItsFirstStepAndIsThereWithItsLast) {
    EXPECT_EQ(glided(0), 0);
    EXPECT_NEAR(glided(1), 5.0 / 9, 1e-12);
    EXPECT_NEAR(glided(2), 8.0 / 9, 1e-12);
    EXPECT_EQ(glided(glideSteps), 1);
    EXPECT_EQ(glided(glideSteps + 1), 1);
}

TEST(Glide, MakesEachStepSmallerThanTheOneBefore) {
    for (int step = 1; step < glideSteps; ++step) {
        const double before = glided(step) - glided(step - 1);
        const double next = glided(step + 1) - glided(step);
        EXPECT_GT(next, 0) << step;
        EXPECT_LT(next, before) << step;
    }
}

TEST(Glide, TakesNoLongerThanPeopleTakeForAtOnce) {
    EXPECT_LE((glideSteps - 1) * glideStepDuration, 100);
}

} // namespace
} // namespace quelby
