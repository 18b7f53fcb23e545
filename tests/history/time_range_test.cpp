#include "history/time_range.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(TimeRange, IsFoundByItsRawValue) {
    EXPECT_EQ(timeRange("30m"), TimeRange::thirtyMinutes);
    EXPECT_EQ(timeRange("1h"), TimeRange::oneHour);
    EXPECT_EQ(timeRange("24h"), TimeRange::twentyFourHours);
    EXPECT_EQ(timeRange("7d"), TimeRange::sevenDays);
    for (const auto range : allTimeRanges) {
        EXPECT_EQ(timeRange(rawValue(range)), range);
    }
}

TEST(TimeRange, IsFoundByNothingElse) {
    EXPECT_EQ(rawValue(TimeRange{9}), "");
    EXPECT_EQ(label(TimeRange{9}), "");
    for (const auto* text : {"", "30M", " 1h", "1h ", "2h", "30 Min"}) {
        EXPECT_EQ(timeRange(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace quelby
