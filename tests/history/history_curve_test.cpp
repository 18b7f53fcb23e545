#include "history/history_curve.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::IsEmpty;

// Points one second apart from second 0 on, so that an id is a position.
std::vector<HistoryDataPoint> curve(std::int64_t count) {
    std::vector<HistoryDataPoint> points;
    for (std::int64_t second = 0; second < count; ++second) {
        points.push_back({second, 10.0});
    }
    return points;
}

TEST(Thinning, KeepsEveryNthPointAndTheLast) {
    struct Case {
        std::int64_t rows;
        std::int64_t stride;
        std::size_t kept;
    };

    for (const auto& [rows, stride, kept] :
         {Case{0, 1, 0}, Case{1, 1, 1}, Case{299, 1, 299}, Case{300, 1, 300}, Case{301, 1, 301},
          Case{599, 1, 599}, Case{600, 2, 301}, Case{601, 2, 301}, Case{602, 2, 302}, Case{899, 2, 450},
          Case{900, 3, 301}, Case{901, 3, 301}, Case{1200, 4, 301}, Case{1201, 4, 301}, Case{1440, 4, 361},
          Case{2400, 8, 301}}) {
        const auto points = thinned(curve(rows));
        ASSERT_EQ(points.size(), kept) << rows << " rows";
        for (std::size_t position = 0; position + 1 < points.size(); ++position) {
            EXPECT_EQ(points[position].id, static_cast<std::int64_t>(position) * stride) << rows << " rows";
        }
        if (rows > 0) {
            EXPECT_EQ(points.back().id, rows - 1) << rows << " rows";
        }
    }
}

TEST(Statistics, OfNoPointsAreZero) {
    const auto nothing = withStatistics({});
    EXPECT_THAT(nothing.points, IsEmpty());
    EXPECT_EQ(nothing.avg, 0.0);
    EXPECT_EQ(nothing.min, 0.0);
    EXPECT_EQ(nothing.max, 0.0);
}

TEST(Statistics, OfOnePointAreItsWatts) {
    const auto one = withStatistics({{1'700'000'000, 12.5}});
    EXPECT_EQ(one.avg, 12.5);
    EXPECT_EQ(one.min, 12.5);
    EXPECT_EQ(one.max, 12.5);
}

TEST(Statistics, AreThoseOfAllPoints) {
    const auto result = withStatistics({{1, 3.0}, {2, -1.5}, {3, 7.0}, {4, -1.5}, {5, 7.0}});
    EXPECT_EQ(result.avg, 2.8);
    EXPECT_EQ(result.min, -1.5);
    EXPECT_EQ(result.max, 7.0);
}

TEST(Statistics, AddUpInTheOrderOfThePoints) {
    const auto result = withStatistics({{1, 1e16}, {2, 1.0}, {3, -1e16}});
    EXPECT_EQ(result.avg, 0.0); // 1 W is lost beside the first, as it would not be beside the last
}

TEST(Statistics, KeepTheFirstOfEqualExtremes) {
    const auto zeros = withStatistics({{1, -0.0}, {2, 0.0}});
    EXPECT_TRUE(std::signbit(zeros.min));
    EXPECT_TRUE(std::signbit(zeros.max));
}

TEST(HistoryDataPoint, TellsItsDate) {
    EXPECT_EQ((HistoryDataPoint{1'700'000'000, 10}).date(), 1'700'000'000.0);
}

} // namespace
} // namespace quelby
