#include <memory>

#include <QHoverEvent>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "support/time_zone.h"
#include "ui/bridge/history_chart_view.h"
#include "ui/bridge/sparkline_view.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

constexpr int overhang = 4;
constexpr int width = 376; // of the chart: the width against which the pointer is measured
constexpr int height = 60;

const QList<QColor> curveColors{Qt::green, Qt::yellow, QColor(255, 128, 0), Qt::red};
const QColor areaColor(0, 0, 255, 100);

void fill(ChartStyle& style) {
    style.curveColors = curveColors;
    style.curveWidth = 2;
    style.dotDiameter = 6;
    style.axisColor = Qt::black;
    style.axisSize = 8;
    style.lineColor = QColor(255, 255, 255, 102);
    style.lineWidth = 1;
    style.circleColor = Qt::white;
    style.circleDiameter = 7;
    style.haloColor = Qt::transparent;
    style.haloWidth = 2;
    style.labelColor = Qt::white;
    style.labelBackground = QColor(0, 0, 0, 204);
    style.labelSize = 10;
    style.labelHorizontalPadding = 6;
    style.labelVerticalPadding = 3;
    style.labelRadius = 4;
}

void setUp(ChartItem& chart, ChartStyle& style) {
    fill(style);
    chart.setSize({width + 2 * overhang, height + 2 * overhang});
    chart.setStyle(&style);
    chart.setAreaColors({areaColor, areaColor});
}

QImage painted(ChartItem& chart) {
    QImage picture(QSizeF(chart.width(), chart.height()).toSize(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    chart.paint(&painter);
    return picture;
}

// At a place of the chart, which lies within the item.
QColor at(const QImage& picture, int x, int y) {
    return picture.pixelColor(x + overhang, y + overhang);
}

bool isEmpty(const QImage& picture) {
    QImage nothing(picture.size(), picture.format());
    nothing.fill(Qt::transparent);
    return picture == nothing;
}

// Antialiasing and a gradient leave no pixel exactly as it was asked for.
bool similar(const QColor& one, const QColor& other) {
    const auto near = [](int a, int b) { return std::abs(a - b) <= 16; };
    return near(one.red(), other.red()) && near(one.green(), other.green()) &&
           near(one.blue(), other.blue()) && near(one.alpha(), other.alpha());
}

void pointAt(ChartItem& chart, double x, double y = height / 2.0) {
    const QPointF place(x + overhang, y + overhang);
    QHoverEvent event(QEvent::HoverMove, place, place, place);
    QCoreApplication::sendEvent(&chart, &event);
}

void leave(ChartItem& chart) {
    QHoverEvent event(QEvent::HoverLeave, {-1, -1}, {-1, -1}, {0, 0});
    QCoreApplication::sendEvent(&chart, &event);
}

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
