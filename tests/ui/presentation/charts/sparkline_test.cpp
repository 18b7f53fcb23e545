#include "ui/presentation/charts/sparkline.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "chart_points.h"
#include "ui/presentation/printing.h"

namespace quelby {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr ChartSize size{180, 60};

TEST(Sparkline, OfNothingIsNothing) {
    EXPECT_THAT(sparkline({}, size), IsEmpty());
}

TEST(Sparkline, OfOneSampleStartsAtTheLeft) {
    EXPECT_THAT(sparkline({12}, size), ElementsAre(LiesAt(0, 60)));
}

TEST(Sparkline, RunsFromEdgeToEdge) {
    EXPECT_THAT(sparkline({10, 20}, size), ElementsAre(LiesAt(0, 60), LiesAt(180, 0)));
    EXPECT_THAT(sparkline({20, 12.5, 15, 10}, size),
                ElementsAre(LiesAt(0, 0), LiesAt(60, 45), LiesAt(120, 30), LiesAt(180, 60)));
}

TEST(Sparkline, OfEqualValuesRunsAlongTheBottom) {
    EXPECT_THAT(sparkline({12, 12, 12}, size), ElementsAre(LiesAt(0, 60), LiesAt(90, 60), LiesAt(180, 60)));
}

TEST(Sparkline, HardlyRisesForLessThanATenthOfAWatt) {
    EXPECT_THAT(sparkline({10, 10.05}, size), ElementsAre(LiesAt(0, 60), LiesAt(180, 30)));
}

TEST(Sparkline, FitsAnySize) {
    EXPECT_THAT(sparkline({10, 20}, {376, 100}), ElementsAre(LiesAt(0, 100), LiesAt(376, 0)));
    EXPECT_THAT(sparkline({10, 20}, {0, 0}), ElementsAre(LiesAt(0, 0), LiesAt(0, 0)));
}

TEST(Sparkline, StaysWithinTheChartWhateverTheValues) {
    for (const auto& samples : strangeFigures()) {
        EXPECT_THAT(sparkline(samples, size), Each(LiesWithin(180, 60)));
    }
}

TEST(NewestDot, SitsAtTheRightEdgeInTheColourOfItsPower) {
    EXPECT_EQ(newestDot({10, 20}, size), (NewestDot{{180, 0}, ColorName::orange}));
    EXPECT_EQ(newestDot({30, 20, 10}, size), (NewestDot{{180, 60}, ColorName::yellow}));
    EXPECT_EQ(newestDot({0, 30, 15}, size), (NewestDot{{180, 30}, ColorName::yellow}));
    EXPECT_EQ(newestDot({9.9, 9.9}, size), (NewestDot{{180, 60}, ColorName::green}));
    EXPECT_EQ(newestDot({0, 30}, size), (NewestDot{{180, 0}, ColorName::red}));
}

TEST(NewestDot, OfTheOnlySampleIsAtTheRightAsWell) {
    EXPECT_EQ(newestDot({12}, size), (NewestDot{{180, 60}, ColorName::yellow}));
}

TEST(NewestDot, IsNothingWhereThereAreNoSamples) {
    EXPECT_EQ(newestDot({}, size), std::nullopt);
}

class SparklineReadOutTest : public testing::Test {
protected:
    std::string labelOf(std::size_t index) const { return sparklineReadOut(samples, size, index)->label; }

    std::vector<double> samples{10, 11, 12, 13, 14, 15, 16, 17, 18, 19};
};

TEST_F(SparklineReadOutTest, TellsTheAgeOfTheSample) {
    EXPECT_EQ(labelOf(9), "19.0W  now");
    EXPECT_EQ(labelOf(8), "18.0W  3s ago");
    EXPECT_EQ(labelOf(7), "17.0W  6s ago");
    EXPECT_EQ(labelOf(0), "10.0W  27s ago");
    samples = {12.25, 9.96};
    EXPECT_EQ(labelOf(0), "12.2W  3s ago");
    EXPECT_EQ(labelOf(1), "10.0W  now");
}

TEST_F(SparklineReadOutTest, StandsAboveTheSample) {
    const auto readOut = sparklineReadOut(samples, size, 3);
    ASSERT_TRUE(readOut);
    EXPECT_THAT(readOut->point, LiesAt(60, 40));
    EXPECT_THAT(readOut->labelCentre, LiesAt(60, 22));
}

TEST_F(SparklineReadOutTest, KeepsItsLabelFiftyPointsFromBothSides) {
    EXPECT_THAT(sparklineReadOut(samples, size, 0)->labelCentre, LiesAt(50, 42));
    EXPECT_THAT(sparklineReadOut(samples, size, 2)->labelCentre, LiesAt(50, 60 - 40.0 / 3 - 18));
    EXPECT_THAT(sparklineReadOut(samples, size, 7)->labelCentre, LiesAt(130, 10));
    EXPECT_THAT(sparklineReadOut(samples, size, 9)->labelCentre, LiesAt(130, 10));
    EXPECT_THAT(sparklineReadOut(samples, {90, 60}, 9)->labelCentre, LiesAt(50, 10));
}

TEST_F(SparklineReadOutTest, LiesOnTheCurve) {
    const auto curve = sparkline(samples, size);
    for (std::size_t index = 0; index < samples.size(); ++index) {
        EXPECT_EQ(sparklineReadOut(samples, size, index)->point, curve[index]) << index;
    }
}

TEST_F(SparklineReadOutTest, OfTheOnlySampleIsAtTheLeft) {
    const auto readOut = sparklineReadOut({12}, size, 0);
    ASSERT_TRUE(readOut);
    EXPECT_EQ(readOut->label, "12.0W  now");
    EXPECT_THAT(readOut->point, LiesAt(0, 60));
    EXPECT_THAT(readOut->labelCentre, LiesAt(50, 42));
}

TEST_F(SparklineReadOutTest, IsNothingWhereThereIsNoSuchSample) {
    EXPECT_EQ(sparklineReadOut(samples, size, 10), std::nullopt);
    EXPECT_EQ(sparklineReadOut(samples, size, std::numeric_limits<std::size_t>::max()), std::nullopt);
    EXPECT_EQ(sparklineReadOut({}, size, 0), std::nullopt);
}

} // namespace
} // namespace quelby
