#include "platform/linux/battery/whole_capacity.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "base/arithmetic.h"

namespace quelby {
namespace {

PackContent content(double design, double full, double remaining) {
    return {ContentUnit::MilliampereHours, design, full, remaining, truncatedPercent(remaining, full)};
}

TEST(WholeCapacity, IsRoundedToTheNearest) {
    const auto capacity = wholeCapacity(content(6773.68, 5536.84, 1239.47));
    EXPECT_EQ(capacity.design, 6774);
    EXPECT_EQ(capacity.full, 5537);
    EXPECT_EQ(capacity.remaining, 1239);
    EXPECT_EQ(capacity.percent, std::nullopt);
}

TEST(WholeCapacity, HalfOfAnOddCapacityIsStillHalf) {
    const auto capacity = wholeCapacity(content(6666.667, 5000.6, 2500.3));
    ASSERT_TRUE(capacity.full && capacity.remaining);
    EXPECT_EQ(percentage(*capacity.remaining, *capacity.full), 50);
}

TEST(WholeCapacity, TheQuotientsOfAnyPackAreThoseOfItsExactAmounts) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> fullRange(101, 12'000);
    std::uniform_int_distribution<int> percents(0, 100);
    std::uniform_int_distribution<int> offsets(-1, 1);
    for (int i = 0; i < 100'000; ++i) {
        const double full = fullRange(random);
        const double design = full * 100.0 / std::max(1, percents(random)) + offsets(random) * 0.2;
        const double remaining = std::max(0.0, full * percents(random) / 100.0 + offsets(random) * 0.2);
        const auto exact = content(design, full, remaining);
        const auto whole = wholeCapacity(exact);
        ASSERT_TRUE(whole.design && whole.full && whole.remaining)
            << full << ' ' << design << ' ' << remaining;
        EXPECT_EQ(percentage(*whole.remaining, *whole.full), exact.percent) << full << ' ' << remaining;
        EXPECT_EQ(percentage(*whole.full, *whole.design), truncatedPercent(full, design))
            << full << ' ' << design;
        EXPECT_LE(std::abs(static_cast<double>(*whole.full) - full), 1.5);
        EXPECT_LE(std::abs(static_cast<double>(*whole.remaining) - remaining), 2.5);
    }
}

TEST(WholeCapacity, APackTooSmallForWholeNumbersKeepsItsPercentage) {
    for (int full = 1; full < 100; ++full) {
        for (int tenth = 0; tenth <= full * 10; ++tenth) {
            const auto exact = content(full, full, tenth / 10.0);
            const auto whole = wholeCapacity(exact);
            const bool viaFull =
                whole.full && percentage(whole.remaining.value_or(-1), *whole.full) == exact.percent;
            const bool viaPercent = !whole.full && whole.percent == exact.percent;
            EXPECT_TRUE(viaFull || viaPercent) << full << ' ' << tenth;
        }
    }
}

TEST(WholeCapacity, APackBelowHalfAMilliampereHourHasOnlyAPercentage) {
    const auto capacity = wholeCapacity(content(0.1, 0.1, 0.05));
    EXPECT_EQ(capacity.design, std::nullopt);
    EXPECT_EQ(capacity.full, std::nullopt);
    EXPECT_EQ(capacity.percent, 50);
}

TEST(WholeCapacity, MoreThanFullStaysMoreThanFull) {
    const auto capacity = wholeCapacity(content(1500, 1500, 1503));
    EXPECT_EQ(capacity.full, 1500);
    EXPECT_EQ(capacity.remaining, 1503);
}

TEST(WholeCapacity, WhatIsUnknownStaysUnknown) {
    PackContent unknown;
    EXPECT_EQ(wholeCapacity(unknown).design, std::nullopt);
    EXPECT_EQ(wholeCapacity(unknown).full, std::nullopt);
    EXPECT_EQ(wholeCapacity(unknown).remaining, std::nullopt);
    EXPECT_EQ(wholeCapacity(unknown).percent, std::nullopt);
    unknown.full = 4000.0;
    EXPECT_EQ(wholeCapacity(unknown).full, 4000);
    unknown.percent = 40;
    EXPECT_EQ(wholeCapacity(unknown).full, std::nullopt) << "a reader would divide nothing by it";
    EXPECT_EQ(wholeCapacity(unknown).percent, 40);
}

} // namespace
} // namespace quelby
