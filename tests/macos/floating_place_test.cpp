#include "app/macos/floating_place.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

// Below a menu bar of 25 points.
const QRect room(0, 25, 1440, 875);

TEST(FloatingPlace, IsCentredBelowTheItem) {
    EXPECT_EQ(cornerBelow({1000, 24}, 400, room), QPoint(800, 24));
}

TEST(FloatingPlace, IsWholeOnTheScreen) {
    EXPECT_EQ(cornerBelow({1430, 24}, 400, room), QPoint(1040, 24));
    EXPECT_EQ(cornerBelow({10, 24}, 400, room), QPoint(0, 24));
}

TEST(FloatingPlace, BeginsAtTheLeftWhereTheScreenIsTooNarrow) {
    EXPECT_EQ(cornerBelow({100, 24}, 400, QRect(0, 25, 320, 480)), QPoint(0, 24));
}

TEST(FloatingPlace, IsBelowTheMenuBarOfThePointersScreenWhereTheItemIsHidden) {
    EXPECT_EQ(cornerBelowMenuBar({700, 500}, 400, room), QPoint(500, 25));
    const QRect second(1440, -200, 1920, 1080);
    EXPECT_EQ(cornerBelowMenuBar({3300, 100}, 400, second), QPoint(2960, -200));
}

} // namespace
} // namespace quelby::app
