#include "app/linux/popover/opening_press.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

using namespace std::chrono_literals;

constexpr QPoint itemPlace(640, 5);
constexpr OpeningPress::Time openingTime(1h);

TEST(OpeningPress, GoesOnWithinTheTimeOfADoublePress) {
    OpeningPress press;
    press.happened(itemPlace, openingTime, 400ms);
    EXPECT_TRUE(press.goesOn(itemPlace, openingTime));
    EXPECT_TRUE(press.goesOn(itemPlace, openingTime + 399ms)); // also as the third of a double press
    EXPECT_FALSE(press.goesOn(itemPlace, openingTime + 400ms));
}

TEST(OpeningPress, GoesOnWhereThePointerIsStillWithin32Pixels) {
    OpeningPress press;
    press.happened(itemPlace, openingTime, 400ms);
    EXPECT_TRUE(press.goesOn(itemPlace + QPoint(16, 16), openingTime));
    EXPECT_FALSE(press.goesOn(itemPlace + QPoint(16, 17), openingTime));
    EXPECT_TRUE(press.goesOn(std::nullopt, openingTime));
    press.happened(std::nullopt, openingTime, 400ms);
    EXPECT_TRUE(press.goesOn(itemPlace, openingTime));
}

TEST(OpeningPress, EndsAtOnceWhereTheDesktopHasNoDoublePresses) {
    OpeningPress press;
    press.happened(itemPlace, openingTime, 0ms);
    EXPECT_FALSE(press.goesOn(itemPlace, openingTime));
}

TEST(OpeningPress, IsNoneBeforeTheFirst) {
    EXPECT_FALSE(OpeningPress().goesOn(itemPlace, openingTime));
}

} // namespace
} // namespace quelby::app
