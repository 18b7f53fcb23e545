#include "ui/bridge/history_chart_view.h"

#include <gtest/gtest.h>

#include "painted_chart.h"
#include "support/time_zone.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

class HistoryChart : public testing::Test {
protected:
    HistoryChart() {
        setUp(chart, style);
        chart.setPoints(
            HistoryDataPointSeries({{1'700'000'000, 10}, {1'700'000'060, 30}, {1'700'000'120, 10}}));
    }

    TimeZone zone{"UTC0"};
    ChartStyle style;
    HistoryChartView chart;
};

TEST_F(HistoryChart, FillsTheAreaBelowItsCurve) {
    const auto picture = painted(chart);
    EXPECT_TRUE(similar(at(picture, width / 2, height / 2), areaColor));
    EXPECT_TRUE(similar(at(picture, width / 2, height - 1), areaColor));
    EXPECT_EQ(at(picture, width / 4, 5).alpha(), 0);
    EXPECT_EQ(at(picture, width * 3 / 4, 5).alpha(), 0);
}

TEST_F(HistoryChart, LeavesATwentiethOfItsHeightFreeAtBothEnds) {
    chart.setPoints(HistoryDataPointSeries({{0, 10}, {60, 10}}));
    const auto flat = painted(chart);
    EXPECT_TRUE(similar(at(flat, width / 3, height * 95 / 100), curveColors[1]));
    EXPECT_TRUE(similar(at(flat, width - 1, height * 95 / 100), curveColors.last()));
    EXPECT_TRUE(similar(at(flat, width / 3, height - 1), areaColor));
}

TEST_F(HistoryChart, WritesItsLargestAndSmallestValueAtTheLeft) {
    const auto inked = [](const QImage& picture, int top) {
        for (int y = top; y < top + 8; ++y) {
            for (int x = 0; x < 20; ++x) {
                if (at(picture, x, y).alpha() > 100 && at(picture, x, y).lightness() < 60) {
                    return true;
                }
            }
        }
        return false;
    };
    const auto picture = painted(chart);
    EXPECT_TRUE(inked(picture, 0));
    EXPECT_TRUE(inked(picture, height - 10));
    EXPECT_FALSE(inked(picture, height / 2 - 10));
}

TEST_F(HistoryChart, ReadsOutThePointAndItsTimeOfDay) {
    pointAt(chart, 188);
    EXPECT_EQ(chart.readOut(), "30.0W  22:14");
    pointAt(chart, 0);
    EXPECT_EQ(chart.readOut(), "10.0W  22:13");
    EXPECT_EQ(at(painted(chart), 0, height * 95 / 100), QColor(Qt::white));
}

TEST_F(HistoryChart, GivesBackItsPoints) {
    int changes = 0;
    QObject::connect(&chart, &HistoryChartView::pointsChanged, [&] { ++changes; });
    const HistoryDataPointSeries points({{1, 2}, {3, 4}});
    chart.setPoints(points);
    EXPECT_EQ(chart.points(), points);
    EXPECT_EQ(changes, 1);
}

TEST_F(HistoryChart, ShowsNothingWithoutPoints) {
    chart.setPoints(HistoryDataPointSeries());
    EXPECT_TRUE(isEmpty(painted(chart)));
}

} // namespace
} // namespace quelby
