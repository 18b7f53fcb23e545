#include "platform/linux/processes/cpu_share.h"

#include <cmath>

#include <gtest/gtest.h>

namespace quelby {
namespace {

constexpr CpuScale fourProcessors{100, 4};

// A process that started 10 s after boot, looked at 60 s after boot.
constexpr CpuCounters tenSecondsUsed{1000, 1000};
constexpr ScanTime firstLook{40, 60};

ScanTime later(double seconds) {
    return {firstLook.monotonicSeconds + seconds, firstLook.uptimeSeconds + seconds};
}

double shareAtFirstLook(const CpuCounters& counters, const ScanTime& scan = firstLook) {
    CpuShare share;
    share.update(counters, scan, fourProcessors);
    return share.percent();
}

double shareAtSecondLook(std::uint64_t usedTicks, const ScanTime& scan, std::uint64_t startTicks = 1000) {
    CpuShare share;
    share.update(tenSecondsUsed, firstLook, fourProcessors);
    share.update({startTicks, usedTicks}, scan, fourProcessors);
    return share.percent();
}

TEST(CpuShare, IsTheLifetimesAverageAtFirst) {
    EXPECT_DOUBLE_EQ(shareAtFirstLook(tenSecondsUsed), 20);
    EXPECT_DOUBLE_EQ(shareAtFirstLook({1000, 0}), 0);
}

TEST(CpuShare, IsWhatWasUsedSinceThePreviousLook) {
    EXPECT_DOUBLE_EQ(shareAtSecondLook(1150, later(3)), 50);
    EXPECT_DOUBLE_EQ(shareAtSecondLook(1000, later(3)), 0);
}

TEST(CpuShare, OfSeveralBusyThreadsExceedsOneProcessor) {
    EXPECT_DOUBLE_EQ(shareAtSecondLook(1750, later(3)), 250);
}

TEST(CpuShare, OfAReusedPidIsNeverASpike) {
    EXPECT_DOUBLE_EQ(shareAtSecondLook(150, later(3), 6000), 50);
    EXPECT_DOUBLE_EQ(shareAtSecondLook(2000, later(3), 5300), 200);
}

TEST(CpuShare, IsZeroWhereCountersRunBackwards) {
    EXPECT_EQ(shareAtSecondLook(999, later(3)), 0);
    EXPECT_EQ(shareAtSecondLook(0, later(3)), 0);
}

TEST(CpuShare, CountsOnFromCountersThatRanBackwards) {
    CpuShare share;
    share.update(tenSecondsUsed, firstLook, fourProcessors);
    share.update({1000, 999}, later(3), fourProcessors);
    share.update({1000, 1059}, later(6), fourProcessors);
    EXPECT_DOUBLE_EQ(share.percent(), 20);
}

TEST(CpuShare, StaysWhereNoTimeHasPassed) {
    EXPECT_DOUBLE_EQ(shareAtSecondLook(1003, firstLook), 20);
}

TEST(CpuShare, StaysWhereTimeRanBackwards) {
    EXPECT_DOUBLE_EQ(shareAtSecondLook(1003, later(-5)), 20);
}

TEST(CpuShare, CountsOnFromATimeThatRanBackwards) {
    CpuShare share;
    share.update(tenSecondsUsed, firstLook, fourProcessors);
    share.update({1000, 1003}, later(-5), fourProcessors);
    share.update({1000, 1153}, later(-2), fourProcessors);
    EXPECT_DOUBLE_EQ(share.percent(), 50);
}

TEST(CpuShare, OfALookTooCloseToThePreviousOneCountsAtTheNext) {
    CpuShare share;
    share.update(tenSecondsUsed, firstLook, fourProcessors);
    share.update({1000, 1001}, later(0.001), fourProcessors);
    EXPECT_DOUBLE_EQ(share.percent(), 20);
    share.update({1000, 1150}, later(3), fourProcessors);
    EXPECT_DOUBLE_EQ(share.percent(), 50);
}

TEST(CpuShare, IsNotDilutedByANightOfSleep) {
    const ScanTime afterWaking{firstLook.monotonicSeconds + 3, firstLook.uptimeSeconds + 8 * 3600};
    EXPECT_DOUBLE_EQ(shareAtSecondLook(1150, afterWaking), 50);
}

TEST(CpuShare, NeverExceedsWhatTheProcessorsCanDo) {
    EXPECT_EQ(shareAtSecondLook(1'000'000, later(3)), 400);
    EXPECT_EQ(shareAtSecondLook(UINT64_MAX, later(3)), 400);
    EXPECT_EQ(shareAtFirstLook({1000, UINT64_MAX}), 400);
}

TEST(CpuShare, OfAProcessYoungerThanATickIsZero) {
    EXPECT_EQ(shareAtFirstLook({6000, 1}), 0);
    EXPECT_EQ(shareAtFirstLook({6000, 0}), 0);
}

TEST(CpuShare, OfAProcessThatStartedAfterTheLookIsZero) {
    EXPECT_EQ(shareAtFirstLook({6001, 1}), 0);
    EXPECT_EQ(shareAtFirstLook({UINT64_MAX, 1}), 0);
}

TEST(CpuShare, IsFiniteWhateverTheTimes) {
    for (const double seconds : {0.0, -1.0, 1e-300, 1e300}) {
        EXPECT_TRUE(std::isfinite(shareAtFirstLook(tenSecondsUsed, {seconds, seconds}))) << seconds;
        EXPECT_TRUE(std::isfinite(shareAtSecondLook(1150, {seconds, seconds}))) << seconds;
    }
}

} // namespace
} // namespace quelby
