#include "ui/presentation/charts/chart_scale.h"

#include <limits>

#include <gtest/gtest.h>

namespace quelby {
namespace {

constexpr auto infinity = std::numeric_limits<double>::infinity();
constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(ChartScale, OfNothingGoesFromZeroToOne) {
    const ChartScale scale({});
    EXPECT_EQ(scale.minimum(), 0.0);
    EXPECT_EQ(scale.maximum(), 1.0);
    EXPECT_EQ(scale.normalised(0.25), 0.25);
}

TEST(ChartScale, GoesFromTheLeastToTheMost) {
    for (const auto& values : {std::vector{10.0, 20.0, 30.0}, {30.0, 20.0, 10.0}, {20.0, 10.0, 30.0, 20.0}}) {
        const ChartScale scale(values);
        EXPECT_EQ(scale.minimum(), 10.0);
        EXPECT_EQ(scale.maximum(), 30.0);
        EXPECT_EQ(scale.normalised(10), 0.0);
        EXPECT_EQ(scale.normalised(15), 0.25);
        EXPECT_EQ(scale.normalised(30), 1.0);
    }
}

TEST(ChartScale, PutsAFlatCurveAtTheBottom) {
    for (const auto& values : {std::vector{12.5}, {12.5, 12.5, 12.5}, {0.0, 0.0}}) {
        const ChartScale scale(values);
        EXPECT_EQ(scale.minimum(), values.front());
        EXPECT_EQ(scale.maximum(), values.front());
        EXPECT_EQ(scale.normalised(values.front()), 0.0);
    }
}

TEST(ChartScale, SpansATenthOfAWattAtLeast) {
    EXPECT_NEAR(ChartScale({10, 10.05}).normalised(10.05), 0.5, 1e-9);
    EXPECT_NEAR(ChartScale({10, 10.09}).normalised(10.09), 0.9, 1e-9);
    EXPECT_NEAR(ChartScale({10, 10.1}).normalised(10.1), 1.0, 1e-9);
    EXPECT_NEAR(ChartScale({10, 10.2}).normalised(10.1), 0.5, 1e-9);
}

TEST(ChartScale, PutsWhatIsNoNumberAtTheBottom) {
    const ChartScale scale({10, 20});
    EXPECT_EQ(scale.normalised(notANumber), 0.0);
    EXPECT_EQ(scale.normalised(infinity), 0.0);
    EXPECT_EQ(ChartScale({10, infinity}).normalised(infinity), 0.0);
    EXPECT_EQ(ChartScale({-infinity, 10}).normalised(10), 0.0);
}

TEST(HoverIndex, IsThatOfTheNearestSample) {
    const std::pair<double, std::size_t> expected[] = {{0, 0},     {46.9, 0},  {47, 1},  {94, 1},
                                                       {140.9, 1}, {141, 2},   {188, 2}, {234.9, 2},
                                                       {235, 3},   {328.9, 3}, {329, 4}, {376, 4}};
    for (const auto& [x, index] : expected) {
        EXPECT_EQ(hoverIndex(x, 5), index) << x;
    }
}

TEST(HoverIndex, StaysWithinTheSamples) {
    for (const double x : {-0.1, -1000.0, -infinity}) {
        EXPECT_EQ(hoverIndex(x, 5), 0U) << x;
    }
    for (const double x : {376.1, 1000.0, 1e300, infinity}) {
        EXPECT_EQ(hoverIndex(x, 5), 4U) << x;
    }
}

TEST(HoverIndex, StaysWithinManySamples) {
    EXPECT_EQ(hoverIndex(-1000, 1'000'000), 0U);
    EXPECT_EQ(hoverIndex(1000, 1'000'000), 999'999U);
}

TEST(HoverIndex, OfTheOnlySampleIsAlwaysTheFirst) {
    for (const double x : {-1.0, 0.0, 188.0, 376.0, 1000.0}) {
        EXPECT_EQ(hoverIndex(x, 1), 0U) << x;
    }
}

TEST(HoverIndex, IsNothingWhereThereAreNoSamples) {
    for (const double x : {-1.0, 0.0, 188.0, 376.0, 1000.0}) {
        EXPECT_EQ(hoverIndex(x, 0), std::nullopt) << x;
    }
}

TEST(HoverIndex, ReachesEverySampleOfAFullChart) {
    for (std::size_t index = 0; index < 60; ++index) {
        EXPECT_EQ(hoverIndex(static_cast<double>(index) * 376 / 59, 60), index);
    }
}

TEST(LabelCentre, StandsAboveItsPoint) {
    EXPECT_EQ(labelCentre({188, 50}, 376, 60, 20), (ChartPoint{188, 30}));
    EXPECT_EQ(labelCentre({100, 40.5}, 376, 50, 18), (ChartPoint{100, 22.5}));
}

TEST(LabelCentre, KeepsAwayFromBothSides) {
    const std::pair<double, double> expected[] = {{0, 60},    {59.9, 60},   {60, 60},  {60.1, 60.1},
                                                  {316, 316}, {316.1, 316}, {376, 316}};
    for (const auto& [x, centre] : expected) {
        EXPECT_EQ(labelCentre({x, 50}, 376, 60, 20), (ChartPoint{centre, 30})) << x;
    }
}

TEST(LabelCentre, KeepsAwayFromTheLeftSideOfAChartThatIsTooNarrow) {
    for (const double x : {0.0, 50.0, 100.0}) {
        EXPECT_EQ(labelCentre({x, 50}, 100, 60, 20), (ChartPoint{60, 30})) << x;
        EXPECT_EQ(labelCentre({x, 50}, 0, 60, 20), (ChartPoint{60, 30})) << x;
    }
}

TEST(LabelCentre, IsNeverAboveItsCeiling) {
    const std::pair<double, double> expected[] = {{0, 10}, {29.9, 10}, {30, 10}, {30.5, 10.5}, {95, 75}};
    for (const auto& [y, centre] : expected) {
        EXPECT_EQ(labelCentre({188, y}, 376, 60, 20), (ChartPoint{188, centre})) << y;
    }
}

TEST(ChartScale, PassesOverWhatIsNoNumberWhereverItStands) {
    for (const auto& values : {std::vector{notANumber, 10.0, 20.0},
                               {10.0, notANumber, 20.0},
                               {10.0, 20.0, notANumber},
                               {infinity, 20.0, 10.0},
                               {20.0, 10.0, -infinity}}) {
        const ChartScale scale(values);
        EXPECT_EQ(scale.minimum(), 10);
        EXPECT_EQ(scale.maximum(), 20);
    }
    EXPECT_EQ(ChartScale({notANumber}).maximum(), 1);
}

TEST(HoverIndex, IsNoneForAPointerThatIsNowhere) {
    EXPECT_EQ(hoverIndex(notANumber, 5), std::nullopt);
}

} // namespace
} // namespace quelby
