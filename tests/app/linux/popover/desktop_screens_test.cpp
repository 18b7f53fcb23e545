#include "app/linux/popover/desktop_screens.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

constexpr QSize desktop(1920, 1080);
constexpr QRect whole(QPoint(), desktop);

TEST(ReservedBy, NobodyIsNothing) {
    EXPECT_EQ(reservedBy({}, whole, desktop), QMargins());
}

TEST(ReservedBy, PanelsIsWhatEachKeepsAtItsEdge) {
    const std::vector<Strut> struts{{Qt::LeftEdge, 40, 0, 1079},
                                    {Qt::TopEdge, 24, 0, 1919},
                                    {Qt::RightEdge, 30, 0, 1079},
                                    {Qt::BottomEdge, 50, 0, 1919}};
    EXPECT_EQ(reservedBy(struts, whole, desktop), QMargins(40, 24, 30, 50));
}

TEST(ReservedBy, SeveralPanelsAtAnEdgeIsTheDeepest) {
    EXPECT_EQ(reservedBy({{Qt::TopEdge, 24, 0, 900}, {Qt::TopEdge, 48, 901, 1919}}, whole, desktop),
              QMargins(0, 48, 0, 0));
}

// The window managers' specification counts from the edge of all screens together.
TEST(ReservedBy, PanelsOfAnotherScreenIsNothing) {
    const QSize both(1920 + 1280, 1080);
    const QRect left(0, 0, 1920, 1080);
    const QRect right(1920, 56, 1280, 1024);
    const Strut aboveTheLeft{Qt::TopEdge, 24, 0, 1919};
    EXPECT_EQ(reservedBy({aboveTheLeft}, left, both), QMargins(0, 24, 0, 0));
    EXPECT_EQ(reservedBy({aboveTheLeft}, right, both), QMargins());
    const Strut aboveTheRight{Qt::TopEdge, 56 + 24, 1920, 3199};
    EXPECT_EQ(reservedBy({aboveTheRight}, right, both), QMargins(0, 24, 0, 0));
    EXPECT_EQ(reservedBy({aboveTheRight}, left, both), QMargins());
}

TEST(ReservedBy, APanelBetweenTwoScreensIsItsOwnDepthOnItsScreenOnly) {
    const QSize both(1920 + 1280, 1080);
    const Strut between{Qt::LeftEdge, 1920 + 40, 0, 1079};
    EXPECT_EQ(reservedBy({between}, {0, 0, 1920, 1080}, both), QMargins());
    EXPECT_EQ(reservedBy({between}, {1920, 0, 1280, 1080}, both), QMargins(40, 0, 0, 0));
}

TEST(DesktopScreens, AreOneAtLeast) {
    EdgePanels panels;
    const auto screens = desktopScreens(panels);
    ASSERT_FALSE(screens.empty());
    EXPECT_FALSE(screens.front().pixels.isEmpty());
    EXPECT_GT(screens.front().scale, 0);
}

} // namespace
} // namespace quelby::app
