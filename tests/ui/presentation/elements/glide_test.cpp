#include "ui/presentation/elements/glide.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(Glide, BeginsWithItsFirstStepAndIsThereWithItsLast) {
    EXPECT_EQ(glided(0), 0.578125);
    EXPECT_EQ(glided(0.249), glided(0));
    EXPECT_EQ(glided(0.25), 0.875);
    EXPECT_EQ(glided(0.5), 0.984375);
    EXPECT_EQ(glided(0.749), glided(0.5));
    EXPECT_EQ(glided(0.75), 1);
    EXPECT_EQ(glided(1), 1);
}

} // namespace
} // namespace quelby
