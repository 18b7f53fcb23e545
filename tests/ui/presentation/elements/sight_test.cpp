#include "ui/presentation/elements/sight.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(InSight, IsWhatLiesInTheWindowOrReachesIntoIt) {
    EXPECT_TRUE(isInSight(110, 20, 0, 100, 200));
    EXPECT_TRUE(isInSight(50, 100, 0, 100, 200));
    EXPECT_TRUE(isInSight(290, 100, 0, 100, 200));
    EXPECT_TRUE(isInSight(0, 1000, 0, 100, 200));
}

TEST(InSight, IsWhatTouchesTheWindowsEdge) {
    EXPECT_TRUE(isInSight(50, 50, 0, 100, 200));
    EXPECT_FALSE(isInSight(50, 49.5, 0, 100, 200));
    EXPECT_TRUE(isInSight(300, 50, 0, 100, 200));
    EXPECT_FALSE(isInSight(300.5, 50, 0, 100, 200));
}

TEST(InSight, IsNothingOfWhichThePaddingAloneIsSeen) {
    EXPECT_TRUE(isInSight(50, 62, 12, 100, 200));
    EXPECT_FALSE(isInSight(50, 61.5, 12, 100, 200));
    EXPECT_TRUE(isInSight(288, 50, 12, 100, 200));
    EXPECT_FALSE(isInSight(288.5, 50, 12, 100, 200));
}

TEST(InSight, IsWhatHasNoHeightYet) {
    EXPECT_TRUE(isInSight(0, 0, 12, 0, 660));
    EXPECT_TRUE(isInSight(0, 0, 12, 0, 0));
    EXPECT_FALSE(isInSight(0, 0, 12, 1, 660));
}

} // namespace
} // namespace quelby
