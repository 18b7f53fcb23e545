#include "app/linux/popover/popover_place.h"

#include <gtest/gtest.h>

#include "ui/support/printing.h"

namespace quelby::app {
namespace {

constexpr QSize size(400, 660);
constexpr QRect display(0, 0, 1920, 1080);

struct Panel {
    const char* edge;
    QRect available;
    QPoint item;
    QPoint expected;
};

class PopoverPlaceAtAPanel : public testing::TestWithParam<Panel> {};

TEST_P(PopoverPlaceAtAPanel, StandsOffItsEdgeInFrontOfTheItem) {
    const auto& [edge, available, item, expected] = GetParam();
    EXPECT_EQ(popoverPlace(item, {display, available}, size), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, PopoverPlaceAtAPanel,
    testing::Values(Panel{"Top", {0, 30, 1920, 1050}, {1000, 15}, {800, 36}},
                    Panel{"Bottom", {0, 0, 1920, 1040}, {1000, 1060}, {800, 1040 - 6 - 660}},
                    Panel{"Left", {40, 0, 1880, 1080}, {20, 500}, {46, 170}},
                    Panel{"Right", {0, 0, 1880, 1080}, {1900, 500}, {1880 - 6 - 400, 170}},
                    Panel{"TopWithoutRoomOfItsOwn", display, {1000, 15}, {800, 6}},
                    Panel{"TopAtTheRightEnd", {0, 30, 1920, 1050}, {1900, 15}, {1514, 36}},
                    Panel{"TopAtTheLeftEnd", {0, 30, 1920, 1050}, {25, 15}, {6, 36}},
                    Panel{"BottomAtTheRightEnd", {0, 0, 1920, 1040}, {1900, 1065}, {1514, 374}},
                    Panel{"LeftAtTheLowerEnd", {40, 0, 1880, 1080}, {20, 1050}, {46, 1080 - 6 - 660}},
                    Panel{"RightAtTheUpperEnd", {0, 0, 1880, 1080}, {1900, 25}, {1474, 6}}),
    [](const auto& panel) { return std::string(panel.param.edge); });

TEST(PopoverPlace, StaysOnTheItemsOwnScreen) {
    const QRect beside(1920, 200, 1280, 1024);
    const PopoverScreen screen{beside, beside.adjusted(0, 0, 0, -30)};
    EXPECT_EQ(popoverPlace(QPoint(3190, 1210), screen, size), QPoint(3200 - 6 - 400, 1194 - 6 - 660));
    EXPECT_EQ(popoverPlace(QPoint(1930, 700), screen, size), QPoint(1926, 370));
    const QRect leftOfTheFirst(-1280, -100, 1280, 1024);
    EXPECT_EQ(popoverPlace(QPoint(-640, -95), {leftOfTheFirst, leftOfTheFirst}, size), QPoint(-840, -94));
}

TEST(PopoverPlace, WithoutAnItemIsTheUpperRightCorner) {
    const QRect beside(1920, 200, 1280, 1024);
    EXPECT_EQ(popoverPlace(std::nullopt, {display, {0, 30, 1920, 1050}}, size), QPoint(1514, 36));
    EXPECT_EQ(popoverPlace(std::nullopt, {beside, beside}, size), QPoint(3200 - 6 - 400, 206));
}

// What does not fit begins at the upper left, where the header and the way out are.
TEST(PopoverPlace, OnAScreenTooSmallKeepsTheUpperLeftInSight) {
    const QRect low(0, 0, 1024, 600);
    EXPECT_EQ(popoverPlace(QPoint(1000, 590), {low, low.adjusted(0, 0, 0, -24)}, size), QPoint(618, 6));
    const QRect tiny(0, 0, 320, 240);
    for (const auto item : {QPoint(300, 5), QPoint(300, 235), QPoint(5, 120), QPoint(315, 120)}) {
        EXPECT_EQ(popoverPlace(item, {tiny, tiny}, size), QPoint(6, 6));
    }
    EXPECT_EQ(popoverPlace(std::nullopt, {tiny, tiny}, size), QPoint(6, 6));
}

TEST(PopoverPlace, IsWholeOnTheScreenWhereverTheItemIs) {
    const QRect available = display.adjusted(0, 30, -40, 0);
    for (int x = -50; x <= 1970; x += 101) {
        for (int y = -50; y <= 1130; y += 59) {
            const QRect popover(popoverPlace(QPoint(x, y), {display, available}, size), size);
            EXPECT_TRUE(available.contains(popover)) << x << ", " << y;
        }
    }
}

} // namespace
} // namespace quelby::app
