#include "monitor/cpu_usage.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(CpuUsage, IsTheSumOfTheSharesOverTheProcessors) {
    EXPECT_EQ(cpuUsage("%CPU\n 12.5\n  3.0\n", 8), 1.9375);
}

TEST(CpuUsage, IsAtMostAHundred) {
    EXPECT_EQ(cpuUsage("%CPU\n950.0\n", 8), 100.0);
    EXPECT_EQ(cpuUsage("%CPU\n800.0\n", 8), 100.0);
}

TEST(CpuUsage, PassesOverWhatIsNotWhollyANumber) {
    EXPECT_EQ(cpuUsage("%CPU\nabc\n2.0x\n1.0 2.0\n\n  \n4.0\n1.0\r\n", 1), 4.0);
}

TEST(CpuUsage, PassesOverTheHeadingEvenIfItIsANumber) {
    EXPECT_EQ(cpuUsage("50.0\n4.0\n", 1), 4.0);
}

TEST(CpuUsage, TrimsBlanksAndTabs) {
    EXPECT_EQ(cpuUsage("%CPU\n\t 1.5 \t\n", 1), 1.5);
}

TEST(CpuUsage, CountsALastLineWithoutNewline) {
    EXPECT_EQ(cpuUsage("%CPU\n1.0\n2.0", 1), 3.0);
}

TEST(CpuUsage, OfTheHeadingAloneIsZero) {
    EXPECT_EQ(cpuUsage("%CPU\n", 4), 0.0);
    EXPECT_EQ(cpuUsage("%CPU", 4), 0.0);
    EXPECT_EQ(cpuUsage("", 4), 0.0);
}

TEST(CpuUsage, HasNoLowerBound) {
    EXPECT_EQ(cpuUsage("%CPU\n-6.0\n", 2), -3.0);
}

TEST(CpuUsage, OfAListingThatIsNotUtf8IsUnknown) {
    EXPECT_EQ(cpuUsage("%CPU\n1.0\n\xFF\n", 1), std::nullopt);
}

} // namespace
} // namespace quelby
