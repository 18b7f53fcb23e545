#include "base/arithmetic.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

constexpr auto lowest = std::numeric_limits<std::int64_t>::min();
constexpr auto highest = std::numeric_limits<std::int64_t>::max();

TEST(Truncated, GoesTowardZero) {
    EXPECT_EQ(truncated(1.9), 1);
    EXPECT_EQ(truncated(-1.9), -1);
    EXPECT_EQ(truncated(0.0), 0);
}

TEST(Truncated, EndsAtTheEdgeOfTheRange) {
    EXPECT_EQ(truncated(1e300), highest);
    EXPECT_EQ(truncated(-1e300), lowest);
    EXPECT_EQ(truncated(std::numeric_limits<double>::infinity()), highest);
    EXPECT_EQ(truncated(9223372036854775807.0), highest);
    EXPECT_EQ(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Difference, EndsAtTheEdgeOfTheRange) {
    EXPECT_EQ(difference(3, 5), -2);
    EXPECT_EQ(difference(lowest, 1), lowest);
    EXPECT_EQ(difference(80, lowest), highest);
}

TEST(Percentage, Truncates) {
    EXPECT_EQ(percentage(2500, 5000), 50);
    EXPECT_EQ(percentage(1999, 2000), 99);
    EXPECT_EQ(percentage(0, 5000), 0);
    EXPECT_EQ(percentage(-60, 5000), -1);
}

TEST(Percentage, IsAtMostAHundred) {
    EXPECT_EQ(percentage(5000, 5000), 100);
    EXPECT_EQ(percentage(5100, 5000), 100);
    EXPECT_EQ(percentage(highest, 1), 100);
}

TEST(Percentage, SurvivesAbsurdCapacities) {
    EXPECT_EQ(percentage(highest / 2, highest), 50);
    EXPECT_EQ(percentage(lowest, 1), lowest);
}

} // namespace
} // namespace quelby
