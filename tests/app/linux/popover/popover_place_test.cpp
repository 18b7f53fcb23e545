#include "app/linux/popover/popover_place.h"

#include <gtest/gtest.h>

#include "ui/support/printing.h"

namespace quelby::app {
namespace {

constexpr QSize wanted(400, 660);
constexpr QRect display(0, 0, 1920, 1080);

DesktopScreen screenOf(QRect pixels, QMargins reserved = {}, double scale = 1) {
    return {.pixels = pixels, .reserved = reserved, .scale = scale, .main = pixels.topLeft().isNull()};
}

ItemPress pointerAt(QPoint pixel) {
    return {.told = std::nullopt, .pointer = pixel};
}

ItemPress toldOf(QPoint place) {
    return {.told = place, .pointer = std::nullopt};
}

struct Panel {
    const char* name;
    QMargins reserved;
    QPoint item;
    QRect expected;
    Qt::Edge edge;
};

class PopoverPlaceAtAPanel : public testing::TestWithParam<Panel> {};

TEST_P(PopoverPlaceAtAPanel, IsInFrontOfTheItemBesideItsPanel) {
    const auto& [name, reserved, item, expected, edge] = GetParam();
    const auto place = popoverPlace(pointerAt(item), {screenOf(display, reserved)}, wanted);
    EXPECT_EQ(place.area, expected);
    EXPECT_EQ(place.panel, edge);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, PopoverPlaceAtAPanel,
    testing::Values(
        Panel{"Top", {0, 30, 0, 0}, {1000, 15}, {800, 36, 400, 660}, Qt::TopEdge},
        Panel{"Bottom", {0, 0, 0, 40}, {1000, 1060}, {800, 1040 - 6 - 660, 400, 660}, Qt::BottomEdge},
        Panel{"Left", {40, 0, 0, 0}, {20, 500}, {46, 170, 400, 660}, Qt::LeftEdge},
        Panel{"Right", {0, 0, 40, 0}, {1900, 500}, {1880 - 6 - 400, 170, 400, 660}, Qt::RightEdge},
        Panel{"TopAtTheRightEnd", {0, 30, 0, 0}, {1900, 15}, {1514, 36, 400, 660}, Qt::TopEdge},
        Panel{"TopAtTheVeryCorner", {0, 30, 0, 0}, {1919, 20}, {1514, 36, 400, 660}, Qt::TopEdge},
        Panel{"TopAtTheLeftEnd", {0, 30, 0, 0}, {25, 15}, {6, 36, 400, 660}, Qt::TopEdge},
        Panel{"BottomAtTheRightEnd", {0, 0, 0, 40}, {1900, 1065}, {1514, 374, 400, 660}, Qt::BottomEdge},
        Panel{"LeftAtTheLowerEnd", {40, 0, 0, 0}, {20, 1050}, {46, 1080 - 6 - 660, 400, 660}, Qt::LeftEdge},
        Panel{"RightAtTheUpperEnd", {0, 0, 40, 0}, {1900, 25}, {1474, 6, 400, 660}, Qt::RightEdge},
        Panel{"TopBesideADock", {70, 30, 0, 0}, {60, 10}, {76, 36, 400, 660}, Qt::TopEdge},
        Panel{"TopWithAnotherBelow", {0, 24, 0, 60}, {1000, 15}, {800, 30, 400, 660}, Qt::TopEdge},
        // A panel that hides, or that lies over the windows, keeps nothing for itself.
        Panel{"TopThatKeepsNothing", {}, {1000, 12}, {800, 38, 400, 660}, Qt::TopEdge},
        Panel{"BottomThatKeepsNothing", {}, {1000, 1070}, {800, 1080 - 38 - 660, 400, 660}, Qt::BottomEdge},
        Panel{"LeftThatKeepsNothing", {}, {10, 500}, {38, 170, 400, 660}, Qt::LeftEdge},
        Panel{"TopCornerThatKeepsNothing", {}, {1915, 14}, {1514, 38, 400, 660}, Qt::TopEdge},
        Panel{"ThickTopThatKeepsNothing", {}, {1000, 40}, {800, 62, 400, 660}, Qt::TopEdge}),
    [](const auto& panel) { return std::string(panel.param.name); });

struct Host {
    const char* name;
    DesktopScreen screen;
    ItemPress press;
    QRect expected;
};

class PopoverPlaceByAHost : public testing::TestWithParam<Host> {};

TEST_P(PopoverPlaceByAHost, IsAtTheItem) {
    EXPECT_EQ(popoverPlace(GetParam().press, {GetParam().screen}, wanted).area, GetParam().expected);
}

// What the hosts were seen to tell, and what the server knew of the pointer.
INSTANTIATE_TEST_SUITE_P(Measured, PopoverPlaceByAHost,
                         testing::Values(Host{"XfceTellsPixels",
                                              screenOf({0, 0, 1280, 800}, {0, 26, 0, 0}),
                                              {.told = QPoint(1150, 12), .pointer = QPoint(1150, 12)},
                                              {874, 32, 400, 660}},
                                         Host{"XfceTellsPointsAtScale2",
                                              screenOf({0, 0, 2560, 1600}, {0, 52, 0, 0}, 2),
                                              {.told = QPoint(1150, 12), .pointer = QPoint(2300, 24)},
                                              {874, 32, 400, 660}},
                                         Host{"XfceTellsPointsAtScale2WithoutAPointer",
                                              screenOf({0, 0, 2560, 1600}, {0, 0, 0, 52}, 2),
                                              toldOf({1150, 790}),
                                              {874, 800 - 26 - 6 - 660, 400, 660}},
                                         Host{"LxqtTellsPointsAtScale2",
                                              screenOf({0, 0, 2560, 1600}, {0, 0, 0, 64}, 2),
                                              {.told = QPoint(1150, 785), .pointer = QPoint(2300, 1570)},
                                              {874, 800 - 32 - 6 - 660, 400, 660}},
                                         Host{"CinnamonTellsACorner",
                                              screenOf({0, 0, 1280, 800}, {0, 0, 0, 40}),
                                              {.told = QPoint(985, 760), .pointer = QPoint(1000, 780)},
                                              {800, 800 - 40 - 6 - 660, 400, 660}},
                                         Host{"PlasmaTellsPixelsAtScale2",
                                              screenOf({0, 0, 2560, 1600}, {0, 0, 0, 88}, 2),
                                              {.told = QPoint(2188, 1556), .pointer = QPoint(2188, 1556)},
                                              {874, 800 - 44 - 6 - 660, 400, 660}},
                                         Host{"PlasmaTellsPixelsOfItsOutputToXWayland",
                                              screenOf({0, 0, 1280, 800}, {0, 0, 0, 44}),
                                              toldOf({2188, 1556}),
                                              {874, 800 - 44 - 6 - 660, 400, 660}},
                                         Host{"GnomeTellsPixelsAtScale2",
                                              screenOf({0, 0, 2560, 1600}, {0, 64, 0, 0}, 2),
                                              toldOf({2300, 30}),
                                              {874, 38, 400, 660}},
                                         Host{"MateTellsNothingOfUse",
                                              screenOf({0, 0, 1280, 800}, {0, 28, 0, 28}),
                                              pointerAt({1000, 14}),
                                              {800, 34, 400, 660}},
                                         Host{"WaybarTellsNothingOfUseToXWayland",
                                              screenOf({0, 0, 1280, 800}),
                                              {},
                                              {874, 38, 400, 660}},
                                         Host{"I3TellsOfItsBarByAStrutOnly",
                                              screenOf({0, 0, 1280, 800}, {0, 0, 0, 20}),
                                              pointerAt({1270, 790}),
                                              {874, 800 - 20 - 6 - 660, 400, 660}},
                                         Host{"AKeyboardTellsOfTheItemWhereverThePointerIs",
                                              screenOf({0, 0, 1280, 800}, {0, 26, 0, 0}),
                                              {.told = QPoint(700, 12), .pointer = QPoint(300, 500)},
                                              {500, 32, 400, 660}},
                                         Host{"AKeyboardTellsOfTheOriginOnly",
                                              screenOf({0, 0, 1280, 800}, {0, 0, 0, 40}),
                                              toldOf({0, 0}),
                                              {874, 800 - 40 - 6 - 660, 400, 660}}),
                         [](const auto& host) { return std::string(host.param.name); });

struct Corner {
    const char* name;
    QMargins reserved;
    QPoint expected;
};

class PopoverPlaceWithoutAnItem : public testing::TestWithParam<Corner> {};

TEST_P(PopoverPlaceWithoutAnItem, IsTheCornerWhereItsPanelHasTheTray) {
    const auto& [name, reserved, expected] = GetParam();
    EXPECT_EQ(popoverPlace({}, {screenOf(display, reserved)}, wanted).area, QRect(expected, wanted));
}

INSTANTIATE_TEST_SUITE_P(Panels, PopoverPlaceWithoutAnItem,
                         testing::Values(Corner{"None", {}, {1514, 38}},
                                         Corner{"Top", {0, 30, 0, 0}, {1514, 36}},
                                         Corner{"Bottom", {0, 0, 0, 40}, {1514, 1080 - 46 - 660}},
                                         Corner{"TopAndBottom", {0, 30, 0, 40}, {1514, 36}},
                                         Corner{"Left", {40, 0, 0, 0}, {46, 1080 - 6 - 660}},
                                         Corner{"Right", {0, 0, 40, 0}, {1474, 1080 - 6 - 660}}),
                         [](const auto& corner) { return std::string(corner.param.name); });

TEST(PopoverPlace, IsOnTheItemsOwnScreen) {
    const QRect beside(1920, 200, 1280, 1024);
    const std::vector screens{screenOf(display), screenOf(beside, {0, 0, 0, 30})};
    const auto place = popoverPlace(pointerAt({3190, 1210}), screens, wanted);
    EXPECT_EQ(place.screen, 1U);
    EXPECT_EQ(place.area, QRect(QPoint(3200 - 6 - 400, 1194 - 6 - 660), wanted));
    EXPECT_EQ(popoverPlace(pointerAt({1000, 5}), screens, wanted).screen, 0U);
}

TEST(PopoverPlace, CountsInThePointsOfTheItemsScreen) {
    const QRect dense(1920, 0, 3840, 2160);
    const std::vector screens{screenOf(display, {0, 24, 0, 0}), screenOf(dense, {0, 48, 0, 0}, 2)};
    EXPECT_EQ(popoverPlace(pointerAt({1920 + 2000, 20}), screens, wanted).area,
              QRect(QPoint(1920 + 1000 - 200, 30), wanted));
    EXPECT_EQ(popoverPlace(pointerAt({1000, 20}), screens, wanted).area, QRect(QPoint(800, 30), wanted));
}

TEST(PopoverPlace, WithoutAnItemIsOnTheScreenWithPanelsAndBestOnTheMainOne) {
    const QRect beside(1920, 0, 1280, 1024);
    const QMargins panel(0, 30, 0, 0);
    EXPECT_EQ(popoverPlace({}, {screenOf(beside), screenOf(display)}, wanted).screen, 1U);
    EXPECT_EQ(popoverPlace({}, {screenOf(display), screenOf(beside, panel)}, wanted).screen, 1U);
    EXPECT_EQ(popoverPlace({}, {screenOf(display, panel), screenOf(beside, panel)}, wanted).screen, 0U);
}

TEST(PopoverPlace, IsAsHighAsThereIsRoom) {
    const auto height = [](int pixelsHigh, double scale) {
        const QRect pixels(0, 0, 1280, pixelsHigh);
        return popoverPlace({}, {screenOf(pixels, {0, 30, 0, 0}, scale)}, wanted).area.height();
    };
    EXPECT_EQ(height(30 + 12 + 661, 1), 660);
    EXPECT_EQ(height(30 + 12 + 660, 1), 660);
    EXPECT_EQ(height(30 + 12 + 659, 1), 659);
    EXPECT_EQ(height(800, 1.25), 640 - 24 - 12);
    EXPECT_EQ(height(800, 1.5), 533 - 20 - 12);
}

// What does not fit begins at the upper left, where the header and the way out are.
TEST(PopoverPlace, OnAScreenTooNarrowKeepsTheLeftInSight) {
    const QRect tiny(0, 0, 320, 240);
    for (const auto item : {QPoint(300, 5), QPoint(300, 235), QPoint(5, 120), QPoint(315, 120)}) {
        const auto area = popoverPlace(pointerAt(item), {screenOf(tiny)}, wanted).area;
        EXPECT_EQ(area.left(), 0);
        EXPECT_GE(area.top(), 0);
        EXPECT_LT(area.bottom(), 240);
    }
}

// At every scale, wherever the item is: whole on the screen, and never over the item.
TEST(PopoverPlace, IsWholeOnTheScreenAndNotOverTheItem) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QSize pixels = QSize(1280, 800) * scale;
        for (const QMargins reserved : {QMargins(), QMargins(0, 30, 0, 0), QMargins(0, 0, 0, 40)}) {
            const auto screen = screenOf(QRect(QPoint(), pixels), reserved * scale, scale);
            for (int x = 0; x < pixels.width(); x += 37) {
                for (const int fromEdge : {1, 12, 30, 59}) {
                    for (const int y : {fromEdge, pixels.height() - 1 - fromEdge}) {
                        const auto area = popoverPlace(pointerAt({x, y}), {screen}, wanted).area;
                        EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(area)) << x << ", " << y;
                        EXPECT_FALSE(area.contains(QPoint(x, y) / scale)) << x << ", " << y;
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace quelby::app
