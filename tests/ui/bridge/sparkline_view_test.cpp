#include "ui/bridge/sparkline_view.h"

#include <memory>

#include <gtest/gtest.h>

#include "painted_chart.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

class Sparkline : public testing::Test {
protected:
    Sparkline() {
        setUp(chart, style);
        chart.setDotColor(Qt::magenta);
        chart.setSamples(WattsSeries({5, 5, 5, 5, 5}));
    }

    ChartStyle style;
    SparklineView chart;
};

TEST_F(Sparkline, FindsTheSampleUnderThePointer) {
    const std::pair<double, int> places[] = {{188, 2}, {0, 0}, {376, 4}, {46, 0}, {47.1, 1}, {330, 4}};
    for (const auto& [x, index] : places) {
        pointAt(chart, x);
        EXPECT_EQ(chart.hoverIndex(), index) << x;
    }
}

TEST_F(Sparkline, MeasuresThePointerAgainstAFixedWidth) {
    chart.setWidth(500 + 2 * overhang);
    for (const double x : {377.0, 450.0, 500.0}) {
        pointAt(chart, x);
        EXPECT_EQ(chart.hoverIndex(), 4) << x;
    }
    chart.setWidth(188 + 2 * overhang);
    pointAt(chart, 188);
    EXPECT_EQ(chart.hoverIndex(), 2);
}

TEST_F(Sparkline, ForgetsThePointerThatLeavesTheChart) {
    const auto outside = {QPointF(-1, 30), QPointF(377, 30), QPointF(100, -1), QPointF(100, 61)};
    for (const auto& place : outside) {
        pointAt(chart, 188);
        EXPECT_EQ(chart.hoverIndex(), 2);
        pointAt(chart, place.x(), place.y());
        EXPECT_EQ(chart.hoverIndex(), -1);
        EXPECT_TRUE(chart.readOut().isEmpty());
    }
    pointAt(chart, 188);
    leave(chart);
    EXPECT_EQ(chart.hoverIndex(), -1);
}

TEST_F(Sparkline, TellsOfTheSampleOnlyWhenItIsAnother) {
    int changes = 0;
    QObject::connect(&chart, &ChartItem::hoverIndexChanged, [&] { ++changes; });
    for (const double x : {180.0, 188.0, 190.0, 191.0}) {
        pointAt(chart, x);
    }
    EXPECT_EQ(changes, 1);
    leave(chart);
    leave(chart);
    EXPECT_EQ(changes, 2);
}

TEST_F(Sparkline, ReadsOutTheSampleAndItsAge) {
    chart.setSamples(WattsSeries({1, 2, 3, 4.04, 5}));
    pointAt(chart, 376);
    EXPECT_EQ(chart.readOut(), "5.0W  now");
    pointAt(chart, 282);
    EXPECT_EQ(chart.readOut(), "4.0W  3s ago");
    pointAt(chart, 0);
    EXPECT_EQ(chart.readOut(), "1.0W  12s ago");
}

TEST_F(Sparkline, ReadsOutWhatIsUnderThePointerNow) {
    pointAt(chart, 188);
    int changes = 0;
    QObject::connect(&chart, &ChartItem::hoverIndexChanged, [&] { ++changes; });
    chart.setSamples(WattsSeries({1, 2, 3, 4, 5}));
    EXPECT_EQ(chart.readOut(), "3.0W  6s ago");
    EXPECT_EQ(changes, 1);
}

TEST_F(Sparkline, MovesItsReadOutForTheKeyboard) {
    chart.hover(4);
    EXPECT_EQ(chart.readOut(), "5.0W  now");
    for (const int beyond : {5, -1, -7}) {
        chart.hover(3);
        chart.hover(beyond);
        EXPECT_EQ(chart.hoverIndex(), -1);
    }
}

TEST_F(Sparkline, IsColouredFromEndToEnd) {
    const auto picture = painted(chart);
    EXPECT_TRUE(similar(at(picture, 1, height), curveColors.first()));
    EXPECT_TRUE(similar(at(picture, width / 3, height), curveColors[1]));
    EXPECT_TRUE(similar(at(picture, width * 2 / 3, height), curveColors[2]));
    EXPECT_TRUE(similar(at(picture, width - 6, height), curveColors.last()));
    EXPECT_EQ(at(picture, width / 2, height / 2).alpha(), 0);
}

TEST_F(Sparkline, MarksTheNewestSampleUnlessAnotherIsLookedAt) {
    EXPECT_EQ(at(painted(chart), width - 1, height), chart.dotColor());
    pointAt(chart, 188);
    EXPECT_TRUE(similar(at(painted(chart), width - 1, height), curveColors.last()));
    leave(chart);
    EXPECT_EQ(at(painted(chart), width - 1, height), chart.dotColor());
}

TEST_F(Sparkline, NamesTheColourOfItsDot) {
    EXPECT_EQ(chart.dotInk(), ColorValue(ColorName::green));
    chart.setSamples(WattsSeries({5, 30}));
    EXPECT_EQ(chart.dotInk(), ColorValue(ColorName::red));
}

TEST_F(Sparkline, ShowsALineACircleAndALabelWhereItIsLookedAt) {
    pointAt(chart, 188);
    const auto picture = painted(chart);
    EXPECT_EQ(at(picture, 188, height), QColor(Qt::white));
    EXPECT_NEAR(at(picture, 187, 10).alpha() + at(picture, 188, 10).alpha(), 102, 4); // 0.4 of one point
    EXPECT_EQ(at(picture, 150, 10).alpha(), 0);
    const auto besideTheText = at(picture, 188, height - 18 - 7);
    EXPECT_GT(besideTheText.alpha(), 190);
    EXPECT_LT(besideTheText.lightness(), 90);
}

TEST_F(Sparkline, SetsItsWhiteLineOffFromWhatIsLight) {
    style.haloColor = Qt::cyan;
    pointAt(chart, 188);
    const auto halo = at(painted(chart), 187, 10);
    EXPECT_EQ(halo.alpha(), 255);
    EXPECT_LT(halo.red(), 100);
}

TEST_F(Sparkline, ShowsNothingWithoutAStyle) {
    auto passing = std::make_unique<ChartStyle>();
    chart.setStyle(passing.get());
    passing.reset();
    EXPECT_TRUE(isEmpty(painted(chart)));
}

TEST_F(Sparkline, ShowsNothingWithoutSamples) {
    chart.setSamples(WattsSeries());
    pointAt(chart, 188);
    EXPECT_EQ(chart.hoverIndex(), -1);
    EXPECT_TRUE(isEmpty(painted(chart)));
    EXPECT_EQ(chart.dotInk(), ColorValue());
}

TEST_F(Sparkline, OfOneSampleIsADot) {
    chart.setSamples(WattsSeries({7}));
    const auto picture = painted(chart);
    EXPECT_EQ(at(picture, width, height), chart.dotColor());
    EXPECT_EQ(at(picture, width / 2, height).alpha(), 0);
}

} // namespace
} // namespace quelby
