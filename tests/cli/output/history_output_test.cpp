#include "cli/output/history_output.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr double now = 1'700'001'800;

// Points at these seconds after the start of the half hour.
HistoryView viewOf(const std::vector<std::pair<int, double>>& points) {
    HistoryView view{.now = now, .todayWh = 3.25};
    std::vector<HistoryDataPoint> curve;
    for (const auto& [second, watts] : points) {
        curve.push_back({1'700'000'000 + second, watts});
    }
    view.result = withStatistics(std::move(curve));
    return view;
}

TEST(HistoryAsJson, IsOneObjectInAFixedOrder) {
    EXPECT_EQ(historyAsJson(viewOf({{0, 12.5}, {3, 10}})),
              R"({"range":"30m","points":[{"id":1700000000,"watts":12.5},{"id":1700000003,"watts":10.0}],)"
              R"("avg":11.25,"min":10.0,"max":12.5,"todayWh":3.25})"
              "\n");
    EXPECT_EQ(historyAsJson(viewOf({})),
              R"({"range":"30m","points":[],"avg":0.0,"min":0.0,"max":0.0,"todayWh":3.25})"
              "\n");
}

TEST(HistoryAsCsv, HasAHeadingAndALineForEachPoint) {
    EXPECT_EQ(historyAsCsv(viewOf({{0, 12.5}, {3, 10}})),
              "timestamp,watts\n1700000000,12.5\n1700000003,10\n");
    EXPECT_EQ(historyAsCsv(viewOf({})), "timestamp,watts\n");
}

TEST(HistoryAsText, SaysWhereNothingIsRecorded) {
    EXPECT_EQ(historyAsText(viewOf({}), 80), "30 Min: nothing recorded   today 3.2 Wh\n");
}

TEST(HistoryAsText, DrawsACurveWithGapsOverItsStatistics) {
    // 18 columns behind the scale, of 100 seconds each; the columns at 300 to 900 are empty
    const auto text =
        historyAsText(viewOf({{0, 8}, {100, 16}, {199, 8}, {200, 4}, {900, 0}, {1799, 16}}), 27);
    EXPECT_EQ(text, "  16.0 W                  █\n"
                    "                          █\n"
                    "          █               █\n"
                    "          █               █\n"
                    "         ██               █\n"
                    "         ██               █\n"
                    "         ███              █\n"
                    "   0.0 W ███      ▁       █\n"
                    "30 Min: average 8.7 W   min 0.0 W   max 16.0 W   today 3.2 Wh\n");
}

TEST(HistoryAsText, FitsItsWidth) {
    std::vector<std::pair<int, double>> points;
    for (int second = 0; second < 1800; second += 3) {
        points.emplace_back(second, second % 50);
    }
    for (const int columns : {20, 40, 120}) {
        const auto text = historyAsText(viewOf(points), columns);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 9);
        EXPECT_THAT(text, StartsWith("  49.0 W"));
        EXPECT_THAT(text, HasSubstr("█"));
    }
}

TEST(HistoryAsText, SurvivesPointsOutsideTheRangeAndAbsurdFigures) {
    EXPECT_THAT(historyAsText(viewOf({{-5000, 1}, {5000, 2}}), 40), EndsWith("Wh\n"));
    EXPECT_THAT(historyAsText(viewOf({{0, -5}, {3, 0}}), 40), EndsWith("Wh\n"));
    EXPECT_THAT(historyAsText(viewOf({{0, 1e308}, {1, 1e308}, {3, -1e308}}), 40), EndsWith("Wh\n"));
}

} // namespace
} // namespace quelby::cli
