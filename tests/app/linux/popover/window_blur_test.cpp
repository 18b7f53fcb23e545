#include "app/linux/popover/window_blur.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

TEST(WindowBlur, LeavesOutTheRoundCorners) {
    const auto part = insideOfCorners({400, 660}, 10);
    EXPECT_EQ(part.boundingRect(), QRect(0, 0, 400, 660));
    EXPECT_TRUE(part.contains(QPoint(200, 0)));
    EXPECT_TRUE(part.contains(QPoint(0, 330)));
    for (const auto corner : {QPoint(0, 0), QPoint(399, 0), QPoint(0, 659), QPoint(399, 659)}) {
        EXPECT_FALSE(part.contains(corner));
    }
}

TEST(WindowBlur, IsAllOfAWindowWithoutThem) {
    EXPECT_EQ(insideOfCorners({400, 660}, 0), QRegion(0, 0, 400, 660));
}

TEST(WindowBlur, IsNotAskedForWhereThereIsNoX) {
    QWindow window;
    EXPECT_FALSE(askForBlur(window, 10)); // the tests have no display
}

} // namespace
} // namespace quelby::app
