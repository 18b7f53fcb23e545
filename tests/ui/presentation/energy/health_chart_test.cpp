#include "ui/presentation/energy/health_chart.h"

#include <gtest/gtest.h>

#include "support/time_zone.h"

namespace quelby {
namespace {

constexpr double aDay = 86'400;

// A day was left out.
const std::vector<HealthPoint> fourDays{{0, 96}, {aDay, 95}, {3 * aDay, 93}, {4 * aDay, 92}};
constexpr ChartSize size{400, 100};

TEST(HealthChart, PutsEachDayAtItsPlaceInTime) {
    EXPECT_EQ(healthCurve(fourDays, size),
              (std::vector<ChartPoint>{{0, 5}, {100, 27.5}, {300, 72.5}, {400, 95}}));
}

TEST(HealthChart, DrawsTheLineInTheSameChart) {
    EXPECT_EQ(healthLine({{0, 96}, {4 * aDay, 94}}, fourDays, size),
              (std::vector<ChartPoint>{{0, 5}, {400, 50}}));
    EXPECT_TRUE(healthLine({}, fourDays, size).empty());
}

TEST(HealthChart, TellsItsLargestAndSmallestValue) {
    EXPECT_EQ(healthLabels(fourDays), (HealthLabels{"96%", "92%"}));
}

TEST(HealthChart, TellsTheDayUnderThePointer) {
    for (const auto* rule : {"UTC0", "EST5", "IST-5:30", "AAA12", "BBB-11:59:59"}) {
        const TimeZone zone(rule);
        EXPECT_EQ(healthReadOut(fourDays, size, 1)->label, "95.0%  1970-01-02");
    }
    EXPECT_EQ(healthReadOut(fourDays, size, 1)->point, (ChartPoint{100, 27.5}));
    EXPECT_EQ(healthReadOut(fourDays, size, 0)->labelCentre, (ChartPoint{60, 10}));
    EXPECT_EQ(healthReadOut(fourDays, size, 3)->labelCentre, (ChartPoint{340, 75}));
    EXPECT_EQ(healthReadOut(fourDays, size, 4), std::nullopt);
}

TEST(HealthChart, SurvivesOneDayAndNone) {
    EXPECT_EQ(healthCurve({{aDay, 90}}, size).size(), 1U);
    EXPECT_EQ(healthCurve({{aDay, 90}}, size)[0].x, 0);
    EXPECT_TRUE(healthCurve({}, size).empty());
    EXPECT_EQ(healthReadOut({}, size, 0), std::nullopt);
}

} // namespace
} // namespace quelby
