#include "ui/presentation/charts/history_chart.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "chart_points.h"
#include "support/time_zone.h"

namespace quelby {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr ChartSize size{200, 100};
constexpr std::int64_t firstSecond = 1'700'000'000; // 22:13:20 UTC

// A point a minute.
std::vector<HistoryDataPoint> minutes(const std::vector<double>& watts) {
    std::vector<HistoryDataPoint> points;
    for (const double value : watts) {
        points.push_back({firstSecond + 60 * static_cast<std::int64_t>(points.size()), value});
    }
    return points;
}

TEST(HistoryCurve, OfNothingIsNothing) {
    EXPECT_THAT(historyCurve({}, size), IsEmpty());
}

TEST(HistoryCurve, OfOnePointStartsAtTheLeft) {
    EXPECT_THAT(historyCurve(minutes({12}), size), ElementsAre(LiesAt(0, 95)));
}

TEST(HistoryCurve, LeavesATwentiethFreeAboveAndBelow) {
    EXPECT_THAT(historyCurve(minutes({10, 20}), size), ElementsAre(LiesAt(0, 95), LiesAt(200, 5)));
    EXPECT_THAT(historyCurve(minutes({20, 10}), size), ElementsAre(LiesAt(0, 5), LiesAt(200, 95)));
}

TEST(HistoryCurve, SpreadsThePointsEvenlyOverTheWidth) {
    EXPECT_THAT(
        historyCurve(minutes({10, 12.5, 15, 17.5, 20}), size),
        ElementsAre(LiesAt(0, 95), LiesAt(50, 72.5), LiesAt(100, 50), LiesAt(150, 27.5), LiesAt(200, 5)));
}

TEST(HistoryCurve, AsksForTheOrderOfThePointsAndNotForTheirTimes) {
    EXPECT_THAT(historyCurve({{0, 10}, {1, 20}, {1000, 10}}, size),
                ElementsAre(LiesAt(0, 95), LiesAt(100, 5), LiesAt(200, 95)));
}

TEST(HistoryCurve, OfEqualValuesRunsAlongTheBottom) {
    EXPECT_THAT(historyCurve(minutes({12, 12, 12}), size),
                ElementsAre(LiesAt(0, 95), LiesAt(100, 95), LiesAt(200, 95)));
}

TEST(HistoryCurve, HardlyRisesForLessThanATenthOfAWatt) {
    EXPECT_THAT(historyCurve(minutes({10, 10.05}), size), ElementsAre(LiesAt(0, 95), LiesAt(200, 50)));
}

TEST(HistoryCurve, FitsAnySize) {
    EXPECT_THAT(historyCurve(minutes({10, 20}), {376, 60}), ElementsAre(LiesAt(0, 57), LiesAt(376, 3)));
    EXPECT_THAT(historyCurve(minutes({10, 20}), {0, 0}), ElementsAre(LiesAt(0, 0), LiesAt(0, 0)));
}

TEST(HistoryCurve, StaysWithinTheChartWhateverTheValues) {
    for (const auto& watts : strangeFigures()) {
        EXPECT_THAT(historyCurve(minutes(watts), size), Each(LiesWithin(200, 100)));
    }
}

TEST(HistoryAxisLabels, NameTheMostAndTheLeast) {
    EXPECT_EQ(historyAxisLabels(minutes({20.4, 9.6, 15})), (AxisLabels{"20W", "10W"}));
    EXPECT_EQ(historyAxisLabels(minutes({13.5, 12.5})), (AxisLabels{"14W", "12W"}));
    EXPECT_EQ(historyAxisLabels(minutes({12})), (AxisLabels{"12W", "12W"}));
    EXPECT_EQ(historyAxisLabels({}), (AxisLabels{"1W", "0W"}));
}

class HistoryReadOutTest : public testing::Test {
protected:
    TimeZone zone{"UTC0"};
    std::vector<HistoryDataPoint> data = minutes({10, 12.5, 15, 17.5, 20});
};

TEST_F(HistoryReadOutTest, StandsAboveThePointWithItsPowerAndTime) {
    const auto readOut = historyReadOut(data, size, 2);
    ASSERT_TRUE(readOut);
    EXPECT_EQ(readOut->label, "15.0W  22:15");
    EXPECT_THAT(readOut->point, LiesAt(100, 50));
    EXPECT_THAT(readOut->labelCentre, LiesAt(100, 30));
}

TEST_F(HistoryReadOutTest, KeepsItsLabelSixtyPointsFromBothSides) {
    EXPECT_THAT(historyReadOut(data, size, 0)->labelCentre, LiesAt(60, 75));
    EXPECT_THAT(historyReadOut(data, size, 1)->labelCentre, LiesAt(60, 52.5));
    EXPECT_THAT(historyReadOut(data, size, 3)->labelCentre, LiesAt(140, 10));
    EXPECT_THAT(historyReadOut(data, size, 4)->labelCentre, LiesAt(140, 10));
    EXPECT_THAT(historyReadOut(data, {100, 100}, 4)->labelCentre, LiesAt(60, 10));
}

TEST_F(HistoryReadOutTest, LiesOnTheCurve) {
    const auto curve = historyCurve(data, size);
    for (std::size_t index = 0; index < data.size(); ++index) {
        EXPECT_EQ(historyReadOut(data, size, index)->point, curve[index]) << index;
    }
}

TEST_F(HistoryReadOutTest, OfTheOnlyPointIsAtTheLeft) {
    const auto readOut = historyReadOut(minutes({12.34}), size, 0);
    ASSERT_TRUE(readOut);
    EXPECT_EQ(readOut->label, "12.3W  22:13");
    EXPECT_THAT(readOut->point, LiesAt(0, 95));
    EXPECT_THAT(readOut->labelCentre, LiesAt(60, 75));
}

TEST_F(HistoryReadOutTest, IsNothingWhereThereIsNoSuchPoint) {
    EXPECT_EQ(historyReadOut(data, size, 5), std::nullopt);
    EXPECT_EQ(historyReadOut(data, size, std::numeric_limits<std::size_t>::max()), std::nullopt);
    EXPECT_EQ(historyReadOut({}, size, 0), std::nullopt);
}

TEST(HistoryReadOut, ShowsTheLocalTimeOfDay) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(historyReadOut(minutes({12.25}), size, 0)->label, "12.2W  23:13");
    const std::vector<HistoryDataPoint> summer{{1'689'300'300, 9.96}}; // 02:05 UTC
    EXPECT_EQ(historyReadOut(summer, size, 0)->label, "10.0W  04:05");
}

} // namespace
} // namespace quelby
